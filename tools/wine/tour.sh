#!/usr/bin/env bash
# Opens every dialog of the library once under Wine (Xvfb when there is no
# display) and writes one PNG screenshot per dialog, ID-TEMPLATE.png, with
# the transcript of the tour in tour.txt.
#
#   tools/wine/tour.sh [OUTPUT_FOLDER]     (default build/tour)
#   KVS_TOUR_DPI=144 tools/wine/tour.sh build/tour-150   (the dialogs at 150 %, in a prefix of their own)
set -euo pipefail
if [ -n "${KVS_TOUR_DPI:-}" ]; then
  export WINEPREFIX="${WINEPREFIX:-$(cd "$(dirname "$0")/../.." && pwd)/build/wine-prefix-$KVS_TOUR_DPI}"
  # A screen as much larger as the dialogs, so a resized one still fits.
  export KVS_XVFB_SCREEN="${KVS_XVFB_SCREEN:-$((1024 * KVS_TOUR_DPI / 96))x$((768 * KVS_TOUR_DPI / 96))x24}"
fi
. "$(dirname "$0")/env.sh"
out="${1:-$kvs_root/build/tour}"
mkdir -p "$out"
out="$(cd "$out" && pwd)"
kvs_need_display "$0" "$out"
[ -f "$KVS_WINE_DIR/KORVAN.exe" ] || { echo "tour: no $KVS_WINE_DIR/KORVAN.exe (run scripts/build.sh x86_64)" >&2; exit 2; }
kvs_wine_prefix
if [ -n "${KVS_TOUR_DPI:-}" ]; then
  kvs_wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$KVS_TOUR_DPI" /f >/dev/null 2>&1
  wineserver -w
fi
kvs_clean_temp
rm -f "$out"/*.bmp "$out"/*.png "$out/tour.txt"
kvs_wine "$KVS_WINE_DIR/KORVAN.exe" --tour "Z:${out//\//\\}"

# The first convert on PATH may not be ImageMagick's.
convert_cmd="$(command -v convert-im6.q16 || command -v convert)"
shopt -s nullglob
for bitmap in "$out"/*.bmp; do
  "$convert_cmd" "$bitmap" "${bitmap%.bmp}.png"
  rm -f "$bitmap"
done
count=$(find "$out" -name '*.png' | wc -l)
echo "tour: $count screenshots and the transcript in $out"
