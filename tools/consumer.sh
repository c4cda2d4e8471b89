#!/bin/sh
# Installs a build into a scratch tree, moves it, and builds the examples against it: through
# pkg-config, shared and static, and through the CMake package. The examples for signed messages and the
# openssl command must agree. Headers must stand alone as C and C++.
#   tools/consumer.sh BUILD
set -eu
cd "$(dirname "$0")/.."
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

DESTDIR="$work/staged" cmake --install "$build" --prefix /usr >/dev/null
mv "$work/staged/usr" "$work/usr"
libdir=$(dirname "$(find "$work/usr" -name libquarn_asn1.so)")
printf '\060\003\002\001\005' >"$work/sample.der"
expected='{ "type": "SEQUENCE", "value": [ { "type": "INTEGER", "value": 5 } ] }'

ran() { # how, program
  printed=$(LD_LIBRARY_PATH="$libdir" "$2" "$work/sample.der" | tr -s ' \n' ' ' | sed 's/ $//')
  if [ "$printed" != "$expected" ]; then
    echo "consumer through $1 printed: $printed" >&2
    exit 1
  fi
  echo "consumer through $1: good"
}

export PKG_CONFIG_PATH="$libdir/pkgconfig"
cc -std=c99 -Wall -Wextra -Wpedantic -Werror examples/consumer/to_json.c -o "$work/by_pkgconfig" \
  $(pkg-config --cflags --libs quarn-asn1)
ran "pkg-config" "$work/by_pkgconfig"
cc -std=c99 examples/consumer/to_json.c -o "$work/by_archive" $(pkg-config --cflags quarn-asn1) \
  "$libdir/libquarn_asn1.a" "$libdir/libquarn_util.a" -lstdc++
ran "pkg-config and archives" "$work/by_archive"
cmake -S examples/consumer -B "$work/cmake" -DCMAKE_PREFIX_PATH="$work/usr" >/dev/null
cmake --build "$work/cmake" >/dev/null
ran "the CMake package" "$work/cmake/to_json"

cc -std=c99 -Wall -Wextra -Wpedantic -Werror examples/consumer/certificate.c -o "$work/certificate" \
  $(pkg-config --cflags --libs quarn-asn1)
root=$(find /usr/share/ca-certificates -name '*.crt' | sort | head -n 1)
expected=$(openssl x509 -in "$root" -noout -serial | cut -d= -f2 | tr A-F a-f)
printed=$(LD_LIBRARY_PATH="$libdir" "$work/certificate" "$root" | sed -n 's/^serial number \(00\)*//p')
if [ "$printed" != "$expected" ]; then
  echo "the example printed serial number $printed of $root, not $expected" >&2
  exit 1
fi
echo "typed example: good"

cmake -S examples/signed_message -B "$work/signed" -DCMAKE_PREFIX_PATH="$work/usr" \
  -DCMAKE_C_FLAGS="-Wall -Wextra -Wpedantic -Werror" >/dev/null
cmake --build "$work/signed" >/dev/null
export LD_LIBRARY_PATH="$libdir"
openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -subj /CN=signer -keyout "$work/key.pem" \
  -out "$work/signer.pem" 2>/dev/null
head -c 100000 /dev/zero | tr '\0' 'x' >"$work/content"
for form in "" -stream; do
  openssl cms -sign -binary $form -nodetach -md sha256 -in "$work/content" -signer "$work/signer.pem" \
    -inkey "$work/key.pem" -outform DER -out "$work/signed.der"
  "$work/signed/verify" - "$work/cut" <"$work/signed.der" | grep -q "signature verified"
  cmp "$work/content" "$work/cut"
  "$work/signed/restream" "$work/signed.der" "$work/again.der"
  openssl cms -verify -binary -inform DER -in "$work/again.der" -noverify -out "$work/cut" 2>/dev/null
  cmp "$work/content" "$work/cut"
  sed 's/xxxxx/xxxxy/' "$work/signed.der" >"$work/tampered.der"
  if "$work/signed/verify" "$work/tampered.der" >/dev/null; then
    echo "a tampered message was verified" >&2
    exit 1
  fi
done
if "$work/signed/verify" -x sha256 "$work/signed.der" >/dev/null 2>&1; then
  echo "an option that does not exist was passed over" >&2
  exit 1
fi
unset LD_LIBRARY_PATH
echo "signed messages: good"

for standard in "cc -x c -std=c99" "cc -x c -std=c11" "c++ -x c++ -std=c++11" "c++ -x c++ -std=c++20"; do
  for header in $(cd "$work/usr/include" && find . -name '*.h'); do
    echo "#include \"$header\"" |
      $standard -Wall -Wextra -Wpedantic -Werror -fsyntax-only -I "$work/usr/include" -
  done
done
echo "headers stand alone as C99, C11, C++11 and C++20"
