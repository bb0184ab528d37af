#!/usr/bin/env bash
# Installs the Debian packages Brevik needs to build, run and test, and only
# those that are missing, so running it again costs nothing.
set -euo pipefail

packages=(
    cmake make g++ pkg-config
    qt6-base-dev qt6-base-dev-tools libgl-dev
    libgtest-dev libgmock-dev
    qt6-qpa-plugins fonts-dejavu-core
    icoutils python3 python3-pil
    # Man pages and the desktop entry's check.
    scdoc desktop-file-utils
    # windres and ld build the real DLLs the icon extraction tests read.
    binutils-mingw-w64-x86-64 binutils-mingw-w64-i686
)
if [ "${1:-}" = "--extras" ]; then
    # For looking at the editor by hand, benchmarks and fuzzing.
    packages+=(xvfb xauth xdotool xclip imagemagick libbenchmark-dev clang libclang-rt-14-dev
               hyperfine libwine)
fi

missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing missing packages: ${missing[*]}"
sudo=""
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "error: need root (or sudo) to install: ${missing[*]}" >&2; exit 1; }
    sudo=sudo
fi
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
