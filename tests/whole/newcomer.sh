# Sourced by ./test: clones the last commit into a bare Debian 12 with nothing but git, and types
# ./run there as a newcomer would. Ends the script.
. packaging/deb/bookworm.sh

if [ -z "${QUILLET_OWN_MOUNTS:-}" ]; then
  need_packages newcomer
  rm -rf build/newcomer.git
  step "copying the repository" git clone --bare "file://$PWD" build/newcomer.git
  with_own_mounts newcomer
fi

system=$(mktemp -d)
trap 'remove_bookworm "$system"' EXIT
printed=$kept/newcomer.txt

clone() {
  inside "$system" apt-get install -y --no-install-recommends git &&
    cp -r --no-preserve=ownership build/newcomer.git "$system/srv/quillet.git" &&
    inside "$system" git clone /srv/quillet.git /srv/quillet
}

told_what_root_must_install() {
  local told
  told=$(as_seller "$system" /srv/quillet/run 2>&1) && return 1
  say "$told"
  grep -q '^  apt-get install .*qt6-base-dev' <<<"$told"
}

first_run() { inside "$system" /srv/quillet/run >"$printed"; }

second_run_within_two_seconds() {
  local started took
  started=$(date +%s%N)
  inside "$system" /srv/quillet/run >"$printed.again" || return
  took=$((($(date +%s%N) - started) / 1000000))
  say "$took ms"
  [ "$took" -lt 2000 ]
}

say "A newcomer's Debian"
step "making a clean system" make_bookworm "$system"
step "cloning" clone
check "who can't install is told what is missing" told_what_root_must_install
check "./run" first_run
check "figures of the samples" tests/whole/printed_figures.py "$printed"
check "desktop program" inside "$system" /srv/quillet/build/release/bin/quillet --version
check "./run again, within two seconds" second_run_within_two_seconds
finish
