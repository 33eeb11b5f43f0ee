#!/usr/bin/env bash
# The main job: replays the example scenarios and prints their transcripts.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/setup.sh"
"$root/scripts/build.sh" native >/dev/null
for scenario in "$root"/examples/*.scn; do
  echo "### $(basename "$scenario")"
  "$root/build/native/tools/kvsdlg" run "$scenario"
done
