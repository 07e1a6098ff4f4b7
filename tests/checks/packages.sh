#!/usr/bin/env bash
# Makes the Debian packages of the build and uses what they install: the tool on the sample
# dictionaries, and the development files for a client in C. Arguments: the build tree, the clients.
set -euo pipefail
build=$1 clients=$2
for tool in dpkg-deb dpkg-shlibdeps; do
  command -v $tool >/dev/null || { echo "skipped: no $tool"; exit 77; }
done
fail() { echo "$*" >&2; exit 1; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
root=$work/root

cpack --config "$build/CPackConfig.cmake" -B "$work" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
declare -A package depends
for file in "$work"/*.deb; do
  name=$(dpkg-deb -f "$file" Package)
  package[$name]=$file depends[$name]=$(dpkg-deb -f "$file" Depends)
  dpkg-deb -x "$file" "$root"
  [ -s "$root/usr/share/doc/$name/copyright" ] || fail "$name says nothing about its licence"
done
echo "${!package[@]}"

version=$(dpkg-deb -f "${package[kzdic]}" Version)
expect() {
  [[ ", ${depends[$1]}," == *", $2"[,\ ]* ]] || fail "$1 depends on '${depends[$1]}', not on $2"
}
expect libkzcommon1 libc6
expect libkzcommon1 libstdc++6
expect kzdic "libkzcommon1 (= $version)"
expect kzdic libstdc++6
expect libkzcommon-dev "libkzcommon1 (= $version)"
# A package that something installed depends on is among those made.
for name in $(tr ',' '\n' <<<"${depends[*]}" | grep -oE '(lib|python3-)?kz[a-z0-9-]+' | sort -u); do
  [ -n "${package[$name]-}" ] || fail "no package $name, on which others depend"
done

libdir=$(dirname "$(find "$root" -name 'libkzcommon.so.1')")
export LD_LIBRARY_PATH=$libdir
kzdic=$root/usr/bin/kzdic data=$root/usr/share/kzcommon
found=$("$kzdic" lookup --set "$data" --direction RUEN книга)
[[ "$found" == *"book"* ]] || fail "kzdic lookup --set: $found"
found=$("$kzdic" lookup --inflected "$data/ruflex.Dat" "$data/baseruen.dic" книгами)
[[ "$found" == *"book"* ]] || fail "kzdic lookup --inflected: $found"
"$kzdic" build -q "$data/source/baseenru.txt" -o "$work/baseenru.dic"
cmp "$work/baseenru.dic" "$data/baseenru.dic"

# The files that manual pages and installed pages name are there.
for page in "$root"/usr/share/man/man5/kzdic-*; do
  for file in $(sed 's/\\f.//g; s/\\&*//g' "$page" | grep -oE '/usr/share/[a-z/._-]+' | sort -u); do
    [ -e "$root$file" ] || fail "$page names $file, which is not installed"
  done
done

"$(dirname "$0")/c_client.sh" "$root/usr" "$clients" "$work"
