#!/usr/bin/env bash
# Times the PDF of the sample job through `zolest report -o OUT.pdf`, and, as the reference,
# headless Chromium printing the same HTML (when a `chromium` is on the PATH; it is not a
# dependency of the project). Usage: bench/report_pdf.sh [BUILD_DIR] [WORKBOOK]   (RUNS=5)
set -euo pipefail

build=${1:-build}
workbook=${2:-examples/sample-house.zol}
runs=${RUNS:-5}
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

now() { date +%s.%N; }
# Runs a command $runs times; prints the fastest and the median wall-clock seconds.
timeit() {
    local times=()
    for _ in $(seq "$runs"); do
        local start end
        start=$(now)
        "$@" >/dev/null 2>&1
        end=$(now)
        times+=("$(echo "$end - $start" | bc -l)")
    done
    printf '%s\n' "${times[@]}" | sort -g |
        awk '{ t[NR] = $1 } END { printf "fastest %.3f s, median %.3f s over %d runs", t[1], t[int((NR + 1) / 2)], NR }'
}
pages() { pdfinfo "$1" 2>/dev/null | awk '/^Pages:/ { print $2 }'; }

"$build/zolest" report "$workbook" -o "$tmp/report.html"
divs=$(grep -o '<div class="page">' "$tmp/report.html" | wc -l)
echo "report: $workbook, $(wc -c <"$tmp/report.html") bytes of HTML, $divs page divs"

echo "zolest report -o OUT.pdf: $(timeit "$build/zolest" report "$workbook" -o "$tmp/zolest.pdf")," \
    "$(pages "$tmp/zolest.pdf") pages"

chromium=$(command -v chromium || command -v chromium-browser || true)
if [ -n "$chromium" ]; then
    # Chromium on a closed network: no background connections, a fresh profile each time.
    echo "chromium --headless --print-to-pdf (same HTML): $(timeit "$chromium" --headless \
        --no-sandbox --disable-gpu --disable-quic --no-first-run --disable-background-networking \
        --disable-component-update --disable-sync --user-data-dir="$tmp/profile" \
        --no-pdf-header-footer --print-to-pdf="$tmp/chromium.pdf" "file://$tmp/report.html")," \
        "$(pages "$tmp/chromium.pdf") pages"
else
    echo "chromium: not installed, no reference time"
fi
