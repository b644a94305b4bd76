#!/usr/bin/env bash
# Imports a folder of notes into a new store and shows what `tarn` can do with them.
#
#   scripts/demo.sh BUILD-FOLDER DEMO-FOLDER [NOTES-FOLDER]
#
# The store is made afresh in DEMO-FOLDER and stays there afterwards. NOTES-FOLDER is only read.
set -euo pipefail

fail() {
  printf 'demo: %s\n' "$*" >&2
  exit 1
}

repository=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "$1" && pwd)
mkdir -p "$2"
demo=$(cd "$2" && pwd)
notes=${3:-}

tarn=$(find "$build" -type f -name tarn -perm -u+x -print -quit)
[[ -n $tarn ]] || fail "no program 'tarn' below $build; build it first"

word=garden
tag=work/acme
if [[ -n $notes ]]; then
  [[ $notes == "~"* ]] && notes=$HOME${notes#\~}
  [[ -d $notes ]] || fail "there is no folder '$notes'"
  notes=$(cd "$notes" && pwd)
else
  cd "$repository"
  notes=demo/notes
fi

export TARN_STORE=$demo/store
rm -rf "$TARN_STORE"
mkdir -p "$TARN_STORE"

# Runs `tarn`, with the command line as one would type it above its output.
run() {
  printf '\n$ tarn'
  for argument in "$@"; do
    if [[ $argument =~ ^[A-Za-z0-9_./@-]+$ ]]; then printf ' %s' "$argument"; else printf " '%s'" "$argument"; fi
  done
  printf '\n'
  "$tarn" "$@"
}

# The first value of this key in a JSON document.
first_value() {
  grep -oE "\"$1\": *\"[^\"\\]+\"" | sed -E 's/^[^:]*: *"(.*)"$/\1/;q' || true
}

# A tag as one writes it in a text: closed by a second # when its name holds a blank.
hashtag() {
  if [[ $1 == *" "* ]]; then printf '#%s#' "$1"; else printf '#%s' "$1"; fi
}

run import "$notes"
run list --limit 12
if [[ -n ${3:-} ]]; then
  # Somebody's own notes: look for a word and a tag that they hold.
  word=$("$tarn" --json list --limit 1 | first_value title | grep -oE '[^[:space:][:punct:]]{4,}' | sed q || true)
  tag=$("$tarn" --json tags | first_value title)
fi
[[ -z $word ]] || run search --limit 5 "$word"
[[ -z $tag ]] || run search --limit 5 "$(hashtag "$tag")"
run tags
run stats

cat <<END

The store of this demo stays in ${TARN_STORE}
(the next \`make demo\` makes it afresh). To go on with it:

  export TARN_STORE='${TARN_STORE}'
  alias tarn='${tarn}'
  tarn --help
END
