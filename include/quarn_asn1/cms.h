/* Generated from modules/ASN1_CMS.asn1 by tools/generate.py; do not edit. */
/**
 * Messages: the Cryptographic Message Syntax and its PKCS #7 forms (RFC 5652, RFC 2315, RFC 6211),
 * and what is signed with Diffie-Hellman keys (RFC 6955). Versions are not checked against
 * contents: callers decode what later standards number anew.
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
#ifndef QUARN_ASN1_CMS_H
#define QUARN_ASN1_CMS_H

#include "attribute.h"
#include "types.h"
#include "x500.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- ContentInfo */

/**
 * A content and its type (RFC 5652, 3).
 *
 *     ContentInfo ::= SEQUENCE {
 *         contentType  OBJECT IDENTIFIER,
 *         content      [0] EXPLICIT ANY OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_PKCS7CONTENTINFO (111).
 */
typedef struct quarn_pkcs7contentinfo quarn_pkcs7contentinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS7CONTENTINFO. */
QUARN_ASN1_API void quarn_pkcs7contentinfo_free(quarn_pkcs7contentinfo *value);
/** From its components. Null leaves out content. */
QUARN_ASN1_API quarn_pkcs7contentinfo *quarn_pkcs7contentinfo_new(
    const quarn_asn1_oid *content_type, const quarn_asn1_any *content);
/** contentType. */
QUARN_ASN1_API quarn_asn1_oid *quarn_pkcs7contentinfo_gettype(const quarn_pkcs7contentinfo *value);
/** 1 when content is there. */
QUARN_ASN1_API int quarn_pkcs7contentinfo_hascontent(const quarn_pkcs7contentinfo *value);
/** content, null when it is absent. */
QUARN_ASN1_API quarn_asn1_any *quarn_pkcs7contentinfo_getcontent(
    const quarn_pkcs7contentinfo *value);

/* ---- DigestedData */

/**
 * Content with its digest (RFC 2315, 12; RFC 5652, 7).
 *
 *     DigestedData ::= SEQUENCE {
 *         version          INTEGER,
 *         digestAlgorithm  AlgorithmIdentifier,
 *         contentInfo      ContentInfo,
 *         digest           OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_PKCS7DIGESTEDDATA (121).
 */
typedef struct quarn_pkcs7digesteddata quarn_pkcs7digesteddata;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS7DIGESTEDDATA. */
QUARN_ASN1_API void quarn_pkcs7digesteddata_free(quarn_pkcs7digesteddata *value);
/** From its components. */
QUARN_ASN1_API quarn_pkcs7digesteddata *quarn_pkcs7digesteddata_new(
    const quarn_asn1_integer *version,
    const quarn_x509algoid *digest_algorithm,
    const quarn_pkcs7contentinfo *content_info,
    const quarn_asn1_octetstring *digest);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs7digesteddata_getversion(
    const quarn_pkcs7digesteddata *value);
/** digestAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcs7digesteddata_getdigestalgo(
    const quarn_pkcs7digesteddata *value);
/** contentInfo. */
QUARN_ASN1_API quarn_pkcs7contentinfo *quarn_pkcs7digesteddata_getcontentinfo(
    const quarn_pkcs7digesteddata *value);
/** digest. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_pkcs7digesteddata_getdigest(
    const quarn_pkcs7digesteddata *value);

/* ---- IssuerAndSerialNumber */

/**
 * Names a certificate by its issuer and serial number (RFC 5652, 10.2.4).
 *
 *     IssuerAndSerialNumber ::= SEQUENCE {
 *         issuer        Name,
 *         serialNumber  INTEGER
 *     }
 *
 * Type id QUARN_ASN1_CMSISSUERANDSN (122).
 */
typedef struct quarn_cmsissuerandsn quarn_cmsissuerandsn;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSISSUERANDSN. */
QUARN_ASN1_API void quarn_cmsissuerandsn_free(quarn_cmsissuerandsn *value);
/** From its components. */
QUARN_ASN1_API quarn_cmsissuerandsn *quarn_cmsissuerandsn_new(
    const quarn_x500name *issuer, const quarn_asn1_integer *serial_number);
/** issuer. */
QUARN_ASN1_API quarn_x500name *quarn_cmsissuerandsn_getissuer(const quarn_cmsissuerandsn *value);
/** serialNumber. */
QUARN_ASN1_API quarn_asn1_integer *quarn_cmsissuerandsn_getserialno(
    const quarn_cmsissuerandsn *value);

/* ---- SignerIdentifier */

/**
 * Whose signature it is (RFC 5652, 5.3).
 *
 *     SignerIdentifier ::= CHOICE {
 *         issuerAndSerialNumber  IssuerAndSerialNumber,
 *         subjectKeyIdentifier   [0] IMPLICIT OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_CMSSIGNERID (123).
 */
typedef struct quarn_cmssignerid quarn_cmssignerid;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSSIGNERID. */
QUARN_ASN1_API void quarn_cmssignerid_free(quarn_cmssignerid *value);
/**
 * Number of the alternative: 0 issuerAndSerialNumber, 1 subjectKeyIdentifier; all ones for null.
 */
QUARN_ASN1_API uint32_t quarn_cmssignerid_gettype(const quarn_cmssignerid *value);
/** The alternative issuerAndSerialNumber. */
QUARN_ASN1_API quarn_cmssignerid *quarn_cmssignerid_newissuersn(
    const quarn_cmsissuerandsn *issuer_and_serial_number);
/** issuerAndSerialNumber, null when it is another alternative. */
QUARN_ASN1_API quarn_cmsissuerandsn *quarn_cmssignerid_getissuersn(const quarn_cmssignerid *value);
/** The alternative subjectKeyIdentifier. */
QUARN_ASN1_API quarn_cmssignerid *quarn_cmssignerid_newsubkeyid(
    const quarn_asn1_octetstring *subject_key_identifier);
/** subjectKeyIdentifier, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cmssignerid_getsubkeyid(
    const quarn_cmssignerid *value);

/* ---- SignerInfo */

/**
 * One signature of a message (RFC 5652, 5.3).
 *
 *     SignerInfo ::= SEQUENCE {
 *         version             INTEGER,
 *         sid                 SignerIdentifier,
 *         digestAlgorithm     AlgorithmIdentifier,
 *         signedAttrs         [0] IMPLICIT Attributes OPTIONAL,
 *         signatureAlgorithm  AlgorithmIdentifier,
 *         signature           OCTET STRING,
 *         unsignedAttrs       [1] IMPLICIT Attributes OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CMSSIGNERINFO (124).
 */
typedef struct quarn_cmssignerinfo quarn_cmssignerinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSSIGNERINFO. */
QUARN_ASN1_API void quarn_cmssignerinfo_free(quarn_cmssignerinfo *value);
/** From its components. Null leaves out signed_attrs and unsigned_attrs. */
QUARN_ASN1_API quarn_cmssignerinfo *quarn_cmssignerinfo_new(
    const quarn_asn1_integer *version,
    const quarn_cmssignerid *sid,
    const quarn_x509algoid *digest_algorithm,
    const quarn_asn1_list *signed_attrs,
    const quarn_x509algoid *signature_algorithm,
    const quarn_asn1_octetstring *signature,
    const quarn_asn1_list *unsigned_attrs);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_cmssignerinfo_getversion(const quarn_cmssignerinfo *value);
/** sid. */
QUARN_ASN1_API quarn_cmssignerid *quarn_cmssignerinfo_getsid(const quarn_cmssignerinfo *value);
/** digestAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_cmssignerinfo_getdigestalgo(
    const quarn_cmssignerinfo *value);
/** 1 when signedAttrs is there. */
QUARN_ASN1_API int quarn_cmssignerinfo_hassignattrs(const quarn_cmssignerinfo *value);
/** signedAttrs, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_cmssignerinfo_getsignattrs(const quarn_cmssignerinfo *value);
/** signatureAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_cmssignerinfo_getsignalgo(const quarn_cmssignerinfo *value);
/** signature. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cmssignerinfo_getsignature(
    const quarn_cmssignerinfo *value);
/** 1 when unsignedAttrs is there. */
QUARN_ASN1_API int quarn_cmssignerinfo_hasunsignattrs(const quarn_cmssignerinfo *value);
/** unsignedAttrs, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_cmssignerinfo_getunsignattrs(
    const quarn_cmssignerinfo *value);

/* ---- SignerInfos */

/**
 * The signatures of a message (RFC 5652, 5.1).
 *
 *     SignerInfos ::= SET OF SignerInfo
 *
 * Type id QUARN_ASN1_CMSSIGNERINFOS (125). A quarn_asn1_list of SignerInfo (quarn_cmssignerinfo).
 */
QUARN_ASN1_API void quarn_cmssignerinfos_free(quarn_asn1_list *value);

/* ---- DigestAlgorithmIdentifiers */

/**
 * Algorithms in no order (RFC 5652, 5.1).
 *
 *     DigestAlgorithmIdentifiers ::= SET OF AlgorithmIdentifier
 *
 * Type id QUARN_ASN1_CMSALGOS (126). A quarn_asn1_list of AlgorithmIdentifier (quarn_x509algoid).
 */
QUARN_ASN1_API void quarn_cmsalgos_free(quarn_asn1_list *value);

/* ---- OtherCertificateFormat */

/**
 * A certificate of another kind (RFC 5652, 10.2.2).
 *
 *     OtherCertificateFormat ::= SEQUENCE {
 *         otherCertFormat  OBJECT IDENTIFIER,
 *         otherCert        ANY
 *     }
 *
 * Type id QUARN_ASN1_CMSOTHERCERTFORMAT (127).
 */
typedef struct quarn_cmsothercertformat quarn_cmsothercertformat;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSOTHERCERTFORMAT. */
QUARN_ASN1_API void quarn_cmsothercertformat_free(quarn_cmsothercertformat *value);
/** From its components. */
QUARN_ASN1_API quarn_cmsothercertformat *quarn_cmsothercertformat_new(
    const quarn_asn1_oid *other_cert_format, const quarn_asn1_any *other_cert);
/** otherCertFormat. */
QUARN_ASN1_API quarn_asn1_oid *quarn_cmsothercertformat_getothercertformat(
    const quarn_cmsothercertformat *value);
/** otherCert. */
QUARN_ASN1_API quarn_asn1_any *quarn_cmsothercertformat_getothercert(
    const quarn_cmsothercertformat *value);

/* ---- OtherRevocationInfoFormat */

/**
 * Revocation information of another kind (RFC 5652, 10.2.1).
 *
 *     OtherRevocationInfoFormat ::= SEQUENCE {
 *         otherRevInfoFormat  OBJECT IDENTIFIER,
 *         otherRevInfo        ANY
 *     }
 *
 * Type id QUARN_ASN1_CMSOTHERREVINFOFORMAT (128).
 */
typedef struct quarn_cmsotherrevinfoformat quarn_cmsotherrevinfoformat;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSOTHERREVINFOFORMAT. */
QUARN_ASN1_API void quarn_cmsotherrevinfoformat_free(quarn_cmsotherrevinfoformat *value);
/** From its components. */
QUARN_ASN1_API quarn_cmsotherrevinfoformat *quarn_cmsotherrevinfoformat_new(
    const quarn_asn1_oid *other_rev_info_format, const quarn_asn1_any *other_rev_info);
/** otherRevInfoFormat. */
QUARN_ASN1_API quarn_asn1_oid *quarn_cmsotherrevinfoformat_getotherrevinfoformat(
    const quarn_cmsotherrevinfoformat *value);
/** otherRevInfo. */
QUARN_ASN1_API quarn_asn1_any *quarn_cmsotherrevinfoformat_getotherrevinfo(
    const quarn_cmsotherrevinfoformat *value);

/* ---- CertificateChoices */

/**
 * A certificate of a message (RFC 5652, 10.2.2). The two obsolete alternatives of the standard are
 * refused.
 *
 *     CertificateChoices ::= CHOICE {
 *         certificate  Certificate,
 *         v2AttrCert   [2] IMPLICIT AttributeCertificate,
 *         other        [3] IMPLICIT OtherCertificateFormat
 *     }
 *
 * Type id QUARN_ASN1_CMSCERTCHOICE (129).
 */
typedef struct quarn_cmscertchoice quarn_cmscertchoice;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSCERTCHOICE. */
QUARN_ASN1_API void quarn_cmscertchoice_free(quarn_cmscertchoice *value);
/** Number of the alternative: 0 certificate, 1 v2AttrCert, 2 other; all ones for null. */
QUARN_ASN1_API uint32_t quarn_cmscertchoice_gettype(const quarn_cmscertchoice *value);
/** The alternative certificate. */
QUARN_ASN1_API quarn_cmscertchoice *quarn_cmscertchoice_newx509pubkeycert(
    const quarn_x509pubkeycert *certificate);
/** certificate, null when it is another alternative. */
QUARN_ASN1_API quarn_x509pubkeycert *quarn_cmscertchoice_getx509pubkeycert(
    const quarn_cmscertchoice *value);
/** The alternative v2AttrCert. */
QUARN_ASN1_API quarn_cmscertchoice *quarn_cmscertchoice_newv2attrcert(
    const quarn_attributecertificate *v2_attr_cert);
/** v2AttrCert, null when it is another alternative. */
QUARN_ASN1_API quarn_attributecertificate *quarn_cmscertchoice_getv2attrcert(
    const quarn_cmscertchoice *value);
/** The alternative other. */
QUARN_ASN1_API quarn_cmscertchoice *quarn_cmscertchoice_newothercert(
    const quarn_cmsothercertformat *other);
/** other, null when it is another alternative. */
QUARN_ASN1_API quarn_cmsothercertformat *quarn_cmscertchoice_getothercert(
    const quarn_cmscertchoice *value);

/* ---- RevocationInfoChoice */

/**
 * Revocation information of a message (RFC 5652, 10.2.1).
 *
 *     RevocationInfoChoice ::= CHOICE {
 *         crl    CertificateList,
 *         other  [1] IMPLICIT OtherRevocationInfoFormat
 *     }
 *
 * Type id QUARN_ASN1_CMSREVINFOCHOICE (130).
 */
typedef struct quarn_cmsrevinfochoice quarn_cmsrevinfochoice;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSREVINFOCHOICE. */
QUARN_ASN1_API void quarn_cmsrevinfochoice_free(quarn_cmsrevinfochoice *value);
/** Number of the alternative: 0 crl, 1 other; all ones for null. */
QUARN_ASN1_API uint32_t quarn_cmsrevinfochoice_gettype(const quarn_cmsrevinfochoice *value);
/** The alternative crl. */
QUARN_ASN1_API quarn_cmsrevinfochoice *quarn_cmsrevinfochoice_newcrl(const quarn_x509crl *crl);
/** crl, null when it is another alternative. */
QUARN_ASN1_API quarn_x509crl *quarn_cmsrevinfochoice_getcrl(const quarn_cmsrevinfochoice *value);
/** The alternative other. */
QUARN_ASN1_API quarn_cmsrevinfochoice *quarn_cmsrevinfochoice_newotherrevinfo(
    const quarn_cmsotherrevinfoformat *other);
/** other, null when it is another alternative. */
QUARN_ASN1_API quarn_cmsotherrevinfoformat *quarn_cmsrevinfochoice_getotherrevinfo(
    const quarn_cmsrevinfochoice *value);

/* ---- CertificateSet */

/**
 * The certificates of a message (RFC 5652, 10.2.3).
 *
 *     CertificateSet ::= SET OF CertificateChoices
 *
 * Type id QUARN_ASN1_CMSCERTSET (131). A quarn_asn1_list of CertificateChoices
 * (quarn_cmscertchoice).
 */
QUARN_ASN1_API void quarn_cmscertset_free(quarn_asn1_list *value);

/* ---- RevocationInfoChoices */

/**
 * The revocation information of a message (RFC 5652, 10.2.1).
 *
 *     RevocationInfoChoices ::= SET OF RevocationInfoChoice
 *
 * Type id QUARN_ASN1_CMSREVINFOS (132). A quarn_asn1_list of RevocationInfoChoice
 * (quarn_cmsrevinfochoice).
 */
QUARN_ASN1_API void quarn_cmsrevinfos_free(quarn_asn1_list *value);

/* ---- SignedData */

/**
 * Signed content (RFC 2315, 9.1; RFC 5652, 5.1). Its type id takes any content,
 * QUARN_ASN1_CMSSIGNEDDATA in decoding only an OCTET STRING, or none.
 *
 * A value knows where its content info and signer infos stand in the octets that it was last
 * decoded from or encoded to: under its own type id they count from the first octet of the whole,
 * under QUARN_ASN1_CMSSIGNEDDATA, and when content alone is decoded or encoded, from the first
 * octet of the content. So encoding changes the value. A copy has places of its own.
 *
 *     SignedData ::= SEQUENCE {
 *         version           INTEGER,
 *         digestAlgorithms  DigestAlgorithmIdentifiers,
 *         contentInfo       ContentInfo,
 *         certificates      [0] IMPLICIT CertificateSet OPTIONAL,
 *         crls              [1] IMPLICIT RevocationInfoChoices OPTIONAL,
 *         signerInfos       SignerInfos
 *     }
 *
 * Type ids QUARN_ASN1_PKCS7SIGNEDDATA (133), QUARN_ASN1_CMSSIGNEDDATA (134).
 */
typedef struct quarn_pkcs7signeddata quarn_pkcs7signeddata;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS7SIGNEDDATA. */
QUARN_ASN1_API void quarn_pkcs7signeddata_free(quarn_pkcs7signeddata *value);
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSSIGNEDDATA. */
QUARN_ASN1_API void quarn_cmssigneddata_free(quarn_pkcs7signeddata *value);
/** From its components. Null leaves out certificates and crls. */
QUARN_ASN1_API quarn_pkcs7signeddata *quarn_pkcs7signeddata_new(
    const quarn_asn1_integer *version,
    const quarn_asn1_list *digest_algorithms,
    const quarn_pkcs7contentinfo *content_info,
    const quarn_asn1_list *certificates,
    const quarn_asn1_list *crls,
    const quarn_asn1_list *signer_infos);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs7signeddata_getversion(
    const quarn_pkcs7signeddata *value);
/** digestAlgorithms. */
QUARN_ASN1_API quarn_asn1_list *quarn_pkcs7signeddata_getdigestalgos(
    const quarn_pkcs7signeddata *value);
/** contentInfo. */
QUARN_ASN1_API quarn_pkcs7contentinfo *quarn_pkcs7signeddata_getcontentinfo(
    const quarn_pkcs7signeddata *value);
/** 1 when certificates is there. */
QUARN_ASN1_API int quarn_pkcs7signeddata_hascerts(const quarn_pkcs7signeddata *value);
/** certificates, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_pkcs7signeddata_getcerts(const quarn_pkcs7signeddata *value);
/** 1 when crls is there. */
QUARN_ASN1_API int quarn_pkcs7signeddata_hascrls(const quarn_pkcs7signeddata *value);
/** crls, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_pkcs7signeddata_getcrls(const quarn_pkcs7signeddata *value);
/** signerInfos. */
QUARN_ASN1_API quarn_asn1_list *quarn_pkcs7signeddata_getsignerinfos(
    const quarn_pkcs7signeddata *value);
/**
 * From its components, which it takes over instead of copying them. Only certificates and crls may
 * be null. When it returns null, all of them still belong to the caller.
 */
QUARN_ASN1_API quarn_pkcs7signeddata *quarn_pkcs7signeddata_new0(
    quarn_asn1_integer *version,
    quarn_asn1_list *digest_algorithms,
    quarn_pkcs7contentinfo *content_info,
    quarn_asn1_list *certificates,
    quarn_asn1_list *crls,
    quarn_asn1_list *signer_infos);
/**
 * Decodes a signed message in one pass, from any stream, and notes what it stood in and, counted
 * from where the stream was, where its parts are. The message is a ContentInfo of the type signed
 * data, or signed data of SM2, or a SignedData alone; what follows it is not read.
 *
 * The result is 1 with a null message for what begins otherwise: with anything but a SEQUENCE,
 * which is not recorded, or with a SEQUENCE that holds no signed message. A ContentInfo of another
 * type is a failure.
 *
 * @param consumed  receives the number of octets read when there is a message; may be null
 */
QUARN_ASN1_API int quarn_asn1_decode_pkcs7signeddata(quarn_stream *stream,
                                                     quarn_pkcs7signeddata **message,
                                                     uint64_t *consumed,
                                                     quarn_err_ctx *ctx);
/**
 * What it stood in: 0 a ContentInfo, 1 nothing, 2 a ContentInfo of the type signed data of SM2.
 * Always 1 but for a value from quarn_asn1_decode_pkcs7signeddata(); -1 for null.
 */
QUARN_ASN1_API int32_t quarn_pkcs7signeddata_gettype(const quarn_pkcs7signeddata *value);
/** Octets before contentInfo; -1 in a value that was neither decoded nor encoded, and for null. */
QUARN_ASN1_API int64_t quarn_pkcs7signeddata_getcontentinfooffset(
    const quarn_pkcs7signeddata *value);
/** Octets up to the end of contentInfo; -1 as before. */
QUARN_ASN1_API int64_t quarn_pkcs7signeddata_getcontentinfoendoffset(
    const quarn_pkcs7signeddata *value);
/** Octets before signerInfos; -1 as before. */
QUARN_ASN1_API int64_t quarn_pkcs7signeddata_getsignerinfosoffset(
    const quarn_pkcs7signeddata *value);

/* ---- EncapsulatedContentInfo */

/**
 * Signed content and its type (RFC 5652, 5.2).
 *
 *     EncapsulatedContentInfo ::= SEQUENCE {
 *         eContentType  OBJECT IDENTIFIER,
 *         eContent      [0] EXPLICIT OCTET STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CMSENCAPSULATEDCONTENTINFO (147).
 */
typedef struct quarn_cmsencapsulatedcontentinfo quarn_cmsencapsulatedcontentinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSENCAPSULATEDCONTENTINFO. */
QUARN_ASN1_API void quarn_cmsencapsulatedcontentinfo_free(quarn_cmsencapsulatedcontentinfo *value);
/** From its components. Null leaves out e_content. */
QUARN_ASN1_API quarn_cmsencapsulatedcontentinfo *quarn_cmsencapsulatedcontentinfo_new(
    const quarn_asn1_oid *e_content_type, const quarn_asn1_octetstring *e_content);
/** eContentType. */
QUARN_ASN1_API quarn_asn1_oid *quarn_cmsencapsulatedcontentinfo_getecontenttype(
    const quarn_cmsencapsulatedcontentinfo *value);
/** 1 when eContent is there. */
QUARN_ASN1_API int quarn_cmsencapsulatedcontentinfo_hasecontent(
    const quarn_cmsencapsulatedcontentinfo *value);
/** eContent, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cmsencapsulatedcontentinfo_getecontent(
    const quarn_cmsencapsulatedcontentinfo *value);

/* ---- EncryptedContentInfo */

/**
 * Encrypted content and its type (RFC 5652, 6.1), with what two parties of an SM2 key agreement
 * share.
 *
 *     EncryptedContentInfo ::= SEQUENCE {
 *         contentType                 OBJECT IDENTIFIER,
 *         contentEncryptionAlgorithm  AlgorithmIdentifier,
 *         encryptedContent            [0] IMPLICIT OCTET STRING OPTIONAL,
 *         sharedInfo1                 [1] IMPLICIT OCTET STRING OPTIONAL,
 *         sharedInfo2                 [2] IMPLICIT OCTET STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CMSENCRYPTEDCONTENTINFO (148).
 */
typedef struct quarn_cmsencryptedcontentinfo quarn_cmsencryptedcontentinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSENCRYPTEDCONTENTINFO. */
QUARN_ASN1_API void quarn_cmsencryptedcontentinfo_free(quarn_cmsencryptedcontentinfo *value);
/** From its components. Null leaves out encrypted_content, shared_info1 and shared_info2. */
QUARN_ASN1_API quarn_cmsencryptedcontentinfo *quarn_cmsencryptedcontentinfo_new(
    const quarn_asn1_oid *content_type,
    const quarn_x509algoid *content_encryption_algorithm,
    const quarn_asn1_octetstring *encrypted_content,
    const quarn_asn1_octetstring *shared_info1,
    const quarn_asn1_octetstring *shared_info2);
/** contentType. */
QUARN_ASN1_API quarn_asn1_oid *quarn_cmsencryptedcontentinfo_gettype(
    const quarn_cmsencryptedcontentinfo *value);
/** contentEncryptionAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_cmsencryptedcontentinfo_getalgo(
    const quarn_cmsencryptedcontentinfo *value);
/** 1 when encryptedContent is there. */
QUARN_ASN1_API int quarn_cmsencryptedcontentinfo_hasenccontent(
    const quarn_cmsencryptedcontentinfo *value);
/** encryptedContent, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cmsencryptedcontentinfo_getenccontent(
    const quarn_cmsencryptedcontentinfo *value);
/** 1 when sharedInfo1 is there. */
QUARN_ASN1_API int quarn_cmsencryptedcontentinfo_hassharedinfo1(
    const quarn_cmsencryptedcontentinfo *value);
/** sharedInfo1, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cmsencryptedcontentinfo_getsharedinfo1(
    const quarn_cmsencryptedcontentinfo *value);
/** 1 when sharedInfo2 is there. */
QUARN_ASN1_API int quarn_cmsencryptedcontentinfo_hassharedinfo2(
    const quarn_cmsencryptedcontentinfo *value);
/** sharedInfo2, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cmsencryptedcontentinfo_getsharedinfo2(
    const quarn_cmsencryptedcontentinfo *value);

/* ---- EncryptedData */

/**
 * Encrypted content without recipients (RFC 5652, 8).
 *
 *     EncryptedData ::= SEQUENCE {
 *         version               INTEGER,
 *         encryptedContentInfo  EncryptedContentInfo,
 *         unprotectedAttrs      [1] IMPLICIT Attributes OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CMSENCRYPTEDDATA (149).
 */
typedef struct quarn_cmsencrypteddata quarn_cmsencrypteddata;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSENCRYPTEDDATA. */
QUARN_ASN1_API void quarn_cmsencrypteddata_free(quarn_cmsencrypteddata *value);
/** From its components. Null leaves out unprotected_attrs. */
QUARN_ASN1_API quarn_cmsencrypteddata *quarn_cmsencrypteddata_new(
    const quarn_asn1_integer *version,
    const quarn_cmsencryptedcontentinfo *encrypted_content_info,
    const quarn_asn1_list *unprotected_attrs);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_cmsencrypteddata_getversion(
    const quarn_cmsencrypteddata *value);
/** encryptedContentInfo. */
QUARN_ASN1_API quarn_cmsencryptedcontentinfo *quarn_cmsencrypteddata_getencinfo(
    const quarn_cmsencrypteddata *value);
/** 1 when unprotectedAttrs is there. */
QUARN_ASN1_API int quarn_cmsencrypteddata_hasattrs(const quarn_cmsencrypteddata *value);
/** unprotectedAttrs, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_cmsencrypteddata_getattrs(
    const quarn_cmsencrypteddata *value);

/* ---- OriginatorInfo */

/**
 * What recipients need to know of the originator (RFC 5652, 6.1).
 *
 *     OriginatorInfo ::= SEQUENCE {
 *         certs  [0] IMPLICIT CertificateSet OPTIONAL,
 *         crls   [1] IMPLICIT RevocationInfoChoices OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CMSORIGINATORINFO (150).
 */
typedef struct quarn_cmsoriginatorinfo quarn_cmsoriginatorinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSORIGINATORINFO. */
QUARN_ASN1_API void quarn_cmsoriginatorinfo_free(quarn_cmsoriginatorinfo *value);
/** From its components. Null leaves out certs and crls. */
QUARN_ASN1_API quarn_cmsoriginatorinfo *quarn_cmsoriginatorinfo_new(const quarn_asn1_list *certs,
                                                                    const quarn_asn1_list *crls);
/** 1 when certs is there. */
QUARN_ASN1_API int quarn_cmsoriginatorinfo_hascerts(const quarn_cmsoriginatorinfo *value);
/** certs, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_cmsoriginatorinfo_getcerts(
    const quarn_cmsoriginatorinfo *value);
/** 1 when crls is there. */
QUARN_ASN1_API int quarn_cmsoriginatorinfo_hascrls(const quarn_cmsoriginatorinfo *value);
/** crls, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_cmsoriginatorinfo_getcrls(
    const quarn_cmsoriginatorinfo *value);

/* ---- KeyTransRecipientInfo */

/**
 * A key encrypted for a recipient's public key (RFC 5652, 6.2.1).
 *
 *     KeyTransRecipientInfo ::= SEQUENCE {
 *         version                 INTEGER,
 *         rid                     SignerIdentifier,
 *         keyEncryptionAlgorithm  AlgorithmIdentifier,
 *         encryptedKey            OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_CMSKEYTRANSRECIPIENTINFO (151).
 */
typedef struct quarn_cmskeytransrecipientinfo quarn_cmskeytransrecipientinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSKEYTRANSRECIPIENTINFO. */
QUARN_ASN1_API void quarn_cmskeytransrecipientinfo_free(quarn_cmskeytransrecipientinfo *value);
/** From its components. */
QUARN_ASN1_API quarn_cmskeytransrecipientinfo *quarn_cmskeytransrecipientinfo_new(
    const quarn_asn1_integer *version,
    const quarn_cmssignerid *rid,
    const quarn_x509algoid *key_encryption_algorithm,
    const quarn_asn1_octetstring *encrypted_key);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_cmskeytransrecipientinfo_getversion(
    const quarn_cmskeytransrecipientinfo *value);
/** rid. */
QUARN_ASN1_API quarn_cmssignerid *quarn_cmskeytransrecipientinfo_getrid(
    const quarn_cmskeytransrecipientinfo *value);
/** keyEncryptionAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_cmskeytransrecipientinfo_getkeyencryptionalgorithm(
    const quarn_cmskeytransrecipientinfo *value);
/** encryptedKey. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cmskeytransrecipientinfo_getencryptedkey(
    const quarn_cmskeytransrecipientinfo *value);

/* ---- OriginatorIdentifierOrKey */

/**
 * Who takes part in a key agreement, or with which key (RFC 5652, 6.2.2).
 *
 *     OriginatorIdentifierOrKey ::= CHOICE {
 *         issuerAndSerialNumber  IssuerAndSerialNumber,
 *         subjectKeyIdentifier   [0] IMPLICIT OCTET STRING,
 *         originatorKey          [1] IMPLICIT SubjectPublicKeyInfo
 *     }
 *
 * Type id QUARN_ASN1_CMSORGIDORKEY (152).
 */
typedef struct quarn_cmsorgidorkey quarn_cmsorgidorkey;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSORGIDORKEY. */
QUARN_ASN1_API void quarn_cmsorgidorkey_free(quarn_cmsorgidorkey *value);
/**
 * Number of the alternative: 0 issuerAndSerialNumber, 1 subjectKeyIdentifier, 2 originatorKey; all
 * ones for null.
 */
QUARN_ASN1_API uint32_t quarn_cmsorgidorkey_gettype(const quarn_cmsorgidorkey *value);
/** The alternative issuerAndSerialNumber. */
QUARN_ASN1_API quarn_cmsorgidorkey *quarn_cmsorgidorkey_newissuersn(
    const quarn_cmsissuerandsn *issuer_and_serial_number);
/** issuerAndSerialNumber, null when it is another alternative. */
QUARN_ASN1_API quarn_cmsissuerandsn *quarn_cmsorgidorkey_getissuersn(
    const quarn_cmsorgidorkey *value);
/** The alternative subjectKeyIdentifier. */
QUARN_ASN1_API quarn_cmsorgidorkey *quarn_cmsorgidorkey_newsubkeyid(
    const quarn_asn1_octetstring *subject_key_identifier);
/** subjectKeyIdentifier, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cmsorgidorkey_getsubkeyid(
    const quarn_cmsorgidorkey *value);
/** The alternative originatorKey. */
QUARN_ASN1_API quarn_cmsorgidorkey *quarn_cmsorgidorkey_neworiginatorkey(
    const quarn_x509publickeyinfo *originator_key);
/** originatorKey, null when it is another alternative. */
QUARN_ASN1_API quarn_x509publickeyinfo *quarn_cmsorgidorkey_getoriginatorkey(
    const quarn_cmsorgidorkey *value);

/* ---- OtherKeyAttribute */

/**
 * An attribute of a key (RFC 5652, 10.2.7).
 *
 *     OtherKeyAttribute ::= SEQUENCE {
 *         keyAttrId  OBJECT IDENTIFIER,
 *         keyAttr    ANY OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CMSOTHERKEYATTR (153).
 */
typedef struct quarn_cmsotherkeyattr quarn_cmsotherkeyattr;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSOTHERKEYATTR. */
QUARN_ASN1_API void quarn_cmsotherkeyattr_free(quarn_cmsotherkeyattr *value);
/** From its components. Null leaves out key_attr. */
QUARN_ASN1_API quarn_cmsotherkeyattr *quarn_cmsotherkeyattr_new(const quarn_asn1_oid *key_attr_id,
                                                                const quarn_asn1_any *key_attr);
/** keyAttrId. */
QUARN_ASN1_API quarn_asn1_oid *quarn_cmsotherkeyattr_getkeyattrid(
    const quarn_cmsotherkeyattr *value);
/** 1 when keyAttr is there. */
QUARN_ASN1_API int quarn_cmsotherkeyattr_haskeyattr(const quarn_cmsotherkeyattr *value);
/** keyAttr, null when it is absent. */
QUARN_ASN1_API quarn_asn1_any *quarn_cmsotherkeyattr_getkeyattr(const quarn_cmsotherkeyattr *value);

/* ---- RecipientKeyIdentifier */

/**
 * Names a recipient's key (RFC 5652, 6.2.2).
 *
 *     RecipientKeyIdentifier ::= SEQUENCE {
 *         subjectKeyIdentifier  OCTET STRING,
 *         date                  GeneralizedTime OPTIONAL,
 *         other                 OtherKeyAttribute OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CMSRECIPIENTKEYID (154).
 */
typedef struct quarn_cmsrecipientkeyid quarn_cmsrecipientkeyid;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSRECIPIENTKEYID. */
QUARN_ASN1_API void quarn_cmsrecipientkeyid_free(quarn_cmsrecipientkeyid *value);
/** From its components. Null leaves out date and other. */
QUARN_ASN1_API quarn_cmsrecipientkeyid *quarn_cmsrecipientkeyid_new(
    const quarn_asn1_octetstring *subject_key_identifier,
    const quarn_asn1_time *date,
    const quarn_cmsotherkeyattr *other);
/** subjectKeyIdentifier. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cmsrecipientkeyid_getsubkeyid(
    const quarn_cmsrecipientkeyid *value);
/** 1 when date is there. */
QUARN_ASN1_API int quarn_cmsrecipientkeyid_hasdate(const quarn_cmsrecipientkeyid *value);
/** date, null when it is absent. */
QUARN_ASN1_API quarn_asn1_time *quarn_cmsrecipientkeyid_getdate(
    const quarn_cmsrecipientkeyid *value);
/** 1 when other is there. */
QUARN_ASN1_API int quarn_cmsrecipientkeyid_hasother(const quarn_cmsrecipientkeyid *value);
/** other, null when it is absent. */
QUARN_ASN1_API quarn_cmsotherkeyattr *quarn_cmsrecipientkeyid_getother(
    const quarn_cmsrecipientkeyid *value);

/* ---- KeyAgreeRecipientIdentifier */

/**
 * Whom a key is agreed with (RFC 5652, 6.2.2).
 *
 *     KeyAgreeRecipientIdentifier ::= CHOICE {
 *         issuerAndSerialNumber  IssuerAndSerialNumber,
 *         rKeyId                 [0] IMPLICIT RecipientKeyIdentifier
 *     }
 *
 * Type id QUARN_ASN1_CMSKEYAGREERECIPIENTID (155).
 */
typedef struct quarn_cmskeyagreerecipientid quarn_cmskeyagreerecipientid;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSKEYAGREERECIPIENTID. */
QUARN_ASN1_API void quarn_cmskeyagreerecipientid_free(quarn_cmskeyagreerecipientid *value);
/** Number of the alternative: 0 issuerAndSerialNumber, 1 rKeyId; all ones for null. */
QUARN_ASN1_API uint32_t quarn_cmskeyagreerecipientid_gettype(
    const quarn_cmskeyagreerecipientid *value);
/** The alternative issuerAndSerialNumber. */
QUARN_ASN1_API quarn_cmskeyagreerecipientid *quarn_cmskeyagreerecipientid_newissuersn(
    const quarn_cmsissuerandsn *issuer_and_serial_number);
/** issuerAndSerialNumber, null when it is another alternative. */
QUARN_ASN1_API quarn_cmsissuerandsn *quarn_cmskeyagreerecipientid_getissuersn(
    const quarn_cmskeyagreerecipientid *value);
/** The alternative rKeyId. */
QUARN_ASN1_API quarn_cmskeyagreerecipientid *quarn_cmskeyagreerecipientid_newrkeyid(
    const quarn_cmsrecipientkeyid *r_key_id);
/** rKeyId, null when it is another alternative. */
QUARN_ASN1_API quarn_cmsrecipientkeyid *quarn_cmskeyagreerecipientid_getrkeyid(
    const quarn_cmskeyagreerecipientid *value);

/* ---- RecipientEncryptedKey */

/**
 * A key encrypted with an agreed one (RFC 5652, 6.2.2).
 *
 *     RecipientEncryptedKey ::= SEQUENCE {
 *         rid           KeyAgreeRecipientIdentifier,
 *         encryptedKey  OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_CMSRECIPIENTENCKEY (156).
 */
typedef struct quarn_cmsrecipientenckey quarn_cmsrecipientenckey;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSRECIPIENTENCKEY. */
QUARN_ASN1_API void quarn_cmsrecipientenckey_free(quarn_cmsrecipientenckey *value);
/** From its components. */
QUARN_ASN1_API quarn_cmsrecipientenckey *quarn_cmsrecipientenckey_new(
    const quarn_cmskeyagreerecipientid *rid, const quarn_asn1_octetstring *encrypted_key);
/** rid. */
QUARN_ASN1_API quarn_cmskeyagreerecipientid *quarn_cmsrecipientenckey_getrid(
    const quarn_cmsrecipientenckey *value);
/** encryptedKey. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cmsrecipientenckey_getencryptedkey(
    const quarn_cmsrecipientenckey *value);

/* ---- RecipientEncryptedKeys */

/**
 * Keys encrypted with agreed ones (RFC 5652, 6.2.2).
 *
 *     RecipientEncryptedKeys ::= SEQUENCE OF RecipientEncryptedKey
 *
 * Type id QUARN_ASN1_CMSRECIPIENTENCKEYS (157). A quarn_asn1_list of RecipientEncryptedKey
 * (quarn_cmsrecipientenckey).
 */
QUARN_ASN1_API void quarn_cmsrecipientenckeys_free(quarn_asn1_list *value);

/* ---- KeyAgreeRecipientInfo */

/**
 * A key for recipients by key agreement (RFC 5652, 6.2.2).
 *
 *     KeyAgreeRecipientInfo ::= SEQUENCE {
 *         version                 INTEGER,
 *         originator              [0] EXPLICIT OriginatorIdentifierOrKey,
 *         ukm                     [1] EXPLICIT OCTET STRING OPTIONAL,
 *         keyEncryptionAlgorithm  AlgorithmIdentifier,
 *         recipientEncryptedKeys  RecipientEncryptedKeys
 *     }
 *
 * Type id QUARN_ASN1_CMSKEYAGREERECIPIENTINFO (158).
 */
typedef struct quarn_cmskeyagreerecipientinfo quarn_cmskeyagreerecipientinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSKEYAGREERECIPIENTINFO. */
QUARN_ASN1_API void quarn_cmskeyagreerecipientinfo_free(quarn_cmskeyagreerecipientinfo *value);
/** From its components. Null leaves out ukm. */
QUARN_ASN1_API quarn_cmskeyagreerecipientinfo *quarn_cmskeyagreerecipientinfo_new(
    const quarn_asn1_integer *version,
    const quarn_cmsorgidorkey *originator,
    const quarn_asn1_octetstring *ukm,
    const quarn_x509algoid *key_encryption_algorithm,
    const quarn_asn1_list *recipient_encrypted_keys);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_cmskeyagreerecipientinfo_getversion(
    const quarn_cmskeyagreerecipientinfo *value);
/** originator. */
QUARN_ASN1_API quarn_cmsorgidorkey *quarn_cmskeyagreerecipientinfo_getoriginator(
    const quarn_cmskeyagreerecipientinfo *value);
/** 1 when ukm is there. */
QUARN_ASN1_API int quarn_cmskeyagreerecipientinfo_hasukm(
    const quarn_cmskeyagreerecipientinfo *value);
/** ukm, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cmskeyagreerecipientinfo_getukm(
    const quarn_cmskeyagreerecipientinfo *value);
/** keyEncryptionAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_cmskeyagreerecipientinfo_getkeyencryptionalgorithm(
    const quarn_cmskeyagreerecipientinfo *value);
/** recipientEncryptedKeys. */
QUARN_ASN1_API quarn_asn1_list *quarn_cmskeyagreerecipientinfo_getrecipientencryptedkeys(
    const quarn_cmskeyagreerecipientinfo *value);

/* ---- KEKRecipientInfo */

/**
 * A key encrypted with one that was distributed before (RFC 5652, 6.2.3). Its codes lie outside the
 * messages, so that they have no text.
 *
 *     KEKRecipientInfo ::= SEQUENCE {
 *         version                 INTEGER,
 *         kekid                   RecipientKeyIdentifier,
 *         keyEncryptionAlgorithm  AlgorithmIdentifier,
 *         encryptedKey            OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_CMSKEKRECIPIENTINFO (159).
 */
typedef struct quarn_cmskekrecipientinfo quarn_cmskekrecipientinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSKEKRECIPIENTINFO. */
QUARN_ASN1_API void quarn_cmskekrecipientinfo_free(quarn_cmskekrecipientinfo *value);
/** From its components. */
QUARN_ASN1_API quarn_cmskekrecipientinfo *quarn_cmskekrecipientinfo_new(
    const quarn_asn1_integer *version,
    const quarn_cmsrecipientkeyid *kekid,
    const quarn_x509algoid *key_encryption_algorithm,
    const quarn_asn1_octetstring *encrypted_key);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_cmskekrecipientinfo_getversion(
    const quarn_cmskekrecipientinfo *value);
/** kekid. */
QUARN_ASN1_API quarn_cmsrecipientkeyid *quarn_cmskekrecipientinfo_getkekid(
    const quarn_cmskekrecipientinfo *value);
/** keyEncryptionAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_cmskekrecipientinfo_getkeyencryptionalgorithm(
    const quarn_cmskekrecipientinfo *value);
/** encryptedKey. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cmskekrecipientinfo_getencryptedkey(
    const quarn_cmskekrecipientinfo *value);

/* ---- PasswordRecipientInfo */

/**
 * A key encrypted with a password (RFC 5652, 6.2.4).
 *
 *     PasswordRecipientInfo ::= SEQUENCE {
 *         version                 INTEGER,
 *         keyDerivationAlgorithm  [0] IMPLICIT AlgorithmIdentifier OPTIONAL,
 *         keyEncryptionAlgorithm  AlgorithmIdentifier,
 *         encryptedKey            OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_CMSPWDRECIPIENTINFO (160).
 */
typedef struct quarn_cmspwdrecipientinfo quarn_cmspwdrecipientinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSPWDRECIPIENTINFO. */
QUARN_ASN1_API void quarn_cmspwdrecipientinfo_free(quarn_cmspwdrecipientinfo *value);
/** From its components. Null leaves out key_derivation_algorithm. */
QUARN_ASN1_API quarn_cmspwdrecipientinfo *quarn_cmspwdrecipientinfo_new(
    const quarn_asn1_integer *version,
    const quarn_x509algoid *key_derivation_algorithm,
    const quarn_x509algoid *key_encryption_algorithm,
    const quarn_asn1_octetstring *encrypted_key);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_cmspwdrecipientinfo_getversion(
    const quarn_cmspwdrecipientinfo *value);
/** 1 when keyDerivationAlgorithm is there. */
QUARN_ASN1_API int quarn_cmspwdrecipientinfo_haskeyderivationalgorithm(
    const quarn_cmspwdrecipientinfo *value);
/** keyDerivationAlgorithm, null when it is absent. */
QUARN_ASN1_API quarn_x509algoid *quarn_cmspwdrecipientinfo_getkeyderivationalgorithm(
    const quarn_cmspwdrecipientinfo *value);
/** keyEncryptionAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_cmspwdrecipientinfo_getkeyencryptionalgorithm(
    const quarn_cmspwdrecipientinfo *value);
/** encryptedKey. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cmspwdrecipientinfo_getencryptedkey(
    const quarn_cmspwdrecipientinfo *value);

/* ---- OtherRecipientInfo */

/**
 * A recipient of another kind (RFC 5652, 6.2.5).
 *
 *     OtherRecipientInfo ::= SEQUENCE {
 *         oriType   OBJECT IDENTIFIER,
 *         oriValue  ANY
 *     }
 *
 * Type id QUARN_ASN1_CMSOTHERRECIPIENTINFO (161).
 */
typedef struct quarn_cmsotherrecipientinfo quarn_cmsotherrecipientinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSOTHERRECIPIENTINFO. */
QUARN_ASN1_API void quarn_cmsotherrecipientinfo_free(quarn_cmsotherrecipientinfo *value);
/** From its components. */
QUARN_ASN1_API quarn_cmsotherrecipientinfo *quarn_cmsotherrecipientinfo_new(
    const quarn_asn1_oid *ori_type, const quarn_asn1_any *ori_value);
/** oriType. */
QUARN_ASN1_API quarn_asn1_oid *quarn_cmsotherrecipientinfo_getoritype(
    const quarn_cmsotherrecipientinfo *value);
/** oriValue. */
QUARN_ASN1_API quarn_asn1_any *quarn_cmsotherrecipientinfo_getorivalue(
    const quarn_cmsotherrecipientinfo *value);

/* ---- RecipientInfo */

/**
 * How one recipient gets at the key (RFC 5652, 6.2).
 *
 *     RecipientInfo ::= CHOICE {
 *         ktri   KeyTransRecipientInfo,
 *         kari   [1] IMPLICIT KeyAgreeRecipientInfo,
 *         kekri  [2] IMPLICIT KEKRecipientInfo,
 *         pwri   [3] IMPLICIT PasswordRecipientInfo,
 *         ori    [4] IMPLICIT OtherRecipientInfo
 *     }
 *
 * Type id QUARN_ASN1_CMSRECIPIENTINFO (162).
 */
typedef struct quarn_cmsrecipientinfo quarn_cmsrecipientinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSRECIPIENTINFO. */
QUARN_ASN1_API void quarn_cmsrecipientinfo_free(quarn_cmsrecipientinfo *value);
/** Number of the alternative: 0 ktri, 1 kari, 2 kekri, 3 pwri, 4 ori; all ones for null. */
QUARN_ASN1_API uint32_t quarn_cmsrecipientinfo_gettype(const quarn_cmsrecipientinfo *value);
/** The alternative ktri. */
QUARN_ASN1_API quarn_cmsrecipientinfo *quarn_cmsrecipientinfo_newktri(
    const quarn_cmskeytransrecipientinfo *ktri);
/** ktri, null when it is another alternative. */
QUARN_ASN1_API quarn_cmskeytransrecipientinfo *quarn_cmsrecipientinfo_getktri(
    const quarn_cmsrecipientinfo *value);
/** The alternative kari. */
QUARN_ASN1_API quarn_cmsrecipientinfo *quarn_cmsrecipientinfo_newkari(
    const quarn_cmskeyagreerecipientinfo *kari);
/** kari, null when it is another alternative. */
QUARN_ASN1_API quarn_cmskeyagreerecipientinfo *quarn_cmsrecipientinfo_getkari(
    const quarn_cmsrecipientinfo *value);
/** The alternative kekri. */
QUARN_ASN1_API quarn_cmsrecipientinfo *quarn_cmsrecipientinfo_newkekri(
    const quarn_cmskekrecipientinfo *kekri);
/** kekri, null when it is another alternative. */
QUARN_ASN1_API quarn_cmskekrecipientinfo *quarn_cmsrecipientinfo_getkekri(
    const quarn_cmsrecipientinfo *value);
/** The alternative pwri. */
QUARN_ASN1_API quarn_cmsrecipientinfo *quarn_cmsrecipientinfo_newpwri(
    const quarn_cmspwdrecipientinfo *pwri);
/** pwri, null when it is another alternative. */
QUARN_ASN1_API quarn_cmspwdrecipientinfo *quarn_cmsrecipientinfo_getpwri(
    const quarn_cmsrecipientinfo *value);
/** The alternative ori. */
QUARN_ASN1_API quarn_cmsrecipientinfo *quarn_cmsrecipientinfo_newori(
    const quarn_cmsotherrecipientinfo *ori);
/** ori, null when it is another alternative. */
QUARN_ASN1_API quarn_cmsotherrecipientinfo *quarn_cmsrecipientinfo_getori(
    const quarn_cmsrecipientinfo *value);

/* ---- RecipientInfos */

/**
 * The recipients of a message (RFC 5652, 6.1).
 *
 *     RecipientInfos ::= SET OF RecipientInfo
 *
 * Type id QUARN_ASN1_CMSRECIPIENTINFOS (163). A quarn_asn1_list of RecipientInfo
 * (quarn_cmsrecipientinfo).
 */
QUARN_ASN1_API void quarn_cmsrecipientinfos_free(quarn_asn1_list *value);

/* ---- EnvelopedData */

/**
 * Content encrypted for recipients (RFC 5652, 6.1).
 *
 *     EnvelopedData ::= SEQUENCE {
 *         version               INTEGER,
 *         originatorInfo        [0] IMPLICIT OriginatorInfo OPTIONAL,
 *         recipientInfos        RecipientInfos,
 *         encryptedContentInfo  EncryptedContentInfo,
 *         unprotectedAttrs      [1] IMPLICIT Attributes OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CMSENVELOPEDDATA (164).
 */
typedef struct quarn_cmsenvelopeddata quarn_cmsenvelopeddata;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSENVELOPEDDATA. */
QUARN_ASN1_API void quarn_cmsenvelopeddata_free(quarn_cmsenvelopeddata *value);
/** From its components. Null leaves out originator_info and unprotected_attrs. */
QUARN_ASN1_API quarn_cmsenvelopeddata *quarn_cmsenvelopeddata_new(
    const quarn_asn1_integer *version,
    const quarn_cmsoriginatorinfo *originator_info,
    const quarn_asn1_list *recipient_infos,
    const quarn_cmsencryptedcontentinfo *encrypted_content_info,
    const quarn_asn1_list *unprotected_attrs);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_cmsenvelopeddata_getversion(
    const quarn_cmsenvelopeddata *value);
/** 1 when originatorInfo is there. */
QUARN_ASN1_API int quarn_cmsenvelopeddata_hasoriginator(const quarn_cmsenvelopeddata *value);
/** originatorInfo, null when it is absent. */
QUARN_ASN1_API quarn_cmsoriginatorinfo *quarn_cmsenvelopeddata_getoriginator(
    const quarn_cmsenvelopeddata *value);
/** recipientInfos. */
QUARN_ASN1_API quarn_asn1_list *quarn_cmsenvelopeddata_getrecipinfos(
    const quarn_cmsenvelopeddata *value);
/** encryptedContentInfo. */
QUARN_ASN1_API quarn_cmsencryptedcontentinfo *quarn_cmsenvelopeddata_getencinfo(
    const quarn_cmsenvelopeddata *value);
/** 1 when unprotectedAttrs is there. */
QUARN_ASN1_API int quarn_cmsenvelopeddata_hasattrs(const quarn_cmsenvelopeddata *value);
/** unprotectedAttrs, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_cmsenvelopeddata_getattrs(
    const quarn_cmsenvelopeddata *value);

/* ---- AuthenticatedData */

/**
 * Content with a message authentication code for recipients (RFC 5652, 9.1).
 *
 *     AuthenticatedData ::= SEQUENCE {
 *         version           INTEGER,
 *         originatorInfo    [0] IMPLICIT OriginatorInfo OPTIONAL,
 *         recipientInfos    RecipientInfos,
 *         macAlgorithm      AlgorithmIdentifier,
 *         digestAlgorithm   [1] IMPLICIT AlgorithmIdentifier OPTIONAL,
 *         encapContentInfo  EncapsulatedContentInfo,
 *         authAttrs         [2] IMPLICIT Attributes OPTIONAL,
 *         mac               OCTET STRING,
 *         unauthAttrs       [3] IMPLICIT Attributes OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CMSAUTHDATA (165).
 */
typedef struct quarn_cmsauthdata quarn_cmsauthdata;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSAUTHDATA. */
QUARN_ASN1_API void quarn_cmsauthdata_free(quarn_cmsauthdata *value);
/**
 * From its components. Null leaves out originator_info, digest_algorithm, auth_attrs and
 * unauth_attrs.
 */
QUARN_ASN1_API quarn_cmsauthdata *quarn_cmsauthdata_new(
    const quarn_asn1_integer *version,
    const quarn_cmsoriginatorinfo *originator_info,
    const quarn_asn1_list *recipient_infos,
    const quarn_x509algoid *mac_algorithm,
    const quarn_x509algoid *digest_algorithm,
    const quarn_cmsencapsulatedcontentinfo *encap_content_info,
    const quarn_asn1_list *auth_attrs,
    const quarn_asn1_octetstring *mac,
    const quarn_asn1_list *unauth_attrs);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_cmsauthdata_getversion(const quarn_cmsauthdata *value);
/** 1 when originatorInfo is there. */
QUARN_ASN1_API int quarn_cmsauthdata_hasoriginator(const quarn_cmsauthdata *value);
/** originatorInfo, null when it is absent. */
QUARN_ASN1_API quarn_cmsoriginatorinfo *quarn_cmsauthdata_getoriginator(
    const quarn_cmsauthdata *value);
/** recipientInfos. */
QUARN_ASN1_API quarn_asn1_list *quarn_cmsauthdata_getrecipinfos(const quarn_cmsauthdata *value);
/** macAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_cmsauthdata_getmacalgo(const quarn_cmsauthdata *value);
/** 1 when digestAlgorithm is there. */
QUARN_ASN1_API int quarn_cmsauthdata_hashashalgo(const quarn_cmsauthdata *value);
/** digestAlgorithm, null when it is absent. */
QUARN_ASN1_API quarn_x509algoid *quarn_cmsauthdata_gethashalgo(const quarn_cmsauthdata *value);
/** encapContentInfo. */
QUARN_ASN1_API quarn_cmsencapsulatedcontentinfo *quarn_cmsauthdata_getencapinfo(
    const quarn_cmsauthdata *value);
/** 1 when authAttrs is there. */
QUARN_ASN1_API int quarn_cmsauthdata_hasauthatrrs(const quarn_cmsauthdata *value);
/** authAttrs, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_cmsauthdata_getauthatrrs(const quarn_cmsauthdata *value);
/** mac. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_cmsauthdata_getmac(const quarn_cmsauthdata *value);
/** 1 when unauthAttrs is there. */
QUARN_ASN1_API int quarn_cmsauthdata_hasunauthatrrs(const quarn_cmsauthdata *value);
/** unauthAttrs, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_cmsauthdata_getunauthatrrs(const quarn_cmsauthdata *value);

/* ---- SignedAndEnvelopedData */

/**
 * Signed content encrypted for recipients (RFC 2315, 11).
 *
 *     SignedAndEnvelopedData ::= SEQUENCE {
 *         version               INTEGER,
 *         recipientInfos        RecipientInfos,
 *         digestAlgorithms      DigestAlgorithmIdentifiers,
 *         encryptedContentInfo  EncryptedContentInfo,
 *         certificates          [0] IMPLICIT CertificateSet OPTIONAL,
 *         crls                  [1] IMPLICIT RevocationInfoChoices OPTIONAL,
 *         signerInfos           SignerInfos
 *     }
 *
 * Type id QUARN_ASN1_SIGNEDANDENVELOPEDDATA (355).
 */
typedef struct quarn_signedandenvelopeddata quarn_signedandenvelopeddata;
/** As quarn_asn1_value_free() under QUARN_ASN1_SIGNEDANDENVELOPEDDATA. */
QUARN_ASN1_API void quarn_signedandenvelopeddata_free(quarn_signedandenvelopeddata *value);
/** From its components. Null leaves out certificates and crls. */
QUARN_ASN1_API quarn_signedandenvelopeddata *quarn_signedandenvelopeddata_new(
    const quarn_asn1_integer *version,
    const quarn_asn1_list *recipient_infos,
    const quarn_asn1_list *digest_algorithms,
    const quarn_cmsencryptedcontentinfo *encrypted_content_info,
    const quarn_asn1_list *certificates,
    const quarn_asn1_list *crls,
    const quarn_asn1_list *signer_infos);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_signedandenvelopeddata_getversion(
    const quarn_signedandenvelopeddata *value);
/** recipientInfos. */
QUARN_ASN1_API quarn_asn1_list *quarn_signedandenvelopeddata_getrecipinfos(
    const quarn_signedandenvelopeddata *value);
/** digestAlgorithms. */
QUARN_ASN1_API quarn_asn1_list *quarn_signedandenvelopeddata_getdigestalgos(
    const quarn_signedandenvelopeddata *value);
/** encryptedContentInfo. */
QUARN_ASN1_API quarn_cmsencryptedcontentinfo *quarn_signedandenvelopeddata_getencinfo(
    const quarn_signedandenvelopeddata *value);
/** 1 when certificates is there. */
QUARN_ASN1_API int quarn_signedandenvelopeddata_hascerts(const quarn_signedandenvelopeddata *value);
/** certificates, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_signedandenvelopeddata_getcerts(
    const quarn_signedandenvelopeddata *value);
/** 1 when crls is there. */
QUARN_ASN1_API int quarn_signedandenvelopeddata_hascrls(const quarn_signedandenvelopeddata *value);
/** crls, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_signedandenvelopeddata_getcrls(
    const quarn_signedandenvelopeddata *value);
/** signerInfos. */
QUARN_ASN1_API quarn_asn1_list *quarn_signedandenvelopeddata_getsignerinfos(
    const quarn_signedandenvelopeddata *value);

/* ---- SMIMECapabilities */

/**
 * What a sender can decrypt and verify, the best first (RFC 8551, 2.5.2).
 *
 *     SMIMECapabilities ::= SEQUENCE OF AlgorithmIdentifier
 *
 * Type id QUARN_ASN1_SMIMECAPABILITIES (54). A quarn_asn1_list of AlgorithmIdentifier
 * (quarn_x509algoid).
 */
QUARN_ASN1_API void quarn_smimecapabilities_free(quarn_asn1_list *value);

/* ---- CMSAlgorithmProtection */

/**
 * Which algorithms a message is protected with (RFC 6211, 2). Decoding accepts both of the last
 * two, and neither.
 *
 *     CMSAlgorithmProtection ::= SEQUENCE {
 *         digestAlgorithm     AlgorithmIdentifier,
 *         signatureAlgorithm  [1] IMPLICIT AlgorithmIdentifier OPTIONAL,
 *         macAlgorithm        [2] IMPLICIT AlgorithmIdentifier OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_CMSALGORITHMPROTECTION (401).
 */
typedef struct quarn_cmsalgorithmprotection quarn_cmsalgorithmprotection;
/** As quarn_asn1_value_free() under QUARN_ASN1_CMSALGORITHMPROTECTION. */
QUARN_ASN1_API void quarn_cmsalgorithmprotection_free(quarn_cmsalgorithmprotection *value);
/** digestAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_cmsalgorithmprotection_getdigestalgo(
    const quarn_cmsalgorithmprotection *value);
/** 1 when signatureAlgorithm is there. */
QUARN_ASN1_API int quarn_cmsalgorithmprotection_hassignalgo(
    const quarn_cmsalgorithmprotection *value);
/** signatureAlgorithm, null when it is absent. */
QUARN_ASN1_API quarn_x509algoid *quarn_cmsalgorithmprotection_getsignalgo(
    const quarn_cmsalgorithmprotection *value);
/** 1 when macAlgorithm is there. */
QUARN_ASN1_API int quarn_cmsalgorithmprotection_hasmacalgo(
    const quarn_cmsalgorithmprotection *value);
/** macAlgorithm, null when it is absent. */
QUARN_ASN1_API quarn_x509algoid *quarn_cmsalgorithmprotection_getmacalgo(
    const quarn_cmsalgorithmprotection *value);
/** Of a signed message. Both arguments are mandatory. */
QUARN_ASN1_API quarn_cmsalgorithmprotection *quarn_cmsalgorithmprotection_newsign(
    const quarn_x509algoid *digest, const quarn_x509algoid *signature);
/** Of a message with a message authentication code. Both arguments are mandatory. */
QUARN_ASN1_API quarn_cmsalgorithmprotection *quarn_cmsalgorithmprotection_newmac(
    const quarn_x509algoid *digest, const quarn_x509algoid *mac);

/* ---- DhSigStatic */

/**
 * Proof that a certificate's requester has its Diffie-Hellman key: a MAC, and whose static key it
 * was made with (RFC 6955, 4). That its values are SEQUENCEs is inferred from the standard.
 *
 *     DhSigStatic ::= SEQUENCE {
 *         issuerAndSerial  IssuerAndSerialNumber OPTIONAL,
 *         hashValue        OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_DHSIGSTATIC (218).
 */
typedef struct quarn_dhsigstatic quarn_dhsigstatic;
/** As quarn_asn1_value_free() under QUARN_ASN1_DHSIGSTATIC. */
QUARN_ASN1_API void quarn_dhsigstatic_free(quarn_dhsigstatic *value);
/** From its components. Null leaves out issuer_and_serial. */
QUARN_ASN1_API quarn_dhsigstatic *quarn_dhsigstatic_new(
    const quarn_cmsissuerandsn *issuer_and_serial, const quarn_asn1_octetstring *hash_value);
/** 1 when issuerAndSerial is there. */
QUARN_ASN1_API int quarn_dhsigstatic_hasissuersn(const quarn_dhsigstatic *value);
/** issuerAndSerial, null when it is absent. */
QUARN_ASN1_API quarn_cmsissuerandsn *quarn_dhsigstatic_getissuersn(const quarn_dhsigstatic *value);
/** hashValue. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_dhsigstatic_gethashvalue(
    const quarn_dhsigstatic *value);

#ifdef __cplusplus
}
#endif

#endif
