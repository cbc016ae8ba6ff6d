#!/usr/bin/env bash
# Checks of the source tree that no compiler makes: sizes, format, resource ids, who frees what.
set -euo pipefail
cd "$(dirname "$0")/.."

failed=0
complain() {
    echo "check-source: $*" >&2
    failed=1
}

mapfile -t sources < <(find . -path ./build -prune -o \( -name '*.cpp' -o -name '*.h' -o -name '*.rc' \) -printf '%P\n' | sort)
for file in "${sources[@]}"; do
    lines=$(wc -l <"$file")
    [ "$lines" -le 400 ] || complain "$file has $lines lines; 400 are the limit"
done

mapfile -t code < <(printf '%s\n' "${sources[@]}" | grep -E '\.(cpp|h)$')
clang-format --dry-run --Werror "${code[@]}" || complain "format the files above with clang-format -i"

# SDK headers by their lower-case names: the SDK's own mixed case breaks on case-sensitive disks.
if grep -nE '#include <[a-zA-Z/_]*[A-Z][a-zA-Z/_]*\.h>' "${code[@]}"; then
    complain "system headers are included in lower case"
fi

# Owned resources go back in their owners only.
owners='^(base/(Owned|ComApartment)\.h|mfc/|abi/|tests/)'
naked='(SysFreeString|VariantClear|CloseHandle|DeleteObject|CoTaskMemFree|GlobalFree|FreeLibrary|FindClose|DeleteDC|RegCloseKey|CoUninitialize|OleUninitialize)\('
if printf '%s\n' "${code[@]}" | grep -vE "$owners" | xargs grep -nE "$naked"; then
    complain "resources are released by their owner types only"
fi

# Every resource id is defined once and used.
while read -r id; do
    [ "$(grep -rlw --include='*.cpp' --include='*.h' --include='*.rc' "$id" ui | grep -vc 'resource\.h')" -gt 0 ] ||
        complain "$id is defined in ui/resource.h and not used"
done < <(grep -oE '^#define +ID[A-Z]_[A-Z0-9_]+' ui/resource.h | awk '{print $2}')
dup=$(grep -oE '^#define +ID[A-Z]*_[A-Z0-9_]+' ui/resource.h | sort | uniq -d)
[ -z "$dup" ] || complain "defined twice: $dup"

# Every reason code is explained to its readers.
while read -r code; do
    for page in docs/troubleshooting.md docs/troubleshooting.zh-CN.md; do
        grep -qE "(^\\| $code \\||\`$code\`)" "$page" || complain "$page does not have the code $code"
    done
done < <(
    grep -oE '^    [A-Z][A-Za-z0-9]* = [1-9][0-9]*,' include/varnoke/Cause.h | grep -oE '[0-9]+'
    grep -oE 'TextId::[A-Za-z]+, L"[a-z-]+"' host/Texts.cpp | cut -d'"' -f2
    grep -oE '\{L"[a-z0-9.-]+", k(Fault|Warning)' doctor/Reasons.cpp | cut -d'"' -f2
)

scripts/check-rooms.py || failed=1

exit $failed
