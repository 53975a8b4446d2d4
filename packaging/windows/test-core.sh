#!/usr/bin/env bash
# The part of the Windows build that needs no Qt: compiles the engine's tests and the terminal
# program for Windows and runs them under Wine.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
. scripts/lib.sh
. packaging/windows/wine.sh
folder=build/windows-core/bin

need_packages run windows-core
build windows-core core_tests_us core_tests_uk quillet-calc
build release quillet-calc
trap stop_wine EXIT
start_wine
for region in us uk; do
  wine "$folder/core_tests_$region.exe" --gtest_brief=1
done
# The same figures as here, to the last character.
diff <(wine "$folder/quillet-calc.exe" data/samples/[!u]*.qlt | tr -d '\r') \
  <(build/release/bin/quillet-calc data/samples/[!u]*.qlt)
