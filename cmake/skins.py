#!/usr/bin/env python3
"""Draws the skins: 24-bit Windows bitmaps named Skin_<Name>.bmp, tiled as the
background of every window. Each tile is built from functions periodic in the
tile's size, so the tiles meet without a seam, and each varies only a little
around its colour, so text stays readable on it. The output is the same on
every run: the noise comes from fixed seeds.

usage: skins.py OUT_DIR"""
import math
import os
import random
import re
import struct
import sys

SIZE = 96  # pixels per side: small files, and large enough to hide the repeat
TAU = 2 * math.pi


def noise(seed, cells):
    """Smooth value noise of period SIZE: random heights on a cells x cells
    lattice that wraps around, blended with a smoothstep."""
    rng = random.Random(seed)
    grid = [[rng.random() for _ in range(cells)] for _ in range(cells)]

    def at(x, y):
        fx, fy = x * cells / SIZE, y * cells / SIZE
        x0, y0 = int(fx), int(fy)
        tx, ty = fx - x0, fy - y0
        tx, ty = tx * tx * (3 - 2 * tx), ty * ty * (3 - 2 * ty)
        x0, y0, x1, y1 = x0 % cells, y0 % cells, (x0 + 1) % cells, (y0 + 1) % cells
        top = grid[y0][x0] + (grid[y0][x1] - grid[y0][x0]) * tx
        bottom = grid[y1][x0] + (grid[y1][x1] - grid[y1][x0]) * tx
        return top + (bottom - top) * ty
    return at


def clouds(seed):
    """Soft clouds in 0..1: three octaves of noise, the coarse one strongest."""
    octaves = [(noise(seed + i, cells), weight) for i, (cells, weight) in enumerate([(3, 0.6), (6, 0.28), (12, 0.12)])]
    return lambda x, y: sum(n(x, y) * w for n, w in octaves)


def wave(fx, fy, x, y, phase=0.0):
    """0..1 along a wave with whole numbers of periods across the tile."""
    return 0.5 + 0.5 * math.sin(TAU * (fx * x + fy * y) / SIZE + phase)


def alba():
    # Pale ivory with cool clouds and a faint linen weave.
    sky, grain = clouds(11), noise(12, 48)

    def pixel(x, y):
        threads = 0.5 * wave(24, 0, x, y) + 0.5 * wave(0, 24, x, y)
        return (247, 243, 233), (233, 235, 240), sky(x, y), 3 * threads + 2 * grain(x, y) - 2.5
    return pixel


def sage():
    # Soft grey-green, with slow diagonal bands drifting through clouds.
    sky, grain = clouds(21), noise(22, 48)

    def pixel(x, y):
        bands = wave(2, 1, x, y, 4 * sky(x, y))
        return (216, 228, 210), (193, 212, 193), 0.55 * bands + 0.45 * sky(x, y), 3 * grain(x, y) - 1.5
    return pixel


def dune():
    # Warm sand with wind ripples, bent by the noise under them.
    sky, grain = clouds(31), noise(32, 48)

    def pixel(x, y):
        ripples = wave(1, 4, x, y, 3 * sky(x, y))
        return (240, 226, 202), (222, 199, 168), 0.6 * ripples ** 2 + 0.4 * sky(x, y), 3 * grain(x, y) - 1.5
    return pixel


def slate():
    # Dark blue-grey stone with a fine grain; white text reads well on it.
    sky, grain, fine = clouds(41), noise(42, 24), noise(43, 96)

    def pixel(x, y):
        return (70, 80, 96), (46, 54, 70), sky(x, y), 5 * grain(x, y) + 4 * fine(x, y) - 4.5
    return pixel


SKINS = {'Alba': alba, 'Sage': sage, 'Dune': dune, 'Slate': slate}


def rgb(pixel, x, y):
    base, other, mix, light = pixel(x, y)
    return [max(0, min(255, round(b + (o - b) * mix + light))) for b, o in zip(base, other)]


def bitmap(pixel):
    """A bottom-up 24-bit BMP; rows of SIZE * 3 bytes need no padding."""
    rows = []
    for y in reversed(range(SIZE)):
        row = bytearray()
        for x in range(SIZE):
            r, g, b = rgb(pixel, x, y)
            row += bytes((b, g, r))
        rows.append(bytes(row))
    pixels = b''.join(rows)
    info = struct.pack('<IiiHHIIiiII', 40, SIZE, SIZE, 1, 24, 0, len(pixels), 2835, 2835, 0, 0)
    header = struct.pack('<2sIHHI', b'BM', 14 + len(info) + len(pixels), 0, 0, 14 + len(info))
    return header + info + pixels


def main(out_dir):
    os.makedirs(out_dir, exist_ok=True)
    wanted = {f'Skin_{name}.bmp' for name in SKINS}
    for name, make in SKINS.items():
        with open(os.path.join(out_dir, f'Skin_{name}.bmp'), 'wb') as out:
            out.write(bitmap(make()))
    # A skin dropped from the table would still be copied with the others.
    for stale in os.listdir(out_dir):
        if re.fullmatch(r'Skin_.*\.bmp', stale) and stale not in wanted:
            os.remove(os.path.join(out_dir, stale))


if __name__ == '__main__':
    if len(sys.argv) != 2:
        sys.exit('usage: skins.py OUT_DIR')
    main(sys.argv[1])
