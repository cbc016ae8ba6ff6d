#!/usr/bin/env bash
# Takes a picture of each dialog with the framework's subset and with mfc140u.dll, and compares them.
# Needs the msabi and msabi-mfc builds.
set -Eeuo pipefail

root=$(cd "$(dirname "$0")/../.." && pwd)
subset=$root/build/msabi/bin
real=$root/build/msabi-mfc
place=$real/pictures
rm -rf "$place"
mkdir -p "$place"
trap 'echo "pictures: line $LINENO: $BASH_COMMAND" >&2; tail -n 30 "$place/run.log" >&2' ERR

take_pictures() { # FRAMEWORK
    local app=$place/run/app # paths are shown, so both runs have the same
    mkdir -p "$app" "$place/run/pictures/list"
    cd "$place/run"
    cp "$subset"/*.dll "$subset/ModelConfig.Xml" "$subset/varnoke-samples.exe" "$subset/varnoke-host.exe" app
    [ "$1" = subset ] || cp "$real"/bin/{Varnoke.dll,varnoke-host.exe,mfc140u.dll} app
    run() { "$root/scripts/wine-run.sh" "$real" "$@" >>"$place/run.log" 2>&1; }
    run app/varnoke-samples.exe .
    cp Varnoke.ini app/
    run app/varnoke-host.exe option --pictures pictures --auto
    run app/varnoke-host.exe sign --message message.xml --vault vault --work work --pictures pictures --auto
    # Without a model configuration the document list stays, empty.
    rm app/ModelConfig.Xml
    run app/varnoke-host.exe sign --message message.xml --vault vault --work work --pictures pictures/list --auto || true
    cd "$place"
    mv run "$1"
}
cp "$subset"/*Server*.dll "$subset"/*Grid*.dll "$subset"/*Viewer*.dll "$subset"/{QORParser.dll,com-servers.txt} "$real/bin"
take_pictures subset
take_pictures real
exec "$root/tests/pictures/compare.py" "$place/subset/pictures" "$place/real/pictures"
