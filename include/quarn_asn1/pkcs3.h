/* Generated from modules/ASN1_PKCS3.asn1 by tools/generate.py; do not edit. */
/**
 * Diffie-Hellman: parameters (PKCS #3), and what keys are derived from (RFC 2631).
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
#ifndef QUARN_ASN1_PKCS3_H
#define QUARN_ASN1_PKCS3_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- DHParameter */

/**
 * The parameters of Diffie-Hellman key agreement (PKCS #3, 9).
 *
 *     DHParameter ::= SEQUENCE {
 *         prime               INTEGER,
 *         base                INTEGER,
 *         privateValueLength  INTEGER OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_PKCS3DHPRARAM (102).
 */
typedef struct quarn_pkcs3dhpraram quarn_pkcs3dhpraram;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS3DHPRARAM. */
QUARN_ASN1_API void quarn_pkcs3dhpraram_free(quarn_pkcs3dhpraram *value);
/** From its components. Null leaves out private_value_length. */
QUARN_ASN1_API quarn_pkcs3dhpraram *quarn_pkcs3dhpraram_new(
    const quarn_asn1_integer *prime,
    const quarn_asn1_integer *base,
    const quarn_asn1_integer *private_value_length);
/** prime. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs3dhpraram_getprime(const quarn_pkcs3dhpraram *value);
/** base. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs3dhpraram_getbase(const quarn_pkcs3dhpraram *value);
/** 1 when privateValueLength is there. */
QUARN_ASN1_API int quarn_pkcs3dhpraram_hasprivvaluelen(const quarn_pkcs3dhpraram *value);
/** privateValueLength, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs3dhpraram_getprivvaluelen(
    const quarn_pkcs3dhpraram *value);

/* ---- KeySpecificInfo */

/**
 * Which key is derived, and how many keys of it came before (RFC 2631, 2.1.2).
 *
 *     KeySpecificInfo ::= SEQUENCE {
 *         algorithm  OBJECT IDENTIFIER,
 *         counter    OCTET STRING (SIZE (4))
 *     }
 *
 * Type id QUARN_ASN1_DHKEYSPECINFO (166).
 */
typedef struct quarn_dhkeyspecinfo quarn_dhkeyspecinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_DHKEYSPECINFO. */
QUARN_ASN1_API void quarn_dhkeyspecinfo_free(quarn_dhkeyspecinfo *value);
/** From its components. */
QUARN_ASN1_API quarn_dhkeyspecinfo *quarn_dhkeyspecinfo_new(const quarn_asn1_oid *algorithm,
                                                            const quarn_asn1_octetstring *counter);
/** algorithm. */
QUARN_ASN1_API quarn_asn1_oid *quarn_dhkeyspecinfo_getalgo(const quarn_dhkeyspecinfo *value);
/** counter. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_dhkeyspecinfo_getcounter(
    const quarn_dhkeyspecinfo *value);

/* ---- OtherInfo */

/**
 * What a key is derived from besides the shared secret (RFC 2631, 2.1.2). suppPubInfo is the length
 * of the key in bits, in four octets.
 *
 *     OtherInfo ::= SEQUENCE {
 *         keyInfo      KeySpecificInfo,
 *         partyAInfo   [0] EXPLICIT OCTET STRING OPTIONAL,
 *         suppPubInfo  [2] EXPLICIT OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_DHOTHERINFO (167).
 */
typedef struct quarn_dhotherinfo quarn_dhotherinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_DHOTHERINFO. */
QUARN_ASN1_API void quarn_dhotherinfo_free(quarn_dhotherinfo *value);
/** From its components. Null leaves out party_a_info. */
QUARN_ASN1_API quarn_dhotherinfo *quarn_dhotherinfo_new(
    const quarn_dhkeyspecinfo *key_info,
    const quarn_asn1_octetstring *party_a_info,
    const quarn_asn1_octetstring *supp_pub_info);
/** keyInfo. */
QUARN_ASN1_API quarn_dhkeyspecinfo *quarn_dhotherinfo_getkeyinfo(const quarn_dhotherinfo *value);
/** 1 when partyAInfo is there. */
QUARN_ASN1_API int quarn_dhotherinfo_haspartyainfo(const quarn_dhotherinfo *value);
/** partyAInfo, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_dhotherinfo_getpartyainfo(
    const quarn_dhotherinfo *value);
/** suppPubInfo. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_dhotherinfo_getsupppubinfo(
    const quarn_dhotherinfo *value);

#ifdef __cplusplus
}
#endif

#endif
