# Shared by the scripts at the root; they source it from the top of the tree.

say() { printf '%s\n' "$*"; }

# step NAME COMMAND...: runs a command without showing its output; a failure names the step, shows
# the end of the output and ends the script.
step() {
  local name=$1 log
  shift
  log=$(mktemp)
  if ! "$@" >"$log" 2>&1; then
    tail -n 40 "$log" >&2
    say "Failed: $name. (The whole output is in $log.)" >&2
    exit 1
  fi
  rm -f "$log"
}

as_root() {
  if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

apt_install() {
  as_root env DEBIAN_FRONTEND=noninteractive apt-get update &&
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "$@"
}

# need_packages GROUP...: installs the missing packages of these groups.
need_packages() {
  local wanted missing
  wanted=$(for group in "$@"; do
    sed -n "s/^$group  *\([^ #]*\).*/\1/p" packaging/debian-packages.txt
  done)
  missing=$(comm -23 <(sort -u <<<"$wanted") \
    <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' 2>/dev/null |
      sed -n 's/ installed$//p' | sort -u))
  [ -z "$missing" ] && return
  if [ "$(id -u)" != 0 ] && ! command -v sudo >/dev/null; then
    say "Some packages are missing, and without sudo only root can install them. As root:" >&2
    say "  apt-get install" $missing >&2
    exit 1
  fi
  say "Installing:" $missing
  # shellcheck disable=SC2086
  step "installing packages" apt_install $missing
}

# configure PRESET: configures it unless that is done.
configure() {
  [ -f "build/$1/build.ninja" ] && return
  say "Configuring ($1)"
  step "configuring $1" cmake --preset "$1"
}

# build PRESET [TARGET...]: configures once and builds what has changed.
build() {
  local preset=$1 folder=build/$1
  shift
  configure "$preset"
  ninja -C "$folder" -n "$@" 2>/dev/null | grep -q 'no work to do' && return
  if [ -t 2 ]; then say "Building ($preset)" >&2; fi
  step "building $preset" ninja -C "$folder" "$@"
}

# The version, from the only place that states it.
project_version() {
  sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt
}
