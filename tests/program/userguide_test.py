"""Tests of the user guide, which the add-in's help opens."""

import html.parser
import os
import pathlib
import re
import shlex
import shutil
import struct
import subprocess
import unittest

import shells

FOLDER = pathlib.Path(__file__).resolve().parents[2] / "resources/userguide"
STRINGS = pathlib.Path(__file__).resolve().parents[2] / "src/engine/foundation/TempodialStrings.cpp"


class Page(html.parser.HTMLParser):
    """What a page is made of."""

    def __init__(self, path):
        super().__init__()
        self.tags = []
        self.sessions = []
        self.inSession = False
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attrs):
        attributes = dict(attrs)
        self.tags.append((tag, attributes))
        if tag == "pre" and attributes.get("class") == "session":
            self.inSession = True

    def handle_endtag(self, tag):
        self.inSession = self.inSession and tag != "pre"

    def handle_data(self, data):
        if self.inSession:
            self.sessions += data.strip("\n").split("\n")

    def All(self, tag):
        return [attributes for name, attributes in self.tags if name == tag]


class UserGuideTest(shells.Shells):
    def Pages(self):
        pages = {path.name: Page(path) for path in FOLDER.glob("*.html")}
        self.assertEqual(set(pages), {"userguide.html", "FAQ.html"})
        return pages

    def test_Files_AreNamedAsTheEngineNamesThem(self):
        strings = STRINGS.read_text(encoding="utf-8")
        for name, file in (("mUserGuideName", "userguide.html"), ("mFAQName", "FAQ.html")):
            self.assertIn(f'{name} = "{file}"', strings)
            self.assertTrue((FOLDER / file).is_file())

    def test_Pages_AreWholeByThemselves(self):
        for name, page in self.Pages().items():
            for tag in ("script", "link", "iframe", "form"):
                self.assertEqual(page.All(tag), [], name)
            self.assertFalse([key for _, attributes in page.tags for key in attributes if key.startswith("on")], name)
            places = {attributes["id"] for _, attributes in page.tags if "id" in attributes}
            for link in page.All("a"):
                file, _, place = link["href"].partition("#")
                self.assertTrue((FOLDER / (file or name)).is_file(), link)
                self.assertTrue(file or place in places, link)

    def test_Pictures_HaveAlternativesAndTheirSizes(self):
        for name, page in self.Pages().items():
            for picture in page.All("img"):
                self.assertGreater(len(picture["alt"]), 20, name)
                data = (FOLDER / picture["src"]).read_bytes()
                self.assertEqual(struct.unpack(">II", data[16:24]), (int(picture["width"]), int(picture["height"])))

    def test_Headings_AreInOrder(self):
        for name, page in self.Pages().items():
            levels = [int(tag[1]) for tag, _ in page.tags if re.fullmatch("h[1-6]", tag)]
            self.assertEqual(levels[0], 1, name)
            self.assertEqual(levels.count(1), 1, name)
            self.assertTrue(all(after <= before + 1 for before, after in zip(levels, levels[1:])), name)

    def test_Sessions_DoWhatTheyShow(self):
        # A moment at which what the guide names by days is there.
        self.environment["TEMPODIAL_PROFILE"] = str(self.folder / "trial")
        pages = self.Pages()
        count = 0
        for line in pages["userguide.html"].sessions + pages["FAQ.html"].sessions:
            words = shlex.split(line)
            if words[0] == "tempodial":
                self.Run(shells.PROGRAM, "--now", "2026-11-20T17:30:00", "--locale", "en_US", *words[1:])
                count += 1
        self.assertGreater(count, 10)
        for file in ("report.html", "riverside.html", "november.ics", "november.csv", "problem.eml"):
            self.assertGreater((self.folder / file).stat().st_size, 500, file)
        self.assertIn("EUR", (self.folder / "riverside.html").read_text(encoding="utf-8"))

    def test_Pages_AreSound(self):
        if not shutil.which("tidy") and "TEMPODIAL_ALL_TOOLS" not in os.environ:
            self.skipTest("tidy isn't there")
        for path in FOLDER.glob("*.html"):
            found = subprocess.run(["tidy", "-e", "-q", path], capture_output=True, text=True, check=False)
            self.assertEqual((found.returncode, found.stderr), (0, ""), path)


if __name__ == "__main__":
    unittest.main()
