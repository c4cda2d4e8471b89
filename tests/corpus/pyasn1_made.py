"""Values of types that openssl does not write, encoded by pyasn1 as its modules define them: an independent encoder.

Each row: name of the type, module and class of pyasn1_modules, value. What pyasn1_modules has no class for is in
tests/vectors.
"""

import importlib
import sys

sys.path.append("/usr/lib/python3/dist-packages")  # where Debian's package is, for other interpreters

NAME = {"rdnSequence": [[{"type": "2.5.4.3", "value": b"\x0c\x04here"}], [{"type": "2.5.4.6", "value": b"\x13\x02DE"}]]}
SERIAL = {"issuer": NAME, "serialNumber": 2 ** 64}
ATTRIBUTE = {"type": "1.2.3.1", "values": [b"\x0c\x01x", b"\x02\x01\x05"]}

ROWS = [
    ("smimeencryptionkeypreference", "rfc5751", "SMIMEEncryptionKeyPreference", {"issuerAndSerialNumber": SERIAL}),
    ("smimeencryptionkeypreference", "rfc5751", "SMIMEEncryptionKeyPreference",
     {"receipentKeyId": {"subjectKeyIdentifier": b"\1\2", "date": "20260101000000Z",
                         "other": {"keyAttrId": "1.2.3", "keyAttr": b"\5\0"}}}),
    ("smimeencryptionkeypreference", "rfc5751", "SMIMEEncryptionKeyPreference", {"subjectAltKeyIdentifier": b"\1\2"}),
    ("dhsigstatic", "rfc6955", "DhSigStatic", {"hashValue": bytes(20)}),
    ("dhsigstatic", "rfc6955", "DhSigStatic", {"issuerAndSerial": SERIAL, "hashValue": bytes(20)}),
    ("contentreference", "rfc2634", "ContentReference",
     {"contentType": "1.2.840.113549.1.7.1", "signedContentIdentifier": b"id", "originatorSignatureValue": b"sig"}),
    ("contenthints", "rfc2634", "ContentHints", {"contentType": "1.2.840.113549.1.7.1"}),
    ("contenthints", "rfc2634", "ContentHints", {"contentDescription": "what", "contentType": "1.2.840.113549.1.7.1"}),
    ("acclearattrs", "rfc5755", "ACClearAttrs",
     {"acIssuer": {"directoryName": NAME}, "acSerial": 5, "attrs": [ATTRIBUTE]}),
]


def fill(holder, value):
    """Puts parts into a value that has them by name, or in a list."""
    for key, part in value.items() if isinstance(value, dict) else enumerate(value):
        if isinstance(part, (dict, list)):
            (holder.setComponentByName if isinstance(key, str) else holder.setComponentByPosition)(key)
            fill(holder[key], part)
        else:
            holder[key] = part


def made(rows=ROWS):
    """(name of the type, octets) of each row."""
    from pyasn1.codec.der import encoder
    for name, module, class_name, value in rows:
        holder = getattr(importlib.import_module(f"pyasn1_modules.{module}"), class_name)()
        fill(holder, value)
        yield name, encoder.encode(holder)
