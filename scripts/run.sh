#!/usr/bin/env bash
# The main job: builds the libraries and tools, then prints a summary of the unit
# catalogue (groups, unit and symbol counts, a few conversions).
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j "$(nproc)" >/dev/null
./build/bin/kxcatalogue
