#!/usr/bin/env bash
# stream.sh FOLDER [LINES]: times quillet-calc on a stream of auctions (a million by default) on one
# core, against wc on the same stream; then two jobs against one on all cores, by the clock. FOLDER
# holds the built programs.
set -euo pipefail
program=$1/quillet-calc lines=${2:-1000000}
samples=$(dirname "$(readlink -f "$0")")/../data/samples
stream=$(mktemp)
trap 'rm -f "$stream"' EXIT
awk -v n="$lines" '{ line[NR - 1] = $0 } END { for (i = 0; i < n; i++) print line[i % NR] }' \
  "$samples"/[!u]*.qlt >"$stream"

# measure CORES COMMAND...: prints its processor time in seconds, its peak memory in kilobytes, and
# its seconds by the clock.
measure() {
  taskset -c "$1" python3 - "$stream" "${@:2}" <<'PYTHON'
import resource, subprocess, sys, time
start = time.monotonic()
with open(sys.argv[1]) as stream, open("/dev/null", "w") as null:
    subprocess.run(sys.argv[2:], stdin=stream, stdout=null, check=True)
clock = time.monotonic() - start
used = resource.getrusage(resource.RUSAGE_CHILDREN)
print(used.ru_utime + used.ru_stime, used.ru_maxrss, clock)
PYTHON
}

calc=("$program" --format csv -)
all=0-$(($(nproc) - 1))
read -r seconds memory _ < <(measure 0 "${calc[@]}" --jobs 1)
read -r baseline _ _ < <(measure 0 wc -l)
read -r _ _ one < <(measure "$all" "${calc[@]}" --jobs 1)
read -r _ shared two < <(measure "$all" "${calc[@]}" --jobs 2)
awk -v n="$lines" -v t="$seconds" -v m="$memory" -v b="$baseline" \
  -v one="$one" -v two="$two" -v s="$shared" 'BEGIN {
  printf "%d lines in %.2f s: %d lines/s, peak memory %.1f MB\n", n, t, n / t, m / 1024
  printf "wc -l: %.3f s; quillet-calc takes %d times as long\n", b, t / b
  printf "two jobs: %.2f s by the clock, peak memory %.1f MB; one job takes %.2f times as long\n",
    two, s / 1024, one / two
}'
