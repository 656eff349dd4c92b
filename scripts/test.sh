#!/usr/bin/env bash
# Builds everything and runs every test: a release build (with the installed-package
# check), then the same tests under AddressSanitizer and UndefinedBehaviorSanitizer,
# then the thread stress test under ThreadSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh

jobs=$(nproc)
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build -j "$jobs"
ctest --test-dir build --output-on-failure -j "$jobs"

cmake -S . -B build-sanitize -DCMAKE_BUILD_TYPE=Debug -DKXUNITS_SANITIZE=ON -DKXUNITS_BUILD_BENCHMARKS=OFF
cmake --build build-sanitize -j "$jobs"
# The package check builds an outside program without the sanitizer runtime; it ran above.
ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1 \
  ctest --test-dir build-sanitize --output-on-failure -j "$jobs" -E '^package\.'

# ThreadSanitizer: only the library and the thread tests, which is all it can judge
# and keeps CI short. Any report fails the test (halt_on_error); the suppressions
# cover Qt's uninstrumented internals only.
cmake -S . -B build-tsan -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKXUNITS_TSAN=ON -DKXUNITS_BUILD_BENCHMARKS=OFF
cmake --build build-tsan -j "$jobs" --target kxcoreunitsui_thread_tests
TSAN_OPTIONS="halt_on_error=1 second_deadlock_stack=1 suppressions=$PWD/tests/Threads/tsan.supp" \
  ctest --test-dir build-tsan --output-on-failure -j "$jobs" -R '^FormatterThreads\.'
