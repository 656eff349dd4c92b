#!/usr/bin/env bash
# Builds the libFuzzer targets with clang, AddressSanitizer and UndefinedBehaviorSanitizer
# in build-fuzz/, then runs each for SECONDS (default 60), all at once, and fails on any
# finding. Crashing inputs are kept in build-fuzz/findings/; the corpora grow in
# build-fuzz/corpus/ from the seeds in fuzz/corpus/.
#   scripts/fuzz.sh [SECONDS] [TARGET...]     targets: parse_fuzzer format_fuzzer custom_string_fuzzer
#   scripts/fuzz.sh build [TARGET...]         only builds them
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh

seconds=${1:-60}
shift || true
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(parse_fuzzer format_fuzzer custom_string_fuzzer)

cmake -S . -B build-fuzz -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DKXUNITS_FUZZ=ON -DKXUNITS_SANITIZE=ON -DKXUNITS_BUILD_TESTS=OFF -DKXUNITS_BUILD_BENCHMARKS=OFF >/dev/null
cmake --build build-fuzz -j "$(nproc)" --target "${targets[@]}"
[ "$seconds" != build ] || exit 0

mkdir -p build-fuzz/findings build-fuzz/logs
pids=()
for t in "${targets[@]}"; do
  mkdir -p "build-fuzz/corpus/$t"
  # New inputs go to the first folder; the seeds are read only.
  ASAN_OPTIONS=detect_leaks=1:abort_on_error=1:allocator_may_return_null=1 \
  UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
    "build-fuzz/bin/$t" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=4096 \
      -dict=fuzz/units.dict -artifact_prefix="build-fuzz/findings/$t-" -print_final_stats=1 \
      "build-fuzz/corpus/$t" "fuzz/corpus/$t" >"build-fuzz/logs/$t.log" 2>&1 &
  pids+=($!)
done

failed=0
for i in "${!targets[@]}"; do
  t=${targets[$i]}
  if wait "${pids[$i]}"; then
    runs=$(grep -o 'stat::number_of_executed_units: *[0-9]*' "build-fuzz/logs/$t.log" | grep -o '[0-9]*$' || echo "?")
    echo "$t: clean, $runs runs in ${seconds}s"
  else
    failed=1
    echo "$t: FOUND A PROBLEM (build-fuzz/logs/$t.log):"
    grep -E -A40 '==ERROR|runtime error|check failed|deadly signal|Test unit written' "build-fuzz/logs/$t.log" | head -80 || tail -40 "build-fuzz/logs/$t.log"
  fi
done
exit $failed
