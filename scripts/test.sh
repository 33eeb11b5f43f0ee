#!/usr/bin/env bash
# Every test: unit tests and scenarios natively (plain and under the
# sanitizers), and the Windows builds.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/setup.sh"
"$root/tests/banned_calls.sh"

for config in native native-release native-sanitize; do
  echo "== $config"
  "$root/scripts/build.sh" "$config"
  ctest --test-dir "$root/build/$config" --output-on-failure -j2
done

for arch in i686 x86_64; do
  echo "== $arch"
  "$root/scripts/build.sh" "$arch"
done
echo "== DLL export and import tables"
"$root/tests/win/check_dll_tables.sh" "$root/build" i686 x86_64
echo "== real windows under Wine"
"$root/tests/win/run_wine_check.sh" view_parity
"$root/tests/win/run_wine_check.sh" controls_check
echo "== stand-in host and scenarios under Wine"
"$root/tools/wine/test.sh"
echo "== fuzzing, bounded (tests/fuzz/run.sh SECONDS runs longer)"
"$root/tests/fuzz/run.sh" 45
echo "== release archives, and a host built from each alone"
"$root/scripts/release.sh" --check
