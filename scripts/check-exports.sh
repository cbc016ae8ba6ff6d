#!/usr/bin/env bash
# Compares what the built library exports with the list in exports/, looks at the DLLs it imports and, for the
# Microsoft-ABI build, at its size.
# usage: check-exports.sh mingw|msabi DLL [--update]
set -euo pipefail
cd "$(dirname "$0")/.."

abi=$1
dll=$2
expected=exports/Varnoke-$abi.txt
size_limit=$((400 * 1024))

readobj=$(command -v llvm-readobj || command -v llvm-readobj-14 || true)
if [ -n "$readobj" ]; then
    exported() { "$readobj" --coff-exports "$dll" | sed -n 's/^ *Name: \(..*\)$/\1/p'; }
    imported() { "$readobj" --coff-imports "$dll" | sed -n '/^Import {/,/^}/s/^  Name: \(.*\)$/\1/p'; }
else
    objdump=x86_64-w64-mingw32-objdump
    exported() { $objdump -p "$dll" | sed -n '/Ordinal\/Name Pointer/,/^$/s/^\s*\[ *[0-9]*\]\( +base\[[ 0-9]*\] *[0-9a-f]*\)\? \(.*\)$/\2/p'; }
    imported() { $objdump -p "$dll" | sed -n 's/^\s*DLL Name: \(.*\)$/\1/p'; }
fi

if [ "${3:-}" = --update ]; then
    exported | LC_ALL=C sort >"$expected"
    exit
fi

failed=0
if ! diff -u "$expected" <(exported | LC_ALL=C sort); then
    echo "the exported names differ from $expected" >&2
    failed=1
fi

# What every Windows has and what a dynamically linked Visual C++ host brings; the neighbours come at their first call.
allowed='^(kernel32|user32|gdi32|advapi32|ole32|oleaut32|comctl32|comdlg32|shell32|shlwapi|atl)\.dll$'
case $abi in
mingw) runtime='^msvcrt\.dll$' ;;
msabi) runtime='^(vcruntime140|api-ms-win-crt-[a-z]+-l1-[0-9]-[0-9])\.dll$' ;;
esac
while IFS= read -r name; do
    if ! grep -qiE "$allowed" <<<"$name" && ! grep -qiE "$runtime" <<<"$name"; then
        echo "$dll needs $name" >&2
        failed=1
    fi
done < <(imported)

size=$(stat -c %s "$dll")
if [ "$abi" = msabi ] && [ "$size" -gt $size_limit ]; then
    echo "$dll has $size bytes, more than $size_limit" >&2
    failed=1
fi
exit $failed
