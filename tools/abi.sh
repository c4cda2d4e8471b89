#!/bin/sh
# Compares the names that the shared libraries export with abi/symbols.txt and with the headers.
#   tools/abi.sh BUILD            compares; exit 1 when they differ
#   tools/abi.sh BUILD --write    writes new names into abi/symbols.txt under the current versions
set -eu
cd "$(dirname "$0")/.."
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# library version-of-new-names
exported() {
  nm -D --defined-only --with-symbol-versions "$build/lib$1.so" | awk '$2 != "A" {print $3}' |
    sed 's/@@/ /' | awk -v lib="$1" '{print lib, $1, $2}'
}
{ exported quarn_util; exported quarn_asn1; } | LC_ALL=C sort >"$work/built"
if [ "${2:-}" = --write ]; then
  {
    echo "# Every exported name: library, name, symbol version in which it appeared. Lines are only ever added."
    cat "$work/built"
  } >abi/symbols.txt
fi
grep -v '^#' abi/symbols.txt | LC_ALL=C sort >"$work/stored"
if ! diff -u "$work/stored" "$work/built"; then
  echo "abi/symbols.txt (-) and the built libraries (+) differ" >&2
  exit 1
fi

awk '{print $2}' "$work/built" | LC_ALL=C sort >"$work/names"
cat include/*.h include/quarn_asn1/*.h | cc -E -P -x c -I include - |
  grep -oE '\bquarn_[A-Za-z0-9_]+ *\(' | tr -d ' (' | LC_ALL=C sort -u >"$work/declared"
if ! diff -u "$work/names" "$work/declared"; then
  echo "exported names (-) and names declared in the headers (+) differ" >&2
  exit 1
fi
echo "$(wc -l <"$work/names") exported names agree"
