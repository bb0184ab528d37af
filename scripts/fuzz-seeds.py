#!/usr/bin/env python3
"""Writes the seed corpus of every fuzz harness to fuzz/corpus/<harness>/.

Run once when a harness or its input layout changes and commit the result;
scripts/fuzz.sh starts each harness from these files."""
import os
import struct

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
