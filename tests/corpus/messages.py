"""Messages that openssl, GnuPG and GnuTLS make, CMS and PKCS #7, whole and what their ContentInfo holds."""

import contextlib
import pathlib
import re
import tempfile
import zlib

import der
import oracle
from der import attribute, context, integer, octet_string, oid, sequence, set_of

# Types by the content types whose values they are. Others are not opened.
HELD = {"1.2.840.113549.1.7.2": "pkcs7signeddata", "1.2.840.113549.1.7.3": "cmsenvelopeddata",
        "1.2.840.113549.1.7.5": "pkcs7digesteddata", "1.2.840.113549.1.7.6": "cmsencrypteddata",
        "1.2.840.113549.1.9.16.1.2": "cmsauthdata"}
FOLDERS = ("pkcs7contentinfo", *HELD.values())
PASSPHRASE = b"a\n"
# Name and command, which writes the file that follows -out; {a|b} stands for either, %key for a signer.
RECIPES = """
signed cms -sign -in text -binary {%rsa|%ec|%dsa|%pss|%rsa3} {|-nodetach|-nodetach -noattr|-nodetach -nocerts -keyid\
|-nodetach -cades|-nodetach -nosmimecap|-nodetach -econtent_type 1.2.3|-nodetach -stream -indef|-noattr -stream -indef\
|-nodetach -certfile ca_ed448.pem\
|-nodetach -receipt_request_all -receipt_request_to a@example.com -receipt_request_from b@example.com}
hashed cms -sign -in text -nodetach -md {sha1|sha224|sha384|sha512} {%rsa|%ec}
several cms -sign -in text {-nodetach|-nodetach -stream -indef|-keyid} {%rsa %ec\
|%ec %dsa %rsa|%rsa %rsa3 %rsaodd %ec %dsa}
enveloped cms -encrypt -in text -binary {-aes128|-des3|-camellia128|-aes256 -stream -indef} {-recip ca_rsa.pem\
|-keyid -recip ca_rsa.pem|-recip ca_rsa.pem -keyopt rsa_padding_mode:oaep|-recip ca_rsa3.pem -keyopt \
rsa_padding_mode:oaep -keyopt rsa_oaep_md:sha256 -keyopt rsa_oaep_label:0A0B|-recip ca_ec.pem|-keyid -recip ca_ec.pem\
|-recip ca_ec.pem -keyopt ecdh_kdf_md:sha256 -wrap aes128-wrap|-recip ca_ec.pem -keyopt ecdh_cofactor_mode:1\
|-secretkey 000102030405060708090a0b0c0d0e0f -secretkeyid 0A0B|-pwri_password a|-pwri_password a -secretkey \
000102030405060708090a0b0c0d0e0f -secretkeyid 01 -recip ca_rsa.pem -recip ca_ec.pem -recip ca_rsaodd.pem}
authenticated cms -encrypt -in text -binary -aes-256-gcm {|-keyid} {-recip ca_rsa.pem|-recip ca_ec.pem}
encrypted cms -EncryptedData_encrypt -in text {-aes128|-camellia128} -secretkey 000102030405060708090a0b0c0d0e0f
digest cms -digest_create -in text -binary {-md sha1|-md sha512|-md md5|-md sha3-256|-stream -indef}
data cms -data_create -in text -binary {|-stream -indef}
smime smime {-sign -in text|-sign -in text -nodetach -stream -indef} %rsa
smime_for smime -encrypt -in text -des3 ca_rsa.pem ca_rsa3.pem
certtool certtool --infile text --p7-{sign|sign --p7-time|sign --p7-include-cert --hash SHA512|detached-sign} \
{--load-certificate ca_rsa.pem --load-privkey rsa.key|--load-certificate ca_ec.pem --load-privkey ec.key}
certtool_certificate certtool --p7-generate --load-certificate ca_ec.pem
"""
GPGSM = """
gpgsm gpgsm -u USER {--sign|--detach-sign|--sign --include-certs 0|--sign --digest-algo SHA512|--encrypt -r USER\
|--encrypt --cipher-algo 3DES -r USER} text
"""
# Those made of other messages and lists.
OTHERS = """
resigned cms -resign -inform DER -in ../pkcs7contentinfo/{signed1|signed7}.der {%ec|%dsa}
receipt cms -sign_receipt -inform DER -in ../pkcs7contentinfo/signed10.der -noverify %ec
certificates crl2pkcs7 -nocrl -certfile ca_rsa.pem -certfile ca_ec.pem
lists crl2pkcs7 -in all.crl -certfile ca_ec.pem
"""


def recipes(lines):
    for name, number, command in der.recipes(lines):
        yield f"{name}{number}", re.sub(r"%(\w+)", r"-signer ca_\1.pem -inkey \1.key", command)


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


def countersigned(signer, work, times):
    """A SignerInfo with one more unsigned attribute, by the key called ec, that is countersigned itself."""
    if times == 0:
        return signer
    parts = der.Element(signer).parts()
    signature = next(part for part in parts if part.identifier == 0x04).content
    digest = der.openssl("dgst", "-sha256", "-binary", data=signature)
    attributes = set_of(attribute("1.2.840.113549.1.9.4", octet_string(digest)))
    signed = der.openssl("dgst", "-sha256", "-sign", "ec.key", cwd=work, data=attributes)
    own = sequence(integer(1), parts[1].octets, der.SHA256, context(0, der.Element(attributes).content),
                   der.ECDSA_WITH_SHA256, octet_string(signed))
    own = countersigned(own, work, times - 1)
    return sequence(*[part.octets for part in parts], context(1, attribute("1.2.840.113549.1.9.6", own)))


def built(folder, work):
    """Name and octets."""
    message = der.Element((folder / FOLDERS[0] / "signed12.der").read_bytes())
    *head, signers = [part.octets for part in message.parts()[1].parts()[0].parts()]
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
            whole = path.stem in ("signed14", "signed_with_lists")
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
