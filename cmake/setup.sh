# Sourced by ./demo, ./check and .ci/run: makes sure that the Debian packages named in "$@" are
# installed. As root they are installed; otherwise the command to run is printed.

need_packages() {
  local missing=() package
  for package in "$@"; do
    if [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
      missing+=("$package")
    fi
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  if [ "$(id -u)" -ne 0 ]; then
    echo "Missing Debian packages. Install them with:" >&2
    echo "  sudo apt-get install --no-install-recommends ${missing[*]}" >&2
    return 1
  fi
  echo "== installing ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq
  apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

build_packages=(g++ cmake ninja-build pkg-config libcli11-dev nlohmann-json3-dev zlib1g-dev scdoc)
test_packages=(googletest python3 binutils zsh locales dpkg-dev file pybind11-dev python3-dev python3-pytest)
bench_packages=(libbenchmark-dev libcdb-dev liblmdb-dev libicu-dev libhunspell-dev lttoolbox lttoolbox-dev)
clang_packages=(clang libclang-rt-14-dev)
coverage_packages=(gcovr)
