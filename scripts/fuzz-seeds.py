#!/usr/bin/env python3
"""Writes the seed corpus of every fuzz harness to fuzz/corpus/<harness>/.

Run once when a harness or its input layout changes and commit the result;
scripts/fuzz.sh starts each harness from these files. The PE seeds are real
DLLs made by icotool and the MinGW binutils (windres, ld); without them the
committed DLLs are left as they are."""
import os
import shutil
import struct
import subprocess
import tempfile
import zlib

HERE = os.path.dirname(os.path.abspath(__file__))
CORPUS = os.path.join(HERE, '..', 'fuzz', 'corpus')


def write(harness, name, data):
    folder = os.path.join(CORPUS, harness)
    os.makedirs(folder, exist_ok=True)
    with open(os.path.join(folder, name), 'wb') as f:
        f.write(data)


# IconReaderFuzzer: tiny valid icons, one image at each depth, and a file of
# two images.
def dib(size, depth):
    table = (1 << depth) if depth <= 8 else 0
    row = (size * depth + 31) // 32 * 4
    mask_row = (size + 31) // 32 * 4
    header = struct.pack('<IiiHHIIiiII', 40, size, 2 * size, 1, depth, 0, 0, 0, 0, 0, 0)
    colours = bytes((i * 37) & 0xFF for i in range(4 * table))
    pixels = bytes((i * 11) & 0xFF for i in range(row * size))
    mask = bytes(0xF0 if i % 3 else 0 for i in range(mask_row * size))
    return header + colours + pixels + mask


def icon(images):
    head = struct.pack('<HHH', 0, 1, len(images))
    offset = 6 + 16 * len(images)
    entries = b''
    for size, depth, data in images:
        entries += struct.pack('<BBBBHHii', size, size, 0, 0, 1, depth, len(data), offset)
        offset += len(data)
    return head + entries + b''.join(d for _, _, d in images)


for depth in (1, 4, 8, 24, 32):
    write('IconReaderFuzzer', 'single-%d.ico' % depth, icon([(16, depth, dib(16, depth))]))
write('IconReaderFuzzer', 'two.ico', icon([(16, 4, dib(16, 4)), (32, 8, dib(32, 8))]))


# ClipboardPictureFuzzer: flags (size index 0..2, +4 opaque), the paste
# dialog's answer, width, height, then RGB pixels.
def picture(size_index, opaque, answer, width, height, pixels):
    flags = size_index | (4 if opaque else 0)
    return struct.pack('<BbHH', flags, answer, width, height) + pixels


WHITE, RED, BLUE = b'\xff\xff\xff', b'\xff\x00\x00', b'\x00\x00\xff'
for name, args in {
    'empty': (1, False, 0, 0, 0, b''),
    'fits': (0, False, 0, 4, 4, WHITE + RED + BLUE + b'\xfe\xff\xff'),
    'fits-opaque': (2, True, 0, 48, 3, WHITE + RED),
    'wide-fit': (0, False, 0, 20, 10, RED * 10 + BLUE * 10),
    'wide-shrunk-in-proportion': (0, True, 1, 20, 10, RED * 10 + BLUE * 10),
    'tall-shrunk-in-proportion': (1, False, 1, 1, 33, WHITE + RED),
    'long-strip': (1, False, 1, 4000, 2, RED + WHITE + BLUE),
    'cancelled': (1, False, -1, 40, 40, BLUE),
}.items():
    write('ClipboardPictureFuzzer', name, picture(*args))


# RecentStoreFuzzer: the per-user store as QSettings writes it, and damaged
# ones.
for name, text in {
    'written': '[Recent%20Files]\n1.=/x/c.ico\n2.=/x/b.ico\n3.=/x/a.ico\n'
               '[Recent%20Folder]\nFolder=/tmp\n',
    'full': '[Recent%20Files]\n1.=/a/one.ico\n2.=C:\\\\icons\\\\two.ico\n3.=three.ico\n'
            '4.=/a/Four.ICO\n5.=/a/five.ico\n',
    'damaged': '[Recent%20Files]\n1.=\n2.=' + 'a' * 300 + '\n3.="/x/quoted, \\"odd\\".ico"\n'
               '4.=/x/a, /x/b\n[Recent%20Folder]\nFolder=/no/such/folder\n',
    'variants': '[Recent%20Files]\n1.=@Variant(\\0\\0\\0\\x7f\\0\\0\\0\\x18)\n2.=@@/x/at.ico\n'
                '3.=\\x441\\x432.ico\n[General]\nRecent%20Files=/x/not-a-group\n',
    'empty': '',
}.items():
    write('RecentStoreFuzzer', name + '.ini', text.encode('utf-8'))


# The icon-library readers. Their images are small icons and cursors: depths
# 1 to 32, sizes 16 and 32, so every seed stays a few KB.
def cursor(size, hot_x, hot_y, data):
    """A one-image .cur: the entry keeps the hot spot where an icon keeps
    planes and depth."""
    head = struct.pack('<HHH', 0, 2, 1)
    entry = struct.pack('<BBBBHHii', size, size, 0, 0, hot_x, hot_y, len(data), 22)
    return head + entry + data


# AniIconSourceFuzzer: animated cursors with their chunks in the usual order:
# an optional INFO list first, "anih", then "seq " and "rate" when the steps
# do not run through the frames in order, then the frames.
def chunk(kind, body):
    return kind + struct.pack('<I', len(body)) + body + b'\0' * (len(body) & 1)


def ani(frames, steps, sequence=None, rates=None, info=None, header=True):
    body = b'ACON'
    if info:
        body += chunk(b'LIST', b'INFO' + b''.join(chunk(k, v) for k, v in info))
    if header:
        # size, frames, steps, width, height, bit count, planes, rate, flags
        # (1: frames are icons, 2: there is a sequence).
        flags = 1 | (2 if sequence is not None else 0)
        body += chunk(b'anih', struct.pack('<9I', 36, len(frames), steps, 0, 0, 0, 1, 8, flags))
    if rates is not None:
        body += chunk(b'rate', struct.pack('<%dI' % len(rates), *rates))
    if sequence is not None:
        body += chunk(b'seq ', struct.pack('<%dI' % len(sequence), *sequence))
    body += chunk(b'LIST', b'fram' + b''.join(chunk(b'icon', f) for f in frames))
    return chunk(b'RIFF', body)


arrow = [cursor(32, 0, 0, dib(32, 1)), cursor(32, 3, 5, dib(32, 4))]
spin = [icon([(16, 4, dib(16, 4))]), icon([(16, 8, dib(16, 8))]), icon([(16, 24, dib(16, 24))])]
write('AniIconSourceFuzzer', 'in-order.ani', ani(arrow, 2))
write('AniIconSourceFuzzer', 'sequence-and-rate.ani',
      ani(spin, 5, sequence=[0, 1, 2, 1, 0], rates=[4, 8, 8, 8, 4]))
write('AniIconSourceFuzzer', 'sequence-only.ani', ani(arrow, 3, sequence=[1, 0, 1]))
# An odd-length title pads its chunk; the reader must step over the pad.
write('AniIconSourceFuzzer', 'titled.ani',
      ani(spin[:1] + [icon([(16, 32, dib(16, 32))])], 2,
          info=[(b'INAM', b'Busy\0'), (b'IART', b'Brevik\0')]))
write('AniIconSourceFuzzer', 'no-header.ani', ani(spin[:1], 1, header=False))


# NeIconSourceFuzzer: 16-bit libraries. An MZ stub points at the NE header;
# the header points at the resource table: an alignment shift, then per type
# its ID, count and one 12-byte entry per resource (offset and length in units
# of 2^shift, flags, ID), ended by a type of 0.
RT_CURSOR, RT_BITMAP, RT_ICON, RT_GROUP_CURSOR, RT_GROUP_ICON = 1, 2, 3, 12, 14
INTEGER_ID = 0x8000


def ne(types, shift):
    """types: (type, [(id, bytes)]) in table order; an id without INTEGER_ID
    is a name's offset, which the reader has no use for."""
    stub = bytearray(0x40)
    stub[0:2] = b'MZ'
    struct.pack_into('<I', stub, 0x3C, 0x40)
    header = bytearray(0x40)
    header[0:2] = b'NE'
    struct.pack_into('<H', header, 0x24, 0x40)  # the table right behind it
    table_bytes = 2 + sum(8 + 12 * len(items) for _, items in types) + 2
    unit = 1 << shift
    data_start = (0x80 + table_bytes + unit - 1) // unit * unit
    table, data = struct.pack('<H', shift), b''
    for kind, items in types:
        table += struct.pack('<HHI', kind | INTEGER_ID, len(items), 0)
        for rid, body in items:
            at = data_start + len(data)
            table += struct.pack('<HHHHHH', at >> shift, (len(body) + unit - 1) >> shift, 0x30,
                                 rid, 0, 0)
            data += body + b'\0' * (-len(body) % unit)
    table += struct.pack('<H', 0)
    return bytes(stub + header) + table + b'\0' * (data_start - 0x80 - len(table)) + data


def resources(icons, group_type=RT_GROUP_ICON, image_type=RT_ICON):
    """The two resource types of a set of .ico or .cur files: each file a
    group whose 14-byte entries name images by ID, numbered from 1."""
    groups, images = [], []
    for n, ico in enumerate(icons):
        count = struct.unpack_from('<H', ico, 4)[0]
        group = ico[:6]
        for i in range(count):
            entry = ico[6 + 16 * i:22 + 16 * i]
            length, offset = struct.unpack_from('<II', entry, 8)
            images.append((INTEGER_ID | len(images) + 1, ico[offset:offset + length]))
            group += entry[:12] + struct.pack('<H', len(images))
        groups.append((INTEGER_ID | n + 1, group))
    return [(image_type, images), (group_type, groups)]


write('NeIconSourceFuzzer', 'two-groups.icl',
      ne(resources([icon([(16, 4, dib(16, 4)), (32, 1, dib(32, 1))]),
                    icon([(16, 8, dib(16, 8))])]), 4))
# Other resource types around the icons, a named icon (skipped) and the
# byte-exact shift 0.
write('NeIconSourceFuzzer', 'mixed-types.exe',
      ne([(RT_BITMAP, [(INTEGER_ID | 1, dib(16, 1)[:40])])] +
         resources([icon([(16, 24, dib(16, 24))])]) +
         [(RT_ICON, [(0x0100, dib(16, 1))])] +
         resources([cursor(16, 1, 1, dib(16, 1))], RT_GROUP_CURSOR, RT_CURSOR), 0))
write('NeIconSourceFuzzer', 'wide-shift.dll',
      ne(resources([icon([(16, 1, dib(16, 1)), (32, 4, dib(32, 4)), (16, 32, dib(16, 32))])]), 9))


# PeIconSourceFuzzer: real resource-only DLLs, PE32 (i686) and PE32+
# (x86_64). icotool makes the icons from PNGs; one group holds a 256 x 256
# PNG image stored as it is, as Vista's icons do.
def png(size, colours, turn):
    """An RGBA PNG: a disc of checks in the given colours on transparency
    (one colour for a 1-bit image, as icotool counts the clear as another)."""
    def part(kind, body):
        return struct.pack('>I', len(body)) + kind + body + struct.pack('>I', zlib.crc32(kind + body))
    rows = bytearray()
    for y in range(size):
        rows += b'\0'
        for x in range(size):
            inside = (2 * x + 1 - size) ** 2 + (2 * y + 1 - size) ** 2 < size * size
            rows += bytes(colours[(x * 4 // size + y * 4 // size + turn) % len(colours)])
            rows += b'\xff' if inside else b'\0'
    head = struct.pack('>IIBBBBB', size, size, 8, 6, 0, 0, 0)
    return (b'\x89PNG\r\n\x1a\n' + part(b'IHDR', head) + part(b'IDAT', zlib.compress(bytes(rows), 9))
            + part(b'IEND', b''))


def library(folder, target, groups):
    """A DLL of one ICON line per (name, icotool arguments); PNG file names in
    the arguments are made here first."""
    colours = [(255, 0, 0), (0, 0, 255), (255, 255, 0), (0, 128, 0)]
    script = ''
    for n, (name, arguments) in enumerate(groups):
        for a in arguments:
            if a.endswith('.png'):
                size, turn = (int(v) for v in a[:-4].split('-'))
                with open(os.path.join(folder, a), 'wb') as f:
                    f.write(png(size, colours[:1] if turn == 0 else colours, turn))
        ico = 'group%d.ico' % n
        subprocess.run(['icotool', '-c', '-o', ico] + arguments, cwd=folder, check=True)
        script += '%s ICON "%s"\n' % (name, ico)
    with open(os.path.join(folder, 'icons.rc'), 'w') as f:
        f.write(script)
    # No directives in the script, so no preprocessor is needed; no
    # timestamp, so the same script gives the same DLL.
    subprocess.run(['%s-w64-mingw32-windres' % target, '--preprocessor=cat', '-O', 'coff',
                    '-i', 'icons.rc', '-o', 'icons.o'], cwd=folder, check=True)
    subprocess.run(['%s-w64-mingw32-ld' % target, '--dll', '-e', '0', '-s',
                    '--no-insert-timestamp', '-o', 'icons.dll', 'icons.o'], cwd=folder, check=True)
    with open(os.path.join(folder, 'icons.dll'), 'rb') as f:
        return f.read()


tools = ['icotool'] + ['%s-w64-mingw32-%s' % (t, p) for t in ('i686', 'x86_64')
                       for p in ('windres', 'ld')]
missing = [t for t in tools if shutil.which(t) is None]
if missing:
    print('skipping the PeIconSourceFuzzer seeds: no %s (install icoutils and '
          'binutils-mingw-w64)' % ', '.join(missing))
else:
    for target, kind in (('i686', 'pe32'), ('x86_64', 'pe32plus')):
        with tempfile.TemporaryDirectory() as folder:
            # A named group (listed first), and groups 2 and 7 of several
            # sizes and depths; the image names are size-turn.png.
            write('PeIconSourceFuzzer', kind + '-groups.dll', library(folder, target, [
                ('7', ['-b', '1', '16-0.png']),
                ('APPICON', ['-b', '4', '16-1.png', '-b', '4', '32-2.png', '-b', '8', '16-3.png']),
                ('2', ['-b', '24', '16-2.png', '-b', '32', '16-1.png']),
            ]))
        with tempfile.TemporaryDirectory() as folder:
            # The 256 x 256 PNG beside a bitmap, and alone.
            write('PeIconSourceFuzzer', kind + '-png.dll', library(folder, target, [
                ('1', ['-b', '4', '32-1.png', '-r', '256-2.png']),
                ('3', ['-r', '256-2.png']),
            ]))
