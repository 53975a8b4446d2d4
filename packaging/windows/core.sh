# Sourced by ./test: the part of the Windows program that needs no Qt, under Wine.
. packaging/windows/wine.sh

# The figures must be the same as here, to the last character.
same_figures_on_windows() {
  diff <(wine build/windows-core/bin/quillet-calc.exe data/samples/{[!u],u[!k]}*.qlt | tr -d '\r') \
    <(build/release/bin/quillet-calc data/samples/{[!u],u[!k]}*.qlt)
}

core_on_windows() {
  local region
  say "Core for Windows, under Wine"
  trap stop_wine EXIT
  step "starting Wine" start_wine
  for region in us uk; do
    tests "core on Windows, $region" wine "build/windows-core/bin/core_tests_$region.exe"
  done
  check "same figures on Windows" same_figures_on_windows
}
