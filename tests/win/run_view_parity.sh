#!/usr/bin/env bash
# Builds view_parity_wine.cpp for x86_64 and runs it under Wine (with Xvfb
# when there is no display). Skips, successfully, where Wine is missing.
# Usage: run_view_parity.sh WORK_DIR   (a scratch folder, e.g. build/wine)
set -euo pipefail
root="$(cd "$(dirname "$0")/../.." && pwd)"
work="${1:?usage: run_view_parity.sh WORK_DIR}"
if ! command -v wine >/dev/null; then
  echo "SKIP view parity: wine is not installed"
  exit 0
fi
if [ -z "${DISPLAY:-}" ]; then
  exec xvfb-run -a -s "-screen 0 1024x768x24" "$0" "$@"
fi
mkdir -p "$work"
work="$(cd "$work" && pwd)"
arch=x86_64-w64-mingw32

"$arch-windres" -I "$root/resources" "$root/tests/win/view_parity.rc" -O coff -o "$work/view_parity.res"
"$arch-g++-posix" -std=c++20 -O1 -Wall -Wextra -Werror -DNOMINMAX -DSTRICT -I"$root" -static \
  "$root/tests/win/view_parity_wine.cpp" "$root/win32/win32_dialog_view.cpp" "$root/win32/dialog_procedure.cpp" \
  "$root/win32/owner_drawn_button.cpp" "$root/win32/win32_ui.cpp" "$root/win32/module_instance.cpp" \
  "$root/core/file_filters.cpp" "$work/view_parity.res" -luser32 -lgdi32 -lcomdlg32 -o "$work/view_parity.exe"

export WINEPREFIX="${WINEPREFIX:-$work/prefix}" WINEDEBUG=-all
if [ ! -f "$WINEPREFIX/system.reg" ]; then
  wineboot -i >/dev/null 2>&1
  # Without a window manager every window close would wait for one.
  wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
fi
status=0
wine "$work/view_parity.exe" || status=$?
wineserver -w
exit $status
