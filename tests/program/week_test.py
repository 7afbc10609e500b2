"""Tests that docs/a-week-of-work.md shows what the program prints. With --keep the page takes what it prints now."""

import pathlib
import re
import shlex
import subprocess
import sys
import unittest

import shells

PATH = pathlib.Path(__file__).resolve().parents[2] / "docs/a-week-of-work.md"
KEEPS = "--keep" in sys.argv
BLOCK = re.compile(r"^```console\n(.*?)^```$", re.MULTILINE | re.DOTALL)


class WeekTest(shells.Shells):
    def Answered(self, command):
        """A command of the page with what it prints, as it would be seen on a screen without colours."""
        words = shlex.split(command)
        self.assertEqual(words[0], "tempodial")
        run = subprocess.run([shells.PROGRAM, "--now", "2006-10-31T18:00:00", "--locale", "en_US", *words[1:]],
                             env=self.environment, cwd=self.folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                             text=True, check=False, timeout=60)
        self.assertEqual(run.returncode, 0, run.stdout)
        return f"$ {command}\n" + run.stdout.replace(str(self.folder), "~")

    def test_Page_ShowsWhatIsPrinted(self):
        self.environment["TEMPODIAL_PROFILE"] = str(self.folder / "trial")
        page = PATH.read_text(encoding="utf-8")
        count = 0

        def Block(match):
            nonlocal count
            commands = re.findall(r"^\$ (.*)$", match.group(1), re.MULTILINE)
            count += len(commands)
            return "```console\n" + "".join(self.Answered(command) for command in commands) + "```"

        answered = BLOCK.sub(Block, page)
        if KEEPS:
            PATH.write_text(answered, encoding="utf-8")
        self.assertEqual(answered, page)
        self.assertGreater(count, 20)


if __name__ == "__main__":
    unittest.main(argv=[argument for argument in sys.argv if argument != "--keep"])
