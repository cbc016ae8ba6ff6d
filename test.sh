#!/usr/bin/env bash
# Builds everything with both compilers and runs all tests. Needs Debian 12 and root; installs the rest itself.
set -euo pipefail
cd "$(dirname "$0")"

scripts/install-deps.sh
scripts/check-source.sh
for preset in mingw msabi; do
    scripts/build.sh "$preset"
done
# The same sources against Microsoft's own framework; only the continuous integration insists on it.
real_mfc=yes
if scripts/get-mfc.sh >build/real-mfc.log; then
    scripts/build.sh msabi-mfc
    cp build/real-mfc/mfc140u.dll build/msabi-mfc/bin/
else
    real_mfc=
    echo "left out, the tests with MFC: $(tail -n 1 build/real-mfc.log)"
    [ -z "${CI:-}" ] || exit 1
fi
# Each build has its own Wine prefix and settings, so their tests run side by side. Each side keeps to one
# processor: a program and the Wine server take turns, and waking each other across processors takes longer.
cpus=$(sed -n 's/^Cpus_allowed_list:[[:space:]]*//p' /proc/self/status)
run_tests() { # PROCESSOR PRESET...
    local result=0 preset
    for preset in "${@:2}"; do
        taskset -c "$1" scripts/with-wine.sh ctest --preset "$preset" || result=1
    done
    return $result
}
failed=0
TZ=Asia/Shanghai run_tests "${cpus##*[-,]}" msabi >build/msabi-tests.log 2>&1 &
msabi=$!
run_tests "${cpus%%[-,]*}" mingw ${real_mfc:+msabi-mfc} || failed=1
wait $msabi || failed=1
cat build/msabi-tests.log
exit $failed
