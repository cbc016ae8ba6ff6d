#!/usr/bin/env bash
# The long checks: damaged input against every reader, every call failing once, many runs of a dialog, kills at random
# moments, two runs at once, a full disk. Takes hours; the short form, which test.sh runs, takes seconds.
# usage: soak.sh [--short] [BUILD-FOLDER]   (default: build/mingw, built when it is missing)
set -euo pipefail
root=$(cd "$(dirname "$0")" && pwd)

inputs=1000000 kills=1000 short=
if [ "${1:-}" = --short ]; then
    inputs=${VARNOKE_SOAK_INPUTS:-1400} kills=${VARNOKE_SOAK_KILLS:-3} short=--short
    shift
fi
build=$(realpath -m "${1:-$root/build/mingw}")
if [ ! -f "$build/bin/varnoke-soak.exe" ]; then
    "$root/scripts/install-deps.sh"
    "$root/scripts/build.sh" "$(basename "$build")"
fi
if [ -z "${VARNOKE_DISPLAY:-}" ]; then
    exec "$root/scripts/with-wine.sh" "$0" $short "$build"
fi

# In memory where that is possible: a million inputs are a million files.
place=$(mktemp -d "$([ -w /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}")/varnoke-soak.XXXXXX")
trap 'rm -rf "$place"' EXIT
mkdir "$place/app"
cp "$build"/bin/*.dll "$build/bin/varnoke-soak.exe" "$build/bin/varnoke-samples.exe" "$build/bin/ModelConfig.Xml" "$place/app/"
cp -r "$build/bin/samples" "$place/app/"
cd "$place"
run() { "$root/scripts/wine-run.sh" "$build" "$@"; }
run app/varnoke-samples.exe . >/dev/null
cp "$(find vault/files -name '*.dwg' | sort | head -n 1)" sample.dwg
cp Varnoke.ini app/
export DURVELL_VAULT="Z:${place//\//\\}\\vault" SIGNSERVER_JOURNAL="Z:${place//\//\\}\\journal.log"

run app/varnoke-soak.exe faults
run app/varnoke-soak.exe readers "$inputs" "${VARNOKE_SOAK_SEED:-1}"
if [ -z "$short" ]; then
    VARNOKE_SOAK_RUNS=1000 run "$build/bin/test-listdlg.exe" --gtest_filter='*.Runs_LeaveNothingBehind' --gtest_brief=1
    echo "dialog: nothing left of 1000 runs"
fi
mkdir "$place/kills"
cd "$place/kills"
"$root/tests/soak/kills.py" "$build" "$kills"
