#!/usr/bin/env bash
# Installs what building and testing need on a Debian machine, if missing.
set -euo pipefail

packages=(cmake ninja-build g++ ccache libgtest-dev googletest
          g++-mingw-w64-i686 g++-mingw-w64-x86-64 binutils-mingw-w64-i686 binutils-mingw-w64-x86-64
          wine wine64 fonts-wine xvfb x11-apps imagemagick fonts-liberation
          zip unzip clang lld llvm)

missing=()
for package in "${packages[@]}"; do
  dpkg -s "$package" >/dev/null 2>&1 || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "setup: installing ${missing[*]}"
  sudo_cmd=""
  [ "$(id -u)" -eq 0 ] || sudo_cmd="sudo"
  $sudo_cmd apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo_cmd apt-get install -y -qq "${missing[@]}" >/dev/null
fi
