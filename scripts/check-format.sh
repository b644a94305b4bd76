#!/usr/bin/env bash
# Fails when a source of the repository is not laid out by .clang-format, and names each that is not.
set -euo pipefail
cd "$(dirname "$0")/.."

if ! command -v clang-format >/dev/null; then
  echo 'check-format: clang-format is not installed (scripts/install-dependencies.sh format)' >&2
  exit 1
fi

list_sources() {
  if git rev-parse --is-inside-work-tree >/dev/null 2>&1; then
    git ls-files -z --cached -- '*.cpp' '*.h'
  else
    find . -path './build*' -prune -o \( -name '*.cpp' -o -name '*.h' \) -print0
  fi
}
existing=()
while IFS= read -r -d '' source; do
  [[ ! -f $source ]] || existing+=("$source")
done < <(list_sources)
if [[ ${#existing[@]} -eq 0 ]]; then
  echo 'check-format: found no sources' >&2
  exit 1
fi

# A few files for each process keep all cores busy.
if complaints=$(printf '%s\0' "${existing[@]}" | xargs -0 -n 20 -P "$(nproc)" clang-format --dry-run --Werror 2>&1); then
  printf 'All %d sources are laid out by .clang-format.\n' "${#existing[@]}"
  exit 0
fi
grep 'error:' <<<"$complaints" | cut -d: -f1 | sort | uniq -c | sort -rn || printf '%s\n' "$complaints"
echo 'check-format: these sources are not laid out by .clang-format; run `make format`' >&2
exit 1
