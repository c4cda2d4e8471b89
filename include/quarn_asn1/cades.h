/* Generated from modules/ASN1_CAdES.asn1 by tools/generate.py; do not edit. */
/**
 * Attributes of signatures: CAdES (RFC 5126, ETSI TS 101 733, ETSI EN 319 122-1), S/MIME (RFC
 * 8551), and of signatures in PDF (ISO 32000-1). References to and values of what a signature was
 * verified with may be any number, none included.
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
#ifndef QUARN_ASN1_CADES_H
#define QUARN_ASN1_CADES_H

#include "attribute.h"
#include "cms.h"
#include "ess.h"
#include "ocsp.h"
#include "types.h"
#include "x500.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- SMIMEEncryptionKeyPreference */

/**
 * Which certificate to encrypt for when answering the signer (RFC 8551, 2.5.3).
 *
 *     SMIMEEncryptionKeyPreference ::= CHOICE {
 *         issuerAndSerialNumber    [0] IMPLICIT IssuerAndSerialNumber,
 *         receipentKeyId           [1] IMPLICIT RecipientKeyIdentifier,
 *         subjectAltKeyIdentifier  [2] IMPLICIT OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_SMIMEENCRYPTIONKEYPREFERENCE (216).
 */
typedef struct quarn_smimeencryptionkeypreference quarn_smimeencryptionkeypreference;
/** As quarn_asn1_value_free() under QUARN_ASN1_SMIMEENCRYPTIONKEYPREFERENCE. */
QUARN_ASN1_API void quarn_smimeencryptionkeypreference_free(
    quarn_smimeencryptionkeypreference *value);
/**
 * Number of the alternative: 0 issuerAndSerialNumber, 1 receipentKeyId, 2 subjectAltKeyIdentifier;
 * all ones for null.
 */
QUARN_ASN1_API uint32_t quarn_smimeencryptionkeypreference_gettype(
    const quarn_smimeencryptionkeypreference *value);
/** The alternative issuerAndSerialNumber. */
QUARN_ASN1_API quarn_smimeencryptionkeypreference *quarn_smimeencryptionkeypreference_newissuersn(
    const quarn_cmsissuerandsn *issuer_and_serial_number);
/** issuerAndSerialNumber, null when it is another alternative. */
QUARN_ASN1_API quarn_cmsissuerandsn *quarn_smimeencryptionkeypreference_getissuersn(
    const quarn_smimeencryptionkeypreference *value);
/** The alternative receipentKeyId. */
QUARN_ASN1_API quarn_smimeencryptionkeypreference *quarn_smimeencryptionkeypreference_newrecipkeyid(
    const quarn_cmsrecipientkeyid *receipent_key_id);
/** receipentKeyId, null when it is another alternative. */
QUARN_ASN1_API quarn_cmsrecipientkeyid *quarn_smimeencryptionkeypreference_getrecipkeyid(
    const quarn_smimeencryptionkeypreference *value);
/** The alternative subjectAltKeyIdentifier. */
QUARN_ASN1_API quarn_smimeencryptionkeypreference *
quarn_smimeencryptionkeypreference_newsubaltkeyid(
    const quarn_asn1_octetstring *subject_alt_key_identifier);
/** subjectAltKeyIdentifier, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_smimeencryptionkeypreference_getsubaltkeyid(
    const quarn_smimeencryptionkeypreference *value);

/* ---- OtherHash */

/**
 * A digest of a certificate, a CRL or a response: of SHA-1, whose length is not checked, or with
 * its algorithm (RFC 5126, 5.7.3.3).
 *
 *     OtherHash ::= CHOICE {
 *         sha1Hash   OCTET STRING,
 *         otherHash  DigestInfo
 *     }
 *
 * Type id QUARN_ASN1_OTHERHASH (226).
 */
typedef struct quarn_otherhash quarn_otherhash;
/** As quarn_asn1_value_free() under QUARN_ASN1_OTHERHASH. */
QUARN_ASN1_API void quarn_otherhash_free(quarn_otherhash *value);
/** Number of the alternative: 0 sha1Hash, 1 otherHash; all ones for null. */
QUARN_ASN1_API uint32_t quarn_otherhash_gettype(const quarn_otherhash *value);
/** The alternative sha1Hash. */
QUARN_ASN1_API quarn_otherhash *quarn_otherhash_newsha1hash(
    const quarn_asn1_octetstring *sha1_hash);
/** sha1Hash, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_otherhash_getsha1hash(const quarn_otherhash *value);
/** The alternative otherHash. */
QUARN_ASN1_API quarn_otherhash *quarn_otherhash_newotherhash(
    const quarn_pkcsdigestinfo *other_hash);
/** otherHash, null when it is another alternative. */
QUARN_ASN1_API quarn_pkcsdigestinfo *quarn_otherhash_getotherhash(const quarn_otherhash *value);

/* ---- OtherCertID */

/**
 * Names a certificate by its digest (RFC 5126, 5.7.3.3).
 *
 *     OtherCertID ::= SEQUENCE {
 *         otherCertHash  OtherHash,
 *         issuerSerial   ESSIssuerSerial OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_OTHERCERTID (227).
 */
typedef struct quarn_othercertid quarn_othercertid;
/** As quarn_asn1_value_free() under QUARN_ASN1_OTHERCERTID. */
QUARN_ASN1_API void quarn_othercertid_free(quarn_othercertid *value);
/** From its components. Null leaves out issuer_serial. */
QUARN_ASN1_API quarn_othercertid *quarn_othercertid_new(
    const quarn_otherhash *other_cert_hash, const quarn_ess_issuerserial *issuer_serial);
/** otherCertHash. */
QUARN_ASN1_API quarn_otherhash *quarn_othercertid_getothercerthash(const quarn_othercertid *value);
/** 1 when issuerSerial is there. */
QUARN_ASN1_API int quarn_othercertid_hasissuerserial(const quarn_othercertid *value);
/** issuerSerial, null when it is absent. */
QUARN_ASN1_API quarn_ess_issuerserial *quarn_othercertid_getissuerserial(
    const quarn_othercertid *value);

/* ---- OtherCertIDs */

/**
 * Names of certificates: CompleteCertificateRefs, AttributeCertificateRefs (RFC 5126, 6.2.1,
 * 6.2.3).
 *
 *     OtherCertIDs ::= SEQUENCE OF OtherCertID
 *
 * Type id QUARN_ASN1_OTHERCERTIDS (228). A quarn_asn1_list of OtherCertID (quarn_othercertid).
 */
QUARN_ASN1_API void quarn_othercertids_free(quarn_asn1_list *value);

/* ---- OtherSigningCertificate */

/**
 * The certificates that a signature is to be verified with (RFC 5126, 5.7.3.3).
 *
 *     OtherSigningCertificate ::= SEQUENCE {
 *         certs     OtherCertIDs,
 *         policies  CertificatePolicies OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_OTHERSIGNINGCERT (229).
 */
typedef struct quarn_othersigningcert quarn_othersigningcert;
/** As quarn_asn1_value_free() under QUARN_ASN1_OTHERSIGNINGCERT. */
QUARN_ASN1_API void quarn_othersigningcert_free(quarn_othersigningcert *value);
/** From its components. Null leaves out policies. */
QUARN_ASN1_API quarn_othersigningcert *quarn_othersigningcert_new(const quarn_asn1_list *certs,
                                                                  const quarn_asn1_list *policies);
/** certs. */
QUARN_ASN1_API quarn_asn1_list *quarn_othersigningcert_getcerts(
    const quarn_othersigningcert *value);
/** 1 when policies is there. */
QUARN_ASN1_API int quarn_othersigningcert_haspolicies(const quarn_othersigningcert *value);
/** policies, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_othersigningcert_getpolicies(
    const quarn_othersigningcert *value);

/* ---- SignaturePolicyId */

/**
 * A signature policy and its digest (RFC 5126, 5.8.1). A list of qualifiers has one at least.
 *
 *     SignaturePolicyId ::= SEQUENCE {
 *         sigPolicyId          OBJECT IDENTIFIER,
 *         sigPolicyHash        DigestInfo,
 *         sigPolicyQualifiers  PolicyQualifiers OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_SIGNATUREPOLICYID (230).
 */
typedef struct quarn_signaturepolicyid quarn_signaturepolicyid;
/** As quarn_asn1_value_free() under QUARN_ASN1_SIGNATUREPOLICYID. */
QUARN_ASN1_API void quarn_signaturepolicyid_free(quarn_signaturepolicyid *value);
/** From its components. Null leaves out sig_policy_qualifiers. */
QUARN_ASN1_API quarn_signaturepolicyid *quarn_signaturepolicyid_new(
    const quarn_asn1_oid *sig_policy_id,
    const quarn_pkcsdigestinfo *sig_policy_hash,
    const quarn_asn1_list *sig_policy_qualifiers);
/** sigPolicyId. */
QUARN_ASN1_API quarn_asn1_oid *quarn_signaturepolicyid_getsigpolicyid(
    const quarn_signaturepolicyid *value);
/** sigPolicyHash. */
QUARN_ASN1_API quarn_pkcsdigestinfo *quarn_signaturepolicyid_getsigpolicyhash(
    const quarn_signaturepolicyid *value);
/** 1 when sigPolicyQualifiers is there. */
QUARN_ASN1_API int quarn_signaturepolicyid_hassigpolicyqualifiers(
    const quarn_signaturepolicyid *value);
/** sigPolicyQualifiers, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_signaturepolicyid_getsigpolicyqualifiers(
    const quarn_signaturepolicyid *value);

/* ---- SignaturePolicyIdentifier */

/**
 * Which policy a signature follows (RFC 5126, 5.8.1).
 *
 *     SignaturePolicyIdentifier ::= CHOICE {
 *         signaturePolicyId       SignaturePolicyId,
 *         signaturePolicyImplied  NULL
 *     }
 *
 * Type id QUARN_ASN1_SIGNATUREPOLICYIDENTIFIER (231).
 */
typedef struct quarn_signaturepolicyidentifier quarn_signaturepolicyidentifier;
/** As quarn_asn1_value_free() under QUARN_ASN1_SIGNATUREPOLICYIDENTIFIER. */
QUARN_ASN1_API void quarn_signaturepolicyidentifier_free(quarn_signaturepolicyidentifier *value);
/** Number of the alternative: 0 signaturePolicyId, 1 signaturePolicyImplied; all ones for null. */
QUARN_ASN1_API uint32_t quarn_signaturepolicyidentifier_gettype(
    const quarn_signaturepolicyidentifier *value);
/** The alternative signaturePolicyId. */
QUARN_ASN1_API quarn_signaturepolicyidentifier *
quarn_signaturepolicyidentifier_newsignaturepolicyid(
    const quarn_signaturepolicyid *signature_policy_id);
/** signaturePolicyId, null when it is another alternative. */
QUARN_ASN1_API quarn_signaturepolicyid *quarn_signaturepolicyidentifier_getsignaturepolicyid(
    const quarn_signaturepolicyidentifier *value);
/** The alternative signaturePolicyImplied. */
QUARN_ASN1_API quarn_signaturepolicyidentifier *
quarn_signaturepolicyidentifier_newsignaturepolicyimplied(void);

/* ---- CommitmentTypeIndication */

/**
 * What the signer commits to (RFC 5126, 5.11.1). A list of qualifiers has one at least.
 *
 *     CommitmentTypeIndication ::= SEQUENCE {
 *         commitmentTypeId         OBJECT IDENTIFIER,
 *         commitmentTypeQualifier  PolicyQualifiers OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_COMMITMENTTYPEINDICATION (232).
 */
typedef struct quarn_commitmenttypeindication quarn_commitmenttypeindication;
/** As quarn_asn1_value_free() under QUARN_ASN1_COMMITMENTTYPEINDICATION. */
QUARN_ASN1_API void quarn_commitmenttypeindication_free(quarn_commitmenttypeindication *value);
/** From its components. Null leaves out commitment_type_qualifier. */
QUARN_ASN1_API quarn_commitmenttypeindication *quarn_commitmenttypeindication_new(
    const quarn_asn1_oid *commitment_type_id, const quarn_asn1_list *commitment_type_qualifier);
/** commitmentTypeId. */
QUARN_ASN1_API quarn_asn1_oid *quarn_commitmenttypeindication_getcommitmenttypeid(
    const quarn_commitmenttypeindication *value);
/** 1 when commitmentTypeQualifier is there. */
QUARN_ASN1_API int quarn_commitmenttypeindication_hascommitmenttypequalifier(
    const quarn_commitmenttypeindication *value);
/** commitmentTypeQualifier, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_commitmenttypeindication_getcommitmenttypequalifier(
    const quarn_commitmenttypeindication *value);

/* ---- SignerLocation */

/**
 * Where the signer claims to have signed (RFC 5126, 5.11.2): one of the three at least, and an
 * address of one to six lines.
 *
 *     SignerLocation ::= SEQUENCE {
 *         countryName    [0] EXPLICIT DirectoryString OPTIONAL,
 *         localityName   [1] EXPLICIT DirectoryString OPTIONAL,
 *         postalAddress  [2] EXPLICIT PostalAddress OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_SIGNERLOCATION (233).
 */
typedef struct quarn_signerlocation quarn_signerlocation;
/** As quarn_asn1_value_free() under QUARN_ASN1_SIGNERLOCATION. */
QUARN_ASN1_API void quarn_signerlocation_free(quarn_signerlocation *value);
/** From its components. Null leaves out country_name, locality_name and postal_address. */
QUARN_ASN1_API quarn_signerlocation *quarn_signerlocation_new(
    const quarn_x500dirstring *country_name,
    const quarn_x500dirstring *locality_name,
    const quarn_asn1_list *postal_address);
/** 1 when countryName is there. */
QUARN_ASN1_API int quarn_signerlocation_hascountryname(const quarn_signerlocation *value);
/** countryName, null when it is absent. */
QUARN_ASN1_API quarn_x500dirstring *quarn_signerlocation_getcountryname(
    const quarn_signerlocation *value);
/** 1 when localityName is there. */
QUARN_ASN1_API int quarn_signerlocation_haslocalityname(const quarn_signerlocation *value);
/** localityName, null when it is absent. */
QUARN_ASN1_API quarn_x500dirstring *quarn_signerlocation_getlocalityname(
    const quarn_signerlocation *value);
/** 1 when postalAddress is there. */
QUARN_ASN1_API int quarn_signerlocation_haspostaladdress(const quarn_signerlocation *value);
/** postalAddress, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_signerlocation_getpostaladdress(
    const quarn_signerlocation *value);

/* ---- CrlIdentifier */

/**
 * Names a CRL (RFC 5126, 6.2.2).
 *
 *     CrlIdentifier ::= SEQUENCE {
 *         crlissuer      Name,
 *         crlIssuedTime  UTCTime,
 *         crlNumber      INTEGER OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CRLIDENTIFIER (234).
 */
typedef struct quarn_crlidentifier quarn_crlidentifier;
/** As quarn_asn1_value_free() under QUARN_ASN1_CRLIDENTIFIER. */
QUARN_ASN1_API void quarn_crlidentifier_free(quarn_crlidentifier *value);
/** From its components. Null leaves out crl_number. */
QUARN_ASN1_API quarn_crlidentifier *quarn_crlidentifier_new(const quarn_x500name *crlissuer,
                                                            const quarn_asn1_time *crl_issued_time,
                                                            const quarn_asn1_integer *crl_number);
/** crlissuer. */
QUARN_ASN1_API quarn_x500name *quarn_crlidentifier_getcrlissuer(const quarn_crlidentifier *value);
/** crlIssuedTime. */
QUARN_ASN1_API quarn_asn1_time *quarn_crlidentifier_getcrlissuedtime(
    const quarn_crlidentifier *value);
/** 1 when crlNumber is there. */
QUARN_ASN1_API int quarn_crlidentifier_hascrlnumber(const quarn_crlidentifier *value);
/** crlNumber, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_crlidentifier_getcrlnumber(
    const quarn_crlidentifier *value);

/* ---- CrlValidatedID */

/**
 * A digest of a CRL, and its name (RFC 5126, 6.2.2).
 *
 *     CrlValidatedID ::= SEQUENCE {
 *         crlHash        OtherHash,
 *         crlIdentifier  CrlIdentifier OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CRLVALIDATEDID (235).
 */
typedef struct quarn_crlvalidatedid quarn_crlvalidatedid;
/** As quarn_asn1_value_free() under QUARN_ASN1_CRLVALIDATEDID. */
QUARN_ASN1_API void quarn_crlvalidatedid_free(quarn_crlvalidatedid *value);
/** From its components. Null leaves out crl_identifier. */
QUARN_ASN1_API quarn_crlvalidatedid *quarn_crlvalidatedid_new(
    const quarn_otherhash *crl_hash, const quarn_crlidentifier *crl_identifier);
/** crlHash. */
QUARN_ASN1_API quarn_otherhash *quarn_crlvalidatedid_getcrlhash(const quarn_crlvalidatedid *value);
/** 1 when crlIdentifier is there. */
QUARN_ASN1_API int quarn_crlvalidatedid_hascrlidentifier(const quarn_crlvalidatedid *value);
/** crlIdentifier, null when it is absent. */
QUARN_ASN1_API quarn_crlidentifier *quarn_crlvalidatedid_getcrlidentifier(
    const quarn_crlvalidatedid *value);

/* ---- CrlValidatedIDs */

/**
 * Digests of CRLs (RFC 5126, 6.2.2).
 *
 *     CrlValidatedIDs ::= SEQUENCE OF CrlValidatedID
 *
 * Type id QUARN_ASN1_CRLVALIDATEDIDS (236). A quarn_asn1_list of CrlValidatedID
 * (quarn_crlvalidatedid).
 */
QUARN_ASN1_API void quarn_crlvalidatedids_free(quarn_asn1_list *value);

/* ---- CRLListID */

/**
 * References to CRLs (RFC 5126, 6.2.2).
 *
 *     CRLListID ::= SEQUENCE {
 *         crls  CrlValidatedIDs
 *     }
 *
 * Type id QUARN_ASN1_CRLLISTID (237).
 */
typedef struct quarn_crllistid quarn_crllistid;
/** As quarn_asn1_value_free() under QUARN_ASN1_CRLLISTID. */
QUARN_ASN1_API void quarn_crllistid_free(quarn_crllistid *value);
/** From its components. */
QUARN_ASN1_API quarn_crllistid *quarn_crllistid_new(const quarn_asn1_list *crls);
/** crls. */
QUARN_ASN1_API quarn_asn1_list *quarn_crllistid_getcrls(const quarn_crllistid *value);

/* ---- OcspIdentifier */

/**
 * Names an OCSP response (RFC 5126, 6.2.2).
 *
 *     OcspIdentifier ::= SEQUENCE {
 *         ocspResponderID  ResponderID,
 *         producedAt       GeneralizedTime
 *     }
 *
 * Type id QUARN_ASN1_OCSPIDENTIFIER (238).
 */
typedef struct quarn_ocspidentifier quarn_ocspidentifier;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSPIDENTIFIER. */
QUARN_ASN1_API void quarn_ocspidentifier_free(quarn_ocspidentifier *value);
/** From its components. */
QUARN_ASN1_API quarn_ocspidentifier *quarn_ocspidentifier_new(
    const quarn_ocsp_responderid *ocsp_responder_id, const quarn_asn1_time *produced_at);
/** ocspResponderID. */
QUARN_ASN1_API quarn_ocsp_responderid *quarn_ocspidentifier_getocspresponderid(
    const quarn_ocspidentifier *value);
/** producedAt. */
QUARN_ASN1_API quarn_asn1_time *quarn_ocspidentifier_getproducedat(
    const quarn_ocspidentifier *value);

/* ---- OcspResponsesID */

/**
 * Names an OCSP response, and its digest (RFC 5126, 6.2.2).
 *
 *     OcspResponsesID ::= SEQUENCE {
 *         ocspIdentifier  OcspIdentifier,
 *         ocspRefHash     OtherHash OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_OCSPRESPONSESID (239).
 */
typedef struct quarn_ocspresponsesid quarn_ocspresponsesid;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSPRESPONSESID. */
QUARN_ASN1_API void quarn_ocspresponsesid_free(quarn_ocspresponsesid *value);
/** From its components. Null leaves out ocsp_ref_hash. */
QUARN_ASN1_API quarn_ocspresponsesid *quarn_ocspresponsesid_new(
    const quarn_ocspidentifier *ocsp_identifier, const quarn_otherhash *ocsp_ref_hash);
/** ocspIdentifier. */
QUARN_ASN1_API quarn_ocspidentifier *quarn_ocspresponsesid_getocspidentifier(
    const quarn_ocspresponsesid *value);
/** 1 when ocspRefHash is there. */
QUARN_ASN1_API int quarn_ocspresponsesid_hasocsprefhash(const quarn_ocspresponsesid *value);
/** ocspRefHash, null when it is absent. */
QUARN_ASN1_API quarn_otherhash *quarn_ocspresponsesid_getocsprefhash(
    const quarn_ocspresponsesid *value);

/* ---- OcspResponsesIDs */

/**
 * Names of OCSP responses (RFC 5126, 6.2.2).
 *
 *     OcspResponsesIDs ::= SEQUENCE OF OcspResponsesID
 *
 * Type id QUARN_ASN1_OCSPRESPONSESIDS (240). A quarn_asn1_list of OcspResponsesID
 * (quarn_ocspresponsesid).
 */
QUARN_ASN1_API void quarn_ocspresponsesids_free(quarn_asn1_list *value);

/* ---- OcspListID */

/**
 * References to OCSP responses (RFC 5126, 6.2.2).
 *
 *     OcspListID ::= SEQUENCE {
 *         ocspResponses  OcspResponsesIDs
 *     }
 *
 * Type id QUARN_ASN1_OCSPLISTID (241).
 */
typedef struct quarn_ocsplistid quarn_ocsplistid;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSPLISTID. */
QUARN_ASN1_API void quarn_ocsplistid_free(quarn_ocsplistid *value);
/** From its components. */
QUARN_ASN1_API quarn_ocsplistid *quarn_ocsplistid_new(const quarn_asn1_list *ocsp_responses);
/** ocspResponses. */
QUARN_ASN1_API quarn_asn1_list *quarn_ocsplistid_getocspresponses(const quarn_ocsplistid *value);

/* ---- OtherRevRefs */

/**
 * References to revocation information of another kind (RFC 5126, 6.2.2).
 *
 *     OtherRevRefs ::= SEQUENCE {
 *         otherRevRefType  OBJECT IDENTIFIER,
 *         otherRevRefs     ANY
 *     }
 *
 * Type id QUARN_ASN1_OTHERREVREFS (242).
 */
typedef struct quarn_otherrevrefs quarn_otherrevrefs;
/** As quarn_asn1_value_free() under QUARN_ASN1_OTHERREVREFS. */
QUARN_ASN1_API void quarn_otherrevrefs_free(quarn_otherrevrefs *value);
/** From its components. */
QUARN_ASN1_API quarn_otherrevrefs *quarn_otherrevrefs_new(const quarn_asn1_oid *other_rev_ref_type,
                                                          const quarn_asn1_any *other_rev_refs);
/** otherRevRefType. */
QUARN_ASN1_API quarn_asn1_oid *quarn_otherrevrefs_getotherrevreftype(
    const quarn_otherrevrefs *value);
/** otherRevRefs. */
QUARN_ASN1_API quarn_asn1_any *quarn_otherrevrefs_getotherrevrefs(const quarn_otherrevrefs *value);

/* ---- CrlOcspRef */

/**
 * What one certificate was found not to be revoked with (RFC 5126, 6.2.2).
 *
 *     CrlOcspRef ::= SEQUENCE {
 *         crlids    [0] EXPLICIT CRLListID OPTIONAL,
 *         ocspids   [1] EXPLICIT OcspListID OPTIONAL,
 *         otherRev  [2] EXPLICIT OtherRevRefs OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CRLOCSPREF (243).
 */
typedef struct quarn_crlocspref quarn_crlocspref;
/** As quarn_asn1_value_free() under QUARN_ASN1_CRLOCSPREF. */
QUARN_ASN1_API void quarn_crlocspref_free(quarn_crlocspref *value);
/** From its components. Null leaves out crlids, ocspids and other_rev. */
QUARN_ASN1_API quarn_crlocspref *quarn_crlocspref_new(const quarn_crllistid *crlids,
                                                      const quarn_ocsplistid *ocspids,
                                                      const quarn_otherrevrefs *other_rev);
/** 1 when crlids is there. */
QUARN_ASN1_API int quarn_crlocspref_hascrlids(const quarn_crlocspref *value);
/** crlids, null when it is absent. */
QUARN_ASN1_API quarn_crllistid *quarn_crlocspref_getcrlids(const quarn_crlocspref *value);
/** 1 when ocspids is there. */
QUARN_ASN1_API int quarn_crlocspref_hasocspids(const quarn_crlocspref *value);
/** ocspids, null when it is absent. */
QUARN_ASN1_API quarn_ocsplistid *quarn_crlocspref_getocspids(const quarn_crlocspref *value);
/** 1 when otherRev is there. */
QUARN_ASN1_API int quarn_crlocspref_hasotherrev(const quarn_crlocspref *value);
/** otherRev, null when it is absent. */
QUARN_ASN1_API quarn_otherrevrefs *quarn_crlocspref_getotherrev(const quarn_crlocspref *value);

/* ---- CrlOcspRefs */

/**
 * The same of each certificate: CompleteRevocationRefs, AttributeRevocationRefs (RFC 5126, 6.2.2,
 * 6.2.4).
 *
 *     CrlOcspRefs ::= SEQUENCE OF CrlOcspRef
 *
 * Type id QUARN_ASN1_CRLOCSPREFS (244). A quarn_asn1_list of CrlOcspRef (quarn_crlocspref).
 */
QUARN_ASN1_API void quarn_crlocsprefs_free(quarn_asn1_list *value);

/* ---- BasicOCSPResponses */

/**
 * Basic OCSP responses one after another (RFC 5126, 6.3.4).
 *
 *     BasicOCSPResponses ::= SEQUENCE OF BasicOCSPResponse
 *
 * Type id QUARN_ASN1_BASICOCSPRESPONSES (247). A quarn_asn1_list of BasicOCSPResponse
 * (quarn_ocsp_basicocspresponse).
 */
QUARN_ASN1_API void quarn_basicocspresponses_free(quarn_asn1_list *value);

/* ---- OtherRevVals */

/**
 * Revocation information of another kind (RFC 5126, 6.3.4).
 *
 *     OtherRevVals ::= SEQUENCE {
 *         otherRevValType  OBJECT IDENTIFIER,
 *         otherRevVals     ANY
 *     }
 *
 * Type id QUARN_ASN1_OTHERREVVALS (248).
 */
typedef struct quarn_otherrevvals quarn_otherrevvals;
/** As quarn_asn1_value_free() under QUARN_ASN1_OTHERREVVALS. */
QUARN_ASN1_API void quarn_otherrevvals_free(quarn_otherrevvals *value);
/** From its components. */
QUARN_ASN1_API quarn_otherrevvals *quarn_otherrevvals_new(const quarn_asn1_oid *other_rev_val_type,
                                                          const quarn_asn1_any *other_rev_vals);
/** otherRevValType. */
QUARN_ASN1_API quarn_asn1_oid *quarn_otherrevvals_getotherrevvaltype(
    const quarn_otherrevvals *value);
/** otherRevVals. */
QUARN_ASN1_API quarn_asn1_any *quarn_otherrevvals_getotherrevvals(const quarn_otherrevvals *value);

/* ---- RevocationValues */

/**
 * What the certificates were found not to be revoked with (RFC 5126, 6.3.4).
 *
 *     RevocationValues ::= SEQUENCE {
 *         crlVals       [0] EXPLICIT CertificateLists OPTIONAL,
 *         ocspVals      [1] EXPLICIT BasicOCSPResponses OPTIONAL,
 *         otherRevVals  [2] EXPLICIT OtherRevVals OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_REVOCATIONVALUES (249).
 */
typedef struct quarn_revocationvalues quarn_revocationvalues;
/** As quarn_asn1_value_free() under QUARN_ASN1_REVOCATIONVALUES. */
QUARN_ASN1_API void quarn_revocationvalues_free(quarn_revocationvalues *value);
/** From its components. Null leaves out crl_vals, ocsp_vals and other_rev_vals. */
QUARN_ASN1_API quarn_revocationvalues *quarn_revocationvalues_new(
    const quarn_asn1_list *crl_vals,
    const quarn_asn1_list *ocsp_vals,
    const quarn_otherrevvals *other_rev_vals);
/** 1 when crlVals is there. */
QUARN_ASN1_API int quarn_revocationvalues_hascrlvals(const quarn_revocationvalues *value);
/** crlVals, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_revocationvalues_getcrlvals(
    const quarn_revocationvalues *value);
/** 1 when ocspVals is there. */
QUARN_ASN1_API int quarn_revocationvalues_hasocspvals(const quarn_revocationvalues *value);
/** ocspVals, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_revocationvalues_getocspvals(
    const quarn_revocationvalues *value);
/** 1 when otherRevVals is there. */
QUARN_ASN1_API int quarn_revocationvalues_hasotherrevvals(const quarn_revocationvalues *value);
/** otherRevVals, null when it is absent. */
QUARN_ASN1_API quarn_otherrevvals *quarn_revocationvalues_getotherrevvals(
    const quarn_revocationvalues *value);

/* ---- ATSHashIndex */

/**
 * Digests of what an archive time-stamp covers (TS 101 733 V2.2.1, 6.4.2). The algorithm, SHA-256
 * when there is none, and the list after it both begin as a SEQUENCE does: the algorithm is known
 * by the OBJECT IDENTIFIER in it.
 *
 *     ATSHashIndex ::= SEQUENCE {
 *         hashIndAlgorithm        AlgorithmIdentifier DEFAULT '300B0609608648016503040201'H,
 *         certificatesHashIndex   OctetStrings,
 *         crlsHashIndex           OctetStrings,
 *         unsignedAttrsHashIndex  OctetStrings
 *     }
 *
 * Type id QUARN_ASN1_ATSHASHINDEX (251).
 */
typedef struct quarn_atshashindex quarn_atshashindex;
/** As quarn_asn1_value_free() under QUARN_ASN1_ATSHASHINDEX. */
QUARN_ASN1_API void quarn_atshashindex_free(quarn_atshashindex *value);
/** From its components. Null stands for the default of hash_ind_algorithm. */
QUARN_ASN1_API quarn_atshashindex *quarn_atshashindex_new(
    const quarn_x509algoid *hash_ind_algorithm,
    const quarn_asn1_list *certificates_hash_index,
    const quarn_asn1_list *crls_hash_index,
    const quarn_asn1_list *unsigned_attrs_hash_index);
/** hashIndAlgorithm, the default when the encoding has none. */
QUARN_ASN1_API quarn_x509algoid *quarn_atshashindex_gethashindalgo(const quarn_atshashindex *value);
/** certificatesHashIndex. */
QUARN_ASN1_API quarn_asn1_list *quarn_atshashindex_getcertshashindex(
    const quarn_atshashindex *value);
/** crlsHashIndex. */
QUARN_ASN1_API quarn_asn1_list *quarn_atshashindex_getcrlshashindex(
    const quarn_atshashindex *value);
/** unsignedAttrsHashIndex. */
QUARN_ASN1_API quarn_asn1_list *quarn_atshashindex_getunsignattrshashindex(
    const quarn_atshashindex *value);

/* ---- ATSHashIndexV3 */

/**
 * The same with the algorithm always written, and digests of the attributes' values (EN 319 122-1,
 * 5.5.2).
 *
 *     ATSHashIndexV3 ::= SEQUENCE {
 *         hashIndAlgorithm            AlgorithmIdentifier,
 *         certificatesHashIndex       OctetStrings,
 *         crlsHashIndex               OctetStrings,
 *         unsignedAttrValuesHashIndex OctetStrings
 *     }
 *
 * Type id QUARN_ASN1_ATSHASHINDEXV3 (302).
 */
typedef struct quarn_atshashindexv3 quarn_atshashindexv3;
/** As quarn_asn1_value_free() under QUARN_ASN1_ATSHASHINDEXV3. */
QUARN_ASN1_API void quarn_atshashindexv3_free(quarn_atshashindexv3 *value);
/** From its components. */
QUARN_ASN1_API quarn_atshashindexv3 *quarn_atshashindexv3_new(
    const quarn_x509algoid *hash_ind_algorithm,
    const quarn_asn1_list *certificates_hash_index,
    const quarn_asn1_list *crls_hash_index,
    const quarn_asn1_list *unsigned_attr_values_hash_index);
/** hashIndAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_atshashindexv3_gethashindalgo(
    const quarn_atshashindexv3 *value);
/** certificatesHashIndex. */
QUARN_ASN1_API quarn_asn1_list *quarn_atshashindexv3_getcertshashindex(
    const quarn_atshashindexv3 *value);
/** crlsHashIndex. */
QUARN_ASN1_API quarn_asn1_list *quarn_atshashindexv3_getcrlshashindex(
    const quarn_atshashindexv3 *value);
/** unsignedAttrValuesHashIndex. */
QUARN_ASN1_API quarn_asn1_list *quarn_atshashindexv3_getunsignattrvalueshashindex(
    const quarn_atshashindexv3 *value);

/* ---- SignerAttributeItem */

/**
 * Attributes of the signer: claimed, or in one attribute certificate (RFC 5126, 5.11.3).
 *
 *     SignerAttributeItem ::= CHOICE {
 *         claimedAttributes    [0] EXPLICIT AttributeCertificateAttributes,
 *         certifiedAttributes  [1] EXPLICIT AttributeCertificate
 *     }
 *
 * Type id QUARN_ASN1_SIGNERATTRIBUTEITEM (261).
 */
typedef struct quarn_signerattributeitem quarn_signerattributeitem;
/** As quarn_asn1_value_free() under QUARN_ASN1_SIGNERATTRIBUTEITEM. */
QUARN_ASN1_API void quarn_signerattributeitem_free(quarn_signerattributeitem *value);
/** Number of the alternative: 0 claimedAttributes, 1 certifiedAttributes; all ones for null. */
QUARN_ASN1_API uint32_t quarn_signerattributeitem_gettype(const quarn_signerattributeitem *value);
/** The alternative claimedAttributes. */
QUARN_ASN1_API quarn_signerattributeitem *quarn_signerattributeitem_newclaimedattrs(
    const quarn_asn1_list *claimed_attributes);
/** claimedAttributes, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_list *quarn_signerattributeitem_getclaimedattrs(
    const quarn_signerattributeitem *value);
/** The alternative certifiedAttributes. */
QUARN_ASN1_API quarn_signerattributeitem *quarn_signerattributeitem_newcertifiedattrs(
    const quarn_attributecertificate *certified_attributes);
/** certifiedAttributes, null when it is another alternative. */
QUARN_ASN1_API quarn_attributecertificate *quarn_signerattributeitem_getcertifiedattrs(
    const quarn_signerattributeitem *value);

/* ---- SignerAttribute */

/**
 * Attributes of the signer (RFC 5126, 5.11.3).
 *
 *     SignerAttribute ::= SEQUENCE OF SignerAttributeItem
 *
 * Type id QUARN_ASN1_SIGNERATTRIBUTE (262). A quarn_asn1_list of SignerAttributeItem
 * (quarn_signerattributeitem).
 */
QUARN_ASN1_API void quarn_signerattribute_free(quarn_asn1_list *value);

/* ---- OtherAttributeCertificate */

/**
 * An attribute certificate of another kind (EN 319 122-1, 5.2.6.1).
 *
 *     OtherAttributeCertificate ::= SEQUENCE {
 *         otherAttributeCertID  OBJECT IDENTIFIER,
 *         otherAttributeCert    ANY OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CADESOTHERATTRIBUTECERTIFICATE (303).
 */
typedef struct quarn_cadesotherattributecertificate quarn_cadesotherattributecertificate;
/** As quarn_asn1_value_free() under QUARN_ASN1_CADESOTHERATTRIBUTECERTIFICATE. */
QUARN_ASN1_API void quarn_cadesotherattributecertificate_free(
    quarn_cadesotherattributecertificate *value);
/** From its components. Null leaves out other_attribute_cert. */
QUARN_ASN1_API quarn_cadesotherattributecertificate *quarn_cadesotherattributecertificate_new(
    const quarn_asn1_oid *other_attribute_cert_id, const quarn_asn1_any *other_attribute_cert);
/** otherAttributeCertID. */
QUARN_ASN1_API quarn_asn1_oid *quarn_cadesotherattributecertificate_getotherattrcertid(
    const quarn_cadesotherattributecertificate *value);
/** 1 when otherAttributeCert is there. */
QUARN_ASN1_API int quarn_cadesotherattributecertificate_hasotherattrcert(
    const quarn_cadesotherattributecertificate *value);
/** otherAttributeCert, null when it is absent. */
QUARN_ASN1_API quarn_asn1_any *quarn_cadesotherattributecertificate_getotherattrcert(
    const quarn_cadesotherattributecertificate *value);

/* ---- CertifiedAttributesV2Item */

/**
 * A certificate of the signer's attributes (EN 319 122-1, 5.2.6.1).
 *
 *     CertifiedAttributesV2Item ::= CHOICE {
 *         attributeCertificate       [0] EXPLICIT AttributeCertificate,
 *         otherAttributeCertificate  [1] EXPLICIT OtherAttributeCertificate
 *     }
 *
 * Type id QUARN_ASN1_CADESCERTIFIEDATTRIBUTESV2ITEM (304).
 */
typedef struct quarn_cadescertifiedattributesv2item quarn_cadescertifiedattributesv2item;
/** As quarn_asn1_value_free() under QUARN_ASN1_CADESCERTIFIEDATTRIBUTESV2ITEM. */
QUARN_ASN1_API void quarn_cadescertifiedattributesv2item_free(
    quarn_cadescertifiedattributesv2item *value);
/**
 * Number of the alternative: 0 attributeCertificate, 1 otherAttributeCertificate; all ones for
 * null.
 */
QUARN_ASN1_API uint32_t quarn_cadescertifiedattributesv2item_gettype(
    const quarn_cadescertifiedattributesv2item *value);
/** The alternative attributeCertificate. */
QUARN_ASN1_API quarn_cadescertifiedattributesv2item *
quarn_cadescertifiedattributesv2item_newattrcert(
    const quarn_attributecertificate *attribute_certificate);
/** attributeCertificate, null when it is another alternative. */
QUARN_ASN1_API quarn_attributecertificate *quarn_cadescertifiedattributesv2item_getattrcert(
    const quarn_cadescertifiedattributesv2item *value);
/** The alternative otherAttributeCertificate. */
QUARN_ASN1_API quarn_cadescertifiedattributesv2item *
quarn_cadescertifiedattributesv2item_newotherattrcert(
    const quarn_cadesotherattributecertificate *other_attribute_certificate);
/** otherAttributeCertificate, null when it is another alternative. */
QUARN_ASN1_API quarn_cadesotherattributecertificate *
quarn_cadescertifiedattributesv2item_getotherattrcert(
    const quarn_cadescertifiedattributesv2item *value);

/* ---- CertifiedAttributesV2 */

/**
 * Certificates of the signer's attributes (EN 319 122-1, 5.2.6.1).
 *
 *     CertifiedAttributesV2 ::= SEQUENCE OF CertifiedAttributesV2Item
 *
 * Type id QUARN_ASN1_CADESCERTIFIEDATTRIBUTESV2 (305). A quarn_asn1_list of
 * CertifiedAttributesV2Item (quarn_cadescertifiedattributesv2item).
 */
QUARN_ASN1_API void quarn_cadescertifiedattributesv2_free(quarn_asn1_list *value);

/* ---- SignedAssertion */

/**
 * A signed assertion about the signer (EN 319 122-1, 5.2.6.1).
 *
 *     SignedAssertion ::= SEQUENCE {
 *         signedAssertionID  OBJECT IDENTIFIER,
 *         signedAssertion    ANY OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CADESSIGNEDASSERTION (306).
 */
typedef struct quarn_cadessignedassertion quarn_cadessignedassertion;
/** As quarn_asn1_value_free() under QUARN_ASN1_CADESSIGNEDASSERTION. */
QUARN_ASN1_API void quarn_cadessignedassertion_free(quarn_cadessignedassertion *value);
/** From its components. Null leaves out signed_assertion. */
QUARN_ASN1_API quarn_cadessignedassertion *quarn_cadessignedassertion_new(
    const quarn_asn1_oid *signed_assertion_id, const quarn_asn1_any *signed_assertion);
/** signedAssertionID. */
QUARN_ASN1_API quarn_asn1_oid *quarn_cadessignedassertion_getsignedassertionid(
    const quarn_cadessignedassertion *value);
/** 1 when signedAssertion is there. */
QUARN_ASN1_API int quarn_cadessignedassertion_hassignedassertion(
    const quarn_cadessignedassertion *value);
/** signedAssertion, null when it is absent. */
QUARN_ASN1_API quarn_asn1_any *quarn_cadessignedassertion_getsignedassertion(
    const quarn_cadessignedassertion *value);

/* ---- SignedAssertions */

/**
 * Signed assertions about the signer (EN 319 122-1, 5.2.6.1).
 *
 *     SignedAssertions ::= SEQUENCE OF SignedAssertion
 *
 * Type id QUARN_ASN1_CADESSIGNEDASSERTIONS (307). A quarn_asn1_list of SignedAssertion
 * (quarn_cadessignedassertion).
 */
QUARN_ASN1_API void quarn_cadessignedassertions_free(quarn_asn1_list *value);

/* ---- SignerAttributeV2 */

/**
 * Attributes of the signer: claimed, certified, asserted (EN 319 122-1, 5.2.6.1).
 *
 *     SignerAttributeV2 ::= SEQUENCE {
 *         claimedAttributes      [0] EXPLICIT AttributeCertificateAttributes OPTIONAL,
 *         certifiedAttributesV2  [1] EXPLICIT CertifiedAttributesV2 OPTIONAL,
 *         signedAssertions       [2] EXPLICIT SignedAssertions OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CADESSIGNERATTRIBUTEV2 (308).
 */
typedef struct quarn_cadessignerattributev2 quarn_cadessignerattributev2;
/** As quarn_asn1_value_free() under QUARN_ASN1_CADESSIGNERATTRIBUTEV2. */
QUARN_ASN1_API void quarn_cadessignerattributev2_free(quarn_cadessignerattributev2 *value);
/**
 * From its components. Null leaves out claimed_attributes, certified_attributes_v2 and
 * signed_assertions.
 */
QUARN_ASN1_API quarn_cadessignerattributev2 *quarn_cadessignerattributev2_new(
    const quarn_asn1_list *claimed_attributes,
    const quarn_asn1_list *certified_attributes_v2,
    const quarn_asn1_list *signed_assertions);
/** 1 when claimedAttributes is there. */
QUARN_ASN1_API int quarn_cadessignerattributev2_hasclaimedattrs(
    const quarn_cadessignerattributev2 *value);
/** claimedAttributes, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_cadessignerattributev2_getclaimedattrs(
    const quarn_cadessignerattributev2 *value);
/** 1 when certifiedAttributesV2 is there. */
QUARN_ASN1_API int quarn_cadessignerattributev2_hascertifiedattrsv2(
    const quarn_cadessignerattributev2 *value);
/** certifiedAttributesV2, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_cadessignerattributev2_getcertifiedattrsv2(
    const quarn_cadessignerattributev2 *value);
/** 1 when signedAssertions is there. */
QUARN_ASN1_API int quarn_cadessignerattributev2_hassignedassertions(
    const quarn_cadessignerattributev2 *value);
/** signedAssertions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_cadessignerattributev2_getsignedassertions(
    const quarn_cadessignerattributev2 *value);

/* ---- SPDocSpecification */

/**
 * Names the syntax of a signature policy document (EN 319 122-1, 5.2.9.2).
 *
 *     SPDocSpecification ::= CHOICE {
 *         oid  OBJECT IDENTIFIER,
 *         uri  IA5String
 *     }
 *
 * Type id QUARN_ASN1_CADESSPDOCSPECIFICATION (309).
 */
typedef struct quarn_cadesspdocspecification quarn_cadesspdocspecification;
/** As quarn_asn1_value_free() under QUARN_ASN1_CADESSPDOCSPECIFICATION. */
QUARN_ASN1_API void quarn_cadesspdocspecification_free(quarn_cadesspdocspecification *value);
/** Number of the alternative: 0 oid, 1 uri; all ones for null. */
QUARN_ASN1_API uint32_t quarn_cadesspdocspecification_gettype(
    const quarn_cadesspdocspecification *value);
/** The alternative oid. */
QUARN_ASN1_API quarn_cadesspdocspecification *quarn_cadesspdocspecification_newoid(
    const quarn_asn1_oid *oid);
/** oid, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_oid *quarn_cadesspdocspecification_getoid(
    const quarn_cadesspdocspecification *value);
/** The alternative uri. */
QUARN_ASN1_API quarn_cadesspdocspecification *quarn_cadesspdocspecification_newuri(
    const quarn_asn1_octetstring *uri);
/** uri, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cadesspdocspecification_geturi(
    const quarn_cadesspdocspecification *value);

/* ---- SignaturePolicyDocument */

/**
 * A signature policy document, or where it is kept (EN 319 122-1, 5.2.10).
 *
 *     SignaturePolicyDocument ::= CHOICE {
 *         sigPolicyEncoded   OCTET STRING,
 *         sigPolicyLocalURI  IA5String
 *     }
 *
 * Type id QUARN_ASN1_CADESSIGNATUREPOLICYDOCUMENT (310).
 */
typedef struct quarn_cadessignaturepolicydocument quarn_cadessignaturepolicydocument;
/** As quarn_asn1_value_free() under QUARN_ASN1_CADESSIGNATUREPOLICYDOCUMENT. */
QUARN_ASN1_API void quarn_cadessignaturepolicydocument_free(
    quarn_cadessignaturepolicydocument *value);
/** Number of the alternative: 0 sigPolicyEncoded, 1 sigPolicyLocalURI; all ones for null. */
QUARN_ASN1_API uint32_t quarn_cadessignaturepolicydocument_gettype(
    const quarn_cadessignaturepolicydocument *value);
/** The alternative sigPolicyEncoded. */
QUARN_ASN1_API quarn_cadessignaturepolicydocument *
quarn_cadessignaturepolicydocument_newsigpolicyencoded(
    const quarn_asn1_octetstring *sig_policy_encoded);
/** sigPolicyEncoded, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cadessignaturepolicydocument_getsigpolicyencoded(
    const quarn_cadessignaturepolicydocument *value);
/** The alternative sigPolicyLocalURI. */
QUARN_ASN1_API quarn_cadessignaturepolicydocument *
quarn_cadessignaturepolicydocument_newsigpolicylocaluri(
    const quarn_asn1_octetstring *sig_policy_local_uri);
/** sigPolicyLocalURI, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cadessignaturepolicydocument_getsigpolicylocaluri(
    const quarn_cadessignaturepolicydocument *value);

/* ---- SignaturePolicyStore */

/**
 * The policy that a signature follows (EN 319 122-1, 5.2.10).
 *
 *     SignaturePolicyStore ::= SEQUENCE {
 *         spDocSpec   SPDocSpecification,
 *         spDocument  SignaturePolicyDocument
 *     }
 *
 * Type id QUARN_ASN1_CADESSIGNATUREPOLICYSTORE (311).
 */
typedef struct quarn_cadessignaturepolicystore quarn_cadessignaturepolicystore;
/** As quarn_asn1_value_free() under QUARN_ASN1_CADESSIGNATUREPOLICYSTORE. */
QUARN_ASN1_API void quarn_cadessignaturepolicystore_free(quarn_cadessignaturepolicystore *value);
/** From its components. */
QUARN_ASN1_API quarn_cadessignaturepolicystore *quarn_cadessignaturepolicystore_new(
    const quarn_cadesspdocspecification *sp_doc_spec,
    const quarn_cadessignaturepolicydocument *sp_document);
/** spDocSpec. */
QUARN_ASN1_API quarn_cadesspdocspecification *quarn_cadessignaturepolicystore_getspdocspec(
    const quarn_cadessignaturepolicystore *value);
/** spDocument. */
QUARN_ASN1_API quarn_cadessignaturepolicydocument *quarn_cadessignaturepolicystore_getspdocument(
    const quarn_cadessignaturepolicystore *value);

/* ---- OtherRevInfo */

/**
 * Revocation information of another kind in a PDF signature (ISO 32000-1, 12.8.3.3.2).
 *
 *     OtherRevInfo ::= SEQUENCE {
 *         type   OBJECT IDENTIFIER,
 *         value  OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_ADOBE_OTHERREVINFO (294).
 */
typedef struct quarn_adobe_otherrevinfo quarn_adobe_otherrevinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_ADOBE_OTHERREVINFO. */
QUARN_ASN1_API void quarn_adobe_otherrevinfo_free(quarn_adobe_otherrevinfo *value);
/** From its components. */
QUARN_ASN1_API quarn_adobe_otherrevinfo *quarn_adobe_otherrevinfo_new(
    const quarn_asn1_oid *type, const quarn_asn1_octetstring *value);
/** type. */
QUARN_ASN1_API quarn_asn1_oid *quarn_adobe_otherrevinfo_gettype(
    const quarn_adobe_otherrevinfo *value);
/** value. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_adobe_otherrevinfo_getvalue(
    const quarn_adobe_otherrevinfo *value);

/* ---- OtherRevInfos */

/**
 * Revocation information of other kinds (ISO 32000-1, 12.8.3.3.2).
 *
 *     OtherRevInfos ::= SEQUENCE OF OtherRevInfo
 *
 * Type id QUARN_ASN1_ADOBE_OTHERREVINFOS (295). A quarn_asn1_list of OtherRevInfo
 * (quarn_adobe_otherrevinfo).
 */
QUARN_ASN1_API void quarn_adobe_otherrevinfos_free(quarn_asn1_list *value);

/* ---- RevocationInfoCRLs */

/**
 * CRLs in a PDF signature (ISO 32000-1, 12.8.3.3.2).
 *
 *     RevocationInfoCRLs ::= SEQUENCE OF CertificateList
 *
 * Type id QUARN_ASN1_ADOBE_CRLS (296). A quarn_asn1_list of CertificateList (quarn_x509crl).
 */
QUARN_ASN1_API void quarn_adobe_crls_free(quarn_asn1_list *value);

/* ---- RevocationInfoOCSPResponses */

/**
 * Whole OCSP responses in a PDF signature (ISO 32000-1, 12.8.3.3.2).
 *
 *     RevocationInfoOCSPResponses ::= SEQUENCE OF OCSPResponse
 *
 * Type id QUARN_ASN1_ADOBE_OCSPRESPONSES (297). A quarn_asn1_list of OCSPResponse
 * (quarn_ocsp_ocspresponse).
 */
QUARN_ASN1_API void quarn_adobe_ocspresponses_free(quarn_asn1_list *value);

/* ---- RevocationInfoArchival */

/**
 * What the certificates of a PDF signature were found not to be revoked with (ISO 32000-1,
 * 12.8.3.3.2).
 *
 *     RevocationInfoArchival ::= SEQUENCE {
 *         crl           [0] EXPLICIT RevocationInfoCRLs OPTIONAL,
 *         ocsp          [1] EXPLICIT RevocationInfoOCSPResponses OPTIONAL,
 *         otherRevInfo  [2] EXPLICIT OtherRevInfos OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_ADOBE_REVOCATIONINFOARCHIVAL (298).
 */
typedef struct quarn_adobe_revocationinfoarchival quarn_adobe_revocationinfoarchival;
/** As quarn_asn1_value_free() under QUARN_ASN1_ADOBE_REVOCATIONINFOARCHIVAL. */
QUARN_ASN1_API void quarn_adobe_revocationinfoarchival_free(
    quarn_adobe_revocationinfoarchival *value);
/** From its components. Null leaves out crl, ocsp and other_rev_info. */
QUARN_ASN1_API quarn_adobe_revocationinfoarchival *quarn_adobe_revocationinfoarchival_new(
    const quarn_asn1_list *crl, const quarn_asn1_list *ocsp, const quarn_asn1_list *other_rev_info);
/** 1 when crl is there. */
QUARN_ASN1_API int quarn_adobe_revocationinfoarchival_hascrl(
    const quarn_adobe_revocationinfoarchival *value);
/** crl, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_adobe_revocationinfoarchival_getcrl(
    const quarn_adobe_revocationinfoarchival *value);
/** 1 when ocsp is there. */
QUARN_ASN1_API int quarn_adobe_revocationinfoarchival_hasocsp(
    const quarn_adobe_revocationinfoarchival *value);
/** ocsp, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_adobe_revocationinfoarchival_getocsp(
    const quarn_adobe_revocationinfoarchival *value);
/** 1 when otherRevInfo is there. */
QUARN_ASN1_API int quarn_adobe_revocationinfoarchival_hasotherrevinfo(
    const quarn_adobe_revocationinfoarchival *value);
/** otherRevInfo, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_adobe_revocationinfoarchival_getotherrevinfo(
    const quarn_adobe_revocationinfoarchival *value);

#ifdef __cplusplus
}
#endif

#endif
