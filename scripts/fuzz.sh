#!/usr/bin/env bash
# Runs every libFuzzer harness in a build folder for a number of seconds each,
# one after the other, and sums up what each did.
#   scripts/fuzz.sh build-fuzz/fuzz 60 [harness ...]
# Each harness starts from its seeds in fuzz/corpus/<harness>/ (written by
# scripts/fuzz-seeds.py), mutates with the tokens of its format in
# fuzz/dict/<harness>.dict where there is one, and keeps what it learns in
# <build folder>/corpus/<harness>. Findings land in <build folder>/findings/
# <harness>, the full output in <build folder>/logs/<harness>.log.
set -euo pipefail

dir=${1:?usage: fuzz.sh <folder with the fuzzer binaries> [seconds each] [harness ...]}
seconds=${2:-60}
shift $(($# < 2 ? $# : 2))
here=$(cd "$(dirname "$0")/.." && pwd)

shopt -s nullglob
harnesses=("$dir"/*Fuzzer)
if [ $# -gt 0 ]; then
    harnesses=("${@/#/$dir/}")
fi
if [ ${#harnesses[@]} -eq 0 ]; then
    echo "error: no fuzzers in $dir; build with -DBREVIK_BUILD_FUZZ=ON first" >&2
    exit 1
fi

summary=$(printf '%-24s %12s %8s %8s %12s %9s' harness executions cov ft corpus findings)
failed=0
for harness in "${harnesses[@]}"; do
    name=$(basename "$harness")
    [ -x "$harness" ] || { echo "error: no harness $harness" >&2; exit 1; }
    corpus="$dir/corpus/$name"
    findings="$dir/findings/$name"
    log="$dir/logs/$name.log"
    mkdir -p "$corpus" "$findings" "$dir/logs"
    if [ ! -d "$here/fuzz/corpus/$name" ]; then
        echo "error: $name has no seeds; run scripts/fuzz-seeds.py" >&2
        exit 1
    fi
    cp -n "$here/fuzz/corpus/$name"/* "$corpus"/
    # Chunk IDs and signatures are four bytes that random mutation rarely
    # hits; a dictionary hands them to the mutator.
    dict=()
    [ -f "$here/fuzz/dict/$name.dict" ] && dict=(-dict="$here/fuzz/dict/$name.dict")
    echo "== $name: $seconds s (output in $log)"
    # Findings of earlier runs stay for a look but are not counted again.
    touch "$dir/logs/$name.start"
    if ! "$harness" "$corpus" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
            -max_len=65536 -artifact_prefix="$findings/" -print_final_stats=1 "${dict[@]}" \
            >"$log" 2>&1; then
        echo "!! $name found a problem; the input is in $findings" >&2
        grep -m1 -E '^(==[0-9]+==ERROR|SUMMARY)' "$log" >&2 || tail -20 "$log" >&2
        failed=1
    fi
    # The last status line has the coverage and the corpus in files/bytes
    # ("#N DONE cov: 404 ft: 1244 corp: 200/164Kb"); the final stats have the
    # number of executions.
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)
    status=$(grep -E '^#[0-9]+' "$log" | tail -1 || true)
    cov=$(sed -n 's/.* cov: \([0-9]*\).*/\1/p' <<<"$status")
    ft=$(sed -n 's/.* ft: \([0-9]*\).*/\1/p' <<<"$status")
    corp=$(sed -n 's/.* corp: \([0-9]*\/[0-9]*[a-zA-Z]*\).*/\1/p' <<<"$status")
    found=$(find "$findings" -type f -newer "$dir/logs/$name.start" | wc -l)
    summary+=$'\n'$(printf '%-24s %12s %8s %8s %12s %9s' "$name" "${runs:-?}" "${cov:-?}" \
        "${ft:-?}" "${corp:-?}" "$found")
done
echo
echo "$summary"
exit $failed
