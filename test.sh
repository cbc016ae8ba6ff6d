#!/usr/bin/env bash
# Builds everything with both compilers and runs all tests. Needs Debian 12 and root; installs the rest itself.
set -euo pipefail
cd "$(dirname "$0")"

scripts/install-deps.sh
scripts/check-source.sh
for preset in mingw msabi; do
    scripts/build.sh "$preset"
done
failed=0
for preset in mingw msabi; do
    scripts/with-wine.sh ctest --preset "$preset" || failed=1
done
exit $failed
