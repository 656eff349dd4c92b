#!/usr/bin/env bash
# The main job: builds the libraries and tools, then shows kxunits at work on real
# inputs: the shipped locales; formatting, reading and converting quantities in English,
# German and French; a typing mistake; the repl answering piped lines; the converter
# window writing its rows and drawing itself.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j "$(nproc)" >/dev/null

kxunits=./build/bin/kxunits
# The environment's locale must not change the demo.
export LC_ALL=C LANG=C

# Prints an argument as it would be typed into a shell.
quote() {
  local s=$1
  if [[ $s =~ ^[A-Za-z0-9_.,/+=-]+$ ]]; then printf '%s' "$s"
  elif [[ $s != *\'* ]]; then printf "'%s'" "$s"
  else
    s=${s//\\/\\\\}; s=${s//\"/\\\"}; s=${s//\$/\\\$}; s=${s//\`/\\\`}
    printf '"%s"' "$s"
  fi
}

# Shows the command, then runs it; a failing command shows its exit status.
show() {
  printf '$ kxunits'
  for arg in "$@"; do printf ' '; quote "$arg"; done
  printf '\n'
  local status=0
  "$kxunits" "$@" 2>&1 || status=$?
  [ "$status" -eq 0 ] || echo "(exit status $status)"
  echo
}

show locales
show format 1234.5 Meter --symbol m
show format 1234.5 Meter --symbol m --locale de-DE
show format 1.6891 Meter --symbol Inch_FootPrimeDashInchDoublePrime_Fraction --precision 4
show parse "5' 6 1/2\"" Foot
show parse '2,5 m' Foot --locale de-DE
show parse '10 kg/m³' KilogramPerCubicMeter
show convert '68 °F' DegreeCelsius --symbol degreeC --locale de-DE
show convert "5' 6\"" Meter --symbol m --locale fr-FR
show format 1234.5 Meter --symbol m --locale fr-FR
show format 1234.5 Kilometer --locale en-GB
show convert '2 imperial gallons' Liter --symbol L --locale en-GB
show convert '3 pies' Meter --symbol m --locale es-ES
show convert "45°30'15\"" Degree --symbol degree_OneChar --precision 4
show parse '5 ft 6 in' Foot
show convert '1.5 m + 20 cm' Meter --symbol m
show parse '5 fx' Foot
show parse '5 ft 6' Foot

echo "\$ printf '%s\n' \"5' 6 1/2\\\"\" '2.5 m' '3 yd' | kxunits repl Length"
printf '%s\n' "5' 6 1/2\"" '2.5 m' '3 yd' | "$kxunits" repl Length

# The converter window, without a display: its rows for typed text, and its picture.
echo
echo "\$ kxunits-gui --print --locale de-DE --symbol 0x802016 --text '1,7 m'"
QT_QPA_PLATFORM=offscreen ./build/bin/kxunits-gui --print --locale de-DE --symbol 0x802016 --text '1,7 m' 2>/dev/null
mkdir -p build/docs
QT_QPA_PLATFORM=offscreen ./build/bin/kxunits-gui --locale en-US --symbol 0x802016 --text '1.7 m' \
  --screenshot build/docs/converter.png 2>/dev/null
echo "(the window drawn into build/docs/converter.png)"
