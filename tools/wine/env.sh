# Sourced by the Wine scripts: the prefix inside the build tree, made once and
# cached, and quiet Wine.
#
#   KVS_WINE_DIR   folder with KORVAN.exe and the DLLs (default build/x86_64/wine)
#   WINEPREFIX     the Wine prefix (default build/wine-prefix)

kvs_root="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
export KVS_WINE_DIR="${KVS_WINE_DIR:-$kvs_root/build/x86_64/wine}"
export WINEPREFIX="${WINEPREFIX:-$kvs_root/build/wine-prefix}"
export WINEDEBUG="${WINEDEBUG:--all}"
# No Mono or Gecko installer prompts while the prefix is made.
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml=}"

# Re-runs the calling script under Xvfb when there is no display, on a
# screen of KVS_XVFB_SCREEN (1024x768x24 unless set).
kvs_need_display() {
  if [ -z "${DISPLAY:-}" ]; then
    command -v xvfb-run >/dev/null || { echo "wine: no DISPLAY and no xvfb-run" >&2; exit 2; }
    export KVS_XVFB=1
    exec xvfb-run -a -s "-screen 0 ${KVS_XVFB_SCREEN:-1024x768x24}" "$@"
  fi
}

# The Wine launcher; Debian's wrapper script warns about wine32 on every call.
kvs_wine() {
  if [ -x /usr/lib/wine/wine64 ]; then /usr/lib/wine/wine64 "$@"; else wine "$@"; fi
}

# Makes the prefix once: wineboot, no window manager wait (Xvfb has none:
# without Managed=N every window close waits about 2 s for one), and C:\TEMP
# for the file dialogs.
kvs_wine_prefix() {
  mkdir -p "$(dirname "$WINEPREFIX")"
  (
    flock 9
    if [ ! -f "$WINEPREFIX/.kvs-ready" ]; then
      echo "wine: making the prefix $WINEPREFIX" >&2
      wineboot -i >/dev/null 2>&1
      kvs_wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
      wineserver -w
      mkdir -p "$WINEPREFIX/drive_c/TEMP"
      touch "$WINEPREFIX/.kvs-ready"
    fi
    # The graph font chooser opens at Arial: Wine offers it under that name
    # when it is a replacement for the metric-compatible Liberation Sans.
    if [ ! -f "$WINEPREFIX/.kvs-fonts" ]; then
      kvs_wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v Arial /d 'Liberation Sans' /f >/dev/null 2>&1
      wineserver -w
      touch "$WINEPREFIX/.kvs-fonts"
    fi
    # Title-bar buttons are glyphs of Marlett, which Wine ships with its
    # fonts but does not find in a new prefix: without it the close box
    # reads "r".
    local marlett=/usr/share/wine/fonts/marlett.ttf
    if [ -f "$marlett" ] && [ ! -f "$WINEPREFIX/drive_c/windows/Fonts/marlett.ttf" ]; then
      mkdir -p "$WINEPREFIX/drive_c/windows/Fonts"
      cp "$marlett" "$WINEPREFIX/drive_c/windows/Fonts/"
    fi
  ) 9>"$WINEPREFIX.lock"
}

# Scenarios answer file dialogs with paths under C:\TEMP: nothing may be there
# already, or a save dialog asks whether to replace it.
kvs_clean_temp() {
  mkdir -p "$WINEPREFIX/drive_c/TEMP"
  find "$WINEPREFIX/drive_c/TEMP" -mindepth 1 -delete
}
