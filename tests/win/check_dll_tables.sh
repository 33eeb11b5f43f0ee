#!/usr/bin/env bash
# Checks the built kvs_dlg.dll of each architecture given: the export table
# holds exactly the names of kvs_dlg.h, undecorated; every imported module is
# one the library may use and every name it imports from the host, the kernel
# or the graphics module is undecorated and declared in kvs_imports.h; the
# import .def files and the shipped import library agree with the headers
# (a throwaway DLL calling everything must link).
# Usage: check_dll_tables.sh BUILD_ROOT ARCH...   (ARCH: i686, x86_64)
set -euo pipefail
root="$(cd "$(dirname "$0")/../.." && pwd)"
build_root="${1:?usage: check_dll_tables.sh BUILD_ROOT ARCH...}"
shift
[ $# -gt 0 ] || set -- i686 x86_64

expected_exports="AttachImpExpOptions AttachSaveAsOptions ClearSamplingDialog ColorPickerDialogEx GetDialogList GetLibraryVersion
DeleteSymbolBitmapsEx DoImpExpOptionsDlg DoSaveDataOptionsDlg LoadSymbolBitmapsEx ProcessDlgProc
ReinitDialogs SetDlgSortList StartDialog StartSamplingDialog TRAXCallDialog UpdateSamplingDialog
bPortrait fPageHeight fPageWidth lfDefKvgFont lfKvgFont nGlbGraphCounter"
# msvcrt.dll is the C library of the mingw-w64 runtime; everything else of
# the C++ runtime is linked in statically.
allowed_modules="user32.dll gdi32.dll comdlg32.dll kernel32.dll msvcrt.dll korvan.exe kernkvs.dll kvgraph.dll"
partner_modules="korvan.exe kernkvs.dll kvgraph.dll"
declared_imports="$(sed -n 's/^[^(]*KVS_CALL \**\([A-Za-z_0-9]*\)(.*/\1/p' "$root/include/kvs_imports.h" | sort -u)"

failures=0
fail() { echo "FAIL [$arch]: $*" >&2; failures=$((failures + 1)); }

# Export names, one a line, from objdump -p.
exports_of() {
  "$objdump" -p "$1" | awk '/^\[Ordinal\/Name Pointer\] Table/ {on = 1; next} on && /^$/ {on = 0} on {print $NF}'
}

# "module<TAB>name" for every imported function, module in lower case.
imports_of() {
  "$objdump" -p "$1" | awk '
    /^\tDLL Name: / {module = tolower($3); next}
    /^\tvma: / {next}
    module != "" && /^\t[0-9a-f]+[ \t]+[0-9]+[ \t]+[^ \t]/ {print module "\t" $3}
    /^$/ {module = ""}'
}

for arch in "$@"; do
  failures_before=$failures
  objdump="$arch-w64-mingw32-objdump"
  cxx="$arch-w64-mingw32-g++-posix"
  dist="$build_root/$arch/dist/$arch"
  dll="$dist/kvs_dlg.dll"
  if [ ! -f "$dll" ]; then fail "no $dll"; continue; fi

  exports="$(exports_of "$dll" | sort)"
  while read -r name; do
    case "$name" in *@*) fail "decorated export $name" ;; esac
  done <<<"$exports"
  missing="$(comm -23 <(tr ' \n' '\n\n' <<<"$expected_exports" | sed '/^$/d' | sort) <(echo "$exports"))"
  unexpected="$(comm -13 <(tr ' \n' '\n\n' <<<"$expected_exports" | sed '/^$/d' | sort) <(echo "$exports"))"
  [ -z "$missing" ] || fail "missing exports: $(echo $missing)"
  [ -z "$unexpected" ] || fail "unexpected exports: $(echo $unexpected)"

  modules="$("$objdump" -p "$dll" | sed -n 's/^\tDLL Name: //p' | tr 'A-Z' 'a-z' | sort -u)"
  for module in $modules; do
    grep -qw -- "$module" <<<"$allowed_modules" || fail "imports from $module"
  done

  while IFS=$'\t' read -r module name; do
    grep -qw -- "$module" <<<"$partner_modules" || continue
    case "$name" in *@*) fail "decorated import $name from $module"; continue ;; esac
    grep -qx -- "$name" <<<"$declared_imports" || fail "$name from $module is not in kvs_imports.h"
  done < <(imports_of "$dll")

  scratch="$(mktemp -d)"
  if ! "$cxx" -std=c++20 -shared -I"$root" "$root/tests/win/link_check.cpp" -o "$scratch/link_check.dll" \
        "$dist/libkvs_dlg.a" "$build_root/$arch/win32/libkorvan.a" "$build_root/$arch/win32/libkernkvs.a" \
        "$build_root/$arch/win32/libkvgraph.a" 2>"$scratch/errors"; then
    fail "link check: $(grep -o "undefined reference to [^ ]*" "$scratch/errors" | sort -u | tr '\n' ' ')"
  else
    # What the caller of the shipped import library ends up importing.
    while IFS=$'\t' read -r module name; do
      case "$name" in *@*) fail "import library leads to decorated $name in $module" ;; esac
    done < <(imports_of "$scratch/link_check.dll")
  fi
  rm -rf "$scratch"
  [ "$failures" -gt "$failures_before" ] || echo "ok [$arch]: $(wc -l <<<"$exports") exports; imports from $(echo $modules)"
done

[ "$failures" -eq 0 ]
