#!/bin/sh
# Builds the dictionaries of the worked client, runs it, and compares what it says.
#
#   examples/run_engine.sh KZDIC ENGINE DIRECTORY
set -eu
kzdic=$1
engine=$2
here=$(cd "$(dirname "$0")" && pwd)
mkdir -p "$3/dictionaries"
cd "$3"
for source in "$here"/../data/base????.txt; do
  "$kzdic" build -q "$source" -o "dictionaries/$(basename "$source" .txt).dic"
done
for source in "$here"/../data/base??.txt; do
  "$kzdic" build -q "$source" -o "dictionaries/$(basename "$source" .txt).dig"
done
echo 'table*N[|F]{в базе данных}таблица' | "$kzdic" build -q --language ENRU - -o dictionaries/my.dic
"$engine" dictionaries/ | iconv -f CP1251 -t UTF-8 >engine.out
diff "$here/engine.expected" engine.out
