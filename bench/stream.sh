#!/usr/bin/env bash
# stream.sh FOLDER [LINES]: quillet-calc over a stream of auctions, a million unless told otherwise,
# beside what wc takes for the same stream. FOLDER holds the built programs. Runs on one core.
set -euo pipefail
program=$1/quillet-calc lines=${2:-1000000}
samples=$(dirname "$(readlink -f "$0")")/../data/samples
stream=$(mktemp)
trap 'rm -f "$stream"' EXIT
awk -v n="$lines" '{ line[NR - 1] = $0 } END { for (i = 0; i < n; i++) print line[i % NR] }' \
  "$samples"/[!u]*.qlt >"$stream"

# measure COMMAND...: its seconds of processor time and its peak of memory in kilobytes.
measure() {
  taskset -c 0 python3 - "$stream" "$@" <<'PYTHON'
import resource, subprocess, sys
with open(sys.argv[1]) as stream, open("/dev/null", "w") as null:
    subprocess.run(sys.argv[2:], stdin=stream, stdout=null, check=True)
used = resource.getrusage(resource.RUSAGE_CHILDREN)
print(used.ru_utime + used.ru_stime, used.ru_maxrss)
PYTHON
}

read -r seconds memory < <(measure "$program" --format csv -)
read -r baseline _ < <(measure wc -l)
awk -v n="$lines" -v t="$seconds" -v m="$memory" -v b="$baseline" 'BEGIN {
  printf "%d lines in %.2f s: %d lines/s, peak memory %.1f MB\n", n, t, n / t, m / 1024
  printf "wc -l: %.3f s; quillet-calc takes %d times as long\n", b, t / b
}'
