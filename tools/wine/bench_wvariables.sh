#!/usr/bin/env bash
# Times adding N W-variables in the scatterplot's Coordinates sub-dialog on
# the real DLL under Wine: the same scenario is run with and without the Add,
# and the difference is the Add (the driver's selecting of N names by text
# included, so the figure is an upper bound).
#
#   tools/wine/bench_wvariables.sh [N...]   (after scripts/build.sh native x86_64)
set -euo pipefail
. "$(dirname "$0")/env.sh"
kvs_need_display "$0" "$@"
kvs_wine_prefix
[ $# -gt 0 ] || set -- 1000 10000
kvsdlg="${KVSDLG:-$kvs_root/build/native/tools/kvsdlg}"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
printf "%8s %10s %10s %12s\n" N "add ms" "run ms" "us/variable"
for n in "$@"; do
  for with in 0 1; do
    {
      echo "manyvars W $n"
      echo "start 101"
      echo "  click \"Options\""
      echo "  menu 2015"
      echo "  click \"Triangular\""
      if [ "$with" = 1 ]; then
        printf '  add "W-variables:"'
        for ((i = 1; i <= n; i++)); do printf ' W%d' "$i"; done
        echo
      fi
      echo "  cancel"
      echo "  cancel"
    } >"$work/w$with.scn"
  done
  best=() 
  for with in 0 1; do
    fastest=""
    for run in 1 2 3; do
      start=$(date +%s%N)
      "$kvsdlg" run --backend=wine "$work/w$with.scn" >/dev/null
      took=$(( ($(date +%s%N) - start) / 1000000 ))
      if [ -z "$fastest" ] || [ "$took" -lt "$fastest" ]; then fastest=$took; fi
    done
    best[$with]=$fastest
  done
  add=$(( best[1] - best[0] ))
  printf "%8d %10d %10d %12.1f\n" "$n" "$add" "${best[1]}" "$(echo "1000 * $add / $n" | bc -l)"
done
