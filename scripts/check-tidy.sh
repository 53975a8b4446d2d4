#!/usr/bin/env bash
# clang-tidy over every source that is built here; needs a build's compile commands.
set -euo pipefail
build=$1
git ls-files -z 'src/*.cpp' ':!src/platform/windows' | xargs -0 -n 4 -P "$(nproc)" clang-tidy -p "$build" --quiet
