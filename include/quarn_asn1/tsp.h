/* Generated from modules/ASN1_TSP.asn1 by tools/generate.py; do not edit. */
/**
 * The time-stamp protocol (RFC 3161).
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
#ifndef QUARN_ASN1_TSP_H
#define QUARN_ASN1_TSP_H

#include "cms.h"
#include "extension.h"
#include "types.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- TimeStampReq */

/**
 * A request for a time-stamp (RFC 3161, 2.4.1).
 *
 *     TimeStampReq ::= SEQUENCE {
 *         version         INTEGER,
 *         messageImprint  DigestInfo,
 *         reqPolicy       OBJECT IDENTIFIER OPTIONAL,
 *         nonce           INTEGER OPTIONAL,
 *         certReq         BOOLEAN DEFAULT FALSE,
 *         extensions      [0] IMPLICIT Extensions OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_TSP_TIMESTAMPREQ (187).
 */
typedef struct quarn_tsp_timestampreq quarn_tsp_timestampreq;
/** As quarn_asn1_value_free() under QUARN_ASN1_TSP_TIMESTAMPREQ. */
QUARN_ASN1_API void quarn_tsp_timestampreq_free(quarn_tsp_timestampreq *value);
/**
 * From its components. Null leaves out req_policy, nonce and extensions, and stands for the default
 * of cert_req (FALSE).
 */
QUARN_ASN1_API quarn_tsp_timestampreq *quarn_tsp_timestampreq_new(
    const quarn_asn1_integer *version,
    const quarn_pkcsdigestinfo *message_imprint,
    const quarn_asn1_oid *req_policy,
    const quarn_asn1_integer *nonce,
    const quarn_asn1_boolean *cert_req,
    const quarn_asn1_list *extensions);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_tsp_timestampreq_getversion(
    const quarn_tsp_timestampreq *value);
/** messageImprint. */
QUARN_ASN1_API quarn_pkcsdigestinfo *quarn_tsp_timestampreq_getmsgimprint(
    const quarn_tsp_timestampreq *value);
/** 1 when reqPolicy is there. */
QUARN_ASN1_API int quarn_tsp_timestampreq_hasreqpolicy(const quarn_tsp_timestampreq *value);
/** reqPolicy, null when it is absent. */
QUARN_ASN1_API quarn_asn1_oid *quarn_tsp_timestampreq_getreqpolicy(
    const quarn_tsp_timestampreq *value);
/** 1 when nonce is there. */
QUARN_ASN1_API int quarn_tsp_timestampreq_hasnonce(const quarn_tsp_timestampreq *value);
/** nonce, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_tsp_timestampreq_getnonce(
    const quarn_tsp_timestampreq *value);
/** certReq, FALSE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_tsp_timestampreq_getcertreq(
    const quarn_tsp_timestampreq *value);
/** 1 when extensions is there. */
QUARN_ASN1_API int quarn_tsp_timestampreq_hasexts(const quarn_tsp_timestampreq *value);
/** extensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_tsp_timestampreq_getexts(const quarn_tsp_timestampreq *value);

/* ---- PKIFreeText */

/**
 * Text for a person, in one or more languages (RFC 4210, 5.1.1).
 *
 *     PKIFreeText ::= SEQUENCE SIZE (1..MAX) OF UTF8String
 *
 * Type id QUARN_ASN1_PKIFREETEXT (188). A quarn_asn1_list of UTF8String (quarn_asn1_octetstring).
 */
QUARN_ASN1_API void quarn_pkifreetext_free(quarn_asn1_list *value);

/* ---- PKIStatusInfo */

/**
 * How a request went (RFC 3161, 2.4.2).
 *
 *     PKIStatusInfo ::= SEQUENCE {
 *         status        INTEGER,
 *         statusString  PKIFreeText OPTIONAL,
 *         failInfo      BIT STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_TSP_PKISTATUSINFO (189).
 */
typedef struct quarn_tsp_pkistatusinfo quarn_tsp_pkistatusinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_TSP_PKISTATUSINFO. */
QUARN_ASN1_API void quarn_tsp_pkistatusinfo_free(quarn_tsp_pkistatusinfo *value);
/** From its components. Null leaves out status_string and fail_info. */
QUARN_ASN1_API quarn_tsp_pkistatusinfo *quarn_tsp_pkistatusinfo_new(
    const quarn_asn1_integer *status,
    const quarn_asn1_list *status_string,
    const quarn_asn1_bitstring *fail_info);
/** status. */
QUARN_ASN1_API quarn_asn1_integer *quarn_tsp_pkistatusinfo_getstatus(
    const quarn_tsp_pkistatusinfo *value);
/** 1 when statusString is there. */
QUARN_ASN1_API int quarn_tsp_pkistatusinfo_hasstatusstring(const quarn_tsp_pkistatusinfo *value);
/** statusString, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_tsp_pkistatusinfo_getstatusstring(
    const quarn_tsp_pkistatusinfo *value);
/** 1 when failInfo is there. */
QUARN_ASN1_API int quarn_tsp_pkistatusinfo_hasfailinfo(const quarn_tsp_pkistatusinfo *value);
/** failInfo, null when it is absent. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_tsp_pkistatusinfo_getfailinfo(
    const quarn_tsp_pkistatusinfo *value);

/* ---- TimeStampResp */

/**
 * The answer to a request (RFC 3161, 2.4.2). Decoding accepts any status, with a token and without.
 *
 *     TimeStampResp ::= SEQUENCE {
 *         status          PKIStatusInfo,
 *         timeStampToken  ContentInfo OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_TSP_TIMESTAMPRESP (190).
 */
typedef struct quarn_tsp_timestampresp quarn_tsp_timestampresp;
/** As quarn_asn1_value_free() under QUARN_ASN1_TSP_TIMESTAMPRESP. */
QUARN_ASN1_API void quarn_tsp_timestampresp_free(quarn_tsp_timestampresp *value);
/** From its components. Null leaves out time_stamp_token. */
QUARN_ASN1_API quarn_tsp_timestampresp *quarn_tsp_timestampresp_new(
    const quarn_tsp_pkistatusinfo *status, const quarn_pkcs7contentinfo *time_stamp_token);
/** status. */
QUARN_ASN1_API quarn_tsp_pkistatusinfo *quarn_tsp_timestampresp_getstatus(
    const quarn_tsp_timestampresp *value);
/** 1 when timeStampToken is there. */
QUARN_ASN1_API int quarn_tsp_timestampresp_hastoken(const quarn_tsp_timestampresp *value);
/** timeStampToken, null when it is absent. */
QUARN_ASN1_API quarn_pkcs7contentinfo *quarn_tsp_timestampresp_gettoken(
    const quarn_tsp_timestampresp *value);

/* ---- Accuracy */

/**
 * How far a time may be off: seconds, thousandths and millionths of a second (RFC 3161, 2.4.2).
 *
 *     Accuracy ::= SEQUENCE {
 *         seconds  INTEGER OPTIONAL,
 *         millis   [0] IMPLICIT INTEGER OPTIONAL,
 *         micros   [1] IMPLICIT INTEGER OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_TSP_ACCURACY (191).
 */
typedef struct quarn_tsp_accuracy quarn_tsp_accuracy;
/** As quarn_asn1_value_free() under QUARN_ASN1_TSP_ACCURACY. */
QUARN_ASN1_API void quarn_tsp_accuracy_free(quarn_tsp_accuracy *value);
/** From its components. Null leaves out seconds, millis and micros. */
QUARN_ASN1_API quarn_tsp_accuracy *quarn_tsp_accuracy_new(const quarn_asn1_integer *seconds,
                                                          const quarn_asn1_integer *millis,
                                                          const quarn_asn1_integer *micros);
/** 1 when seconds is there. */
QUARN_ASN1_API int quarn_tsp_accuracy_hasseconds(const quarn_tsp_accuracy *value);
/** seconds, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_tsp_accuracy_getseconds(const quarn_tsp_accuracy *value);
/** 1 when millis is there. */
QUARN_ASN1_API int quarn_tsp_accuracy_hasmillis(const quarn_tsp_accuracy *value);
/** millis, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_tsp_accuracy_getmillis(const quarn_tsp_accuracy *value);
/** 1 when micros is there. */
QUARN_ASN1_API int quarn_tsp_accuracy_hasmicros(const quarn_tsp_accuracy *value);
/** micros, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_tsp_accuracy_getmicros(const quarn_tsp_accuracy *value);

/* ---- TSTInfo */

/**
 * What a time-stamp says (RFC 3161, 2.4.2).
 *
 *     TSTInfo ::= SEQUENCE {
 *         version         INTEGER,
 *         policy          OBJECT IDENTIFIER,
 *         messageImprint  DigestInfo,
 *         serialNumber    INTEGER,
 *         genTime         GeneralizedTime,
 *         accuracy        Accuracy OPTIONAL,
 *         ordering        BOOLEAN DEFAULT FALSE,
 *         nonce           INTEGER OPTIONAL,
 *         tsa             [0] EXPLICIT GeneralName OPTIONAL,
 *         extensions      [1] IMPLICIT Extensions OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_TSP_TSTINFO (192).
 */
typedef struct quarn_tsp_tstinfo quarn_tsp_tstinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_TSP_TSTINFO. */
QUARN_ASN1_API void quarn_tsp_tstinfo_free(quarn_tsp_tstinfo *value);
/**
 * From its components. Null leaves out accuracy, nonce, tsa and extensions, and stands for the
 * default of ordering (FALSE).
 */
QUARN_ASN1_API quarn_tsp_tstinfo *quarn_tsp_tstinfo_new(const quarn_asn1_integer *version,
                                                        const quarn_asn1_oid *policy,
                                                        const quarn_pkcsdigestinfo *message_imprint,
                                                        const quarn_asn1_integer *serial_number,
                                                        const quarn_asn1_time *gen_time,
                                                        const quarn_tsp_accuracy *accuracy,
                                                        const quarn_asn1_boolean *ordering,
                                                        const quarn_asn1_integer *nonce,
                                                        const quarn_x509generalname *tsa,
                                                        const quarn_asn1_list *extensions);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_tsp_tstinfo_getversion(const quarn_tsp_tstinfo *value);
/** policy. */
QUARN_ASN1_API quarn_asn1_oid *quarn_tsp_tstinfo_getpolicy(const quarn_tsp_tstinfo *value);
/** messageImprint. */
QUARN_ASN1_API quarn_pkcsdigestinfo *quarn_tsp_tstinfo_getmsgimprint(
    const quarn_tsp_tstinfo *value);
/** serialNumber. */
QUARN_ASN1_API quarn_asn1_integer *quarn_tsp_tstinfo_getserialno(const quarn_tsp_tstinfo *value);
/** genTime. */
QUARN_ASN1_API quarn_asn1_time *quarn_tsp_tstinfo_getgentime(const quarn_tsp_tstinfo *value);
/** 1 when accuracy is there. */
QUARN_ASN1_API int quarn_tsp_tstinfo_hasaccuracy(const quarn_tsp_tstinfo *value);
/** accuracy, null when it is absent. */
QUARN_ASN1_API quarn_tsp_accuracy *quarn_tsp_tstinfo_getaccuracy(const quarn_tsp_tstinfo *value);
/** ordering, FALSE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_tsp_tstinfo_getordering(const quarn_tsp_tstinfo *value);
/** 1 when nonce is there. */
QUARN_ASN1_API int quarn_tsp_tstinfo_hasnonce(const quarn_tsp_tstinfo *value);
/** nonce, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_tsp_tstinfo_getnonce(const quarn_tsp_tstinfo *value);
/** 1 when tsa is there. */
QUARN_ASN1_API int quarn_tsp_tstinfo_hastsa(const quarn_tsp_tstinfo *value);
/** tsa, null when it is absent. */
QUARN_ASN1_API quarn_x509generalname *quarn_tsp_tstinfo_gettsa(const quarn_tsp_tstinfo *value);
/** 1 when extensions is there. */
QUARN_ASN1_API int quarn_tsp_tstinfo_hasexts(const quarn_tsp_tstinfo *value);
/** extensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_tsp_tstinfo_getexts(const quarn_tsp_tstinfo *value);

#ifdef __cplusplus
}
#endif

#endif
