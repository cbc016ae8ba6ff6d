#!/usr/bin/env bash
# Runs a command with an X display of its own for Wine programs; ends display and Wine servers afterwards.
# usage: with-wine.sh COMMAND [ARGUMENT...]
set -euo pipefail

run_dir=$(mktemp -d)
Xvfb -displayfd 3 -screen 0 1600x1200x24 -nolisten tcp 3>"$run_dir/display" >"$run_dir/xvfb.log" 2>&1 &
xvfb=$!
finish() {
    local prefix
    sort -u "$run_dir/prefixes" 2>/dev/null | while IFS= read -r prefix; do
        WINEPREFIX=$prefix /usr/lib/wine/wineserver64 -k || true
    done
    kill "$xvfb" 2>/dev/null || true
    rm -rf "$run_dir"
}
trap finish EXIT
trap 'exit 130' INT TERM

for _ in $(seq 100); do
    [ -s "$run_dir/display" ] && break
    kill -0 "$xvfb" 2>/dev/null || break
    sleep 0.05
done
[ -s "$run_dir/display" ] || { echo "no X display:" >&2; cat "$run_dir/xvfb.log" >&2; exit 1; }
# The kernel puts a program's heap anywhere within a gigabyte; once in some 6,000 starts that is where Wine
# must have a page of its own, and the program ends before it runs. Not every container lets this be changed.
fixed_heap=(setarch --addr-no-randomize)
"${fixed_heap[@]}" true 2>/dev/null || fixed_heap=()
export VARNOKE_DISPLAY=":$(tr -d '[:space:]' <"$run_dir/display")" VARNOKE_RUN_DIR=$run_dir VARNOKE_RUN_PID=$$
"${fixed_heap[@]}" "$@"
