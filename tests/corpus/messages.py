"""Messages that openssl, GnuPG and GnuTLS make, CMS and PKCS #7, whole and what their ContentInfo holds."""

import contextlib
import itertools
import pathlib
import tempfile
import zlib

import der
import oracle
from der import context, integer, octet_string, oid, sequence, set_of

# Types by the content types whose values they are. Others are not opened.
HELD = {"1.2.840.113549.1.7.2": "pkcs7signeddata", "1.2.840.113549.1.7.3": "cmsenvelopeddata",
        "1.2.840.113549.1.7.5": "pkcs7digesteddata", "1.2.840.113549.1.7.6": "cmsencrypteddata",
        "1.2.840.113549.1.9.16.1.2": "cmsauthdata"}
FOLDERS = ("pkcs7contentinfo", *HELD.values())
PASSPHRASE = b"a\n"
SECRET = "-secretkey 000102030405060708090a0b0c0d0e0f"
SIGNER = "-signer ca_{0}.pem -inkey {0}.key"
SIGNERS = ["rsa", "ec", "dsa", "pss", "rsa3"]
WAYS = ["", "-nodetach", "-nodetach -noattr", "-nodetach -nocerts -keyid", "-nodetach -cades", "-nodetach -nosmimecap",
        "-nodetach -econtent_type 1.2.3", "-nodetach -stream -indef", "-noattr -stream -indef",
        "-nodetach -certfile ca_ed448.pem",
        "-nodetach -receipt_request_all -receipt_request_to a@example.com -receipt_request_from b@example.com"]
DIGESTS = ["sha1", "sha224", "sha384", "sha512", "sha3-256", "md5"]
SEVERAL = ["rsa ec", "ec dsa rsa", "rsa rsa3 rsaodd ec dsa"]
CIPHERS = ["aes128", "aes256", "des3", "camellia128", "aes-256-gcm"]
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
CERTTOOL = {"sign": "sign", "time": "sign --p7-time", "include": "sign --p7-include-cert --hash SHA512",
            "detached": "detached-sign"}
GPGSM = {"sign": "--sign", "detached": "--detach-sign", "nocerts": "--sign --include-certs 0",
         "sha512": "--sign --digest-algo SHA512", "encrypt": "--encrypt -r {0}",
         "des3": "--encrypt --cipher-algo 3DES -r {0}"}


def recipes():
    """Name and command, which writes the file that follows -out."""
    for (number, way), key in itertools.product(enumerate(WAYS), SIGNERS):
        yield f"signed_{key}_{number}", f"cms -sign -in text -binary {SIGNER.format(key)} {way}"
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
    yield "smime_for_two", "smime -encrypt -in text -des3 ca_rsa.pem ca_rsa3.pem"
    for (name, way), key in itertools.product(CERTTOOL.items(), ("rsa", "ec")):
        yield f"certtool_{key}_{name}", (f"certtool --p7-{way} --load-certificate ca_{key}.pem"
                                         f" --load-privkey {key}.key --infile text")
    yield "certtool_certificate", "certtool --p7-generate --load-certificate ca_ec.pem"


def of_gpgsm(user):
    for name, way in GPGSM.items():
        yield f"gpgsm_{name}", f"gpgsm -u {user} {way.format(user)} text"


def of_others():
    """Those made of other messages and lists."""
    message = f"../{FOLDERS[0]}/signed_rsa_"
    yield "resigned", f"cms -resign -inform DER -in {message}1.der {SIGNER.format('ec')}"
    yield "resigned_stream", f"cms -resign -inform DER -in {message}7.der {SIGNER.format('dsa')}"
    yield "receipt", f"cms -sign_receipt -inform DER -in {message}10.der -noverify {SIGNER.format('ec')}"
    yield "certificates", "crl2pkcs7 -nocrl -certfile ca_rsa.pem -certfile ca_ec.pem"
    yield "lists", "crl2pkcs7 -in all.crl -certfile ca_ec.pem"


@contextlib.contextmanager
def keyring(work):
    """A home of GnuPG with the key called rsa; the fingerprint of its certificate. Sockets in it want a short path."""
    with tempfile.TemporaryDirectory(prefix="corpus", ignore_cleanup_errors=True) as home:
        def run(command):
            return der.run(*command.split(), cwd=work, data=PASSPHRASE).decode()
        (work / "keyring").symlink_to(home)
        user = run("openssl x509 -in ca_rsa.pem -noout -fingerprint -sha1").split("=")[1].strip()
        pathlib.Path(home, "trustlist.txt").write_text(user + " S relax\n")
        run("openssl pkcs12 -export -in ca_rsa.pem -inkey rsa.key -passout stdin -out rsa.p12"
            " -keypbe PBE-SHA1-3DES -certpbe PBE-SHA1-3DES -macalg sha1")
        with contextlib.suppress(RuntimeError):  # without gpgsm its messages will be refused
            run("gpgsm --homedir keyring --batch --pinentry-mode loopback --passphrase-fd 0 --import rsa.p12")
        try:
            yield user.replace(":", "")
        finally:
            with contextlib.suppress(RuntimeError):
                run("gpgconf --homedir keyring --kill gpg-agent")


# ---- What openssl can sign, digest or encrypt, but not put together

def content_info(kind, content):
    return sequence(oid(kind), context(0, content))


def attribute(kind, value):
    return sequence(oid(kind), set_of(value))


def parts_of(path):
    """Type and components of what a ContentInfo holds, each as octets."""
    kind, content = der.Element(path.read_bytes()).parts()
    return kind, [part.octets for part in content.parts()[0].parts()]


def countersigned(signer, work, times):
    """A SignerInfo with one more unsigned attribute, by the key called ec, that is countersigned itself."""
    if times == 0:
        return signer
    parts = der.Element(signer).parts()
    signature = next(part for part in parts if part.identifier == 0x04).content
    sha256 = "2.16.840.1.101.3.4.2.1"
    digest = der.openssl("dgst", "-sha256", "-binary", data=signature)
    attributes = set_of(attribute("1.2.840.113549.1.9.4", octet_string(digest)))
    signed = der.openssl("dgst", "-sha256", "-sign", "ec.key", cwd=work, data=attributes)
    own = sequence(integer(1), parts[1].octets, sequence(oid(sha256)), context(0, der.Element(attributes).content),
                   sequence(oid("1.2.840.10045.4.3.2")), octet_string(signed))
    own = countersigned(own, work, times - 1)
    return sequence(*[part.octets for part in parts], context(1, attribute("1.2.840.113549.1.9.6", own)))


def built(folder, work):
    """Name and octets."""
    kind, (*head, signers) = parts_of(folder / FOLDERS[0] / "signed_ec_1.der")
    signer = der.Element(signers).content
    for times in (1, 3):
        yield f"countersigned{times}", content_info("1.2.840.113549.1.7.2", sequence(
            *head, set_of(countersigned(signer, work, times))))
    lists = [path.read_bytes() for path in sorted((folder / "x509crl").glob("[er]*.der"))]
    yield "signed_with_lists", content_info("1.2.840.113549.1.7.2", sequence(*head, context(1, *lists), signers))
    yield "compressed", content_info("1.2.840.113549.1.9.16.1.9", sequence(
        integer(0), sequence(oid("1.2.840.113549.1.9.16.3.8")), sequence(
            oid("1.2.840.113549.1.7.1"),
            context(0, octet_string(zlib.compress((work / "text").read_bytes()))))))


def split(folder):
    """What the messages in DER hold, as files of their types."""
    for path in (folder / FOLDERS[0]).glob("*.der"):
        octets = path.read_bytes()
        if not octets:
            path.unlink()  # what this openssl cannot make
        if octets[1:2] in (b"", b"\x80"):
            continue
        kind, content = der.Element(octets).parts()
        for number, name in HELD.items():
            if kind.octets == oid(number):
                (folder / name / path.name).write_bytes(content.content)


# ---- Signed messages, and where their parts are

FORMS = ["1.2.840.113549.1.7.2", None, "1.2.156.10197.6.1.4.2.2"]  # by the number that the library gives them


def framed(message, form, indefinite):
    """A message in one of the forms; a bit of `indefinite` for each level says how its length is written."""
    def level(number, identifier, *parts):
        return der.wrap(identifier, *parts, indefinite=indefinite >> number & 1)
    version, digests, info, *others, signers = der.Element(message).parts()[1].parts()[0].parts()
    kind, *tagged = info.parts()
    if tagged:
        octets = tagged[0].parts()[0]
        if indefinite & 1:
            half = len(octets.content) // 2
            segments = octet_string(octets.content[:half]), octet_string(octets.content[half:])
        tagged = [level(1, 0xA0, level(0, 0x24, *segments) if indefinite & 1 else octets.octets)]
    others = [level(3, other.identifier, other.content) for other in others]
    body = level(5, 0x30, version.octets, digests.octets, level(2, 0x30, kind.octets, *tagged), *others,
                 level(4, 0x31, signers.content))
    if form == 1:
        return body
    return level(7, 0x30, oid(FORMS[form]), level(6, 0xA0, body))


def variants(folder):
    """Name and octets of every signed message as it is and, when it is in DER, in the other forms; of a few, with
    every combination of definite and indefinite lengths."""
    paths = sorted((folder / FOLDERS[0]).glob("*.der"))
    for path in [path for path in paths if not path.name.startswith(("other", "made"))]:
        octets = path.read_bytes()
        if oid(FORMS[0]) not in octets[:32]:
            continue
        yield path.stem, octets
        if octets[1] == 0x80:
            continue
        for form in range(3):
            whole = path.stem in ("signed_ec_3", "signed_with_lists")
            for indefinite in range(1 << (6 if form == 1 else 8)) if whole else [0]:
                yield f"{path.stem}.{form}.{indefinite}", framed(octets, form, indefinite)


def place(message, octets):
    """What the one-pass decoder should tell, as numbers, and the content: form, octets, where contentInfo and
    signerInfos are; where the element with the content is, and how many octets of content."""
    form, body = 1, message
    if message.parts[0].what == "OBJECT":
        form = 0 if octets.startswith(oid(FORMS[0]), message.parts[0].start) else 2
        body = message.parts[1].parts[0]
    _, _, info, *_, signers = [part for part in body.parts if part.what != "EOC"]
    places, content = [message.end, info.start, info.end, signers.start], None
    if len(info.parts) > 1 and info.parts[1].what != "EOC":
        held = info.parts[1].parts[0]
        content = bytes.fromhex("".join(held.strings(octets)))
        places += [held.start, held.end]
    found = [form, *[number - message.start for number in places]]
    return found + ([-1] * 3 if content is None else [len(content)]), content or b""


def places(folder):
    """All signed messages in one file, their contents in another, and a line for each of what openssl finds where."""
    names, messages = zip(*variants(folder))
    octets = b"".join(messages)
    numbers, contents = zip(*[place(message, octets) for message in oracle.elements(octets)])
    lines = [" ".join(map(str, (name, *each))) for name, each in zip(names, numbers, strict=True)]
    (folder / "signed").write_bytes(octets)
    (folder / "contents").write_bytes(b"".join(contents))
    (folder / "signed.txt").write_text("".join(line + "\n" for line in lines))
