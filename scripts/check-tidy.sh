#!/usr/bin/env bash
# clang-tidy over all sources of this platform; needs a build's compile commands, from a build
# without precompiled headers: their format is another compiler's, and they would hide an include
# that is missing.
set -euo pipefail
build=$1
git ls-files -z 'src/*.cpp' ':!src/platform/windows/*' ':!src/base/region_uk.cpp' |
  xargs -0 -n 4 -P "$(nproc)" clang-tidy -p "$build" --extra-arg=-Wno-unknown-warning-option --quiet
