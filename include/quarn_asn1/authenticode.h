/* Generated from modules/ASN1_Authenticode.asn1 by tools/generate.py; do not edit. */
/**
 * Signatures of program files ("Windows Authenticode Portable Executable Signature Format").
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
#ifndef QUARN_ASN1_AUTHENTICODE_H
#define QUARN_ASN1_AUTHENTICODE_H

#include "cms.h"
#include "types.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- SpcAttributeTypeAndOptionalValue */

/**
 * A type and perhaps a value. The document has the value under a tag [0]; in signatures it stands
 * without, and is of any type here.
 *
 *     SpcAttributeTypeAndOptionalValue ::= SEQUENCE {
 *         type   OBJECT IDENTIFIER,
 *         value  ANY OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_AUTHENTICODE_SPCATTRTYPEANDOPTVALUE (214).
 */
typedef struct quarn_authenticode_spcattrtypeandoptvalue quarn_authenticode_spcattrtypeandoptvalue;
/** As quarn_asn1_value_free() under QUARN_ASN1_AUTHENTICODE_SPCATTRTYPEANDOPTVALUE. */
QUARN_ASN1_API void quarn_authenticode_spcattrtypeandoptvalue_free(
    quarn_authenticode_spcattrtypeandoptvalue *value);
/** From its components. Null leaves out value. */
QUARN_ASN1_API quarn_authenticode_spcattrtypeandoptvalue *
quarn_authenticode_spcattrtypeandoptvalue_new(const quarn_asn1_oid *type,
                                              const quarn_asn1_any *value);
/** type. */
QUARN_ASN1_API quarn_asn1_oid *quarn_authenticode_spcattrtypeandoptvalue_gettype(
    const quarn_authenticode_spcattrtypeandoptvalue *value);
/** 1 when value is there. */
QUARN_ASN1_API int quarn_authenticode_spcattrtypeandoptvalue_hasvalue(
    const quarn_authenticode_spcattrtypeandoptvalue *value);
/** value, null when it is absent. */
QUARN_ASN1_API quarn_asn1_any *quarn_authenticode_spcattrtypeandoptvalue_getvalue(
    const quarn_authenticode_spcattrtypeandoptvalue *value);

/* ---- SpcIndirectDataContent */

/**
 * What is signed: a kind of file, and its digest.
 *
 *     SpcIndirectDataContent ::= SEQUENCE {
 *         data           SpcAttributeTypeAndOptionalValue,
 *         messageDigest  DigestInfo
 *     }
 *
 * Type id QUARN_ASN1_AUTHENTICODE_SPCINDIRECTDATACONTENT (208).
 */
typedef struct quarn_authenticode_spcindirectdatacontent quarn_authenticode_spcindirectdatacontent;
/** As quarn_asn1_value_free() under QUARN_ASN1_AUTHENTICODE_SPCINDIRECTDATACONTENT. */
QUARN_ASN1_API void quarn_authenticode_spcindirectdatacontent_free(
    quarn_authenticode_spcindirectdatacontent *value);
/** From its components. */
QUARN_ASN1_API quarn_authenticode_spcindirectdatacontent *
quarn_authenticode_spcindirectdatacontent_new(const quarn_authenticode_spcattrtypeandoptvalue *data,
                                              const quarn_pkcsdigestinfo *message_digest);
/** data. */
QUARN_ASN1_API quarn_authenticode_spcattrtypeandoptvalue *
quarn_authenticode_spcindirectdatacontent_getdata(
    const quarn_authenticode_spcindirectdatacontent *value);
/** messageDigest. */
QUARN_ASN1_API quarn_pkcsdigestinfo *quarn_authenticode_spcindirectdatacontent_getmsgdigest(
    const quarn_authenticode_spcindirectdatacontent *value);

/* ---- SpcSerializedObject */

/**
 * Data of a class, which a UUID of 16 octets names.
 *
 *     SpcSerializedObject ::= SEQUENCE {
 *         classId         OCTET STRING,
 *         serializedData  OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_AUTHENTICODE_SPCSERIALIZEDOBJECT (209).
 */
typedef struct quarn_authenticode_spcserializedobject quarn_authenticode_spcserializedobject;
/** As quarn_asn1_value_free() under QUARN_ASN1_AUTHENTICODE_SPCSERIALIZEDOBJECT. */
QUARN_ASN1_API void quarn_authenticode_spcserializedobject_free(
    quarn_authenticode_spcserializedobject *value);
/** From its components. */
QUARN_ASN1_API quarn_authenticode_spcserializedobject *quarn_authenticode_spcserializedobject_new(
    const quarn_asn1_octetstring *class_id, const quarn_asn1_octetstring *serialized_data);
/** classId. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_authenticode_spcserializedobject_getclassid(
    const quarn_authenticode_spcserializedobject *value);
/** serializedData. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_authenticode_spcserializedobject_getserializeddata(
    const quarn_authenticode_spcserializedobject *value);

/* ---- SpcString */

/**
 * Text.
 *
 *     SpcString ::= CHOICE {
 *         unicode  [0] IMPLICIT BMPString,
 *         ascii    [1] IMPLICIT IA5String
 *     }
 *
 * Type id QUARN_ASN1_AUTHENTICODE_SPCSTRING (210).
 */
typedef struct quarn_authenticode_spcstring quarn_authenticode_spcstring;
/** As quarn_asn1_value_free() under QUARN_ASN1_AUTHENTICODE_SPCSTRING. */
QUARN_ASN1_API void quarn_authenticode_spcstring_free(quarn_authenticode_spcstring *value);
/** Number of the alternative: 0 unicode, 1 ascii; all ones for null. */
QUARN_ASN1_API uint32_t quarn_authenticode_spcstring_gettype(
    const quarn_authenticode_spcstring *value);
/** The alternative unicode. */
QUARN_ASN1_API quarn_authenticode_spcstring *quarn_authenticode_spcstring_newunicode(
    const quarn_asn1_octetstring *unicode);
/** unicode, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_authenticode_spcstring_getunicode(
    const quarn_authenticode_spcstring *value);
/** The alternative ascii. */
QUARN_ASN1_API quarn_authenticode_spcstring *quarn_authenticode_spcstring_newascii(
    const quarn_asn1_octetstring *ascii);
/** ascii, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_authenticode_spcstring_getascii(
    const quarn_authenticode_spcstring *value);

/* ---- SpcLink */

/**
 * Where something is.
 *
 *     SpcLink ::= CHOICE {
 *         url      [0] IMPLICIT IA5String,
 *         moniker  [1] IMPLICIT SpcSerializedObject,
 *         file     [2] EXPLICIT SpcString
 *     }
 *
 * Type id QUARN_ASN1_AUTHENTICODE_SPCLINK (211).
 */
typedef struct quarn_authenticode_spclink quarn_authenticode_spclink;
/** As quarn_asn1_value_free() under QUARN_ASN1_AUTHENTICODE_SPCLINK. */
QUARN_ASN1_API void quarn_authenticode_spclink_free(quarn_authenticode_spclink *value);
/** Number of the alternative: 0 url, 1 moniker, 2 file; all ones for null. */
QUARN_ASN1_API uint32_t quarn_authenticode_spclink_gettype(const quarn_authenticode_spclink *value);
/** The alternative url. */
QUARN_ASN1_API quarn_authenticode_spclink *quarn_authenticode_spclink_newurl(
    const quarn_asn1_octetstring *url);
/** url, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_authenticode_spclink_geturl(
    const quarn_authenticode_spclink *value);
/** The alternative moniker. */
QUARN_ASN1_API quarn_authenticode_spclink *quarn_authenticode_spclink_newmoniker(
    const quarn_authenticode_spcserializedobject *moniker);
/** moniker, null when it is another alternative. */
QUARN_ASN1_API quarn_authenticode_spcserializedobject *quarn_authenticode_spclink_getmoniker(
    const quarn_authenticode_spclink *value);
/** The alternative file. */
QUARN_ASN1_API quarn_authenticode_spclink *quarn_authenticode_spclink_newfile(
    const quarn_authenticode_spcstring *file);
/** file, null when it is another alternative. */
QUARN_ASN1_API quarn_authenticode_spcstring *quarn_authenticode_spclink_getfile(
    const quarn_authenticode_spclink *value);

/* ---- SpcPeImageData */

/**
 * Which parts of a file the digest is over. Absent flags mean the resources, bit 0. They are
 * written as they are given, since signers write the default, too, and leaving it out would change
 * what they signed.
 *
 *     SpcPeImageData ::= SEQUENCE {
 *         flags  BIT STRING OPTIONAL,
 *         file   [0] EXPLICIT SpcLink OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_AUTHENTICODE_SPCPEIMAGEDATA (212).
 */
typedef struct quarn_authenticode_spcpeimagedata quarn_authenticode_spcpeimagedata;
/** As quarn_asn1_value_free() under QUARN_ASN1_AUTHENTICODE_SPCPEIMAGEDATA. */
QUARN_ASN1_API void quarn_authenticode_spcpeimagedata_free(
    quarn_authenticode_spcpeimagedata *value);
/** From its components. Null leaves out flags and file. */
QUARN_ASN1_API quarn_authenticode_spcpeimagedata *quarn_authenticode_spcpeimagedata_new(
    const quarn_asn1_bitstring *flags, const quarn_authenticode_spclink *file);
/** 1 when flags is there. */
QUARN_ASN1_API int quarn_authenticode_spcpeimagedata_hasflags(
    const quarn_authenticode_spcpeimagedata *value);
/** flags, null when it is absent. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_authenticode_spcpeimagedata_getflags(
    const quarn_authenticode_spcpeimagedata *value);
/** 1 when file is there. */
QUARN_ASN1_API int quarn_authenticode_spcpeimagedata_hasfile(
    const quarn_authenticode_spcpeimagedata *value);
/** file, null when it is absent. */
QUARN_ASN1_API quarn_authenticode_spclink *quarn_authenticode_spcpeimagedata_getfile(
    const quarn_authenticode_spcpeimagedata *value);

/* ---- SpcSpOpusInfo */

/**
 * The name of a program, and where there is more about it.
 *
 *     SpcSpOpusInfo ::= SEQUENCE {
 *         programName  [0] EXPLICIT SpcString OPTIONAL,
 *         moreInfo     [1] EXPLICIT SpcLink OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_AUTHENTICODE_SPCSPOPUSINFO (213).
 */
typedef struct quarn_authenticode_spcspopusinfo quarn_authenticode_spcspopusinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_AUTHENTICODE_SPCSPOPUSINFO. */
QUARN_ASN1_API void quarn_authenticode_spcspopusinfo_free(quarn_authenticode_spcspopusinfo *value);
/** From its components. Null leaves out program_name and more_info. */
QUARN_ASN1_API quarn_authenticode_spcspopusinfo *quarn_authenticode_spcspopusinfo_new(
    const quarn_authenticode_spcstring *program_name, const quarn_authenticode_spclink *more_info);
/** 1 when programName is there. */
QUARN_ASN1_API int quarn_authenticode_spcspopusinfo_hasprogramname(
    const quarn_authenticode_spcspopusinfo *value);
/** programName, null when it is absent. */
QUARN_ASN1_API quarn_authenticode_spcstring *quarn_authenticode_spcspopusinfo_getprogramname(
    const quarn_authenticode_spcspopusinfo *value);
/** 1 when moreInfo is there. */
QUARN_ASN1_API int quarn_authenticode_spcspopusinfo_hasmoreinfo(
    const quarn_authenticode_spcspopusinfo *value);
/** moreInfo, null when it is absent. */
QUARN_ASN1_API quarn_authenticode_spclink *quarn_authenticode_spcspopusinfo_getmoreinfo(
    const quarn_authenticode_spcspopusinfo *value);

/* ---- TimeStampRequest */

/**
 * A request for a time-stamp in the older protocol.
 *
 *     TimeStampRequest ::= SEQUENCE {
 *         countersignatureType  OBJECT IDENTIFIER,
 *         attributes            Attributes OPTIONAL,
 *         content               ContentInfo
 *     }
 *
 * Type id QUARN_ASN1_AUTHENTICODE_TIMESTAMPREQ (215).
 */
typedef struct quarn_authenticode_timestampreq quarn_authenticode_timestampreq;
/** As quarn_asn1_value_free() under QUARN_ASN1_AUTHENTICODE_TIMESTAMPREQ. */
QUARN_ASN1_API void quarn_authenticode_timestampreq_free(quarn_authenticode_timestampreq *value);
/** From its components. Null leaves out attributes. */
QUARN_ASN1_API quarn_authenticode_timestampreq *quarn_authenticode_timestampreq_new(
    const quarn_asn1_oid *countersignature_type,
    const quarn_asn1_list *attributes,
    const quarn_pkcs7contentinfo *content);
/** countersignatureType. */
QUARN_ASN1_API quarn_asn1_oid *quarn_authenticode_timestampreq_getcountersigntype(
    const quarn_authenticode_timestampreq *value);
/** 1 when attributes is there. */
QUARN_ASN1_API int quarn_authenticode_timestampreq_hasattrs(
    const quarn_authenticode_timestampreq *value);
/** attributes, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_authenticode_timestampreq_getattrs(
    const quarn_authenticode_timestampreq *value);
/** content. */
QUARN_ASN1_API quarn_pkcs7contentinfo *quarn_authenticode_timestampreq_getcontent(
    const quarn_authenticode_timestampreq *value);

#ifdef __cplusplus
}
#endif

#endif
