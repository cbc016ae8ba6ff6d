#!/usr/bin/env bash
# varnoke-demo-<version>.zip: host, library and stand-ins in one folder that runs where it is unpacked.
# usage: make-demo.sh BUILD-FOLDER OUTPUT-FOLDER
set -euo pipefail
source "$(dirname "$0")/common.sh" "$@"

name=varnoke-demo-$version
folder=$stage/$name
mkdir "$folder"
cp "$build"/bin/{Varnoke,Durvell,QORParser,QORLocal,QORGrid,DwgViewer,SignServer}.dll \
    "$build"/bin/varnoke-{host,samples,doctor}.exe "$build/bin/ModelConfig.Xml" \
    "$root/packaging/demo/varnoke-standins.manifest" "$folder/"
for file in demo.cmd README.txt; do
    sed 's/$/\r/' "$root/packaging/demo/$file" >"$folder/$file"
done
sed -i '1s/^/\xef\xbb\xbf/' "$folder/README.txt"
sign "$folder"/*.dll "$folder"/*.exe
make_zip "$name"
