#!/usr/bin/env bash
# Runs clang-tidy on the given files, or on all sources of library, host and stand-ins.
# Needs the package clang-tidy and a configured msabi build.
# usage: tidy.sh [FILE...]
set -euo pipefail
cd "$(dirname "$0")/.."

if [ $# -eq 0 ]; then
    mapfile -t files < <(find module config sign plm ui host standins -name '*.cpp' | sort)
    set -- "${files[@]}"
fi
printf '%s\0' "$@" | xargs -0 -n 1 -P "$(nproc)" clang-tidy -p build/msabi --quiet
