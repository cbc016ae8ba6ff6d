#!/usr/bin/env bash
# Runs clang-tidy on the given files, or on all sources of product, stand-ins and host; not on doctor/, which is built
# with the other compiler only, whose precompiled headers clang does not read.
# Needs a configured msabi build.
# usage: tidy.sh [FILE...]
set -euo pipefail
cd "$(dirname "$0")/.."

if [ $# -eq 0 ]; then
    mapfile -t files < <(find base module config sign plm ui standins host -name '*.cpp' 2>/dev/null | sort)
    set -- "${files[@]}"
fi
echo "clang-tidy: $# files"
printf '%s\0' "$@" | xargs -0 -n 4 -P "$(nproc)" clang-tidy -p build/msabi --quiet 2>/dev/null
