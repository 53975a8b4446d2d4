# Sourced: Wine with its own Windows in a temporary folder, removed at the end.

wine_program=$(command -v /usr/lib/wine/wine64 wine64 | head -n 1 || true)
wine_home=

# wine PROGRAM...: runs it with a time limit.
wine() { timeout "${WINE_SECONDS:-300}" "$wine_program" "$@"; }

start_wine() {
  wine_home=$(mktemp -d)
  export WINEPREFIX=$wine_home/prefix WINEARCH=win64 WINEDEBUG=-all
  # Adds no menus or file types to the tester's desktop, and doesn't offer to fetch missing parts.
  export WINEDLLOVERRIDES="winemenubuilder.exe,mscoree,mshtml="
  wine wineboot -i >"$wine_home/wineboot.log" 2>&1
}

stop_wine() {
  [ -z "$wine_home" ] && return
  timeout 60 "${wine_program%/*}/wineserver" -k
  timeout 60 "${wine_program%/*}/wineserver" -w
  rm -rf "$wine_home"
  wine_home=
}
