#!/bin/sh
# Builds the example host, kernel and graph module from the release
# archive's files alone, with MinGW. Run it in the archive's top folder:
#   sh example/build.sh x86_64      (64-bit archive)
#   sh example/build.sh i686        (32-bit archive)
# It leaves KORVAN.exe, kernkvs.dll and kvgraph.dll beside kvs_dlg.dll.
set -eu
T=${1:-x86_64}-w64-mingw32
# BEGIN build lines (docs: "Building the example")
$T-gcc -O2 -Iinclude -shared -o kernkvs.dll example/kernel.c host/kernkvs.def -Wl,--kill-at
$T-gcc -O2 -Iinclude -shared -o kvgraph.dll example/kvgraph.c host/kvgraph.def -Wl,--kill-at -lgdi32
$T-dlltool -k -d host/kernkvs.def -l libkernkvs.a
$T-gcc -O2 -Iinclude -o KORVAN.exe example/host.c host/korvan.def -Wl,--kill-at libkernkvs.a lib/mingw/libkvs_dlg.a
# END build lines
