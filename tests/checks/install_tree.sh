#!/usr/bin/env bash
# Installs the build into a fresh tree and builds clients on it: in C with pkg-config, in C++11 with
# find_package, in C++20 with both.
set -eu
build=$1
clients=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/tree" >"$work/install.log" || { cat "$work/install.log"; exit 1; }
"$(dirname "$0")/c_client.sh" "$work/tree" "$clients" "$work"

pc=$(find "$work/tree" -name kzlexicon.pc)
libdir=$(dirname "$(dirname "$pc")")
export PKG_CONFIG_PATH=${pc%/*}
c++ -std=c++20 -Wall -Wextra -Wpedantic -Werror "$clients/lexicon_client.cpp" \
  -o "$work/lexicon_client" $(pkg-config --cflags --libs kzlexicon) "-Wl,-rpath,$libdir"
"$work/lexicon_client"

cmake -S "$clients" -B "$work/cpp" -DCMAKE_PREFIX_PATH="$work/tree" >"$work/configure.log" ||
  { cat "$work/configure.log"; exit 1; }
cmake --build "$work/cpp"
"$work/cpp/client"
"$work/cpp/lexicon_client"

if [ -x "$work/tree/bin/kzdic" ]; then
  LD_LIBRARY_PATH=$libdir "$work/tree/bin/kzdic" --version
fi
