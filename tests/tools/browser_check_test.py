"""Tests of tools/browser-check."""

import contextlib
import io
import os
import pathlib
import sys
import tempfile
import unittest

import loading

sys.path.insert(0, loading.TOOLS)
import devtools  # noqa: E402

check = loading.Load("browser-check")

PAGE = ("<!DOCTYPE html><html lang='en'><head><meta charset='utf-8'><meta name='color-scheme' content='light dark'>"
        "<title>t</title>%s</head><body>%s</body></html>")
POLICY = "<meta http-equiv='Content-Security-Policy' content=\"default-src 'none'; style-src 'unsafe-inline'\">"
TABLE = "<table><caption>c</caption><tr><th scope='col'>a</th></tr><tr><td>b</td></tr></table>"

# Pages with one thing wrong each, and words of the finding.
BAD = (
    ("", "<script>console.log('hello')</script>", "console: hello"),
    ("", "<script>missing()</script>", "script that fails"),
    ("", "<script>alert('hello')</script>", "dialog: hello"),
    ("", "<img alt='' src='http://nothing.invalid/a.png'>", "asks for http://nothing.invalid/a.png"),
    ("", "<iframe title='f' srcdoc='x'></iframe>", "frame"),
    ("", "<a href='#' onfocus='console.log(1)'>x</a>", "console: 1"),
    ("", "<p style='width: 2000px'>x</p>", "2008 wide in a window of 360"),
    ("", "<p style='color: #ccc; background: #fff'>pale</p>", "\"pale\" at a contrast"),
    ("", "<table><tr><th scope='col'>a</th></tr></table>", "without a caption"),
    ("", "<table><caption>c</caption><tr><th>a</th></tr></table>", "no scope"),
    (POLICY, "<img alt='' src='http://nothing.invalid/a.png'>", "Content Security Policy"),
)


def HasBrowser():
    try:
        return bool(devtools.Find())
    except devtools.BrowserError:
        return False


class ToldTest(unittest.TestCase):
    def Told(self, method, allowed=None, **parameters):
        return check.Told({"method": method, "params": parameters}, "file:///page.html", allowed)

    def test_PageItself_IsNoFinding(self):
        self.assertIsNone(self.Told("Network.requestWillBeSent", requestId="1", request={"url": "file:///page.html"}))
        self.assertIsNone(self.Told("Page.frameNavigated", frame={"url": "file:///page.html"}))

    def test_OwnPicture_IsOneBesideThePage(self):
        def IsOwn(type, url):
            event = {"method": "Network.requestWillBeSent", "params": {"type": type, "request": {"url": url}}}
            return check.IsOwnPicture(event, "file:///guide/page.html")
        self.assertTrue(IsOwn("Image", "file:///guide/a.png"))
        self.assertFalse(IsOwn("Image", "file:///a.png"))
        self.assertFalse(IsOwn("Image", "http://guide/a.png"))
        self.assertFalse(IsOwn("Script", "file:///guide/a.js"))

    def test_RefusedRequest_IsAFindingUnlessAllowed(self):
        request = {"requestId": "2", "request": {"url": "http://x/"}}
        self.assertIn("http://x/", self.Told("Network.requestWillBeSent", **request))
        self.assertIn("http://x/", self.Told("Network.requestWillBeSent", allowed={"1"}, **request))
        self.assertIsNone(self.Told("Network.requestWillBeSent", allowed={"2"}, **request))

    def test_OtherMessage_IsNeverAllowed(self):
        entry = {"source": "network", "text": "Failed to load resource"}
        self.assertIn("Failed to load", self.Told("Log.entryAdded", allowed=set(), entry=entry))

    def test_Refused_TakesThoseOfThePolicyAlone(self):
        def Failed(number, reason):
            return {"method": "Network.loadingFailed", "params": {"requestId": number, "blockedReason": reason}}
        self.assertEqual(check.Refused([Failed("1", "csp"), Failed("2", "other")]), {"1"})


@unittest.skipUnless(HasBrowser(), "there is no Chromium")
class BrowserTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def Run(self, pages, *options):
        """The exit status and what was printed for pages, given as head and body."""
        files = []
        for number, (head, body) in enumerate(pages):
            files.append(str(self.folder / f"page{number}.html"))
            pathlib.Path(files[-1]).write_text(PAGE % (head, body), encoding="utf-8")
        with contextlib.redirect_stdout(io.StringIO()) as out:
            status = check.Main(["--pictures", str(self.folder / "pictures"), *options, *files])
        return status, out.getvalue()

    def test_GoodPage_PassesAndIsPictured(self):
        status, out = self.Run([("", TABLE + "<p><a href='http://nothing.invalid/'>a link</a></p>")])
        self.assertEqual((status, out), (0, "browser-check: 1 pages, 0 findings\n"))
        pictures = sorted(os.listdir(self.folder / "pictures"))
        self.assertEqual(pictures, ["page0-1200-dark.png", "page0-1200-light.png", "page0-360-dark.png",
                                    "page0-360-light.png"])
        for picture in pictures:
            self.assertTrue((self.folder / "pictures" / picture).read_bytes().startswith(b"\x89PNG"))

    def test_BadPages_AreFound(self):
        status, out = self.Run([(head, body) for head, body, _ in BAD])
        self.assertEqual(status, 1)
        for number, (_, body, words) in enumerate(BAD):
            lines = [line for line in out.splitlines() if f"page{number}.html" in line]
            self.assertTrue(any(words in line for line in lines), f"{body}: {lines}")

    def test_RefusedHandlerAndPicture_AreAllowedWhenAsked(self):
        body = "<a href='#' onfocus='alert(1)'>x</a><img alt='' src='http://nothing.invalid/a.png'>"
        self.assertEqual(self.Run([(POLICY, body)], "--allow-refusals")[0], 0)
        self.assertEqual(self.Run([("", body)], "--allow-refusals")[0], 1)


if __name__ == "__main__":
    unittest.main()
