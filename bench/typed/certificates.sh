#!/bin/sh
# Makes the certificates and requests of the benchmarks with the openssl command, and the signers of
# messages with their keys.
#   bench/typed/certificates.sh FOLDER
# Writes NNN.csr and NNN.crt, DER: 200 requests that ask for extensions, and what an authority with an
# EC key makes of them. Most are like those of servers; every tenth is of an authority, with the
# extensions that only those have.
set -eu
folder=$1
rm -rf "$folder"
mkdir -p "$folder"
cd "$folder"

cat > ca.cnf <<END
[req]
distinguished_name = dn
x509_extensions = ca
[dn]
[ca]
basicConstraints = critical, CA:TRUE
subjectKeyIdentifier = hash
END
openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -keyout ca.key -out ca.pem \
  -config ca.cnf -days 3650 -subj "/C=GB/O=Example Trust Services/CN=Example Issuing CA 1" 2>/dev/null

# What is in all, the rest of a server's, the rest of an authority's.
extensions() {
  cat <<END
subjectKeyIdentifier = hash
authorityKeyIdentifier = keyid, issuer
subjectAltName = @names
issuerAltName = URI:http://www.example.org/, email:ca@example.org
certificatePolicies = 2.23.140.1.2.2, @policy
crlDistributionPoints = URI:http://crl$1.example.org/issuing.crl, URI:ldap://ldap.example.org/cn=CA?certificateRevocationList
authorityInfoAccess = OCSP;URI:http://ocsp.example.org/, caIssuers;URI:http://www.example.org/issuing.crt
END
  if [ $(($1 % 10)) = 0 ]; then
    cat <<END
basicConstraints = critical, CA:TRUE, pathlen:1
keyUsage = critical, keyCertSign, cRLSign
nameConstraints = permitted;DNS:example.org, permitted;email:.example.org, excluded;IP:10.0.0.0/255.0.0.0
policyMappings = 1.3.6.1.4.1.55555.1.1:1.3.6.1.4.1.55555.1.2, 2.23.140.1.2.1:2.23.140.1.2.2
policyConstraints = requireExplicitPolicy:1, inhibitPolicyMapping:0
inhibitAnyPolicy = 2
subjectInfoAccess = caRepository;URI:http://repository.example.org/
END
  else
    # As long as a list of three certificate timestamps, which most certificates of servers have.
    cat <<END
basicConstraints = critical, CA:FALSE
keyUsage = critical, digitalSignature, keyAgreement
extendedKeyUsage = serverAuth, clientAuth
1.3.6.1.4.1.55555.2 = DER:04:82:01:69$(printf "%0722d" 0 | sed 's/../:&/g')
END
  fi
}

number=0
while [ $number -lt 200 ]; do
  name=$(printf %03d $number)
  cat > one.cnf <<END
[req]
distinguished_name = dn
req_extensions = request
string_mask = utf8only
[dn]
[request]
subjectAltName = @names
keyUsage = digitalSignature
extendedKeyUsage = serverAuth
[names]
DNS.1 = host$number.example.org
DNS.2 = www.host$number.example.org
DNS.3 = *.host$number.example.org
email.1 = admin$number@example.org
IP.1 = 192.0.2.$number
IP.2 = 2001:db8::$number
[policy]
policyIdentifier = 1.3.6.1.4.1.55555.1.1
CPS.1 = http://www.example.org/cps.html
userNotice.1 = @notice
[notice]
explicitText = UTF8:Issued for example $number
[certificate]
$(extensions $number)
END
  openssl req -new -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -keyout /dev/null -config one.cnf \
    -subj "/C=GB/ST=Example County/L=Exampleton/O=Example Company $number/OU=Web/CN=host$number.example.org" \
    -outform DER -out "$name.csr" 2>/dev/null
  openssl x509 -req -inform DER -in "$name.csr" -CA ca.pem -CAkey ca.key -days 365 -sha256 \
    -set_serial "0x5EED00000000000000000000000000$(printf %04X $number)" \
    -extfile one.cnf -extensions certificate -outform DER -out "$name.crt" 2>/dev/null
  number=$((number + 1))
done

signer() {
  name=$1
  shift
  openssl req -x509 "$@" -nodes -keyout "$name.key" -out "$name.pem" -config ca.cnf -days 3650 \
    -subj "/C=GB/O=Example Company/OU=Mail/CN=Example Signer" \
    -addext "authorityKeyIdentifier = keyid, issuer" -addext "keyUsage = critical, digitalSignature" \
    -addext "subjectAltName = email:signer@example.org" 2>/dev/null
}
signer signer-rsa -newkey rsa:2048
signer signer-ec -newkey ec -pkeyopt ec_paramgen_curve:P-256
rm -f ca.cnf one.cnf ca.key ca.pem
