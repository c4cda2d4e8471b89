/* Generated from modules/ASN1_PKCS10.asn1 by tools/generate.py; do not edit. */
/**
 * Certification requests (PKCS #10, RFC 2986).
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
#ifndef QUARN_ASN1_PKCS10_H
#define QUARN_ASN1_PKCS10_H

#include "types.h"
#include "x500.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Attributes */

/**
 * The attributes of a request (RFC 2986, 4.1): X.500 attributes without contexts.
 *
 *     Attributes ::= SET OF Attribute
 *
 * Type id QUARN_ASN1_PKCS10ATTRIBUTES (44). A quarn_asn1_list of Attribute (quarn_x500attribute).
 */
QUARN_ASN1_API void quarn_pkcs10attributes_free(quarn_asn1_list *value);

/* ---- CertificationRequestInfo */

/**
 * The part of a request that its subject signs (RFC 2986, 4.1). attributes is written also when it
 * is empty.
 *
 *     CertificationRequestInfo ::= SEQUENCE {
 *         version        INTEGER { v1(0) },
 *         subject        Name,
 *         subjectPKInfo  SubjectPublicKeyInfo,
 *         attributes     [0] IMPLICIT Attributes
 *     }
 *
 * Type id QUARN_ASN1_PKCS10CERTREQINFO (45).
 */
typedef struct quarn_pkcs10certreqinfo quarn_pkcs10certreqinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS10CERTREQINFO. */
QUARN_ASN1_API void quarn_pkcs10certreqinfo_free(quarn_pkcs10certreqinfo *value);
/** From its components. */
QUARN_ASN1_API quarn_pkcs10certreqinfo *quarn_pkcs10certreqinfo_new(
    const quarn_asn1_integer *version,
    const quarn_x500name *subject,
    const quarn_x509publickeyinfo *subject_pk_info,
    const quarn_asn1_list *attributes);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs10certreqinfo_getversion(
    const quarn_pkcs10certreqinfo *value);
/** subject. */
QUARN_ASN1_API quarn_x500name *quarn_pkcs10certreqinfo_getsubject(
    const quarn_pkcs10certreqinfo *value);
/** subjectPKInfo. */
QUARN_ASN1_API quarn_x509publickeyinfo *quarn_pkcs10certreqinfo_getpubkey(
    const quarn_pkcs10certreqinfo *value);
/** 1 when attributes is there. */
QUARN_ASN1_API int quarn_pkcs10certreqinfo_hasattrs(const quarn_pkcs10certreqinfo *value);
/** attributes. */
QUARN_ASN1_API quarn_asn1_list *quarn_pkcs10certreqinfo_getattrs(
    const quarn_pkcs10certreqinfo *value);

/* ---- CertificationRequest */

/**
 * A request for a certificate (RFC 2986, 4.2). A decoded one keeps its octets and encodes to
 * exactly these.
 *
 *     CertificationRequest ::= SEQUENCE {
 *         certificationRequestInfo  CertificationRequestInfo,
 *         signatureAlgorithm        AlgorithmIdentifier,
 *         signature                 BIT STRING
 *     }
 *
 * Type id QUARN_ASN1_PKCS10CERTREQ (46).
 */
typedef struct quarn_pkcs10certreq quarn_pkcs10certreq;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS10CERTREQ. */
QUARN_ASN1_API void quarn_pkcs10certreq_free(quarn_pkcs10certreq *value);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs10certreq_getversion(const quarn_pkcs10certreq *value);
/** subject. */
QUARN_ASN1_API quarn_x500name *quarn_pkcs10certreq_getsubject(const quarn_pkcs10certreq *value);
/** subjectPKInfo. */
QUARN_ASN1_API quarn_x509publickeyinfo *quarn_pkcs10certreq_getpubkey(
    const quarn_pkcs10certreq *value);
/** 1 when attributes is there. */
QUARN_ASN1_API int quarn_pkcs10certreq_hasattrs(const quarn_pkcs10certreq *value);
/** attributes. */
QUARN_ASN1_API quarn_asn1_list *quarn_pkcs10certreq_getattrs(const quarn_pkcs10certreq *value);
/** signatureAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcs10certreq_getsignalgo(const quarn_pkcs10certreq *value);
/** signature. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_pkcs10certreq_getsignvalue(
    const quarn_pkcs10certreq *value);
/**
 * The octets of certificationRequestInfo that were, or are to be, signed. length says how much room
 * buffer has and receives how many octets there are; a null buffer asks for no more. 0 when the
 * room is too small, length is null, or the value cannot be encoded.
 */
QUARN_ASN1_API int quarn_pkcs10certreq_gettbsocts(quarn_pkcs10certreq *value,
                                                  uint8_t *buffer,
                                                  uint64_t *length);
/**
 * Loads a request as quarn_x509pubkeycert_new() loads a certificate; the labels of PEM are
 * "CERTIFICATE REQUEST" and "NEW CERTIFICATE REQUEST".
 */
QUARN_ASN1_API quarn_pkcs10certreq *quarn_pkcs10certreq_new(const uint8_t *data,
                                                            int64_t length,
                                                            quarn_err_ctx *ctx);
/** A request from its parts, which are copied. It is encoded once as a check. */
QUARN_ASN1_API quarn_pkcs10certreq *quarn_pkcs10certreq_create(
    const quarn_pkcs10certreqinfo *body,
    const quarn_x509algoid *algorithm,
    const quarn_asn1_bitstring *signature);

#ifdef __cplusplus
}
#endif

#endif
