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

cd "$out"
export SIGNSERVER_JOURNAL="$out/sign-server.log"
host() { ../scripts/wine-run.sh "$build" app/varnoke-host.exe "$@"; }
../scripts/wine-run.sh "$build" app/varnoke-samples.exe . >/dev/null
cp Varnoke.ini app/

if [ "$1" = --interactive ]; then
    mkdir pictures
    host option --pictures pictures --auto
    host sign --message message.xml --vault vault --work work --pictures pictures --auto
    # The document list is confirmed before it shows. Without a model it has no columns, no rows and stays.
    printf '\n== once more without a model configuration, so that the empty document list shows\n'
    mv app/ModelConfig.Xml app/ModelConfig.off
    mkdir pictures/list
    host sign --message message.xml --vault vault --work work --pictures pictures/list --auto || true
    mv app/ModelConfig.off app/ModelConfig.Xml
    printf '\n== a picture of each dialog: %s\n' "$out/pictures"
    find pictures -name '*.png' | sort
    exit
fi
host back-sign --message message.xml --vault vault --work work --return return.xml

show() {
    printf '\n== %s\n' "$1"
    shift
    "$@"
}
show "the return file: $out/return_Ret.Xml" sed 's/<obj>/\n&/g; s/<\/type>/\n&/; $a\' return_Ret.Xml
show "what the signing server noted: $SIGNSERVER_JOURNAL" cat "$SIGNSERVER_JOURNAL"
show "the sign log that reached the server, its first entry: $out/vault/signlog" sed '/<\/obj>/q' vault/signlog/*
show "the documents' tags" host status work
show "the drawings on the server: $out/vault/files" find vault/files -type f
