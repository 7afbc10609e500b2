"""Tests of tools/lint-tidy: which files it chooses, and when it looks again."""

import os
import subprocess
import tempfile
import unittest

import loading

lint = loading.Load("lint-tidy")


class RepositoryTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.mRoot = folder.name

    def Git(self, *arguments):
        person = ["-c", "user.name=A", "-c", "user.email=a@example.org"]
        command = ["git", *person, "-c", "safe.directory=*", *arguments]
        subprocess.run(command, cwd=self.mRoot, check=True, capture_output=True)

    def Commit(self, file, text):
        loading.Write(self.mRoot, file, text)
        self.Git("add", file)
        self.Git("commit", "-m", file)

    def test_OutsideGit_NothingIsKnown(self):
        self.assertIsNone(lint.ChangedFiles(self.mRoot))

    def test_WithoutMain_TheLastCommitCounts(self):
        self.Git("init")
        self.Commit("a.cpp", "1")
        self.assertEqual(lint.ChangedFiles(self.mRoot), ["a.cpp"])
        self.Commit("b.cpp", "1")
        self.Commit("c.cpp", "1")
        self.assertEqual(lint.ChangedFiles(self.mRoot), ["c.cpp"])
        loading.Write(self.mRoot, "a.cpp", "2")
        loading.Write(self.mRoot, "d.cpp", "1")
        self.assertEqual(lint.ChangedFiles(self.mRoot), ["a.cpp", "c.cpp", "d.cpp"])

    def test_WithMain_AllSinceThenCount(self):
        self.Git("init")
        self.Commit("a.cpp", "1")
        self.Git("update-ref", "refs/remotes/origin/main", "HEAD")
        self.assertEqual(lint.ChangedFiles(self.mRoot), [])
        self.Commit("b.cpp", "1")
        self.Commit("c.cpp", "1")
        self.assertEqual(lint.ChangedFiles(self.mRoot), ["b.cpp", "c.cpp"])


class SourceTest(unittest.TestCase):
    def test_Header_IsSeenThroughASource(self):
        there = {"/r/src/base/Date.cpp", "/r/build/tidy/headers/base/Ref.h.cpp"}
        for file, source in (
            ("src/base/Number.cpp", "src/base/Number.cpp"),
            ("src/base/Date.h", "src/base/Date.cpp"),
            ("src/base/Ref.h", "build/tidy/headers/base/Ref.h.cpp"),
            ("tests/support/Clock.h", None),
        ):
            self.assertEqual(lint.SourceOf("/r", file, there.__contains__), source)


class FingerprintTest(unittest.TestCase):
    def test_Fingerprint_FollowsTheHeaders(self):
        with tempfile.TemporaryDirectory() as root:
            loading.Write(root, "src/base/A.cpp", '#include "base/A.h"\n')
            loading.Write(root, "src/base/A.h", '#include "base/B.h"\n')
            loading.Write(root, "src/base/B.h", "int b;\n")
            loading.Write(root, "src/base/C.h", "int c;\n")
            first = lint.Fingerprints(root).Of("src/base/A.cpp")
            loading.Write(root, "src/base/C.h", "int d;\n")
            self.assertEqual(lint.Fingerprints(root).Of("src/base/A.cpp"), first)
            loading.Write(root, "src/base/B.h", "int c;\n")
            second = lint.Fingerprints(root).Of("src/base/A.cpp")
            self.assertNotEqual(second, first)
            loading.Write(root, ".clang-tidy", "Checks: '*'\n")
            self.assertNotEqual(lint.Fingerprints(root).Of("src/base/A.cpp"), second)


if __name__ == "__main__":
    unittest.main()
