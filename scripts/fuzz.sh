#!/usr/bin/env bash
# fuzz.sh PROGRAM CORPUS SECONDS: tries the corpus, then new inputs until the time is up.
set -euo pipefail
program=$1 corpus=$2 seconds=$3
[ -d "$corpus" ] || { echo "$corpus is missing"; exit 1; }
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$program" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
  -artifact_prefix=build/ "$scratch" "$corpus"
