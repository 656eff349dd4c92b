#!/usr/bin/env bash
# Installs every Debian package the build, the tests (with a font for the widgets drawn
# offscreen), the benchmarks (with the peers they are compared against: ICU, UDUNITS-2),
# the fuzz targets (clang with libFuzzer) and the translation generator's check (CLDR
# locale data) need.
# Idempotent: asks apt only for what is missing, and refreshes the package lists only then.
set -euo pipefail

packages=(
  build-essential cmake python3
  qt6-base-dev qt6-l10n-tools
  fonts-dejavu-core
  libgtest-dev libgmock-dev libbenchmark-dev
  libicu-dev libudunits2-dev
  clang libclang-rt-14-dev
  unicode-cldr-core
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
echo "Installing: ${missing[*]}"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
