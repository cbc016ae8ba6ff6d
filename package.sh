#!/usr/bin/env bash
# Makes what is handed out, in dist/: the SDK, the installers and the portable demo.
# usage: package.sh [sdk|msi|demo]...   (default: all). VARNOKE_SIGN names a command that signs the file it is given.
set -euo pipefail
cd "$(dirname "$0")"

[ $# -gt 0 ] || set -- sdk msi demo
scripts/install-deps.sh
scripts/build.sh msabi
for part in "$@"; do
    "packaging/make-$part.sh" build/msabi dist
done
ls -l dist
