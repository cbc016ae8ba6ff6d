#!/usr/bin/env bash
# Installs what building and running need on a bare Debian 12 (as root); does nothing when all is there.
set -euo pipefail

packages=(g++-mingw-w64-x86-64-posix clang lld llvm cmake ninja-build googletest
          wine64 xvfb locales fonts-wqy-microhei fonts-wine clang-format clang-tidy python3 python3-pip python3-pil diffutils util-linux wixl msitools zip unzip osslsigncode openssl x11-utils)

missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "installing: ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi
if ! locale -a | grep -qi '^zh_CN\.utf-\?8$'; then
    localedef -i zh_CN -f UTF-8 zh_CN.UTF-8
fi
