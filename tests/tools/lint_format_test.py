"""Tests of tools/lint-format."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest

import loading

GOOD = """namespace tempodial {

class Day
{
public:
    int Value() const { return mValue; }

private:
    int mValue = 0;
};

void Run(Day& day)
{
    if (day.Value() == 0) {
        Run(day);
    }
}

}
"""


class ProgramTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.mRoot = folder.name
        shutil.copy(os.path.join(loading.TOOLS, "..", ".clang-format"), self.mRoot)

    def Run(self):
        program = os.path.join(loading.TOOLS, "lint-format")
        return subprocess.run([sys.executable, "-B", program, self.mRoot], capture_output=True, text=True, check=False)

    def test_OurStyle_IsAccepted(self):
        loading.Write(self.mRoot, "src/base/Day.cpp", GOOD)
        self.assertEqual(self.Run().returncode, 0)

    def test_OtherStyle_IsRefused(self):
        for ours, other in (
            ("void Run(Day& day)\n{", "void Run(Day& day) {"),
            ("class Day\n{", "class Day {"),
            ("    int mValue", "  int mValue"),
            ("Day& day", "Day &day"),
        ):
            with self.subTest(other):
                loading.Write(self.mRoot, "src/base/Day.cpp", GOOD.replace(ours, other))
                answer = self.Run()
                self.assertEqual(answer.returncode, 1)
                self.assertIn("src/base/Day.cpp:", answer.stdout)

    def test_Includes_AreGrouped(self):
        groups = '#include "base/Day.h"\n\n#include "base/Date.h"\n\n#include <gtest/gtest.h>\n\n#include <string>\n'
        loading.Write(self.mRoot, "src/base/Day.cpp", groups)
        self.assertEqual(self.Run().returncode, 0)
        loading.Write(self.mRoot, "src/base/Day.cpp", groups.replace("\n\n", "\n"))
        self.assertEqual(self.Run().returncode, 1)


if __name__ == "__main__":
    unittest.main()
