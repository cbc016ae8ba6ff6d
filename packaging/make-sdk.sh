#!/usr/bin/env bash
# varnoke-sdk-<version>.zip: what `cmake --install` gives, with dates that depend on the commit alone.
# usage: make-sdk.sh BUILD-FOLDER OUTPUT-FOLDER
set -euo pipefail
source "$(dirname "$0")/common.sh" "$@"

name=varnoke-sdk-$version
cmake --install "$build" --component sdk --prefix "$stage/$name" >/dev/null
sign "$stage/$name/bin/Varnoke.dll" "$stage/$name/bin/varnoke-doctor.exe"
make_zip "$name"
