#!/bin/sh
# Fetches three public notebooks, each as it was at one commit, for `count_notebook.py` and `tarn import`; they are not
# ours to distribute. Each lands in a folder of its own:
#   obsidianmd+obsidian-help    the pages of the release notes and of the sandbox, and those at the root
#   rust-lang+book              (MIT, Apache 2.0)
#   tldr-pages+tldr             (CC BY 4.0)
#
#   tests/notebooks/fetch_notebooks.sh FOLDER
set -eu

folder=${1:?"usage: fetch_notebooks.sh FOLDER"}
mkdir -p "$folder"

# fetch OWNER/NAME COMMIT [PATTERN...]    with patterns, only the files that they match
fetch() {
  repository=$1
  commit=$2
  shift 2
  target=$folder/$(printf '%s' "$repository" | tr / +)
  [ ! -e "$target" ] || [ -d "$target/.git" ] || { echo "fetch_notebooks: $target is in the way" >&2; exit 1; }
  git init --quiet "$target"
  if ! git -C "$target" cat-file -e "$commit^{commit}" 2>/dev/null; then
    git -C "$target" fetch --quiet --depth 1 "https://github.com/$repository.git" "$commit"
  fi
  [ $# -eq 0 ] || git -C "$target" sparse-checkout set --no-cone "$@"
  git -C "$target" -c core.quotePath=off checkout --quiet --force --detach "$commit"
  test "$(git -C "$target" rev-parse HEAD)" = "$commit"
}

fetch obsidianmd/obsidian-help fa179e91e86eaff5859226cc045c81000d64e3cd \
  '/README.md' '/AGENTS.md' '/Release notes/' '/Sandbox/'
fetch rust-lang/book 917544888a55e4da7109bdba8c88c893c0da70f4
fetch tldr-pages/tldr 08e345f42639f67d99282813247ac670dc6e87cb
