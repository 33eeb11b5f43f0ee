#!/usr/bin/env bash
# The stand-in host KORVAN.exe with the real kvs_dlg.dll, on this display:
# menus for every dialog, a sample data file, a log of what the library sends
# the host. With no display there is nobody to click, so the dialogs are
# toured instead (tour.sh).
set -euo pipefail
. "$(dirname "$0")/env.sh"
if [ -z "${DISPLAY:-}" ]; then
  echo "demo: no DISPLAY; touring the dialogs under Xvfb instead" >&2
  exec "$(dirname "$0")/tour.sh" "$@"
fi
[ -f "$KVS_WINE_DIR/KORVAN.exe" ] || { echo "demo: no $KVS_WINE_DIR/KORVAN.exe (run scripts/build.sh x86_64)" >&2; exit 2; }
kvs_wine_prefix
kvs_wine "$KVS_WINE_DIR/KORVAN.exe"
