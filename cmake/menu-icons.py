#!/usr/bin/env python3
"""Builds the menu icons from Debian's Tango icon theme: one .ico per line of
the table (16, 20, 24 and 32 pixels, for 96, 120, 144 and 192 DPI; lines
marked "large" also 48, 64 and 96 pixels, stored as PNG, for the icon strip), the .rc
fragment that gives key kN the ICON resource 1000 + N, and a depfile naming
the Tango files used, so the build reruns this when one of them changes.

usage: menu-icons.py TABLE TANGO_DIR RSVG_CONVERT OUT_DIR

Each size comes from Tango's hand-drawn PNG of that size when there is one,
else from the SVG rendered at that size, else from the nearest larger PNG
scaled down; an icon with none of these is an error, to be replaced in the
table."""
import os
import re
import struct
import subprocess
import sys
import zlib

SIZES = [16, 20, 24, 32]
LARGE_SIZES = [48, 64, 96]  # PNG-compressed: a tenth of the bitmap's bytes
PNG_SIZES = [16, 22, 24, 32]  # the folders Tango draws by hand
LINE = re.compile(r'^k([1-9][0-9]*)\s+([A-Za-z0-9][A-Za-z0-9._+-]*)(\s+large)?$')


def fail(message):
    sys.exit(f'menu-icons: {message}')


def read_table(path):
    """(N, name, large) for every line; blank lines and # comments skipped."""
    entries, seen = [], set()
    with open(path, encoding='utf-8') as table:
        for number, raw in enumerate(table, 1):
            line = raw.split('#', 1)[0].strip()
            if not line:
                continue
            match = LINE.match(line)
            if not match:
                fail(f'{path}:{number}: expected "kN tango-name [large]", got "{line}"')
            key = int(match.group(1))
            if 1000 + key > 0xFFFF:
                fail(f'{path}:{number}: k{key} is past the last resource id')
            if key in seen:
                fail(f'{path}:{number}: k{key} appears twice')
            seen.add(key)
            entries.append((key, match.group(2), bool(match.group(3))))
    if not entries:
        fail(f'{path}: no icons')
    return entries


def find(tango, folder, filename):
    """The one file of that name under tango/folder/<context>/, or None."""
    base = os.path.join(tango, folder)
    if not os.path.isdir(base):
        return None
    hits = [os.path.join(base, context, filename) for context in sorted(os.listdir(base))
            if os.path.isfile(os.path.join(base, context, filename))]
    if len(hits) > 1:
        fail(f'"{filename}" is ambiguous in {base}: {", ".join(hits)}')
    return hits[0] if hits else None


def decode_png(data, origin):
    """(width, height, rows of RGBA bytes) of a non-interlaced PNG."""
    if data[:8] != b'\x89PNG\r\n\x1a\n':
        fail(f'{origin}: not a PNG')
    pos, idat, palette, trns = 8, [], None, None
    while pos < len(data):
        length, kind = struct.unpack('>I4s', data[pos:pos + 8])
        body = data[pos + 8:pos + 8 + length]
        pos += 12 + length
        if kind == b'IHDR':
            width, height, depth, colour, _, _, interlace = struct.unpack('>IIBBBBB', body)
        elif kind == b'PLTE':
            palette = body
        elif kind == b'tRNS':
            trns = body
        elif kind == b'IDAT':
            idat.append(body)
        elif kind == b'IEND':
            break
    channels = {0: 1, 2: 3, 3: 1, 4: 2, 6: 4}.get(colour)
    if channels is None or interlace or depth not in (8, 16) or (colour == 3 and depth != 8):
        fail(f'{origin}: unsupported PNG (colour type {colour}, depth {depth}, interlace {interlace})')
    step = channels * depth // 8
    stride = width * step
    raw = zlib.decompress(b''.join(idat))
    rows, previous = [], bytearray(stride)
    for y in range(height):
        kind = raw[y * (stride + 1)]
        line = bytearray(raw[y * (stride + 1) + 1:(y + 1) * (stride + 1)])
        for i in range(stride):
            left = line[i - step] if i >= step else 0
            up = previous[i]
            corner = previous[i - step] if i >= step else 0
            if kind == 1:
                line[i] = (line[i] + left) & 255
            elif kind == 2:
                line[i] = (line[i] + up) & 255
            elif kind == 3:
                line[i] = (line[i] + (left + up) // 2) & 255
            elif kind == 4:
                p = left + up - corner
                pa, pb, pc = abs(p - left), abs(p - up), abs(p - corner)
                line[i] = (line[i] + (left if pa <= pb and pa <= pc else up if pb <= pc else corner)) & 255
        previous = line
        samples = line[::2] if depth == 16 else line  # the high byte is enough for 8-bit output
        out = bytearray()
        for x in range(width):
            s = samples[x * channels:(x + 1) * channels]
            if colour == 6:
                out += s
            elif colour == 2:
                out += s + b'\xff'
            elif colour == 0:
                out += bytes((s[0], s[0], s[0], 255))
            elif colour == 4:
                out += bytes((s[0], s[0], s[0], s[1]))
            else:
                index = s[0]
                alpha = trns[index] if trns and index < len(trns) else 255
                out += palette[index * 3:index * 3 + 3] + bytes((alpha,))
        rows.append(bytes(out))
    return width, height, rows


def scale_down(width, rows, size):
    """Area average with premultiplied alpha, so transparent pixels lend no colour."""
    ratio = width / size
    result = []
    for y in range(size):
        out = bytearray()
        for x in range(size):
            total = [0.0, 0.0, 0.0, 0.0]
            area = 0.0
            for sy in range(int(y * ratio), min(width, int((y + 1) * ratio) + 1)):
                wy = min(sy + 1, (y + 1) * ratio) - max(sy, y * ratio)
                for sx in range(int(x * ratio), min(width, int((x + 1) * ratio) + 1)):
                    w = wy * (min(sx + 1, (x + 1) * ratio) - max(sx, x * ratio))
                    if w <= 0:
                        continue
                    r, g, b, a = rows[sy][sx * 4:sx * 4 + 4]
                    total = [total[0] + r * a * w, total[1] + g * a * w, total[2] + b * a * w, total[3] + a * w]
                    area += w
            alpha = total[3] / area
            colour = [round(c / total[3]) if total[3] else 0 for c in total[:3]]
            out += bytes(colour + [round(alpha)])
        result.append(bytes(out))
    return result


def image(name, size, tango, rsvg, used):
    """Rows of RGBA for one size of one Tango icon."""
    def read(path):
        return decode_png(open(path, 'rb').read(), path)

    source = find(tango, f'{size}x{size}', name + '.png') if size in PNG_SIZES else None
    if source:
        width, height, rows = read(source)
    elif (source := find(tango, 'scalable', name + '.svg')):
        rendered = subprocess.run([rsvg, '-w', str(size), '-h', str(size), '-f', 'png', source],
                                  check=True, stdout=subprocess.PIPE).stdout
        width, height, rows = decode_png(rendered, source)
    else:
        larger = [s for s in PNG_SIZES if s > size and find(tango, f'{s}x{s}', name + '.png')]
        if not larger:
            fail(f'Tango has no {size}-pixel image, SVG or larger PNG of "{name}"; choose another icon')
        source = find(tango, f'{larger[0]}x{larger[0]}', name + '.png')
        width, height, rows = read(source)
        if width == height == larger[0]:
            width = height = size
            rows = scale_down(larger[0], rows, size)
    if width != size or height != size:
        fail(f'{source}: {width}x{height}, expected {size}x{size}')
    used.add(source)
    return rows


def dib(size, rows):
    """A 32-bit BGRA icon image with its AND mask (set where fully transparent)."""
    header = struct.pack('<IiiHHIIiiII', 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    mask_stride = (size + 31) // 32 * 4
    pixels, mask = bytearray(), bytearray()
    for row in reversed(rows):  # bottom-up
        bits = bytearray(mask_stride)
        for x in range(size):
            r, g, b, a = row[x * 4:x * 4 + 4]
            pixels += bytes((b, g, r, a))
            if a == 0:
                bits[x // 8] |= 0x80 >> (x % 8)
        mask += bits
    return header + bytes(pixels) + bytes(mask)


def large_png(name, size, tango, rsvg, used):
    """The SVG rendered at this size, as PNG bytes."""
    source = find(tango, 'scalable', name + '.svg')
    if not source:
        fail(f'Tango has no SVG of "{name}" to draw it at {size} pixels; choose another icon')
    used.add(source)
    return subprocess.run([rsvg, '-w', str(size), '-h', str(size), '-f', 'png', source],
                          check=True, stdout=subprocess.PIPE).stdout


def ico(images):
    out = struct.pack('<HHH', 0, 1, len(images))
    offset = 6 + 16 * len(images)
    for size, data in images:
        out += struct.pack('<BBBBHHII', size % 256, size % 256, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    return out + b''.join(data for _, data in images)


def depfile_path(path):
    return path.replace('\\', '\\\\').replace(' ', '\\ ').replace('#', '\\#').replace('$', '$$')


def main(table, tango, rsvg, out_dir):
    os.makedirs(out_dir, exist_ok=True)
    out_dir = os.path.abspath(out_dir)
    entries = read_table(table)
    used = set()
    lines = [f'// Generated by menu-icons.py from {os.path.basename(table)}: key kN is ICON 1000 + N.']
    for key, name, large in entries:
        path = os.path.join(out_dir, f'k{key}.ico')
        if '"' in path or '\\' in path:
            fail(f'{path}: the resource compiler cannot be given this path')
        if not find(tango, 'scalable', name + '.svg') and \
                not any(find(tango, f'{s}x{s}', name + '.png') for s in PNG_SIZES):
            fail(f'{table}: k{key}: Tango has no icon named "{name}"')
        images = [(size, dib(size, image(name, size, tango, rsvg, used))) for size in SIZES]
        if large:
            images += [(size, large_png(name, size, tango, rsvg, used)) for size in LARGE_SIZES]
        with open(path, 'wb') as out:
            out.write(ico(images))
        lines.append(f'{1000 + key} ICON "{path}"')
    # Icons of keys no longer in the table would linger unseen; remove them.
    wanted = {f'k{key}.ico' for key, _, _ in entries}
    for stale in os.listdir(out_dir):
        if re.fullmatch(r'k[0-9]+\.ico', stale) and stale not in wanted:
            os.remove(os.path.join(out_dir, stale))
    fragment = os.path.join(out_dir, 'menu-icons.rc')
    with open(fragment, 'w', encoding='utf-8') as out:
        out.write('\n'.join(lines) + '\n')
    with open(os.path.join(out_dir, 'menu-icons.d'), 'w', encoding='utf-8') as out:
        out.write(depfile_path(fragment) + ': ' + ' '.join(depfile_path(p) for p in sorted(used)) + '\n')


if __name__ == '__main__':
    if len(sys.argv) != 5:
        fail('usage: menu-icons.py TABLE TANGO_DIR RSVG_CONVERT OUT_DIR')
    main(*sys.argv[1:])
