/* Generated from modules/ASN1_X509.asn1 by tools/generate.py; do not edit. */
/**
 * Certificates and certificate revocation lists, and what they are made of (X.509, RFC 5280, RFC
 * 3279).
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
#ifndef QUARN_ASN1_X509_H
#define QUARN_ASN1_X509_H

#include "types.h"
#include "x500.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- AlgorithmIdentifier */

/**
 * An OBJECT IDENTIFIER and what it calls for: an algorithm and its parameters (RFC 5280, 4.1.1.2),
 * a capability, a policy qualifier, a statement. An explicit NULL and absent parameters are
 * different values.
 *
 *     AlgorithmIdentifier ::= SEQUENCE {
 *         algorithm   OBJECT IDENTIFIER,
 *         parameters  ANY OPTIONAL
 *     }
 *
 * Type ids QUARN_ASN1_X509ALGORITHMID (33), QUARN_ASN1_SMIMECAPABILITY (53),
 * QUARN_ASN1_X509POLICYQUALIFIERINFO (68), QUARN_ASN1_QCSTATEMENT (221).
 */
typedef struct quarn_x509algoid quarn_x509algoid;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509ALGORITHMID. */
QUARN_ASN1_API void quarn_x509AlgorithmId_free(quarn_x509algoid *value);
/** algorithm. */
QUARN_ASN1_API quarn_asn1_oid *quarn_x509algoid_getalgorithm(const quarn_x509algoid *value);
/** 1 when parameters is there. */
QUARN_ASN1_API int quarn_x509algoid_hasparam(const quarn_x509algoid *value);
/** parameters, null when it is absent. */
QUARN_ASN1_API quarn_asn1_any *quarn_x509algoid_getparam(const quarn_x509algoid *value);
/**
 * A new algorithm identifier.
 *
 * @param param_type_id  the type of param; QUARN_ASN1_NULL with a null param gives an explicit NULL
 */
QUARN_ASN1_API quarn_x509algoid *quarn_x509algoid_new(const quarn_asn1_oid *algorithm,
                                                      int64_t param_type_id,
                                                      const void *param);
/** A new algorithm identifier whose parameters are absent. */
QUARN_ASN1_API quarn_x509algoid *quarn_x509algoid_new_without_param(
    const quarn_asn1_oid *algorithm);
/** 1 when the parameters are an explicit NULL, 0 when they are absent or something else. */
QUARN_ASN1_API int quarn_x509algoid_isnullparam(const quarn_x509algoid *value);

/* ---- Validity */

/**
 * From when until when a certificate is valid, both included (RFC 5280, 4.1.2.5).
 *
 *     Validity ::= SEQUENCE {
 *         notBefore  Time,
 *         notAfter   Time
 *     }
 *
 * Type id QUARN_ASN1_X509VALIDITY (34).
 */
typedef struct quarn_x509validity quarn_x509validity;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509VALIDITY. */
QUARN_ASN1_API void quarn_x509Validity_free(quarn_x509validity *value);
/** From its components. */
QUARN_ASN1_API quarn_x509validity *quarn_x509validity_new(const quarn_asn1_time *not_before,
                                                          const quarn_asn1_time *not_after);
/** notBefore. */
QUARN_ASN1_API quarn_asn1_time *quarn_x509validity_getnotbefore(const quarn_x509validity *value);
/** notAfter. */
QUARN_ASN1_API quarn_asn1_time *quarn_x509validity_getnotafter(const quarn_x509validity *value);

/* ---- SubjectPublicKeyInfo */

/**
 * A public key with its algorithm (RFC 5280, 4.1.2.7).
 *
 *     SubjectPublicKeyInfo ::= SEQUENCE {
 *         algorithm         AlgorithmIdentifier,
 *         subjectPublicKey  BIT STRING
 *     }
 *
 * Type id QUARN_ASN1_X509PUBLICKEYINFO (35).
 */
typedef struct quarn_x509publickeyinfo quarn_x509publickeyinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509PUBLICKEYINFO. */
QUARN_ASN1_API void quarn_x509PublicKeyInfo_free(quarn_x509publickeyinfo *value);
/** From its components. */
QUARN_ASN1_API quarn_x509publickeyinfo *quarn_x509publickeyinfo_new(
    const quarn_x509algoid *algorithm, const quarn_asn1_bitstring *subject_public_key);
/** algorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_x509publickeyinfo_getalgorithm(
    const quarn_x509publickeyinfo *value);
/** subjectPublicKey. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_x509publickeyinfo_getsubjectpublickey(
    const quarn_x509publickeyinfo *value);

/* ---- Extension */

/**
 * One extension. extnValue holds the encoding of a type that extnID names (RFC 5280, 4.2).
 *
 *     Extension ::= SEQUENCE {
 *         extnID     OBJECT IDENTIFIER,
 *         critical   BOOLEAN DEFAULT FALSE,
 *         extnValue  OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_X509EXTENSION (36).
 */
typedef struct quarn_x509extension quarn_x509extension;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509EXTENSION. */
QUARN_ASN1_API void quarn_x509Extension_free(quarn_x509extension *value);
/** From its components. Null stands for the default of critical (FALSE). */
QUARN_ASN1_API quarn_x509extension *quarn_x509extension_new(
    const quarn_asn1_oid *extn_id,
    const quarn_asn1_boolean *critical,
    const quarn_asn1_octetstring *extn_value);
/** extnID. */
QUARN_ASN1_API quarn_asn1_oid *quarn_x509extension_getextnid(const quarn_x509extension *value);
/** critical, FALSE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_x509extension_getcritical(
    const quarn_x509extension *value);
/** extnValue. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_x509extension_getextnvalue(
    const quarn_x509extension *value);

/* ---- Extensions */

/**
 * The extensions of a certificate, a list or a message (RFC 5280, 4.1.2.9).
 *
 *     Extensions ::= SEQUENCE OF Extension
 *
 * Type id QUARN_ASN1_X509EXTENSIONS (37). A quarn_asn1_list of Extension (quarn_x509extension).
 */
QUARN_ASN1_API void quarn_x509Extensions_free(quarn_asn1_list *value);

/* ---- TBSCertificate */

/**
 * The part of a certificate that its issuer signs (RFC 5280, 4.1.2). version is 0 for v1, 2 for v3.
 *
 *     TBSCertificate ::= SEQUENCE {
 *         version               [0] EXPLICIT INTEGER { v1(0), v2(1), v3(2) } DEFAULT 0,
 *         serialNumber          INTEGER,
 *         signature             AlgorithmIdentifier,
 *         issuer                Name,
 *         validity              Validity,
 *         subject               Name,
 *         subjectPublicKeyInfo  SubjectPublicKeyInfo,
 *         issuerUniqueID        [1] IMPLICIT BIT STRING OPTIONAL,
 *         subjectUniqueID       [2] IMPLICIT BIT STRING OPTIONAL,
 *         extensions            [3] EXPLICIT Extensions OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_X509TBSCERTIFICATE (38).
 */
typedef struct quarn_x509TBSCertificate quarn_x509TBSCertificate;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509TBSCERTIFICATE. */
QUARN_ASN1_API void quarn_x509TBSCertificate_free(quarn_x509TBSCertificate *value);
/**
 * From its components. Null leaves out issuer_unique_id, subject_unique_id and extensions, and
 * stands for the default of version (0).
 */
QUARN_ASN1_API quarn_x509TBSCertificate *quarn_x509TBSCertificate_new(
    const quarn_asn1_integer *version,
    const quarn_asn1_integer *serial_number,
    const quarn_x509algoid *signature,
    const quarn_x500name *issuer,
    const quarn_x509validity *validity,
    const quarn_x500name *subject,
    const quarn_x509publickeyinfo *subject_public_key_info,
    const quarn_asn1_bitstring *issuer_unique_id,
    const quarn_asn1_bitstring *subject_unique_id,
    const quarn_asn1_list *extensions);
/** version, 0 when the encoding has none. */
QUARN_ASN1_API quarn_asn1_integer *quarn_x509TBSCertificate_getversion(
    const quarn_x509TBSCertificate *value);
/** serialNumber. */
QUARN_ASN1_API quarn_asn1_integer *quarn_x509TBSCertificate_getserialno(
    const quarn_x509TBSCertificate *value);
/** signature. */
QUARN_ASN1_API quarn_x509algoid *quarn_x509TBSCertificate_getinnersignalgo(
    const quarn_x509TBSCertificate *value);
/** issuer. */
QUARN_ASN1_API quarn_x500name *quarn_x509TBSCertificate_getissuer(
    const quarn_x509TBSCertificate *value);
/** validity. */
QUARN_ASN1_API quarn_x509validity *quarn_x509TBSCertificate_getvalidity(
    const quarn_x509TBSCertificate *value);
/** subject. */
QUARN_ASN1_API quarn_x500name *quarn_x509TBSCertificate_getsubject(
    const quarn_x509TBSCertificate *value);
/** subjectPublicKeyInfo. */
QUARN_ASN1_API quarn_x509publickeyinfo *quarn_x509TBSCertificate_getpubkey(
    const quarn_x509TBSCertificate *value);
/** 1 when issuerUniqueID is there. */
QUARN_ASN1_API int quarn_x509TBSCertificate_hasissueruid(const quarn_x509TBSCertificate *value);
/** issuerUniqueID, null when it is absent. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_x509TBSCertificate_getissueruid(
    const quarn_x509TBSCertificate *value);
/** 1 when subjectUniqueID is there. */
QUARN_ASN1_API int quarn_x509TBSCertificate_hassubjectuid(const quarn_x509TBSCertificate *value);
/** subjectUniqueID, null when it is absent. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_x509TBSCertificate_getsubjectuid(
    const quarn_x509TBSCertificate *value);
/** 1 when extensions is there. */
QUARN_ASN1_API int quarn_x509TBSCertificate_hasexts(const quarn_x509TBSCertificate *value);
/** extensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509TBSCertificate_getexts(
    const quarn_x509TBSCertificate *value);

/* ---- Certificate */

/**
 * A certificate (RFC 5280, 4.1). A decoded one keeps its octets and encodes to exactly these.
 *
 *     Certificate ::= SEQUENCE {
 *         tbsCertificate      TBSCertificate,
 *         signatureAlgorithm  AlgorithmIdentifier,
 *         signatureValue      BIT STRING
 *     }
 *
 * Type id QUARN_ASN1_X509PUBKEYCERT (39).
 */
typedef struct quarn_x509pubkeycert quarn_x509pubkeycert;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509PUBKEYCERT. */
QUARN_ASN1_API void quarn_x509PubKeyCert_free(quarn_x509pubkeycert *value);
/** version, 0 when the encoding has none. */
QUARN_ASN1_API quarn_asn1_integer *quarn_x509pubkeycert_getversion(
    const quarn_x509pubkeycert *value);
/** serialNumber. */
QUARN_ASN1_API quarn_asn1_integer *quarn_x509pubkeycert_getserialno(
    const quarn_x509pubkeycert *value);
/** signature. */
QUARN_ASN1_API quarn_x509algoid *quarn_x509pubkeycert_getinnersignalgo(
    const quarn_x509pubkeycert *value);
/** issuer. */
QUARN_ASN1_API quarn_x500name *quarn_x509pubkeycert_getissuer(const quarn_x509pubkeycert *value);
/** validity. */
QUARN_ASN1_API quarn_x509validity *quarn_x509pubkeycert_getvalidity(
    const quarn_x509pubkeycert *value);
/** subject. */
QUARN_ASN1_API quarn_x500name *quarn_x509pubkeycert_getsubject(const quarn_x509pubkeycert *value);
/** subjectPublicKeyInfo. */
QUARN_ASN1_API quarn_x509publickeyinfo *quarn_x509pubkeycert_getpubkey(
    const quarn_x509pubkeycert *value);
/** 1 when issuerUniqueID is there. */
QUARN_ASN1_API int quarn_x509pubkeycert_hasissueruid(const quarn_x509pubkeycert *value);
/** issuerUniqueID, null when it is absent. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_x509pubkeycert_getissueruid(
    const quarn_x509pubkeycert *value);
/** 1 when subjectUniqueID is there. */
QUARN_ASN1_API int quarn_x509pubkeycert_hassubjectuid(const quarn_x509pubkeycert *value);
/** subjectUniqueID, null when it is absent. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_x509pubkeycert_getsubjectuid(
    const quarn_x509pubkeycert *value);
/** 1 when extensions is there. */
QUARN_ASN1_API int quarn_x509pubkeycert_hasexts(const quarn_x509pubkeycert *value);
/** extensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509pubkeycert_getexts(const quarn_x509pubkeycert *value);
/** signatureAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_x509pubkeycert_getsignalgo(
    const quarn_x509pubkeycert *value);
/** signatureValue. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_x509pubkeycert_getsignvalue(
    const quarn_x509pubkeycert *value);
/**
 * The octets of tbsCertificate that were, or are to be, signed. length says how much room buffer
 * has and receives how many octets there are; a null buffer asks for no more. 0 when the room is
 * too small, length is null, or the value cannot be encoded.
 */
QUARN_ASN1_API int quarn_x509pubkeycert_gettbsocts(quarn_x509pubkeycert *value,
                                                   uint8_t *buffer,
                                                   uint64_t *length);
/**
 * Loads a certificate from octets that it fills exactly: DER or BER, PEM ("CERTIFICATE"), or base64
 * text that starts with "M". The first octet tells which. No white space is skipped before it.
 *
 * @param ctx  receives the decoder's records; may be null
 */
QUARN_ASN1_API quarn_x509pubkeycert *quarn_x509pubkeycert_new(const uint8_t *data,
                                                              int64_t length,
                                                              quarn_err_ctx *ctx);
/**
 * A certificate from its parts, which are copied. Its signatureAlgorithm is a copy of the one
 * inside the part that is signed. It is encoded once as a check.
 */
QUARN_ASN1_API quarn_x509pubkeycert *quarn_x509pubkeycert_create(
    const quarn_x509TBSCertificate *body, const quarn_asn1_bitstring *signature);

/* ---- Certificates */

/**
 * Certificates one after another.
 *
 *     Certificates ::= SEQUENCE OF Certificate
 *
 * Type id QUARN_ASN1_X509CERTIFICATES (245). A quarn_asn1_list of Certificate
 * (quarn_x509pubkeycert).
 */
QUARN_ASN1_API void quarn_x509certificates_free(quarn_asn1_list *value);

/* ---- CertificatePair */

/**
 * Certificates that two authorities have issued to each other (X.509, 11.2.3).
 *
 *     CertificatePair ::= SEQUENCE {
 *         forward  [0] EXPLICIT Certificate OPTIONAL,
 *         reverse  [1] EXPLICIT Certificate OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_X500CERTPAIR (55).
 */
typedef struct quarn_x500certpair quarn_x500certpair;
/** As quarn_asn1_value_free() under QUARN_ASN1_X500CERTPAIR. */
QUARN_ASN1_API void quarn_x500certpair_free(quarn_x500certpair *value);
/** From its components. Null leaves out forward and reverse. */
QUARN_ASN1_API quarn_x500certpair *quarn_x500certpair_new(const quarn_x509pubkeycert *forward,
                                                          const quarn_x509pubkeycert *reverse);
/** 1 when forward is there. */
QUARN_ASN1_API int quarn_x500certpair_hasforward(const quarn_x500certpair *value);
/** forward, null when it is absent. */
QUARN_ASN1_API quarn_x509pubkeycert *quarn_x500certpair_getforward(const quarn_x500certpair *value);
/** 1 when reverse is there. */
QUARN_ASN1_API int quarn_x500certpair_hasreverse(const quarn_x500certpair *value);
/** reverse, null when it is absent. */
QUARN_ASN1_API quarn_x509pubkeycert *quarn_x500certpair_getreverse(const quarn_x500certpair *value);

/* ---- RevokedCertificate */

/**
 * An entry of a certificate revocation list (RFC 5280, 5.1.2.6).
 *
 *     RevokedCertificate ::= SEQUENCE {
 *         userCertificate     INTEGER,
 *         revocationDate      Time,
 *         crlEntryExtensions  Extensions OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_X509REVOKEDCERT (92).
 */
typedef struct quarn_x509revokedcert quarn_x509revokedcert;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509REVOKEDCERT. */
QUARN_ASN1_API void quarn_x509RevokedCert_free(quarn_x509revokedcert *value);
/** From its components. Null leaves out crl_entry_extensions. */
QUARN_ASN1_API quarn_x509revokedcert *quarn_x509revokedcert_new(
    const quarn_asn1_integer *user_certificate,
    const quarn_asn1_time *revocation_date,
    const quarn_asn1_list *crl_entry_extensions);
/** userCertificate. */
QUARN_ASN1_API quarn_asn1_integer *quarn_x509revokedcert_getusercertificate(
    const quarn_x509revokedcert *value);
/** revocationDate. */
QUARN_ASN1_API quarn_asn1_time *quarn_x509revokedcert_getrevocationdate(
    const quarn_x509revokedcert *value);
/** 1 when crlEntryExtensions is there. */
QUARN_ASN1_API int quarn_x509revokedcert_hascrlentryextensions(const quarn_x509revokedcert *value);
/** crlEntryExtensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509revokedcert_getcrlentryextensions(
    const quarn_x509revokedcert *value);

/* ---- RevokedCertificates */

/**
 * The entries of a certificate revocation list (RFC 5280, 5.1.2.6).
 *
 *     RevokedCertificates ::= SEQUENCE OF RevokedCertificate
 *
 * Type id QUARN_ASN1_X509REVOKEDCERTS (140). A quarn_asn1_list of RevokedCertificate
 * (quarn_x509revokedcert).
 */
QUARN_ASN1_API void quarn_x509RevokedCerts_free(quarn_asn1_list *value);

/* ---- TBSCertList */

/**
 * The part of a certificate revocation list that its issuer signs (RFC 5280, 5.1.2). version is no
 * DEFAULT: a list of version 1 has none, one of version 2 has INTEGER 1, and an explicit 0 stays.
 *
 *     TBSCertList ::= SEQUENCE {
 *         version              INTEGER { v1(0), v2(1) } OPTIONAL,
 *         signature            AlgorithmIdentifier,
 *         issuer               Name,
 *         thisUpdate           Time,
 *         nextUpdate           Time OPTIONAL,
 *         revokedCertificates  RevokedCertificates OPTIONAL,
 *         crlExtensions        [0] EXPLICIT Extensions OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_X509TBSCERTLIST (40).
 */
typedef struct quarn_x509TBSCertList quarn_x509TBSCertList;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509TBSCERTLIST. */
QUARN_ASN1_API void quarn_x509TBSCertList_free(quarn_x509TBSCertList *value);
/** 1 when version is there. */
QUARN_ASN1_API int quarn_x509TBSCertList_hasversion(const quarn_x509TBSCertList *value);
/** version, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_x509TBSCertList_getversion(
    const quarn_x509TBSCertList *value);
/** signature. */
QUARN_ASN1_API quarn_x509algoid *quarn_x509TBSCertList_getinnersignalgo(
    const quarn_x509TBSCertList *value);
/** issuer. */
QUARN_ASN1_API quarn_x500name *quarn_x509TBSCertList_getissuer(const quarn_x509TBSCertList *value);
/** thisUpdate. */
QUARN_ASN1_API quarn_asn1_time *quarn_x509TBSCertList_getthisupdate(
    const quarn_x509TBSCertList *value);
/** 1 when nextUpdate is there. */
QUARN_ASN1_API int quarn_x509TBSCertList_hasnextupdate(const quarn_x509TBSCertList *value);
/** nextUpdate, null when it is absent. */
QUARN_ASN1_API quarn_asn1_time *quarn_x509TBSCertList_getnextupdate(
    const quarn_x509TBSCertList *value);
/** 1 when revokedCertificates is there. */
QUARN_ASN1_API int quarn_x509TBSCertList_hasrevcerts(const quarn_x509TBSCertList *value);
/** revokedCertificates, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509TBSCertList_getrevcerts(
    const quarn_x509TBSCertList *value);
/** 1 when crlExtensions is there. */
QUARN_ASN1_API int quarn_x509TBSCertList_hasexts(const quarn_x509TBSCertList *value);
/** crlExtensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509TBSCertList_getexts(const quarn_x509TBSCertList *value);
/**
 * A new list body. signature, issuer and this_update are mandatory.
 *
 * @param reserved  not used
 */
QUARN_ASN1_API quarn_x509TBSCertList *quarn_x509TBSCertList_new(const quarn_asn1_integer *version,
                                                                const quarn_x509algoid *signature,
                                                                const quarn_x500name *issuer,
                                                                const quarn_asn1_time *this_update,
                                                                const quarn_asn1_time *next_update,
                                                                const quarn_asn1_list *revoked,
                                                                uint32_t reserved,
                                                                const quarn_asn1_list *extensions);

/* ---- CertificateList */

/**
 * A certificate revocation list (RFC 5280, 5.1). A decoded one keeps its octets and encodes to
 * exactly these.
 *
 *     CertificateList ::= SEQUENCE {
 *         tbsCertList         TBSCertList,
 *         signatureAlgorithm  AlgorithmIdentifier,
 *         signatureValue      BIT STRING
 *     }
 *
 * Type id QUARN_ASN1_X509CRL (41).
 */
typedef struct quarn_x509crl quarn_x509crl;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509CRL. */
QUARN_ASN1_API void quarn_x509CRL_free(quarn_x509crl *value);
/** 1 when version is there. */
QUARN_ASN1_API int quarn_x509crl_hasversion(const quarn_x509crl *value);
/** version, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_x509crl_getversion(const quarn_x509crl *value);
/** signature. */
QUARN_ASN1_API quarn_x509algoid *quarn_x509crl_getinnersignalgo(const quarn_x509crl *value);
/** issuer. */
QUARN_ASN1_API quarn_x500name *quarn_x509crl_getissuer(const quarn_x509crl *value);
/** thisUpdate. */
QUARN_ASN1_API quarn_asn1_time *quarn_x509crl_getthisupdate(const quarn_x509crl *value);
/** 1 when nextUpdate is there. */
QUARN_ASN1_API int quarn_x509crl_hasnextupdate(const quarn_x509crl *value);
/** nextUpdate, null when it is absent. */
QUARN_ASN1_API quarn_asn1_time *quarn_x509crl_getnextupdate(const quarn_x509crl *value);
/** 1 when revokedCertificates is there. */
QUARN_ASN1_API int quarn_x509crl_hasrevcerts(const quarn_x509crl *value);
/** revokedCertificates, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509crl_getrevcerts(const quarn_x509crl *value);
/** 1 when crlExtensions is there. */
QUARN_ASN1_API int quarn_x509crl_hasexts(const quarn_x509crl *value);
/** crlExtensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509crl_getexts(const quarn_x509crl *value);
/** signatureAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_x509crl_getsignalgo(const quarn_x509crl *value);
/** signatureValue. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_x509crl_getsignvalue(const quarn_x509crl *value);
/**
 * The octets of tbsCertList that were, or are to be, signed. length says how much room buffer has
 * and receives how many octets there are; a null buffer asks for no more. 0 when the room is too
 * small, length is null, or the value cannot be encoded.
 */
QUARN_ASN1_API int quarn_x509crl_gettbsocts(quarn_x509crl *value,
                                            uint8_t *buffer,
                                            uint64_t *length);
/**
 * Loads a list as quarn_x509pubkeycert_new() loads a certificate; the labels of PEM are "X509 CRL"
 * and "CRL".
 */
QUARN_ASN1_API quarn_x509crl *quarn_x509crl_new(const uint8_t *data,
                                                int64_t length,
                                                quarn_err_ctx *ctx);
/** A list from its parts, as quarn_x509pubkeycert_create() makes a certificate. */
QUARN_ASN1_API quarn_x509crl *quarn_x509crl_create(const quarn_x509TBSCertList *body,
                                                   const quarn_asn1_bitstring *signature);

/* ---- CertificateLists */

/**
 * Certificate revocation lists one after another.
 *
 *     CertificateLists ::= SEQUENCE OF CertificateList
 *
 * Type id QUARN_ASN1_X509CRLS (246). A quarn_asn1_list of CertificateList (quarn_x509crl).
 */
QUARN_ASN1_API void quarn_x509crls_free(quarn_asn1_list *value);

/* ---- DigestInfo */

/**
 * A digest and its algorithm (RFC 8017, A.2.4; RFC 3161, 2.4.1; RFC 5126, 5.7.3.3).
 *
 *     DigestInfo ::= SEQUENCE {
 *         digestAlgorithm  AlgorithmIdentifier,
 *         digest           OCTET STRING
 *     }
 *
 * Type ids QUARN_ASN1_PKCSDIGESTINFO (57), QUARN_ASN1_TSP_MESSAGEIMPRINT (186),
 * QUARN_ASN1_OTHERHASHALGANDVALUE (225).
 */
typedef struct quarn_pkcsdigestinfo quarn_pkcsdigestinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCSDIGESTINFO. */
QUARN_ASN1_API void quarn_pkcsdigestinfo_free(quarn_pkcsdigestinfo *value);
/** From its components. */
QUARN_ASN1_API quarn_pkcsdigestinfo *quarn_pkcsdigestinfo_new(
    const quarn_x509algoid *digest_algorithm, const quarn_asn1_octetstring *digest);
/** digestAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcsdigestinfo_getdigestalgo(
    const quarn_pkcsdigestinfo *value);
/** digest. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_pkcsdigestinfo_getdigest(
    const quarn_pkcsdigestinfo *value);

/* ---- Dss-Sig-Value */

/**
 * A signature of DSA or ECDSA, or of SM2 (RFC 3279, 2.2.2; GM/T 0009).
 *
 *     Dss-Sig-Value ::= SEQUENCE {
 *         r  INTEGER,
 *         s  INTEGER
 *     }
 *
 * Type ids QUARN_ASN1_DSSSIGVALUE (58), QUARN_ASN1_ECDSASIGVALUE (59).
 */
typedef struct quarn_dsssigvalue quarn_dsssigvalue;
/** As quarn_asn1_value_free() under QUARN_ASN1_DSSSIGVALUE. */
QUARN_ASN1_API void quarn_dsssigvalue_free(quarn_dsssigvalue *value);
/** From its components. */
QUARN_ASN1_API quarn_dsssigvalue *quarn_dsssigvalue_new(const quarn_asn1_integer *r,
                                                        const quarn_asn1_integer *s);
/** r. */
QUARN_ASN1_API quarn_asn1_integer *quarn_dsssigvalue_getr(const quarn_dsssigvalue *value);
/** s. */
QUARN_ASN1_API quarn_asn1_integer *quarn_dsssigvalue_gets(const quarn_dsssigvalue *value);

/* ---- Dss-Parms */

/**
 * The parameters of DSA (RFC 3279, 2.3.2).
 *
 *     Dss-Parms ::= SEQUENCE {
 *         p  INTEGER,
 *         q  INTEGER,
 *         g  INTEGER
 *     }
 *
 * Type id QUARN_ASN1_DSSPARAMS (60).
 */
typedef struct quarn_dssparams quarn_dssparams;
/** As quarn_asn1_value_free() under QUARN_ASN1_DSSPARAMS. */
QUARN_ASN1_API void quarn_dssparams_free(quarn_dssparams *value);
/** From its components. */
QUARN_ASN1_API quarn_dssparams *quarn_dssparams_new(const quarn_asn1_integer *p,
                                                    const quarn_asn1_integer *q,
                                                    const quarn_asn1_integer *g);
/** p. */
QUARN_ASN1_API quarn_asn1_integer *quarn_dssparams_getp(const quarn_dssparams *value);
/** q. */
QUARN_ASN1_API quarn_asn1_integer *quarn_dssparams_getq(const quarn_dssparams *value);
/** g. */
QUARN_ASN1_API quarn_asn1_integer *quarn_dssparams_getg(const quarn_dssparams *value);

/* ---- InstanceOf */

/**
 * A value of a type that an OBJECT IDENTIFIER names (X.681, annex C).
 *
 *     InstanceOf ::= [UNIVERSAL 8] IMPLICIT SEQUENCE {
 *         type-id  OBJECT IDENTIFIER,
 *         value    [0] EXPLICIT ANY
 *     }
 *
 * Type id QUARN_ASN1_INSTANCEOFTYPEID (61).
 */
typedef struct quarn_instanceoftypeid quarn_instanceoftypeid;
/** As quarn_asn1_value_free() under QUARN_ASN1_INSTANCEOFTYPEID. */
QUARN_ASN1_API void quarn_instanceoftypeid_free(quarn_instanceoftypeid *value);
/** From its components. */
QUARN_ASN1_API quarn_instanceoftypeid *quarn_instanceoftypeid_new(const quarn_asn1_oid *type_id,
                                                                  const quarn_asn1_any *value);
/** type-id. */
QUARN_ASN1_API quarn_asn1_oid *quarn_instanceoftypeid_gettypeid(
    const quarn_instanceoftypeid *value);
/** value. */
QUARN_ASN1_API quarn_asn1_any *quarn_instanceoftypeid_getvalue(const quarn_instanceoftypeid *value);

#ifdef __cplusplus
}
#endif

#endif
