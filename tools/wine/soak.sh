#!/usr/bin/env bash
# Opens every dialog of the real DLL under Wine ROUNDS times (default 30) in
# one process, clicks its buttons at random and closes it, and prints the
# process's GDI and USER object counts, its windows and its memory after the
# first round and at the end: none should grow.
#
#   tools/wine/soak.sh [ROUNDS]   (after scripts/build.sh x86_64)
set -euo pipefail
. "$(dirname "$0")/env.sh"
kvs_need_display "$0" "$@"
[ -f "$KVS_WINE_DIR/KORVAN.exe" ] || { echo "soak: no $KVS_WINE_DIR/KORVAN.exe (run scripts/build.sh x86_64)" >&2; exit 2; }
kvs_wine_prefix
kvs_clean_temp
out="$(mktemp -d)"
kvs_wine "$KVS_WINE_DIR/KORVAN.exe" --soak "Z:${out//\//\\}\\soak.txt" "${1:-30}"
cat "$out/soak.txt"
rm -rf "$out"
