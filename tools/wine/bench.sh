#!/usr/bin/env bash
# Times the real DLL under Wine: opening a variable dialog on a file of N
# variables (P1) and its OK with N variables chosen (P2), each against the
# floor of a plain list box in the same process, and keystrokes in the
# search box under its source list, for N = 1,000, 10,000 and 100,000.
# Prints the tables (best of three runs each).
#
#   tools/wine/bench.sh [N...]   (after scripts/build.sh x86_64)
set -euo pipefail
. "$(dirname "$0")/env.sh"
kvs_need_display "$0" "$@"
[ -f "$KVS_WINE_DIR/KORVAN.exe" ] || { echo "bench: no $KVS_WINE_DIR/KORVAN.exe (run scripts/build.sh x86_64)" >&2; exit 2; }
kvs_wine_prefix
out="$(mktemp -d)"
kvs_wine "$KVS_WINE_DIR/KORVAN.exe" --bench "Z:${out//\//\\}\\bench.txt" "$@"
cat "$out/bench.txt"
rm -rf "$out"
