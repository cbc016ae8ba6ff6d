#!/usr/bin/env bash
# Brings mfc140u.dll, Microsoft's redistributable, into build/real-mfc from the Python package that ships it.
# It is never committed. Exit code 1, and one line that says why, when it can't be had.
set -euo pipefail
cd "$(dirname "$0")/.."

version=311
wheel_hash=3ce80b34b22b17ccbd937a6e78e7225d80c52f5ab9940fe0506a1a16f3dab503
dll_hash=643ce7fe6a203c53a96a00f272a1a5b42d5b0c320c84364a6fe866307a19bb65
folder=build/real-mfc

is_there() { echo "$dll_hash  $folder/mfc140u.dll" | sha256sum --check --status 2>/dev/null; }
is_there && exit

mkdir -p "$folder"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
echo "pywin32==$version --hash=sha256:$wheel_hash" >"$work/requirements.txt"
if ! python3 -m pip download --quiet --disable-pip-version-check --no-deps --require-hashes \
    --only-binary=:all: --platform win_amd64 --python-version 3.11 --implementation cp --abi cp311 \
    --timeout 15 --retries 1 --dest "$work" --requirement "$work/requirements.txt" >"$work/log" 2>&1; then
    echo "mfc140u.dll can't be had: $(tail -n 1 "$work/log")"
    exit 1
fi
python3 - "$work" "$folder" <<'PYTHON'
import glob, sys, zipfile
with zipfile.ZipFile(glob.glob(sys.argv[1] + "/*.whl")[0]) as wheel:
    with open(sys.argv[2] + "/mfc140u.dll", "wb") as dll:
        dll.write(wheel.read("pythonwin/mfc140u.dll"))
PYTHON
is_there || { echo "mfc140u.dll is not the one that was expected"; exit 1; }
