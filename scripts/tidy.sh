#!/usr/bin/env bash
# Runs clang-tidy on the given files, or on all sources of product, stand-ins, host and doctor.
# Needs a configured msabi build.
# usage: tidy.sh [FILE...]
set -euo pipefail
cd "$(dirname "$0")/.."

if [ $# -eq 0 ]; then
    mapfile -t files < <(find base module config sign plm ui standins host doctor -name '*.cpp' 2>/dev/null | sort)
    set -- "${files[@]}"
fi
echo "clang-tidy: $# files"
tidy() { xargs -r -0 -n 4 -P "$(nproc)" sh -c 'flags=$1 && shift && clang-tidy --quiet "$@" $flags' tidy "$1" 2>/dev/null; }
others() { printf '%s\0' "$@" | grep -zv '^doctor/' || true; }
doctors() { printf '%s\0' "$@" | grep -z '^doctor/' || true; }

others "$@" | tidy '-p build/msabi'
# The doctor is built with the other compiler only, whose precompiled headers clang does not read.
std=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")/include/c++
doctors "$@" | tidy "-- --target=x86_64-w64-windows-gnu -std=c++17 -DUNICODE -D_UNICODE -DWINVER=0x0A00 -D_WIN32_WINNT=0x0A00 \
    -DDOCTOR_VERSION=L\"\" -I. -Iinclude -isystem $std -isystem $std/x86_64-w64-mingw32 \
    -include winsock2.h -include windows.h -include comdef.h -include string -include vector"
