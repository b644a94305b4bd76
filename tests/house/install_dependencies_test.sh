#!/usr/bin/env bash
# The install script names packages, refuses what it does not know, and does nothing where all is there.
set -euo pipefail
script="$(dirname "$0")/../../scripts/install-dependencies.sh"

fail() {
  echo "$1" >&2
  exit 1
}

listed=$("$script" --list build tests)
for package in g++ cmake ninja-build libicu-dev libsqlite3-dev libgtest-dev doxygen; do
  grep -qxF "$package" <<<"$listed" || fail "does not name $package"
done
[[ $("$script" --list reference) == *doxygen* ]] || fail 'does not name what the reference needs'
if "$script" nonsense 2>/dev/null; then fail 'took a group that it does not have'; fi
if "$script" 2>/dev/null; then fail 'took no group at all'; fi

# Where packages are missing and nobody is root, it says what to install and fails; it never waits for a password.
tools=$(mktemp -d)
trap 'rm -rf "$tools"' EXIT
for tool in bash dirname grep cat env; do ln -s "$(command -v "$tool")" "$tools/$tool"; done
printf '#!/bin/sh\nexit 1\n' >"$tools/dpkg-query"
printf '#!/bin/sh\necho 1000\n' >"$tools/id"
printf '#!/bin/sh\necho called >>"%s/apt-get.log"\n' "$tools" >"$tools/apt-get"
chmod +x "$tools/dpkg-query" "$tools/id" "$tools/apt-get"
if message=$(PATH="$tools" bash "$script" build 2>&1); then fail 'succeeded although nothing is installed'; fi
grep -q 'apt-get install .*libicu-dev' <<<"$message" || fail "does not say what to install: $message"
[[ ! -e $tools/apt-get.log ]] || fail 'called apt-get although it is not root'
