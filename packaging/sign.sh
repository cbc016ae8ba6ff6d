#!/usr/bin/env bash
# Signs a DLL, program or installer in place; what VARNOKE_SIGN names when osslsigncode does the signing.
# usage: sign.sh FILE   VARNOKE_SIGN_CERTIFICATE and VARNOKE_SIGN_KEY name PEM files, VARNOKE_SIGN_TIMESTAMP (optional)
# a time-stamping service's address. With a hardware token write a command of your own instead.
set -euo pipefail

signed=$(mktemp -u "$1.XXXXXX")
trap 'rm -f "$signed"' EXIT
osslsigncode sign -certs "$VARNOKE_SIGN_CERTIFICATE" -key "$VARNOKE_SIGN_KEY" -h sha256 -n Varnoke \
    ${VARNOKE_SIGN_TIMESTAMP:+-ts "$VARNOKE_SIGN_TIMESTAMP"} -in "$1" -out "$signed" >/dev/null
mv "$signed" "$1"
