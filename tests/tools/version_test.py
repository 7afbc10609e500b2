"""Tests that the product's version is one number."""

import os
import re
import unittest

import loading


def Found(file, pattern):
    """What the first match of a pattern in a file of the project gives, None when there is none."""
    with open(os.path.join(loading.TOOLS, "..", file), encoding="utf-8") as stream:
        match = re.search(pattern, stream.read(), re.MULTILINE)
    return match.group(1) if match else None


class VersionTest(unittest.TestCase):
    def test_Version_OfTheProgram_IsThatOfTheBuildAndOfTheNewestChanges(self):
        version = Found("src/engine/core/ProductWords.h", r'ProductVersion = "([0-9.]+)"')
        self.assertIsNotNone(version)
        self.assertEqual(Found("CMakeLists.txt", r"^project\(.* VERSION ([0-9.]+)"), version)
        self.assertEqual(Found("CHANGELOG.md", r"^## (\S+)"), version)
        self.assertEqual(Found("debian/changelog", r"^tempodial \(([^)]+)\)"), version)


if __name__ == "__main__":
    unittest.main()
