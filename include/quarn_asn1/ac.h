/* Generated from modules/ASN1_AC.asn1 by tools/generate.py; do not edit. */
/**
 * Attribute certificates (RFC 5755).
 *
 * Constructors copy their arguments and return null when a mandatory one is null or memory is
 * short. Getters lend: what they return lives as long as the value. Null for the value gives null
 * from a getter and 0 from a test. A component with a DEFAULT is always there once a value has been
 * made or decoded.
 *
 * A value is decoded, encoded, copied and freed under its type id by the functions of
 * quarn_asn1/core.h; free functions are there for each type as well. Lists are of the type
 * quarn_asn1_list.
 */
#ifndef QUARN_ASN1_AC_H
#define QUARN_ASN1_AC_H

#include "types.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- ObjectDigestInfo */

/**
 * The digest of an object: of a public key, a certificate, or something else.
 *
 *     ObjectDigestInfo ::= SEQUENCE {
 *         digestedObjectType  ENUMERATED,
 *         otherObjectTypeID   OBJECT IDENTIFIER OPTIONAL,
 *         digestAlgorithm     AlgorithmIdentifier,
 *         objectDigest        BIT STRING
 *     }
 *
 * Type id QUARN_ASN1_OBJECTDIGESTINFO (252).
 */
typedef struct quarn_objectdigestinfo quarn_objectdigestinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_OBJECTDIGESTINFO. */
QUARN_ASN1_API void quarn_objectdigestinfo_free(quarn_objectdigestinfo *value);
/** From its components. Null leaves out other_object_type_id. */
QUARN_ASN1_API quarn_objectdigestinfo *quarn_objectdigestinfo_new(
    const quarn_asn1_integer *digested_object_type,
    const quarn_asn1_oid *other_object_type_id,
    const quarn_x509algoid *digest_algorithm,
    const quarn_asn1_bitstring *object_digest);
/** digestedObjectType. */
QUARN_ASN1_API quarn_asn1_integer *quarn_objectdigestinfo_getdigestedobjecttype(
    const quarn_objectdigestinfo *value);
/** 1 when otherObjectTypeID is there. */
QUARN_ASN1_API int quarn_objectdigestinfo_hasotherobjecttypeid(const quarn_objectdigestinfo *value);
/** otherObjectTypeID, null when it is absent. */
QUARN_ASN1_API quarn_asn1_oid *quarn_objectdigestinfo_getotherobjecttypeid(
    const quarn_objectdigestinfo *value);
/** digestAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_objectdigestinfo_getdigestalgorithm(
    const quarn_objectdigestinfo *value);
/** objectDigest. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_objectdigestinfo_getobjectdigest(
    const quarn_objectdigestinfo *value);

/* ---- IssuerSerial */

/**
 * Names a certificate by its issuer and serial number.
 *
 *     IssuerSerial ::= SEQUENCE {
 *         issuer     GeneralNames,
 *         serial     INTEGER,
 *         issuerUID  BIT STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_ACISSUERSERIAL (253).
 */
typedef struct quarn_acissuerserial quarn_acissuerserial;
/** As quarn_asn1_value_free() under QUARN_ASN1_ACISSUERSERIAL. */
QUARN_ASN1_API void quarn_acissuerserial_free(quarn_acissuerserial *value);
/** From its components. Null leaves out issuer_uid. */
QUARN_ASN1_API quarn_acissuerserial *quarn_acissuerserial_new(
    const quarn_asn1_list *issuer,
    const quarn_asn1_integer *serial,
    const quarn_asn1_bitstring *issuer_uid);
/** issuer. */
QUARN_ASN1_API quarn_asn1_list *quarn_acissuerserial_getissuer(const quarn_acissuerserial *value);
/** serial. */
QUARN_ASN1_API quarn_asn1_integer *quarn_acissuerserial_getserial(
    const quarn_acissuerserial *value);
/** 1 when issuerUID is there. */
QUARN_ASN1_API int quarn_acissuerserial_hasissueruid(const quarn_acissuerserial *value);
/** issuerUID, null when it is absent. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_acissuerserial_getissueruid(
    const quarn_acissuerserial *value);

/* ---- V2Form */

/**
 * The issuer of an attribute certificate, in the form of version 2.
 *
 *     V2Form ::= SEQUENCE {
 *         issuerName         GeneralNames OPTIONAL,
 *         baseCertificateID  [0] IMPLICIT IssuerSerial OPTIONAL,
 *         objectDigestInfo   [1] IMPLICIT ObjectDigestInfo OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_ACV2FORM (255).
 */
typedef struct quarn_acv2form quarn_acv2form;
/** As quarn_asn1_value_free() under QUARN_ASN1_ACV2FORM. */
QUARN_ASN1_API void quarn_acv2form_free(quarn_acv2form *value);
/** From its components. Null leaves out issuer_name, base_certificate_id and object_digest_info. */
QUARN_ASN1_API quarn_acv2form *quarn_acv2form_new(const quarn_asn1_list *issuer_name,
                                                  const quarn_acissuerserial *base_certificate_id,
                                                  const quarn_objectdigestinfo *object_digest_info);
/** 1 when issuerName is there. */
QUARN_ASN1_API int quarn_acv2form_hasissuername(const quarn_acv2form *value);
/** issuerName, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_acv2form_getissuername(const quarn_acv2form *value);
/** 1 when baseCertificateID is there. */
QUARN_ASN1_API int quarn_acv2form_hasbasecertid(const quarn_acv2form *value);
/** baseCertificateID, null when it is absent. */
QUARN_ASN1_API quarn_acissuerserial *quarn_acv2form_getbasecertid(const quarn_acv2form *value);
/** 1 when objectDigestInfo is there. */
QUARN_ASN1_API int quarn_acv2form_hasobjectdigestinfo(const quarn_acv2form *value);
/** objectDigestInfo, null when it is absent. */
QUARN_ASN1_API quarn_objectdigestinfo *quarn_acv2form_getobjectdigestinfo(
    const quarn_acv2form *value);

/* ---- AttCertIssuer */

/**
 * The issuer of an attribute certificate.
 *
 *     AttCertIssuer ::= CHOICE {
 *         v1Form  GeneralNames,
 *         v2Form  [0] IMPLICIT V2Form
 *     }
 *
 * Type id QUARN_ASN1_ATTCERTISSUER (256).
 */
typedef struct quarn_attcertissuer quarn_attcertissuer;
/** As quarn_asn1_value_free() under QUARN_ASN1_ATTCERTISSUER. */
QUARN_ASN1_API void quarn_attcertissuer_free(quarn_attcertissuer *value);
/** Number of the alternative: 0 v1Form, 1 v2Form; all ones for null. */
QUARN_ASN1_API uint32_t quarn_attcertissuer_gettype(const quarn_attcertissuer *value);
/** The alternative v1Form. */
QUARN_ASN1_API quarn_attcertissuer *quarn_attcertissuer_newv1form(const quarn_asn1_list *v1_form);
/** v1Form, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_list *quarn_attcertissuer_getv1form(const quarn_attcertissuer *value);
/** The alternative v2Form. */
QUARN_ASN1_API quarn_attcertissuer *quarn_attcertissuer_newv2form(const quarn_acv2form *v2_form);
/** v2Form, null when it is another alternative. */
QUARN_ASN1_API quarn_acv2form *quarn_attcertissuer_getv2form(const quarn_attcertissuer *value);

/* ---- AttCertValidityPeriod */

/**
 * The time in which an attribute certificate may be relied on.
 *
 *     AttCertValidityPeriod ::= SEQUENCE {
 *         notBeforeTime  GeneralizedTime,
 *         notAfterTime   GeneralizedTime
 *     }
 *
 * Type id QUARN_ASN1_ATTCERTVALIDITYPERIOD (257).
 */
typedef struct quarn_attcertvalidityperiod quarn_attcertvalidityperiod;
/** As quarn_asn1_value_free() under QUARN_ASN1_ATTCERTVALIDITYPERIOD. */
QUARN_ASN1_API void quarn_attcertvalidityperiod_free(quarn_attcertvalidityperiod *value);
/** From its components. */
QUARN_ASN1_API quarn_attcertvalidityperiod *quarn_attcertvalidityperiod_new(
    const quarn_asn1_time *not_before_time, const quarn_asn1_time *not_after_time);
/** notBeforeTime. */
QUARN_ASN1_API quarn_asn1_time *quarn_attcertvalidityperiod_getnotbeforetime(
    const quarn_attcertvalidityperiod *value);
/** notAfterTime. */
QUARN_ASN1_API quarn_asn1_time *quarn_attcertvalidityperiod_getnotaftertime(
    const quarn_attcertvalidityperiod *value);

/* ---- TargetCert */

/**
 * A certificate as the target of an attribute certificate.
 *
 *     TargetCert ::= SEQUENCE {
 *         targetCertificate  IssuerSerial,
 *         targetName         GeneralName OPTIONAL,
 *         certDigestInfo     ObjectDigestInfo OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_AC_TARGETCERT (277).
 */
typedef struct quarn_ac_targetcert quarn_ac_targetcert;
/** As quarn_asn1_value_free() under QUARN_ASN1_AC_TARGETCERT. */
QUARN_ASN1_API void quarn_ac_targetcert_free(quarn_ac_targetcert *value);
/** From its components. Null leaves out target_name and cert_digest_info. */
QUARN_ASN1_API quarn_ac_targetcert *quarn_ac_targetcert_new(
    const quarn_acissuerserial *target_certificate,
    const quarn_x509generalname *target_name,
    const quarn_objectdigestinfo *cert_digest_info);
/** targetCertificate. */
QUARN_ASN1_API quarn_acissuerserial *quarn_ac_targetcert_gettargetcertificate(
    const quarn_ac_targetcert *value);
/** 1 when targetName is there. */
QUARN_ASN1_API int quarn_ac_targetcert_hastargetname(const quarn_ac_targetcert *value);
/** targetName, null when it is absent. */
QUARN_ASN1_API quarn_x509generalname *quarn_ac_targetcert_gettargetname(
    const quarn_ac_targetcert *value);
/** 1 when certDigestInfo is there. */
QUARN_ASN1_API int quarn_ac_targetcert_hascertdigestinfo(const quarn_ac_targetcert *value);
/** certDigestInfo, null when it is absent. */
QUARN_ASN1_API quarn_objectdigestinfo *quarn_ac_targetcert_getcertdigestinfo(
    const quarn_ac_targetcert *value);

#ifdef __cplusplus
}
#endif

#endif
