#!/usr/bin/env bash
# Runs every libFuzzer harness in a build folder for a number of seconds each.
#   scripts/fuzz.sh build-fuzz/fuzz 60
# Each harness starts from its seeds (fuzz/corpus/<harness>/ when present,
# otherwise small valid icons made here) and keeps what it learns in
# <build folder>/corpus/<harness>. Findings land in <build folder>/findings.
set -euo pipefail

dir=${1:?usage: fuzz.sh <folder with the fuzzer binaries> [seconds each]}
seconds=${2:-60}
here=$(cd "$(dirname "$0")/.." && pwd)

# Tiny valid icons: one image at each depth, and a file of two images.
make_icon_seeds() {
    /usr/bin/python3 - "$1" <<'PY'
import struct, sys, os
out = sys.argv[1]

def image(size, depth):
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
    with open(os.path.join(out, 'single-%d.ico' % depth), 'wb') as f:
        f.write(icon([(16, depth, image(16, depth))]))
with open(os.path.join(out, 'two.ico'), 'wb') as f:
    f.write(icon([(16, 4, image(16, 4)), (32, 8, image(32, 8))]))
PY
}

shopt -s nullglob
harnesses=("$dir"/*Fuzzer)
if [ ${#harnesses[@]} -eq 0 ]; then
    echo "error: no fuzzers in $dir; build with -DBREVIK_BUILD_FUZZ=ON first" >&2
    exit 1
fi

failed=0
for harness in "${harnesses[@]}"; do
    name=$(basename "$harness")
    corpus="$dir/corpus/$name"
    findings="$dir/findings/$name"
    mkdir -p "$corpus" "$findings"
    if [ -d "$here/fuzz/corpus/$name" ]; then
        cp -n "$here/fuzz/corpus/$name"/* "$corpus"/ 2>/dev/null || true
    elif [ "$name" = IconReaderFuzzer ]; then
        make_icon_seeds "$corpus"
    fi
    echo "== $name: $seconds s"
    if ! "$harness" "$corpus" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
            -max_len=65536 -artifact_prefix="$findings/" -print_final_stats=1; then
        echo "!! $name found a problem; the input is in $findings" >&2
        failed=1
    fi
done
exit $failed
