#!/usr/bin/env bash
# Installs, uses, upgrades and removes the product under Wine, silently, with every exit code looked at.
# What passed once with the same packages and the same test is not tried again.
# usage: rollout.sh BUILD-FOLDER
set -Eeuo pipefail

trap 'echo "rollout: line $LINENO: $BASH_COMMAND" >&2' ERR
root=$(cd "$(dirname "$0")/../.." && pwd)
build=$(cd "$1" && pwd)
place=$build/rollout # its bin is the other products' folder, its prefix this test's own
mkdir -p "$place/bin"
key=$(cat "$build"/bin/*.{dll,exe} "$root"/packaging/*.sh "$root"/packaging/{rollout,demo,samples}/* "$root"/tests/rollout/* | cksum)
if [ "$key" = "$(cat "$place/passed" 2>/dev/null)" ]; then
    echo "unchanged since it passed"
    exit
fi
if [ -z "${VARNOKE_ROLLOUT:-}" ]; then # on a display of its own, where every window that shows is noted
    export VARNOKE_ROLLOUT=1
    unset VARNOKE_DISPLAY
    exec "$root/scripts/with-wine.sh" "$0" "$build"
fi

[ ! -e "$place/dirty" ] || rm -rf "$place/wineprefix" # a run that broke off left something installed
touch "$place/dirty"
cp "$build"/bin/{Durvell,QORParser,QORLocal,QORGrid,DwgViewer,SignServer}.dll "$build"/bin/{com-servers.txt,ModelConfig.Xml} "$place/bin/"
work=$(mktemp -d)
trap 'kill ${watcher:-} 2>/dev/null || true; rm -rf "$work"' EXIT
fail() {
    echo "rollout: $*" >&2
    exit 1
}
# expect CODE COMMAND...: the exit code as a shell sees it, 67 for Windows' 1603 (failed), 194 for 3010 (restart needed).
expect() {
    local code=$1 got=0
    shift
    "$@" || got=$?
    [ "$got" = "$code" ] || fail "exit code $got instead of $code: $*"
}
windows() { grep -c '^MapNotify' "$work/windows" || true; }
no_window() { [ "$(windows)" = "$1" ] || fail "a window showed: $2: $(xwininfo -display "$VARNOKE_DISPLAY" -root -children | grep '"')"; }
wine() { "$root/scripts/wine-run.sh" "$place" "$@"; }
msi() { wine msiexec "$1" "Z:${2//\//\\}" /qn /l*v "Z:${work//\//\\}\\msi.log" "${@:3}"; }
# Wine lists a package for one user under HKLM, Windows under HKCU.
registered() {
    for root_key in HKLM HKCU; do
        wine reg query "$root_key\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall" /s 2>/dev/null || true
    done | tr -d '\0\r' | awk '/DisplayVersion/ { print $NF }'
}
installed_files() { (cd "$1" && find . | LC_ALL=C sort); }

# Two versions; the newer is signed with a throw-away certificate, so that its files differ.
openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=throw-away -addext extendedKeyUsage=codeSigning \
    -keyout "$work/key.pem" -out "$work/certificate.pem" 2>/dev/null
export VARNOKE_SIGN_CERTIFICATE=$work/certificate.pem VARNOKE_SIGN_KEY=$work/key.pem
VARNOKE_SIGN= VARNOKE_PACKAGE_VERSION=1.0.0 "$root/packaging/make-msi.sh" "$build" "$work/old" >/dev/null
VARNOKE_SIGN=$root/packaging/sign.sh VARNOKE_PACKAGE_VERSION=1.1.0 "$root/packaging/make-msi.sh" "$build" "$work/new" >/dev/null
signed() { osslsigncode verify -CAfile "$work/certificate.pem" -in "$1" >/dev/null 2>&1; }
signed "$work/new/varnoke-1.1.0.msi" || fail "the installer is not signed"
! msiinfo export "$work/old/varnoke-1.0.0.msi" File | grep -E 'Durvell|QOR|SignServer|DwgViewer' || fail "stand-ins in the product"

wine cmd /c exit # the prefix, whose making shows a window
stdbuf -oL xev -display "$VARNOKE_DISPLAY" -root -event substructure >"$work/windows" 2>&1 &
watcher=$!
drive=$place/wineprefix/drive_c
before=$(installed_files "$drive/Program Files")

life_of() { # SUFFIX FOLDER REGISTRY-ROOT
    local app=$drive/$2 program
    program=C:\\${2//\//\\}\\varnoke-host.exe
    expect 0 msi /i "$work/old/varnoke-1.0.0$1.msi" SERVERIP=10.1.2.3
    no_window 0 "while it was installed"
    [ "$(registered)" = 1.0.0 ] || fail "version 1.0.0$1 is not registered"
    grep -q '^ServerIP=10.1.2.3' "$app/Varnoke.ini" || fail "the given server is not in the settings"
    printf 'zhang=zhang.san\r\n' | sed -i '/ServerIP/r /dev/stdin' "$app/Varnoke.ini"

    rm -rf "$work/run"
    mkdir "$work/run"
    cp "$build/bin/ModelConfig.Xml" "$app/" # beside the host, whose own product would bring it
    (
        cd "$work/run"
        wine "$build/bin/varnoke-samples.exe" . >/dev/null
        rm Varnoke.ini
        export WINEPATH="Z:${place//\//\\}\\bin" SIGNSERVER_JOURNAL="Z:${work//\//\\}\\run\\journal.log"
        expect 0 wine "$program" back-sign --message message.xml --vault vault --work work --return return.xml >host.log 2>&1
        [ "$(grep -o 'name="SignRet" value="1"' return_Ret.Xml | wc -l)" = 3 ] && ! grep 日志 host.log # that it can't be written
    ) || { cat "$work/run/host.log"; fail "no run from the installed place"; }
    rm "$app/ModelConfig.Xml"
    no_window 0 "in a silent run"

    expect 0 msi /i "$work/new/varnoke-1.1.0$1.msi"
    [ "$(registered)" = 1.1.0 ] || fail "version 1.1.0$1 has not replaced the older one: $(registered)"
    signed "$app/Varnoke.dll" || fail "the upgrade left the old library"
    grep -q '^zhang=zhang.san' "$app/Varnoke.ini" || fail "the upgrade lost the administrator's settings"
    expect 0 msi /x "$work/new/varnoke-1.1.0$1.msi"
    [ ! -e "$app" ] || fail "left: $(find "$app")"
    [ -z "$(registered)" ] || fail "still registered"
    ! wine reg query "$3\\Software\\Varnoke" >/dev/null 2>&1 || fail "its registry key is left"
}
life_of "" "Program Files/Varnoke" HKLM
life_of -user "users/$(id -un)/AppData/Local/Programs/Varnoke" HKCU

no_window 0 "in a silent installation"

# A file in use: the new one takes its place at the next start of the system.
expect 0 msi /i "$work/old/varnoke-1.0.0.msi"
wine 'C:\Program Files\Varnoke\varnoke-host.exe' option >/dev/null 2>&1 &
user=$!
# The main window shows before the dialog.
dialog() { xwininfo -display "$VARNOKE_DISPLAY" -root -tree | grep -q '"选项"'; }
for _ in $(seq 100); do
    ! dialog || break
    sleep 0.1
done
dialog && sleep 0.5 && [ "$(windows)" != 0 ] || fail "no window of the program that was to hold the library, or none is noticed"
shown=$(windows)
expect 194 msi /i "$work/new/varnoke-1.1.0.msi"
no_window "$shown" "while files were in use"
wine taskkill /f /im varnoke-host.exe >/dev/null
wait $user || true
wine wineboot >/dev/null
signed "$drive/Program Files/Varnoke/Varnoke.dll" || fail "the file in use was not replaced at the next start"
expect 0 msi /x "$work/new/varnoke-1.1.0.msi"

# No step back. (Tried on a fresh installation: Wine's record of related products does not outlive an upgrade.)
expect 0 msi /i "$work/new/varnoke-1.1.0.msi"
expect 67 msi /i "$work/old/varnoke-1.0.0.msi"
expect 0 msi /x "$work/new/varnoke-1.1.0.msi"

# A folder that may not be written to: nothing is installed, nothing registered.
WINEPREFIX=$place/wineprefix /usr/lib/wine/wineserver64 -k || true
chmod 555 "$drive/Program Files"
expect 67 setpriv --bounding-set=-dac_override,-dac_read_search,-fowner --inh-caps=-all \
    "$root/scripts/wine-run.sh" "$place" msiexec /i "Z:${work//\//\\}\\old\\varnoke-1.0.0.msi" /qn
chmod 755 "$drive/Program Files"
[ -z "$(registered)" ] || fail "registered without rights"
diff <(echo "$before") <(installed_files "$drive/Program Files") || fail "files were left"

# The portable demo, where no stand-in is registered.
for name in QORParser SignServer QORGrid DwgViewer; do
    expect 0 wine regsvr32 /u /s "Z:${place//\//\\}\\bin\\$name.dll"
done
VARNOKE_SIGN= "$root/packaging/make-demo.sh" "$build" "$work/demo" >/dev/null
(
    mkdir "$work/演示 folder"
    cd "$work/演示 folder"
    unzip -q "$work"/demo/*.zip
    cd varnoke-demo-*
    expect 0 wine cmd /c demo.cmd >"$work/demo.log" 2>&1
    [ "$(grep -o 'name="SignRet" value="1"' demo-out/return_Ret.Xml | wc -l)" = 3 ] || fail "the demo has not signed all three"
    cd demo-out
    expect 0 wine ../varnoke-host.exe sign --message message.xml --vault vault --work work --auto >"$work/demo.log" 2>&1
    mv ../varnoke-standins.manifest ../off
    expect 2 wine ../varnoke-host.exe sign --message message.xml --vault vault --work work --auto >"$work/demo.log" 2>&1
) || { cat "$work/demo.log"; fail "the portable demo"; }

rm "$place/dirty" "$place/wineprefix/registered"
echo "$key" >"$place/passed"
