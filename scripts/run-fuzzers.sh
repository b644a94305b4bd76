#!/usr/bin/env bash
# Runs every fuzzer of a build folder for a while. What they learn stays in BUILD-FOLDER/corpus, what breaks them in
# BUILD-FOLDER/findings. Exit code 1 when one found something.
#
#   scripts/run-fuzzers.sh BUILD-FOLDER SECONDS-EACH
set -euo pipefail

build=$1
seconds=$2
mapfile -t fuzzers < <(find "$build" -type f -name 'fuzz_*' -perm -u+x | sort)
if [[ ${#fuzzers[@]} -eq 0 ]]; then
  echo "run-fuzzers: no fuzzer below $build" >&2
  exit 1
fi
mkdir -p "$build/findings"
failed=()
for fuzzer in "${fuzzers[@]}"; do
  name=$(basename "$fuzzer")
  mkdir -p "$build/corpus/$name"
  printf '\n== %s, %s s ==\n' "$name" "$seconds"
  "$fuzzer" "$build/corpus/$name" -max_total_time="$seconds" -print_final_stats=1 -timeout=10 \
    -artifact_prefix="$build/findings/$name-" 2>&1 | tail -n 15 || failed+=("$name")
done
if [[ ${#failed[@]} -gt 0 ]]; then
  printf '\nThese found something (inputs in %s/findings): %s\n' "$build" "${failed[*]}" >&2
  exit 1
fi
