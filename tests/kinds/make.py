#!/usr/bin/env python3
"""Makes the files of this folder, one of each kind that is told by sight: with openssl where it can, else by hand. Keys
are new each time, so that it is run for a new kind only, and tools/decoding.py after it.

    make.py [KIND…]
"""

import pathlib
import sys
import tempfile

HERE = pathlib.Path(__file__).parent
sys.path.insert(0, str(HERE.parent / "corpus"))

import built  # noqa: E402
import messages  # noqa: E402
from der import (Element, bit_string, boolean, context, extension, integer, octet_string, oid, openssl,  # noqa: E402
                 sequence, text, time, wrap)

CONFIG = """[req]
distinguished_name = name
[name]
[v3]
basicConstraints = critical, CA:TRUE
keyUsage = critical, keyCertSign, cRLSign, digitalSignature
subjectAltName = DNS:example.org, otherName:1.3.6.1.4.1.311.20.2.3;UTF8:user@example.org
[stamps]
extendedKeyUsage = critical, timeStamping
[ca]
database = index
default_md = sha256
crlnumber = number
[tsa]
serial = number
signer_digest = sha256
digests = sha256
default_policy = 1.2.3.4
"""
SIGNER = "-signer ca.pem -inkey ec.key"
COMMANDS = {  # each writes its file to standard output
    "certificate": "x509 -in ca.pem -outform DER",
    "crl": "crl -in list.pem -outform DER",
    "request": "req -new -key ec.key -config config -reqexts v3 -subj /CN=a -outform DER",
    "signed": f"cms -sign -in text -nodetach -outform DER {SIGNER}",
    "enveloped": "cms -encrypt -in text -aes128 -outform DER -recip ca.pem",
    "digested": "cms -digest_create -in text -md sha256 -outform DER",
    "encrypted": "cms -EncryptedData_encrypt -in text -aes128 -secretkey 000102030405060708090a0b0c0d0e0f -outform DER",
    "certificates": "crl2pkcs7 -nocrl -certfile ca.pem -outform DER",
    "token": "ts -reply -queryfile query -config config -section tsa -signer tsa.pem -inkey ec.key -token_out",
    "private-key": "pkcs8 -topk8 -nocrypt -in ec.key -outform DER",
    "encrypted-private-key": "pkcs8 -topk8 -in ec.key -passout pass:a -outform DER",
    "pkcs12": "pkcs12 -export -in ca.pem -inkey ec.key -passout pass:a -name one -keypbe NONE -certpbe NONE",
    "rsa-private-key": "rsa -in rsa.key -traditional -outform DER",
    "ec-private-key": "ec -in ec.key -outform DER",
    "public-key": "pkey -in ec.key -pubout -outform DER",
    "rsa-public-key": "rsa -in rsa.key -RSAPublicKey_out -outform DER",
    "curve": "ecparam -name prime256v1 -outform DER",
    "curve-parameters": "ecparam -name prime256v1 -param_enc explicit -outform DER",
    "dh-parameters": "dhparam -outform DER 512",
    "dsa-parameters": "dsaparam -in dsa.params -outform DER",
    "signature": "dgst -sha256 -sign ec.key text",
    "ocsp-request": "ocsp -issuer ca.pem -serial 1 -no_nonce -reqout /dev/stdout",
    "ocsp-response": ("ocsp -index index -CA ca.pem -rsigner ca.pem -rkey ec.key -reqin request -resp_no_certs"
                      " -respout /dev/stdout"),
    "time-stamp-request": "ts -query -data text -cert",
    "time-stamp-response": "ts -reply -queryfile query -config config -section tsa -signer tsa.pem -inkey ec.key",
    "sm2-cipher": "pkeyutl -encrypt -inkey sm2.key -in text",
}
SM3_WITH_SM2 = oid("1.2.156.10197.1.501")
DIGEST = bytes(range(32))
NOW = time("20260101000000Z")
POLICY = sequence(sequence(oid("1.3.6.1.5.5.7.19.1")))
BASIC_PATH = oid("1.3.6.1.5.5.7.17.3")
VERSION = integer(1)


def prepare(work):
    (work / "text").write_text("some text")
    (work / "config").write_text(CONFIG)
    (work / "number").write_text("0A")
    (work / "index").write_text("R\t300101000000Z\t260101000000Z,keyCompromise\t01\tunknown\t/CN=x\n")
    for command in ("genpkey -algorithm EC -pkeyopt ec_paramgen_curve:P-256 -out ec.key", "genpkey -algorithm SM2 -out sm2.key",
                    "genpkey -algorithm RSA -pkeyopt rsa_keygen_bits:512 -out rsa.key",
                    "genpkey -genparam -algorithm DSA -pkeyopt dsa_paramgen_bits:512 -out dsa.params",
                    "req -x509 -new -key ec.key -config config -extensions v3 -subj /CN=ca -days 3650 -out ca.pem",
                    "req -x509 -new -key ec.key -config config -extensions stamps -subj /CN=tsa -days 3650 -out tsa.pem",
                    "ca -config config -name ca -gencrl -keyfile ec.key -cert ca.pem -out list.pem -crldays 30",
                    "ocsp -issuer ca.pem -serial 1 -no_nonce -reqout request", "ts -query -data text -cert -out query"):
        openssl(*command.split(), cwd=work)


def authenticode(signed):
    """What osslsigncode writes: PKCS #7, whose content is no OCTET STRING."""
    image = sequence(bit_string(b""), context(0, context(2, context(0, primitive=True))))
    indirect = sequence(sequence(oid("1.3.6.1.4.1.311.2.1.15"), image), sequence(built.SHA256, octet_string(DIGEST)))
    version, digests, _, *rest = Element(Element(signed).parts()[1].content).parts()
    content = messages.content_info("1.3.6.1.4.1.311.2.1.4", indirect)
    return messages.content_info("1.2.840.113549.1.7.2",
                                 sequence(version.octets, digests.octets, content, *[each.octets for each in rest]))


def seals(certificate):
    mark = bit_string(DIGEST)
    signed = (octet_string(certificate), SM3_WITH_SM2)
    header = sequence(text("ES", 0x16), VERSION, text("maker", 0x16))
    picture = sequence(text("png", 0x16), octet_string(b"\x89PNG"), integer(40), integer(30))
    days = ("260101000000Z", "260101000000Z", "280101000000Z")
    digest = sequence(sequence(text("SM3", 0x13), octet_string(DIGEST)))
    earlier = sequence(VERSION, text("A seal"), sequence(signed[0]), *[time(day) for day in days])
    later = sequence(VERSION, text("A seal"), integer(2), digest, *[time("20" + day) for day in days])
    info, gb_info = [sequence(header, text("seal-1", 0x16), details, picture) for details in (earlier, later)]
    seal = sequence(info, sequence(*signed, mark))
    gb_seal = sequence(gb_info, *signed, mark)
    yield "seal", seal
    yield "seal-signature", sequence(sequence(VERSION, seal, mark, mark, text("/1/a", 0x16), *signed), mark)
    yield "gb-seal", gb_seal
    yield "gb-seal-signature", sequence(sequence(VERSION, gb_seal, NOW, mark, text("/1/a", 0x16)), *signed, mark)


def by_hand(made, work):
    certificate = made["certificate"]
    roles = dict(built.attribute_certificates())["roles"]
    yield "attribute-certificate", sequence(roles(built.SHA256), built.SHA256, bit_string(DIGEST))
    yield "authenticated", messages.authenticated(work)
    yield "authenticode", authenticode(made["signed"])
    yield "signed-data", Element(made["signed"]).parts()[1].parts()[0].octets
    chain = sequence(sequence(made["token"]))
    yield "evidence-record", sequence(VERSION, sequence(built.SHA256), sequence(chain))
    yield from seals(certificate)
    yield "sm2-enveloped-key", sequence(sequence(oid("1.2.156.10197.1.104.1")), made["sm2-cipher"],
                                        bit_string(b"\4" + bytes(64)), bit_string(DIGEST))
    search = wrap(0x63, octet_string(b"o=a"), integer(2, 10), integer(0, 10), integer(0), integer(0), boolean(False),
                  context(7, b"objectClass", primitive=True), sequence())
    yield "ldap-message", sequence(integer(2), search)
    references = context(0, context(0, Element(certificate).content))
    request = sequence(sequence(references, sequence(BASIC_PATH), POLICY))
    yield "scvp-request", messages.content_info("1.2.840.113549.1.9.16.1.10", request)
    back = sequence(oid("1.3.6.1.5.5.7.18.10"), octet_string(certificate))
    reply = sequence(context(0, Element(certificate).content), NOW, sequence(sequence(BASIC_PATH)), sequence(back))
    response = sequence(VERSION, integer(7), NOW, sequence(), context(4, reply))
    yield "scvp-response", messages.content_info("1.2.840.113549.1.9.16.1.11", response)
    yield "scvp-request-alone", request
    yield "certificate-store", sequence(sequence(certificate, sequence(sequence(VERSION, text("mine")))))
    yield "path", sequence(certificate)
    yield "cross-pair", sequence(context(0, certificate))
    yield "certificate-bag", sequence(oid("1.2.840.113549.1.9.22.1"), context(0, octet_string(certificate)))
    yield "crl-bag", sequence(oid("1.2.840.113549.1.9.23.1"), context(0, octet_string(made["crl"])))
    yield "code-time-stamp-request", sequence(oid("1.3.6.1.4.1.311.3.2.1"),
                                              messages.content_info("1.2.840.113549.1.7.1", octet_string(DIGEST)))
    yield "name", built.ISSUER
    yield "extensions", sequence(extension("2.5.29.19", sequence(boolean(True)), True))
    yield "digest-info", sequence(built.SHA256, octet_string(DIGEST))
    yield "algorithm", sequence(oid("1.2.840.113549.1.1.10"), sequence(context(2, integer(32))))


def main(kinds):
    with tempfile.TemporaryDirectory() as folder:
        work = pathlib.Path(folder)
        prepare(work)
        made = {kind: openssl(*command.split(), cwd=work) for kind, command in COMMANDS.items()}
        made.update(by_hand(made, work))
    for kind, octets in made.items():
        if not kinds or kind in kinds:
            (HERE / f"{kind}.der").write_bytes(octets)


if __name__ == "__main__":
    main(sys.argv[1:])
