# Sourced by tests: a clean Debian 12 in a folder, from this machine's package sources. It is
# fetched once and cached; mounts are made in their own name space.

bookworm_cache=${XDG_CACHE_HOME:-$HOME/.cache}/quillet
bookworm_base=$bookworm_cache/bookworm-$(dpkg --print-architecture).tar

# This machine's Debian sources, as lines of a sources.list.
debian_sources() {
  # shellcheck disable=SC2016
  apt-get indextargets --format '$(ORIGIN) deb $(REPO_URI) $(RELEASE) $(COMPONENT)' \
    "Created-By: Packages" | sed -n 's/^Debian //p' | sort -u
}

# fetch_bookworm: puts the smallest Debian 12 into the cache.
fetch_bookworm() {
  local folder mirror
  mirror=$(debian_sources | awk '$3 == "bookworm" { print $2; exit }')
  folder=$(mktemp -d)
  chmod 755 "$folder"  # tar keeps the mode
  mkdir -p "$bookworm_cache"
  timeout 1200 debootstrap --variant=minbase bookworm "$folder" "$mirror" &&
    debian_sources >"$folder/etc/apt/sources.list" &&
    tar -C "$folder" -cf "$bookworm_base.new" . && mv "$bookworm_base.new" "$bookworm_base"
  local status=$?
  rm -rf "$folder"
  return $status
}

# with_own_mounts FORM: runs "./test FORM" again as root, with QUILLET_OWN_MOUNTS set, in its own
# name space, and exits with its status. The mounts go away with the last process there.
with_own_mounts() {
  as_root env QUILLET_OWN_MOUNTS=yes HOME="$HOME" unshare --mount "$0" "$1"
  exit
}

# make_bookworm FOLDER: unpacks a fresh one, with a user "seller" and this machine's X sockets.
make_bookworm() {
  [ -f "$bookworm_base" ] || fetch_bookworm || return
  tar -C "$1" -xf "$bookworm_base" &&
    printf '#!/bin/sh\nexit 101\n' >"$1/usr/sbin/policy-rc.d" &&
    chmod +x "$1/usr/sbin/policy-rc.d" &&
    cp /etc/resolv.conf /etc/hosts "$1/etc/" &&
    mount -t proc proc "$1/proc" &&
    mkdir -p "$1/tmp/.X11-unix" /tmp/.X11-unix &&
    mount --bind /tmp/.X11-unix "$1/tmp/.X11-unix" &&
    mkdir -p "$bookworm_cache/archives/partial" &&
    mount --bind "$bookworm_cache/archives" "$1/var/cache/apt/archives" &&
    inside "$1" useradd -m seller &&
    inside "$1" apt-get update
}

remove_bookworm() {
  umount -l "$1"/{proc,tmp/.X11-unix,var/cache/apt/archives}
  rm -rf --one-file-system "$1"
}

# inside FOLDER COMMAND...: runs a command there as root.
inside() {
  local folder=$1
  shift
  timeout 900 chroot "$folder" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root \
    LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}

# as_seller FOLDER COMMAND...: the same as an ordinary user.
as_seller() {
  local folder=$1
  shift
  inside "$folder" setpriv --reuid seller --regid seller --clear-groups \
    env HOME=/home/seller --chdir=/home/seller "$@"
}
