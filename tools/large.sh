#!/bin/sh
# Signed messages of GIB gibibytes (5), which are nowhere whole: openssl signs zeros that come from a pipe, and
# the example, and the command, take the content out again. Each must find the same and hold under 16 MiB.
#   tools/large.sh BUILD [GIB]
set -eu
cd "$(dirname "$0")/.."
build=$1
size=$((${2:-5} * 1024 * 1024 * 1024))
limit=16384 # KiB resident
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

DESTDIR="$work/staged" cmake --install "$build" --prefix /usr >/dev/null
libdir=$(dirname "$(find "$work/staged" -name libquarn_asn1.so)")
export LD_LIBRARY_PATH="$libdir"
cmake -S examples/signed_message -B "$work/example" -DCMAKE_BUILD_TYPE=Release \
  -DCMAKE_PREFIX_PATH="$work/staged/usr" >/dev/null
cmake --build "$work/example" >/dev/null

zeros() { head -c "$size" /dev/zero; }

# Octets in hexadecimal.
octets() {
  for octet in "$@"; do printf "\\$(printf %o "0x$octet")"; done
}

# A length in nine octets.
length() { octets 88 $(printf %016x "$1" | sed 's/../& /g'); }

# A message in definite lengths, without signers: its content begins after 77 octets.
definite() {
  content=$((size + 10))
  info=$((11 + content + 10))
  signed_data=$((5 + info + 10 + 2))
  octets 30; length $((11 + signed_data + 20))
  octets 06 09 2A 86 48 86 F7 0D 01 07 02 A0; length $((signed_data + 10))
  octets 30; length "$signed_data"
  octets 02 01 01 31 00 30; length "$info"
  octets 06 09 2A 86 48 86 F7 0D 01 07 01 A0; length "$content"
  octets 04; length "$size"
  zeros
  octets 31 00
}

segmented() {
  zeros | openssl cms -sign -binary -stream -nodetach -md sha256 -signer "$work/signer.pem" -inkey "$work/key.pem" \
    -outform DER
}

# what, expected, command with its arguments: reads the message from the standard input
measured() {
  what=$1
  expected=$2
  shift 2
  status=0
  /usr/bin/time -f %M -o "$work/peak" "$@" >"$work/said" || status=$?
  peak=$(tail -n 1 "$work/peak")
  if ! grep -q "$expected" "$work/said" || [ "$peak" -gt "$limit" ]; then
    echo "$what: exit status $status, $peak KiB; it said:" >&2
    cat "$work/said" >&2
    exit 1
  fi
  echo "$what: $peak KiB; $(grep "$expected" "$work/said")"
}

openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -subj /CN=signer -keyout "$work/key.pem" \
  -out "$work/signer.pem" 2>/dev/null

definite | measured "definite lengths" "content of $size octets, from 77 to $((87 + size))" "$work/example/verify" -
segmented | measured "segments, signed by openssl" "signature verified" "$work/example/verify" - /dev/null
segmented | measured "quarn cms" "content of $size octets" "$build/quarn" cms --content /dev/null -
