#!/usr/bin/env bash
# Builds the programs and packs them for Debian: dist/quillet_VERSION_ARCHITECTURE.deb.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
. scripts/lib.sh

need_packages run deb
build release quillet_package
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2>/dev/null || date +%s)
export SOURCE_DATE_EPOCH
mkdir -p dist
step "making the package" cpack -G DEB --config build/release/CPackConfig.cmake \
  -B "$PWD/build/release/package"
package=$(ls -t build/release/package/*.deb | head -n 1)
cp "$package" dist/
du -bh "dist/$(basename "$package")"
