/* Generated from modules/ASN1_OCSP.asn1 by tools/generate.py; do not edit. */
/**
 * The Online Certificate Status Protocol (OCSP, RFC 6960).
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
#ifndef QUARN_ASN1_OCSP_H
#define QUARN_ASN1_OCSP_H

#include "extension.h"
#include "types.h"
#include "x500.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- CertID */

/**
 * Names a certificate by hashes of its issuer and its serial number (RFC 6960, 4.1.1).
 *
 *     CertID ::= SEQUENCE {
 *         hashAlgorithm   AlgorithmIdentifier,
 *         issuerNameHash  OCTET STRING,
 *         issuerKeyHash   OCTET STRING,
 *         serialNumber    INTEGER
 *     }
 *
 * Type id QUARN_ASN1_OCSP_CERTID (168).
 */
typedef struct quarn_ocsp_certid quarn_ocsp_certid;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSP_CERTID. */
QUARN_ASN1_API void quarn_ocsp_certid_free(quarn_ocsp_certid *value);
/** From its components. */
QUARN_ASN1_API quarn_ocsp_certid *quarn_ocsp_certid_new(
    const quarn_x509algoid *hash_algorithm,
    const quarn_asn1_octetstring *issuer_name_hash,
    const quarn_asn1_octetstring *issuer_key_hash,
    const quarn_asn1_integer *serial_number);
/** hashAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_ocsp_certid_gethashalgo(const quarn_ocsp_certid *value);
/** issuerNameHash. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ocsp_certid_getissuernamehash(
    const quarn_ocsp_certid *value);
/** issuerKeyHash. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ocsp_certid_getissuerkeyhash(
    const quarn_ocsp_certid *value);
/** serialNumber. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ocsp_certid_getserialno(const quarn_ocsp_certid *value);

/* ---- Request */

/**
 * A question for one certificate (RFC 6960, 4.1.1).
 *
 *     Request ::= SEQUENCE {
 *         reqCert                  CertID,
 *         singleRequestExtensions  [0] EXPLICIT Extensions OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_OCSP_REQUEST (169).
 */
typedef struct quarn_ocsp_request quarn_ocsp_request;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSP_REQUEST. */
QUARN_ASN1_API void quarn_ocsp_request_free(quarn_ocsp_request *value);
/** From its components. Null leaves out single_request_extensions. */
QUARN_ASN1_API quarn_ocsp_request *quarn_ocsp_request_new(
    const quarn_ocsp_certid *req_cert, const quarn_asn1_list *single_request_extensions);
/** reqCert. */
QUARN_ASN1_API quarn_ocsp_certid *quarn_ocsp_request_getreqcert(const quarn_ocsp_request *value);
/** 1 when singleRequestExtensions is there. */
QUARN_ASN1_API int quarn_ocsp_request_hasexts(const quarn_ocsp_request *value);
/** singleRequestExtensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ocsp_request_getexts(const quarn_ocsp_request *value);

/* ---- RequestList */

/**
 * The questions of a request (RFC 6960, 4.1.1).
 *
 *     RequestList ::= SEQUENCE OF Request
 *
 * Type id QUARN_ASN1_OCSP_REQUESTLIST (170). A quarn_asn1_list of Request (quarn_ocsp_request).
 */
QUARN_ASN1_API void quarn_ocsp_requestlist_free(quarn_asn1_list *value);

/* ---- TBSRequest */

/**
 * The part of a request that may be signed (RFC 6960, 4.1.1).
 *
 *     TBSRequest ::= SEQUENCE {
 *         version            [0] EXPLICIT INTEGER DEFAULT 0,
 *         requestorName      [1] EXPLICIT GeneralName OPTIONAL,
 *         requestList        RequestList,
 *         requestExtensions  [2] EXPLICIT Extensions OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_OCSP_TBSREQUEST (171).
 */
typedef struct quarn_ocsp_tbsrequest quarn_ocsp_tbsrequest;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSP_TBSREQUEST. */
QUARN_ASN1_API void quarn_ocsp_tbsrequest_free(quarn_ocsp_tbsrequest *value);
/**
 * From its components. Null leaves out requestor_name and request_extensions, and stands for the
 * default of version (0).
 */
QUARN_ASN1_API quarn_ocsp_tbsrequest *quarn_ocsp_tbsrequest_new(
    const quarn_asn1_integer *version,
    const quarn_x509generalname *requestor_name,
    const quarn_asn1_list *request_list,
    const quarn_asn1_list *request_extensions);
/** version, 0 when the encoding has none. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ocsp_tbsrequest_getversion(
    const quarn_ocsp_tbsrequest *value);
/** 1 when requestorName is there. */
QUARN_ASN1_API int quarn_ocsp_tbsrequest_hasrequestorname(const quarn_ocsp_tbsrequest *value);
/** requestorName, null when it is absent. */
QUARN_ASN1_API quarn_x509generalname *quarn_ocsp_tbsrequest_getrequestorname(
    const quarn_ocsp_tbsrequest *value);
/** requestList. */
QUARN_ASN1_API quarn_asn1_list *quarn_ocsp_tbsrequest_getrequestlist(
    const quarn_ocsp_tbsrequest *value);
/** 1 when requestExtensions is there. */
QUARN_ASN1_API int quarn_ocsp_tbsrequest_hasexts(const quarn_ocsp_tbsrequest *value);
/** requestExtensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ocsp_tbsrequest_getexts(const quarn_ocsp_tbsrequest *value);

/* ---- Signature */

/**
 * The signature of a request (RFC 6960, 4.1.1).
 *
 *     Signature ::= SEQUENCE {
 *         signatureAlgorithm  AlgorithmIdentifier,
 *         signature           BIT STRING,
 *         certs               [0] EXPLICIT Certificates OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_OCSP_SIGNATURE (172).
 */
typedef struct quarn_ocsp_signature quarn_ocsp_signature;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSP_SIGNATURE. */
QUARN_ASN1_API void quarn_ocsp_signature_free(quarn_ocsp_signature *value);
/** From its components. Null leaves out certs. */
QUARN_ASN1_API quarn_ocsp_signature *quarn_ocsp_signature_new(
    const quarn_x509algoid *signature_algorithm,
    const quarn_asn1_bitstring *signature,
    const quarn_asn1_list *certs);
/** signatureAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_ocsp_signature_getsignalgo(
    const quarn_ocsp_signature *value);
/** signature. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_ocsp_signature_getsignature(
    const quarn_ocsp_signature *value);
/** 1 when certs is there. */
QUARN_ASN1_API int quarn_ocsp_signature_hascerts(const quarn_ocsp_signature *value);
/** certs, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ocsp_signature_getcerts(const quarn_ocsp_signature *value);

/* ---- OCSPRequest */

/**
 * A request (RFC 6960, 4.1.1). A decoded one keeps the octets of tbsRequest, which are what is
 * signed, and writes them as they came.
 *
 *     OCSPRequest ::= SEQUENCE {
 *         tbsRequest         TBSRequest,
 *         optionalSignature  [0] EXPLICIT Signature OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_OCSP_OCSPREQUEST (173).
 */
typedef struct quarn_ocsp_ocsprequest quarn_ocsp_ocsprequest;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSP_OCSPREQUEST. */
QUARN_ASN1_API void quarn_ocsp_ocsprequest_free(quarn_ocsp_ocsprequest *value);
/** From its components. Null leaves out optional_signature. */
QUARN_ASN1_API quarn_ocsp_ocsprequest *quarn_ocsp_ocsprequest_new(
    const quarn_ocsp_tbsrequest *tbs_request, const quarn_ocsp_signature *optional_signature);
/** tbsRequest. */
QUARN_ASN1_API quarn_ocsp_tbsrequest *quarn_ocsp_ocsprequest_gettbsrequest(
    const quarn_ocsp_ocsprequest *value);
/** 1 when optionalSignature is there. */
QUARN_ASN1_API int quarn_ocsp_ocsprequest_hassignature(const quarn_ocsp_ocsprequest *value);
/** optionalSignature, null when it is absent. */
QUARN_ASN1_API quarn_ocsp_signature *quarn_ocsp_ocsprequest_getsignature(
    const quarn_ocsp_ocsprequest *value);
/**
 * The octets of tbsRequest that were, or are to be, signed. length says how much room buffer has
 * and receives how many octets there are; a null buffer asks for no more. 0 when the room is too
 * small, length is null, or the value cannot be encoded.
 */
QUARN_ASN1_API int quarn_ocsp_ocsprequest_gettbsocts(quarn_ocsp_ocsprequest *value,
                                                     uint8_t *buffer,
                                                     uint64_t *length);

/* ---- ResponseBytes */

/**
 * A response of a type (RFC 6960, 4.2.1). That of the type 1.3.6.1.5.5.7.48.1.1 holds a
 * BasicOCSPResponse.
 *
 *     ResponseBytes ::= SEQUENCE {
 *         responseType  OBJECT IDENTIFIER,
 *         response      OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_OCSP_RESPONSEBYTES (174).
 */
typedef struct quarn_ocsp_responsebytes quarn_ocsp_responsebytes;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSP_RESPONSEBYTES. */
QUARN_ASN1_API void quarn_ocsp_responsebytes_free(quarn_ocsp_responsebytes *value);
/** From its components. */
QUARN_ASN1_API quarn_ocsp_responsebytes *quarn_ocsp_responsebytes_new(
    const quarn_asn1_oid *response_type, const quarn_asn1_octetstring *response);
/** responseType. */
QUARN_ASN1_API quarn_asn1_oid *quarn_ocsp_responsebytes_getresponsetype(
    const quarn_ocsp_responsebytes *value);
/** response. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ocsp_responsebytes_getresponse(
    const quarn_ocsp_responsebytes *value);

/* ---- OCSPResponse */

/**
 * What a responder sends (RFC 6960, 4.2.1). Decoding accepts any status, with a response and
 * without. Its codes lie outside the messages, so that they have no text.
 *
 *     OCSPResponse ::= SEQUENCE {
 *         responseStatus  OCSPResponseStatus,
 *         responseBytes   [0] EXPLICIT ResponseBytes OPTIONAL
 *     }
 *     OCSPResponseStatus ::= ENUMERATED {
 *         successful(0), malformedRequest(1), internalError(2), tryLater(3), sigRequired(5), unauthorized(6)
 *     }
 *
 * Type id QUARN_ASN1_OCSP_OCSPRESPONSE (175).
 */
typedef struct quarn_ocsp_ocspresponse quarn_ocsp_ocspresponse;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSP_OCSPRESPONSE. */
QUARN_ASN1_API void quarn_ocsp_ocspresponse_free(quarn_ocsp_ocspresponse *value);
/** From its components. Null leaves out response_bytes. */
QUARN_ASN1_API quarn_ocsp_ocspresponse *quarn_ocsp_ocspresponse_new(
    const quarn_asn1_integer *response_status, const quarn_ocsp_responsebytes *response_bytes);
/** responseStatus. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ocsp_ocspresponse_getstatus(
    const quarn_ocsp_ocspresponse *value);
/** 1 when responseBytes is there. */
QUARN_ASN1_API int quarn_ocsp_ocspresponse_hasresponsebytes(const quarn_ocsp_ocspresponse *value);
/** responseBytes, null when it is absent. */
QUARN_ASN1_API quarn_ocsp_responsebytes *quarn_ocsp_ocspresponse_getresponsebytes(
    const quarn_ocsp_ocspresponse *value);

/* ---- ResponderID */

/**
 * Who responds (RFC 6960, 4.2.1).
 *
 *     ResponderID ::= CHOICE {
 *         byName  [1] EXPLICIT Name,
 *         byKey   [2] EXPLICIT OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_OCSP_RESPONDERID (176).
 */
typedef struct quarn_ocsp_responderid quarn_ocsp_responderid;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSP_RESPONDERID. */
QUARN_ASN1_API void quarn_ocsp_responderid_free(quarn_ocsp_responderid *value);
/** Number of the alternative: 1 byName, 2 byKey; all ones for null. */
QUARN_ASN1_API uint32_t quarn_ocsp_responderid_gettype(const quarn_ocsp_responderid *value);
/** The alternative byName. */
QUARN_ASN1_API quarn_ocsp_responderid *quarn_ocsp_responderid_newbyname(
    const quarn_x500name *by_name);
/** byName, null when it is another alternative. */
QUARN_ASN1_API quarn_x500name *quarn_ocsp_responderid_getbyname(
    const quarn_ocsp_responderid *value);
/** The alternative byKey. */
QUARN_ASN1_API quarn_ocsp_responderid *quarn_ocsp_responderid_newbykey(
    const quarn_asn1_octetstring *by_key);
/** byKey, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ocsp_responderid_getbykey(
    const quarn_ocsp_responderid *value);

/* ---- RevokedInfo */

/**
 * When and why a certificate was revoked (RFC 6960, 4.2.1).
 *
 *     RevokedInfo ::= SEQUENCE {
 *         revocationTime    GeneralizedTime,
 *         revocationReason  [0] EXPLICIT CRLReason OPTIONAL
 *     }
 *     CRLReason ::= ENUMERATED {
 *         unspecified(0), keyCompromise(1), cACompromise(2), affiliationChanged(3), superseded(4),
 *         cessationOfOperation(5), certificateHold(6), removeFromCRL(8), privilegeWithdrawn(9), aACompromise(10)
 *     }
 *
 * Type id QUARN_ASN1_OCSP_REVOKEDINFO (177).
 */
typedef struct quarn_ocsp_revokedinfo quarn_ocsp_revokedinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSP_REVOKEDINFO. */
QUARN_ASN1_API void quarn_ocsp_revokedinfo_free(quarn_ocsp_revokedinfo *value);
/** From its components. Null leaves out revocation_reason. */
QUARN_ASN1_API quarn_ocsp_revokedinfo *quarn_ocsp_revokedinfo_new(
    const quarn_asn1_time *revocation_time, const quarn_asn1_integer *revocation_reason);
/** revocationTime. */
QUARN_ASN1_API quarn_asn1_time *quarn_ocsp_revokedinfo_getrevocationtime(
    const quarn_ocsp_revokedinfo *value);
/** 1 when revocationReason is there. */
QUARN_ASN1_API int quarn_ocsp_revokedinfo_hasreason(const quarn_ocsp_revokedinfo *value);
/** revocationReason, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ocsp_revokedinfo_getreason(
    const quarn_ocsp_revokedinfo *value);

/* ---- CertStatus */

/**
 * The answer for one certificate (RFC 6960, 4.2.1).
 *
 *     CertStatus ::= CHOICE {
 *         good     [0] IMPLICIT NULL,
 *         revoked  [1] IMPLICIT RevokedInfo,
 *         unknown  [2] IMPLICIT NULL
 *     }
 *
 * Type id QUARN_ASN1_OCSP_CERTSTATUS (178).
 */
typedef struct quarn_ocsp_certstatus quarn_ocsp_certstatus;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSP_CERTSTATUS. */
QUARN_ASN1_API void quarn_ocsp_certstatus_free(quarn_ocsp_certstatus *value);
/** Number of the alternative: 0 good, 1 revoked, 2 unknown; all ones for null. */
QUARN_ASN1_API uint32_t quarn_ocsp_certstatus_gettype(const quarn_ocsp_certstatus *value);
/** The alternative good. */
QUARN_ASN1_API quarn_ocsp_certstatus *quarn_ocsp_certstatus_newgood(void);
/** The alternative revoked. */
QUARN_ASN1_API quarn_ocsp_certstatus *quarn_ocsp_certstatus_newrevoked(
    const quarn_ocsp_revokedinfo *revoked);
/** revoked, null when it is another alternative. */
QUARN_ASN1_API quarn_ocsp_revokedinfo *quarn_ocsp_certstatus_getrevokedinfo(
    const quarn_ocsp_certstatus *value);
/** The alternative unknown. */
QUARN_ASN1_API quarn_ocsp_certstatus *quarn_ocsp_certstatus_newunknown(void);

/* ---- SingleResponse */

/**
 * A certificate, its status, and when that was known to be right (RFC 6960, 4.2.1).
 *
 *     SingleResponse ::= SEQUENCE {
 *         certID            CertID,
 *         certStatus        CertStatus,
 *         thisUpdate        GeneralizedTime,
 *         nextUpdate        [0] EXPLICIT GeneralizedTime OPTIONAL,
 *         singleExtensions  [1] EXPLICIT Extensions OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_OCSP_SINGLERESPONSE (179).
 */
typedef struct quarn_ocsp_singleresponse quarn_ocsp_singleresponse;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSP_SINGLERESPONSE. */
QUARN_ASN1_API void quarn_ocsp_singleresponse_free(quarn_ocsp_singleresponse *value);
/** From its components. Null leaves out next_update and single_extensions. */
QUARN_ASN1_API quarn_ocsp_singleresponse *quarn_ocsp_singleresponse_new(
    const quarn_ocsp_certid *cert_id,
    const quarn_ocsp_certstatus *cert_status,
    const quarn_asn1_time *this_update,
    const quarn_asn1_time *next_update,
    const quarn_asn1_list *single_extensions);
/** certID. */
QUARN_ASN1_API quarn_ocsp_certid *quarn_ocsp_singleresponse_getcertid(
    const quarn_ocsp_singleresponse *value);
/** certStatus. */
QUARN_ASN1_API quarn_ocsp_certstatus *quarn_ocsp_singleresponse_getcertstatus(
    const quarn_ocsp_singleresponse *value);
/** thisUpdate. */
QUARN_ASN1_API quarn_asn1_time *quarn_ocsp_singleresponse_getthisupdate(
    const quarn_ocsp_singleresponse *value);
/** 1 when nextUpdate is there. */
QUARN_ASN1_API int quarn_ocsp_singleresponse_hasnextupdate(const quarn_ocsp_singleresponse *value);
/** nextUpdate, null when it is absent. */
QUARN_ASN1_API quarn_asn1_time *quarn_ocsp_singleresponse_getnextupdate(
    const quarn_ocsp_singleresponse *value);
/** 1 when singleExtensions is there. */
QUARN_ASN1_API int quarn_ocsp_singleresponse_hasexts(const quarn_ocsp_singleresponse *value);
/** singleExtensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ocsp_singleresponse_getexts(
    const quarn_ocsp_singleresponse *value);

/* ---- SingleResponses */

/**
 * The answers of a response (RFC 6960, 4.2.1).
 *
 *     SingleResponses ::= SEQUENCE OF SingleResponse
 *
 * Type id QUARN_ASN1_OCSP_RESPONSES (180). A quarn_asn1_list of SingleResponse
 * (quarn_ocsp_singleresponse).
 */
QUARN_ASN1_API void quarn_ocsp_responses_free(quarn_asn1_list *value);

/* ---- ResponseData */

/**
 * The part of a response that is signed (RFC 6960, 4.2.1).
 *
 *     ResponseData ::= SEQUENCE {
 *         version             [0] EXPLICIT INTEGER DEFAULT 0,
 *         responderID         ResponderID,
 *         producedAt          GeneralizedTime,
 *         responses           SingleResponses,
 *         responseExtensions  [1] EXPLICIT Extensions OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_OCSP_RESPONSEDATA (181).
 */
typedef struct quarn_ocsp_responsedata quarn_ocsp_responsedata;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSP_RESPONSEDATA. */
QUARN_ASN1_API void quarn_ocsp_responsedata_free(quarn_ocsp_responsedata *value);
/**
 * From its components. Null leaves out response_extensions, and stands for the default of version
 * (0).
 */
QUARN_ASN1_API quarn_ocsp_responsedata *quarn_ocsp_responsedata_new(
    const quarn_asn1_integer *version,
    const quarn_ocsp_responderid *responder_id,
    const quarn_asn1_time *produced_at,
    const quarn_asn1_list *responses,
    const quarn_asn1_list *response_extensions);
/** version, 0 when the encoding has none. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ocsp_responsedata_getversion(
    const quarn_ocsp_responsedata *value);
/** responderID. */
QUARN_ASN1_API quarn_ocsp_responderid *quarn_ocsp_responsedata_getresponderid(
    const quarn_ocsp_responsedata *value);
/** producedAt. */
QUARN_ASN1_API quarn_asn1_time *quarn_ocsp_responsedata_getproducedat(
    const quarn_ocsp_responsedata *value);
/** responses. */
QUARN_ASN1_API quarn_asn1_list *quarn_ocsp_responsedata_getresponses(
    const quarn_ocsp_responsedata *value);
/** 1 when responseExtensions is there. */
QUARN_ASN1_API int quarn_ocsp_responsedata_hasexts(const quarn_ocsp_responsedata *value);
/** responseExtensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ocsp_responsedata_getexts(
    const quarn_ocsp_responsedata *value);

/* ---- BasicOCSPResponse */

/**
 * The usual response (RFC 6960, 4.2.1). A decoded one keeps the octets of tbsResponseData, which
 * are what is signed, and writes them as they came.
 *
 *     BasicOCSPResponse ::= SEQUENCE {
 *         tbsResponseData     ResponseData,
 *         signatureAlgorithm  AlgorithmIdentifier,
 *         signature           BIT STRING,
 *         certs               [0] EXPLICIT Certificates OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_OCSP_BASICOCSPRESPONSE (182).
 */
typedef struct quarn_ocsp_basicocspresponse quarn_ocsp_basicocspresponse;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSP_BASICOCSPRESPONSE. */
QUARN_ASN1_API void quarn_ocsp_basicocspresponse_free(quarn_ocsp_basicocspresponse *value);
/** From its components. Null leaves out certs. */
QUARN_ASN1_API quarn_ocsp_basicocspresponse *quarn_ocsp_basicocspresponse_new(
    const quarn_ocsp_responsedata *tbs_response_data,
    const quarn_x509algoid *signature_algorithm,
    const quarn_asn1_bitstring *signature,
    const quarn_asn1_list *certs);
/** tbsResponseData. */
QUARN_ASN1_API quarn_ocsp_responsedata *quarn_ocsp_basicocspresponse_gettbsresponsedata(
    const quarn_ocsp_basicocspresponse *value);
/** signatureAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_ocsp_basicocspresponse_getsignalgo(
    const quarn_ocsp_basicocspresponse *value);
/** signature. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_ocsp_basicocspresponse_getsignature(
    const quarn_ocsp_basicocspresponse *value);
/** 1 when certs is there. */
QUARN_ASN1_API int quarn_ocsp_basicocspresponse_hascerts(const quarn_ocsp_basicocspresponse *value);
/** certs, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ocsp_basicocspresponse_getcerts(
    const quarn_ocsp_basicocspresponse *value);
/**
 * The octets of tbsResponseData that were, or are to be, signed. length says how much room buffer
 * has and receives how many octets there are; a null buffer asks for no more. 0 when the room is
 * too small, length is null, or the value cannot be encoded.
 */
QUARN_ASN1_API int quarn_ocsp_basicocspresponse_gettbsocts(quarn_ocsp_basicocspresponse *value,
                                                           uint8_t *buffer,
                                                           uint64_t *length);

/* ---- CrlID */

/**
 * Where a revocation list is that the status comes from (RFC 6960, 4.4.2).
 *
 *     CrlID ::= SEQUENCE {
 *         crlUrl   [0] EXPLICIT IA5String OPTIONAL,
 *         crlNum   [1] EXPLICIT INTEGER OPTIONAL,
 *         crlTime  [2] EXPLICIT GeneralizedTime OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_OCSP_CRLID (183).
 */
typedef struct quarn_ocsp_crlid quarn_ocsp_crlid;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSP_CRLID. */
QUARN_ASN1_API void quarn_ocsp_crlid_free(quarn_ocsp_crlid *value);
/** From its components. Null leaves out crl_url, crl_num and crl_time. */
QUARN_ASN1_API quarn_ocsp_crlid *quarn_ocsp_crlid_new(const quarn_asn1_octetstring *crl_url,
                                                      const quarn_asn1_integer *crl_num,
                                                      const quarn_asn1_time *crl_time);
/** 1 when crlUrl is there. */
QUARN_ASN1_API int quarn_ocsp_crlid_hascrlurl(const quarn_ocsp_crlid *value);
/** crlUrl, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ocsp_crlid_getcrlurl(const quarn_ocsp_crlid *value);
/** 1 when crlNum is there. */
QUARN_ASN1_API int quarn_ocsp_crlid_hascrlnum(const quarn_ocsp_crlid *value);
/** crlNum, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ocsp_crlid_getcrlnum(const quarn_ocsp_crlid *value);
/** 1 when crlTime is there. */
QUARN_ASN1_API int quarn_ocsp_crlid_hascrltime(const quarn_ocsp_crlid *value);
/** crlTime, null when it is absent. */
QUARN_ASN1_API quarn_asn1_time *quarn_ocsp_crlid_getcrltime(const quarn_ocsp_crlid *value);

/* ---- ServiceLocator */

/**
 * The responder to route a request to (RFC 6960, 4.4.6). locator may be absent, as many write it,
 * though the standard's module has it mandatory.
 *
 *     ServiceLocator ::= SEQUENCE {
 *         issuer   Name,
 *         locator  AuthorityInfoAccessSyntax OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_OCSP_SERVICELOCATOR (184).
 */
typedef struct quarn_ocsp_servicelocator quarn_ocsp_servicelocator;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSP_SERVICELOCATOR. */
QUARN_ASN1_API void quarn_ocsp_servicelocator_free(quarn_ocsp_servicelocator *value);
/** From its components. Null leaves out locator. */
QUARN_ASN1_API quarn_ocsp_servicelocator *quarn_ocsp_servicelocator_new(
    const quarn_x500name *issuer, const quarn_asn1_list *locator);
/** issuer. */
QUARN_ASN1_API quarn_x500name *quarn_ocsp_servicelocator_getissuer(
    const quarn_ocsp_servicelocator *value);
/** 1 when locator is there. */
QUARN_ASN1_API int quarn_ocsp_servicelocator_haslocator(const quarn_ocsp_servicelocator *value);
/** locator, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ocsp_servicelocator_getlocator(
    const quarn_ocsp_servicelocator *value);

/* ---- PreferredSignatureAlgorithm */

/**
 * A signature algorithm that a client prefers, and perhaps the public key that goes with it (RFC
 * 6960, 4.4.7.1). The text and the module of the standard name the second component differently; on
 * the wire it is the same.
 *
 *     PreferredSignatureAlgorithm ::= SEQUENCE {
 *         sigIdentifier   AlgorithmIdentifier,
 *         certIdentifier  AlgorithmIdentifier OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_OCSP_PREFERREDSIGNALGO (185).
 */
typedef struct quarn_ocsp_preferredsignalgo quarn_ocsp_preferredsignalgo;
/** As quarn_asn1_value_free() under QUARN_ASN1_OCSP_PREFERREDSIGNALGO. */
QUARN_ASN1_API void quarn_ocsp_preferredsignalgo_free(quarn_ocsp_preferredsignalgo *value);
/** From its components. Null leaves out cert_identifier. */
QUARN_ASN1_API quarn_ocsp_preferredsignalgo *quarn_ocsp_preferredsignalgo_new(
    const quarn_x509algoid *sig_identifier, const quarn_x509algoid *cert_identifier);
/** sigIdentifier. */
QUARN_ASN1_API quarn_x509algoid *quarn_ocsp_preferredsignalgo_getsignalgo(
    const quarn_ocsp_preferredsignalgo *value);
/** 1 when certIdentifier is there. */
QUARN_ASN1_API int quarn_ocsp_preferredsignalgo_hascertalgo(
    const quarn_ocsp_preferredsignalgo *value);
/** certIdentifier, null when it is absent. */
QUARN_ASN1_API quarn_x509algoid *quarn_ocsp_preferredsignalgo_getcertalgo(
    const quarn_ocsp_preferredsignalgo *value);

/* ---- PreferredSignatureAlgorithms */

/**
 * Signature algorithms that a client prefers, the best first (RFC 6960, 4.4.7.1).
 *
 *     PreferredSignatureAlgorithms ::= SEQUENCE OF PreferredSignatureAlgorithm
 *
 * Type id QUARN_ASN1_OCSP_PREFERREDSIGNALGOS (293). A quarn_asn1_list of
 * PreferredSignatureAlgorithm (quarn_ocsp_preferredsignalgo).
 */
QUARN_ASN1_API void quarn_ocsp_preferredsignalgos_free(quarn_asn1_list *value);

#ifdef __cplusplus
}
#endif

#endif
