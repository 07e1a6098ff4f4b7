#!/usr/bin/env bash
# Installs the build into a fresh tree and builds clients on it: in C with pkg-config, in C++ with
# find_package.
set -eu
build=$1
clients=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/tree" >"$work/install.log" || { cat "$work/install.log"; exit 1; }
"$(dirname "$0")/c_client.sh" "$work/tree" "$clients" "$work"

cmake -S "$clients" -B "$work/cpp" -DCMAKE_PREFIX_PATH="$work/tree" >"$work/configure.log" ||
  { cat "$work/configure.log"; exit 1; }
cmake --build "$work/cpp"
"$work/cpp/client"

if [ -x "$work/tree/bin/kzdic" ]; then
  libdir=$(dirname "$(find "$work/tree" -name libkzcommon.so)")
  LD_LIBRARY_PATH=$libdir "$work/tree/bin/kzdic" --version
fi
