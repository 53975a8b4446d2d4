# Sourced from the top of the tree, after scripts/lib.sh: the static Qt for the Windows program. It
# is built once per machine from Debian's source package, and kept in the cache folder under a name
# that changes with everything it depends on.

qt_source_list=packaging/windows/qt-source.sha256
qt_toolchain=cmake/mingw-w64.cmake
qt_version=$(sed -n 's/.*  qt6-base_\(.*\)\.dsc$/\1/p' "$qt_source_list")

# Where the finished Qt is, or will be.
qt_folder() {
  local hash
  hash=$( (
    cat "$qt_source_list" "$qt_toolchain"
    declare -f qt_configure
    dpkg-query -W g++-mingw-w64-x86-64-posix gcc-mingw-w64-x86-64-posix-runtime \
      binutils-mingw-w64-x86-64 mingw-w64-x86-64-dev qt6-base-dev qt6-base-dev-tools
  ) | sha256sum | cut -c 1-12)
  echo "${XDG_CACHE_HOME:-$HOME/.cache}/quillet/qt-${qt_version%%+*}-$hash"
}

# This machine's Debian sources, for source packages instead of programs.
qt_source_lines() {
  local file
  for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
    [ -f "$file" ] && sed -n 's/^deb \(.*\/debian.*\)/deb-src \1/p' "$file"
  done > "$1/debian.list"
  for file in /etc/apt/sources.list.d/*.sources; do
    [ -f "$file" ] && grep -q '^URIs:.*/debian' "$file" &&
      sed 's/^Types:.*/Types: deb-src/' "$file" && echo
  done > "$1/debian.sources"
  [ -s "$1/debian.list" ] || [ -s "$1/debian.sources" ]
}

# qt_fetch FOLDER: fetches the source package with lists of its own, since the machine's may be for
# programs only. apt checks it against the signed index, sha256sum against the sums in this tree.
qt_fetch() {
  local sums=$PWD/$qt_source_list
  mkdir -p "$1"/{parts,lists/partial,archives/partial}
  qt_source_lines "$1/parts" || { echo "This machine's apt has no Debian sources."; return 1; }
  local own=(-o Dir::Etc::SourceList=- -o "Dir::Etc::SourceParts=$1/parts"
    -o "Dir::State::Lists=$1/lists" -o "Dir::Cache=$1")
  (
    cd "$1" &&
      apt-get "${own[@]}" update &&
      apt-get "${own[@]}" source --download-only "qt6-base=$qt_version" &&
      sha256sum --check --strict "$sums" &&
      dpkg-source -x "qt6-base_$qt_version.dsc" source
  )
}

# qt_configure FOLDER: only what the program uses.
qt_configure() {
  local feature off=()
  for feature in sql dbus concurrent printsupport vulkan xml network tabletevent \
    direct2d1_1 gif jpeg pkg_config; do
    off+=("-DFEATURE_$feature=OFF")
  done
  cmake -G Ninja -S "$1/source" -B "$1/build" \
    -DCMAKE_TOOLCHAIN_FILE="$PWD/$qt_toolchain" -DCMAKE_BUILD_TYPE=Release \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
    -DBUILD_SHARED_LIBS=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF \
    -DINPUT_opengl=no \
    "${off[@]}"
}

# Builds Qt unless it is there.
need_qt() {
  local folder work
  folder=$(qt_folder)
  [ -d "$folder" ] && return
  work=$folder.work
  rm -rf "$work"
  mkdir -p "$work"
  say "Building Qt $qt_version for Windows, once (about half an hour)"
  step "fetching Qt's source" qt_fetch "$work"
  step "configuring Qt" qt_configure "$work"
  step "building Qt" ninja -C "$work/build" ${QUILLET_JOBS:+-j"$QUILLET_JOBS"}
  step "installing Qt" cmake --install "$work/build" --prefix "$work/qt"
  cp "$work/source/debian/copyright" "$work/qt"
  mv "$work/qt" "$folder"
  rm -rf "$work"
}
