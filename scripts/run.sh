#!/usr/bin/env bash
# The main job. With a display: the stand-in host KORVAN.exe with the real
# kvs_dlg.dll under Wine, menus for every dialog. Without one: a tour of every
# dialog under Xvfb, printing its transcript and writing one PNG screenshot a
# dialog into build/tour/.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/setup.sh"
"$root/scripts/build.sh" x86_64 >/dev/null
if [ -n "${DISPLAY:-}" ]; then
  exec "$root/tools/wine/demo.sh"
fi
"$root/tools/wine/tour.sh" "$root/build/tour"
cat "$root/build/tour/tour.txt"
