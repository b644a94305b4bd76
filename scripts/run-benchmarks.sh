#!/usr/bin/env bash
# Runs every benchmark program of a build folder, one after the other; results also go to BUILD-FOLDER/results/*.json.
#
#   scripts/run-benchmarks.sh BUILD-FOLDER [FILTER]
set -euo pipefail

build=$1
filter=${2:-.}
mkdir -p "$build/results"
mapfile -t programs < <(find "$build/benchmarks" -type f -name 'bench_*' -perm -u+x | sort)
if [[ ${#programs[@]} -eq 0 ]]; then
  echo "run-benchmarks: no benchmark below $build/benchmarks" >&2
  exit 1
fi
for program in "${programs[@]}"; do
  name=$(basename "$program")
  printf '\n== %s ==\n' "$name"
  "$program" --benchmark_filter="$filter" --benchmark_out="$build/results/$name.json" --benchmark_out_format=json
done
