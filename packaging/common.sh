# Common ground of the make-*.sh scripts; sourced with BUILD-FOLDER OUTPUT-FOLDER.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$(cd "$1" && pwd)
mkdir -p "$2"
out=$(cd "$2" && pwd)
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT

# Signs each file with the command in VARNOKE_SIGN; without one nothing is signed.
sign() {
    [ -n "${VARNOKE_SIGN:-}" ] || return 0
    local file
    for file in "$@"; do
        $VARNOKE_SIGN "$file"
    done
}

# Packs the folder of that name in the stage. The same tree gives the same archive.
make_zip() {
    local date
    date=$(git -C "$root" log -1 --format=%cI 2>/dev/null || echo 2000-01-01T00:00:00Z)
    find "$stage/$1" -exec touch -d "$date" {} +
    rm -f "$out/$1.zip"
    (cd "$stage" && find "$1" -type f | LC_ALL=C sort | TZ=UTC zip -qX "$out/$1.zip" -@)
    echo "$out/$1.zip"
}
