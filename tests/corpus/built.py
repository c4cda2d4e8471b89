"""To-be-signed objects that the openssl command signs but cannot write: attribute certificates (RFC 5755),
unique identifiers, version 2, unusual strings and times, CRLs of other authorities or without an end."""

from der import (SHA256, Element, attribute, bit_string, boolean, context, extension, integer, name, octet_string, oid,
                 rdn, sequence, set_of, text, time, wrap)

PRINTABLE, TELETEX, IA5, UNIVERSAL, BMP = 0x13, 0x14, 0x16, 0x1C, 0x1E
COMMON_NAME, ORGANIZATION = "2.5.4.3", "2.5.4.10"
START, END = time("20240101000000Z"), time("20500101000000Z")
ISSUER = name(rdn((COMMON_NAME, text("Corpus CA"))))


def dns(words):
    return context(2, words.encode(), primitive=True)


def uri(words):
    return context(6, words.encode(), primitive=True)


def directory(of=ISSUER):
    return context(4, of)


def rest(element):
    """The content of an element, to be put under another tag."""
    return Element(element).content


# ---- Certificates

def certificate(key, version=2, serial=7, issuer=ISSUER, subject=ISSUER, validity=(START, END), tail=b""):
    head = context(0, integer(version)) if version else b""
    return lambda algorithm: sequence(head, integer(serial), algorithm, issuer, sequence(*validity), subject, key, tail)


def certificates(key):
    uid = context(1, rest(bit_string(b"\xa0", 5)), primitive=True)
    subject_uid = context(2, rest(bit_string(b"\1\2\3")), primitive=True)
    extensions = context(3, sequence(extension("2.5.29.19", sequence(boolean(True)), critical=True)))
    strings = name(*[rdn((COMMON_NAME, text("Gro\u00dfe", kind))) for kind in (TELETEX, UNIVERSAL, BMP, 0x0C)],
                   rdn((COMMON_NAME, text("plain", PRINTABLE)), (ORGANIZATION, text("a", IA5))),
                   rdn(("2.5.4.45", bit_string(b"\x05\x80", 7))), rdn(("2.5.4.5", text("12 3", 0x12))),
                   rdn(("2.5.4.16", sequence(text("street"), text("city", PRINTABLE)))),
                   rdn(*[("1.2.3.4", text("\u00b5", kind)) for kind in (TELETEX, 0x0C, BMP)]))
    yield "v2_unique_identifiers", certificate(key, 1, tail=uid + subject_uid)
    yield "v3_everything", certificate(key, tail=uid + subject_uid + extensions)
    yield "v1", certificate(key, 0, serial=-3, validity=(time("19000101000000Z"), time("99991231235959Z")))
    yield "strings", certificate(key, subject=strings, issuer=strings)
    yield "empty_names", certificate(key, subject=name(), issuer=name(rdn((COMMON_NAME, text("", BMP)))))


# ---- CRLs

def crl(entries, extensions=b"", version=1, after=time("491231235959Z")):
    head = integer(version) if version else b""
    tail = context(0, sequence(extensions)) if extensions else b""
    return lambda algorithm: sequence(head, algorithm, ISSUER, time("240101000000Z"), after, entries, tail)


def entry(serial, *extensions, when=time("240101000000Z")):
    return sequence(integer(serial), when, sequence(*extensions) if extensions else b"")


def crls():
    reason = extension("2.5.29.21", integer(1, 0x0A))
    other = extension("2.5.29.29", sequence(directory(), dns("ca.example.com")), critical=True)
    number = extension("2.5.29.20", integer(2 ** 150))
    indirect = extension("2.5.29.28", sequence(context(4, b"\xff", primitive=True)), critical=True)
    yield "no_next_update_v1", crl(sequence(entry(5)), version=0, after=b"")
    yield "empty_list", crl(sequence(), number)
    entries = sequence(entry(1, other, reason), entry(-2, other, when=END), entry(3))
    yield "other_issuers", crl(entries, number + indirect)


# ---- Attribute certificates

def issuer_serial(uid=b""):
    return sequence(sequence(directory()), integer(2 ** 63), uid)


def digest_info(kind, other=b""):
    return sequence(integer(kind, 0x0A), other, SHA256, bit_string(bytes(range(32))))


def acinfo(holder, issuer=context(0, sequence(directory())), attributes=None, tail=b"", serial=1, version=1):
    if attributes is None:
        attributes = attribute("2.5.4.72", sequence(context(1, uri("urn:role"))))
    validity = sequence(time("20240101000000Z"), time("20991231235959Z"))
    return lambda algorithm: sequence(integer(version), sequence(holder), issuer, algorithm, integer(serial), validity,
                                      sequence(attributes), tail)


def ietf(*values, authority=b""):
    return sequence(context(0, authority) if authority else b"", sequence(*values))


def attribute_certificates():
    by_serial, by_name = context(0, rest(issuer_serial())), context(1, directory())
    identified = context(0, rest(issuer_serial(uid=bit_string(b"\xc0", 6))))
    by_digest = context(2, rest(digest_info(2, oid("1.2.3.4"))))
    role = sequence(context(0, directory(), dns("roles.example.com")), context(1, uri("urn:role")))
    service = sequence(uri("http://example.com/"), dns("a"))
    category = sequence(context(0, b"\x2a\x03\x04", primitive=True), context(1, text("compartment")))
    categories = set_of(category, sequence(context(0, b"\x2a\x03\x05", primitive=True), context(1, integer(5))))
    targets = sequence(context(0, dns("a.example.com")), context(1, directory()),
                       context(2, issuer_serial(), dns("b"), digest_info(2, oid("1.2.3.4"))),
                       context(2, issuer_serial()))
    controls = sequence(integer(2), context(0, oid("2.5.4.72"), oid("2.5.4.55")), boolean(False))

    yield "by_everything", acinfo(identified + by_name + by_digest, serial=2 ** 158, attributes=b"")
    yield "by_nothing", acinfo(b"", serial=-1)
    yield "first_form", acinfo(by_name, sequence(directory(), dns("ca")))
    yield "first_version", acinfo(by_serial, sequence(directory()), version=0)
    yield "second_form", acinfo(by_name, context(0, sequence(directory()), context(0, rest(issuer_serial())),
                                                 context(1, rest(digest_info(1)))))
    yield "issuer_digest_only", acinfo(by_name, context(0, context(1, rest(digest_info(1)))))
    yield "attributes", acinfo(by_name, attributes=b"".join([
        attribute("1.3.6.1.5.5.7.10.4", ietf(octet_string(b"octets"), oid("1.2.3.4"), text("words"),
                                             authority=directory())),
        attribute("1.3.6.1.5.5.7.10.3", ietf(octet_string(b"")), ietf(text("ö"))),
        attribute("1.3.6.1.5.5.7.10.2", service),
        attribute("1.3.6.1.5.5.7.10.1", sequence(rest(service), octet_string(b"pw"))),
        attribute("2.5.4.72", role, sequence(context(1, uri("urn:other")))),
        attribute("2.5.4.55", sequence(oid("1.2.3.4"), bit_string(b"\x50", 4), categories))]))
    yield "clearance", acinfo(by_name, attributes=attribute("2.5.4.55", sequence(oid("1.2.3"), bit_string(b"\x40", 6))))
    yield "extensions", acinfo(by_name, tail=bit_string(b"\xc0", 6) + sequence(
        extension("2.5.29.55", sequence(targets), critical=True), extension("2.5.29.56", wrap(5)),
        extension("1.3.6.1.5.5.7.1.6", controls),
        extension("1.3.6.1.5.5.7.1.4", octet_string(b"\1\2"), critical=True),
        extension("1.3.6.1.5.5.7.1.10", sequence(integer(1), sequence(targets)))))


def bodies(key):
    """(type, name, function from the signature algorithm to the octets to be signed)."""
    for kind, found in (("x509pubkeycert", certificates(key)), ("x509crl", crls()),
                        ("attributecertificate", attribute_certificates())):
        for title, body in found:
            yield kind, f"built_{title}", body
