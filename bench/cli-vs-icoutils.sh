#!/usr/bin/env bash
# brevik-cli against the tools a user would pick instead, on the same files
# and side by side in one run:
#   extract: every icon group of Wine's 64-bit shell32.dll, against
#            wrestool -x -t14 (the aim: at least three times faster);
#   info:    a few hundred .ico files, against icotool -l (the aim: at least
#            twice as fast).
# Usage: bench/cli-vs-icoutils.sh [path/to/brevik-cli]   (make bench runs it)
set -euo pipefail

cli=$(realpath "${1:-build-bench/src/brevik-cli}")
wine=${WINE_DIR:-/usr/lib/x86_64-linux-gnu/wine/x86_64-windows}
dll=$wine/shell32.dll
for tool in hyperfine wrestool icotool; do
    command -v $tool >/dev/null || { echo "needs $tool (scripts/install-deps.sh --extras)" >&2; exit 1; }
done
[ -f "$dll" ] || { echo "needs Wine's $dll (package libwine)" >&2; exit 1; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

echo "== extract: every icon group of $dll"
hyperfine --warmup 3 --min-runs 10 -N \
    --prepare "sh -c 'rm -rf $work/ours $work/theirs; mkdir $work/ours $work/theirs'" \
    -n "brevik-cli extract" "$cli extract $dll -o $work/ours" \
    -n "wrestool -x -t14" "wrestool -x -t14 $dll -o $work/theirs/"

# A few hundred real icons: the groups of Wine's programs and libraries.
mkdir -p "$work/icons"
for file in "$wine"/*.dll "$wine"/*.exe; do
    "$cli" extract "$file" -o "$work/icons" 2>/dev/null || true
done
files=$(find "$work/icons" -name '*.ico' | sort | head -n 400 | tr '\n' ' ')
echo "== info: $(echo $files | wc -w) .ico files"
hyperfine --warmup 3 --min-runs 20 -N \
    -n "brevik-cli info" "$cli info $files" \
    -n "icotool -l" "icotool -l $files"
