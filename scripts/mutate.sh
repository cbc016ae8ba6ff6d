#!/usr/bin/env bash
# Puts one small fault after the other into a copy of the sources and tells how many the tests notice.
# A list holds lines "file|sed command|ctest names (a pattern)"; lines that begin with # are notes.
# usage: mutate.sh [LIST...]   (default: scripts/mutations/*.txt; takes about 20 s a fault)
# Exit code 1 when fewer than 90 of 100 were noticed.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
[ $# -gt 0 ] || set -- "$root"/scripts/mutations/*.txt
lists=$(realpath "$@")

copy=$root/build/mutate
mkdir -p "$copy"
# What a list names is what was committed; the copy keeps its build from run to run.
find "$copy" -mindepth 1 -maxdepth 1 ! -name build -exec rm -rf {} +
git -C "$root" archive HEAD | tar -x -C "$copy"
cd "$copy"
cmake --preset mingw -DVARNOKE_LENIENT=ON >/dev/null # a fault may leave something unused
build() { cmake --build --preset mingw >build/mutate.log 2>&1; }
build || { tail -n 20 build/mutate.log >&2; exit 2; }

noticed=0 missed=0 stale=0
try() {
    local file=$1 command=$2 entries=$3
    cp -p "$file" build/original
    sed -i "$command" "$file"
    if cmp -s "$file" build/original || ! build; then
        stale=$((stale + 1))
        echo "stale:   $file|$command"
    elif scripts/with-wine.sh ctest --preset mingw -R "^($entries)\$" --timeout 120 --stop-on-failure >build/mutate.log 2>&1; then
        missed=$((missed + 1))
        echo "missed:  $file|$command|$entries"
    else
        noticed=$((noticed + 1))
        echo "noticed: $file|$command"
    fi
    cp build/original "$file"
}

while IFS= read -r line <&3; do
    case $line in '' | '#'*) continue ;; esac
    rest=${line#*|}
    try "${line%%|*}" "${rest%|*}" "${rest##*|}"
done 3< <(cat $lists)

tried=$((noticed + missed))
echo "$noticed of $tried noticed ($((tried ? 100 * noticed / tried : 0)) of 100), $stale that no longer fit"
[ $((100 * noticed)) -ge $((90 * tried)) ]
