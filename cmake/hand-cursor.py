#!/usr/bin/env python3
"""Draws HandOpen.ico, the open hand the program uses as a mouse pointer:
white palm and fingers in a near-black outline on a transparent ground, at
32x32 and 48x48, 32-bit with an AND mask as icon loaders expect. The hand is
a union of rounded shapes measured by signed distance and supersampled, so
its edges are smooth; the output is the same on every run.

usage: hand-cursor.py OUT_DIR"""
import math
import os
import struct
import sys

GRID = 32.0          # the hand is laid out on a 32-unit square, scaled per size
OUTLINE = 1.15       # units of outline inside the hand's edge
SAMPLES = 8          # per pixel side
INK = (24, 24, 24)
FILL = (255, 255, 255)
SIZES = (32, 48)


def capsule(ax, ay, bx, by, radius):
    """Signed distance to a segment thickened by radius (a finger)."""
    dx, dy = bx - ax, by - ay
    length2 = dx * dx + dy * dy

    def distance(x, y):
        t = max(0.0, min(1.0, ((x - ax) * dx + (y - ay) * dy) / length2))
        return math.hypot(x - ax - t * dx, y - ay - t * dy) - radius
    return distance


def rounded_box(cx, cy, half_w, half_h, radius):
    """Signed distance to a rectangle with rounded corners (the palm)."""
    def distance(x, y):
        qx, qy = abs(x - cx) - half_w + radius, abs(y - cy) - half_h + radius
        outside = math.hypot(max(qx, 0.0), max(qy, 0.0))
        return outside + min(max(qx, qy), 0.0) - radius
    return distance


# The fingers fan out a little from the palm; each overlaps its neighbour by
# about the outline's width, so only a thin dark line is left between them,
# while their bases sink deep enough into the palm to merge with it.
SHAPES = [
    rounded_box(17.7, 21.6, 7.8, 6.4, 4.2),       # palm
    capsule(12.3, 19.0, 11.6, 6.8, 2.4),          # index
    capsule(15.9, 19.0, 15.6, 4.8, 2.4),          # middle
    capsule(19.5, 19.0, 19.7, 5.6, 2.4),          # ring
    capsule(23.1, 19.5, 23.8, 9.2, 2.3),          # little
    capsule(12.0, 22.5, 5.6, 15.0, 2.5),          # thumb
]


def sample(x, y):
    """The colour at a point of the grid, or None outside the hand. A point is
    white when some shape holds it deeper than the outline, so shapes that
    only touch keep a dark seam between them."""
    distances = [shape(x, y) for shape in SHAPES]
    if min(distances) > 0:
        return None
    return FILL if min(distances) < -OUTLINE else INK


def image(size):
    """Rows top-down of (b, g, r, a) pixels: the average of the samples that
    fall on the hand, with alpha for the share of them that do."""
    scale = GRID / size
    rows = []
    for py in range(size):
        row = []
        for px in range(size):
            total = [0, 0, 0]
            hits = 0
            for sy in range(SAMPLES):
                for sx in range(SAMPLES):
                    colour = sample((px + (sx + 0.5) / SAMPLES) * scale, (py + (sy + 0.5) / SAMPLES) * scale)
                    if colour:
                        hits += 1
                        total = [t + c for t, c in zip(total, colour)]
            if hits:
                r, g, b = (round(t / hits) for t in total)
                row.append((b, g, r, round(255 * hits / SAMPLES ** 2)))
            else:
                row.append((0, 0, 0, 0))
        rows.append(row)
    return rows


def icon_image(size):
    """A BITMAPINFOHEADER (height doubled for the mask), the BGRA rows bottom
    up, then the AND mask: a set bit where the pixel is fully transparent,
    rows padded to 4 bytes."""
    rows = image(size)
    colour = b''.join(bytes(channel for pixel in row for channel in pixel) for row in reversed(rows))
    mask_stride = (size + 31) // 32 * 4
    mask = bytearray()
    for row in reversed(rows):
        line = bytearray(mask_stride)
        for x, pixel in enumerate(row):
            if pixel[3] == 0:
                line[x // 8] |= 0x80 >> (x % 8)
        mask += line
    info = struct.pack('<IiiHHIIiiII', 40, size, 2 * size, 1, 32, 0, len(colour) + len(mask), 0, 0, 0, 0)
    return info + colour + bytes(mask)


def icon():
    images = [icon_image(size) for size in SIZES]
    header = struct.pack('<HHH', 0, 1, len(images))
    offset = len(header) + 16 * len(images)
    entries = b''
    for size, data in zip(SIZES, images):
        entries += struct.pack('<BBBBHHII', size, size, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    return header + entries + b''.join(images)


def main(out_dir):
    os.makedirs(out_dir, exist_ok=True)
    with open(os.path.join(out_dir, 'HandOpen.ico'), 'wb') as out:
        out.write(icon())


if __name__ == '__main__':
    if len(sys.argv) != 2:
        sys.exit('usage: hand-cursor.py OUT_DIR')
    main(sys.argv[1])
