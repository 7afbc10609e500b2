"""Tests of tools/packages.sh."""

import os
import re
import subprocess
import tempfile
import unittest

import loading

APT_GET = """#!/bin/sh
for word; do
    case $word in
    update) echo update >>"$LOG"; exit "$UPDATE" ;;
    install) echo "install $*" >>"$LOG"; exit "$INSTALL" ;;
    esac
done
exit 99
"""


class InstallMissingTest(unittest.TestCase):
    def Run(self, update, install):
        """The run, with an apt-get that answers so and a dpkg that has nothing, and what apt-get was asked for."""
        with tempfile.TemporaryDirectory() as root:
            for name, text in (("apt-get", APT_GET), ("dpkg-query", "#!/bin/sh\n"), ("id", "#!/bin/sh\necho 0\n")):
                loading.Write(root, name, text)
                os.chmod(os.path.join(root, name), 0o755)
            log = os.path.join(root, "log")
            environment = dict(os.environ, PATH=root + ":" + os.environ["PATH"], LOG=log, UPDATE=str(update),
                               INSTALL=str(install))
            script = "set -e; . '%s'; install_missing ninja-build; echo done" % os.path.join(loading.TOOLS, "packages.sh")
            run = subprocess.run(["bash", "-c", script], env=environment, capture_output=True, text=True, check=False)
            with open(log, encoding="utf-8") as stream:
                return run, stream.read().splitlines()

    def test_IndicesAreThere_InstallsInSilence(self):
        run, asked = self.Run(0, 0)
        self.assertEqual((run.returncode, run.stdout, run.stderr), (0, "done\n", "Installing ninja-build\n"))
        self.assertEqual(asked[0], "update")
        self.assertTrue(asked[1].endswith("ninja-build"))

    def test_AnIndexCantBeHad_WarnsAndInstalls(self):
        run, asked = self.Run(100, 0)
        self.assertEqual((run.returncode, run.stdout), (0, "done\n"))
        self.assertIn("couldn't all be brought up to date", run.stderr)
        self.assertEqual(len(asked), 2)

    def test_PackageCantBeHad_Fails(self):
        run, asked = self.Run(0, 100)
        self.assertEqual((run.returncode, run.stdout), (100, ""))
        self.assertEqual(len(asked), 2)


class PackagePackagesTest(unittest.TestCase):
    def test_WhatDebianBuildsWith_IsInstalledByPackage(self):
        with open(os.path.join(loading.TOOLS, "../debian/control"), encoding="utf-8") as stream:
            wanted = re.search(r"^Build-Depends:(.*?)^\S", stream.read(), re.MULTILINE | re.DOTALL).group(1)
        names = {re.sub(r"[ (].*", "", name.strip()) for name in wanted.split(",")}
        self.assertIn("debhelper-compat", names)
        names = names - {"debhelper-compat"} | {"debhelper", "build-essential"}
        script = ". '%s'; echo ${build_packages[*]} ${package_packages[*]}" % os.path.join(loading.TOOLS, "packages.sh")
        listed = subprocess.run(["bash", "-c", script], capture_output=True, text=True, check=True).stdout.split()
        self.assertEqual(names - set(listed), set())


if __name__ == "__main__":
    unittest.main()
