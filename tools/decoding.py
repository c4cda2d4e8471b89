#!/usr/bin/env python3
"""Writes docs/decoding.md: what `quarn decode` makes of a file of each kind in tests/kinds, by running it.

    decoding.py QUARN           writes the page
    decoding.py QUARN --check   stops if the page is not what the command says

Either way each file must be named as the table below has it, without doubt, and so must a PEM block of it with its
label; `quarn check` must find nothing in any.
"""

import base64
import difflib
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGE = ROOT / "docs" / "decoding.md"
FOLDER = "tests/kinds"

# Kind of file, its name in tests/kinds, PEM label, the type, and parts of the lines that are shown besides the first
# two.
KINDS = [
    ("certificate", "certificate", "CERTIFICATE", "Certificate", ["  subject ", "userPrincipalName", "'user@"]),
    ("certificate revocation list", "crl", "X509 CRL", "CertificateList", ["  issuer "]),
    ("certificate request", "request", "CERTIFICATE REQUEST", "CertificationRequest",
     ["  subject ", "extensionRequest"]),
    ("attribute certificate", "attribute-certificate", "ATTRIBUTE CERTIFICATE", "AttributeCertificate",
     [" role", "RoleSyntax"]),
    ("path of certificates", "path", "", "Certificates", []),
    ("pair of cross certificates", "cross-pair", "", "CertificatePair", []),
    ("store of certificates", "certificate-store", "", "CertStore", [" attrs"]),
    ("signed message", "signed", "CMS", "ContentInfo", ["SignedData", " signerInfos", "signingTime"]),
    ("enveloped message", "enveloped", "CMS", "ContentInfo", ["EnvelopedData", " kari"]),
    ("digested message", "digested", "CMS", "ContentInfo", ["DigestedData"]),
    ("encrypted message", "encrypted", "CMS", "ContentInfo", ["EncryptedData"]),
    ("authenticated message", "authenticated", "CMS", "ContentInfo", ["AuthenticatedData", " kekri"]),
    ("certificates in PKCS #7", "certificates", "PKCS7", "ContentInfo", ["SignedData", " signerInfos"]),
    ("signed message without its ContentInfo", "signed-data", "", "SignedData", []),
    ("signature of a program", "authenticode", "PKCS7", "ContentInfo",
     ["SignedData", "SpcIndirectDataContent", "SpcPeImageData"]),
    ("time-stamp request of program signers", "code-time-stamp-request", "", "TimeStampRequest", []),
    ("private key (PKCS #8)", "private-key", "PRIVATE KEY", "PrivateKeyInfo", ["  algorithm ", "ECPrivateKey"]),
    ("encrypted private key", "encrypted-private-key", "ENCRYPTED PRIVATE KEY", "EncryptedPrivateKeyInfo",
     ["PBES2-params"]),
    ("PKCS #12", "pkcs12", "PKCS12", "PFX", ["AuthenticatedSafe", "SafeContents", "certBag", "keyBag"]),
    ("bag of a certificate", "certificate-bag", "", "CertBag", [" Certificate"]),
    ("bag of a revocation list", "crl-bag", "", "CRLBag", [" CertificateList"]),
    ("RSA private key", "rsa-private-key", "RSA PRIVATE KEY", "RSAPrivateKey", []),
    ("RSA public key", "rsa-public-key", "RSA PUBLIC KEY", "RSAPublicKey", ["publicExponent"]),
    ("private key of an elliptic curve", "ec-private-key", "EC PRIVATE KEY", "ECPrivateKey", [" parameters"]),
    ("elliptic curve, by name", "curve", "EC PARAMETERS", "EcpkParameters", []),
    ("elliptic curve, in full", "curve-parameters", "EC PARAMETERS", "EcpkParameters", []),
    ("public key", "public-key", "PUBLIC KEY", "SubjectPublicKeyInfo", [" parameters"]),
    ("Diffie-Hellman parameters", "dh-parameters", "DH PARAMETERS", "DHParameter", [" base"]),
    ("DSA parameters", "dsa-parameters", "DSA PARAMETERS", "Dss-Parms", [" q "]),
    ("signature of DSA, ECDSA or SM2", "signature", "", "Dss-Sig-Value", [" s "]),
    ("SM2 encryption", "sm2-cipher", "", "SM2Cipher", [" hash"]),
    ("SM2 key pair, enveloped", "sm2-enveloped-key", "", "SM2EnvelopedKey", [" algorithm ", "SM2Cipher"]),
    ("OCSP request", "ocsp-request", "OCSP REQUEST", "OCSPRequest", [" serialNumber"]),
    ("OCSP response", "ocsp-response", "OCSP RESPONSE", "OCSPResponse",
     ["BasicOCSPResponse", "RevokedInfo", "revocationReason"]),
    ("time-stamp request", "time-stamp-request", "", "TimeStampReq", ["digest "]),
    ("time-stamp response", "time-stamp-response", "", "TimeStampResp", [" status ", "TSTInfo", "genTime"]),
    ("time-stamp", "token", "CMS", "ContentInfo", ["SignedData", "TSTInfo", "genTime"]),
    ("evidence record", "evidence-record", "", "EvidenceRecord", ["ArchiveTimeStamp", "TSTInfo"]),
    ("seal (GM/T 0031)", "seal", "", "SESeal", ["maker"]),
    ("signature with a seal (GM/T 0031)", "seal-signature", "", "SES-Signature", [" SESeal"]),
    ("seal (GB/T 38540)", "gb-seal", "", "GB-SES-Seal", ["maker"]),
    ("signature with a seal (GB/T 38540)", "gb-seal-signature", "", "GB-SES-Signature", [" GB-SES-Seal"]),
    ("LDAP message", "ldap-message", "", "LDAPMessage", ["SearchRequest"]),
    ("SCVP request", "scvp-request", "", "ContentInfo", ["CVRequest"]),
    ("SCVP request without its ContentInfo", "scvp-request-alone", "", "CVRequest", []),
    ("SCVP response", "scvp-response", "", "ContentInfo", ["CVResponse", "swb-", " holds Certificate"]),
    ("name", "name", "", "Name", []),
    ("extensions", "extensions", "", "Extensions", ["BasicConstraints", "cA "]),
    ("digest with its algorithm", "digest-info", "", "DigestInfo", []),
    ("algorithm", "algorithm", "", "AlgorithmIdentifier", ["RSASSA-PSS-params"]),
]
HEAD = """# What `quarn decode` recognises

Made by `tools/decoding.py`, which runs the command on the files in `tests/kinds`; do not edit.

Without `--type`, the label of a PEM block tells the type. Without a label, or with one that is not known, the octets
do: by the structure of the types below, by object identifiers, by how long numbers are. If two types remain, the
command shows one and says which other it could be. A wrong guess would be worse than none, so that not everything is
told:

- an Extension, an EncryptedPrivateKeyInfo, and an AlgorithmIdentifier whose parameters are not NULL, only if their
  object identifiers are known;
- RSA public keys with the exponents 3 and 5 are told with a doubt: Diffie-Hellman has these numbers as bases;
- GeneralNames, policies, the parameters of PKCS #1 and PKCS #5, the ValPolRequest of SCVP, enveloped key pairs but that
  of SM2, and whatever else is but a few strings or numbers: `--type` names them.

| kind of file | type | PEM label |
|---|---|---|
"""


class Mistake(Exception):
    pass


def decode(quarn, path, data=None):
    """The lines of a file that is named without doubt."""
    command = [quarn, "decode", *([] if data else [path])]
    done = subprocess.run(command, input=data, capture_output=True, cwd=ROOT, check=False)
    if done.returncode != 0 or done.stderr:
        raise Mistake(f"{path}: exit code {done.returncode}: {done.stderr.decode()}")
    return done.stdout.decode().splitlines()


def pem(label, octets):
    return f"-----BEGIN {label}-----\n{base64.encodebytes(octets).decode()}-----END {label}-----\n".encode()


def shown(lines, parts):
    """The first two lines and those that have the parts, each after the last; dots for what is left out."""
    numbers = list(range(min(2, len(lines))))
    for part in parts:
        found = next((i for i in range(numbers[-1] + 1, len(lines)) if part in lines[i]), None)
        if found is None:
            raise Mistake(f"{lines[0]}: no line with {part}")
        numbers.append(found)
    for before, number in zip([-1, *numbers], numbers):
        if number > before + 1:
            yield "    …"
        yield lines[number]
    if numbers[-1] + 1 < len(lines):
        yield "    …"


def page(quarn):
    text = HEAD + "".join(f"| {kind} | {name} | {label} |\n" for kind, _, label, name, _ in KINDS) + "\n```\n"
    for kind, file, label, name, parts in KINDS:
        path = f"{FOLDER}/{file}.der"
        lines = decode(quarn, path)
        if lines[0].split()[0].rstrip(",") != name:
            raise Mistake(f"{path}: {lines[0]}, not {name}")
        if label and decode(quarn, path, pem(label, (ROOT / path).read_bytes())) != lines:
            raise Mistake(f"{path}: otherwise with the label {label}")
        text += "\n".join([f"$ quarn decode {path}", *shown(lines, parts), ""])
    return text + "```\n"


def main(quarn, *options):
    quarn = str(pathlib.Path(quarn).resolve())
    made = page(quarn)
    if options != ("--check",):
        PAGE.write_text(made)
        return 0
    old = PAGE.read_text()
    changes = difflib.unified_diff(old.splitlines(True), made.splitlines(True), str(PAGE), "as the command is")
    sys.stdout.writelines(changes)
    files = sorted((ROOT / FOLDER).glob("*.der"))
    checked = subprocess.run([quarn, "check", *files], capture_output=True, check=False)
    if checked.returncode != 0:
        raise Mistake(f"no DER: {checked.stdout.decode()}{checked.stderr.decode()}")
    unused = {path.stem for path in files} - {file for _, file, *_ in KINDS}
    if unused:
        raise Mistake(f"in no row: {', '.join(sorted(unused))}")
    return int(old != made)


if __name__ == "__main__":
    if len(sys.argv) < 2 or sys.argv[2:] not in ([], ["--check"]):
        sys.exit(__doc__)
    try:
        sys.exit(main(*sys.argv[1:]))
    except Mistake as mistake:
        sys.exit(str(mistake))
