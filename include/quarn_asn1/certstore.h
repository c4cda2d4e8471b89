/* Generated from modules/ASN1_CertStore.asn1 by tools/generate.py; do not edit. */
/**
 * Stores of certificates with attributes, and where private keys are held: a form of this library's
 * own.
 *
 * Constructors copy their arguments and return null when a mandatory one is null, one has another
 * SIZE than the definition says, or memory is short. Getters lend: what they return lives as long
 * as the value. Null for the value gives null from a getter and 0 from a test. A component with a
 * DEFAULT is always there once a value has been made or decoded. An end-of-contents is no value for
 * a component that may be of any type: constructors return null.
 *
 * A value is decoded, encoded, copied and freed under its type id by the functions of
 * quarn_asn1/core.h; free functions are there for each type as well. Lists are of the type
 * quarn_asn1_list.
 */
#ifndef QUARN_ASN1_CERTSTORE_H
#define QUARN_ASN1_CERTSTORE_H

#include "types.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- KeyId */

/**
 * Names a key: by an identifier of its provider, or by the algorithm that it is for.
 *
 *     KeyId ::= CHOICE {
 *         keyid   UTF8String,
 *         algoid  [0] IMPLICIT AlgorithmIdentifier
 *     }
 *
 * Type id QUARN_ASN1_CERTSTORE_KEYID (98).
 */
typedef struct quarn_certstore_keyid quarn_certstore_keyid;
/** As quarn_asn1_value_free() under QUARN_ASN1_CERTSTORE_KEYID. */
QUARN_ASN1_API void quarn_certstore_keyid_free(quarn_certstore_keyid *value);
/** Number of the alternative: 0 keyid, 1 algoid; all ones for null. */
QUARN_ASN1_API uint32_t quarn_certstore_keyid_gettype(const quarn_certstore_keyid *value);
/** The alternative keyid. */
QUARN_ASN1_API quarn_certstore_keyid *quarn_certstore_keyid_newkeyid(
    const quarn_asn1_octetstring *keyid);
/** keyid, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_certstore_keyid_getkeyid(
    const quarn_certstore_keyid *value);
/** The alternative algoid. */
QUARN_ASN1_API quarn_certstore_keyid *quarn_certstore_keyid_newalgoid(
    const quarn_x509algoid *algoid);
/** algoid, null when it is another alternative. */
QUARN_ASN1_API quarn_x509algoid *quarn_certstore_keyid_getalgoid(
    const quarn_certstore_keyid *value);
/** A copy of a KeyId, despite the name; null for null. */
QUARN_ASN1_API quarn_certstore_keyid *quarn_certstore_dup(const quarn_certstore_keyid *value);

/* ---- PrivKeyAttr */

/**
 * Where the private key of a certificate is held. keytype and flag mean what the provider says.
 *
 *     PrivKeyAttr ::= SEQUENCE {
 *         provider     UTF8String,
 *         subprovider  UTF8String OPTIONAL,
 *         keytype      [0] IMPLICIT INTEGER OPTIONAL,
 *         flag         INTEGER,
 *         keyid        [1] EXPLICIT KeyId OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CERTSTORE_PRIVKEYATTR (93).
 */
typedef struct quarn_certstore_privkeyattr quarn_certstore_privkeyattr;
/** As quarn_asn1_value_free() under QUARN_ASN1_CERTSTORE_PRIVKEYATTR. */
QUARN_ASN1_API void quarn_certstore_privkeyattr_free(quarn_certstore_privkeyattr *value);
/** From its components. Null leaves out subprovider, keytype and keyid. */
QUARN_ASN1_API quarn_certstore_privkeyattr *quarn_certstore_privkeyattr_new(
    const quarn_asn1_octetstring *provider,
    const quarn_asn1_octetstring *subprovider,
    const quarn_asn1_integer *keytype,
    const quarn_asn1_integer *flag,
    const quarn_certstore_keyid *keyid);
/** provider. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_certstore_privkeyattr_getprovider(
    const quarn_certstore_privkeyattr *value);
/** 1 when subprovider is there. */
QUARN_ASN1_API int quarn_certstore_privkeyattr_hassubprovider(
    const quarn_certstore_privkeyattr *value);
/** subprovider, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_certstore_privkeyattr_getsubprovider(
    const quarn_certstore_privkeyattr *value);
/** 1 when keytype is there. */
QUARN_ASN1_API int quarn_certstore_privkeyattr_haskeytype(const quarn_certstore_privkeyattr *value);
/** keytype, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_certstore_privkeyattr_getkeytype(
    const quarn_certstore_privkeyattr *value);
/** flag. */
QUARN_ASN1_API quarn_asn1_integer *quarn_certstore_privkeyattr_getflag(
    const quarn_certstore_privkeyattr *value);
/** 1 when keyid is there. */
QUARN_ASN1_API int quarn_certstore_privkeyattr_haskeyid(const quarn_certstore_privkeyattr *value);
/** keyid, null when it is absent. */
QUARN_ASN1_API quarn_certstore_keyid *quarn_certstore_privkeyattr_getkeyid(
    const quarn_certstore_privkeyattr *value);

/* ---- Attr */

/**
 * An attribute of a certificate. What a type means is for callers to say.
 *
 *     Attr ::= SEQUENCE {
 *         type   INTEGER,
 *         value  ANY
 *     }
 *
 * Type id QUARN_ASN1_CERTSTORE_ATTR (94).
 */
typedef struct quarn_certstore_attr quarn_certstore_attr;
/** As quarn_asn1_value_free() under QUARN_ASN1_CERTSTORE_ATTR. */
QUARN_ASN1_API void quarn_certstore_attr_free(quarn_certstore_attr *value);
/** From its components. */
QUARN_ASN1_API quarn_certstore_attr *quarn_certstore_attr_new(const quarn_asn1_integer *type,
                                                              const quarn_asn1_any *value);
/** type. */
QUARN_ASN1_API quarn_asn1_integer *quarn_certstore_attr_gettype(const quarn_certstore_attr *value);
/** value. */
QUARN_ASN1_API quarn_asn1_any *quarn_certstore_attr_getvalue(const quarn_certstore_attr *value);

/* ---- Attrs */

/**
 * The attributes of a certificate.
 *
 *     Attrs ::= SEQUENCE OF Attr
 *
 * Type id QUARN_ASN1_CERTSTORE_ATTRS (95). A quarn_asn1_list of Attr (quarn_certstore_attr).
 */
QUARN_ASN1_API void quarn_certstore_attrs_free(quarn_asn1_list *value);

/* ---- CertWithAttr */

/**
 * A certificate and its attributes.
 *
 *     CertWithAttr ::= SEQUENCE {
 *         cert   Certificate,
 *         attrs  Attrs OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CERTSTORE_CERTWITHATTR (96).
 */
typedef struct quarn_certstore_certwithattr quarn_certstore_certwithattr;
/** As quarn_asn1_value_free() under QUARN_ASN1_CERTSTORE_CERTWITHATTR. */
QUARN_ASN1_API void quarn_certstore_certwithattr_free(quarn_certstore_certwithattr *value);
/** From its components. Null leaves out attrs. */
QUARN_ASN1_API quarn_certstore_certwithattr *quarn_certstore_certwithattr_new(
    const quarn_x509pubkeycert *cert, const quarn_asn1_list *attrs);
/** cert. */
QUARN_ASN1_API quarn_x509pubkeycert *quarn_certstore_certwithattr_getcert(
    const quarn_certstore_certwithattr *value);
/** 1 when attrs is there. */
QUARN_ASN1_API int quarn_certstore_certwithattr_hasattrlist(
    const quarn_certstore_certwithattr *value);
/** attrs, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_certstore_certwithattr_getattrlist(
    const quarn_certstore_certwithattr *value);

/* ---- CertStore */

/**
 * A store of certificates.
 *
 *     CertStore ::= SEQUENCE OF CertWithAttr
 *
 * Type id QUARN_ASN1_CERTSTORE (97). A quarn_asn1_list of CertWithAttr
 * (quarn_certstore_certwithattr).
 */
QUARN_ASN1_API void quarn_certstore_free(quarn_asn1_list *value);

#ifdef __cplusplus
}
#endif

#endif
