#!/usr/bin/env bash
# The demo itself: an installation folder, a vault with drawings, one run, and a look at what it left.
# usage: demo-run.sh back-sign|--interactive   (inside with-wine.sh)
set -euo pipefail
cd "$(dirname "$0")/.."

build=$PWD/build/msabi
out=$PWD/demo-out
app=$out/app
rm -rf "$out"
mkdir -p "$app"
cp "$build"/bin/*.dll "$build"/bin/*.exe "$build"/bin/ModelConfig.Xml "$app"
wine() { "$PWD/scripts/wine-run.sh" "$build" "$@"; }

cd "$out"
export SIGNSERVER_JOURNAL="$out/sign-server.log"
wine() { ../scripts/wine-run.sh "$build" "$@"; }
wine app/varnoke-samples.exe .
cp Varnoke.ini app/

echo
if [ "$1" = --interactive ]; then
    mkdir -p pictures
    wine app/varnoke-host.exe option --pictures pictures --auto
    wine app/varnoke-host.exe sign --message message.xml --vault vault --work work --pictures pictures --auto
    echo
    echo "pictures of the dialogs: $out/pictures"
    ls pictures
    exit
fi
wine app/varnoke-host.exe back-sign --message message.xml --vault vault --work work --return return.xml

show() {
    printf '\n== %s\n' "$1"
    shift
    "$@"
}
show "the return file: $out/return_Ret.Xml" cat return_Ret.Xml
show "what the signing server noted: $SIGNSERVER_JOURNAL" cat "$SIGNSERVER_JOURNAL"
show "the sign log that reached the server: $out/vault/signlog" sh -c 'cat vault/signlog/*'
show "the documents' tags" wine app/varnoke-host.exe status work
show "the drawings on the server: $out/vault/files" ls -l vault/files
