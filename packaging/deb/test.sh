# Sourced by ./test: tests the package in a clean Debian 12 that has only its dependencies. Ends the
# script.
. packaging/deb/bookworm.sh

if [ -z "${QUILLET_OWN_MOUNTS:-}" ]; then
  need_packages run deb deb-test
  say "Package"
  ./package deb || exit 1
  with_own_mounts deb
fi

version=$(project_version)
package=dist/quillet_${version}_$(dpkg --print-architecture).deb
examples=/usr/share/doc/quillet/examples
system=$(mktemp -d)
trap 'remove_bookworm "$system"' EXIT

install_inside() { inside "$system" apt-get install -y --no-install-recommends "$@"; }

install_package() {
  cp "$package" "$system/quillet.deb" && install_inside /quillet.deb
}

# answers PATTERN COMMAND...: does a whole line of what the seller sees match the pattern?
answers() {
  local pattern=$1 told
  shift
  told=$(as_seller "$system" "$@" 2>&1) || return
  say "$told"
  grep -qxE "$pattern" <<<"$told"
}

right_versions() {
  local numbers=${version//./\\.}
  answers "Quillet US $numbers" quillet --version &&
    answers "Quillet UK $numbers" quillet-uk --version &&
    answers "quillet-calc $numbers .*" quillet-calc --version &&
    answers "quillet-calc-uk $numbers .*" quillet-calc-uk --version
}

right_figures() {
  answers 'Profit .*96\.74 \(185%\)' quillet-calc "$examples/used-camera.qlt" &&
    answers 'Profit .*14\.78 \(160%\)' quillet-calc-uk "$examples/uk-tea-set.qlt"
}

# The user's schedules are copies in the home folder; the package's own files stay as they are.
own_schedules() {
  local name
  for name in UpdateUS_v0101.dat UpdateUK_v0101.dat; do
    cmp "$system/home/seller/.local/share/quillet/$name" "$system/usr/lib/quillet/$name" || return
  done
  inside "$system" dpkg --verify quillet
}

install_recommended() {
  local names
  names=$(inside "$system" dpkg-query -W -f '${Recommends}' quillet | sed 's/([^)]*)//g; s/,/ /g')
  # shellcheck disable=SC2086
  install_inside $names
}

sound_loads() {
  local told
  told=$(inside "$system" ldd -r /usr/lib/quillet/quillet-sound.so 2>&1) || return
  say "$told"
  ! grep -qE 'not found|undefined' <<<"$told"
}

auction_type() {
  local type=application/x-quillet-auction
  answers ".*content-type: $type" gio info -a standard::content-type "$examples/lathe.qlt" &&
    answers "Default application .*: quillet\.desktop" gio mime "$type" &&
    answers '\squillet_uk\.desktop' gio mime "$type"
}

pages_render() {
  local program complaints
  for program in quillet quillet-uk quillet-calc quillet-calc-uk; do
    complaints=$(as_seller "$system" env MANROFFSEQ= MANWIDTH=80 man --warnings "$program" 2>&1 >/dev/null)
    if [ -n "$complaints" ]; then
      echo "$program: $complaints"
      return 1
    fi
  done
}

# Only the user's own files may remain.
purge_leaves_nothing() {
  local left
  inside "$system" apt-get purge -y quillet || return
  rm -f "$system/quillet.deb"
  left=$(find "$system" -xdev -ipath '*quillet*' ! -path "$system/home/*" ! -path "$system/var/log/*"
    grep -rli quillet "$system/usr/share/applications" "$system/usr/share/mime" "$system/etc")
  say "$left"
  [ -z "$left" ] && [ -f "$system/home/seller/.config/velmor/quillet.ini" ]
}

check "lintian" lintian --fail-on error "$package"
step "making a clean system" make_bookworm "$system"
check "installed with what it depends on" install_package
check "versions" right_versions
check "figures of the samples" right_figures
check "schedules of the user" own_schedules
check "desktop program" packaging/deb/installed_test.py "$system"
check "installed with what it recommends" install_recommended
check "sound library" sound_loads
step "installing tools" install_inside desktop-file-utils appstream man-db libglib2.0-bin
check "desktop entries" inside "$system" desktop-file-validate \
  /usr/share/applications/quillet{,_uk}.desktop
check "AppStream" inside "$system" appstreamcli validate --no-net \
  /usr/share/metainfo/example.quillet.quillet.metainfo.xml
check "type of an auction file" auction_type
check "manual pages" pages_render
check "purged" purge_leaves_nothing

finish
