"""What LDAP clients and a server say to each other, cut into messages.

A server with an empty database runs in a temporary folder, behind a socket there; what the clients read and write is
in what they print for debugging. No port is used, and nothing outside the folder is read but the server's modules and
schemas.
"""

import contextlib
import pathlib
import re
import shutil
import socket
import subprocess
import tempfile
import time
import urllib.parse

from der import elements

CONFIGURATION = """
include /etc/ldap/schema/core.schema
include /etc/ldap/schema/cosine.schema
include /etc/ldap/schema/inetorgperson.schema
modulepath /usr/lib/ldap
moduleload back_mdb
moduleload syncprov
pidfile {0}/pid
database mdb
directory {0}
suffix "o=a"
rootdn "cn=admin,o=a"
rootpw secret
overlay syncprov
"""
ENTRIES = """
dn: o=a
objectClass: organization
o: a

dn: ou=b,o=a
objectClass: organizationalUnit
ou: b
description: Größe
description:: AAEC/w==

dn: cn=x,o=a
objectClass: inetOrgPerson
cn: x
sn: y
userPassword: secret

dn: ou=elsewhere,o=a
objectClass: referral
objectClass: extensibleObject
ou: elsewhere
ref: ldap://example.com/o=b
"""
CHANGES = """
dn: cn=x,o=a
changetype: modify
add: description
description: one
description: two
-
delete: description

dn: cn=none,o=a
changetype: delete

dn: ou=elsewhere,o=a
changetype: modrdn
newrdn: ou=nowhere
deleteoldrdn: 0
"""
FILTERS = ["(&(cn=x)(!(sn=q))(|(cn>=a)(cn<=z)))", "(cn=a*b*c*d)", "(cn=*b*)", "(sn~=y)", "(cn:caseExactMatch:=x)",
           "(cn:dn:2.5.13.2:=x)", "(:caseIgnoreMatch:=x)", "(cn=\\00\\2a\\ff)"]
ADMIN = "-x -D cn=admin,o=a -w secret"
# Command and what it reads. All of them end, whatever the server thinks of them.
COMMANDS = [
    (f"ldapadd {ADMIN} -M", ENTRIES), (f"ldapadd {ADMIN} -c", ENTRIES), (f"ldapmodify {ADMIN} -c", CHANGES),
    *[("ldapsearch -x -b o=a '" + text + "'", "") for text in FILTERS],
    ("ldapsearch -x -b o=a -A -s one -a always -z 1 -l 9 (cn=*) cn sn + *", ""),
    ("ldapsearch -x -b cn=y,ou=elsewhere,o=a", ""), ("ldapsearch -x -b '' -s base + ", ""),
    ("ldapsearch -x -b o=q", ""), ("ldapsearch -x -b o=a -E !pr=1/noprompt -M", ""),
    ("ldapsearch -x -b o=a -E sync=ro/rid=000,csn=20000101000000.000000Z#000000#000#000000", ""),
    ("ldapsearch -x -b o=a -E sync=ro -e !assert=(o=a)", ""), ("ldapsearch -x -b o=a -E 1.2.3=:dGV4dA==", ""),
    (f"ldapsearch {ADMIN} -b o=a -e !abandon", ""), (f"ldapsearch {ADMIN} -b o=a -e !cancel", ""),
    ("ldapcompare -x cn=x,o=a sn::/w==", ""),
    (f"ldapmodrdn {ADMIN} -r cn=x,o=a cn=w", ""), (f"ldapmodrdn {ADMIN} -s ou=b,o=a cn=w,o=a cn=x", ""),
    (f"ldapmodify {ADMIN} -e preread=sn -e postread=*", "dn: ou=b,o=a\nchangetype: modify\nincrement: n\nn: 1\n"),
    (f"ldappasswd {ADMIN} -s other cn=x,ou=b,o=a", ""), (f"ldappasswd {ADMIN} cn=x,ou=b,o=a", ""),
    ("ldapwhoami -x", ""), ("ldapwhoami -Q -Y EXTERNAL", ""), ("ldapwhoami -x -D cn=x,o=a -w wrong", ""),
    ("ldapwhoami -x -Z", ""), (f"ldapexop {ADMIN} 1.2.3::AAEC", ""), (f"ldapexop {ADMIN} refresh o=a 9", ""),
    (f"ldapdelete {ADMIN} -c cn=x,ou=b,o=a o=a", ""), (f"ldapdelete {ADMIN} -r -M ou=b,o=a", ""),
]
FOLDER = "ldapmessage"
# Every operation of RFC 4511 by its tag.
OPERATIONS = {*range(17), 19, 23, 24, 25}


PRINTED = re.compile(r"^ldap_(read|write): |^  [0-9a-f]{4}:  ((?:[0-9a-f]{2}  ?)+)", re.M)


def messages(printed):
    """What a client says that it wrote and read."""
    said, way = {"read": b"", "write": b""}, ""
    for match in PRINTED.finditer(printed):
        way = match[1] or way
        said[way] += bytes.fromhex(match[2] or "")
    with contextlib.suppress(IndexError):  # it ended before it had read all
        yield from elements(said["write"])
        yield from elements(said["read"])


def wait_for(path):
    for _ in range(500):
        with socket.socket(socket.AF_UNIX) as probe:
            if probe.connect_ex(path) == 0:
                return
        time.sleep(0.02)
    raise SystemExit("corpus: the LDAP server does not start")


def run(work):
    (work / "slapd.conf").write_text(CONFIGURATION.format(work))
    path, heard = str(work / "server"), []
    address = "ldapi://" + urllib.parse.quote(path, "")
    server = subprocess.Popen(["/usr/sbin/slapd", "-d", "0", "-f", work / "slapd.conf", "-h", address],
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        wait_for(path)
        for command, entered in COMMANDS:
            tool, *arguments = [word.strip("'") for word in command.split(" ") if word]
            done = subprocess.run([tool, "-d", "2", "-H", address, *arguments], input=entered.encode(),
                                  capture_output=True, timeout=30, check=False)
            heard += messages(done.stderr.decode("utf-8", "replace"))
        return heard
    finally:
        server.terminate()
        server.wait(10)


def record(folder):
    """Writes each message that differs from the others into the folder."""
    if not shutil.which("ldapsearch") or not pathlib.Path("/usr/sbin/slapd").exists():
        raise SystemExit("corpus: no LDAP server or clients; tools/setup.sh installs them")
    with tempfile.TemporaryDirectory() as work:
        heard = run(pathlib.Path(work))
    operations = {}
    for message in heard:
        operations.setdefault(message.parts()[1].identifier & 0x1F, set()).add(bytes(message.octets))
    missing = OPERATIONS - set(operations)
    if missing:
        raise SystemExit(f"corpus: no LDAP message was heard of the operations {sorted(missing)}")
    for operation, found in operations.items():
        for number, message in enumerate(sorted(found)):
            (folder / f"{operation}_{number}.der").write_bytes(message)
