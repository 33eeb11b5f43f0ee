#!/usr/bin/env bash
# Runs the checks of numeric fields and the progress window
# (controls_check.exe of the x86_64 build) under Wine (with Xvfb when there is
# no display). Skips, successfully, where Wine is missing.
# Usage: run_controls.sh
set -euo pipefail
root="$(cd "$(dirname "$0")/../.." && pwd)"
. "$root/tools/wine/env.sh"
if ! command -v wine >/dev/null; then
  echo "SKIP controls: wine is not installed"
  exit 0
fi
kvs_need_display "$0" "$@"
exe="$root/build/x86_64/win32/controls_check.exe"
[ -f "$exe" ] || { echo "controls: no $exe (run scripts/build.sh x86_64)" >&2; exit 2; }
kvs_wine_prefix
status=0
kvs_wine "$exe" || status=$?
wineserver -w
exit $status
