#!/usr/bin/env bash
# Installs what building, testing and running the demo need, when it is missing.
# Debian 12 / Ubuntu: packages come from apt. Safe to run again: it installs
# only what is not there yet.
#   scripts/setup.sh                  what a build against Qt 5 needs
#   scripts/setup.sh --qt6            the same and Qt 6's development packages
#   scripts/setup.sh PACKAGE...       the same and further packages
set -euo pipefail

qt6_packages=(qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-svg-dev)

packages=(
    cmake ninja-build g++ pkg-config
    qtbase5-dev qttools5-dev qttools5-dev-tools libqt5svg5-dev
    xvfb xauth
    libaravis-dev libusb-1.0-0-dev aravis-tools-cli
    breeze-icon-theme librsvg2-bin
    fonts-noto-cjk
)
# Extra packages a caller may ask for, e.g. the fuzzer's compiler.
for argument in "$@"; do
    if [ "$argument" = "--qt6" ]; then
        packages+=("${qt6_packages[@]}")
    else
        packages+=("$argument")
    fi
done

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$package")
    fi
done

if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

echo "Installing: ${missing[*]}"
sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then
    sudo_cmd=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
