#!/usr/bin/env bash
# Tests the reference host of a build folder end to end with the mingw build's test program.
# usage: check-end-to-end.sh BUILD-FOLDER [TEST-PROGRAM [ARGUMENT...]]
# Exit code 77 when there is no test program.
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "$1" && pwd)
program=${2:-$root/build/mingw/bin/test-host.exe}
if [ ! -f "$program" ]; then
    echo "no test program: $program (build the mingw preset first)" >&2
    exit 77
fi
VARNOKE_BIN=Z:${build//\//\\}\\bin
export VARNOKE_BIN
exec "$root/scripts/wine-run.sh" "$build" "$program" "${@:3}"
