# shellcheck shell=bash disable=SC2034
# Shared functions of the scripts. To be sourced, not run.

set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

# take_no_install ARGUMENT...: with --no-install first, only checks the packages: a missing one ends the script. Leaves
# the other arguments in `arguments`.
may_install=yes
arguments=()
take_no_install() {
  if [ "${1-}" = --no-install ]; then
    may_install=no
    shift
  fi
  arguments=("$@")
}

# install_packages NAME...: installs the missing Debian packages, after listing them. Without apt-get (another
# distribution, Windows) it changes nothing: the build will name what it cannot find.
install_packages() {
  command -v apt-get >/dev/null 2>&1 || return 0
  local missing=() name
  for name in "$@"; do
    dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q 'ok installed' || missing+=("$name")
  done
  [ "${#missing[@]}" -eq 0 ] && return 0
  local as_root=() how=
  if [ "$(id -u)" -ne 0 ]; then
    as_root=(sudo)
    how=" with sudo"
  fi
  if [ "$may_install" = no ] || { [ -n "$how" ] && ! command -v sudo >/dev/null 2>&1; }; then
    echo "These packages are missing: ${missing[*]}" >&2
    return 1
  fi
  echo "Installing$how: ${missing[*]}" >&2
  "${as_root[@]}" apt-get update -qq >&2
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >&2
}

build_packages=(g++ cmake ninja-build qtbase5-dev qtbase5-dev-tools qttools5-dev qttools5-dev-tools
  libqt5sql5-sqlite libgoogle-glog-dev libjsoncpp-dev libarchive-dev zlib1g-dev)
# The offscreen platform replaces a display. It needs fonts to draw text.
run_packages=(libqt5gui5 fontconfig fonts-dejavu-core fonts-noto-cjk)
test_packages=(libgtest-dev libgmock-dev libbenchmark-dev libmuparser-dev binutils pkgconf
  python3-jsonschema)
windows_packages=(g++-mingw-w64-x86-64-posix libz-mingw-w64-dev wine64 wine xvfb fonts-dejavu-core xz-utils zip
  cmake ninja-build qttools5-dev qttools5-dev-tools)
windows_prefix_packages=(g++ make perl python3 xz-utils bzip2 file tcl dpkg-dev)
windows_host=x86_64-w64-mingw32
windows_prefix=${UIAPI_WINDOWS_PREFIX:-${XDG_CACHE_HOME:-${HOME:-/root}/.cache}/uiapi-windows}

# What scripts/windows-prefix leaves in a folder that it has filled.
windows_prefix_is_complete() {
  [ -f "$windows_prefix/complete" ]
}

# unpack_windows_prefix ARCHIVE: makes an archive of such a folder the prefix, unpacked beside the usual one unless it
# is there already. The folder may stand deeper in the archive.
unpack_windows_prefix() {
  local archive folder found
  archive=$(realpath "$1")
  folder=$windows_prefix-$(sha256sum "$archive" | cut -c 1-12)
  if [ ! -d "$folder" ]; then
    echo "Unpacking $archive" >&2
    rm -rf "$folder.part"
    mkdir -p "$folder.part"
    tar xf "$archive" -C "$folder.part"
    mv "$folder.part" "$folder"
  fi
  found=$(find "$folder" -path '*/lib/cmake/Qt5Core' -print -quit)
  [ -n "$found" ] || { echo "$archive holds no Qt for Windows" >&2; return 1; }
  windows_prefix=${found%/lib/cmake/Qt5Core}
  touch "$windows_prefix/complete"
}

lint_packages=(abigail-tools clang-14 clang-format-14 clang-tidy-14 clazy codespell doxygen git shellcheck)

# build PRESET [TARGET...]
build() {
  local preset=$1
  shift
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" ${1+--target "$@"}
}
