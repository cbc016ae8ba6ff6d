#!/usr/bin/env bash
# Tests host and library end to end where mfc140u.dll is in the process: a host on it with the shipped library, a
# host on mfc/ with the library on it, and both on it. Needs the msabi, msabi-mfc and mingw builds.
# usage: check-with-mfc.sh real-host|real-library|both
# Exit code 77 when something that it needs isn't built.
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
subset=$root/build/msabi/bin
real=$root/build/msabi-mfc
program=$root/build/mingw/bin/test-host.exe
for file in "$program" "$subset/Varnoke.dll" "$real/bin/Varnoke.dll" "$real/bin/mfc140u.dll"; do
    [ -f "$file" ] || { echo "not there: $file" >&2; exit 77; }
done

# Stand-ins never meet the framework: the msabi build's serve.
bin=$real/mixed/$1
mkdir -p "$bin"
cp "$subset"/*.dll "$subset"/ModelConfig.Xml "$subset"/varnoke-host.exe "$real/bin/mfc140u.dll" "$bin"
case $1 in
real-host) cp "$real/bin/varnoke-host.exe" "$bin" ;;
real-library) cp "$real/bin/Varnoke.dll" "$bin" ;;
both) cp "$real/bin/varnoke-host.exe" "$real/bin/Varnoke.dll" "$bin" ;;
*) echo "usage: check-with-mfc.sh real-host|real-library|both" >&2; exit 2 ;;
esac
cp "$subset"/*Server*.dll "$subset"/*Grid*.dll "$subset"/*Viewer*.dll "$subset/QORParser.dll" "$subset/com-servers.txt" "$real/bin"

# Where only one side is Microsoft's, what crosses between them: messages, records, strings, windows.
filter='*'
[ "$1" = both ] || filter='*.AllSigned_*:*.Repeated_*:*.MissingNeighbours_*:*.Append_*:*.Sign_*'
VARNOKE_BIN=Z:${bin//\//\\}
export VARNOKE_BIN
exec "$root/scripts/wine-run.sh" "$real" "$program" --gtest_filter="$filter"
