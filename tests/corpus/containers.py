"""Keys, parameters, PKCS #12 files, OCSP and time-stamps that openssl makes, programs that osslsigncode signs; and what
lies inside any object and an OBJECT IDENTIFIER tells the type of: extensions, attributes, parameters, contents."""

import base64
import contextlib
import socket
import struct
from concurrent.futures import ThreadPoolExecutor

import der

REPLIES = ["sha256 ess_cert_id_chain = yes", "sha1 accuracy = secs:1, millisecs:500, microsecs:100",
           "sha512 ordering = yes", "sha256 clock_precision_digits = 3", "sha384 tsa_name = yes"]
TSA = """[tsa]
serial = serial
digests = sha1, sha256, sha384, sha512
signer_digest = sha256
default_policy = 1.2.3.4
other_policies = 1.2.3
ess_cert_id_alg = {}
{}
"""
INDEX = "V\t300101000000Z\t\t01\tunknown\t/CN=x\nR\t300101000000Z\t240101120000Z,keyCompromise\t02\tunknown\t/CN=y\n"


# Type and command that writes its encoding to standard output; {a|b} stands for either.
RECIPES = """
pkcs8privatekeyinfo pkcs8 -topk8 -nocrypt -in {three|explicit|rsa|psslimited|ec|ed25519|x448|dsa|dh}.key -outform DER
pkcs1rsaprivkey rsa -in {rsa|three}.key -traditional -outform DER
pkcs1rsapubkey rsa -in {rsa|three}.key -RSAPublicKey_out -outform DER
pkcs8encprivatekeyinfo pkcs8 -topk8 -in ec.key -passout pass:a -outform DER {-scrypt|-v2 aes-256-cbc|-v1 PBE-SHA1-3DES\
|-v2 aes-128-cbc -v2prf hmacWithSHA1}
pkcs8encprivatekeyinfo pkcs8 -topk8 -in ec.key -passout pass:a -outform DER -provider legacy -provider default \
{-v1 PBE-MD5-DES|-v2 rc2-cbc}
ecprivatekey ec -in {ec|explicit|sm2}.key -outform DER
ecpkparameters ecparam -name {sect163k1|SM2} -param_enc {named_curve|explicit} -outform DER
dssparams dsaparam -in dsa.params -outform DER
pkcs3dhpraram dhparam -outform DER {-in dh.params|-dsaparam 512}
pkcs12pfx pkcs12 -export -in ca_ec.pem -inkey ec.key -passout pass:a {|-nomac|-keypbe NONE -certpbe NONE|-nokeys\
|-certfile ca_rsa.pem -name one -caname two -CSP three -keyex|-keypbe PBE-SHA1-3DES -certpbe PBE-SHA1-3DES -macalg sha1}
ecdsasigvalue dgst -sha256 -sign ec.key text
ecdsasigvalue pkeyutl -sign -rawin -digest sm3 -inkey sm2.key -in text
dsssigvalue dgst -sha256 -sign dsa.key text
sm2cipher pkeyutl -encrypt -inkey sm2.key -in text
ocsp_ocsprequest ocsp -issuer ca_ec.pem -serial 1 -serial 2 -reqout /dev/stdout {|-no_nonce\
|-signer ca_rsa.pem -signkey rsa.key|-signer ca_ec.pem -signkey ec.key -no_certs}
ocsp_ocspresponse ocsp -index index -CA ca_ec.pem -rsigner ca_rsa.pem -rkey rsa.key -reqin request -respout \
/dev/stdout {|-resp_key_id|-resp_no_certs|-ndays 1}
tsp_timestampreq ts -query -data text {|-cert|-cert -no_nonce -sha512|-tspolicy 1.2.3}
tsp_timestampresp ts -reply -queryfile query -config tsa{0|1|2|3|4} -section tsa -signer tsa.pem -inkey ec.key
tsp_timestampresp ts -reply -queryfile refused -config tsa0 -section tsa -signer tsa.pem -inkey ec.key
pkcs7contentinfo cms -sign -in text -outform DER -signer ca_rsa.pem -inkey rsa.key -cades -keyopt rsa_padding_mode:pss
"""


# The types of what stands behind these OBJECT IDENTIFIERs (RFC 5280, 3739, 5755, 8551, 5035 and others).
EXTENSIONS = {
    9: "x509subjectdirattrs", 14: "octetstring", 15: "bitstring", 16: "x509privkeyusageperiod",
    17: "x509generalnames", 18: "x509generalnames", 19: "x509basicconstraints", 20: "integer", 21: "enumerated",
    23: "oid", 24: "gentime", 27: "integer", 28: "pkixidp", 29: "x509generalnames", 30: "pkixnameconstaints",
    31: "x509crldp", 32: "x509certpolicies", 33: "x509policymappings", 35: "x509akid", 36: "x509policyconstaints",
    37: "x509exkeyusage", 46: "x509crldp", 54: "integer", 55: "ac_seqoftargets", 56: "null",
}
BEHIND = {
    **{f"2.5.29.{number}": kind for number, kind in EXTENSIONS.items()},
    "1.3.6.1.5.5.7.1.1": "pkixaia", "1.3.6.1.5.5.7.1.3": "qcstatements", "1.3.6.1.5.5.7.1.11": "pkixaia",
    "1.2.840.113549.1.1.7": "pkcs1rsaesoaepprarams",
    "1.2.840.113549.1.1.10": "pkcs1rsassapssprarams", "1.2.840.113549.1.3.1": "pkcs3dhpraram",
    "1.2.840.113549.1.5.3": "pkcs5pbeparam", "1.2.840.113549.1.5.12": "pkcs5pbkdf2params",
    "1.2.840.113549.1.5.13": "pkcs5pbes2params", "1.2.840.113549.1.12.1.3": "pkcs12pbeparams",
    "1.2.840.113549.3.2": "pkcs5rc2cbcparameter", "1.2.840.10045.2.1": "ecpkparameters",
    "1.2.840.10040.4.1": "dssparams", "1.2.840.113549.1.12.10.1.1": "pkcs8privatekeyinfo",
    "1.2.840.113549.1.12.10.1.2": "pkcs8encprivatekeyinfo", "1.2.840.113549.1.12.10.1.3": "pkcs12certbag",
    "1.3.6.1.5.5.7.48.1.1": "ocsp_basicocspresponse", "1.2.840.113549.1.9.16.1.4": "tsp_tstinfo",
    "1.2.840.113549.1.9.16.2.12": "ess_signingcertificate", "1.2.840.113549.1.9.16.2.47": "ess_signingcertificatev2",
    "1.2.840.113549.1.9.15": "smimecapabilities", "2.5.4.55": "ac_clearance", "2.5.4.72": "ac_rolesyntax",
    "1.3.6.1.5.5.7.10.1": "ac_svceauthinfo", "1.3.6.1.5.5.7.10.2": "ac_svceauthinfo",
    "1.3.6.1.4.1.311.2.1.4": "authenticode_spcindirectdatacontent",
    "1.3.6.1.4.1.311.2.1.12": "authenticode_spcspopusinfo", "1.3.6.1.4.1.311.2.1.15": "authenticode_spcpeimagedata",
}
BEHIND = {der.oid(oid): kind for oid, kind in BEHIND.items()}
OTHERS = [("pkcs5rc2cbcparameter", 2), ("ac_rolesyntax", 6)]  # a capability is a number, and types may be listed
HOLDERS = (0x04, 0x31, 0xA0)  # an OCTET STRING, a SET of one value, an explicit tag


def elements(octets):
    """The elements that some octets are, or none when they are something else."""
    with contextlib.suppress(IndexError):
        return der.elements(octets)
    return []


def inside(element):
    """Type and octets of each value in an element that an OBJECT IDENTIFIER stands before."""
    parts = elements(element.content) if element.identifier & 0x20 or element.identifier == 4 else []
    kind = BEHIND.get(parts[0].octets) if len(parts) in (2, 3) else None
    if kind:  # behind a BOOLEAN in critical extensions
        value = parts[-1] if parts[1].identifier == 1 else parts[1]
        for held in [value] if value.identifier not in HOLDERS else elements(value.content):
            while held.identifier in HOLDERS and kind != "octetstring" and elements(held.content):
                held = elements(held.content)[0]
            if (kind, held.identifier) not in OTHERS:
                yield kind, held.octets
    for part in parts:
        yield from inside(part)


def safes(file):
    """What a PKCS #12 file holds that is not encrypted."""
    safe = der.Element(elements(elements(elements(file.parts()[1].octets)[0].content)[1].content)[0].content)
    yield "pkcs12authsafe", safe.octets
    yield from (("pkcs12macdata", part.octets) for part in file.parts()[2:])
    for info in safe.parts():
        content = elements(info.parts()[1].content)[0]
        if content.identifier == 4:
            yield "pkcs12safebags", content.content
            yield from (("pkcs12safebag", bag.octets) for bag in der.Element(content.content).parts())


def program():
    """A program of one section that returns."""
    optional = struct.pack("<HBB9I6H4I2H6I", 0x10B, 0, 0, 512, 0, 0, 4096, 4096, 0, 0x400000, 4096, 512, 4, 0, 0, 0, 4,
                           0, 0, 8192, 512, 0, 3, 0, 0, 0, 0, 0, 0, 16) + bytes(128)
    headers = (b"MZ".ljust(60, b"\0") + struct.pack("<I4s2H3I2H", 64, b"PE", 0x14C, 1, 0, 0, 0, len(optional), 0x102)
               + optional + struct.pack("<8s6I2HI", b".text", 512, 4096, 512, 512, 0, 0, 0, 0, 0x60000020))
    return headers.ljust(512, b"\0") + b"\xc3".ljust(512, b"\0")


def first_post(listening):
    """The body of the first request, which gets no answer."""
    with listening.accept()[0] as peer, peer.makefile("rb") as lines:
        head = dict(line.lower().split(b": ") for line in iter(lines.readline, b"\r\n") if b": " in line)
        return lines.read(int(head[b"content-length"]))


def signed_programs(work):
    """Type and octets of signatures, and of a request for a time-stamp."""
    def sign(way):
        der.run(*f"osslsigncode sign -certs ca_rsa.pem -key rsa.key -in program -out signed {way}".split(), cwd=work)
    (work / "program").write_bytes(program())
    for way in ("", "-n name -i http://a.test/ -ph", "-h sha1 -i http://a.test/"):
        sign(way)
        # Behind the program and eight octets of its own; filled up to a multiple of eight.
        yield "pkcs7contentinfo", der.Element((work / "signed").read_bytes(), len(program()) + 8).octets
        (work / "signed").unlink()
    with socket.create_server(("127.0.0.1", 0)) as listening, ThreadPoolExecutor(1) as pool:
        listening.settimeout(10)
        request = pool.submit(first_post, listening)
        with contextlib.suppress(RuntimeError):  # there is no time-stamp
            sign(f"-t http://127.0.0.1:{listening.getsockname()[1]}/")
        yield "authenticode_timestampreq", base64.b64decode(request.result())


def prepare(work):
    def openssl(command):
        der.openssl(*command.split(), cwd=work)
    (work / "serial").write_text("0A")
    (work / "index").write_text(INDEX)
    for number, words in enumerate(REPLIES):
        digest, _, line = words.partition(" ")
        (work / f"tsa{number}").write_text(TSA.format(digest, line))
    openssl("genpkey -genparam -algorithm DH -pkeyopt group:ffdhe2048 -out dh.params")
    openssl("req -x509 -new -key ec.key -config corpus.cnf -extensions stamps -subj /CN=tsa -out tsa.pem")
    openssl("ocsp -issuer ca_ec.pem -serial 1 -serial 2 -serial 3 -reqout request")
    openssl("ts -query -data text -cert -out query")
    openssl("ts -query -data text -tspolicy 1.2.3.5 -out refused")


def made(work, refused):
    """Type and octets of all that openssl makes here, with the keys and authorities in the folder."""
    prepare(work)
    for kind, _, command in der.recipes(RECIPES):
        try:
            octets = der.openssl(*command.split(), cwd=work)
        except RuntimeError as error:
            refused.append(str(error).splitlines()[0])
            continue
        yield kind, octets
        if kind == "pkcs12pfx":
            yield from safes(der.Element(octets))
    try:
        yield from signed_programs(work)
    except (RuntimeError, OSError) as error:
        refused.append(f"no signed programs: {error}")
