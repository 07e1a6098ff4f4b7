#!/usr/bin/env bash
# Imports dictionaries of Debian's packages, builds them plain and packed, and finds every headword
# again, with its text unchanged. Prints counts, sizes and times; stops at the first fault.
#
#   bench/real_dictionaries.sh KZDIC DIRECTORY
#
# Needs the packages mueller7-dict, dict-freedict-eng-rus, dict-freedict-deu-rus and
# dict-freedict-fra-rus. The directory keeps the sources and the dictionaries, which lookup_bench takes as arguments.
set -eu
kzdic=$1
directory=$2
here=$(dirname "$0")
mkdir -p "$directory"

for name in mueller7 freedict-eng-rus freedict-deu-rus freedict-fra-rus; do
  source=$directory/$name.txt
  echo "-- $name"
  time "$kzdic" import --from dictd "/usr/share/dictd/$name" -o "$source" 2>"$directory/$name.log"
  cat "$directory/$name.log"
  if grep "headwords left out" "$directory/$name.log"; then exit 1; fi
  for form in plain packed; do
    # A packed record has no place for a few letters, œ among them: their headwords are left out.
    options=()
    [ "$form" = plain ] || options=(--skip-bad)
    dictionary=$directory/$name-$form.dic
    time "$kzdic" build "--$form" "${options[@]}" "$source" -o "$dictionary"
    time python3 "$here/find_every_headword.py" "$kzdic" "$source" "$dictionary" "$form"
  done
done
