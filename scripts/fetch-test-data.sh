#!/bin/sh
# Installs data that tests read and that is not ours to distribute:
#   commonmark-spec (CC-BY-SA 4.0): the CommonMark text, whose examples the parser is tested against.
#
#   scripts/fetch-test-data.sh FOLDER
set -eu

folder=${1:?"usage: fetch-test-data.sh FOLDER"}
mkdir -p "$folder"
npm install --silent --no-audit --no-fund --no-save --prefix "$folder" commonmark-spec@0.31.2
test -s "$folder/node_modules/commonmark-spec/spec.txt"
