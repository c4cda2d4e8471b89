/* Generated from modules/ASN1_SCVP.asn1 by tools/generate.py; do not edit. */
/**
 * SCVP (RFC 5055): a server builds and validates the paths of certificates. Requests and responses,
 * which travel as the content of CMS messages, and what they are made of.
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
#ifndef QUARN_ASN1_SCVP_H
#define QUARN_ASN1_SCVP_H

#include "attribute.h"
#include "extension.h"
#include "ocsp.h"
#include "types.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- SCVPIssuerSerial */

/**
 * Names a certificate by issuer and serial number (RFC 5055, 3.2.1).
 *
 *     SCVPIssuerSerial ::= SEQUENCE {
 *         issuer        GeneralNames,
 *         serialNumber  INTEGER
 *     }
 *
 * Type id QUARN_ASN1_SCVPISSUERSERIAL (356).
 */
typedef struct quarn_scvpissuerserial quarn_scvpissuerserial;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPISSUERSERIAL. */
QUARN_ASN1_API void quarn_scvpissuerserial_free(quarn_scvpissuerserial *value);
/** From its components. */
QUARN_ASN1_API quarn_scvpissuerserial *quarn_scvpissuerserial_new(
    const quarn_asn1_list *issuer, const quarn_asn1_integer *serial_number);
/** issuer. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpissuerserial_getissuer(
    const quarn_scvpissuerserial *value);
/** serialNumber. */
QUARN_ASN1_API quarn_asn1_integer *quarn_scvpissuerserial_getserialnumber(
    const quarn_scvpissuerserial *value);

/* ---- SCVPCertID */

/**
 * Names a certificate by its digest (RFC 5055, 3.2.1). The default digest is SHA-1, without
 * parameters.
 *
 *     SCVPCertID ::= SEQUENCE {
 *         certHash       OCTET STRING,
 *         issuerSerial   SCVPIssuerSerial,
 *         hashAlgorithm  AlgorithmIdentifier DEFAULT '300706052B0E03021A'H
 *     }
 *
 * Type id QUARN_ASN1_SCVPCERTID (357).
 */
typedef struct quarn_scvpcertid quarn_scvpcertid;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPCERTID. */
QUARN_ASN1_API void quarn_scvpcertid_free(quarn_scvpcertid *value);
/** From its components. Null stands for the default of hash_algorithm. */
QUARN_ASN1_API quarn_scvpcertid *quarn_scvpcertid_new(const quarn_asn1_octetstring *cert_hash,
                                                      const quarn_scvpissuerserial *issuer_serial,
                                                      const quarn_x509algoid *hash_algorithm);
/** certHash. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_scvpcertid_getcerthash(const quarn_scvpcertid *value);
/** issuerSerial. */
QUARN_ASN1_API quarn_scvpissuerserial *quarn_scvpcertid_getissuerserial(
    const quarn_scvpcertid *value);
/** hashAlgorithm, the default when the encoding has none. */
QUARN_ASN1_API quarn_x509algoid *quarn_scvpcertid_gethashalgo(const quarn_scvpcertid *value);

/* ---- PKCReference */

/**
 * A public key certificate, or its name (RFC 5055, 3.2.1). The certificate is written anew, its
 * body as it came.
 *
 *     PKCReference ::= CHOICE {
 *         cert    [0] IMPLICIT Certificate,
 *         pkcRef  [1] IMPLICIT SCVPCertID
 *     }
 *
 * Type id QUARN_ASN1_SCVPPKCREFERENCE (358).
 */
typedef struct quarn_scvppkcreference quarn_scvppkcreference;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPPKCREFERENCE. */
QUARN_ASN1_API void quarn_scvppkcreference_free(quarn_scvppkcreference *value);
/** Number of the alternative: 0 cert, 1 pkcRef; all ones for null. */
QUARN_ASN1_API uint32_t quarn_scvppkcreference_gettype(const quarn_scvppkcreference *value);
/** The alternative cert. */
QUARN_ASN1_API quarn_scvppkcreference *quarn_scvppkcreference_newcert(
    const quarn_x509pubkeycert *cert);
/** cert, null when it is another alternative. */
QUARN_ASN1_API quarn_x509pubkeycert *quarn_scvppkcreference_getcert(
    const quarn_scvppkcreference *value);
/** The alternative pkcRef. */
QUARN_ASN1_API quarn_scvppkcreference *quarn_scvppkcreference_newpkcref(
    const quarn_scvpcertid *pkc_ref);
/** pkcRef, null when it is another alternative. */
QUARN_ASN1_API quarn_scvpcertid *quarn_scvppkcreference_getpkcref(
    const quarn_scvppkcreference *value);

/* ---- ACReference */

/**
 * An attribute certificate, or its name (RFC 5055, 3.2.1). The certificate is written anew, its
 * body as it came.
 *
 *     ACReference ::= CHOICE {
 *         attrCert  [2] IMPLICIT AttributeCertificate,
 *         acRef     [3] IMPLICIT SCVPCertID
 *     }
 *
 * Type id QUARN_ASN1_SCVPACREFERENCE (359).
 */
typedef struct quarn_scvpacreference quarn_scvpacreference;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPACREFERENCE. */
QUARN_ASN1_API void quarn_scvpacreference_free(quarn_scvpacreference *value);
/** Number of the alternative: 2 attrCert, 3 acRef; all ones for null. */
QUARN_ASN1_API uint32_t quarn_scvpacreference_gettype(const quarn_scvpacreference *value);
/** The alternative attrCert. */
QUARN_ASN1_API quarn_scvpacreference *quarn_scvpacreference_newattrcert(
    const quarn_attributecertificate *attr_cert);
/** attrCert, null when it is another alternative. */
QUARN_ASN1_API quarn_attributecertificate *quarn_scvpacreference_getattrcert(
    const quarn_scvpacreference *value);
/** The alternative acRef. */
QUARN_ASN1_API quarn_scvpacreference *quarn_scvpacreference_newacref(
    const quarn_scvpcertid *ac_ref);
/** acRef, null when it is another alternative. */
QUARN_ASN1_API quarn_scvpcertid *quarn_scvpacreference_getacref(const quarn_scvpacreference *value);

/* ---- CertReference */

/**
 * A certificate of either kind, or its name (RFC 5055, 4.9.1).
 *
 *     CertReference ::= CHOICE {
 *         pkc  PKCReference,
 *         ac   ACReference
 *     }
 *
 * Type id QUARN_ASN1_SCVPCERTREFERENCE (360).
 */
typedef struct quarn_scvpcertreference quarn_scvpcertreference;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPCERTREFERENCE. */
QUARN_ASN1_API void quarn_scvpcertreference_free(quarn_scvpcertreference *value);
/** Number of the alternative: 0 pkc, 1 ac; all ones for null. */
QUARN_ASN1_API uint32_t quarn_scvpcertreference_gettype(const quarn_scvpcertreference *value);
/** The alternative pkc. */
QUARN_ASN1_API quarn_scvpcertreference *quarn_scvpcertreference_newpkc(
    const quarn_scvppkcreference *pkc);
/** pkc, null when it is another alternative. */
QUARN_ASN1_API quarn_scvppkcreference *quarn_scvpcertreference_getpkc(
    const quarn_scvpcertreference *value);
/** The alternative ac. */
QUARN_ASN1_API quarn_scvpcertreference *quarn_scvpcertreference_newac(
    const quarn_scvpacreference *ac);
/** ac, null when it is another alternative. */
QUARN_ASN1_API quarn_scvpacreference *quarn_scvpcertreference_getac(
    const quarn_scvpcertreference *value);

/* ---- PKCReferences */

/**
 * Public key certificates (RFC 5055, 3.2.1), and under their own type id the trust anchors of a
 * policy (3.2.4.7): that it stands for these is inferred.
 *
 *     PKCReferences ::= SEQUENCE SIZE (1..MAX) OF PKCReference
 *
 * Type ids QUARN_ASN1_SCVPPKCREFERENCES (361), QUARN_ASN1_SCVPTRUSTANCHORS (374). A quarn_asn1_list
 * of PKCReference (quarn_scvppkcreference).
 */
QUARN_ASN1_API void quarn_scvppkcreferences_free(quarn_asn1_list *value);

/* ---- ACReferences */

/**
 * Attribute certificates (RFC 5055, 3.2.1).
 *
 *     ACReferences ::= SEQUENCE SIZE (1..MAX) OF ACReference
 *
 * Type id QUARN_ASN1_SCVPACREFERENCES (362). A quarn_asn1_list of ACReference
 * (quarn_scvpacreference).
 */
QUARN_ASN1_API void quarn_scvpacreferences_free(quarn_asn1_list *value);

/* ---- CertReferences */

/**
 * The certificates that are asked about (RFC 5055, 3.2.1).
 *
 *     CertReferences ::= CHOICE {
 *         pkcRefs  [0] IMPLICIT PKCReferences,
 *         acRefs   [1] IMPLICIT ACReferences
 *     }
 *
 * Type id QUARN_ASN1_SCVPCERTREFERENCES (363).
 */
typedef struct quarn_scvpcertreferences quarn_scvpcertreferences;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPCERTREFERENCES. */
QUARN_ASN1_API void quarn_scvpcertreferences_free(quarn_scvpcertreferences *value);
/** Number of the alternative: 0 pkcRefs, 1 acRefs; all ones for null. */
QUARN_ASN1_API uint32_t quarn_scvpcertreferences_gettype(const quarn_scvpcertreferences *value);
/** The alternative pkcRefs. */
QUARN_ASN1_API quarn_scvpcertreferences *quarn_scvpcertreferences_newpkcrefs(
    const quarn_asn1_list *pkc_refs);
/** pkcRefs, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpcertreferences_getpkcrefs(
    const quarn_scvpcertreferences *value);
/** The alternative acRefs. */
QUARN_ASN1_API quarn_scvpcertreferences *quarn_scvpcertreferences_newacrefs(
    const quarn_asn1_list *ac_refs);
/** acRefs, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpcertreferences_getacrefs(
    const quarn_scvpcertreferences *value);

/* ---- CertChecks */

/**
 * What to check (RFC 5055, 3.2.2).
 *
 *     CertChecks ::= SEQUENCE SIZE (1..MAX) OF check OBJECT IDENTIFIER
 *
 * Type id QUARN_ASN1_SCVPCERTCHECKS (364). A quarn_asn1_list of OBJECT IDENTIFIER (quarn_asn1_oid).
 */
QUARN_ASN1_API void quarn_scvpcertchecks_free(quarn_asn1_list *value);

/* ---- WantBack */

/**
 * What to return (RFC 5055, 3.2.3).
 *
 *     WantBack ::= SEQUENCE SIZE (1..MAX) OF want OBJECT IDENTIFIER
 *
 * Type id QUARN_ASN1_SCVPWANTBACK (365). A quarn_asn1_list of OBJECT IDENTIFIER (quarn_asn1_oid).
 */
QUARN_ASN1_API void quarn_scvpwantback_free(quarn_asn1_list *value);

/* ---- ValidationPolRef */

/**
 * A policy that the server knows (RFC 5055, 3.2.4.1).
 *
 *     ValidationPolRef ::= SEQUENCE {
 *         valPolId      OBJECT IDENTIFIER,
 *         valPolParams  ANY OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_SCVPVALIDATIONPOLREF (366).
 */
typedef struct quarn_scvpvalidationpolref quarn_scvpvalidationpolref;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPVALIDATIONPOLREF. */
QUARN_ASN1_API void quarn_scvpvalidationpolref_free(quarn_scvpvalidationpolref *value);
/** From its components. Null leaves out val_pol_params. */
QUARN_ASN1_API quarn_scvpvalidationpolref *quarn_scvpvalidationpolref_new(
    const quarn_asn1_oid *val_pol_id, const quarn_asn1_any *val_pol_params);
/** valPolId. */
QUARN_ASN1_API quarn_asn1_oid *quarn_scvpvalidationpolref_getvalpolid(
    const quarn_scvpvalidationpolref *value);
/** 1 when valPolParams is there. */
QUARN_ASN1_API int quarn_scvpvalidationpolref_hasvalpolparams(
    const quarn_scvpvalidationpolref *value);
/** valPolParams, null when it is absent. */
QUARN_ASN1_API quarn_asn1_any *quarn_scvpvalidationpolref_getvalpolparams(
    const quarn_scvpvalidationpolref *value);

/* ---- ValidationAlg */

/**
 * How paths are validated (RFC 5055, 3.2.4.2).
 *
 *     ValidationAlg ::= SEQUENCE {
 *         valAlgId    OBJECT IDENTIFIER,
 *         parameters  ANY OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_SCVPVALIDATIONALG (367).
 */
typedef struct quarn_scvpvalidationalg quarn_scvpvalidationalg;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPVALIDATIONALG. */
QUARN_ASN1_API void quarn_scvpvalidationalg_free(quarn_scvpvalidationalg *value);
/** From its components. Null leaves out parameters. */
QUARN_ASN1_API quarn_scvpvalidationalg *quarn_scvpvalidationalg_new(
    const quarn_asn1_oid *val_alg_id, const quarn_asn1_any *parameters);
/** valAlgId. */
QUARN_ASN1_API quarn_asn1_oid *quarn_scvpvalidationalg_getvalalgid(
    const quarn_scvpvalidationalg *value);
/** 1 when parameters is there. */
QUARN_ASN1_API int quarn_scvpvalidationalg_hasparameters(const quarn_scvpvalidationalg *value);
/** parameters, null when it is absent. */
QUARN_ASN1_API quarn_asn1_any *quarn_scvpvalidationalg_getparameters(
    const quarn_scvpvalidationalg *value);

/* ---- NameValidationAlgParms */

/**
 * The parameters of validation for a name (RFC 5055, 3.2.4.2.3).
 *
 *     NameValidationAlgParms ::= SEQUENCE {
 *         nameCompAlgId    OBJECT IDENTIFIER,
 *         validationNames  GeneralNames
 *     }
 *
 * Type id QUARN_ASN1_SCVPNAMEVALIDATIONALGPARMS (368).
 */
typedef struct quarn_scvpnamevalidationalgparms quarn_scvpnamevalidationalgparms;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPNAMEVALIDATIONALGPARMS. */
QUARN_ASN1_API void quarn_scvpnamevalidationalgparms_free(quarn_scvpnamevalidationalgparms *value);
/** From its components. */
QUARN_ASN1_API quarn_scvpnamevalidationalgparms *quarn_scvpnamevalidationalgparms_new(
    const quarn_asn1_oid *name_comp_alg_id, const quarn_asn1_list *validation_names);
/** nameCompAlgId. */
QUARN_ASN1_API quarn_asn1_oid *quarn_scvpnamevalidationalgparms_getnamecompalgid(
    const quarn_scvpnamevalidationalgparms *value);
/** validationNames. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpnamevalidationalgparms_getvalidationnames(
    const quarn_scvpnamevalidationalgparms *value);

/* ---- ResponseFlags */

/**
 * What a response is to look like (RFC 5055, 3.2.5).
 *
 *     ResponseFlags ::= SEQUENCE {
 *         fullRequestInResponse       [0] IMPLICIT BOOLEAN DEFAULT FALSE,
 *         responseValidationPolByRef  [1] IMPLICIT BOOLEAN DEFAULT TRUE,
 *         protectResponse             [2] IMPLICIT BOOLEAN DEFAULT TRUE,
 *         cachedResponse              [3] IMPLICIT BOOLEAN DEFAULT TRUE
 *     }
 *
 * Type id QUARN_ASN1_SCVPRESPONSEFLAGS (369).
 */
typedef struct quarn_scvpresponseflags quarn_scvpresponseflags;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPRESPONSEFLAGS. */
QUARN_ASN1_API void quarn_scvpresponseflags_free(quarn_scvpresponseflags *value);
/**
 * From its components. Null stands for the default of full_request_in_response (FALSE),
 * response_validation_pol_by_ref (TRUE), protect_response (TRUE) and cached_response (TRUE).
 */
QUARN_ASN1_API quarn_scvpresponseflags *quarn_scvpresponseflags_new(
    const quarn_asn1_boolean *full_request_in_response,
    const quarn_asn1_boolean *response_validation_pol_by_ref,
    const quarn_asn1_boolean *protect_response,
    const quarn_asn1_boolean *cached_response);
/** fullRequestInResponse, FALSE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_scvpresponseflags_getfullrequestinresponse(
    const quarn_scvpresponseflags *value);
/** responseValidationPolByRef, TRUE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_scvpresponseflags_getresponsevalidationpolbyref(
    const quarn_scvpresponseflags *value);
/** protectResponse, TRUE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_scvpresponseflags_getprotectresponse(
    const quarn_scvpresponseflags *value);
/** cachedResponse, TRUE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_scvpresponseflags_getcachedresponse(
    const quarn_scvpresponseflags *value);

/* ---- SCVPOtherRevInfo */

/**
 * Revocation information of another kind (RFC 5055, 3.2.9).
 *
 *     SCVPOtherRevInfo ::= SEQUENCE {
 *         riType   OBJECT IDENTIFIER,
 *         riValue  ANY
 *     }
 *
 * Type id QUARN_ASN1_SCVPOTHERREVINFO (370).
 */
typedef struct quarn_scvpotherrevinfo quarn_scvpotherrevinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPOTHERREVINFO. */
QUARN_ASN1_API void quarn_scvpotherrevinfo_free(quarn_scvpotherrevinfo *value);
/** From its components. */
QUARN_ASN1_API quarn_scvpotherrevinfo *quarn_scvpotherrevinfo_new(const quarn_asn1_oid *ri_type,
                                                                  const quarn_asn1_any *ri_value);
/** riType. */
QUARN_ASN1_API quarn_asn1_oid *quarn_scvpotherrevinfo_getritype(
    const quarn_scvpotherrevinfo *value);
/** riValue. */
QUARN_ASN1_API quarn_asn1_any *quarn_scvpotherrevinfo_getrivalue(
    const quarn_scvpotherrevinfo *value);

/* ---- RevocationInfo */

/**
 * Revocation information that the client has (RFC 5055, 3.2.9). A list is written anew, its body as
 * it came.
 *
 *     RevocationInfo ::= CHOICE {
 *         crl        [0] IMPLICIT CertificateList,
 *         delta-crl  [1] IMPLICIT CertificateList,
 *         ocsp       [2] IMPLICIT OCSPResponse,
 *         other      [3] IMPLICIT SCVPOtherRevInfo
 *     }
 *
 * Type id QUARN_ASN1_SCVPREVOCATIONINFO (371).
 */
typedef struct quarn_scvprevocationinfo quarn_scvprevocationinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPREVOCATIONINFO. */
QUARN_ASN1_API void quarn_scvprevocationinfo_free(quarn_scvprevocationinfo *value);
/** Number of the alternative: 0 crl, 1 delta-crl, 2 ocsp, 3 other; all ones for null. */
QUARN_ASN1_API uint32_t quarn_scvprevocationinfo_gettype(const quarn_scvprevocationinfo *value);
/** The alternative crl. */
QUARN_ASN1_API quarn_scvprevocationinfo *quarn_scvprevocationinfo_newcrl(const quarn_x509crl *crl);
/** crl, null when it is another alternative. */
QUARN_ASN1_API quarn_x509crl *quarn_scvprevocationinfo_getcrl(
    const quarn_scvprevocationinfo *value);
/** The alternative delta-crl. */
QUARN_ASN1_API quarn_scvprevocationinfo *quarn_scvprevocationinfo_newdeltacrl(
    const quarn_x509crl *delta_crl);
/** delta-crl, null when it is another alternative. */
QUARN_ASN1_API quarn_x509crl *quarn_scvprevocationinfo_getdeltacrl(
    const quarn_scvprevocationinfo *value);
/** The alternative ocsp. */
QUARN_ASN1_API quarn_scvprevocationinfo *quarn_scvprevocationinfo_newocsp(
    const quarn_ocsp_ocspresponse *ocsp);
/** ocsp, null when it is another alternative. */
QUARN_ASN1_API quarn_ocsp_ocspresponse *quarn_scvprevocationinfo_getocsp(
    const quarn_scvprevocationinfo *value);
/** The alternative other. */
QUARN_ASN1_API quarn_scvprevocationinfo *quarn_scvprevocationinfo_newother(
    const quarn_scvpotherrevinfo *other);
/** other, null when it is another alternative. */
QUARN_ASN1_API quarn_scvpotherrevinfo *quarn_scvprevocationinfo_getother(
    const quarn_scvprevocationinfo *value);

/* ---- RevocationInfos */

/**
 * Revocation information that the client has (RFC 5055, 3.2.9).
 *
 *     RevocationInfos ::= SEQUENCE SIZE (1..MAX) OF RevocationInfo
 *
 * Type id QUARN_ASN1_SCVPREVOCATIONINFOS (372). A quarn_asn1_list of RevocationInfo
 * (quarn_scvprevocationinfo).
 */
QUARN_ASN1_API void quarn_scvprevocationinfos_free(quarn_asn1_list *value);

/* ---- UserPolicySet */

/**
 * The certificate policies that a path may have (RFC 5055, 3.2.4.3).
 *
 *     UserPolicySet ::= SEQUENCE SIZE (1..MAX) OF policy OBJECT IDENTIFIER
 *
 * Type id QUARN_ASN1_SCVPUSERPOLICYSET (373). A quarn_asn1_list of OBJECT IDENTIFIER
 * (quarn_asn1_oid).
 */
QUARN_ASN1_API void quarn_scvpuserpolicyset_free(quarn_asn1_list *value);

/* ---- KeyUsages */

/**
 * Usages of which a key must have one (RFC 5055, 3.2.4.8).
 *
 *     KeyUsages ::= SEQUENCE OF usage BIT STRING
 *
 * Type id QUARN_ASN1_SCVPKEYUSAGES (375). A quarn_asn1_list of BIT STRING (quarn_asn1_bitstring).
 */
QUARN_ASN1_API void quarn_scvpkeyusages_free(quarn_asn1_list *value);

/* ---- ExtendedKeyUsages */

/**
 * Purposes that a key must have (RFC 5055, 3.2.4.9, 3.2.4.10).
 *
 *     ExtendedKeyUsages ::= SEQUENCE OF purpose OBJECT IDENTIFIER
 *
 * Type id QUARN_ASN1_SCVPEXTENDEDKEYUSAGES (376). A quarn_asn1_list of OBJECT IDENTIFIER
 * (quarn_asn1_oid).
 */
QUARN_ASN1_API void quarn_scvpextendedkeyusages_free(quarn_asn1_list *value);

/* ---- ValidationPolicy */

/**
 * How to validate (RFC 5055, 3.2.4, 4.5). A BOOLEAN that is FALSE and one that is absent differ.
 *
 *     ValidationPolicy ::= SEQUENCE {
 *         validationPolRef       ValidationPolRef,
 *         validationAlg          [0] IMPLICIT ValidationAlg OPTIONAL,
 *         userPolicySet          [1] IMPLICIT UserPolicySet OPTIONAL,
 *         inhibitPolicyMapping   [2] IMPLICIT BOOLEAN OPTIONAL,
 *         requireExplicitPolicy  [3] IMPLICIT BOOLEAN OPTIONAL,
 *         inhibitAnyPolicy       [4] IMPLICIT BOOLEAN OPTIONAL,
 *         trustAnchors           [5] IMPLICIT PKCReferences OPTIONAL,
 *         keyUsages              [6] IMPLICIT KeyUsages OPTIONAL,
 *         extendedKeyUsages      [7] IMPLICIT ExtendedKeyUsages OPTIONAL,
 *         specifiedKeyUsages     [8] IMPLICIT ExtendedKeyUsages OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_SCVPVALIDATIONPOLICY (377).
 */
typedef struct quarn_scvpvalidationpolicy quarn_scvpvalidationpolicy;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPVALIDATIONPOLICY. */
QUARN_ASN1_API void quarn_scvpvalidationpolicy_free(quarn_scvpvalidationpolicy *value);
/**
 * From its components. Null leaves out validation_alg, user_policy_set, inhibit_policy_mapping,
 * require_explicit_policy, inhibit_any_policy, trust_anchors, key_usages, extended_key_usages and
 * specified_key_usages.
 */
QUARN_ASN1_API quarn_scvpvalidationpolicy *quarn_scvpvalidationpolicy_new(
    const quarn_scvpvalidationpolref *validation_pol_ref,
    const quarn_scvpvalidationalg *validation_alg,
    const quarn_asn1_list *user_policy_set,
    const quarn_asn1_boolean *inhibit_policy_mapping,
    const quarn_asn1_boolean *require_explicit_policy,
    const quarn_asn1_boolean *inhibit_any_policy,
    const quarn_asn1_list *trust_anchors,
    const quarn_asn1_list *key_usages,
    const quarn_asn1_list *extended_key_usages,
    const quarn_asn1_list *specified_key_usages);
/** validationPolRef. */
QUARN_ASN1_API quarn_scvpvalidationpolref *quarn_scvpvalidationpolicy_getvalidationpolref(
    const quarn_scvpvalidationpolicy *value);
/** 1 when validationAlg is there. */
QUARN_ASN1_API int quarn_scvpvalidationpolicy_hasvalidationalg(
    const quarn_scvpvalidationpolicy *value);
/** validationAlg, null when it is absent. */
QUARN_ASN1_API quarn_scvpvalidationalg *quarn_scvpvalidationpolicy_getvalidationalg(
    const quarn_scvpvalidationpolicy *value);
/** 1 when userPolicySet is there. */
QUARN_ASN1_API int quarn_scvpvalidationpolicy_hasuserpolicyset(
    const quarn_scvpvalidationpolicy *value);
/** userPolicySet, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpvalidationpolicy_getuserpolicyset(
    const quarn_scvpvalidationpolicy *value);
/** 1 when inhibitPolicyMapping is there. */
QUARN_ASN1_API int quarn_scvpvalidationpolicy_hasinhibitpolicymapping(
    const quarn_scvpvalidationpolicy *value);
/** inhibitPolicyMapping, null when it is absent. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_scvpvalidationpolicy_getinhibitpolicymapping(
    const quarn_scvpvalidationpolicy *value);
/** 1 when requireExplicitPolicy is there. */
QUARN_ASN1_API int quarn_scvpvalidationpolicy_hasrequireexplicitpolicy(
    const quarn_scvpvalidationpolicy *value);
/** requireExplicitPolicy, null when it is absent. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_scvpvalidationpolicy_getrequireexplicitpolicy(
    const quarn_scvpvalidationpolicy *value);
/** 1 when inhibitAnyPolicy is there. */
QUARN_ASN1_API int quarn_scvpvalidationpolicy_hasinhibitanypolicy(
    const quarn_scvpvalidationpolicy *value);
/** inhibitAnyPolicy, null when it is absent. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_scvpvalidationpolicy_getinhibitanypolicy(
    const quarn_scvpvalidationpolicy *value);
/** 1 when trustAnchors is there. */
QUARN_ASN1_API int quarn_scvpvalidationpolicy_hastrustanchors(
    const quarn_scvpvalidationpolicy *value);
/** trustAnchors, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpvalidationpolicy_gettrustanchors(
    const quarn_scvpvalidationpolicy *value);
/** 1 when keyUsages is there. */
QUARN_ASN1_API int quarn_scvpvalidationpolicy_haskeyusages(const quarn_scvpvalidationpolicy *value);
/** keyUsages, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpvalidationpolicy_getkeyusages(
    const quarn_scvpvalidationpolicy *value);
/** 1 when extendedKeyUsages is there. */
QUARN_ASN1_API int quarn_scvpvalidationpolicy_hasextendedkeyusages(
    const quarn_scvpvalidationpolicy *value);
/** extendedKeyUsages, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpvalidationpolicy_getextendedkeyusages(
    const quarn_scvpvalidationpolicy *value);
/** 1 when specifiedKeyUsages is there. */
QUARN_ASN1_API int quarn_scvpvalidationpolicy_hasspecifiedkeyusages(
    const quarn_scvpvalidationpolicy *value);
/** specifiedKeyUsages, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpvalidationpolicy_getspecifiedkeyusages(
    const quarn_scvpvalidationpolicy *value);

/* ---- CertBundle */

/**
 * Certificates, in no order unless they are a path (RFC 5055, 3.2.8, 4.9.5).
 *
 *     CertBundle ::= SEQUENCE SIZE (1..MAX) OF Certificate
 *
 * Type id QUARN_ASN1_SCVPCERTBUNDLE (378). A quarn_asn1_list of Certificate (quarn_x509pubkeycert).
 */
QUARN_ASN1_API void quarn_scvpcertbundle_free(quarn_asn1_list *value);

/* ---- Query */

/**
 * What is asked, and how to answer (RFC 5055, 3.2).
 *
 *     Query ::= SEQUENCE {
 *         queriedCerts       CertReferences,
 *         checks             CertChecks,
 *         wantBack           [1] IMPLICIT WantBack OPTIONAL,
 *         validationPolicy   ValidationPolicy,
 *         responseFlags      ResponseFlags OPTIONAL,
 *         serverContextInfo  [2] IMPLICIT OCTET STRING OPTIONAL,
 *         validationTime     [3] IMPLICIT GeneralizedTime OPTIONAL,
 *         intermediateCerts  [4] IMPLICIT CertBundle OPTIONAL,
 *         revInfos           [5] IMPLICIT RevocationInfos OPTIONAL,
 *         producedAt         [6] IMPLICIT GeneralizedTime OPTIONAL,
 *         queryExtensions    [7] IMPLICIT Extensions OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_SCVPQUERY (379).
 */
typedef struct quarn_scvpquery quarn_scvpquery;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPQUERY. */
QUARN_ASN1_API void quarn_scvpquery_free(quarn_scvpquery *value);
/**
 * From its components. Null leaves out want_back, response_flags, server_context_info,
 * validation_time, intermediate_certs, rev_infos, produced_at and query_extensions.
 */
QUARN_ASN1_API quarn_scvpquery *quarn_scvpquery_new(
    const quarn_scvpcertreferences *queried_certs,
    const quarn_asn1_list *checks,
    const quarn_asn1_list *want_back,
    const quarn_scvpvalidationpolicy *validation_policy,
    const quarn_scvpresponseflags *response_flags,
    const quarn_asn1_octetstring *server_context_info,
    const quarn_asn1_time *validation_time,
    const quarn_asn1_list *intermediate_certs,
    const quarn_asn1_list *rev_infos,
    const quarn_asn1_time *produced_at,
    const quarn_asn1_list *query_extensions);
/** queriedCerts. */
QUARN_ASN1_API quarn_scvpcertreferences *quarn_scvpquery_getqueriedcerts(
    const quarn_scvpquery *value);
/** checks. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpquery_getchecks(const quarn_scvpquery *value);
/** 1 when wantBack is there. */
QUARN_ASN1_API int quarn_scvpquery_haswantback(const quarn_scvpquery *value);
/** wantBack, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpquery_getwantback(const quarn_scvpquery *value);
/** validationPolicy. */
QUARN_ASN1_API quarn_scvpvalidationpolicy *quarn_scvpquery_getvalidationpolicy(
    const quarn_scvpquery *value);
/** 1 when responseFlags is there. */
QUARN_ASN1_API int quarn_scvpquery_hasresponseflags(const quarn_scvpquery *value);
/** responseFlags, null when it is absent. */
QUARN_ASN1_API quarn_scvpresponseflags *quarn_scvpquery_getresponseflags(
    const quarn_scvpquery *value);
/** 1 when serverContextInfo is there. */
QUARN_ASN1_API int quarn_scvpquery_hasservercontextinfo(const quarn_scvpquery *value);
/** serverContextInfo, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_scvpquery_getservercontextinfo(
    const quarn_scvpquery *value);
/** 1 when validationTime is there. */
QUARN_ASN1_API int quarn_scvpquery_hasvalidationtime(const quarn_scvpquery *value);
/** validationTime, null when it is absent. */
QUARN_ASN1_API quarn_asn1_time *quarn_scvpquery_getvalidationtime(const quarn_scvpquery *value);
/** 1 when intermediateCerts is there. */
QUARN_ASN1_API int quarn_scvpquery_hasintermediatecerts(const quarn_scvpquery *value);
/** intermediateCerts, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpquery_getintermediatecerts(const quarn_scvpquery *value);
/** 1 when revInfos is there. */
QUARN_ASN1_API int quarn_scvpquery_hasrevinfos(const quarn_scvpquery *value);
/** revInfos, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpquery_getrevinfos(const quarn_scvpquery *value);
/** 1 when producedAt is there. */
QUARN_ASN1_API int quarn_scvpquery_hasproducedat(const quarn_scvpquery *value);
/** producedAt, null when it is absent. */
QUARN_ASN1_API quarn_asn1_time *quarn_scvpquery_getproducedat(const quarn_scvpquery *value);
/** 1 when queryExtensions is there. */
QUARN_ASN1_API int quarn_scvpquery_hasqueryexts(const quarn_scvpquery *value);
/** queryExtensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpquery_getqueryexts(const quarn_scvpquery *value);

/* ---- CVRequest */

/**
 * A request to validate certificates (RFC 5055, 3). Its text has 1 to 256 characters.
 *
 *     CVRequest ::= SEQUENCE {
 *         cvRequestVersion   INTEGER DEFAULT 1,
 *         query              Query,
 *         requestorRef       [0] IMPLICIT GeneralNames OPTIONAL,
 *         requestNonce       [1] IMPLICIT OCTET STRING OPTIONAL,
 *         requestorName      [2] EXPLICIT GeneralName OPTIONAL,
 *         responderName      [3] EXPLICIT GeneralName OPTIONAL,
 *         requestExtensions  [4] IMPLICIT Extensions OPTIONAL,
 *         signatureAlg       [5] IMPLICIT AlgorithmIdentifier OPTIONAL,
 *         hashAlg            [6] IMPLICIT OBJECT IDENTIFIER OPTIONAL,
 *         requestorText      [7] IMPLICIT UTF8String OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_SCVPCVREQUEST (380).
 */
typedef struct quarn_scvpcvrequest quarn_scvpcvrequest;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPCVREQUEST. */
QUARN_ASN1_API void quarn_scvpcvrequest_free(quarn_scvpcvrequest *value);
/**
 * From its components. Null leaves out requestor_ref, request_nonce, requestor_name,
 * responder_name, request_extensions, signature_alg, hash_alg and requestor_text, and stands for
 * the default of cv_request_version (1).
 */
QUARN_ASN1_API quarn_scvpcvrequest *quarn_scvpcvrequest_new(
    const quarn_asn1_integer *cv_request_version,
    const quarn_scvpquery *query,
    const quarn_asn1_list *requestor_ref,
    const quarn_asn1_octetstring *request_nonce,
    const quarn_x509generalname *requestor_name,
    const quarn_x509generalname *responder_name,
    const quarn_asn1_list *request_extensions,
    const quarn_x509algoid *signature_alg,
    const quarn_asn1_oid *hash_alg,
    const quarn_asn1_octetstring *requestor_text);
/** cvRequestVersion, 1 when the encoding has none. */
QUARN_ASN1_API quarn_asn1_integer *quarn_scvpcvrequest_getcvrequestversion(
    const quarn_scvpcvrequest *value);
/** query. */
QUARN_ASN1_API quarn_scvpquery *quarn_scvpcvrequest_getquery(const quarn_scvpcvrequest *value);
/** 1 when requestorRef is there. */
QUARN_ASN1_API int quarn_scvpcvrequest_hasrequestorref(const quarn_scvpcvrequest *value);
/** requestorRef, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpcvrequest_getrequestorref(
    const quarn_scvpcvrequest *value);
/** 1 when requestNonce is there. */
QUARN_ASN1_API int quarn_scvpcvrequest_hasrequestnonce(const quarn_scvpcvrequest *value);
/** requestNonce, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_scvpcvrequest_getrequestnonce(
    const quarn_scvpcvrequest *value);
/** 1 when requestorName is there. */
QUARN_ASN1_API int quarn_scvpcvrequest_hasrequestorname(const quarn_scvpcvrequest *value);
/** requestorName, null when it is absent. */
QUARN_ASN1_API quarn_x509generalname *quarn_scvpcvrequest_getrequestorname(
    const quarn_scvpcvrequest *value);
/** 1 when responderName is there. */
QUARN_ASN1_API int quarn_scvpcvrequest_hasrespondername(const quarn_scvpcvrequest *value);
/** responderName, null when it is absent. */
QUARN_ASN1_API quarn_x509generalname *quarn_scvpcvrequest_getrespondername(
    const quarn_scvpcvrequest *value);
/** 1 when requestExtensions is there. */
QUARN_ASN1_API int quarn_scvpcvrequest_hasrequestexts(const quarn_scvpcvrequest *value);
/** requestExtensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpcvrequest_getrequestexts(
    const quarn_scvpcvrequest *value);
/** 1 when signatureAlg is there. */
QUARN_ASN1_API int quarn_scvpcvrequest_hassignaturealg(const quarn_scvpcvrequest *value);
/** signatureAlg, null when it is absent. */
QUARN_ASN1_API quarn_x509algoid *quarn_scvpcvrequest_getsignaturealg(
    const quarn_scvpcvrequest *value);
/** 1 when hashAlg is there. */
QUARN_ASN1_API int quarn_scvpcvrequest_hashashalg(const quarn_scvpcvrequest *value);
/** hashAlg, null when it is absent. */
QUARN_ASN1_API quarn_asn1_oid *quarn_scvpcvrequest_gethashalg(const quarn_scvpcvrequest *value);
/** 1 when requestorText is there. */
QUARN_ASN1_API int quarn_scvpcvrequest_hasrequestortext(const quarn_scvpcvrequest *value);
/** requestorText, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_scvpcvrequest_getrequestortext(
    const quarn_scvpcvrequest *value);

/* ---- SCVPResponseStatus */

/**
 * Whether the server could answer, 0 if so (RFC 5055, 4.4).
 *
 *     SCVPResponseStatus ::= SEQUENCE {
 *         statusCode    ENUMERATED DEFAULT 0,
 *         errorMessage  UTF8String OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_SCVPRESPONSESTATUS (381).
 */
typedef struct quarn_scvpresponsestatus quarn_scvpresponsestatus;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPRESPONSESTATUS. */
QUARN_ASN1_API void quarn_scvpresponsestatus_free(quarn_scvpresponsestatus *value);
/**
 * From its components. Null leaves out error_message, and stands for the default of status_code
 * (0).
 */
QUARN_ASN1_API quarn_scvpresponsestatus *quarn_scvpresponsestatus_new(
    const quarn_asn1_integer *status_code, const quarn_asn1_octetstring *error_message);
/** statusCode, 0 when the encoding has none. */
QUARN_ASN1_API quarn_asn1_integer *quarn_scvpresponsestatus_getstatuscode(
    const quarn_scvpresponsestatus *value);
/** 1 when errorMessage is there. */
QUARN_ASN1_API int quarn_scvpresponsestatus_haserrormessage(const quarn_scvpresponsestatus *value);
/** errorMessage, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_scvpresponsestatus_geterrormessage(
    const quarn_scvpresponsestatus *value);

/* ---- HashValue */

/**
 * A digest (RFC 5055, 4.6.1). The default algorithm is SHA-1, without parameters.
 *
 *     HashValue ::= SEQUENCE {
 *         algorithm  AlgorithmIdentifier DEFAULT '300706052B0E03021A'H,
 *         value      OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_SCVPHASHVALUE (382).
 */
typedef struct quarn_scvphashvalue quarn_scvphashvalue;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPHASHVALUE. */
QUARN_ASN1_API void quarn_scvphashvalue_free(quarn_scvphashvalue *value);
/** From its components. Null stands for the default of algorithm. */
QUARN_ASN1_API quarn_scvphashvalue *quarn_scvphashvalue_new(const quarn_x509algoid *algorithm,
                                                            const quarn_asn1_octetstring *value);
/** algorithm, the default when the encoding has none. */
QUARN_ASN1_API quarn_x509algoid *quarn_scvphashvalue_getalgo(const quarn_scvphashvalue *value);
/** value. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_scvphashvalue_getvalue(
    const quarn_scvphashvalue *value);

/* ---- RequestReference */

/**
 * The request that is answered (RFC 5055, 4.6).
 *
 *     RequestReference ::= CHOICE {
 *         requestHash  [0] IMPLICIT HashValue,
 *         fullRequest  [1] IMPLICIT CVRequest
 *     }
 *
 * Type id QUARN_ASN1_SCVPREQUESTREFERENCE (383).
 */
typedef struct quarn_scvprequestreference quarn_scvprequestreference;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPREQUESTREFERENCE. */
QUARN_ASN1_API void quarn_scvprequestreference_free(quarn_scvprequestreference *value);
/** Number of the alternative: 0 requestHash, 1 fullRequest; all ones for null. */
QUARN_ASN1_API uint32_t quarn_scvprequestreference_gettype(const quarn_scvprequestreference *value);
/** The alternative requestHash. */
QUARN_ASN1_API quarn_scvprequestreference *quarn_scvprequestreference_newrequesthash(
    const quarn_scvphashvalue *request_hash);
/** requestHash, null when it is another alternative. */
QUARN_ASN1_API quarn_scvphashvalue *quarn_scvprequestreference_getrequesthash(
    const quarn_scvprequestreference *value);
/** The alternative fullRequest. */
QUARN_ASN1_API quarn_scvprequestreference *quarn_scvprequestreference_newfullrequest(
    const quarn_scvpcvrequest *full_request);
/** fullRequest, null when it is another alternative. */
QUARN_ASN1_API quarn_scvpcvrequest *quarn_scvprequestreference_getfullrequest(
    const quarn_scvprequestreference *value);

/* ---- ReplyCheck */

/**
 * What came of a check, 0 if all is well (RFC 5055, 4.9.4).
 *
 *     ReplyCheck ::= SEQUENCE {
 *         check   OBJECT IDENTIFIER,
 *         status  INTEGER DEFAULT 0
 *     }
 *
 * Type id QUARN_ASN1_SCVPREPLYCHECK (384).
 */
typedef struct quarn_scvpreplycheck quarn_scvpreplycheck;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPREPLYCHECK. */
QUARN_ASN1_API void quarn_scvpreplycheck_free(quarn_scvpreplycheck *value);
/** From its components. Null stands for the default of status (0). */
QUARN_ASN1_API quarn_scvpreplycheck *quarn_scvpreplycheck_new(const quarn_asn1_oid *check,
                                                              const quarn_asn1_integer *status);
/** check. */
QUARN_ASN1_API quarn_asn1_oid *quarn_scvpreplycheck_getcheck(const quarn_scvpreplycheck *value);
/** status, 0 when the encoding has none. */
QUARN_ASN1_API quarn_asn1_integer *quarn_scvpreplycheck_getstatus(
    const quarn_scvpreplycheck *value);

/* ---- ReplyChecks */

/**
 * What came of the checks (RFC 5055, 4.9.4).
 *
 *     ReplyChecks ::= SEQUENCE OF ReplyCheck
 *
 * Type id QUARN_ASN1_SCVPREPLYCHECKS (385). A quarn_asn1_list of ReplyCheck (quarn_scvpreplycheck).
 */
QUARN_ASN1_API void quarn_scvpreplychecks_free(quarn_asn1_list *value);

/* ---- ReplyWantBack */

/**
 * Something that was wanted back (RFC 5055, 4.9.5). What the octets are, the object identifier
 * tells.
 *
 *     ReplyWantBack ::= SEQUENCE {
 *         wb     OBJECT IDENTIFIER,
 *         value  OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_SCVPREPLYWANTBACK (386).
 */
typedef struct quarn_scvpreplywantback quarn_scvpreplywantback;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPREPLYWANTBACK. */
QUARN_ASN1_API void quarn_scvpreplywantback_free(quarn_scvpreplywantback *value);
/** From its components. */
QUARN_ASN1_API quarn_scvpreplywantback *quarn_scvpreplywantback_new(
    const quarn_asn1_oid *wb, const quarn_asn1_octetstring *value);
/** wb. */
QUARN_ASN1_API quarn_asn1_oid *quarn_scvpreplywantback_getwb(const quarn_scvpreplywantback *value);
/** value. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_scvpreplywantback_getvalue(
    const quarn_scvpreplywantback *value);

/* ---- ReplyWantBacks */

/**
 * What was wanted back (RFC 5055, 4.9.5).
 *
 *     ReplyWantBacks ::= SEQUENCE OF ReplyWantBack
 *
 * Type id QUARN_ASN1_SCVPREPLYWANTBACKS (387). A quarn_asn1_list of ReplyWantBack
 * (quarn_scvpreplywantback).
 */
QUARN_ASN1_API void quarn_scvpreplywantbacks_free(quarn_asn1_list *value);

/* ---- CertBundles */

/**
 * Several paths (RFC 5055, 4.9.5).
 *
 *     CertBundles ::= SEQUENCE SIZE (1..MAX) OF CertBundle
 *
 * Type id QUARN_ASN1_SCVPCERTBUNDLES (388). A quarn_asn1_list of CertBundle (quarn_asn1_list).
 */
QUARN_ASN1_API void quarn_scvpcertbundles_free(quarn_asn1_list *value);

/* ---- SCVPResponses */

/**
 * The responses of other servers, as messages (RFC 5055, 4.9.5).
 *
 *     SCVPResponses ::= SEQUENCE OF ContentInfo
 *
 * Type id QUARN_ASN1_SCVPRESPONSES (389). A quarn_asn1_list of ContentInfo
 * (quarn_pkcs7contentinfo).
 */
QUARN_ASN1_API void quarn_scvpresponses_free(quarn_asn1_list *value);

/* ---- ValidationErrors */

/**
 * Why no path is valid (RFC 5055, 4.9.6).
 *
 *     ValidationErrors ::= SEQUENCE SIZE (1..MAX) OF reason OBJECT IDENTIFIER
 *
 * Type id QUARN_ASN1_SCVPVALIDATIONERRORS (390). A quarn_asn1_list of OBJECT IDENTIFIER
 * (quarn_asn1_oid).
 */
QUARN_ASN1_API void quarn_scvpvalidationerrors_free(quarn_asn1_list *value);

/* ---- CertReply */

/**
 * The answer for one certificate (RFC 5055, 4.9). The status is 0 when all checks succeeded.
 *
 *     CertReply ::= SEQUENCE {
 *         cert                 CertReference,
 *         replyStatus          ENUMERATED DEFAULT 0,
 *         replyValTime         GeneralizedTime,
 *         replyChecks          ReplyChecks,
 *         replyWantBacks       ReplyWantBacks,
 *         validationErrors     [0] IMPLICIT ValidationErrors OPTIONAL,
 *         nextUpdate           [1] IMPLICIT GeneralizedTime OPTIONAL,
 *         certReplyExtensions  [2] IMPLICIT Extensions OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_SCVPCERTREPLY (391).
 */
typedef struct quarn_scvpcertreply quarn_scvpcertreply;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPCERTREPLY. */
QUARN_ASN1_API void quarn_scvpcertreply_free(quarn_scvpcertreply *value);
/**
 * From its components. Null leaves out validation_errors, next_update and cert_reply_extensions,
 * and stands for the default of reply_status (0).
 */
QUARN_ASN1_API quarn_scvpcertreply *quarn_scvpcertreply_new(
    const quarn_scvpcertreference *cert,
    const quarn_asn1_integer *reply_status,
    const quarn_asn1_time *reply_val_time,
    const quarn_asn1_list *reply_checks,
    const quarn_asn1_list *reply_want_backs,
    const quarn_asn1_list *validation_errors,
    const quarn_asn1_time *next_update,
    const quarn_asn1_list *cert_reply_extensions);
/** cert. */
QUARN_ASN1_API quarn_scvpcertreference *quarn_scvpcertreply_getcert(
    const quarn_scvpcertreply *value);
/** replyStatus, 0 when the encoding has none. */
QUARN_ASN1_API quarn_asn1_integer *quarn_scvpcertreply_getreplystatus(
    const quarn_scvpcertreply *value);
/** replyValTime. */
QUARN_ASN1_API quarn_asn1_time *quarn_scvpcertreply_getreplyvaltime(
    const quarn_scvpcertreply *value);
/** replyChecks. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpcertreply_getreplychecks(
    const quarn_scvpcertreply *value);
/** replyWantBacks. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpcertreply_getreplywantbacks(
    const quarn_scvpcertreply *value);
/** 1 when validationErrors is there. */
QUARN_ASN1_API int quarn_scvpcertreply_hasvalidationerrors(const quarn_scvpcertreply *value);
/** validationErrors, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpcertreply_getvalidationerrors(
    const quarn_scvpcertreply *value);
/** 1 when nextUpdate is there. */
QUARN_ASN1_API int quarn_scvpcertreply_hasnextupdate(const quarn_scvpcertreply *value);
/** nextUpdate, null when it is absent. */
QUARN_ASN1_API quarn_asn1_time *quarn_scvpcertreply_getnextupdate(const quarn_scvpcertreply *value);
/** 1 when certReplyExtensions is there. */
QUARN_ASN1_API int quarn_scvpcertreply_hascertreplyexts(const quarn_scvpcertreply *value);
/** certReplyExtensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpcertreply_getcertreplyexts(
    const quarn_scvpcertreply *value);

/* ---- ReplyObjects */

/**
 * The answers for all certificates (RFC 5055, 4.9).
 *
 *     ReplyObjects ::= SEQUENCE SIZE (1..MAX) OF CertReply
 *
 * Type id QUARN_ASN1_SCVPREPLYOBJECTS (392). A quarn_asn1_list of CertReply (quarn_scvpcertreply).
 */
QUARN_ASN1_API void quarn_scvpreplyobjects_free(quarn_asn1_list *value);

/* ---- CVResponse */

/**
 * The answer to a CVRequest (RFC 5055, 4). Its text has 1 to 256 characters.
 *
 *     CVResponse ::= SEQUENCE {
 *         cvResponseVersion      INTEGER,
 *         serverConfigurationID  INTEGER,
 *         producedAt             GeneralizedTime,
 *         responseStatus         SCVPResponseStatus,
 *         respValidationPolicy   [0] IMPLICIT ValidationPolicy OPTIONAL,
 *         requestRef             [1] EXPLICIT RequestReference OPTIONAL,
 *         requestorRef           [2] IMPLICIT GeneralNames OPTIONAL,
 *         requestorName          [3] IMPLICIT GeneralNames OPTIONAL,
 *         replyObjects           [4] IMPLICIT ReplyObjects OPTIONAL,
 *         respNonce              [5] IMPLICIT OCTET STRING OPTIONAL,
 *         serverContextInfo      [6] IMPLICIT OCTET STRING OPTIONAL,
 *         cvResponseExtensions   [7] IMPLICIT Extensions OPTIONAL,
 *         requestorText          [8] IMPLICIT UTF8String OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_SCVPCVRESPONSE (393).
 */
typedef struct quarn_scvpcvresponse quarn_scvpcvresponse;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPCVRESPONSE. */
QUARN_ASN1_API void quarn_scvpcvresponse_free(quarn_scvpcvresponse *value);
/**
 * From its components. Null leaves out resp_validation_policy, request_ref, requestor_ref,
 * requestor_name, reply_objects, resp_nonce, server_context_info, cv_response_extensions and
 * requestor_text.
 */
QUARN_ASN1_API quarn_scvpcvresponse *quarn_scvpcvresponse_new(
    const quarn_asn1_integer *cv_response_version,
    const quarn_asn1_integer *server_configuration_id,
    const quarn_asn1_time *produced_at,
    const quarn_scvpresponsestatus *response_status,
    const quarn_scvpvalidationpolicy *resp_validation_policy,
    const quarn_scvprequestreference *request_ref,
    const quarn_asn1_list *requestor_ref,
    const quarn_asn1_list *requestor_name,
    const quarn_asn1_list *reply_objects,
    const quarn_asn1_octetstring *resp_nonce,
    const quarn_asn1_octetstring *server_context_info,
    const quarn_asn1_list *cv_response_extensions,
    const quarn_asn1_octetstring *requestor_text);
/** cvResponseVersion. */
QUARN_ASN1_API quarn_asn1_integer *quarn_scvpcvresponse_getcvresponseversion(
    const quarn_scvpcvresponse *value);
/** serverConfigurationID. */
QUARN_ASN1_API quarn_asn1_integer *quarn_scvpcvresponse_getserverconfigurationid(
    const quarn_scvpcvresponse *value);
/** producedAt. */
QUARN_ASN1_API quarn_asn1_time *quarn_scvpcvresponse_getproducedat(
    const quarn_scvpcvresponse *value);
/** responseStatus. */
QUARN_ASN1_API quarn_scvpresponsestatus *quarn_scvpcvresponse_getresponsestatus(
    const quarn_scvpcvresponse *value);
/** 1 when respValidationPolicy is there. */
QUARN_ASN1_API int quarn_scvpcvresponse_hasrespvalidationpolicy(const quarn_scvpcvresponse *value);
/** respValidationPolicy, null when it is absent. */
QUARN_ASN1_API quarn_scvpvalidationpolicy *quarn_scvpcvresponse_getrespvalidationpolicy(
    const quarn_scvpcvresponse *value);
/** 1 when requestRef is there. */
QUARN_ASN1_API int quarn_scvpcvresponse_hasrequestref(const quarn_scvpcvresponse *value);
/** requestRef, null when it is absent. */
QUARN_ASN1_API quarn_scvprequestreference *quarn_scvpcvresponse_getrequestref(
    const quarn_scvpcvresponse *value);
/** 1 when requestorRef is there. */
QUARN_ASN1_API int quarn_scvpcvresponse_hasrequestorref(const quarn_scvpcvresponse *value);
/** requestorRef, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpcvresponse_getrequestorref(
    const quarn_scvpcvresponse *value);
/** 1 when requestorName is there. */
QUARN_ASN1_API int quarn_scvpcvresponse_hasrequestorname(const quarn_scvpcvresponse *value);
/** requestorName, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpcvresponse_getrequestorname(
    const quarn_scvpcvresponse *value);
/** 1 when replyObjects is there. */
QUARN_ASN1_API int quarn_scvpcvresponse_hasreplyobjects(const quarn_scvpcvresponse *value);
/** replyObjects, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpcvresponse_getreplyobjects(
    const quarn_scvpcvresponse *value);
/** 1 when respNonce is there. */
QUARN_ASN1_API int quarn_scvpcvresponse_hasrespnonce(const quarn_scvpcvresponse *value);
/** respNonce, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_scvpcvresponse_getrespnonce(
    const quarn_scvpcvresponse *value);
/** 1 when serverContextInfo is there. */
QUARN_ASN1_API int quarn_scvpcvresponse_hasservercontextinfo(const quarn_scvpcvresponse *value);
/** serverContextInfo, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_scvpcvresponse_getservercontextinfo(
    const quarn_scvpcvresponse *value);
/** 1 when cvResponseExtensions is there. */
QUARN_ASN1_API int quarn_scvpcvresponse_hascvresponseexts(const quarn_scvpcvresponse *value);
/** cvResponseExtensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpcvresponse_getcvresponseexts(
    const quarn_scvpcvresponse *value);
/** 1 when requestorText is there. */
QUARN_ASN1_API int quarn_scvpcvresponse_hasrequestortext(const quarn_scvpcvresponse *value);
/** requestorText, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_scvpcvresponse_getrequestortext(
    const quarn_scvpcvresponse *value);

/* ---- ValPolRequest */

/**
 * Asks what a server can do (RFC 5055, 5).
 *
 *     ValPolRequest ::= SEQUENCE {
 *         vpRequestVersion  INTEGER DEFAULT 1,
 *         requestNonce      OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_SCVPVALPOLREQUEST (394).
 */
typedef struct quarn_scvpvalpolrequest quarn_scvpvalpolrequest;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPVALPOLREQUEST. */
QUARN_ASN1_API void quarn_scvpvalpolrequest_free(quarn_scvpvalpolrequest *value);
/** From its components. Null stands for the default of vp_request_version (1). */
QUARN_ASN1_API quarn_scvpvalpolrequest *quarn_scvpvalpolrequest_new(
    const quarn_asn1_integer *vp_request_version, const quarn_asn1_octetstring *request_nonce);
/** vpRequestVersion, 1 when the encoding has none. */
QUARN_ASN1_API quarn_asn1_integer *quarn_scvpvalpolrequest_getvprequestversion(
    const quarn_scvpvalpolrequest *value);
/** requestNonce. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_scvpvalpolrequest_getrequestnonce(
    const quarn_scvpvalpolrequest *value);

/* ---- SCVPPolicies */

/**
 * Policies and algorithms that a server knows (RFC 5055, 6.9, 6.10, 6.11).
 *
 *     SCVPPolicies ::= SEQUENCE OF policy OBJECT IDENTIFIER
 *
 * Type id QUARN_ASN1_SCVPSEQOFOID (395). A quarn_asn1_list of OBJECT IDENTIFIER (quarn_asn1_oid).
 */
QUARN_ASN1_API void quarn_scvpseqofoid_free(quarn_asn1_list *value);

/* ---- SCVPHashAlgorithms */

/**
 * Digests that a server knows (RFC 5055, 6.17).
 *
 *     SCVPHashAlgorithms ::= SEQUENCE SIZE (1..MAX) OF algorithm OBJECT IDENTIFIER
 *
 * Type id QUARN_ASN1_SCVPSEQOFOIDNOEMPTY (396). A quarn_asn1_list of OBJECT IDENTIFIER
 * (quarn_asn1_oid).
 */
QUARN_ASN1_API void quarn_scvpseqofoidnoempty_free(quarn_asn1_list *value);

/* ---- SCVPSignatureAlgorithms */

/**
 * Signatures that a server makes or understands (RFC 5055, 6.15, 6.16).
 *
 *     SCVPSignatureAlgorithms ::= SEQUENCE OF AlgorithmIdentifier
 *
 * Type id QUARN_ASN1_SCVPSEQOFALGOID (397). A quarn_asn1_list of AlgorithmIdentifier
 * (quarn_x509algoid).
 */
QUARN_ASN1_API void quarn_scvpseqofalgoid_free(quarn_asn1_list *value);

/* ---- KeyAgreePublicKey */

/**
 * A key with which requests and responses are authenticated without signatures (RFC 5055, 6.18).
 *
 *     KeyAgreePublicKey ::= SEQUENCE {
 *         algorithm     AlgorithmIdentifier,
 *         publicKey     BIT STRING,
 *         macAlgorithm  AlgorithmIdentifier,
 *         kDF           AlgorithmIdentifier OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_SCVPKEYAGREEPUBLICKEY (398).
 */
typedef struct quarn_scvpkeyagreepublickey quarn_scvpkeyagreepublickey;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPKEYAGREEPUBLICKEY. */
QUARN_ASN1_API void quarn_scvpkeyagreepublickey_free(quarn_scvpkeyagreepublickey *value);
/** From its components. Null leaves out kdf. */
QUARN_ASN1_API quarn_scvpkeyagreepublickey *quarn_scvpkeyagreepublickey_new(
    const quarn_x509algoid *algorithm,
    const quarn_asn1_bitstring *public_key,
    const quarn_x509algoid *mac_algorithm,
    const quarn_x509algoid *kdf);
/** algorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_scvpkeyagreepublickey_getalgo(
    const quarn_scvpkeyagreepublickey *value);
/** publicKey. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_scvpkeyagreepublickey_getpublickey(
    const quarn_scvpkeyagreepublickey *value);
/** macAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_scvpkeyagreepublickey_getmacalgo(
    const quarn_scvpkeyagreepublickey *value);
/** 1 when kDF is there. */
QUARN_ASN1_API int quarn_scvpkeyagreepublickey_haskdf(const quarn_scvpkeyagreepublickey *value);
/** kDF, null when it is absent. */
QUARN_ASN1_API quarn_x509algoid *quarn_scvpkeyagreepublickey_getkdf(
    const quarn_scvpkeyagreepublickey *value);

/* ---- KeyAgreePublicKeys */

/**
 * Keys of a server (RFC 5055, 6.18).
 *
 *     KeyAgreePublicKeys ::= SEQUENCE OF KeyAgreePublicKey
 *
 * Type id QUARN_ASN1_SCVPKEYAGREEPUBLICKEYS (399). A quarn_asn1_list of KeyAgreePublicKey
 * (quarn_scvpkeyagreepublickey).
 */
QUARN_ASN1_API void quarn_scvpkeyagreepublickeys_free(quarn_asn1_list *value);

/* ---- ValPolResponse */

/**
 * What a server can do (RFC 5055, 6).
 *
 *     ValPolResponse ::= SEQUENCE {
 *         vpResponseVersion      INTEGER,
 *         maxCVRequestVersion    INTEGER,
 *         maxVPRequestVersion    INTEGER,
 *         serverConfigurationID  INTEGER,
 *         thisUpdate             GeneralizedTime,
 *         nextUpdate             GeneralizedTime OPTIONAL,
 *         supportedChecks        CertChecks,
 *         supportedWantBacks     WantBack,
 *         validationPolicies     SCVPPolicies,
 *         validationAlgs         SCVPPolicies,
 *         authPolicies           SCVPPolicies,
 *         responseTypes          ENUMERATED,
 *         defaultPolicyValues    ValidationPolicy,
 *         revocationInfoTypes    BIT STRING,
 *         signatureGeneration    SCVPSignatureAlgorithms,
 *         signatureVerification  SCVPSignatureAlgorithms,
 *         hashAlgorithms         SCVPHashAlgorithms,
 *         serverPublicKeys       KeyAgreePublicKeys OPTIONAL,
 *         clockSkew              INTEGER DEFAULT 10,
 *         requestNonce           OCTET STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_SCVPVALPOLRESPONSE (400).
 */
typedef struct quarn_scvpvalpolresponse quarn_scvpvalpolresponse;
/** As quarn_asn1_value_free() under QUARN_ASN1_SCVPVALPOLRESPONSE. */
QUARN_ASN1_API void quarn_scvpvalpolresponse_free(quarn_scvpvalpolresponse *value);
/**
 * From its components. Null leaves out next_update, server_public_keys and request_nonce, and
 * stands for the default of clock_skew (10).
 */
QUARN_ASN1_API quarn_scvpvalpolresponse *quarn_scvpvalpolresponse_new(
    const quarn_asn1_integer *vp_response_version,
    const quarn_asn1_integer *max_cv_request_version,
    const quarn_asn1_integer *max_vp_request_version,
    const quarn_asn1_integer *server_configuration_id,
    const quarn_asn1_time *this_update,
    const quarn_asn1_time *next_update,
    const quarn_asn1_list *supported_checks,
    const quarn_asn1_list *supported_want_backs,
    const quarn_asn1_list *validation_policies,
    const quarn_asn1_list *validation_algs,
    const quarn_asn1_list *auth_policies,
    const quarn_asn1_integer *response_types,
    const quarn_scvpvalidationpolicy *default_policy_values,
    const quarn_asn1_bitstring *revocation_info_types,
    const quarn_asn1_list *signature_generation,
    const quarn_asn1_list *signature_verification,
    const quarn_asn1_list *hash_algorithms,
    const quarn_asn1_list *server_public_keys,
    const quarn_asn1_integer *clock_skew,
    const quarn_asn1_octetstring *request_nonce);
/** vpResponseVersion. */
QUARN_ASN1_API quarn_asn1_integer *quarn_scvpvalpolresponse_getvpresponseversion(
    const quarn_scvpvalpolresponse *value);
/** maxCVRequestVersion. */
QUARN_ASN1_API quarn_asn1_integer *quarn_scvpvalpolresponse_getmaxcvrequestversion(
    const quarn_scvpvalpolresponse *value);
/** maxVPRequestVersion. */
QUARN_ASN1_API quarn_asn1_integer *quarn_scvpvalpolresponse_getmaxvprequestversion(
    const quarn_scvpvalpolresponse *value);
/** serverConfigurationID. */
QUARN_ASN1_API quarn_asn1_integer *quarn_scvpvalpolresponse_getserverconfigurationid(
    const quarn_scvpvalpolresponse *value);
/** thisUpdate. */
QUARN_ASN1_API quarn_asn1_time *quarn_scvpvalpolresponse_getthisupdate(
    const quarn_scvpvalpolresponse *value);
/** 1 when nextUpdate is there. */
QUARN_ASN1_API int quarn_scvpvalpolresponse_hasnextupdate(const quarn_scvpvalpolresponse *value);
/** nextUpdate, null when it is absent. */
QUARN_ASN1_API quarn_asn1_time *quarn_scvpvalpolresponse_getnextupdate(
    const quarn_scvpvalpolresponse *value);
/** supportedChecks. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpvalpolresponse_getsupportedchecks(
    const quarn_scvpvalpolresponse *value);
/** supportedWantBacks. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpvalpolresponse_getsupportedwantbacks(
    const quarn_scvpvalpolresponse *value);
/** validationPolicies. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpvalpolresponse_getvalidationpolicies(
    const quarn_scvpvalpolresponse *value);
/** validationAlgs. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpvalpolresponse_getvalidationalgs(
    const quarn_scvpvalpolresponse *value);
/** authPolicies. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpvalpolresponse_getauthpolicies(
    const quarn_scvpvalpolresponse *value);
/** responseTypes. */
QUARN_ASN1_API quarn_asn1_integer *quarn_scvpvalpolresponse_getresponsetypes(
    const quarn_scvpvalpolresponse *value);
/** defaultPolicyValues. */
QUARN_ASN1_API quarn_scvpvalidationpolicy *quarn_scvpvalpolresponse_getdefaultpolicyvalues(
    const quarn_scvpvalpolresponse *value);
/** revocationInfoTypes. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_scvpvalpolresponse_getrevocationinfotypes(
    const quarn_scvpvalpolresponse *value);
/** signatureGeneration. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpvalpolresponse_getsignaturegeneration(
    const quarn_scvpvalpolresponse *value);
/** signatureVerification. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpvalpolresponse_getsignatureverification(
    const quarn_scvpvalpolresponse *value);
/** hashAlgorithms. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpvalpolresponse_gethashalgos(
    const quarn_scvpvalpolresponse *value);
/** 1 when serverPublicKeys is there. */
QUARN_ASN1_API int quarn_scvpvalpolresponse_hasserverpublickeys(
    const quarn_scvpvalpolresponse *value);
/** serverPublicKeys, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_scvpvalpolresponse_getserverpublickeys(
    const quarn_scvpvalpolresponse *value);
/** clockSkew, 10 when the encoding has none. */
QUARN_ASN1_API quarn_asn1_integer *quarn_scvpvalpolresponse_getclockskew(
    const quarn_scvpvalpolresponse *value);
/** 1 when requestNonce is there. */
QUARN_ASN1_API int quarn_scvpvalpolresponse_hasrequestnonce(const quarn_scvpvalpolresponse *value);
/** requestNonce, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_scvpvalpolresponse_getrequestnonce(
    const quarn_scvpvalpolresponse *value);

#ifdef __cplusplus
}
#endif

#endif
