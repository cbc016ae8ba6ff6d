#!/usr/bin/env bash
# Configures a preset when that is due and builds it, quietly unless something goes wrong.
# usage: build.sh PRESET
set -euo pipefail
cd "$(dirname "$0")/.."

log=build/$1.log
mkdir -p build
run() {
    "$@" >"$log" 2>&1 || { tail -n 60 "$log"; exit 1; }
}
echo "building: $1"
[ -f "build/$1/build.ninja" ] || run cmake --preset "$1"
run cmake --build --preset "$1"
