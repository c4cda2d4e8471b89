#!/bin/sh
# Installs the Debian packages that the build and the tests need, those that are missing only.
#   tools/setup.sh [bench|fuzz|lint]    what these need on top
# Without root rights it prints the command to run and stops.
set -eu

packages="g++ cmake ninja-build pkg-config python3 rapidjson-dev libboost-dev libcli11-dev libgtest-dev
googletest openssl libssl-dev gpgsm gpg-agent gnutls-bin ca-certificates jq tzdata
python3-pyasn1-modules ldap-utils slapd osslsigncode"
case "${1:-}" in
  bench) packages="$packages libbenchmark-dev libmbedtls-dev libbotan-2-dev libtasn1-6-dev
libtasn1-bin libgnutls28-dev libksba-dev heimdal-multidev" ;;
  fuzz) packages="$packages clang libclang-rt-dev" ;;
  lint) packages="$packages clang-tidy cppcheck" ;;
esac

missing=""
for package in $packages; do
  status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
  [ "$status" = installed ] || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

# So that no package starts a service.
command="env RUNLEVEL=1 apt-get install -y --no-install-recommends$missing"
if [ "$(id -u)" != 0 ]; then
  echo "These packages are missing; as root, run:" >&2
  echo "  apt-get update && $command" >&2
  exit 1
fi
echo "Installing:$missing" >&2
export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
$command -qq >/dev/null
