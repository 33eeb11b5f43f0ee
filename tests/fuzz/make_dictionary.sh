#!/usr/bin/env bash
# Writes the scenario fuzzer's dictionary to stdout: the statements of the
# scenario language, the IDC_ names of the id headers, the labels and button
# texts of every template (without "&"), and the menu command ids.
set -euo pipefail
root="$(cd "$(dirname "$0")/../.." && pwd)"
{
  for word in vars manyvars file active matrix sorted title helpfile failalloc allocations start launch reinit \
              select add remove dblclick click check uncheck type typerepeat choose show caption syscommand \
              clickat ok cancel continue tab enter reply file font menu showmenu yes no \
              drag to at key delete ctrl+a accname resize; do
    echo "$word"
  done
  grep -ho 'IDC_[A-Z0-9_]*' "$root"/resources/*_ids.h
  grep -ho '"[^"]*"' "$root"/resources/*.rc | tr -d '&' | grep -v '^""$'
  grep -ho '^ *{ *[0-9]\{2,4\},' "$root"/core/*.cpp "$root"/data/*.cpp "$root"/graph/*.cpp "$root"/stats/*.cpp 2>/dev/null | tr -dc '0-9\n'
  grep -ho 'dialogRow(Family::[A-Za-z]*, [0-9]*' "$root"/*/*.cpp | grep -o '[0-9]*$'
} | sed 's/\\/\\\\/g; s/"/\\"/g' | sort -u | awk 'length($0) > 0 && length($0) < 60 { printf "\"%s\"\n", $0 }'
