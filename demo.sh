#!/usr/bin/env bash
# A signing run from message to return file, on sample drawings it makes itself.
# usage: demo.sh [--interactive]   Needs Debian 12 and root; installs the rest itself.
set -euo pipefail
cd "$(dirname "$0")"

mode=${1:-back-sign}
case $mode in
back-sign | --interactive) ;;
*)
    echo "usage: demo.sh [--interactive]" >&2
    exit 2
    ;;
esac

scripts/install-deps.sh
scripts/build.sh msabi
exec scripts/with-wine.sh scripts/demo-run.sh "$mode"
