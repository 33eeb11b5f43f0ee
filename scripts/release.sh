#!/usr/bin/env bash
# Builds both Windows architectures and writes the release archives
#   build/release/kvs_dlg-VERSION-win32.zip   (i686, the product)
#   build/release/kvs_dlg-VERSION-win64.zip   (x86_64)
# each holding the DLL without its symbols, its .def, a MinGW and an MSVC
# import library, the public headers, the .def files of what the host, the
# kernel and the graph module must export, the example host with its build
# script, the integration guide, the changelog, the list of served menu
# commands and the control ids of their dialogs (both written from the
# library's own rows and templates); and beside each
#   build/release/kvs_dlg-VERSION-win32-symbols.zip   the DLL's symbols
#   --check   also checks the archives: their contents, the stripped DLL and
#             its debug link, the version against the changelog, the guide's
#             import list against the DLL, the MSVC import library, and a host
#             built from each archive alone (run under Wine on x86_64).
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
check=0
[ "${1:-}" = "--check" ] && check=1
"$root/scripts/setup.sh"

version="$(sed -n 's/^project(kvs_dlg VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt")"
[ -n "$version" ] || { echo "release: no version in CMakeLists.txt" >&2; exit 2; }
for config in native i686 x86_64; do "$root/scripts/build.sh" "$config" >/dev/null; done

out="$root/build/release"
rm -rf "$out"
mkdir -p "$out"
served="$out/served-commands.md"
controls="$out/control-ids.md"
"$root/build/native/tools/served_dialogs" >"$served"
"$root/build/native/tools/served_dialogs" --controls >"$controls"

for arch in i686 x86_64; do
  case "$arch" in
    i686)   name=win32; machine=i386;         defs="$root/win32/imports" ;;  # decorated: Name@bytes
    x86_64) name=win64; machine=i386:x86-64;  defs="$root/build/x86_64/win32/def/plain" ;;
  esac
  dist="$root/build/$arch/dist/$arch"
  stage="$out/kvs_dlg-$version-$name"
  mkdir -p "$stage/include" "$stage/lib/mingw" "$stage/lib/msvc" "$stage/host" "$stage/example"
  cp "$dist/kvs_dlg.dll" "$dist/kvs_dlg.def" "$stage/"
  cp "$dist/libkvs_dlg.a" "$stage/lib/mingw/"
  cp "$dist/include/"*.h "$stage/include/"
  # The MSVC import library: the symbols a __stdcall caller looks for
  # (_StartDialog@12 on 32-bit), bound to the DLL's plain export names (-k).
  if [ "$arch" = i686 ]; then export_def="$root/win32/kvs_dlg.def"; else export_def="$dist/kvs_dlg.def"; fi
  llvm-dlltool -m "$machine" -k -d "$export_def" -D kvs_dlg.dll -l "$stage/lib/msvc/kvs_dlg.lib"
  for module in korvan kernkvs kvgraph; do cp "$defs/$module.def" "$stage/host/$module.def"; done
  cp "$root/examples/host_c/"{host.c,kernel.c,kvgraph.c,build.sh} "$stage/example/"
  cp "$root/docs/integration.md" "$root/CHANGELOG.md" "$served" "$controls" "$stage/"
  symbols="$out/kvs_dlg-$version-$name-symbols"
  mkdir -p "$symbols"
  cp "$dist/kvs_dlg.dll.debug" "$symbols/"
  (cd "$out" && zip -qr "kvs_dlg-$version-$name.zip" "kvs_dlg-$version-$name" &&
     zip -qr "kvs_dlg-$version-$name-symbols.zip" "kvs_dlg-$version-$name-symbols")
  echo "release: $out/kvs_dlg-$version-$name.zip and -symbols.zip"
done

[ "$check" = 1 ] || exit 0

# --- Checks -----------------------------------------------------------------
fail() { echo "release check: $*" >&2; exit 1; }
scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT
for name in win32 win64; do
  zip="$out/kvs_dlg-$version-$name.zip"
  listing="$(unzip -Z1 "$zip")"
  for file in kvs_dlg.dll kvs_dlg.def lib/mingw/libkvs_dlg.a lib/msvc/kvs_dlg.lib include/kvs_dlg.h \
              include/kvs_imports.h include/kvs_platform.h host/korvan.def host/kernkvs.def host/kvgraph.def \
              example/host.c example/kernel.c example/kvgraph.c example/build.sh \
              integration.md CHANGELOG.md served-commands.md control-ids.md; do
    grep -qx "kvs_dlg-$version-$name/$file" <<<"$listing" || fail "$name lacks $file"
  done
  unzip -Z1 "$out/kvs_dlg-$version-$name-symbols.zip" | grep -qx "kvs_dlg-$version-$name-symbols/kvs_dlg.dll.debug" ||
    fail "$name: the symbols archive lacks kvs_dlg.dll.debug"
done

# The shipped DLL: no debug sections and no symbol table, a debug link to
# kvs_dlg.dll.debug whose checksum is that file's, and that file holding the
# debug sections.
for arch in i686 x86_64; do
  case "$arch" in i686) name=win32 ;; x86_64) name=win64 ;; esac
  objdump="$arch-w64-mingw32-objdump"
  dll="$out/kvs_dlg-$version-$name/kvs_dlg.dll"
  debug="$out/kvs_dlg-$version-$name-symbols/kvs_dlg.dll.debug"
  sections="$("$objdump" -h "$dll" | awk '$1 ~ /^[0-9]+$/ {print $2}')"
  if grep -q '^\.debug' <<<"$sections"; then fail "$name: the DLL keeps debug sections"; fi
  "$objdump" -t "$dll" | grep -q '^\[' && fail "$name: the DLL keeps its symbol table"
  grep -qx '.gnu_debuglink' <<<"$sections" || fail "$name: the DLL has no debug link"
  "$objdump" -h "$debug" | awk '$1 ~ /^[0-9]+$/ {print $2}' | grep -q '^\.debug_info$' ||
    fail "$name: kvs_dlg.dll.debug holds no debug information"
  "$arch-w64-mingw32-objcopy" --dump-section .gnu_debuglink="$scratch/link-$name" "$dll" "$scratch/copy-$name.dll"
  python3 - "$scratch/link-$name" "$debug" <<'PY' || fail "$name: the debug link does not match kvs_dlg.dll.debug"
import sys, zlib
link = open(sys.argv[1], "rb").read()
name, rest = link.split(b"\0", 1)
crc = int.from_bytes(link[(len(name) + 4) // 4 * 4:][:4], "little")
data = open(sys.argv[2], "rb").read()
sys.exit(0 if name == b"kvs_dlg.dll.debug" and crc == zlib.crc32(data) else 1)
PY
done

# The version in the DLL's version resource has a dated entry in the changelog.
for name in win32 win64; do
  dll="$out/kvs_dlg-$version-$name/kvs_dlg.dll"
  resource="$(strings -el "$dll" | grep -A1 -x FileVersion | tail -1)"
  [ "$resource" = "$version" ] || fail "$name: the version resource says '$resource', the project $version"
  grep -Eq "^## \[$(sed 's/\./\\./g' <<<"$version")\] - [0-9]{4}-[0-9]{2}-[0-9]{2}\$" "$root/CHANGELOG.md" ||
    fail "CHANGELOG.md has no dated entry for $version"
done

# The guide lists exactly what the DLL imports from the host, the kernel and
# the graph module ("What the library binds at load").
guide_imports() {
  awk '/^### What the library binds at load/ {on = 1; next} on && /^#/ {on = 0} on' "$root/docs/integration.md" |
    awk -F'|' '/^\| *(KORVAN\.exe|kernkvs\.dll|kvgraph\.dll) *\|/ {
      module = tolower($2); gsub(/ /, "", module)
      n = split($3, names, "`"); for (i = 2; i <= n; i += 2) print module "\t" names[i] }' | sort
}
for arch in i686 x86_64; do
  case "$arch" in i686) name=win32 ;; x86_64) name=win64 ;; esac
  actual="$("$arch-w64-mingw32-objdump" -p "$out/kvs_dlg-$version-$name/kvs_dlg.dll" | awk '
    /^\tDLL Name: / {module = tolower($3); next}
    /^\tvma: / {next}
    module ~ /^(korvan\.exe|kernkvs\.dll|kvgraph\.dll)$/ && /^\t[0-9a-f]+[ \t]+[0-9]+[ \t]+[^ \t]/ {print module "\t" $3}
    /^$/ {module = ""}' | sort)"
  if [ "$actual" != "$(guide_imports)" ]; then
    diff <(guide_imports) <(echo "$actual") >&2 || true
    fail "$name: docs/integration.md lists other imports than the DLL has (< guide, > DLL)"
  fi
done

# The guide prints the example's build lines as example/build.sh runs them.
build_lines() { sed -n '/^# BEGIN build lines/,/^# END build lines/p' "$root/examples/host_c/build.sh" | sed '1d;$d'; }
guide_lines() { awk '/^```sh build-lines/ {on = 1; next} on && /^```/ {on = 0} on' "$root/docs/integration.md" | grep -v '^T='; }
[ "$(build_lines)" = "$(guide_lines)" ] || fail "docs/integration.md does not print example/build.sh's build lines"
# 32-bit: every function export under its decorated name and its import thunk.
lib32="$out/kvs_dlg-$version-win32/lib/msvc/kvs_dlg.lib"
symbols="$(llvm-nm "$lib32" 2>/dev/null)"
for decorated in _StartDialog@12 _ReinitDialogs@4 _GetLibraryVersion@8 _GetDialogList@8 _AttachSaveAsOptions@4; do
  grep -q " T $decorated\$" <<<"$symbols" || fail "win32 MSVC import library lacks $decorated"
  grep -q " __imp_$decorated\$" <<<"$symbols" || fail "win32 MSVC import library lacks __imp_$decorated"
done
# A C caller built for the MSVC target links against both libraries.
for arch in i686 x86_64; do
  case "$arch" in i686) name=win32 ;; x86_64) name=win64 ;; esac
  stage="$out/kvs_dlg-$version-$name"
  clang --target="$arch-pc-windows-msvc" -ffreestanding -fno-builtin -c -I"$root" \
        "$root/tests/win/msvc_link_check.c" -o "$scratch/check-$arch.obj"
  entry=entry
  [ "$arch" = i686 ] && entry=entry@0
  lld-link -nologo -entry:"$entry" -subsystem:console -nodefaultlib -out:"$scratch/check-$arch.exe" \
           "$scratch/check-$arch.obj" "$stage/lib/msvc/kvs_dlg.lib" >"$scratch/link-$arch.txt" 2>&1 ||
    { cat "$scratch/link-$arch.txt" >&2; fail "$name: a C caller does not link against the MSVC import library"; }
done

# A host built from each archive's files alone.
for arch in i686 x86_64; do
  case "$arch" in i686) name=win32 ;; x86_64) name=win64 ;; esac
  "$root/tests/release/host_from_archive.sh" "$out/kvs_dlg-$version-$name.zip" "$arch" || fail "$name: no working host from the archive"
done
echo "release check: 7 passed, 0 failed"
