#!/usr/bin/env bash
# Runs a Windows program of a build folder under Wine, in the build's private prefix, which is made and
# gets the build's COM servers registered when that is due.
# usage: wine-run.sh BUILD-FOLDER PROGRAM [ARGUMENT...]
set -euo pipefail

if [ -z "${VARNOKE_DISPLAY:-}" ]; then
    exec "$(dirname "$0")/with-wine.sh" "$0" "$@"
fi

build=$(cd "$1" && pwd)
shift
wine=/usr/lib/wine/wine64
export WINEPREFIX=$build/wineprefix WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
# Without the last override a crash waits for a debugger that never comes.
export WINEDLLOVERRIDES="mscoree,mshtml,winedbg.exe="
# Code page 936, so that the profile functions keep Chinese text.
export LC_ALL=zh_CN.UTF-8 DISPLAY=$VARNOKE_DISPLAY
(
    flock 7
    if ! grep -qsxF "$WINEPREFIX" "$VARNOKE_RUN_DIR/prefixes"; then
        # Runs in the same prefix take turns: they would share a Wine server, whose windows are on the first
        # one's display, and which the first to end stops, the other's programs with it.
        exec 8>"$build/.wineprefix.run.lock"
        flock 8
        tail --pid="$VARNOKE_RUN_PID" -s 0.2 -f /dev/null </dev/null >/dev/null 2>&1 7>&- &
        echo "$WINEPREFIX" >>"$VARNOKE_RUN_DIR/prefixes"
    fi
) 7>"$VARNOKE_RUN_DIR/lock"

setup() {
    $wine "$@" </dev/null >/dev/null 2>&1 || { echo "no success under Wine: $*" >&2; exit 1; }
}
(
    flock 9
    if [ ! -f "$WINEPREFIX/ready" ]; then
        # The caption buttons' symbols.
        mkdir -p "$WINEPREFIX/drive_c/windows/Fonts"
        ln -sf /usr/share/wine/fonts/marlett.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
        setup wineboot --init
        touch "$WINEPREFIX/ready"
    fi
    if [ ! -f "$WINEPREFIX/unmanaged" ]; then
        # There is no window manager, and Wine would wait two seconds for it whenever a window closes.
        setup reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f
        touch "$WINEPREFIX/unmanaged"
    fi
    cd "$build/bin"
    stamp=$WINEPREFIX/registered
    servers=$(xargs -r cksum 2>/dev/null <com-servers.txt || true) # those that are built
    if [ "$servers" != "$(cat "$stamp" 2>/dev/null)" ]; then
        while read -r _ _ dll && [ -n "$dll" ]; do
            setup regsvr32 /s "$dll"
        done <<<"$servers"
        echo "$servers" >"$stamp"
    fi
) 9>"$build/.wineprefix.lock"

if [ -t 2 ] || [ -f /dev/stderr ]; then
    exec $wine "$@"
fi
# Wine's server and services keep the standard error of the program that starts them, and outlive it by
# seconds: whoever reads that through a pipe would wait for them.
errors=$(mktemp)
trap 'cat "$errors" >&2; rm -f "$errors"' EXIT
$wine "$@" 2>"$errors"
