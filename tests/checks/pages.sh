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
  page=$build/man/kzdic-$command.1
  [ -s "$page" ] || fail "no manual page for $command: docs/man/kzdic-$command.scd"
  grep -q "@" <(sed -n '/^@/p' "$page.scd") && fail "$page.scd: a placeholder is left"
  grep -q "kzdic-$command" "$source/docs/man/kzdic.scd" ||
    fail "docs/man/kzdic.scd does not refer to kzdic-$command"
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
