"""Extensions that `quarn decode --json` shows, written as `openssl x509 -text` writes them."""

import datetime
import ipaddress
import re

from der import openssl, text

# By identifier: short name, long name.
OBJECTS = dict((match[3], (match[1], match[2] or match[1])) for match in re.finditer(
    r"^(.+?) = (?:(.+), )?([\d.]+)$", openssl("list", "-objects").decode(), re.MULTILINE))
KEY_USAGES = ["Digital Signature", "Non Repudiation", "Key Encipherment", "Data Encipherment", "Key Agreement",
              "Certificate Sign", "CRL Sign", "Encipher Only", "Decipher Only"]
FLAGS = ["Unused", "Key Compromise", "CA Compromise", "Affiliation Changed", "Superseded", "Cessation Of Operation",
         "Certificate Hold", "Privilege Withdrawn", "AA Compromise"]
REASONS = ["Unspecified", *FLAGS[1:7], None, "Remove From CRL", *FLAGS[7:]]
NETSCAPE = ["SSL Client", "SSL Server", "S/MIME", "Object Signing", "Unused", "SSL CA", "S/MIME CA",
            "Object Signing CA"]
ISSUING_FLAGS = {"onlyContainsUserCerts": "Only User Certificates", "onlyContainsCACerts": "Only CA Certificates",
                 "indirectCRL": "Indirect CRL"}
SIMPLE = {"rfc822Name": "email", "dNSName": "DNS", "uniformResourceIdentifier": "URI"}
UNSUPPORTED = {"x400Address": "X400Name:<unsupported>", "ediPartyName": "EdiPartyName:<unsupported>"}


def with_raw_strings(value, octets):
    """openssl prints the octets of a BMPString in a policy as they are, up to the first zero."""
    if isinstance(value, list):
        return [with_raw_strings(item, octets) for item in value]
    if isinstance(value, dict):
        return {key: with_raw_strings(item, octets) for key, item in value.items()}
    if not isinstance(value, str) or text(value, 0x1E) not in octets:
        return value
    return value.encode("utf-16-be").split(b"\0")[0].decode("utf-8", "replace")


def long_name(oid):
    return OBJECTS.get(oid["oid"], (None, oid["oid"]))[1]


def time(shown):
    """"2026-01-02T00:00:00Z" as "Jan 2 00:00:00 2026 GMT"."""
    when = datetime.datetime.strptime(shown, "%Y-%m-%dT%H:%M:%SZ")
    return f"{when:%b} {when.day} {when:%H:%M:%S} {when.year} GMT"


def bits(value, names):
    octets = bytes.fromhex(value["hex"])
    return ", ".join(names[i] for i in range(value["bits"]) if octets[i // 8] & 0x80 >> i % 8)


def attributes(rdn):
    return [(OBJECTS.get(each["type"]["oid"], (each["type"]["oid"],))[0], each["value"]["value"]) for each in rdn]


def quoted(text):
    """RFC 2253 with quotes instead of backslashes, and octets above ASCII in hexadecimal."""
    octets = "".join(chr(octet) if octet < 128 else f"\\{octet:02X}" for octet in text.encode())
    if re.search(r'[,+"\\<>;]|^[ #]| $', text):
        return '"' + re.sub(r'(["\\])', r"\\\1", octets) + '"'
    return octets


def rdns(name):
    return name if isinstance(name, list) else next(value for value in name.values() if isinstance(value, list))


def on_one_line(name):
    return ", ".join(relative(rdn) for rdn in rdns(name))


def relative(rdn):
    return " + ".join(f"{kind} = {quoted(value)}" for kind, value in attributes(rdn))


def with_slashes(name):
    """The older form, in which each attribute but the first of an RDN follows a plus."""
    text = "".join("/" + "+".join(f"{kind}=" + re.sub("([/+])", r"\\\1", value) for kind, value in attributes(rdn))
                   for rdn in rdns(name))
    return "".join(chr(octet) if 32 <= octet < 127 else f"\\x{octet:02X}" for octet in text.encode())


def address(text):
    found = ipaddress.ip_address(text)
    return text if found.version == 4 else ":".join(f"{int(part, 16):X}" for part in found.exploded.split(":"))


def general_name(value, directory=with_slashes):
    """In a list of names, or elsewhere, where other names and directory names look different."""
    (kind, content), = value.items()
    if kind in SIMPLE:
        return f"{SIMPLE[kind]}:{content}"
    if kind in UNSUPPORTED:
        return UNSUPPORTED[kind]
    if kind == "directoryName":
        return "DirName:" + directory(content)
    if kind == "registeredID":
        return "Registered ID:" + long_name(content)
    if kind == "iPAddress":
        return ("IP:" if "/" in content else "IP Address:") + "/".join(map(address, content.split("/")))
    if directory is on_one_line:
        return "othername:<unsupported>"
    text = content["value"]["value"] if content["value"]["type"].upper() in ("UTF8STRING", "IA5STRING") else "<unsupported>"
    title = {"1.3.6.1.4.1.311.20.2.3": " UPN:"}.get(content["type-id"]["oid"], f" {long_name(content['type-id'])}:")
    return f"othername:{title}:{text}"


def names(value):
    return ", ".join(map(general_name, value)) or "<EMPTY>"


def plain_names(value):
    return " ".join(general_name(each, on_one_line) for each in value)


def colons(text):
    return ":".join(re.findall("..", text)).upper()


def authority_key(value):
    parts = []
    if "keyIdentifier" in value:
        parts.append(("keyid:" if len(value) > 1 else "") + colons(value["keyIdentifier"]))
    if "authorityCertIssuer" in value:
        parts.append(names(value["authorityCertIssuer"]))
    if "authorityCertSerialNumber" in value:
        number = f"{integer(value['authorityCertSerialNumber']):X}"
        parts.append("serial:" + colons("0" * (len(number) % 2) + number))
    return " ".join(parts)


def integer(value):
    return int(value, 16) if isinstance(value, str) else value


def subtrees(value):
    parts = []
    for title, key in (("Permitted:", "permittedSubtrees"), ("Excluded:", "excludedSubtrees")):
        if key in value:
            parts += [title, *[plain_names([each["base"]]) for each in value[key]]]
    return " ".join(parts)


def notice(value):
    parts = ["User Notice:"]
    if reference := value.get("noticeRef"):
        numbers = reference["noticeNumbers"]
        title = "Numbers: " if len(numbers) > 1 else "Number: "
        parts += ["Organization: " + reference["organization"], title + ", ".join(map(str, numbers))]
    if "explicitText" in value:
        parts.append("Explicit Text: " + value["explicitText"])
    return " ".join(parts)


def qualifier(value):
    kind = value["policyQualifierId" if "policyQualifierId" in value else "algorithm"]
    content = value.get("qualifier", value.get("parameters", {})).get("value")
    if kind["oid"] == "1.3.6.1.5.5.7.2.1":
        return "CPS: " + content
    return notice(content) if kind["oid"] == "1.3.6.1.5.5.7.2.2" else "Unknown Qualifier: " + long_name(kind)


def policies(value):
    return " ".join(" ".join(["Policy: " + long_name(each["policyIdentifier"]),
                              *map(qualifier, each.get("policyQualifiers", []))]) for each in value)


def point_name(value):
    if "fullName" in value:
        return "Full Name: " + plain_names(value["fullName"])
    return "Relative Name: " + relative(value["nameRelativeToCRLIssuer"])


def point(value):
    parts = [point_name(value["distributionPoint"])] if "distributionPoint" in value else []
    if "reasons" in value:
        parts.append("Reasons: " + bits(value["reasons"], FLAGS))
    if "cRLIssuer" in value:
        parts.append("CRL Issuer: " + plain_names(value["cRLIssuer"]))
    return " ".join(parts)


def points(value):
    return " ".join(filter(None, map(point, value)))


def issuing_point(value):
    parts = [point_name(value["distributionPoint"])] if "distributionPoint" in value else []
    parts += [title for key, title in ISSUING_FLAGS.items() if value[key]]
    if "onlySomeReasons" in value:
        parts.append("Only Some Reasons: " + bits(value["onlySomeReasons"], FLAGS))
    return " ".join(parts + (["Only Attribute Certificates"] if value["onlyContainsAttributeCerts"] else []))


def accesses(value):
    return " ".join(f"{long_name(each['accessMethod'])} - {general_name(each['accessLocation'])}" for each in value)


def titled(value, **titles):
    return ", ".join(title + str(value[key]) for key, title in titles.items() if key in value)


def number(value):
    found = integer(value)
    return str(found) if found.bit_length() < 128 else f"0x{found:X}"


def period(value):
    return titled({key: time(text) for key, text in value.items()}, notBefore="Not Before: ", notAfter="Not After: ")


WRITERS = {
    "2.5.29.14": colons,
    "2.5.29.15": lambda value: bits(value, KEY_USAGES),
    "2.5.29.16": period,
    "2.5.29.17": names,
    "2.5.29.18": names,
    "2.5.29.19": lambda value: ("CA:TRUE" if value["cA"] else "CA:FALSE")
    + titled(value, pathLenConstraint=", pathlen:"),
    "2.5.29.20": number,
    "2.5.29.21": lambda value: REASONS[value["number"]],
    "2.5.29.23": long_name,
    "2.5.29.24": time,
    "2.5.29.27": number,
    "2.5.29.28": issuing_point,
    "2.5.29.29": names,
    "2.5.29.30": subtrees,
    "2.5.29.31": points,
    "2.5.29.32": policies,
    "2.5.29.33": lambda value: ", ".join(f"{long_name(each['issuerDomainPolicy'])}:"
                                         f"{long_name(each['subjectDomainPolicy'])}" for each in value),
    "2.5.29.35": authority_key,
    "2.5.29.36": lambda value: titled(value, requireExplicitPolicy="Require Explicit Policy:",
                                      inhibitPolicyMapping="Inhibit Policy Mapping:"),
    "2.5.29.37": lambda value: ", ".join(map(long_name, value)),
    "2.5.29.46": points,
    "2.5.29.54": number,
    "1.3.6.1.5.5.7.1.1": accesses,
    "1.3.6.1.5.5.7.1.11": accesses,
    "1.3.6.1.5.5.7.48.1.5": lambda value: "",
    "2.16.840.1.113730.1.1": lambda value: bits(value, NETSCAPE),
    "2.16.840.1.113730.1.13": str,
}
