#!/usr/bin/env bash
# Installs what a task needs from the distribution's packages; does nothing, and asks for nothing, when all is there.
#
#   scripts/install-dependencies.sh build            what the library and `tarn` need
#   scripts/install-dependencies.sh build tests      and what the tests need
#   scripts/install-dependencies.sh --list build     names the packages, installs nothing
#
# Exit codes: 0 all is there, 1 something could not be installed.
set -euo pipefail

declare -A packages=(
  [build]="g++ cmake ninja-build libicu-dev libsqlite3-dev nlohmann-json3-dev libfmt-dev libmd-dev libsodium-dev libcli11-dev
    libjpeg-dev libjpeg62-turbo-dev libpng-dev libwebp-dev libgif-dev libarchive-dev"
  [tests]="libgtest-dev libgmock-dev librapidcheck-dev libcmark-dev python3 python3-markdown-it sqlite3 strace tzdata zstd clang-format
    doxygen git npm"
  [bench]="libbenchmark-dev libcmark-dev ripgrep npm python3 zstd"
  [format]="clang-format"
  [tidy]="clang clang-tidy clang-tools python3"
  [fuzz]="clang"
  [coverage]="gcovr"
  [reference]="doxygen python3"
  [ci]="locales util-linux"
)
# Some tools may stand on a machine without being a package of it.
declare -A command_of_package=(
  [cmake]=cmake [ninja-build]=ninja [python3]=python3 [git]=git [clang-format]=clang-format [clang]=clang++
  [clang-tidy]=clang-tidy [gcovr]=gcovr [g++]=g++ [strace]=strace [sqlite3]=sqlite3 [npm]=npm [ripgrep]=rg
  [doxygen]=doxygen [zstd]=zstd
)

fail() {
  printf 'install-dependencies: %s\n' "$*" >&2
  exit 1
}

is_installed() {
  dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null | grep -qx installed && return 0
  local command=${command_of_package[$1]:-}
  [[ -n $command ]] && command -v "$command" >/dev/null
}

list_only=no
if [[ ${1:-} == --list ]]; then
  list_only=yes
  shift
fi
[[ $# -gt 0 ]] || fail "say what for: ${!packages[*]}"

missing=()
for group in "$@"; do
  [[ -n ${packages[$group]:-} ]] || fail "no group of packages is called '$group'; there are: ${!packages[*]}"
  for package in ${packages[$group]}; do
    if [[ $list_only == yes ]]; then
      printf '%s\n' "$package"
    elif [[ " ${missing[*]:-} " != *" $package "* ]] && ! is_installed "$package"; then
      missing+=("$package")
    fi
  done
done
[[ ${#missing[@]} -gt 0 ]] || exit 0

command -v apt-get >/dev/null || fail "this system has no apt-get; install these, or what they are called here: ${missing[*]}"
as_root=()
if [[ $(id -u) -ne 0 ]]; then
  if command -v sudo >/dev/null && sudo -n true 2>/dev/null; then
    as_root=(sudo -n)
  else
    fail "these packages are missing, and only root can install them:
  sudo apt-get install ${missing[*]}"
  fi
fi

printf 'Installing: %s\n' "${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 apt-get -q -y -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=300)
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! { "${apt[@]}" update && "${apt[@]}" install --no-install-recommends "${missing[@]}"; } >"$log" 2>&1 </dev/null; then
  tail -n 20 "$log" >&2
  fail "apt-get could not install: ${missing[*]}"
fi
