#!/usr/bin/env bash
# Builds the example host from a release archive's files alone, in an empty
# folder, with the command lines of the archive's example/build.sh (the ones
# the integration guide prints). x86_64: runs it under Wine through a Sort OK
# and a Scatterplot OK and checks the lines it receives; i686: link only (no
# 32-bit Wine here).
# Usage: host_from_archive.sh ARCHIVE.zip i686|x86_64
set -euo pipefail
zip="$(cd "$(dirname "$1")" && pwd)/$(basename "$1")"
arch="$2"
. "$(dirname "$0")/../../tools/wine/env.sh"
if [ "$arch" = x86_64 ]; then kvs_need_display "$0" "$@"; fi

folder="$(mktemp -d)"
trap 'rm -rf "$folder"' EXIT
cd "$folder"
unzip -q "$zip"
top="$(ls)"
cd "$top"
sh example/build.sh "$arch" >"$folder/build.txt" 2>&1 || { cat "$folder/build.txt" >&2; echo "host from archive [$arch]: the build failed" >&2; exit 1; }
objdump="$arch-w64-mingw32-objdump"
# A host linked with a .def that says LIBRARY comes out marked as a DLL, and
# Windows will not start it.
if "$objdump" -p KORVAN.exe | sed -n '/^Characteristics/,/^$/p' | grep -qx $'\tDLL'; then
  echo "host from archive [$arch]: KORVAN.exe is marked as a DLL" >&2; exit 1
fi
if [ "$arch" != x86_64 ]; then
  echo "host from archive [$arch]: built and linked (not run: no 32-bit Wine)"
  exit 0
fi

kvs_wine_prefix
version="$(sed -n 's/^kvs_dlg-\([0-9.]*\)-.*/\1/p' <<<"$top")"
expected="kvs_dlg.dll $version
AddCmd \"SORT AGE INCOME \" null
StartDialog 72 = 1
AbortCommands
AbortCommands
AddCmd \"PLOT INCOME*AGE \" null
StartDialog 101 = 1"
actual="$(timeout 120 "$(command -v /usr/lib/wine/wine64 || command -v wine)" KORVAN.exe --script 2>/dev/null | tr -d '\r')" || true
if [ "$actual" != "$expected" ]; then
  echo "host from archive [$arch]: the host received other lines" >&2
  diff <(echo "$expected") <(echo "$actual") >&2 || true
  exit 1
fi
echo "host from archive [$arch]: Sort and Scatterplot lines received"
