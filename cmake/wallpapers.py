#!/usr/bin/env python3
"""Draws the wallpapers of the demo and the end-to-end tests:
  Wallpaper_Wide.png   2560 x 1080, wider than any test screen: a sky over hills
  Wallpaper_Small.bmp  320 x 240, a 24-bit bitmap smaller than any screen
  Test_Bands.png       1600 x 400 of one red, whose white bands are easy to find
  Test_Large.bmp       2000 x 1500 in squares of 100 pixels, larger than the
                       test screen, to scroll
  Test_Huge.png        16000 x 16000 in two colours: a tiny file that would
                       decode to a gigabyte
The output is the same on every run.

usage: wallpapers.py OUT_DIR"""
import math
import os
import struct
import sys
import zlib


def png(path, width, height, rows, colour_type=2, depth=8):
    """rows: an iterable of each row's pixel bytes, without the filter byte."""
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    packer = zlib.compressobj(9)
    data = b"".join(packer.compress(b"\0" + row) for row in rows) + packer.flush()
    header = struct.pack(">IIBBBBB", width, height, depth, colour_type, 0, 0, 0)
    with open(path, "wb") as out:
        out.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", data) + chunk(b"IEND", b""))


def bmp(path, width, height, rows):
    """rows: each row's RGB bytes, from the top; written bottom up as BGR."""
    stride = (width * 3 + 3) & ~3
    body = []
    for row in rows:
        bgr = bytearray(stride)
        bgr[0:width * 3:3], bgr[1:width * 3:3], bgr[2:width * 3:3] = row[2::3], row[1::3], row[0::3]
        body.append(bytes(bgr))
    data = b"".join(reversed(body))
    with open(path, "wb") as out:
        out.write(b"BM" + struct.pack("<IHHI", 54 + len(data), 0, 0, 54))
        out.write(struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(data), 2835, 2835, 0, 0))
        out.write(data)


def squares(width, height, side, first, second):
    """Rows of squares of two colours, the first at the top left."""
    rows = [b"".join((first if (x // side + parity) % 2 == 0 else second) for x in range(width)) for parity in (0, 1)]
    return (rows[y // side % 2] for y in range(height))


def wide_rows(width=2560, height=1080, block=4):
    """A sky that pales towards the horizon over two ranges of hills, drawn in
    blocks of columns so that the build stays quick."""
    far = [int(620 + 90 * math.sin(x / 310) + 40 * math.sin(x / 97)) for x in range(0, width, block)]
    near = [int(800 + 70 * math.sin(x / 420 + 1) + 25 * math.sin(x / 61)) for x in range(0, width, block)]
    for y in range(height):
        t = y / height
        sky = bytes((int(40 + 150 * t), int(90 + 130 * t), int(170 + 70 * t)))
        row = bytearray()
        for f, n in zip(far, near):
            colour = sky if y < f else bytes((70, 110, 90)) if y < n else bytes((40, 80, 50))
            row += colour * block
        yield bytes(row)


def main(out):
    os.makedirs(out, exist_ok=True)
    png(os.path.join(out, "Wallpaper_Wide.png"), 2560, 1080, wide_rows())
    bmp(os.path.join(out, "Wallpaper_Small.bmp"), 320, 240, squares(320, 240, 40, b"\xfa\xdc\x78", b"\xe6\x78\x28"))
    bmp(os.path.join(out, "Test_Large.bmp"), 2000, 1500, squares(2000, 1500, 100, b"\x20\x40\xc0", b"\xf0\xc0\x20"))
    png(os.path.join(out, "Test_Bands.png"), 1600, 400, (bytes((200, 0, 0)) * 1600 for _ in range(400)))
    png(os.path.join(out, "Test_Huge.png"), 16000, 16000, (b"\0" * 2000 for _ in range(16000)), colour_type=0, depth=1)


if __name__ == "__main__":
    main(sys.argv[1])
