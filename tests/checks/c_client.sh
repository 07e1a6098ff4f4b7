#!/usr/bin/env bash
# Builds a client in C on an installed tree with pkg-config, and runs it. Arguments: the tree, the
# clients, a directory for the files made.
set -euo pipefail
tree=$1 clients=$2 work=$3
pc=$(find "$tree" -name kzcommon.pc)
export PKG_CONFIG_PATH=${pc%/*}
# Every function that the headers declare to C, as an element of the client's table.
echo '#include <kz/kzcommon.h>' | cc -E -P $(pkg-config --cflags kzcommon) - | tr '\n' ' ' |
  grep -oP 'visibility\("default"\)\)\)[^;(]*?\K\w+(?=\()' |
  sed 's/.*/(function*)&,/' >"$work/functions.inc"
cc -std=c11 -Wall -Wextra -Wpedantic -Werror "-I$work" "$clients/client.c" -o "$work/c_client" \
  $(pkg-config --cflags --libs kzcommon) "-Wl,-rpath,${pc%/pkgconfig/*}"
"$work/c_client"
