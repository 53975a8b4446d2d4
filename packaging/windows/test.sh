# Sourced by ./test: tests the Windows program under Wine, from its units to what the installer
# leaves. Ends the script.
. packaging/windows/wine.sh

# run_tests NAME: runs a test program for both regions.
run_tests() {
  local region
  for region in us uk; do
    tests "$1 on Windows, $region" wine "build/windows/bin/$1_tests_$region.exe"
  done
}

need_packages run test windows-core windows windows-test
say "Package"
./package windows || exit 1
. packaging/windows/qt.sh
QUILLET_WINDOWS_QT=$(qt_folder)
export QUILLET_WINDOWS_QT

say "Tests"
build windows
trap stop_wine EXIT
step "starting Wine" start_wine
run_tests core
run_tests widget
check "Internet client" \
  tests/online/internet_test.py "$wine_program" build/windows/bin/internet_probe.exe
check "installer and installed program" \
  packaging/windows/installed_test.py "dist/Quillet-$(project_version)-setup.exe"

finish
