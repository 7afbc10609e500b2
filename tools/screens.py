"""A screen that nobody sees: an X server whose picture can be kept."""

import os
import pathlib
import struct
import subprocess
import tempfile
import zlib


class Screen:
    """An X server of that size, as long as the block lasts."""

    def __init__(self, width, height):
        self.size = f"{width}x{height}x24"

    def __enter__(self):
        self.folder = tempfile.TemporaryDirectory()
        reading, writing = os.pipe()
        self.process = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", self.size, "-nocursor",
                                         "-fbdir", self.folder.name, "-nolisten", "tcp"], pass_fds=[writing],
                                        stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            self.display = ":" + answer.readline().strip()
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()
        self.folder.cleanup()

    def Picture(self):
        """What is on the screen, as the bytes of a PNG file."""
        data = (pathlib.Path(self.folder.name) / "Xvfb_screen0").read_bytes()
        header = struct.unpack(">25I", data[:100])
        size, width, height, stride, colors = header[0], header[4], header[5], header[12], header[19]
        begin = size + 12 * colors
        rows = bytearray()
        for row in range(height):
            line = data[begin + row * stride:begin + row * stride + 4 * width]
            # Blue, green and red, and a byte that means nothing.
            pixels = bytearray(3 * width)
            pixels[0::3], pixels[1::3], pixels[2::3] = line[2::4], line[1::4], line[0::4]
            rows += b"\0" + pixels
        return (b"\x89PNG\r\n\x1a\n" + Chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
                + Chunk(b"IDAT", zlib.compress(bytes(rows), 9)) + Chunk(b"IEND", b""))


def Chunk(kind, content):
    """A part of a PNG file."""
    return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))
