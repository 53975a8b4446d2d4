#!/usr/bin/env bash
# Runs each command that the README shows with its output, and compares.
set -uo pipefail
export LC_ALL=C.UTF-8
faults=0 commands=0 expected="" command=""

finish() {
  [ -z "$command" ] && return
  commands=$((commands + 1))
  local got
  got=$(bash -c "$command" 2>&1 </dev/null)
  if [ "$got" != "${expected%$'\n'}" ]; then
    echo "README.md shows different output for: $command"
    diff <(printf '%s\n' "${expected%$'\n'}") <(printf '%s\n' "$got")
    faults=$((faults + 1))
  fi
  command="" expected=""
}

inside=""
while IFS= read -r line; do
  case $line in
    '```console') inside=yes ;;
    '```') finish; inside="" ;;
    '$ '*) if [ -n "$inside" ]; then finish; command=${line#\$ }; fi ;;
    *) if [ -n "$inside" ]; then expected+=$line$'\n'; fi ;;
  esac
done < README.md

echo "$commands commands, $faults faults"
[ "$commands" -gt 0 ] && [ "$faults" = 0 ]
