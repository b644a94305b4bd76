#!/usr/bin/env bash
# Configures a preset: quietly when all goes well, with CMake's whole output when not.
#
#   scripts/configure.sh PRESET [CMAKE-ARGUMENT...]
set -euo pipefail
cd "$(dirname "$0")/.."

preset=$1
shift
mkdir -p "build/$preset"
log="build/$preset/configure.log"
if ! cmake --preset "$preset" "$@" >"$log" 2>&1; then
  cat "$log" >&2
  exit 1
fi
printf 'Configured build/%s (log: %s)\n' "$preset" "$log"
