"""Tests of what continuous integration runs."""

import os
import shutil
import subprocess
import tempfile
import unittest

import loading

CHECK = """#!/bin/sh
echo "check $*"
exit $CHECKED
"""

PACKAGES = """build_packages=(one)
package_packages=(two)
install_missing() {
    echo "asked for $*"
    return $HAD
}
"""

DAY = 86400
NOW = 1_800_000_000


class CiRunTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = folder.name
        self.work = os.path.join(self.root, "work")
        loading.Write(self.work, "check", CHECK)
        loading.Write(self.work, "tools/packages.sh", PACKAGES)
        os.makedirs(os.path.join(self.work, ".ci"))
        shutil.copy(os.path.join(loading.TOOLS, "../.ci/run"), os.path.join(self.work, ".ci"))
        os.chmod(os.path.join(self.work, "check"), 0o755)

    def Git(self, *arguments, when=NOW):
        environment = dict(os.environ, HOME=self.root, GIT_COMMITTER_DATE=f"@{when} +0000", GIT_CONFIG_NOSYSTEM="1")
        for name in ("GIT_DIR", "GIT_WORK_TREE", "GIT_INDEX_FILE"):
            environment.pop(name, None)
        subprocess.run(["git", "-c", "user.name=ann", "-c", "user.email=ann@home.example", *arguments], cwd=self.work,
                       env=environment, capture_output=True, check=True)

    def Commit(self, name, when):
        """A commit that changes a file, and for the first of them makes the history."""
        if not os.path.exists(os.path.join(self.work, ".git")):
            self.Git("init", "--initial-branch", "main")
        loading.Write(self.work, name, str(when))
        self.Git("add", "--all")
        self.Git("commit", "--message", name, when=when)

    def Run(self, work=None, checked=0, had=0):
        """The exit status and what is said, of which the last line is what ./check was given."""
        run = subprocess.run([os.path.join(work or self.work, ".ci/run")], capture_output=True, text=True, check=False,
                             env=dict(os.environ, CHECKED=str(checked), HAD=str(had)))
        return run.returncode, run.stdout.splitlines(), run.stderr

    def test_PackagingChangedAgainstTheMainLine_PackagesAreBuilt(self):
        self.Commit("src/a.cpp", NOW - 9 * DAY)
        self.Git("update-ref", "refs/remotes/origin/main", "HEAD")
        self.Commit("debian/rules", NOW - 8 * DAY)
        self.Commit("src/b.cpp", NOW)
        self.assertEqual(self.Run(), (0, ["asked for one two", "check --package"], ""))

    def test_PackagingIsThatOfTheMainLine_ChecksAlone(self):
        self.Commit("debian/rules", NOW)
        self.Git("update-ref", "refs/remotes/origin/main", "HEAD")
        self.Commit("src/b.cpp", NOW)
        self.assertEqual(self.Run(), (0, ["check "], ""))

    def test_OnTheMainLine_ADayBeforeTheLastCommitCounts(self):
        self.Commit("CMakeLists.txt", NOW - DAY + 60)
        self.Commit("src/b.cpp", NOW)
        self.assertEqual(self.Run(), (0, ["asked for one two", "check --package"], ""))
        self.Git("update-ref", "refs/remotes/origin/main", "HEAD")
        self.assertEqual(self.Run(), (0, ["asked for one two", "check --package"], ""))
        self.Commit("src/c.cpp", NOW + 120)
        self.Git("update-ref", "refs/remotes/origin/main", "HEAD")
        self.assertEqual(self.Run(), (0, ["check "], ""))

    def test_HistoryIsCutOffOrAbsent_ChecksAlone(self):
        self.assertEqual(self.Run(), (0, ["check "], ""))
        self.Commit("debian/rules", NOW - 60)
        self.Commit("debian/control", NOW)
        shallow = os.path.join(self.root, "shallow")
        self.Git("clone", "--depth", "1", "file://" + self.work, shallow)
        self.assertEqual(self.Run(shallow), (0, ["check "], ""))

    def test_WhatBuildsPackagesCantBeHad_ChecksAlone(self):
        self.Commit("debian/rules", NOW)
        status, said, warned = self.Run(had=1)
        self.assertEqual((status, said), (0, ["asked for one two", "check "]))
        self.assertIn("can't be had", warned)

    def test_ExitStatus_IsThatOfTheChecks(self):
        self.Commit("debian/rules", NOW)
        self.assertEqual(self.Run(checked=1)[0], 1)


if __name__ == "__main__":
    unittest.main()
