"""Tests of tools/count-tests."""

import os
import subprocess
import sys
import tempfile
import unittest

import loading

RESULTS = """<?xml version="1.0" encoding="UTF-8"?>
<testsuite>
    <testcase name="good" status="run"><system-out/></testcase>
    <testcase name="better" status="run"/>
    <testcase name="bad" status="fail"><failure message=""/><system-out>two is not one</system-out></testcase>
    <testcase name="absent" status="notrun"><skipped message="Unable to find executable"/></testcase>
    <testcase name="left out" status="notrun"><skipped message="SKIP_REGULAR_EXPRESSION_MATCHED"/></testcase>
    <testcase name="set aside" status="disabled"/>
</testsuite>
"""


class ProgramTest(unittest.TestCase):
    def Run(self, text):
        with tempfile.TemporaryDirectory() as root:
            loading.Write(root, "tests.xml", text)
            program = os.path.join(loading.TOOLS, "count-tests")
            command = [sys.executable, "-B", program, os.path.join(root, "tests.xml")]
            return subprocess.run(command, capture_output=True, text=True, check=False)

    def test_Results_AreCounted(self):
        answer = self.Run(RESULTS)
        self.assertEqual((answer.returncode, answer.stdout), (0, "2\n2\n"))
        self.assertIn("FAILED bad\ntwo is not one", answer.stderr)
        self.assertIn("FAILED absent", answer.stderr)
        self.assertIn("skipped: left out, set aside", answer.stderr)

    def test_BrokenResults_AreNoResult(self):
        answer = self.Run(RESULTS[:-20])
        self.assertNotEqual(answer.returncode, 0)
        self.assertEqual(answer.stdout, "")


if __name__ == "__main__":
    unittest.main()
