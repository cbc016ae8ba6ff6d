#!/usr/bin/env bash
# varnoke-<version>.msi (per machine) and varnoke-<version>-user.msi (per user): the product without stand-ins.
# usage: make-msi.sh BUILD-FOLDER OUTPUT-FOLDER   VARNOKE_PACKAGE_VERSION overrides the version (tests of upgrades).
set -euo pipefail
source "$(dirname "$0")/common.sh" "$@"
version=${VARNOKE_PACKAGE_VERSION:-$version}

files=$stage/files
mkdir -p "$files/samples" "$files/docs"
cp "$build"/bin/{Varnoke.dll,varnoke-host.exe,varnoke-doctor.exe} "$files/"
cp "$root/samples/ModelConfig.Xml" "$files/samples/"
cp "$root"/README*.md "$files/"
cp "$root"/docs/*.md "$files/docs/"
# In UTF-16, as the library itself stores settings: text of any language survives there.
{ printf '\xff\xfe'; sed 's/$/\r/' "$root/packaging/samples/Varnoke.ini" | iconv -f UTF-8 -t UTF-16LE; } >"$files/samples/Varnoke.ini"
sign "$files"/*.dll "$files"/*.exe

cd "$files" # wixl takes the sources from here
{
    echo '<Wix xmlns="http://schemas.microsoft.com/wix/2006/wi"><Fragment><ComponentGroup Id="Documents" Directory="DOCS">'
    for file in docs/*.md; do
        id=Doc.$(basename "$file" .md | tr -c 'A-Za-z0-9.\n' _)
        echo "<Component Id=\"$id\" Guid=\"*\" Win64=\"yes\"><File Id=\"$id.md\" Source=\"$file\" KeyPath=\"yes\"/></Component>"
    done
    echo '</ComponentGroup></Fragment></Wix>'
} >"$stage/documents.wxs"

# Rewrites a table of a package with a sed command; its result must differ.
edit_table() {
    local table=$stage/$2.idt
    msiinfo export "$1" "$2" >"$table.old"
    sed "$3" "$table.old" >"$table"
    if cmp -s "$table" "$table.old"; then
        echo "make-msi: table $2 is not what was expected" >&2
        exit 1
    fi
    msibuild "$1" -i "$table"
}

# What wixl has no words for is put into its result.
complete() {
    # Versions of the binaries, as in their resources.
    edit_table "$1" File 's/^\(\(Varnoke\.dll\|varnoke_[a-z]*\.exe\)\t[^\t]*\t[^\t]*\t[^\t]*\)\t[^\t]*\t[^\t]*/\1\t'"$version"'.0\t1033/'
    msibuild "$1" -i "$root/packaging/rollout/IniFile.idt" -i "$root/packaging/rollout/RemoveFile.idt"
    # The old product goes after the new one has come, so that what both have stays.
    edit_table "$1" InstallExecuteSequence 's/^\(RemoveExistingProducts\t\)\t1401/\1\t6601/
        $a WriteIniValues\t\t5100\r\nRemoveIniValues\t\t2200\r'
    # The same version, built again, replaces itself.
    edit_table "$1" Upgrade 's/\t1\t\tWIX_UPGRADE_DETECTED/\t513\t\tWIX_UPGRADE_DETECTED/'
}

make_msi() {
    local msi=$out/$1.msi
    rm -f "$msi"
    wixl -a x64 -D Version="$version" -D Scope="$2" -D RegistryRoot="$3" -D UpgradeCode="$4" \
        -o "$msi" "$root/packaging/rollout/product.wxs" "$stage/documents.wxs"
    complete "$msi"
    sign "$msi"
    echo "$msi"
}
make_msi "varnoke-$version" perMachine HKLM 6B0C2F0E-54C1-4E45-9C0E-1B7E5B5D7A10
make_msi "varnoke-$version-user" perUser HKCU E1B6A2F4-0C5B-4B0D-8B57-2D6E0C4D9F36
