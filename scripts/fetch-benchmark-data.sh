#!/bin/sh
# Installs texts that benchmarks search in and that are not ours to distribute: documentation in many languages.
#   electron-i18n (MIT): one handbook in eight languages
#   learnyounode, javascripting, how-to-npm (MIT, BSD, ISC): lessons with their translations
#   npm (Artistic-2.0): its manual
#
#   scripts/fetch-benchmark-data.sh FOLDER      Markdown then lies in FOLDER/texts
set -eu

folder=${1:?"usage: fetch-benchmark-data.sh FOLDER"}
mkdir -p "$folder/texts"
npm install --silent --no-audit --no-fund --no-save --ignore-scripts --prefix "$folder" \
  electron-i18n@1.3136.0 learnyounode@4.2.2 javascripting@2.7.4 how-to-npm@2.5.1 npm@10.9.0
python3 "$(dirname "$0")/make-benchmark-texts.py" "$folder/node_modules" "$folder/texts"
