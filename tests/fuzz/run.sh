#!/usr/bin/env bash
# Builds the fuzz configuration and runs both libFuzzer targets for SECONDS
# each (default 45): the scenario runner, seeded with the scenario suite and
# a dictionary of statements, control names and labels, and the composers.
# The corpora grow in build/fuzz-corpus; a crash leaves its input in
# build/fuzz-findings and fails the run.
#
#   tests/fuzz/run.sh [SECONDS]
set -euo pipefail
root="$(cd "$(dirname "$0")/../.." && pwd)"
seconds="${1:-45}"
"$root/scripts/build.sh" fuzz
bin="$root/build/fuzz/tests/fuzz"
corpus="$root/build/fuzz-corpus"
findings="$root/build/fuzz-findings"
mkdir -p "$corpus/scenarios" "$corpus/composers" "$findings"
cp "$root"/tests/scenarios/*.scn "$root"/tests/scenarios/headless/*.scn "$corpus/scenarios/"
"$root/tests/fuzz/make_dictionary.sh" > "$root/build/fuzz/scenarios.dict"

run() {
  local target=$1; shift
  echo "== $target for $seconds s"
  local log="$findings/$target.log" status=0
  "$bin/$target" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=4096 \
    -artifact_prefix="$findings/$target-" -print_final_stats=1 "$@" > "$log" 2>&1 || status=$?
  grep -E '^(Done|stat::number_of_executed_units|==[0-9]+==ERROR|SUMMARY)' "$log" || true
  if [ "$status" -ne 0 ]; then
    echo "== $target failed ($status); its input is in $findings, the whole report in $log"
    grep -E '^ +#[0-9]+ ' "$log" | head -20 || true
  fi
  return "$status"
}
status=0
run fuzz_scenarios -max_len=8192 -dict="$root/build/fuzz/scenarios.dict" "$corpus/scenarios" || status=1
run fuzz_composers "$corpus/composers" || status=1
exit $status
