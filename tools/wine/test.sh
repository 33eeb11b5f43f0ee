#!/usr/bin/env bash
# The checks that need Wine: the driver's own tests (standin_win_test.exe)
# and every scenario against the real kvs_dlg.dll, compared with its .out.
# Build x86_64 and native first (scripts/build.sh); KVSDLG names another
# kvsdlg. Skips, successfully, on a machine without Wine.
set -euo pipefail
. "$(dirname "$0")/env.sh"
if ! command -v wine >/dev/null; then
  echo "SKIP wine tests: wine is not installed"
  exit 0
fi
kvs_need_display "$0" "$@"
kvs_wine_prefix
kvs_clean_temp

status=0
echo "== driver checks under Wine"
# Time limits: a run that hangs (a window the driver cannot answer) fails
# instead of holding CI until its own limit.
timeout 300 "$(command -v /usr/lib/wine/wine64 || command -v wine)" "$KVS_WINE_DIR/standin_win_test.exe" || status=1
kvsdlg="${KVSDLG:-$kvs_root/build/native/tools/kvsdlg}"
echo "== scenarios under Wine"
timeout 1200 "$kvsdlg" check --backend=wine "$kvs_root"/tests/scenarios/*.scn "$kvs_root"/examples/*.scn || status=1
# 40,000 characters pass every bound of the library and the edit controls'
# default limit in two minutes; KVS_FIELD_LENGTH=1048576 types a megabyte
# (about 21 minutes under Wine).
length="${KVS_FIELD_LENGTH:-40000}"
echo "== $length characters in every edit field of every dialog and sub-dialog, headless and under Wine"
fields="$(mktemp -d)"
"$kvsdlg" fields "$length" "$fields" && "$kvsdlg" update "$fields"/*.scn &&
  timeout 3000 "$kvsdlg" check --backend=wine "$fields"/*.scn || status=1
rm -rf "$fields"
echo "== 700 scenario files of long paths: more than one Windows command line holds"
many="$(mktemp -d)"
long="$many/a-folder-whose-long-name-makes-every-scenario-path-long"
mkdir -p "$long"
for i in $(seq 1 700); do printf 'start 9999\n' >"$long/scenario$i.scn"; done
"$kvsdlg" update "$long"/*.scn >/dev/null && timeout 600 "$kvsdlg" check --backend=wine "$long"/*.scn || status=1
rm -rf "$many"
echo "== graph commands at the bounds of their buffer, headless and under Wine"
bounds="$(mktemp -d)"
"$kvsdlg" bounds "$bounds" && "$kvsdlg" update "$bounds"/*.scn &&
  timeout 600 "$kvsdlg" check --backend=wine "$bounds"/*.scn || status=1
rm -rf "$bounds"
exit $status
