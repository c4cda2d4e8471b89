#!/bin/sh
# The main job on a real certificate: octets to a JSON document, and back to the same octets.
set -eu
cd "$(dirname "$0")/.."

cmake --preset release >/dev/null
cmake --build --preset release --target quarn_cli >/dev/null
quarn=build/release/quarn
certificate=$(ls /usr/share/ca-certificates/mozilla/*.crt | head -n 1)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

echo "\$ quarn dump $certificate"
"$quarn" dump "$certificate" | head -n 24
echo "  ..."
echo "\$ quarn json $certificate > certificate.json"
"$quarn" json "$certificate" >"$work/certificate.json"
head -n 20 "$work/certificate.json"
echo "  ..."
echo "\$ quarn der certificate.json | cmp - certificate.der"
openssl x509 -in "$certificate" -outform DER -out "$work/certificate.der"
"$quarn" der "$work/certificate.json" | cmp - "$work/certificate.der"
echo "the same $(wc -c <"$work/certificate.der") octets"
