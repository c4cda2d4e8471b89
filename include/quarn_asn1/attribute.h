/* Generated from modules/ASN1_Attribute.asn1 by tools/generate.py; do not edit. */
/**
 * Attribute certificates and the values that they carry (RFC 5755).
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
#ifndef QUARN_ASN1_ATTRIBUTE_H
#define QUARN_ASN1_ATTRIBUTE_H

#include "extension.h"
#include "types.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- ObjectDigestInfo */

/**
 * The digest of a key or a certificate (RFC 5755, 4.2.2).
 *
 *     ObjectDigestInfo ::= SEQUENCE {
 *         digestedObjectType  ENUMERATED { publicKey(0), publicKeyCert(1), otherObjectTypes(2) },
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
 * Names a certificate by issuer and serial number (RFC 5755, 4.1).
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

/* ---- Holder */

/**
 * Whom the attributes belong to (RFC 5755, 4.2.2).
 *
 *     Holder ::= SEQUENCE {
 *         baseCertificateID  [0] IMPLICIT IssuerSerial OPTIONAL,
 *         entityName         [1] IMPLICIT GeneralNames OPTIONAL,
 *         objectDigestInfo   [2] IMPLICIT ObjectDigestInfo OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_HOLDER (254).
 */
typedef struct quarn_holder quarn_holder;
/** As quarn_asn1_value_free() under QUARN_ASN1_HOLDER. */
QUARN_ASN1_API void quarn_holder_free(quarn_holder *value);
/** From its components. Null leaves out base_certificate_id, entity_name and object_digest_info. */
QUARN_ASN1_API quarn_holder *quarn_holder_new(const quarn_acissuerserial *base_certificate_id,
                                              const quarn_asn1_list *entity_name,
                                              const quarn_objectdigestinfo *object_digest_info);
/** 1 when baseCertificateID is there. */
QUARN_ASN1_API int quarn_holder_hasbasecertid(const quarn_holder *value);
/** baseCertificateID, null when it is absent. */
QUARN_ASN1_API quarn_acissuerserial *quarn_holder_getbasecertid(const quarn_holder *value);
/** 1 when entityName is there. */
QUARN_ASN1_API int quarn_holder_hasbaseentityname(const quarn_holder *value);
/** entityName, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_holder_getbaseentityname(const quarn_holder *value);
/** 1 when objectDigestInfo is there. */
QUARN_ASN1_API int quarn_holder_hasobjectdigestinfo(const quarn_holder *value);
/** objectDigestInfo, null when it is absent. */
QUARN_ASN1_API quarn_objectdigestinfo *quarn_holder_getobjectdigestinfo(const quarn_holder *value);

/* ---- V2Form */

/**
 * Who issued an attribute certificate (RFC 5755, 4.2.3).
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
 * Who issued an attribute certificate: names of version 1, or a V2Form (RFC 5755, 4.1).
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
 * From when until when an attribute certificate is valid (RFC 5755, 4.2.6).
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

/* ---- AttributeCertificateAttributes */

/**
 * The attributes of an attribute certificate.
 *
 *     AttributeCertificateAttributes ::= SEQUENCE OF Attribute
 *
 * Type id QUARN_ASN1_ACATTRIBUTES (258). A quarn_asn1_list of Attribute (quarn_x500attribute).
 */
QUARN_ASN1_API void quarn_acattributes_free(quarn_asn1_list *value);

/* ---- AttributeCertificateInfo */

/**
 * The part of an attribute certificate that its issuer signs (RFC 5755, 4.1).
 *
 *     AttributeCertificateInfo ::= SEQUENCE {
 *         version                 INTEGER { v2(1) },
 *         holder                  Holder,
 *         issuer                  AttCertIssuer,
 *         signature               AlgorithmIdentifier,
 *         serialNumber            INTEGER,
 *         attrCertValidityPeriod  AttCertValidityPeriod,
 *         attributes              AttributeCertificateAttributes,
 *         issuerUniqueID          BIT STRING OPTIONAL,
 *         extensions              Extensions OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_ATTRIBUTECERTIFICATEINFO (259).
 */
typedef struct quarn_attributecertificateinfo quarn_attributecertificateinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_ATTRIBUTECERTIFICATEINFO. */
QUARN_ASN1_API void quarn_attributecertificateinfo_free(quarn_attributecertificateinfo *value);
/** From its components. Null leaves out issuer_unique_id and extensions. */
QUARN_ASN1_API quarn_attributecertificateinfo *quarn_attributecertificateinfo_new(
    const quarn_asn1_integer *version,
    const quarn_holder *holder,
    const quarn_attcertissuer *issuer,
    const quarn_x509algoid *signature,
    const quarn_asn1_integer *serial_number,
    const quarn_attcertvalidityperiod *attr_cert_validity_period,
    const quarn_asn1_list *attributes,
    const quarn_asn1_bitstring *issuer_unique_id,
    const quarn_asn1_list *extensions);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_attributecertificateinfo_getversion(
    const quarn_attributecertificateinfo *value);
/** holder. */
QUARN_ASN1_API quarn_holder *quarn_attributecertificateinfo_getholder(
    const quarn_attributecertificateinfo *value);
/** issuer. */
QUARN_ASN1_API quarn_attcertissuer *quarn_attributecertificateinfo_getissuer(
    const quarn_attributecertificateinfo *value);
/** signature. */
QUARN_ASN1_API quarn_x509algoid *quarn_attributecertificateinfo_getinnersignalgo(
    const quarn_attributecertificateinfo *value);
/** serialNumber. */
QUARN_ASN1_API quarn_asn1_integer *quarn_attributecertificateinfo_getserialno(
    const quarn_attributecertificateinfo *value);
/** attrCertValidityPeriod. */
QUARN_ASN1_API quarn_attcertvalidityperiod *
quarn_attributecertificateinfo_getattrcertvalidityperiod(
    const quarn_attributecertificateinfo *value);
/** attributes. */
QUARN_ASN1_API quarn_asn1_list *quarn_attributecertificateinfo_getattrs(
    const quarn_attributecertificateinfo *value);
/** 1 when issuerUniqueID is there. */
QUARN_ASN1_API int quarn_attributecertificateinfo_hasissueruid(
    const quarn_attributecertificateinfo *value);
/** issuerUniqueID, null when it is absent. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_attributecertificateinfo_getissueruid(
    const quarn_attributecertificateinfo *value);
/** 1 when extensions is there. */
QUARN_ASN1_API int quarn_attributecertificateinfo_hasexts(
    const quarn_attributecertificateinfo *value);
/** extensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_attributecertificateinfo_getexts(
    const quarn_attributecertificateinfo *value);

/* ---- AttributeCertificate */

/**
 * An attribute certificate (RFC 5755, 4.1). A decoded one keeps its octets and encodes to exactly
 * these.
 *
 *     AttributeCertificate ::= SEQUENCE {
 *         acinfo              AttributeCertificateInfo,
 *         signatureAlgorithm  AlgorithmIdentifier,
 *         signatureValue      BIT STRING
 *     }
 *
 * Type id QUARN_ASN1_ATTRIBUTECERTIFICATE (260).
 */
typedef struct quarn_attributecertificate quarn_attributecertificate;
/** As quarn_asn1_value_free() under QUARN_ASN1_ATTRIBUTECERTIFICATE. */
QUARN_ASN1_API void quarn_attributecertificate_free(quarn_attributecertificate *value);
/** acinfo. */
QUARN_ASN1_API quarn_attributecertificateinfo *quarn_attributecertificate_getacinfo(
    const quarn_attributecertificate *value);
/** signatureAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_attributecertificate_getsignalgo(
    const quarn_attributecertificate *value);
/** signatureValue. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_attributecertificate_getsignvalue(
    const quarn_attributecertificate *value);
/**
 * The octets of acinfo that were, or are to be, signed. length says how much room buffer has and
 * receives how many octets there are; a null buffer asks for no more. 0 when the room is too small,
 * length is null, or the value cannot be encoded.
 */
QUARN_ASN1_API int quarn_attributecertificate_gettbsocts(quarn_attributecertificate *value,
                                                         uint8_t *buffer,
                                                         uint64_t *length);
/**
 * An attribute certificate from its parts, which are copied. Its signatureAlgorithm is a copy of
 * the one inside acinfo.
 */
QUARN_ASN1_API quarn_attributecertificate *quarn_attributecertificate_new(
    const quarn_attributecertificateinfo *acinfo, const quarn_asn1_bitstring *signature);

/* ---- TargetCert */

/**
 * A certificate that an attribute certificate is meant for (RFC 5755, 4.3.2).
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

/* ---- Target */

/**
 * Whom an attribute certificate is meant for (RFC 5755, 4.3.2).
 *
 *     Target ::= CHOICE {
 *         targetName   [0] EXPLICIT GeneralName,
 *         targetGroup  [1] EXPLICIT GeneralName,
 *         targetCert   [2] IMPLICIT TargetCert
 *     }
 *
 * Type id QUARN_ASN1_AC_TARGET (278).
 */
typedef struct quarn_ac_target quarn_ac_target;
/** As quarn_asn1_value_free() under QUARN_ASN1_AC_TARGET. */
QUARN_ASN1_API void quarn_ac_target_free(quarn_ac_target *value);
/** Number of the alternative: 0 targetName, 1 targetGroup, 2 targetCert; all ones for null. */
QUARN_ASN1_API uint32_t quarn_ac_target_gettype(const quarn_ac_target *value);
/** The alternative targetName. */
QUARN_ASN1_API quarn_ac_target *quarn_ac_target_newname(const quarn_x509generalname *target_name);
/** targetName, null when it is another alternative. */
QUARN_ASN1_API quarn_x509generalname *quarn_ac_target_getname(const quarn_ac_target *value);
/** The alternative targetGroup. */
QUARN_ASN1_API quarn_ac_target *quarn_ac_target_newgroup(const quarn_x509generalname *target_group);
/** targetGroup, null when it is another alternative. */
QUARN_ASN1_API quarn_x509generalname *quarn_ac_target_getgroup(const quarn_ac_target *value);
/** The alternative targetCert. */
QUARN_ASN1_API quarn_ac_target *quarn_ac_target_newcert(const quarn_ac_targetcert *target_cert);
/** targetCert, null when it is another alternative. */
QUARN_ASN1_API quarn_ac_targetcert *quarn_ac_target_getcert(const quarn_ac_target *value);

/* ---- Targets */

/**
 * All that an attribute certificate is meant for.
 *
 *     Targets ::= SEQUENCE OF Target
 *
 * Type id QUARN_ASN1_AC_TARGETS (279). A quarn_asn1_list of Target (quarn_ac_target).
 */
QUARN_ASN1_API void quarn_ac_targets_free(quarn_asn1_list *value);

/* ---- SequenceOfTargets */

/**
 * Several lists of targets.
 *
 *     SequenceOfTargets ::= SEQUENCE OF Targets
 *
 * Type id QUARN_ASN1_AC_SEQOFTARGETS (289). A quarn_asn1_list of Targets (quarn_asn1_list).
 */
QUARN_ASN1_API void quarn_ac_seqoftargets_free(quarn_asn1_list *value);

/* ---- IetfAttrSyntaxValue */

/**
 * One value of an IetfAttrSyntax (RFC 5755, 4.4). string is held as a UTF8String and read as one,
 * but goes out under the tag of an OCTET STRING: verifiers in the field expect the octets of the
 * signer, who wrote it so. A copy, made by encoding and decoding, is therefore of the alternative
 * octets.
 *
 *     IetfAttrSyntaxValue ::= CHOICE {
 *         octets  OCTET STRING,
 *         oid     OBJECT IDENTIFIER,
 *         string  UTF8String
 *     }
 *
 * Type id QUARN_ASN1_AC_IETFATTRSYNTAXVALUE (281).
 */
typedef struct quarn_ac_ietfattrsyntaxvalue quarn_ac_ietfattrsyntaxvalue;
/** As quarn_asn1_value_free() under QUARN_ASN1_AC_IETFATTRSYNTAXVALUE. */
QUARN_ASN1_API void quarn_ac_ietfattrsyntaxvalue_free(quarn_ac_ietfattrsyntaxvalue *value);
/** Number of the alternative: 0 octets, 1 oid, 2 string; all ones for null. */
QUARN_ASN1_API uint32_t quarn_ac_ietfattrsyntaxvalue_gettype(
    const quarn_ac_ietfattrsyntaxvalue *value);
/** The alternative octets. */
QUARN_ASN1_API quarn_ac_ietfattrsyntaxvalue *quarn_ac_ietfattrsyntaxvalue_newoctets(
    const quarn_asn1_octetstring *octets);
/** octets, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ac_ietfattrsyntaxvalue_getoctets(
    const quarn_ac_ietfattrsyntaxvalue *value);
/** The alternative oid. */
QUARN_ASN1_API quarn_ac_ietfattrsyntaxvalue *quarn_ac_ietfattrsyntaxvalue_newoid(
    const quarn_asn1_oid *oid);
/** oid, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_oid *quarn_ac_ietfattrsyntaxvalue_getoid(
    const quarn_ac_ietfattrsyntaxvalue *value);
/** The alternative string. */
QUARN_ASN1_API quarn_ac_ietfattrsyntaxvalue *quarn_ac_ietfattrsyntaxvalue_newutf8(
    const quarn_asn1_octetstring *string);
/** string, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ac_ietfattrsyntaxvalue_getutf8(
    const quarn_ac_ietfattrsyntaxvalue *value);

/* ---- IetfAttrSyntaxValues */

/**
 * The values of an IetfAttrSyntax.
 *
 *     IetfAttrSyntaxValues ::= SEQUENCE OF IetfAttrSyntaxValue
 *
 * Type id QUARN_ASN1_AC_IETFATTRSYNTAXVALUES (282). A quarn_asn1_list of IetfAttrSyntaxValue
 * (quarn_ac_ietfattrsyntaxvalue).
 */
QUARN_ASN1_API void quarn_ac_ietfattrsyntaxvalues_free(quarn_asn1_list *value);

/* ---- IetfAttrSyntax */

/**
 * Values and who assigned them: groups, charging identities (RFC 5755, 4.4).
 *
 *     IetfAttrSyntax ::= SEQUENCE {
 *         policyAuthority  [0] IMPLICIT GeneralNames OPTIONAL,
 *         values           IetfAttrSyntaxValues
 *     }
 *
 * Type id QUARN_ASN1_AC_IETFATTRSYNTAX (280).
 */
typedef struct quarn_ac_ietfattrsyntax quarn_ac_ietfattrsyntax;
/** As quarn_asn1_value_free() under QUARN_ASN1_AC_IETFATTRSYNTAX. */
QUARN_ASN1_API void quarn_ac_ietfattrsyntax_free(quarn_ac_ietfattrsyntax *value);
/** From its components. Null leaves out policy_authority. */
QUARN_ASN1_API quarn_ac_ietfattrsyntax *quarn_ac_ietfattrsyntax_new(
    const quarn_asn1_list *policy_authority, const quarn_asn1_list *values);
/** 1 when policyAuthority is there. */
QUARN_ASN1_API int quarn_ac_ietfattrsyntax_haspolicyauthority(const quarn_ac_ietfattrsyntax *value);
/** policyAuthority, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ac_ietfattrsyntax_getpolicyauthority(
    const quarn_ac_ietfattrsyntax *value);
/** values. */
QUARN_ASN1_API quarn_asn1_list *quarn_ac_ietfattrsyntax_getvalues(
    const quarn_ac_ietfattrsyntax *value);

/* ---- SvceAuthInfo */

/**
 * How the holder is authenticated to a service (RFC 5755, 4.4.1).
 *
 *     SvceAuthInfo ::= SEQUENCE {
 *         service   GeneralName,
 *         ident     GeneralName,
 *         authInfo  OCTET STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_AC_SVCEAUTHINFO (283).
 */
typedef struct quarn_ac_svceauthinfo quarn_ac_svceauthinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_AC_SVCEAUTHINFO. */
QUARN_ASN1_API void quarn_ac_svceauthinfo_free(quarn_ac_svceauthinfo *value);
/** From its components. Null leaves out auth_info. */
QUARN_ASN1_API quarn_ac_svceauthinfo *quarn_ac_svceauthinfo_new(
    const quarn_x509generalname *service,
    const quarn_x509generalname *ident,
    const quarn_asn1_octetstring *auth_info);
/** service. */
QUARN_ASN1_API quarn_x509generalname *quarn_ac_svceauthinfo_getservice(
    const quarn_ac_svceauthinfo *value);
/** ident. */
QUARN_ASN1_API quarn_x509generalname *quarn_ac_svceauthinfo_getident(
    const quarn_ac_svceauthinfo *value);
/** 1 when authInfo is there. */
QUARN_ASN1_API int quarn_ac_svceauthinfo_hasauthinfo(const quarn_ac_svceauthinfo *value);
/** authInfo, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ac_svceauthinfo_getauthinfo(
    const quarn_ac_svceauthinfo *value);

/* ---- RoleSyntax */

/**
 * A role of the holder (RFC 5755, 4.4.5).
 *
 *     RoleSyntax ::= SEQUENCE {
 *         roleAuthority  [0] IMPLICIT GeneralNames OPTIONAL,
 *         roleName       [1] EXPLICIT GeneralName
 *     }
 *
 * Type id QUARN_ASN1_AC_ROLESYNTAX (284).
 */
typedef struct quarn_ac_rolesyntax quarn_ac_rolesyntax;
/** As quarn_asn1_value_free() under QUARN_ASN1_AC_ROLESYNTAX. */
QUARN_ASN1_API void quarn_ac_rolesyntax_free(quarn_ac_rolesyntax *value);
/** From its components. Null leaves out role_authority. */
QUARN_ASN1_API quarn_ac_rolesyntax *quarn_ac_rolesyntax_new(const quarn_asn1_list *role_authority,
                                                            const quarn_x509generalname *role_name);
/** 1 when roleAuthority is there. */
QUARN_ASN1_API int quarn_ac_rolesyntax_hasroleauthority(const quarn_ac_rolesyntax *value);
/** roleAuthority, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ac_rolesyntax_getroleauthority(
    const quarn_ac_rolesyntax *value);
/** roleName. */
QUARN_ASN1_API quarn_x509generalname *quarn_ac_rolesyntax_getrolename(
    const quarn_ac_rolesyntax *value);

/* ---- SecurityCategory */

/**
 * A category of a clearance (RFC 5755, 4.4.6).
 *
 *     SecurityCategory ::= SEQUENCE {
 *         type   [0] IMPLICIT OBJECT IDENTIFIER,
 *         value  [1] EXPLICIT ANY
 *     }
 *
 * Type id QUARN_ASN1_AC_SECURITYCATEGORY (285).
 */
typedef struct quarn_ac_securitycategory quarn_ac_securitycategory;
/** As quarn_asn1_value_free() under QUARN_ASN1_AC_SECURITYCATEGORY. */
QUARN_ASN1_API void quarn_ac_securitycategory_free(quarn_ac_securitycategory *value);
/** From its components. */
QUARN_ASN1_API quarn_ac_securitycategory *quarn_ac_securitycategory_new(
    const quarn_asn1_oid *type, const quarn_asn1_any *value);
/** type. */
QUARN_ASN1_API quarn_asn1_oid *quarn_ac_securitycategory_gettype(
    const quarn_ac_securitycategory *value);
/** value. */
QUARN_ASN1_API quarn_asn1_any *quarn_ac_securitycategory_getvalue(
    const quarn_ac_securitycategory *value);

/* ---- SecurityCategories */

/**
 * The categories of a clearance.
 *
 *     SecurityCategories ::= SET OF SecurityCategory
 *
 * Type id QUARN_ASN1_AC_SECURITYCATEGORIES (286). A quarn_asn1_list of SecurityCategory
 * (quarn_ac_securitycategory).
 */
QUARN_ASN1_API void quarn_ac_securitycategories_free(quarn_asn1_list *value);

/* ---- Clearance */

/**
 * What the holder is cleared for (RFC 5755, 4.4.6). classList is always written: callers compare
 * whole encodings, and its default has not been left out before.
 *
 *     Clearance ::= SEQUENCE {
 *         policyId            OBJECT IDENTIFIER,
 *         classList           ClassList,
 *         securityCategories  SecurityCategories OPTIONAL
 *     }
 *     ClassList ::= BIT STRING {
 *         unmarked(0), unclassified(1), restricted(2), confidential(3), secret(4), topSecret(5)
 *     }
 *
 * Type id QUARN_ASN1_AC_CLEARANCE (287).
 */
typedef struct quarn_ac_clearance quarn_ac_clearance;
/** As quarn_asn1_value_free() under QUARN_ASN1_AC_CLEARANCE. */
QUARN_ASN1_API void quarn_ac_clearance_free(quarn_ac_clearance *value);
/** From its components. Null leaves out security_categories. */
QUARN_ASN1_API quarn_ac_clearance *quarn_ac_clearance_new(
    const quarn_asn1_oid *policy_id,
    const quarn_asn1_bitstring *class_list,
    const quarn_asn1_list *security_categories);
/** policyId. */
QUARN_ASN1_API quarn_asn1_oid *quarn_ac_clearance_getpolicyid(const quarn_ac_clearance *value);
/** classList. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_ac_clearance_getclasslist(
    const quarn_ac_clearance *value);
/** 1 when securityCategories is there. */
QUARN_ASN1_API int quarn_ac_clearance_hassecuritycategories(const quarn_ac_clearance *value);
/** securityCategories, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ac_clearance_getsecuritycategories(
    const quarn_ac_clearance *value);

/* ---- ACClearAttrs */

/**
 * Attributes of the holder that are to be encrypted (RFC 5755, 7.1).
 *
 *     ACClearAttrs ::= SEQUENCE {
 *         acIssuer  GeneralName,
 *         acSerial  INTEGER,
 *         attrs     AttributeCertificateAttributes
 *     }
 *
 * Type id QUARN_ASN1_ACCLEARATTRS (288).
 */
typedef struct quarn_acclearattrs quarn_acclearattrs;
/** As quarn_asn1_value_free() under QUARN_ASN1_ACCLEARATTRS. */
QUARN_ASN1_API void quarn_acclearattrs_free(quarn_acclearattrs *value);
/** From its components. */
QUARN_ASN1_API quarn_acclearattrs *quarn_acclearattrs_new(const quarn_x509generalname *ac_issuer,
                                                          const quarn_asn1_integer *ac_serial,
                                                          const quarn_asn1_list *attrs);
/** acIssuer. */
QUARN_ASN1_API quarn_x509generalname *quarn_acclearattrs_getacissuer(
    const quarn_acclearattrs *value);
/** acSerial. */
QUARN_ASN1_API quarn_asn1_integer *quarn_acclearattrs_getacserial(const quarn_acclearattrs *value);
/** attrs. */
QUARN_ASN1_API quarn_asn1_list *quarn_acclearattrs_getattrs(const quarn_acclearattrs *value);

/* ---- AttrSpec */

/**
 * Kinds of attributes (RFC 5755, 7.4).
 *
 *     AttrSpec ::= SEQUENCE OF OBJECT IDENTIFIER
 *
 * Type id QUARN_ASN1_AC_ATTRSPEC (290). A quarn_asn1_list of OBJECT IDENTIFIER (quarn_asn1_oid).
 */
QUARN_ASN1_API void quarn_ac_attrspec_free(quarn_asn1_list *value);

/* ---- AAControls */

/**
 * Which attributes an authority may assert (RFC 5755, 7.4). Both lists are written under the same
 * primitive identifier 80, which is what peers of this library read: the first found is
 * permittedAttrs, the second excludedAttrs.
 *
 *     AAControls ::= SEQUENCE {
 *         pathLenConstraint  INTEGER OPTIONAL,
 *         permittedAttrs     [0] IMPLICIT AttrSpec OPTIONAL,
 *         excludedAttrs      [0] IMPLICIT AttrSpec OPTIONAL,
 *         permitUnSpecified  BOOLEAN DEFAULT TRUE
 *     }
 *
 * Type id QUARN_ASN1_AC_AACONTROLS (291).
 */
typedef struct quarn_ac_aacontrols quarn_ac_aacontrols;
/** As quarn_asn1_value_free() under QUARN_ASN1_AC_AACONTROLS. */
QUARN_ASN1_API void quarn_ac_aacontrols_free(quarn_ac_aacontrols *value);
/**
 * From its components. Null leaves out path_len_constraint, permitted_attrs and excluded_attrs, and
 * stands for the default of permit_un_specified (TRUE).
 */
QUARN_ASN1_API quarn_ac_aacontrols *quarn_ac_aacontrols_new(
    const quarn_asn1_integer *path_len_constraint,
    const quarn_asn1_list *permitted_attrs,
    const quarn_asn1_list *excluded_attrs,
    const quarn_asn1_boolean *permit_un_specified);
/** 1 when pathLenConstraint is there. */
QUARN_ASN1_API int quarn_ac_aacontrols_haspathlenconstraint(const quarn_ac_aacontrols *value);
/** pathLenConstraint, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ac_aacontrols_getpathlenconstraint(
    const quarn_ac_aacontrols *value);
/** 1 when permittedAttrs is there. */
QUARN_ASN1_API int quarn_ac_aacontrols_haspermittedattrs(const quarn_ac_aacontrols *value);
/** permittedAttrs, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ac_aacontrols_getpermittedattrs(
    const quarn_ac_aacontrols *value);
/** 1 when excludedAttrs is there. */
QUARN_ASN1_API int quarn_ac_aacontrols_hasexcludedattrs(const quarn_ac_aacontrols *value);
/** excludedAttrs, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ac_aacontrols_getexcludedattrs(
    const quarn_ac_aacontrols *value);
/** permitUnSpecified, TRUE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_ac_aacontrols_getpermitunspecified(
    const quarn_ac_aacontrols *value);

#ifdef __cplusplus
}
#endif

#endif
