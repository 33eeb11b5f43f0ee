#!/usr/bin/env bash
# Runs one check program of the x86_64 build (build/x86_64/win32/NAME.exe)
# under Wine, with Xvfb when there is no display. Skips, successfully, where
# Wine is missing.
# Usage: run_wine_check.sh NAME      (view_parity or controls_check)
set -euo pipefail
root="$(cd "$(dirname "$0")/../.." && pwd)"
name="${1:?usage: run_wine_check.sh NAME}"
. "$root/tools/wine/env.sh"
if ! command -v wine >/dev/null; then
  echo "SKIP $name: wine is not installed"
  exit 0
fi
kvs_need_display "$0" "$@"
exe="$root/build/x86_64/win32/$name.exe"
[ -f "$exe" ] || { echo "$name: no $exe (run scripts/build.sh x86_64)" >&2; exit 2; }
kvs_wine_prefix
status=0
kvs_wine "$exe" || status=$?
wineserver -w
exit $status
