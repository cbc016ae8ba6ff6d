#!/usr/bin/env bash
# Builds the SDK's sample host and the reference host from the archive alone, with the framework's subset in the
# place of MFC, and lets the sample host do a silent run that prints every field of the records.
# usage: check-sdk.sh BUILD-FOLDER
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
build=$(cd "$1" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
    echo "check-sdk: $*" >&2
    exit 1
}

"$root/packaging/make-sdk.sh" "$build" "$work/dist" >/dev/null
"$root/packaging/make-sdk.sh" "$build" "$work/again" >/dev/null
cmp "$work"/dist/*.zip "$work"/again/*.zip || fail "two archives of one build differ"
(cd "$work" && unzip -q dist/*.zip)
sdk=$(echo "$work"/varnoke-sdk-*)
# The symbol file keeps the compiler's command lines.
if grep -rl --exclude=*.pdb "$root" "$sdk"; then fail "a file names this machine's folders"; fi
[ ! -e "$sdk/include/afxwin.h" ] || fail "the framework's subset is on a consumer's include path"

# What Visual C++ would refuse, it refuses with the remedy.
refuses() {
    local remedy=$1 said
    shift
    said=$(clang++ --target=x86_64-pc-windows-msvc -fsyntax-only -x c++ -DUNICODE -D_UNICODE -D_DLL -D_AFXDLL "$@" \
        "$sdk/include/varnoke/Requirements.h" 2>&1 || true)
    grep -q "error: .*$remedy" <<<"$said" || fail "not refused: $*"
}
refuses x64 -U_WIN64
refuses Unicode -U_UNICODE
refuses /MD -D_DEBUG
refuses /MT -U_DLL
refuses 'Shared DLL' -U_AFXDLL

# A consumer's project. The subset and the run-time library of this compiler stand for Visual C++ and MFC.
runtime="$build/abi/CMakeFiles/abi_start_exe.dir/startup_exe.cpp.obj $build/lib/mfc.lib libatl.a libuser32.a libgdi32.a \
libole32.a liboleaut32.a libuuid.a libadvapi32.a libshell32.a libcomctl32.a libcomdlg32.a $build/lib/abi_runtime.lib \
$build/lib/abi_vcruntime.lib $build/lib/abi_crtstring.lib"
consume() {
    cmake -S "$1" -B "$2" -G Ninja --toolchain "$root/cmake/toolchain-msabi.cmake" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_PREFIX_PATH="$sdk" -DVarnoke_DIR="$sdk/lib/cmake/Varnoke" -DCMAKE_CXX_STANDARD_INCLUDE_DIRECTORIES="$root/mfc" \
        -DCMAKE_CXX_STANDARD_LIBRARIES="$runtime" -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >"$work/log" 2>&1 &&
        cmake --build "$2" >>"$work/log" 2>&1 || { tail -n 30 "$work/log" >&2; fail "$1 does not build"; }
    if grep -oE -- "-(I|isystem) *$root[^ \"]*" "$2/compile_commands.json" | grep -vE "$root/(mfc|cmake/\.\./abi/include|abi/include)$"; then
        fail "$1 includes from the project"
    fi
}
consume "$sdk/samples/sample-host" "$work/sample"
consume "$sdk/reference-host" "$work/reference"

# A workstation: the SDK's library and the new program, beside the stand-ins.
app=$work/app
mkdir "$app" "$work/vault" "$work/vault/files" "$work/docs"
cp "$build"/bin/{Durvell,QORParser,QORLocal}.dll "$build/bin/ModelConfig.Xml" "$sdk/bin/Varnoke.dll" "$work/sample/SampleHost.exe" "$app"
printf 'drawing' >"$work/vault/files/泵体.dwg"
cat >"$work/message.xml" <<'XML'
<?xml version="1.0" encoding="UTF-8"?><root><objs><type id="LoginInfo"><obj><pro name="UserName" value="wang"/><pro name="Password" value="secret"/><pro name="PLMServer" value="plm"/></obj></type><type id="step"><obj><pro name="STEPID" value="S1"/></obj></type><type id="DRAWING"><obj><pro name="ID" value="D1"/><pro name="FNAME" value="泵体.dwg"/><pro name="SIGN_ROLE" value="校对"/></obj></type></objs></root>
XML
cat >"$app/Varnoke.ini" <<'INI'
[Sign]
Index=3
Pin=271828
[SignDate]
DateStyle=DD/MM/YYYY
DateOffsetX=1.5
DateOffsetY=-2.25
DateFontSize=11
DateTextColor=4660
DateFontName=SimSun
INI
dos() { echo "Z:${1//\//\\}"; }
export DURVELL_VAULT SIGNSERVER_JOURNAL
DURVELL_VAULT=$(dos "$work/vault")
SIGNSERVER_JOURNAL=$(dos "$work/sign.log")
"$root/scripts/wine-run.sh" "$build" "$app/SampleHost.exe" "$(dos "$work/message.xml")" "$(dos "$work/docs")" "$(dos "$work/ret.xml")" \
    >"$work/out" || { cat "$work/out" >&2; fail "the sample host failed"; }
expect() {
    tr -d '\r' <"$work/out" | grep -qxF -- "$1" || { cat "$work/out" >&2; fail "missing: $1"; }
}
while IFS= read -r line; do expect "$line"; done <<EXPECTED
user=wang
password=******
server=plm
steps=
  property=STEPID=S1
documents=DRAWING
  property=SIGN_ROLE=校对
m_strFirstText=D1
m_strUserName=wang
m_strRole=校对
m_dA=0
m_dH=0
m_nSealIndex=3
m_strPin=271828
m_strDateText=$(date +%d/%m/%Y)
m_dDateOffsetX=1.5
m_dDateOffsetY=-2.25
m_dDateFontSize=11
m_nDateTextColor=4660
m_strDateFontName=SimSun
m_nScope=0
m_strTempDrawing=
m_strReserved4=
signed 1 of 1
EXPECTED
grep -q 'SignRet" value="1"' "$work/ret_Ret.Xml" || fail "the return file does not say signed"
echo "the SDK's sample host signed 1 of 1"
