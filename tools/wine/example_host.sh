#!/usr/bin/env bash
# Runs the example C host (examples/host_c, built as KORVAN.exe in
# build/x86_64/example_host) under Wine in its scripted mode: it opens the
# Sort dialog, picks two variables, presses OK and prints what the library
# hands back. The printed lines are compared with the expected ones.
set -euo pipefail
. "$(dirname "$0")/env.sh"
if ! command -v wine >/dev/null; then
  echo "SKIP example host: wine is not installed"
  exit 0
fi
kvs_need_display "$0" "$@"
kvs_wine_prefix

folder="$kvs_root/build/x86_64/example_host"
[ -x "$folder/KORVAN.exe" ] || { echo "example host: build x86_64 first" >&2; exit 2; }
expected='AddCmd "SORT AGE INCOME " null
StartDialog 72 = 1'
actual="$(cd "$folder" && timeout 120 "$(command -v /usr/lib/wine/wine64 || command -v wine)" KORVAN.exe --script 2>/dev/null |
          tr -d '\r' | grep -v '^kvs_dlg.dll ')"
if [ "$actual" = "$expected" ]; then
  echo "example host: 1 passed, 0 failed"
else
  echo "example host: the lines differ"
  echo "expected:"; echo "$expected"
  echo "actual:"; echo "$actual"
  exit 1
fi
