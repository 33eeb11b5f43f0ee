#!/usr/bin/env bash
# Configures and builds one configuration: native, native-release,
# native-sanitize, fuzz (clang's libFuzzer targets), i686 or x86_64.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
config="${1:-native}"
build="$root/build/$config"
case "$config" in
  native)          args=(-DCMAKE_BUILD_TYPE=Debug) ;;
  native-release)  args=(-DCMAKE_BUILD_TYPE=Release) ;;
  native-sanitize) args=(-DCMAKE_BUILD_TYPE=Debug -DKVS_SANITIZE=ON) ;;
  fuzz)            args=(-DCMAKE_BUILD_TYPE=RelWithDebInfo -DKVS_FUZZ=ON -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++) ;;
  i686|x86_64)     args=(-DCMAKE_BUILD_TYPE=Release "-DCMAKE_TOOLCHAIN_FILE=$root/cmake/toolchain-$config-w64-mingw32.cmake") ;;
  *) echo "build.sh: unknown configuration $config" >&2; exit 2 ;;
esac
cmake -S "$root" -B "$build" -G Ninja "${args[@]}" >/dev/null
cmake --build "$build" -- -j2
