"""Messages that openssl makes, CMS and PKCS #7, whole and what their ContentInfo holds."""

import itertools

import der

# Types by the content types whose values they are. Others are not opened.
HELD = {"1.2.840.113549.1.7.2": "pkcs7signeddata", "1.2.840.113549.1.7.3": "cmsenvelopeddata",
        "1.2.840.113549.1.7.5": "pkcs7digesteddata", "1.2.840.113549.1.7.6": "cmsencrypteddata"}
FOLDERS = ("pkcs7contentinfo", *HELD.values())

SECRET = "-secretkey 000102030405060708090a0b0c0d0e0f"
SIGNER = "-signer ca_{0}.pem -inkey {0}.key"
SIGNERS = ["rsa", "ec", "dsa", "pss", "rsa3"]
WAYS = ["", "-nodetach", "-nodetach -noattr", "-nodetach -nocerts -keyid", "-nodetach -cades", "-nodetach -nosmimecap",
        "-nodetach -econtent_type 1.2.3", "-nodetach -stream -indef", "-noattr -stream -indef",
        "-nodetach -certfile ca_ed448.pem",
        "-nodetach -receipt_request_all -receipt_request_to a@example.com -receipt_request_from b@example.com"]
DIGESTS = ["sha1", "sha224", "sha384", "sha512", "sha3-256", "md5"]
SEVERAL = ["rsa ec", "ec dsa rsa", "rsa rsa3 rsaodd ec dsa"]
CIPHERS = ["aes128", "aes192", "aes256", "des3", "camellia128", "camellia256", "aes-256-gcm", "aes-128-gcm"]
RECIPIENTS = {
    "rsa": "-recip ca_rsa.pem", "keyid": "-keyid -recip ca_rsa.pem",
    "oaep": "-recip ca_rsa.pem -keyopt rsa_padding_mode:oaep",
    "oaep256": "-recip ca_rsa3.pem -keyopt rsa_padding_mode:oaep -keyopt rsa_oaep_md:sha256"
               " -keyopt rsa_oaep_label:0A0B",
    "agreed": "-recip ca_ec.pem", "agreedkeyid": "-keyid -recip ca_ec.pem",
    "agreed256": "-recip ca_ec.pem -keyopt ecdh_kdf_md:sha256 -wrap aes128-wrap",
    "cofactor": "-recip ca_ec.pem -keyopt ecdh_cofactor_mode:1",
    "kek": f"{SECRET} -secretkeyid 0A0B", "password": "-pwri_password a",
    "several": f"-pwri_password a {SECRET} -secretkeyid 01 -recip ca_rsa.pem -recip ca_ec.pem -recip ca_rsaodd.pem",
}


def recipes():
    """Name and command, which writes the file that follows -out."""
    for (number, way), key in itertools.product(enumerate(WAYS), SIGNERS):
        yield f"signed_{key}{number}", f"cms -sign -in text -binary {SIGNER.format(key)} {way}"
    for digest, key in itertools.product(DIGESTS, ("rsa", "ec")):
        yield f"signed_{key}_{digest}", f"cms -sign -in text -nodetach -md {digest} {SIGNER.format(key)}"
    for number, keys in enumerate(SEVERAL):
        signers = " ".join(SIGNER.format(key) for key in keys.split())
        for way in ("-nodetach", "-nodetach -stream -indef", "-keyid"):
            yield f"several{number}{way[-6:]}", f"cms -sign -in text {way} {signers}"
    for cipher, (name, recipient) in itertools.product(CIPHERS, RECIPIENTS.items()):
        yield f"for_{name}_{cipher}", f"cms -encrypt -in text -binary -{cipher} {recipient}"
    for name, recipient in RECIPIENTS.items():
        yield f"stream_for_{name}", f"cms -encrypt -in text -binary -stream -indef -aes256 {recipient}"
    for cipher, octets in (("aes128", 16), ("aes256", 32), ("des3", 24), ("camellia192", 24)):
        yield f"encrypted_{cipher}", f"cms -EncryptedData_encrypt -in text -{cipher} -secretkey {'0A' * octets}"
    for digest in DIGESTS:
        yield f"digest_{digest}", f"cms -digest_create -in text -binary -md {digest}"
    for command in ("digest_create", "data_create"):
        yield f"stream_{command}", f"cms -{command} -in text -binary -stream -indef"
        yield command, f"cms -{command} -in text -binary"
    yield "smime_detached", f"smime -sign -in text {SIGNER.format('rsa')}"
    yield "smime_stream", f"smime -sign -in text -nodetach -stream -indef {SIGNER.format('rsa')}"
    yield "smime_for_rsa", "smime -encrypt -in text -des3 ca_rsa.pem"
    yield "smime_for_two", "smime -encrypt -in text -aes256 ca_rsa.pem ca_rsa3.pem"


def split(folder):
    """What the messages in DER hold, as files of their types."""
    for path in (folder / FOLDERS[0]).glob("*.der"):
        octets = path.read_bytes()
        if not octets:
            path.unlink()  # what this openssl cannot make
        if octets[1:2] in (b"", b"\x80"):
            continue
        kind, content = der.Element(octets).parts()
        for oid, name in HELD.items():
            if kind.octets == der.oid(oid):
                (folder / name / path.name).write_bytes(content.content)
