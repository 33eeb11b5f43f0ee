#!/usr/bin/env bash
# Runs KORVAN.exe under Wine with the given arguments, under Xvfb when there
# is no display:
#
#   tools/wine/korvan.sh                                  the demo host
#   tools/wine/korvan.sh --scenario OUT.txt FILE.scn...   scenario transcripts
#   tools/wine/korvan.sh --tour 'Z:\path\to\folder'       screenshots (see tour.sh)
#
# Paths are Windows paths; a Linux path /a/b reads as Z:\a\b.
set -euo pipefail
. "$(dirname "$0")/env.sh"
kvs_need_display "$0" "$@"
[ -f "$KVS_WINE_DIR/KORVAN.exe" ] || { echo "wine: no $KVS_WINE_DIR/KORVAN.exe (run scripts/build.sh x86_64)" >&2; exit 2; }
kvs_wine_prefix
kvs_clean_temp
# Scenario runs take HTML Help requests as transcript lines: the stand-in
# hhctrl.ocx beside KORVAN.exe, not Wine's viewer.
if [ "${1:-}" = "--scenario" ]; then
  export WINEDLLOVERRIDES="hhctrl.ocx=n${WINEDLLOVERRIDES:+;$WINEDLLOVERRIDES}"
fi
kvs_wine "$KVS_WINE_DIR/KORVAN.exe" "$@"
