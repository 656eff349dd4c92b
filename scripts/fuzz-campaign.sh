#!/usr/bin/env bash
# A long fuzz campaign: RUNS executions of one target, shared among as many worker
# processes as the machine has cores, under AddressSanitizer and
# UndefinedBehaviorSanitizer. Fails on any finding; its input is kept in
# build-fuzz/findings/, the workers' logs in build-fuzz/campaign/.
#   scripts/fuzz-campaign.sh [TARGET] [RUNS]     defaults: parse_fuzzer 10000000
set -euo pipefail
cd "$(dirname "$0")/.."
target=${1:-parse_fuzzer}
runs=${2:-10000000}
workers=$(nproc)
./scripts/fuzz.sh build "$target"

mkdir -p build-fuzz/campaign build-fuzz/findings "build-fuzz/corpus/$target"
cd build-fuzz/campaign
rm -f fuzz-*.log
status=0
ASAN_OPTIONS=detect_leaks=1:abort_on_error=1:allocator_may_return_null=1 \
UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
  "../bin/$target" -jobs="$workers" -workers="$workers" -runs=$(( (runs + workers - 1) / workers )) \
    -timeout=10 -rss_limit_mb=4096 -dict=../../fuzz/units.dict -artifact_prefix="../findings/$target-" \
    -print_final_stats=1 "../corpus/$target" "../../fuzz/corpus/$target" || status=$?

total=0
for log in fuzz-*.log; do
  n=$(grep -o 'stat::number_of_executed_units: *[0-9]*' "$log" | grep -o '[0-9]*$' || echo 0)
  total=$((total + n))
  if grep -qE '==ERROR|runtime error|check failed|deadly signal' "$log"; then
    status=1
    echo "$target: FOUND A PROBLEM (build-fuzz/campaign/$log):"
    grep -E -A40 '==ERROR|runtime error|check failed|deadly signal' "$log" | head -60
  fi
done
echo "$target: $total executions in $workers workers, $([ $status -eq 0 ] && echo clean || echo 'NOT clean')"
exit $status
