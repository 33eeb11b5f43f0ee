#!/usr/bin/env bash
# Redraws the picture resources into resources/pictures/ and, with --sheet
# FILE, writes a contact sheet PNG of them all (needs ImageMagick).
set -euo pipefail
root="$(cd "$(dirname "$0")/../.." && pwd)"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
g++ -std=c++20 -O1 -Wall -Wextra -Wpedantic -Werror -o "$work/make_pictures" "$root/tools/pictures/make_pictures.cpp"
"$work/make_pictures" "$root/resources/pictures"
if [[ "${1:-}" == "--sheet" && -n "${2:-}" ]]; then
  png() { convert "$root/resources/pictures/$1.bmp" -filter point -resize 300% "$work/$1.png"; echo "$work/$1.png"; }
  row() { local prefix=$1 count=$2; for i in $(seq 1 "$count"); do png "$prefix$i"; done; }
  montage $(row symbol 22) -tile 11x -geometry +4+4 -background '#c8c8d8' "$work/symbols.png"
  montage $(row dash 11) -tile 4x -geometry +4+4 -background '#c8c8d8' "$work/dashes.png"
  montage $(row axes2d 12) -tile 6x -geometry +4+4 -background '#c8c8d8' "$work/axes2d.png"
  montage $(row axes3d 8) -tile 8x -geometry +4+4 -background '#c8c8d8' "$work/axes3d.png"
  convert "$work/symbols.png" "$work/dashes.png" "$work/axes2d.png" "$work/axes3d.png" \
    -background '#c8c8d8' -gravity west -append "$2"
  echo "contact sheet: $2"
fi
