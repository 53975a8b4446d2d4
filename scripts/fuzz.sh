#!/usr/bin/env bash
# fuzz.sh PROGRAM CORPUS SECONDS: the corpus as it stands, then new inputs for a bounded while.
set -euo pipefail
program=$1 corpus=$2 seconds=$3
[ -d "$corpus" ] || { echo "$corpus is missing"; exit 1; }
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$program" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
  -artifact_prefix=build/ "$scratch" "$corpus"
