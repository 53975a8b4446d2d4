#!/usr/bin/env bash
# Checks a release after ./package has filled dist/: one version everywhere, a dated entry in the
# list of changes, and a clean tree. Names each thing that is wrong.
set -uo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. scripts/lib.sh

version=$(project_version)
debian=dist/quillet_${version}_$(dpkg --print-architecture).deb
windows=dist/Quillet-$version
unpacked=$(mktemp -d)
trap 'rm -rf "$unpacked"' EXIT
things=0
wrong=0

# same WHAT IS SHOULD_BE
same() {
  things=$((things + 1))
  [ "$2" = "$3" ] && return
  say "wrong: $1 is '$2' and should be '$3'"
  wrong=$((wrong + 1))
}

check_changes() {
  local head
  head=$(sed -n 's/^## //p' CHANGELOG.md | head -n 1)
  date=$(sed -nE "s/^${version//./\\.} - ([0-9]{4}-[0-9]{2}-[0-9]{2})$/\1/p" <<<"$head")
  same "the first entry of CHANGELOG.md" "$head" "$version - ${date:-YEAR-MONTH-DAY}"
  if [ -n "$date" ]; then
    same "the day of the first entry" "$date" "$(date -d "$date" +%F 2>&1)"
  fi
}

check_debian() {
  local share=$unpacked/usr/share program page
  dpkg-deb -x "$debian" "$unpacked" || return
  same "the version of $debian" "$(dpkg-deb -f "$debian" Version)" "$version"
  same "its AppStream release" \
    "$(sed -nE 's/.*<release (.*)\/>/\1/p' "$share"/metainfo/*.xml | head -n 1)" \
    "version=\"$version\" date=\"$date\""
  same "its changelog" "$(zcat "$share/doc/quillet/changelog.gz" | head -n 1)" \
    "quillet ($version) stable; urgency=medium"
  for page in quillet quillet-calc; do
    same "its page $page(1)" "$(zcat "$share/man/man1/$page.1.gz" | sed -n 's/^\.TH [^ ]* //p')" \
      "1 $date \"Quillet $version\" \"User Commands\""
  done
  for program in quillet quillet-uk quillet-calc quillet-calc-uk; do
    same "its $program --version" \
      "$("$unpacked/usr/bin/$program" --version 2>&1 | grep -oE '[0-9]+\.[0-9.]+' | head -n 1)" \
      "$version"
  done
}

check_windows() {
  local program
  for program in quillet quillet-calc; do
    same "the version in $program.exe" \
      "$(unzip -p "$windows-portable.zip" "Quillet/$program.exe" 2>&1 | strings -el |
        grep -A 1 -x ProductVersion | tail -n 1)" "$version"
  done
}

same "what git status tells" "$(git status --porcelain)" ""
check_changes
same "what lies in dist/" "$(ls -1 dist 2>/dev/null | LC_ALL=C sort | paste -sd ' ')" \
  "$(basename -a "$windows-portable.zip" "$windows-setup.exe" "$debian" | paste -sd ' ')"
if [ -f "$debian" ]; then check_debian; fi
if [ -f "$windows-portable.zip" ]; then check_windows; fi
say "$things things compared, $wrong wrong"
[ "$wrong" = 0 ]
