#!/usr/bin/env bash
# Runs every benchmark program of a build folder, one after the other; results go to BUILD-FOLDER/results as well.
#
#   scripts/run-benchmarks.sh BUILD-FOLDER [FILTER]
#
# TARN_CORPUS names a folder of Markdown to measure with (scripts/fetch-benchmark-data.sh makes one). Without it, texts are
# made up, and what needs real ones is left out.
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
  case $name in
    # Whole stores, measured beside the machine's own work.
    bench_notes) "$program" 100000 ${TARN_CORPUS:+"$TARN_CORPUS"} | tee "$build/results/$name.txt" ;;
    bench_files) "$program" | tee "$build/results/$name.txt" ;;
    bench_migration) "$program" 10000 100000 | tee "$build/results/$name.txt" ;;
    bench_backup) "$program" 10000 | tee "$build/results/$name.txt" ;;
    bench_sync) "$program" | tee "$build/results/$name.txt" ;;
    bench_search) "$program" ${TARN_CORPUS:+"$TARN_CORPUS"} | tee "$build/results/$name.txt" ;;
    *) "$program" --benchmark_filter="$filter" --benchmark_out="$build/results/$name.json" --benchmark_out_format=json ;;
  esac
done
