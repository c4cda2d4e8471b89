/* Generated from modules/ASN1_ESS.asn1 by tools/generate.py; do not edit. */
/**
 * Enhanced security services: which certificate a signature is to be verified with, and attributes
 * of messages (RFC 2634, RFC 5035).
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
#ifndef QUARN_ASN1_ESS_H
#define QUARN_ASN1_ESS_H

#include "types.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- ESSIssuerSerial */

/**
 * Names a certificate by its issuer and serial number (RFC 5035, 4). Unlike AttributeCertificate's,
 * it ends there.
 *
 *     ESSIssuerSerial ::= SEQUENCE {
 *         issuer        GeneralNames,
 *         serialNumber  INTEGER
 *     }
 *
 * Type id QUARN_ASN1_ESS_ISSUERSERIAL (193).
 */
typedef struct quarn_ess_issuerserial quarn_ess_issuerserial;
/** As quarn_asn1_value_free() under QUARN_ASN1_ESS_ISSUERSERIAL. */
QUARN_ASN1_API void quarn_ess_issuerserial_free(quarn_ess_issuerserial *value);
/** From its components. */
QUARN_ASN1_API quarn_ess_issuerserial *quarn_ess_issuerserial_new(
    const quarn_asn1_list *issuer, const quarn_asn1_integer *serial_number);
/** issuer. */
QUARN_ASN1_API quarn_asn1_list *quarn_ess_issuerserial_getissuer(
    const quarn_ess_issuerserial *value);
/** serialNumber. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ess_issuerserial_getserialno(
    const quarn_ess_issuerserial *value);

/* ---- ESSCertID */

/**
 * Names a certificate by its SHA-1 hash (RFC 2634, 5.4.1).
 *
 *     ESSCertID ::= SEQUENCE {
 *         certHash      OCTET STRING,
 *         issuerSerial  ESSIssuerSerial OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_ESS_CERTID (194).
 */
typedef struct quarn_ess_certid quarn_ess_certid;
/** As quarn_asn1_value_free() under QUARN_ASN1_ESS_CERTID. */
QUARN_ASN1_API void quarn_ess_certid_free(quarn_ess_certid *value);
/** From its components. Null leaves out issuer_serial. */
QUARN_ASN1_API quarn_ess_certid *quarn_ess_certid_new(const quarn_asn1_octetstring *cert_hash,
                                                      const quarn_ess_issuerserial *issuer_serial);
/** certHash. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ess_certid_getcerthash(const quarn_ess_certid *value);
/** 1 when issuerSerial is there. */
QUARN_ASN1_API int quarn_ess_certid_hasissuerserial(const quarn_ess_certid *value);
/** issuerSerial, null when it is absent. */
QUARN_ASN1_API quarn_ess_issuerserial *quarn_ess_certid_getissuerserial(
    const quarn_ess_certid *value);

/* ---- ESSCertIDv2 */

/**
 * Names a certificate by its hash (RFC 5035, 4). The default is SHA-256.
 *
 *     ESSCertIDv2 ::= SEQUENCE {
 *         hashAlgorithm  AlgorithmIdentifier DEFAULT '300b0609608648016503040201'H,
 *         certHash       OCTET STRING,
 *         issuerSerial   ESSIssuerSerial OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_ESS_CERTIDV2 (195).
 */
typedef struct quarn_ess_certidv2 quarn_ess_certidv2;
/** As quarn_asn1_value_free() under QUARN_ASN1_ESS_CERTIDV2. */
QUARN_ASN1_API void quarn_ess_certidv2_free(quarn_ess_certidv2 *value);
/**
 * From its components. Null leaves out issuer_serial, and stands for the default of hash_algorithm.
 */
QUARN_ASN1_API quarn_ess_certidv2 *quarn_ess_certidv2_new(
    const quarn_x509algoid *hash_algorithm,
    const quarn_asn1_octetstring *cert_hash,
    const quarn_ess_issuerserial *issuer_serial);
/** hashAlgorithm, the default when the encoding has none. */
QUARN_ASN1_API quarn_x509algoid *quarn_ess_certidv2_gethashalgo(const quarn_ess_certidv2 *value);
/** certHash. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ess_certidv2_getcerthash(
    const quarn_ess_certidv2 *value);
/** 1 when issuerSerial is there. */
QUARN_ASN1_API int quarn_ess_certidv2_hasissuerserial(const quarn_ess_certidv2 *value);
/** issuerSerial, null when it is absent. */
QUARN_ASN1_API quarn_ess_issuerserial *quarn_ess_certidv2_getissuerserial(
    const quarn_ess_certidv2 *value);

/* ---- ESSCertIDs */

/**
 * Certificates by their SHA-1 hashes, the signer's first (RFC 2634, 5.4).
 *
 *     ESSCertIDs ::= SEQUENCE OF ESSCertID
 *
 * Type id QUARN_ASN1_ESS_CERTIDS (196). A quarn_asn1_list of ESSCertID (quarn_ess_certid).
 */
QUARN_ASN1_API void quarn_ess_certids_free(quarn_asn1_list *value);

/* ---- ESSCertIDv2s */

/**
 * Certificates by their hashes, the signer's first (RFC 5035, 3).
 *
 *     ESSCertIDv2s ::= SEQUENCE OF ESSCertIDv2
 *
 * Type id QUARN_ASN1_ESS_CERTIDV2S (197). A quarn_asn1_list of ESSCertIDv2 (quarn_ess_certidv2).
 */
QUARN_ASN1_API void quarn_ess_certidv2s_free(quarn_asn1_list *value);

/* ---- SigningCertificate */

/**
 * The certificates to verify a signature with, and policies (RFC 2634, 5.4).
 *
 *     SigningCertificate ::= SEQUENCE {
 *         certs     ESSCertIDs,
 *         policies  CertificatePolicies OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_ESS_SIGNINGCERTIFICATE (199).
 */
typedef struct quarn_ess_signingcertificate quarn_ess_signingcertificate;
/** As quarn_asn1_value_free() under QUARN_ASN1_ESS_SIGNINGCERTIFICATE. */
QUARN_ASN1_API void quarn_ess_signingcertificate_free(quarn_ess_signingcertificate *value);
/** From its components. Null leaves out policies. */
QUARN_ASN1_API quarn_ess_signingcertificate *quarn_ess_signingcertificate_new(
    const quarn_asn1_list *certs, const quarn_asn1_list *policies);
/** certs. */
QUARN_ASN1_API quarn_asn1_list *quarn_ess_signingcertificate_getcerts(
    const quarn_ess_signingcertificate *value);
/** 1 when policies is there. */
QUARN_ASN1_API int quarn_ess_signingcertificate_haspolicies(
    const quarn_ess_signingcertificate *value);
/** policies, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ess_signingcertificate_getpolicies(
    const quarn_ess_signingcertificate *value);

/* ---- SigningCertificateV2 */

/**
 * The same with hashes of any algorithm (RFC 5035, 3).
 *
 *     SigningCertificateV2 ::= SEQUENCE {
 *         certs     ESSCertIDv2s,
 *         policies  CertificatePolicies OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_ESS_SIGNINGCERTIFICATEV2 (200).
 */
typedef struct quarn_ess_signingcertificatev2 quarn_ess_signingcertificatev2;
/** As quarn_asn1_value_free() under QUARN_ASN1_ESS_SIGNINGCERTIFICATEV2. */
QUARN_ASN1_API void quarn_ess_signingcertificatev2_free(quarn_ess_signingcertificatev2 *value);
/** From its components. Null leaves out policies. */
QUARN_ASN1_API quarn_ess_signingcertificatev2 *quarn_ess_signingcertificatev2_new(
    const quarn_asn1_list *certs, const quarn_asn1_list *policies);
/** certs. */
QUARN_ASN1_API quarn_asn1_list *quarn_ess_signingcertificatev2_getcerts(
    const quarn_ess_signingcertificatev2 *value);
/** 1 when policies is there. */
QUARN_ASN1_API int quarn_ess_signingcertificatev2_haspolicies(
    const quarn_ess_signingcertificatev2 *value);
/** policies, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ess_signingcertificatev2_getpolicies(
    const quarn_ess_signingcertificatev2 *value);

/* ---- ContentReference */

/**
 * Links a signed message to the one that it answers (RFC 2634, 2.11).
 *
 *     ContentReference ::= SEQUENCE {
 *         contentType               OBJECT IDENTIFIER,
 *         signedContentIdentifier   OCTET STRING,
 *         originatorSignatureValue  OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_CONTENTREFERENCE (263).
 */
typedef struct quarn_contentreference quarn_contentreference;
/** As quarn_asn1_value_free() under QUARN_ASN1_CONTENTREFERENCE. */
QUARN_ASN1_API void quarn_contentreference_free(quarn_contentreference *value);
/** From its components. */
QUARN_ASN1_API quarn_contentreference *quarn_contentreference_new(
    const quarn_asn1_oid *content_type,
    const quarn_asn1_octetstring *signed_content_identifier,
    const quarn_asn1_octetstring *originator_signature_value);
/** contentType. */
QUARN_ASN1_API quarn_asn1_oid *quarn_contentreference_getcontenttype(
    const quarn_contentreference *value);
/** signedContentIdentifier. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_contentreference_getsignedcontentid(
    const quarn_contentreference *value);
/** originatorSignatureValue. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_contentreference_getoriginatorsignvalue(
    const quarn_contentreference *value);

/* ---- ContentHints */

/**
 * What the innermost content of a message is (RFC 2634, 2.9).
 *
 *     ContentHints ::= SEQUENCE {
 *         contentDescription  UTF8String (SIZE (1..MAX)) OPTIONAL,
 *         contentType         OBJECT IDENTIFIER
 *     }
 *
 * Type id QUARN_ASN1_CONTENTHINTS (264).
 */
typedef struct quarn_contenthints quarn_contenthints;
/** As quarn_asn1_value_free() under QUARN_ASN1_CONTENTHINTS. */
QUARN_ASN1_API void quarn_contenthints_free(quarn_contenthints *value);
/** From its components. Null leaves out content_description. */
QUARN_ASN1_API quarn_contenthints *quarn_contenthints_new(
    const quarn_asn1_octetstring *content_description, const quarn_asn1_oid *content_type);
/** 1 when contentDescription is there. */
QUARN_ASN1_API int quarn_contenthints_hascontentdescription(const quarn_contenthints *value);
/** contentDescription, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_contenthints_getcontentdescription(
    const quarn_contenthints *value);
/** contentType. */
QUARN_ASN1_API quarn_asn1_oid *quarn_contenthints_getcontenttype(const quarn_contenthints *value);

#ifdef __cplusplus
}
#endif

#endif
