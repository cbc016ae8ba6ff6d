#!/usr/bin/env bash
# Runs the doctor's test of a full disk, on a small file system in a mount namespace of its own.
# usage: full-disk.sh BUILD-FOLDER TEST-PROGRAM
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
folder=$(mktemp -d)
# The Wine server opens files for its programs, so it must see the mount too.
end_server() { WINEPREFIX=$1/wineprefix /usr/lib/wine/wineserver64 -k || true; }
trap 'end_server "$1"; rmdir "$folder"' EXIT
mount_small=(mount -t tmpfs -o size=64k none "$folder")
unshare -m "${mount_small[@]}" 2>/dev/null || { echo "no file system can be mounted here"; exit 77; }
end_server "$1"
export VARNOKE_FULL_FOLDER="Z:${folder//\//\\}"
unshare -m bash -c '"${@:1:7}" && exec "${@:8}"' _ "${mount_small[@]}" \
    "$root/scripts/check-end-to-end.sh" "$1" "$2" --gtest_filter='*FullDisk*'
