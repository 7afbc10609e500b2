"""Reads the pictures of the toolbar as bitmap files, and draws them anew."""

import os
import pathlib
import struct
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
SHARE = pathlib.Path(os.environ["TEMPODIAL_SHARE_DIR"])
PAIRS = (("TDSettingsIconImage.bmp", "TDSettingsIconMask.bmp"), ("TDRefreshIcon.bmp", "TDRefreshIconMask.bmp"))


def read(name):
    """The dots of a bitmap of 16 by 16, line by line from the top."""
    data = (SHARE / name).read_bytes()
    signature, size, _, _, offset = struct.unpack_from("<2sIHHI", data)
    assert signature == b"BM" and size == len(data)
    header, width, height, planes, bits, packed = struct.unpack_from("<IiiHHI", data, 14)
    assert (header, width, height, planes, packed) == (40, 16, 16, 1, 0)
    palette = [data[start:start + 3] for start in range(54, offset, 4)]
    stride = (width * bits + 31) // 32 * 4
    lines = [data[offset + line * stride:offset + (line + 1) * stride] for line in reversed(range(height))]
    if bits == 24:
        return [[line[dot * 3:dot * 3 + 3] for dot in range(width)] for line in lines]
    assert bits == 1
    return [[palette[line[dot // 8] >> (7 - dot % 8) & 1] for dot in range(width)] for line in lines]


class IconsTest(unittest.TestCase):
    def test_Masks_AreBlackWhereThePictureIsShown(self):
        for image_name, mask_name in PAIRS:
            image, mask = read(image_name), read(mask_name)
            self.assertEqual({dot for line in mask for dot in line}, {b"\0\0\0", b"\xff\xff\xff"})
            for image_line, mask_line in zip(image, mask):
                for colour, shown in zip(image_line, mask_line):
                    self.assertTrue(shown == b"\0\0\0" or colour == b"\xff\xff\xff", "nothing is drawn outside")

    def test_Drawing_GivesTheFilesThatAreThere(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, "-B", ROOT / "tools/make-icons", folder], check=True)
            for name in (name for pair in PAIRS for name in pair):
                self.assertEqual((pathlib.Path(folder) / name).read_bytes(), (ROOT / "resources" / name).read_bytes())


if __name__ == "__main__":
    unittest.main()
