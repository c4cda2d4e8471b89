/* Generated from modules/ASN1_SES.asn1 by tools/generate.py; do not edit. */
/**
 * Electronic seals and what is signed with them: the earlier form (GM/T 0031) and the later one
 * (GB/T 38540), whose functions are called quarn_gb_ses_. The later one shares header, picture and
 * extensions, has GeneralizedTime for UTCTime, certificates or digests of them, and the signer's
 * certificate outside of what is signed. Functions misspelt in places are called so by callers.
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
#ifndef QUARN_ASN1_SES_H
#define QUARN_ASN1_SES_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- ExtData */

/**
 * An extension of a seal (GM/T 0031, GB/T 38540).
 *
 *     ExtData ::= SEQUENCE {
 *         extnID     OBJECT IDENTIFIER,
 *         critical   BOOLEAN DEFAULT FALSE,
 *         extnValue  OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_SES_EXTDATA (402).
 */
typedef struct quarn_ses_extdata quarn_ses_extdata;
/** As quarn_asn1_value_free() under QUARN_ASN1_SES_EXTDATA. */
QUARN_ASN1_API void quarn_ses_extdata_free(quarn_ses_extdata *value);
/** From its components. Null stands for the default of critical (FALSE). */
QUARN_ASN1_API quarn_ses_extdata *quarn_ses_extdata_new(const quarn_asn1_oid *extn_id,
                                                        const quarn_asn1_boolean *critical,
                                                        const quarn_asn1_octetstring *extn_value);
/** extnID. */
QUARN_ASN1_API quarn_asn1_oid *quarn_ses_extdata_getextnid(const quarn_ses_extdata *value);
/** critical, FALSE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_ses_extdata_getcritical(const quarn_ses_extdata *value);
/** extnValue. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ses_extdata_getextnvalue(
    const quarn_ses_extdata *value);

/* ---- ExtensionDatas */

/**
 * The extensions of a seal (GM/T 0031, GB/T 38540).
 *
 *     ExtensionDatas ::= SEQUENCE OF ExtData
 *
 * Type id QUARN_ASN1_SES_EXTDATAS (403). A quarn_asn1_list of ExtData (quarn_ses_extdata).
 */
QUARN_ASN1_API void quarn_ses_extdatas_free(quarn_asn1_list *value);

/* ---- SES-Header */

/**
 * What kind of seal it is, and who makes such seals (GM/T 0031, GB/T 38540).
 *
 *     SES-Header ::= SEQUENCE {
 *         id       IA5String,
 *         version  INTEGER,
 *         vid      IA5String
 *     }
 *
 * Type id QUARN_ASN1_SES_HEADER (404).
 */
typedef struct quarn_ses_header quarn_ses_header;
/** As quarn_asn1_value_free() under QUARN_ASN1_SES_HEADER. */
QUARN_ASN1_API void quarn_ses_header_free(quarn_ses_header *value);
/** From its components. */
QUARN_ASN1_API quarn_ses_header *quarn_ses_header_new(const quarn_asn1_octetstring *id,
                                                      const quarn_asn1_integer *version,
                                                      const quarn_asn1_octetstring *vid);
/** id. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ses_header_getid(const quarn_ses_header *value);
/** vid. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ses_header_getvid(const quarn_ses_header *value);
/** The version; null for null. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ses_header_geversion(const quarn_ses_header *value);

/* ---- SES-ESPropertyInfo */

/**
 * Whose seal it is, and how long (GM/T 0031).
 *
 *     SES-ESPropertyInfo ::= SEQUENCE {
 *         type        INTEGER,
 *         name        UTF8String,
 *         certList    OctetStrings,
 *         createDate  UTCTime,
 *         validStart  UTCTime,
 *         validEnd    UTCTime
 *     }
 *
 * Type id QUARN_ASN1_SES_ESPROPERTYINFO (405).
 */
typedef struct quarn_ses_espropertyinfo quarn_ses_espropertyinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_SES_ESPROPERTYINFO. */
QUARN_ASN1_API void quarn_ses_espropertyinfo_free(quarn_ses_espropertyinfo *value);
/** From its components. */
QUARN_ASN1_API quarn_ses_espropertyinfo *quarn_ses_espropertyinfo_new(
    const quarn_asn1_integer *type,
    const quarn_asn1_octetstring *name,
    const quarn_asn1_list *cert_list,
    const quarn_asn1_time *create_date,
    const quarn_asn1_time *valid_start,
    const quarn_asn1_time *valid_end);
/** type. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ses_espropertyinfo_gettype(
    const quarn_ses_espropertyinfo *value);
/** name. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ses_espropertyinfo_getname(
    const quarn_ses_espropertyinfo *value);
/** certList. */
QUARN_ASN1_API quarn_asn1_list *quarn_ses_espropertyinfo_getcertlist(
    const quarn_ses_espropertyinfo *value);
/** createDate. */
QUARN_ASN1_API quarn_asn1_time *quarn_ses_espropertyinfo_getcreatedate(
    const quarn_ses_espropertyinfo *value);
/** validStart. */
QUARN_ASN1_API quarn_asn1_time *quarn_ses_espropertyinfo_getvalidstart(
    const quarn_ses_espropertyinfo *value);
/** validEnd. */
QUARN_ASN1_API quarn_asn1_time *quarn_ses_espropertyinfo_getvalidend(
    const quarn_ses_espropertyinfo *value);

/* ---- SES-ESPictureInfo */

/**
 * The picture of a seal (GM/T 0031, GB/T 38540).
 *
 *     SES-ESPictureInfo ::= SEQUENCE {
 *         type    IA5String,
 *         data    OCTET STRING,
 *         width   INTEGER,
 *         height  INTEGER
 *     }
 *
 * Type id QUARN_ASN1_SES_ESPICTUREINFO (406).
 */
typedef struct quarn_ses_espictureinfo quarn_ses_espictureinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_SES_ESPICTUREINFO. */
QUARN_ASN1_API void quarn_ses_espictureinfo_free(quarn_ses_espictureinfo *value);
/** From its components. */
QUARN_ASN1_API quarn_ses_espictureinfo *quarn_ses_espictureinfo_new(
    const quarn_asn1_octetstring *type,
    const quarn_asn1_octetstring *data,
    const quarn_asn1_integer *width,
    const quarn_asn1_integer *height);
/** type. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ses_espictureinfo_gettype(
    const quarn_ses_espictureinfo *value);
/** data. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ses_espictureinfo_getdata(
    const quarn_ses_espictureinfo *value);
/** width. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ses_espictureinfo_getwidth(
    const quarn_ses_espictureinfo *value);
/** height. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ses_espictureinfo_getheigth(
    const quarn_ses_espictureinfo *value);

/* ---- SES-SealInfo */

/**
 * A seal without the signature of its maker (GM/T 0031). The extensions have no tag of their own.
 *
 *     SES-SealInfo ::= SEQUENCE {
 *         header    SES-Header,
 *         esID      IA5String,
 *         property  SES-ESPropertyInfo,
 *         picture   SES-ESPictureInfo,
 *         extDatas  ExtensionDatas OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_SES_SEALINFO (407).
 */
typedef struct quarn_ses_sealinfo quarn_ses_sealinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_SES_SEALINFO. */
QUARN_ASN1_API void quarn_ses_sealinfo_free(quarn_ses_sealinfo *value);
/** From its components. Null leaves out ext_datas. */
QUARN_ASN1_API quarn_ses_sealinfo *quarn_ses_sealinfo_new(const quarn_ses_header *header,
                                                          const quarn_asn1_octetstring *es_id,
                                                          const quarn_ses_espropertyinfo *property,
                                                          const quarn_ses_espictureinfo *picture,
                                                          const quarn_asn1_list *ext_datas);
/** header. */
QUARN_ASN1_API quarn_ses_header *quarn_ses_sealinfo_getheader(const quarn_ses_sealinfo *value);
/** esID. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ses_sealinfo_getesid(const quarn_ses_sealinfo *value);
/** property. */
QUARN_ASN1_API quarn_ses_espropertyinfo *quarn_ses_sealinfo_getproperty(
    const quarn_ses_sealinfo *value);
/** picture. */
QUARN_ASN1_API quarn_ses_espictureinfo *quarn_ses_sealinfo_getpicture(
    const quarn_ses_sealinfo *value);
/** 1 when extDatas is there. */
QUARN_ASN1_API int quarn_ses_sealinfo_hasextdatas(const quarn_ses_sealinfo *value);
/** extDatas, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ses_sealinfo_getextdatas(const quarn_ses_sealinfo *value);

/* ---- SES-SignInfo */

/**
 * The signature of a seal's maker (GM/T 0031).
 *
 *     SES-SignInfo ::= SEQUENCE {
 *         cert                OCTET STRING,
 *         signatureAlgorithm  OBJECT IDENTIFIER,
 *         signData            BIT STRING
 *     }
 *
 * Type id QUARN_ASN1_SES_SIGNINFO (408).
 */
typedef struct quarn_ses_signinfo quarn_ses_signinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_SES_SIGNINFO. */
QUARN_ASN1_API void quarn_ses_signinfo_free(quarn_ses_signinfo *value);
/** From its components. */
QUARN_ASN1_API quarn_ses_signinfo *quarn_ses_signinfo_new(const quarn_asn1_octetstring *cert,
                                                          const quarn_asn1_oid *signature_algorithm,
                                                          const quarn_asn1_bitstring *sign_data);
/** cert. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ses_signinfo_getcert(const quarn_ses_signinfo *value);
/** signatureAlgorithm. */
QUARN_ASN1_API quarn_asn1_oid *quarn_ses_signinfo_getsignaturealgorithm(
    const quarn_ses_signinfo *value);
/** signData. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_ses_signinfo_getsigndata(
    const quarn_ses_signinfo *value);

/* ---- SES-SealTBS */

/**
 * What a seal's maker signs (GM/T 0031).
 *
 *     SES-SealTBS ::= SEQUENCE {
 *         eSealInfo           SES-SealInfo,
 *         cert                OCTET STRING,
 *         signatureAlgorithm  OBJECT IDENTIFIER
 *     }
 *
 * Type id QUARN_ASN1_SES_SESEALTBS (409).
 */
typedef struct quarn_ses_sesealtbs quarn_ses_sesealtbs;
/** As quarn_asn1_value_free() under QUARN_ASN1_SES_SESEALTBS. */
QUARN_ASN1_API void quarn_ses_sesealtbs_free(quarn_ses_sesealtbs *value);
/** From its components. */
QUARN_ASN1_API quarn_ses_sesealtbs *quarn_ses_sesealtbs_new(
    const quarn_ses_sealinfo *e_seal_info,
    const quarn_asn1_octetstring *cert,
    const quarn_asn1_oid *signature_algorithm);
/** eSealInfo. */
QUARN_ASN1_API quarn_ses_sealinfo *quarn_ses_sesealtbs_getesealinfo(
    const quarn_ses_sesealtbs *value);
/** cert. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ses_sesealtbs_getcert(
    const quarn_ses_sesealtbs *value);
/** signatureAlgorithm. */
QUARN_ASN1_API quarn_asn1_oid *quarn_ses_sesealtbs_getsignaturealgorithm(
    const quarn_ses_sesealtbs *value);

/* ---- SESeal */

/**
 * A seal (GM/T 0031).
 *
 *     SESeal ::= SEQUENCE {
 *         eSealInfo  SES-SealInfo,
 *         signInfo   SES-SignInfo
 *     }
 *
 * Type id QUARN_ASN1_SES_SESEAL (410).
 */
typedef struct quarn_ses_seseal quarn_ses_seseal;
/** As quarn_asn1_value_free() under QUARN_ASN1_SES_SESEAL. */
QUARN_ASN1_API void quarn_ses_seseal_free(quarn_ses_seseal *value);
/** From its components. */
QUARN_ASN1_API quarn_ses_seseal *quarn_ses_seseal_new(const quarn_ses_sealinfo *e_seal_info,
                                                      const quarn_ses_signinfo *sign_info);
/** eSealInfo. */
QUARN_ASN1_API quarn_ses_sealinfo *quarn_ses_seseal_getesealinfo(const quarn_ses_seseal *value);
/** signInfo. */
QUARN_ASN1_API quarn_ses_signinfo *quarn_ses_seseal_getsigninfo(const quarn_ses_seseal *value);

/* ---- SES-TBSSign */

/**
 * What is signed with a seal (GM/T 0031).
 *
 *     SES-TBSSign ::= SEQUENCE {
 *         version             INTEGER,
 *         eseal               SESeal,
 *         timeInfo            BIT STRING,
 *         dataHash            BIT STRING,
 *         propertyInfo        IA5String,
 *         cert                OCTET STRING,
 *         signatureAlgorithm  OBJECT IDENTIFIER
 *     }
 *
 * Type id QUARN_ASN1_SES_TBSSIGN (411).
 */
typedef struct quarn_ses_tbssign quarn_ses_tbssign;
/** As quarn_asn1_value_free() under QUARN_ASN1_SES_TBSSIGN. */
QUARN_ASN1_API void quarn_ses_tbssign_free(quarn_ses_tbssign *value);
/** From its components. */
QUARN_ASN1_API quarn_ses_tbssign *quarn_ses_tbssign_new(const quarn_asn1_integer *version,
                                                        const quarn_ses_seseal *eseal,
                                                        const quarn_asn1_bitstring *time_info,
                                                        const quarn_asn1_bitstring *data_hash,
                                                        const quarn_asn1_octetstring *property_info,
                                                        const quarn_asn1_octetstring *cert,
                                                        const quarn_asn1_oid *signature_algorithm);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ses_tbssign_getversion(const quarn_ses_tbssign *value);
/** eseal. */
QUARN_ASN1_API quarn_ses_seseal *quarn_ses_tbssign_geteseal(const quarn_ses_tbssign *value);
/** timeInfo. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_ses_tbssign_gettimeinfo(const quarn_ses_tbssign *value);
/** dataHash. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_ses_tbssign_getdatahash(const quarn_ses_tbssign *value);
/** propertyInfo. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ses_tbssign_getpropertyinfo(
    const quarn_ses_tbssign *value);
/** cert. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ses_tbssign_getcert(const quarn_ses_tbssign *value);
/** signatureAlgorithm. */
QUARN_ASN1_API quarn_asn1_oid *quarn_ses_tbssign_getsignaturealgorithm(
    const quarn_ses_tbssign *value);

/* ---- SES-Signature */

/**
 * A signature with a seal (GM/T 0031).
 *
 *     SES-Signature ::= SEQUENCE {
 *         toSign     SES-TBSSign,
 *         signature  BIT STRING
 *     }
 *
 * Type id QUARN_ASN1_SES_SIGNATURE (412).
 */
typedef struct quarn_ses_signature quarn_ses_signature;
/** As quarn_asn1_value_free() under QUARN_ASN1_SES_SIGNATURE. */
QUARN_ASN1_API void quarn_ses_signature_free(quarn_ses_signature *value);
/** From its components. */
QUARN_ASN1_API quarn_ses_signature *quarn_ses_signature_new(const quarn_ses_tbssign *to_sign,
                                                            const quarn_asn1_bitstring *signature);
/** toSign. */
QUARN_ASN1_API quarn_ses_tbssign *quarn_ses_signature_gettosign(const quarn_ses_signature *value);
/** signature. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_ses_signature_getsignature(
    const quarn_ses_signature *value);

/* ---- CertDigestObj */

/**
 * The digest of a certificate (GB/T 38540).
 *
 *     CertDigestObj ::= SEQUENCE {
 *         type   PrintableString,
 *         value  OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_SES_CERTDIGESTOBJ (413).
 */
typedef struct quarn_ses_certdigestobj quarn_ses_certdigestobj;
/** As quarn_asn1_value_free() under QUARN_ASN1_SES_CERTDIGESTOBJ. */
QUARN_ASN1_API void quarn_ses_certdigestobj_free(quarn_ses_certdigestobj *value);
/** From its components. */
QUARN_ASN1_API quarn_ses_certdigestobj *quarn_ses_certdigestobj_new(
    const quarn_asn1_octetstring *type, const quarn_asn1_octetstring *value);
/** type. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ses_certdigestobj_gettype(
    const quarn_ses_certdigestobj *value);
/** value. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ses_certdigestobj_getvalue(
    const quarn_ses_certdigestobj *value);

/* ---- CertDigestList */

/**
 * Digests of certificates (GB/T 38540).
 *
 *     CertDigestList ::= SEQUENCE OF CertDigestObj
 *
 * Type id QUARN_ASN1_SES_CERTDIGESTLIST (414). A quarn_asn1_list of CertDigestObj
 * (quarn_ses_certdigestobj).
 */
QUARN_ASN1_API void quarn_ses_certdigestlist_free(quarn_asn1_list *value);

/* ---- GB-SES-ESPropertyInfo */

/**
 * Whose seal it is, and how long (GB/T 38540). certListType tells the certificates (1) from digests
 * of them (2), which stand under the same tag; another number is refused.
 *
 *     GB-SES-ESPropertyInfo ::= SEQUENCE {
 *         type            INTEGER,
 *         name            UTF8String,
 *         certListType    INTEGER,
 *         certList        OctetStrings OPTIONAL,
 *         certDigestList  CertDigestList OPTIONAL,
 *         createDate      GeneralizedTime,
 *         validStart      GeneralizedTime,
 *         validEnd        GeneralizedTime
 *     }
 *
 * Type id QUARN_ASN1_GB_SES_ESPROPERTYINFO (415).
 */
typedef struct quarn_gb_ses_espropertyinfo quarn_gb_ses_espropertyinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_GB_SES_ESPROPERTYINFO. */
QUARN_ASN1_API void quarn_gb_ses_espropertyinfo_free(quarn_gb_ses_espropertyinfo *value);
/** type. */
QUARN_ASN1_API quarn_asn1_integer *quarn_gb_ses_espropertyinfo_gettype(
    const quarn_gb_ses_espropertyinfo *value);
/** name. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_gb_ses_espropertyinfo_getname(
    const quarn_gb_ses_espropertyinfo *value);
/** 1 when certList is there. */
QUARN_ASN1_API int quarn_gb_ses_espropertyinfo_hascertlist(
    const quarn_gb_ses_espropertyinfo *value);
/** certList, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_gb_ses_espropertyinfo_getcertlist(
    const quarn_gb_ses_espropertyinfo *value);
/** 1 when certDigestList is there. */
QUARN_ASN1_API int quarn_gb_ses_espropertyinfo_hascertdigestlist(
    const quarn_gb_ses_espropertyinfo *value);
/** certDigestList, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_gb_ses_espropertyinfo_getcertdigestlist(
    const quarn_gb_ses_espropertyinfo *value);
/** createDate. */
QUARN_ASN1_API quarn_asn1_time *quarn_gb_ses_espropertyinfo_getcreatedate(
    const quarn_gb_ses_espropertyinfo *value);
/** validStart. */
QUARN_ASN1_API quarn_asn1_time *quarn_gb_ses_espropertyinfo_getvalidstart(
    const quarn_gb_ses_espropertyinfo *value);
/** validEnd. */
QUARN_ASN1_API quarn_asn1_time *quarn_gb_ses_espropertyinfo_getvalidend(
    const quarn_gb_ses_espropertyinfo *value);
/** Of a seal whose signers' certificates are given. */
QUARN_ASN1_API quarn_gb_ses_espropertyinfo *quarn_gb_ses_espropertyinfo_newcert(
    const quarn_asn1_integer *type,
    const quarn_asn1_octetstring *name,
    const quarn_asn1_list *certs,
    const quarn_asn1_time *create_date,
    const quarn_asn1_time *valid_start,
    const quarn_asn1_time *valid_end);
/** Of a seal for whose signers' certificates digests are given. */
QUARN_ASN1_API quarn_gb_ses_espropertyinfo *quarn_gb_ses_espropertyinfo_newcertdigest(
    const quarn_asn1_integer *type,
    const quarn_asn1_octetstring *name,
    const quarn_asn1_list *cert_digest_list,
    const quarn_asn1_time *create_date,
    const quarn_asn1_time *valid_start,
    const quarn_asn1_time *valid_end);
/** 1 for certificates, 2 for digests; 0 for null. */
QUARN_ASN1_API uint32_t quarn_gb_ses_espropertyinfo_getcertlistype(
    const quarn_gb_ses_espropertyinfo *value);

/* ---- GB-SES-SealInfo */

/**
 * A seal without the signature of its maker (GB/T 38540). The extensions have no tag of their own.
 *
 *     GB-SES-SealInfo ::= SEQUENCE {
 *         header    SES-Header,
 *         esID      IA5String,
 *         property  GB-SES-ESPropertyInfo,
 *         picture   SES-ESPictureInfo,
 *         extDatas  ExtensionDatas OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_GB_SES_SEALINFO (416).
 */
typedef struct quarn_gb_ses_sealinfo quarn_gb_ses_sealinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_GB_SES_SEALINFO. */
QUARN_ASN1_API void quarn_gb_ses_sealinfo_free(quarn_gb_ses_sealinfo *value);
/** From its components. Null leaves out ext_datas. */
QUARN_ASN1_API quarn_gb_ses_sealinfo *quarn_gb_ses_sealinfo_new(
    const quarn_ses_header *header,
    const quarn_asn1_octetstring *es_id,
    const quarn_gb_ses_espropertyinfo *property,
    const quarn_ses_espictureinfo *picture,
    const quarn_asn1_list *ext_datas);
/** header. */
QUARN_ASN1_API quarn_ses_header *quarn_gb_ses_sealinfo_getheader(
    const quarn_gb_ses_sealinfo *value);
/** esID. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_gb_ses_sealinfo_getesid(
    const quarn_gb_ses_sealinfo *value);
/** property. */
QUARN_ASN1_API quarn_gb_ses_espropertyinfo *quarn_gb_ses_sealinfo_getproperty(
    const quarn_gb_ses_sealinfo *value);
/** picture. */
QUARN_ASN1_API quarn_ses_espictureinfo *quarn_gb_ses_sealinfo_getpicture(
    const quarn_gb_ses_sealinfo *value);
/** 1 when extDatas is there. */
QUARN_ASN1_API int quarn_gb_ses_sealinfo_hasextdatas(const quarn_gb_ses_sealinfo *value);
/** extDatas, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_gb_ses_sealinfo_getextdatas(
    const quarn_gb_ses_sealinfo *value);

/* ---- GB-SES-Seal */

/**
 * A seal (GB/T 38540).
 *
 *     GB-SES-Seal ::= SEQUENCE {
 *         eSealInfo    GB-SES-SealInfo,
 *         cert         OCTET STRING,
 *         signAlgID    OBJECT IDENTIFIER,
 *         signedValue  BIT STRING
 *     }
 *
 * Type id QUARN_ASN1_GB_SES_SEAL (417).
 */
typedef struct quarn_gb_ses_seal quarn_gb_ses_seal;
/** As quarn_asn1_value_free() under QUARN_ASN1_GB_SES_SEAL. */
QUARN_ASN1_API void quarn_gb_ses_seal_free(quarn_gb_ses_seal *value);
/** From its components. */
QUARN_ASN1_API quarn_gb_ses_seal *quarn_gb_ses_seal_new(const quarn_gb_ses_sealinfo *e_seal_info,
                                                        const quarn_asn1_octetstring *cert,
                                                        const quarn_asn1_oid *sign_alg_id,
                                                        const quarn_asn1_bitstring *signed_value);
/** eSealInfo. */
QUARN_ASN1_API quarn_gb_ses_sealinfo *quarn_gb_ses_seal_getesealinfo(
    const quarn_gb_ses_seal *value);
/** cert. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_gb_ses_seal_getcert(const quarn_gb_ses_seal *value);
/** signAlgID. */
QUARN_ASN1_API quarn_asn1_oid *quarn_gb_ses_seal_getsignalgid(const quarn_gb_ses_seal *value);
/** signedValue. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_gb_ses_seal_getsignedvalue(
    const quarn_gb_ses_seal *value);

/* ---- GB-SES-TBSSign */

/**
 * What is signed with a seal (GB/T 38540).
 *
 *     GB-SES-TBSSign ::= SEQUENCE {
 *         version       INTEGER,
 *         eseal         GB-SES-Seal,
 *         timeInfo      GeneralizedTime,
 *         dataHash      BIT STRING,
 *         propertyInfo  IA5String,
 *         extDatas      [0] EXPLICIT ExtensionDatas OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_GB_SES_TBSSIGN (418).
 */
typedef struct quarn_gb_ses_tbssign quarn_gb_ses_tbssign;
/** As quarn_asn1_value_free() under QUARN_ASN1_GB_SES_TBSSIGN. */
QUARN_ASN1_API void quarn_gb_ses_tbssign_free(quarn_gb_ses_tbssign *value);
/** From its components. Null leaves out ext_datas. */
QUARN_ASN1_API quarn_gb_ses_tbssign *quarn_gb_ses_tbssign_new(
    const quarn_asn1_integer *version,
    const quarn_gb_ses_seal *eseal,
    const quarn_asn1_time *time_info,
    const quarn_asn1_bitstring *data_hash,
    const quarn_asn1_octetstring *property_info,
    const quarn_asn1_list *ext_datas);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_gb_ses_tbssign_getversion(
    const quarn_gb_ses_tbssign *value);
/** eseal. */
QUARN_ASN1_API quarn_gb_ses_seal *quarn_gb_ses_tbssign_geteseal(const quarn_gb_ses_tbssign *value);
/** timeInfo. */
QUARN_ASN1_API quarn_asn1_time *quarn_gb_ses_tbssign_gettimeinfo(const quarn_gb_ses_tbssign *value);
/** dataHash. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_gb_ses_tbssign_getdatahash(
    const quarn_gb_ses_tbssign *value);
/** 1 when extDatas is there. */
QUARN_ASN1_API int quarn_gb_ses_tbssign_hasextdatas(const quarn_gb_ses_tbssign *value);
/** extDatas, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_gb_ses_tbssign_getextdatas(const quarn_gb_ses_tbssign *value);
/** The propertyInfo; null for null. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ses_gb_tbssign_getpropertyinfo(
    const quarn_gb_ses_tbssign *value);

/* ---- GB-SES-Signature */

/**
 * A signature with a seal (GB/T 38540).
 *
 *     GB-SES-Signature ::= SEQUENCE {
 *         toSign          GB-SES-TBSSign,
 *         cert            OCTET STRING,
 *         signatureAlgID  OBJECT IDENTIFIER,
 *         signature       BIT STRING,
 *         timeStamp       [0] EXPLICIT BIT STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_GB_SES_SIGNATURE (419).
 */
typedef struct quarn_gb_ses_signature quarn_gb_ses_signature;
/** As quarn_asn1_value_free() under QUARN_ASN1_GB_SES_SIGNATURE. */
QUARN_ASN1_API void quarn_gb_ses_signature_free(quarn_gb_ses_signature *value);
/** From its components. Null leaves out time_stamp. */
QUARN_ASN1_API quarn_gb_ses_signature *quarn_gb_ses_signature_new(
    const quarn_gb_ses_tbssign *to_sign,
    const quarn_asn1_octetstring *cert,
    const quarn_asn1_oid *signature_alg_id,
    const quarn_asn1_bitstring *signature,
    const quarn_asn1_bitstring *time_stamp);
/** toSign. */
QUARN_ASN1_API quarn_gb_ses_tbssign *quarn_gb_ses_signature_gettosign(
    const quarn_gb_ses_signature *value);
/** cert. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_gb_ses_signature_getcert(
    const quarn_gb_ses_signature *value);
/** signatureAlgID. */
QUARN_ASN1_API quarn_asn1_oid *quarn_gb_ses_signature_getsignaturealgid(
    const quarn_gb_ses_signature *value);
/** signature. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_gb_ses_signature_getsignature(
    const quarn_gb_ses_signature *value);
/** 1 when timeStamp is there. */
QUARN_ASN1_API int quarn_gb_ses_signature_hastimestamp(const quarn_gb_ses_signature *value);
/** timeStamp, null when it is absent. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_gb_ses_signature_gettimestamp(
    const quarn_gb_ses_signature *value);

#ifdef __cplusplus
}
#endif

#endif
