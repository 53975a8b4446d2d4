#!/usr/bin/env bash
# check-hardening.sh PROGRAM...: is each hardened as Debian's programs are? Names what is missing.
set -uo pipefail
missing=0

# has PROGRAM WHAT PATTERN TEXT
has() {
  grep -qE "$3" <<<"$4" && return
  echo "$1: no $2"
  missing=$((missing + 1))
}

for program in "$@"; do
  dynamic=$(readelf -dW "$program")
  segments=$(readelf -lW "$program")
  symbols=$(nm -D "$program")
  has "$program" "position-independent (PIE)" 'FLAGS_1.* PIE' "$dynamic"
  has "$program" "binding at the start (now)" 'FLAGS_1.* NOW' "$dynamic"
  has "$program" "read-only relocations (RELRO)" 'GNU_RELRO' "$segments"
  has "$program" "stack without code" 'GNU_STACK .* RW ' "$segments"
  has "$program" "stack protector" ' U __stack_chk_fail@' "$symbols"
  # FORTIFY replaces snprintf with a checked call; a program that never calls it has neither.
  has "$program" "check of buffers (FORTIFY)" '^$' "$(grep -E ' U snprintf@' <<<"$symbols")"
done
echo "$# programs, $missing things missing"
[ $# -gt 0 ] && [ "$missing" = 0 ]
