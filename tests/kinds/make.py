#!/usr/bin/env python3
"""Makes the files of this folder, one of each kind that is told by sight: from the corpus where it has one, else by
hand. Run for a new kind only, and tools/decoding.py after it.

    make.py CORPUS [KIND…]
"""

import pathlib
import sys

HERE = pathlib.Path(__file__).parent
sys.path.insert(0, str(HERE.parent / "corpus"))

import built  # noqa: E402
import messages  # noqa: E402
from der import (SHA256, Element, bit_string, boolean, context, extension, integer, octet_string, oid,  # noqa: E402
                 sequence, text, time)

# Kind, and the files of the corpus of which the smallest is taken; if it has to hold an OBJECT IDENTIFIER, that.
FOUND = """
certificate x509pubkeycert/extensions16_*
attribute-certificate attributecertificate/built_attributes.der
crl x509crl/reason1.der
request pkcs10certreq/both0.der
signed pkcs7contentinfo/signed1.der
enveloped pkcs7contentinfo/enveloped4.der
digested pkcs7contentinfo/digest0.der
encrypted pkcs7contentinfo/encrypted0.der
certificates pkcs7contentinfo/certtool_certificate0.der
authenticode pkcs7contentinfo/other* 1.3.6.1.4.1.311.2.1.4
private-key pkcs8privatekeyinfo/other* 1.2.840.10045.2.1
encrypted-private-key pkcs8encprivatekeyinfo/other* 1.2.840.113549.1.5.13
pkcs12 pkcs12pfx/other* 1.2.840.113549.1.12.10.1.1
rsa-private-key pkcs1rsaprivkey/other*
ec-private-key ecprivatekey/other* 1.2.840.10045.3.1.7
rsa-public-key pkcs1rsapubkey/other*
curve ecpkparameters/other* 1.2.840.10045.3.1.7
curve-parameters ecpkparameters/other* 1.2.840.10045.1.1
dh-certificate x509pubkeycert/key_dh.der
dsa-parameters dssparams/other*
signature ecdsasigvalue/other*
code-time-stamp-request authenticode_timestampreq/other*
ocsp-request ocsp_ocsprequest/other*
ocsp-response ocsp_ocspresponse/other*
time-stamp-request tsp_timestampreq/other*
time-stamp-response tsp_timestampresp/other* 1.2.840.113549.1.9.16.1.4
sm2-cipher sm2cipher/other*
ldap-message ldapmessage/3_*
"""
SM3_WITH_SM2 = oid("1.2.156.10197.1.501")
DIGEST = bytes(range(32))
NOW = time("20260101000000Z")
POLICY = sequence(sequence(oid("1.3.6.1.5.5.7.19.1")))
BASIC_PATH = oid("1.3.6.1.5.5.7.17.3")
VERSION = integer(1)


def found(corpus):
    for kind, pattern, *held in map(str.split, FOUND.strip().split("\n")):
        files = [path.read_bytes() for path in corpus.glob(pattern)]
        yield kind, min([octets for octets in files if all(oid(each) in octets for each in held)], key=len)


def authenticated(corpus):
    """With the recipient of an enveloped message, who has the key already."""
    enveloped = Element((corpus / "pkcs7contentinfo/enveloped8.der").read_bytes()).parts()[1].parts()[0]
    content = messages.content_info("1.2.840.113549.1.7.1", octet_string(b"some text"))
    hmac = sequence(oid("1.2.840.113549.2.9"))
    return messages.content_info("1.2.840.113549.1.9.16.1.2", sequence(
        integer(0), enveloped.parts()[1].octets, hmac, content, octet_string(DIGEST)))


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


def by_hand(made):
    certificate, token = made["certificate"], Element(made["time-stamp-response"]).parts()[1].octets
    yield "token", token
    yield "public-key", Element(certificate).parts()[0].parts()[6].octets
    dh_key = Element(made.pop("dh-certificate")).parts()[0].parts()[5]
    yield "dh-parameters", dh_key.parts()[0].parts()[1].octets
    yield "signed-data", Element(made["signed"]).parts()[1].parts()[0].octets
    yield "evidence-record", sequence(VERSION, sequence(SHA256), sequence(sequence(sequence(token))))
    yield from seals(certificate)
    yield "sm2-enveloped-key", sequence(sequence(oid("1.2.156.10197.1.104.1")), made["sm2-cipher"],
                                        bit_string(b"\4" + bytes(64)), bit_string(DIGEST))
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
    yield "name", built.ISSUER
    yield "extensions", sequence(extension("2.5.29.19", sequence(boolean(True)), True))
    yield "digest-info", sequence(SHA256, octet_string(DIGEST))
    yield "algorithm", sequence(oid("1.2.840.113549.1.1.10"), sequence(context(2, integer(32))))


def main(corpus, *kinds):
    made = dict(found(corpus))
    made |= {"authenticated": authenticated(corpus), **dict(by_hand(made))}
    for kind in kinds or made:
        (HERE / f"{kind}.der").write_bytes(made[kind])


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]), *sys.argv[2:])
