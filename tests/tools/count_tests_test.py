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

PROGRAMS = """<?xml version="1.0" encoding="UTF-8"?>
<testsuite>
    <testcase name="host/store" status="{status}"><system-out>the program's output</system-out></testcase>
    <testcase name="forms" status="run"/>
</testsuite>
"""

STORE = """<?xml version="1.0" encoding="UTF-8"?>
<testsuites>
    <testsuite name="A">
        <testcase name="good" status="run" result="completed" classname="A"/>
        <testcase name="better" status="run" result="completed" classname="A"/>
        <testcase name="away" status="run" result="skipped" classname="A"><skipped message="no disk"/></testcase>
    </testsuite>
    {more}
</testsuites>
"""

BAD = """<testsuite name="B"><testcase name="bad" status="run" result="completed" classname="B">
    <failure message="one" type="">two is not one</failure></testcase></testsuite>"""


class ProgramTest(unittest.TestCase):
    def Run(self, text, programs=None):
        with tempfile.TemporaryDirectory() as root:
            loading.Write(root, "tests.xml", text)
            for name, report in (programs or {}).items():
                loading.Write(root, f"tests/{name}", report)
            program = os.path.join(loading.TOOLS, "count-tests")
            command = [sys.executable, "-B", program, os.path.join(root, "tests.xml"), os.path.join(root, "tests")]
            return subprocess.run(command, capture_output=True, text=True, check=False)

    def test_ProgramOfSeveralTests_EachIsCounted(self):
        answer = self.Run(PROGRAMS.format(status="run"), {"host_store.xml": STORE.format(more="")})
        self.assertEqual((answer.returncode, answer.stdout), (0, "3\n0\n"))
        self.assertIn("skipped: host/store/A.away", answer.stderr)

    def test_ProgramWithAFailedTest_IsCountedOnce(self):
        answer = self.Run(PROGRAMS.format(status="fail"), {"host_store.xml": STORE.format(more=BAD)})
        self.assertEqual(answer.stdout, "3\n1\n")
        self.assertIn("FAILED host/store/B.bad\ntwo is not one", answer.stderr)

    def test_ProgramThatDies_HasFailed(self):
        ended = self.Run(PROGRAMS.format(status="fail"), {"host_store.xml": STORE.format(more="")})
        self.assertEqual(ended.stdout, "3\n1\n")
        self.assertIn("FAILED host/store\nthe program's output", ended.stderr)
        untold = self.Run(PROGRAMS.format(status="fail"))
        self.assertEqual(untold.stdout, "1\n1\n")

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
