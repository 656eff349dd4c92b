#!/usr/bin/env bash
# Builds everything and runs every test: a release build (with the installed-package
# check), then the same tests under AddressSanitizer and UndefinedBehaviorSanitizer.
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
