#!/usr/bin/env python3
"""Draws the wallpapers of the demo and the end-to-end tests:
  Wallpaper_Wide.png   2560 x 1080, wider than any test screen: a sky over hills
  Wallpaper_Small.bmp  320 x 240, a 24-bit bitmap smaller than any screen
  Test_Bands.png       1600 x 400 of one red, whose white bands are easy to find
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


def bmp(path, width, height, pixel):
    """pixel(x, y) -> (r, g, b), y counted from the top."""
    stride = (width * 3 + 3) & ~3
    body = bytearray()
    for y in reversed(range(height)):
        row = bytearray()
        for x in range(width):
            r, g, b = pixel(x, y)
            row += bytes((b, g, r))
        body += row + b"\0" * (stride - len(row))
    with open(path, "wb") as out:
        out.write(b"BM" + struct.pack("<IHHI", 54 + len(body), 0, 0, 54))
        out.write(struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(body), 2835, 2835, 0, 0))
        out.write(body)


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
    bmp(os.path.join(out, "Wallpaper_Small.bmp"), 320, 240,
        lambda x, y: (230, 120, 40) if (x // 40 + y // 40) % 2 else (250, 220, 120))
    png(os.path.join(out, "Test_Bands.png"), 1600, 400, (bytes((200, 0, 0)) * 1600 for _ in range(400)))
    png(os.path.join(out, "Test_Huge.png"), 16000, 16000, (b"\0" * 2000 for _ in range(16000)), colour_type=0, depth=1)


if __name__ == "__main__":
    main(sys.argv[1])
