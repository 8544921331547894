#!/usr/bin/env bash
# Times `zolest resave` and a process that opens the 1,000-worksheet workbook (bench/workbook_io
# --read), beside a process that only reads the same file and runs a bare libxml2 SAX pass over
# it (bench/workbook_io --sax-pass), and prints the ratios of their processor times (user +
# system; the median of the runs). Usage: bench/resave_process.sh [BUILD_DIR]   (RUNS=15)
set -euo pipefail

build=${1:-build}
runs=${RUNS:-15}
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

"$build/bench/workbook_io" --write "$tmp/large.zol"
echo "workbook: $(wc -c <"$tmp/large.zol") bytes"

# Runs a command $runs times; prints the median processor and wall-clock seconds.
median() { sort -g | awk '{ t[NR] = $1 } END { printf "%.4f", t[int((NR + 1) / 2)] }'; }
timeit() {
    local cpu=() wall=() line
    for _ in $(seq "$runs"); do
        line=$( { TIMEFORMAT='%R %U %S'; time "$@" >/dev/null 2>&1; } 2>&1 )
        read -r r u s <<<"$line"
        cpu+=("$(echo "$u + $s" | bc -l)")
        wall+=("$r")
    done
    echo "$(printf '%s\n' "${cpu[@]}" | median) $(printf '%s\n' "${wall[@]}" | median)"
}

read -r saxCpu saxWall <<<"$(timeit "$build/bench/workbook_io" --sax-pass "$tmp/large.zol")"
read -r readCpu readWall <<<"$(timeit "$build/bench/workbook_io" --read "$tmp/large.zol")"
read -r resaveCpu resaveWall <<<"$(timeit "$build/zolest" resave "$tmp/large.zol" -o "$tmp/out.zol")"
echo "bare SAX pass:  processor ${saxCpu} s, wall ${saxWall} s (median of $runs)"
echo "read:           processor ${readCpu} s, wall ${readWall} s (median of $runs)"
echo "zolest resave:  processor ${resaveCpu} s, wall ${resaveWall} s (median of $runs)"
echo "read / bare SAX pass: processor $(echo "$readCpu / $saxCpu" | bc -l | cut -c1-4)," \
    "wall $(echo "$readWall / $saxWall" | bc -l | cut -c1-4) (goal: under 1.5)"
echo "resave / bare SAX pass: processor $(echo "$resaveCpu / $saxCpu" | bc -l | cut -c1-4)," \
    "wall $(echo "$resaveWall / $saxWall" | bc -l | cut -c1-4) (goal: under 2)"
