#!/usr/bin/env bash
# Manual pages and completions: every command has a page, and the shells take what is offered.
# Arguments: the source tree, the build tree.
set -euo pipefail
source=$1 build=$2
kzdic=$build/tools/kzdic
fail() { echo "$*" >&2; exit 1; }

commands=$("$kzdic" --help | sed -n '/^Subcommands:/,$p' | sed -n 's/^  \([a-z]\+\) .*/\1/p')
[ "$(wc -w <<<"$commands")" -ge 5 ] || fail "no commands in the help: $commands"

for command in $commands; do
  [ -s "$build/man/kzdic-$command.1" ] || fail "no manual page: docs/man/kzdic-$command.scd"
done
for page in "$build"/man/*.[15]; do
  ! grep -q "^@" "$page.scd" || fail "$page.scd: a placeholder is left"
  reference=$(basename "$page" | sed 's/\(.*\)\.\(.\)$/*\1*(\2)/')
  [ "$reference" = "*kzdic*(1)" ] || grep -qF "$reference" "$source/docs/man/kzdic.scd" ||
    fail "docs/man/kzdic.scd does not refer to $reference"
done
for reference in $(grep -oh '\*kzdic[a-z-]*\*([0-9])' "$source"/docs/man/*.scd | sort -u | tr -d '*'); do
  [ -s "$build/man/$(sed 's/(\(.\))/.\1/' <<<"$reference")" ] || fail "no manual page $reference"
done

# What bash offers behind the words given; the last one is being typed.
offers() {
  COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) COMPREPLY=()
  _kzdic
  echo "${COMPREPLY[*]-}"
}
expect() {
  local expected=$1
  shift
  [ "$(offers "$@")" = "$expected" ] || fail "$*: offered '$(offers "$@")', not '$expected'"
}
. "$build/completions/kzdic"
for command in $commands; do
  [[ " $(offers kzdic "") " == *" $command "* ]] || fail "completion does not offer $command"
done
cd "$source"
expect "lookup" kzdic look
expect "2 3 5" kzdic build --depth ""
expect "--skip-bad" kzdic build --sk
expect "data/baseenru.txt" kzdic build data/baseenr
expect "" kzdic build --title data/base
expect "docs" kzdic lookup --set doc
expect "koi8-r" kzdic convert --from cp866 --to = ko
expect "html" kzdic convert README.md --from = utf-8 --to h
expect "dictd" kzdic import --from ""
expect "class change" kzdic grammar name --json c
expect "" kzdic grammar name class c
expect "data/ruflex.txt" kzdic inflect --build docs data/ruf
expect "" kzdic inflect README.md data/ruf

zsh -n "$build/completions/_kzdic"
