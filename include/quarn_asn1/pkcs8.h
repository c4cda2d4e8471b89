/* Generated from modules/ASN1_PKCS8.asn1 by tools/generate.py; do not edit. */
/**
 * Private keys (PKCS #8, RFC 5208, RFC 5958).
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
#ifndef QUARN_ASN1_PKCS8_H
#define QUARN_ASN1_PKCS8_H

#include "types.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- PrivateKeyInfo */

/**
 * A private key with its algorithm (RFC 5208, 5), and perhaps its public key (RFC 5958, 2), which
 * is accepted under any version.
 *
 *     PrivateKeyInfo ::= SEQUENCE {
 *         version              INTEGER,
 *         privateKeyAlgorithm  AlgorithmIdentifier,
 *         privateKey           OCTET STRING,
 *         attributes           [0] IMPLICIT Attributes OPTIONAL,
 *         publicKey            [1] IMPLICIT BIT STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_PKCS8PRIVATEKEYINFO (103).
 */
typedef struct quarn_pkcs8privatekeyinfo quarn_pkcs8privatekeyinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS8PRIVATEKEYINFO. */
QUARN_ASN1_API void quarn_pkcs8privatekeyinfo_free(quarn_pkcs8privatekeyinfo *value);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs8privatekeyinfo_getversion(
    const quarn_pkcs8privatekeyinfo *value);
/** privateKeyAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcs8privatekeyinfo_getalgo(
    const quarn_pkcs8privatekeyinfo *value);
/** privateKey. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_pkcs8privatekeyinfo_getprivkey(
    const quarn_pkcs8privatekeyinfo *value);
/** 1 when attributes is there. */
QUARN_ASN1_API int quarn_pkcs8privatekeyinfo_hasattrs(const quarn_pkcs8privatekeyinfo *value);
/** attributes, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_pkcs8privatekeyinfo_getattrs(
    const quarn_pkcs8privatekeyinfo *value);
/** 1 when publicKey is there. */
QUARN_ASN1_API int quarn_pkcs8privatekeyinfo_haspubkey(const quarn_pkcs8privatekeyinfo *value);
/** publicKey, null when it is absent. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_pkcs8privatekeyinfo_getpubkey(
    const quarn_pkcs8privatekeyinfo *value);
/** A key without its public key. Null leaves out the attributes. */
QUARN_ASN1_API quarn_pkcs8privatekeyinfo *quarn_pkcs8privatekeyinfo_new(
    const quarn_asn1_integer *version,
    const quarn_x509algoid *algorithm,
    const quarn_asn1_octetstring *private_key,
    const quarn_asn1_list *attributes);
/** A key with its public key. Null leaves out the attributes and the public key. */
QUARN_ASN1_API quarn_pkcs8privatekeyinfo *quarn_pkcs8privatekeyinfo_newv2(
    const quarn_asn1_integer *version,
    const quarn_x509algoid *algorithm,
    const quarn_asn1_octetstring *private_key,
    const quarn_asn1_list *attributes,
    const quarn_asn1_bitstring *public_key);

/* ---- EncryptedPrivateKeyInfo */

/**
 * An encrypted private key: the encryption of a PrivateKeyInfo (RFC 5208, 6; RFC 5958, 3).
 *
 *     EncryptedPrivateKeyInfo ::= SEQUENCE {
 *         encryptionAlgorithm  AlgorithmIdentifier,
 *         encryptedData        OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_PKCS8ENCPRIVATEKEYINFO (104).
 */
typedef struct quarn_pkcs8encprivatekeyinfo quarn_pkcs8encprivatekeyinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS8ENCPRIVATEKEYINFO. */
QUARN_ASN1_API void quarn_pkcs8encprivatekeyinfo_free(quarn_pkcs8encprivatekeyinfo *value);
/** From its components. */
QUARN_ASN1_API quarn_pkcs8encprivatekeyinfo *quarn_pkcs8encprivatekeyinfo_new(
    const quarn_x509algoid *encryption_algorithm, const quarn_asn1_octetstring *encrypted_data);
/** encryptionAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcs8encprivatekeyinfo_getencalgo(
    const quarn_pkcs8encprivatekeyinfo *value);
/** encryptedData. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_pkcs8encprivatekeyinfo_getencdata(
    const quarn_pkcs8encprivatekeyinfo *value);

#ifdef __cplusplus
}
#endif

#endif
