#!/usr/bin/env python3
"""Draws orvane.ico: a launcher bar with a menu band and a row of coloured
icons, at 16, 24, 32 and 48 pixels, 32-bit with alpha. Run it again after
changing the drawing; the result is committed beside this script."""
import struct
import sys

ICON_COLOURS = [(220, 68, 55), (244, 180, 0), (15, 157, 88), (66, 133, 244)]


def pixel(size, x, y):
    """BGRA of one pixel, y counted from the top."""
    margin = max(1, size // 16)
    top, bottom = size * 5 // 16, size * 13 // 16
    if not (margin <= x < size - margin and top <= y < bottom):
        return (0, 0, 0, 0)
    corner = max(1, size // 12)
    for cx, cy in ((margin + corner, top + corner), (size - margin - 1 - corner, top + corner),
                   (margin + corner, bottom - 1 - corner), (size - margin - 1 - corner, bottom - 1 - corner)):
        if abs(x - cx) > 0 and abs(y - cy) > 0 and (x - cx) ** 2 + (y - cy) ** 2 > corner ** 2 and \
                ((x < cx) == (cx < size // 2)) and ((y < cy) == (cy < (top + bottom) // 2)):
            return (0, 0, 0, 0)
    band = top + max(2, (bottom - top) // 4)
    if y < band:
        return (230, 230, 230, 255)  # the menu band
    inner = size - 2 * margin
    slot = inner / 4
    i = int((x - margin) / slot)
    gap = max(1, int(slot // 5))
    left = margin + i * slot + gap
    right = margin + (i + 1) * slot - gap
    if left <= x < right and band + gap <= y < bottom - gap:
        r, g, b = ICON_COLOURS[min(i, 3)]
        return (b, g, r, 255)
    return (70, 50, 40, 255)  # the bar, dark slate


def image(size):
    header = struct.pack('<IiiHHIIiiII', 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    rows = []
    for y in reversed(range(size)):  # bottom-up
        rows.append(b''.join(struct.pack('<BBBB', *pixel(size, x, y)) for x in range(size)))
    mask_row = ((size + 31) // 32) * 4
    return header + b''.join(rows) + b'\0' * (mask_row * size)


def main(path):
    sizes = [16, 24, 32, 48]
    images = [image(s) for s in sizes]
    out = struct.pack('<HHH', 0, 1, len(sizes))
    offset = 6 + 16 * len(sizes)
    for s, data in zip(sizes, images):
        out += struct.pack('<BBBBHHII', s, s, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    with open(path, 'wb') as f:
        f.write(out + b''.join(images))


if __name__ == '__main__':
    main(sys.argv[1] if len(sys.argv) > 1 else 'orvane.ico')
