#!/usr/bin/env bash
# Builds the program for Windows and packs it: dist/Quillet-VERSION-setup.exe and -portable.zip.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
. scripts/lib.sh
. packaging/windows/qt.sh

largest=$((25 * 1024 * 1024))  # bytes of a program
stage=build/windows/stage/Quillet

# A program mustn't be too large, or need libraries other than the system's.
check_program() {
  local program=$1 size strange
  size=$(stat -c %s "$program")
  if [ "$size" -gt "$largest" ]; then
    say "$program is too large: $size bytes"
    return 1
  fi
  strange=$(x86_64-w64-mingw32-objdump -p "$program" | sed -n 's/.*DLL Name: //p' |
    grep -iE '^(lib|qt|zlib)' || true)
  if [ -n "$strange" ]; then
    say "$program needs libraries beside it:" $strange
    return 1
  fi
}

fill_stage() {
  local program
  rm -rf "$stage"
  mkdir -p "$stage/Licences"
  for program in quillet quillet-calc; do
    check_program "build/windows/bin/$program.exe"
    cp "build/windows/bin/$program.exe" "$stage"
  done
  cp -p data/UpdateUS_*.dat "$stage"
  cp LICENSE "$stage/Licences/Quillet.txt"
  cp packaging/THIRD-PARTY.md "$stage/Licences/Others.txt"
  cp packaging/licenses/* "$stage/Licences"
  cp /usr/share/common-licenses/{GPL-3,LGPL-3} "$stage/Licences"
  cp "$(qt_folder)/copyright" "$stage/Licences/Qt.txt"
  cp graphics/quillet.ico "$stage/.."
  convert graphics/installer.png "BMP3:$stage/../installer.bmp"  # the installer's format
}

# The schedules that the uninstaller removes: those that came along, and none of the user's own.
list_schedules() {
  local schedule
  for schedule in data/UpdateUS_*.dat; do
    echo "Delete \"\$INSTDIR\\$(basename "$schedule")\""
  done >"$stage/../schedules.nsh"
}

need_packages run windows
need_qt
QUILLET_WINDOWS_QT=$(qt_folder)
export QUILLET_WINDOWS_QT
build windows quillet quillet-calc
fill_stage
list_schedules

version=$(project_version)
name=dist/Quillet-$version
mkdir -p dist
rm -f "$name-setup.exe" "$name-portable.zip"
step "making the installer" makensis -V2 "-DVERSION=$version" "-DSTAGE=$PWD/$stage" \
  "-DOUTPUT=$PWD/$name-setup.exe" packaging/windows/quillet.nsi
(cd "$stage/.." && step "making the archive" zip -qr -X "$OLDPWD/$name-portable.zip" Quillet)
du -bh "$stage/quillet.exe" "$name"-*
