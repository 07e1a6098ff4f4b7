#!/usr/bin/env bash
# Installs the build into a fresh tree and builds clients on it: in C with pkg-config, in C++ with
# find_package.
set -eu
build=$1
clients=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/tree" >"$work/install.log" || { cat "$work/install.log"; exit 1; }
pc=$(find "$work/tree" -name kzcommon.pc)
libdir=$(dirname "$(dirname "$pc")")

export PKG_CONFIG_PATH=${pc%/*}
# Every function that the headers declare to C, as an element of the client's table.
echo '#include <kz/kzcommon.h>' | cc -E -P $(pkg-config --cflags kzcommon) - | tr '\n' ' ' |
  grep -oP 'visibility\("default"\)\)\)[^;(]*?\K\w+(?=\()' |
  sed 's/.*/(function*)&,/' >"$work/functions.inc"
cc -std=c11 -Wall -Wextra -Wpedantic -Werror "-I$work" "$clients/client.c" -o "$work/c_client" \
  $(pkg-config --cflags --libs kzcommon) "-Wl,-rpath,$libdir"
"$work/c_client"

cmake -S "$clients" -B "$work/cpp" -DCMAKE_PREFIX_PATH="$work/tree" >"$work/configure.log" ||
  { cat "$work/configure.log"; exit 1; }
cmake --build "$work/cpp"
"$work/cpp/client"

if [ -x "$work/tree/bin/kzdic" ]; then
  LD_LIBRARY_PATH=$libdir "$work/tree/bin/kzdic" --version
fi
