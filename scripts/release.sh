#!/usr/bin/env bash
# Builds both Windows architectures and writes the release archives
#   build/release/kvs_dlg-VERSION-win32.zip   (i686, the product)
#   build/release/kvs_dlg-VERSION-win64.zip   (x86_64)
# each holding the DLL, its .def, a MinGW and an MSVC import library, the
# public headers, the .def files of what the host, the kernel and the graph
# module must export, the integration guide, the changelog and the list of
# served menu commands (written from the library's own rows).
#   --check   also checks the archives: their contents, the MSVC import
#             library's symbols, and a link against it with lld-link.
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
"$root/build/native/tools/served_dialogs" >"$served"

for arch in i686 x86_64; do
  case "$arch" in
    i686)   name=win32; machine=i386;         defs="$root/win32/imports" ;;  # decorated: Name@bytes
    x86_64) name=win64; machine=i386:x86-64;  defs="$root/build/x86_64/win32/def/plain" ;;
  esac
  dist="$root/build/$arch/dist/$arch"
  stage="$out/kvs_dlg-$version-$name"
  mkdir -p "$stage/include" "$stage/lib/mingw" "$stage/lib/msvc" "$stage/host"
  cp "$dist/kvs_dlg.dll" "$dist/kvs_dlg.def" "$stage/"
  cp "$dist/libkvs_dlg.a" "$stage/lib/mingw/"
  cp "$dist/include/"*.h "$stage/include/"
  # The MSVC import library: the symbols a __stdcall caller looks for
  # (_StartDialog@12 on 32-bit), bound to the DLL's plain export names (-k).
  if [ "$arch" = i686 ]; then export_def="$root/win32/kvs_dlg.def"; else export_def="$dist/kvs_dlg.def"; fi
  llvm-dlltool -m "$machine" -k -d "$export_def" -D kvs_dlg.dll -l "$stage/lib/msvc/kvs_dlg.lib"
  for module in korvan kernkvs kvgraph; do cp "$defs/$module.def" "$stage/host/$module.def"; done
  cp "$root/docs/integration.md" "$root/CHANGELOG.md" "$served" "$stage/"
  (cd "$out" && rm -f "kvs_dlg-$version-$name.zip" && zip -qr "kvs_dlg-$version-$name.zip" "kvs_dlg-$version-$name")
  echo "release: $out/kvs_dlg-$version-$name.zip"
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
              integration.md CHANGELOG.md served-commands.md; do
    grep -qx "kvs_dlg-$version-$name/$file" <<<"$listing" || fail "$name lacks $file"
  done
done
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
echo "release check: 2 passed, 0 failed"
