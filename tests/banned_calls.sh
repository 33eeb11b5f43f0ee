#!/usr/bin/env bash
# Fails when the code calls one of the unbounded C string routines the
# project does without: every copy into a buffer states its bound.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
banned='(^|[^A-Za-z0-9_.>:])(strcpy|strcat|sprintf|vsprintf|wsprintf[AW]?|lstrcpy[AW]?|lstrcat[AW]?|gets)[[:space:]]*\('
found="$(cd "$root" && grep -rnE "$banned" --include='*.cpp' --include='*.h' --include='*.c' \
          core data graph stats families win32 include headless standin tools examples tests || true)"
if [ -n "$found" ]; then
  echo "banned calls:"
  echo "$found"
  echo "banned calls: 0 passed, 1 failed"
  exit 1
fi
echo "banned calls: 1 passed, 0 failed"
