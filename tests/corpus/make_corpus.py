#!/usr/bin/env python3
"""Makes the corpus: certificates, CRLs, requests, attribute certificates, messages of CMS and LDAP, keys, containers,
and the extensions, attributes and parameters inside.

    make_corpus.py FOLDER [SOURCE]

FOLDER gets a folder of DER files for each type, named after it, and `facts.json`: what openssl finds in each file (see
oracle.py). SOURCE is a folder of published certificates in PEM to add. A folder
that is newer than the recipes is left alone.
"""

import base64
import itertools
import json
import pathlib
import shutil
import sys
from concurrent.futures import ThreadPoolExecutor

import built
import containers
import der
import ldap_recorded
import messages
import oracle
import pyasn1_made
from der import openssl

HERE = pathlib.Path(__file__).parent
TYPES = ("x509pubkeycert", "x509crl", "pkcs10certreq", "attributecertificate", messages.FOLDERS[0])
# How commands begin that do not take the file they write as most of openssl do.
COMMANDS = {"ca": "openssl ca", "certtool": "certtool --outder --outfile {0}",
            "gpgsm": "gpgsm --batch --yes --disable-dirmngr --disable-crl-checks --pinentry-mode loopback"
                     " --passphrase-fd 0 --homedir keyring --output {0}"}
LEAST = (300, 25, 25, 10, 150)  # of each; other versions of openssl may lack a few kinds

# Name, arguments of `openssl genpkey`.
KEYS = [
    ("rsa", "-algorithm RSA -pkeyopt rsa_keygen_bits:2048"),
    ("rsa3", "-algorithm RSA -pkeyopt rsa_keygen_bits:1024 -pkeyopt rsa_keygen_pubexp:3"),
    ("rsaodd", "-algorithm RSA -pkeyopt rsa_keygen_bits:1031"),
    ("pss", "-algorithm RSA-PSS -pkeyopt rsa_keygen_bits:1024"),
    ("psslimited", "-algorithm RSA-PSS -pkeyopt rsa_keygen_bits:1024 -pkeyopt rsa_pss_keygen_md:sha256"
     " -pkeyopt rsa_pss_keygen_mgf1_md:sha256 -pkeyopt rsa_pss_keygen_saltlen:32"),
    ("three", "-algorithm RSA -pkeyopt rsa_keygen_bits:2048 -pkeyopt rsa_keygen_primes:3"),
    ("ec", "-algorithm EC -pkeyopt ec_paramgen_curve:P-256"),
    ("explicit", "-algorithm EC -pkeyopt ec_paramgen_curve:P-384 -pkeyopt ec_param_enc:explicit"),
    ("ed25519", "-algorithm ED25519"),
    ("ed448", "-algorithm ED448"),
    ("x25519", "-algorithm X25519"),
    ("x448", "-algorithm X448"),
    ("sm2", "-algorithm SM2"),
    ("dh", "-algorithm DH -pkeyopt group:ffdhe2048"),
    ("dhx", "-algorithm DHX -pkeyopt dh_rfc5114:2"),
    ("dsa", "-paramfile dsa.params"),
]
POINTS = ["compressed", "hybrid"]  # forms of the public key called ec
SIGNERS = {"rsa": "md5 sha1 sha256 sha512-256 sha3-512 ripemd160", "ec": "sha1 sha256 sha3-512", "dsa": "sha1 sha256",
           "sm2": "sm3"}
PSS = ["sha1 20 sha1", "sha1 0 sha1", "sha256 32 sha256", "sha256 20 sha1", "sha512 64 sha512"]
SERIALS = ["0", "128", "-1", "-129", "0x8000000000000000", "-0x8000000000000001", "0x01" + "00" * 40]
WORDS = ["O'Neil (a) +,-./:=?", "Größe", "e\u0301\u00ff", "漢字", "\U0001f512 lock", " a ", "a,b+c\"d\\e<f>g;h=i",
         "a\tb\x7f", "*_@&", "x" * 64]
# What each way of writing strings can hold, at most.
MASKS = {"utf8only": 0x10FFFF, "MASK:0x0800": 0xFFFF, "MASK:0x0004": 0xFF, "default": 0x10FFFF, "pkix": 0x7E}
ATTRIBUTES = """C=DE ST=state L=place O=org OU=unit CN=common SN=surname GN=given initials=I title=T name=N
serialNumber=7 dnQualifier=q pseudonym=p generationQualifier=Jr street=s postalCode=12345 telephoneNumber=+49-1
businessCategory=b description=d DC=example UID=u emailAddress=a@example.com unstructuredName=u unstructuredAddress=a
organizationIdentifier=o jurisdictionC=DE jurisdictionST=s jurisdictionL=l favouriteDrink=d rfc822Mailbox=m 1.2.3.4=x
2.999.65535=x postOfficeBox=7 registeredAddress=r""".split()
REASONS = ["unspecified", "keyCompromise", "CACompromise", "affiliationChanged", "superseded", "cessationOfOperation",
           "certificateHold", "removeFromCRL", "holdInstruction,1.2.840.10040.2.2", "keyTime,20240101000000Z",
           "CAkeyTime,19991231235959Z", ""]


def revoked(*reasons, count=1, first=1, when="240101120000Z"):
    """Lines of the database of `openssl ca`."""
    return "".join(f"R\t300101000000Z\t{when}{',' + reason if reason else ''}\t{first + i:04X}\tunknown\t/CN=x\n"
                   for i, reason in enumerate(reasons * count))


# Name, database, section of extensions, more arguments. They are numbered but for those of version 1.
CRLS = [
    ("empty", "", "", ""),
    ("empty_v1", "", "", ""),
    ("entries_v1", revoked("", "", ""), "", ""),
    *[(f"reason{i}", revoked(reason), "", "") for i, reason in enumerate(REASONS)],
    ("all", revoked(*REASONS), "crl_reasons", ""),
    ("serials", revoked("", first=0x7F, count=3) + revoked("", first=2 ** 159 - 1), "crl_user", ""),
    ("times", revoked("", when="500101000000Z") + revoked("", first=2, when="491231235959Z"), "crl_ca",
     "-crl_lastupdate 19500101000000Z -crl_nextupdate 99991231235959Z"),
    ("attributes", "", "crl_aa", ""),
    ("delta", revoked("removeFromCRL"), "crl_delta", ""),
    ("names", revoked("keyCompromise"), "crl_names", "-crlhours 1"),
    ("large", revoked("", "keyCompromise", "keyTime,20240101000000Z", count=500), "", ""),
    *[(f"by_{key}", revoked("", "CACompromise"), "crl_user", "") for key in ("rsa", "dsa", "ed25519", "ed448")],
]
REQUEST_ATTRIBUTES = [["challengePassword = a password"], ["unstructuredName = Größe", "challengePassword = ö"],
                      ["unstructuredAddress = an address", "1.2.3.4 = own", "unstructuredName = a@example.com"]]


class Maker:
    def __init__(self, folder):
        self.folder, self.work = folder, folder / "work"
        shutil.rmtree(folder, ignore_errors=True)
        for name in ("work", *TYPES, *messages.HELD.values(), ldap_recorded.FOLDER):
            (folder / name).mkdir(parents=True)
        self.config, self.jobs, self.refused = [(HERE / "sections.cnf").read_text(encoding="utf-8")], [], []
        lines = (HERE / "extensions").read_text(encoding="utf-8").splitlines()
        self.lines = {f"extensions{number}": line for number, line in enumerate(lines) if line[0] != "#"}

    def openssl(self, command, *more):
        return openssl(*command.split(), *more, cwd=self.work)

    def section(self, title, *lines):
        self.config.append("\n".join([f"[{title}]", *lines]) + "\n")
        return title

    def job(self, kind, name, command, *more):
        """A command of openssl, or of another tool if it begins with the name of one."""
        tool, _, rest = command.partition(" ")
        head = COMMANDS.get(tool, f"openssl {tool} -outform DER -out {{0}}").format(f"../{kind}/{name}.der")
        self.jobs.append([*head.split(), *rest.split(), *more])

    def certificate(self, name, *more, key="ec", issuer="ec"):
        """A certificate of a key, issued by the authority that has another one."""
        serial = [] if "-set_serial" in more else ["-set_serial", str(len(self.jobs) + 1000)]
        subject = [] if "-subj" in more else ["-subj", "/O=Corpus/CN=subject"]
        self.job("x509pubkeycert", name, f"x509 -new -force_pubkey {key}.pub -CA ca_{issuer}.pem -CAkey {issuer}.key"
                 " -days 30 -extfile corpus.cnf", *subject, *serial, *more)

    def extensions(self):
        self.section("many_names", *[f"DNS.{i} = host{i}.example.com" for i in range(300)])
        for title, line in self.lines.items():
            self.section(title, *line.split(" && "))
            self.certificate(f"{title}_{line.split()[0]}", "-subj", "/CN=x/emailAddress=e@example.com", "-extensions",
                             title)

    def keys(self):
        for key in [key for key, _ in KEYS] + POINTS:
            self.certificate(f"key_{key}", key=key)
        curves = [line.split(":")[0].strip() for line in openssl("ecparam", "-list_curves").decode().splitlines()
                  if line.startswith("  ") and ":" in line and "Oakley" not in line]
        for curve, encoding in itertools.product(curves, ("named_curve", "explicit")):
            self.job("x509pubkeycert", f"{encoding}_{curve}", "req -x509 -newkey ec -noenc -keyout - -config corpus.cnf"
                     f" -pkeyopt ec_paramgen_curve:{curve} -pkeyopt ec_param_enc:{encoding} -subj /CN={curve} -sha256")

    def signatures(self):
        ways = [(key, digest) for key, digests in SIGNERS.items() for digest in digests.split()]
        for key, digest in ways + [(key, "default") for key in ("ed25519", "ed448", "pss", "psslimited")]:
            self.certificate(f"signed_{key}_{digest}", *[f"-{digest}"] * (digest != "default"), issuer=key)
        for words in PSS:
            digest, salt, mask = words.split()
            self.certificate(f"signed_pss_{digest}_{salt}_{mask}", f"-{digest}", "-sigopt", "rsa_padding_mode:pss",
                             "-sigopt", f"rsa_pss_saltlen:{salt}", "-sigopt", f"rsa_mgf1_md:{mask}", issuer="rsa")

    def named(self, name, mask, *lines):
        subject = self.section(f"subject_{name}", *lines)
        self.section(f"name_{name}", f"distinguished_name = {subject}", "prompt = no", f"string_mask = {mask}",
                     "utf8 = yes")
        self.job("x509pubkeycert", f"name_{name}", f"req -x509 -new -utf8 -config corpus.cnf -section name_{name}"
                 " -key ec.key")

    def names(self):
        for mask, most in MASKS.items():
            for number, words in enumerate(WORDS):
                if all(ord(letter) <= most for letter in words):
                    quoted = words.replace("\\", "\\\\").replace('"', '\\"')
                    self.named(f"{mask.replace(':', '')}{number}", mask, f'CN = "{quoted}"', f'O = "{quoted}"')
        lines = [f"{number}.{line}" for number, line in enumerate(ATTRIBUTES)]
        for line in lines:
            self.named("attribute" + line.replace("=", "_"), "default", line)
        self.named("attributes", "utf8only", *lines)
        self.named("multivalued", "default", "0.CN = a", "1.+OU = b", "2.+serialNumber = 1", "3.O = c", "4.+O = d")
        self.certificate("name_empty", "-subj", "/")
        for serial in SERIALS:
            self.certificate(f"serial_{serial[:20]}", "-set_serial", serial)

    def requests(self):
        def request(name, *more, key="ec"):
            title = self.section(f"request_{name}", "distinguished_name = person", "prompt = no", "utf8 = yes", *more)
            self.job("pkcs10certreq", name, f"req -new -utf8 -config corpus.cnf -section {title} -key {key}.key")
        for key in ("rsa", "ec", "dsa", "ed25519", "ed448", "pss", "psslimited", "sm2", "rsa3"):
            request(f"key_{key}", key=key)
        wanted = ("basicConstraints", "keyUsage", "subjectAltName", "certificatePolicies", "1.2.3.4", "tlsfeature")
        for title in [title for title, line in self.lines.items() if line.startswith(wanted) and "copy" not in line]:
            request(title, f"req_extensions = {title}")
        for number, attributes in enumerate(REQUEST_ATTRIBUTES):
            title = self.section(f"attributes{number}", *attributes)
            request(f"attributes{number}", f"attributes = {title}", "string_mask = default")
            request(f"both{number}", f"attributes = {title}", "req_extensions = extensions2", "string_mask = utf8only")

    def crls(self):
        for name, database, extensions, more in CRLS:
            key = name[3:] if name.startswith("by_") else "ec"
            self.section(f"crl_of_{name}", "new_certs_dir = .", f"certificate = ca_{key}.pem",
                         f"private_key = {key}.key", "default_md = default", "default_crl_days = 30",
                         f"database = {name}.index",
                         *[f"crlnumber = {name}.number"] * (not name.endswith("v1")),
                         *[f"crl_extensions = {extensions}"] * bool(extensions))
            (self.work / f"{name}.index").write_text(database)
            (self.work / f"{name}.number").write_text("0A\n" if name != "large" else "7F" + "FF" * 19 + "\n")
            self.job("x509crl", name, f"ca -gencrl -config corpus.cnf -name crl_of_{name} -out {name}.crl {more}")

    def messages(self, lines):
        (self.work / "text").write_text("some text\n" * 100)
        for name, command in messages.recipes(lines):
            self.job(messages.FOLDERS[0], name, command)

    def prepare(self, pool):
        """Keys, and an authority for each that can sign."""
        (self.work / "corpus.cnf").write_text("".join(self.config), encoding="utf-8")
        self.openssl("genpkey -genparam -algorithm DSA -pkeyopt dsa_paramgen_bits:1024 -out dsa.params")

        def make(key, arguments):
            self.openssl(f"genpkey {arguments} -out {key}.key")
            self.openssl(f"pkey -in {key}.key -pubout -out {key}.pub")
            if not key.startswith(("x", "dh")):
                self.openssl(f"req -x509 -new -key {key}.key -days 3650 -config corpus.cnf -section authority -utf8"
                             f" -out ca_{key}.pem")
        list(pool.map(make, *zip(*KEYS)))
        for form in POINTS:
            self.openssl(f"ec -in ec.key -pubout -conv_form {form} -out {form}.pub")

    def run(self, job):
        try:
            der.run(*job, cwd=self.work, data=messages.PASSPHRASE)
        except RuntimeError as error:
            self.refused.append(str(error).strip().replace("\n", " | "))

    def build(self):
        """What openssl cannot write, but can sign."""
        def sign(body):
            whole = body(der.ECDSA_WITH_SHA256)
            signature = openssl("dgst", "-sha256", "-sign", "ec.key", cwd=self.work, data=whole)
            return der.sequence(whole, der.ECDSA_WITH_SHA256, der.bit_string(signature))
        key = der.Element(from_pem(self.work / "ec.pub")).octets
        for kind, name, body in built.bodies(key):
            (self.folder / kind / f"{name}.der").write_bytes(sign(body))
        for name, message in messages.built(self.folder, self.work):
            (self.folder / messages.FOLDERS[0] / f"{name}.der").write_bytes(message)

    def others(self):
        """What openssl can neither write nor sign, by other encoders; keys and containers; what is inside them all."""
        found = [("other", *pair) for pair in containers.made(self.work, self.refused)]
        try:
            found += [("made", *pair) for pair in pyasn1_made.made()]
        except ImportError as error:
            self.refused.append(f"no values by pyasn1: {error}")
        whole = [octets for kind in TYPES for path in (self.folder / kind).glob("*.der")
                 if (octets := path.read_bytes())[1:2] != b"\x80"] + [octets for *_, octets in found]
        found += [("other", *pair) for octets in whole if octets for pair in containers.inside(der.Element(octets))]
        for number, (origin, kind, octets) in enumerate(dict.fromkeys(found)):
            (self.folder / kind).mkdir(exist_ok=True)
            (self.folder / kind / f"{origin}{number}.der").write_bytes(octets)

    def make(self, source):
        for recipes in (self.extensions, self.keys, self.signatures, self.names, self.requests, self.crls):
            recipes()
        self.messages(messages.RECIPES)
        with ThreadPoolExecutor(4) as pool:
            self.prepare(pool)
            with messages.keyring(self.work) as user:
                self.messages(messages.GPGSM.replace("USER", user))
                list(pool.map(self.run, self.jobs))
            self.jobs = []
            self.messages(messages.OTHERS)
            list(pool.map(self.run, self.jobs))
            for path in self.work.glob("*.crl"):  # openssl writes them in PEM only
                (self.folder / "x509crl" / f"{path.stem}.der").write_bytes(from_pem(path))
            self.build()
            if source:
                for path in sorted(pathlib.Path(source).glob("*.crt")):
                    (self.folder / TYPES[0] / f"published_{path.stem}.der").write_bytes(from_pem(path))
            self.others()
            messages.split(self.folder)
            ldap_recorded.record(self.folder / ldap_recorded.FOLDER)
            messages.places(self.folder)
        shutil.rmtree(self.work)
        facts = oracle.facts([path for path in self.folder.iterdir() if path.is_dir()])
        (self.folder / "refused.txt").write_text("".join(each + "\n" for each in self.refused))
        (self.folder / "facts.json").write_text(json.dumps(facts, indent=1))


def from_pem(path):
    return base64.b64decode(path.read_text().split("-----")[2])


def main(folder, source=None):
    folder = pathlib.Path(folder)
    made = folder / "facts.json"
    if not made.exists() or made.stat().st_mtime < max(path.stat().st_mtime for path in HERE.glob("*[!_]")):
        Maker(folder).make(source)
    counts = [len(list((folder / kind).glob("[!p]*.der"))) for kind in TYPES]  # without those published
    print(f"corpus: {dict(zip(TYPES, counts))}")
    print((folder / "refused.txt").read_text(), end="")  # what this openssl cannot do
    if any(count < least for count, least in zip(counts, LEAST)):
        sys.exit(f"corpus: fewer than {LEAST}")


if __name__ == "__main__":
    main(*sys.argv[1:])
