/* Generated from modules/ASN1_PKCS12.asn1 by tools/generate.py; do not edit. */
/**
 * Personal information exchange: files of keys and certificates (PKCS #12, RFC 7292).
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
#ifndef QUARN_ASN1_PKCS12_H
#define QUARN_ASN1_PKCS12_H

#include "cms.h"
#include "types.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- MacData */

/**
 * The message authentication code of a file, and what its key is derived from (RFC 7292, 4).
 *
 *     MacData ::= SEQUENCE {
 *         mac         DigestInfo,
 *         macSalt     OCTET STRING,
 *         iterations  INTEGER DEFAULT 1
 *     }
 *
 * Type id QUARN_ASN1_PKCS12MACDATA (112).
 */
typedef struct quarn_pkcs12macdata quarn_pkcs12macdata;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS12MACDATA. */
QUARN_ASN1_API void quarn_pkcs12macdata_free(quarn_pkcs12macdata *value);
/** From its components. Null stands for the default of iterations (1). */
QUARN_ASN1_API quarn_pkcs12macdata *quarn_pkcs12macdata_new(const quarn_pkcsdigestinfo *mac,
                                                            const quarn_asn1_octetstring *mac_salt,
                                                            const quarn_asn1_integer *iterations);
/** mac. */
QUARN_ASN1_API quarn_pkcsdigestinfo *quarn_pkcs12macdata_getmac(const quarn_pkcs12macdata *value);
/** macSalt. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_pkcs12macdata_getmacsalt(
    const quarn_pkcs12macdata *value);
/** iterations, 1 when the encoding has none. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs12macdata_getiterations(
    const quarn_pkcs12macdata *value);

/* ---- PFX */

/**
 * A file (RFC 7292, 4). The content of authSafe holds an AuthenticatedSafe.
 *
 *     PFX ::= SEQUENCE {
 *         version   INTEGER,
 *         authSafe  ContentInfo,
 *         macData   MacData OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_PKCS12PFX (113).
 */
typedef struct quarn_pkcs12pfx quarn_pkcs12pfx;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS12PFX. */
QUARN_ASN1_API void quarn_pkcs12pfx_free(quarn_pkcs12pfx *value);
/** From its components. Null leaves out mac_data. */
QUARN_ASN1_API quarn_pkcs12pfx *quarn_pkcs12pfx_new(const quarn_asn1_integer *version,
                                                    const quarn_pkcs7contentinfo *auth_safe,
                                                    const quarn_pkcs12macdata *mac_data);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs12pfx_getversion(const quarn_pkcs12pfx *value);
/** authSafe. */
QUARN_ASN1_API quarn_pkcs7contentinfo *quarn_pkcs12pfx_getauthsafe(const quarn_pkcs12pfx *value);
/** 1 when macData is there. */
QUARN_ASN1_API int quarn_pkcs12pfx_hasmacdata(const quarn_pkcs12pfx *value);
/** macData, null when it is absent. */
QUARN_ASN1_API quarn_pkcs12macdata *quarn_pkcs12pfx_getmacdata(const quarn_pkcs12pfx *value);

/* ---- AuthenticatedSafe */

/**
 * The safes of a file, plain or encrypted (RFC 7292, 4.1). Each holds a SafeContents.
 *
 *     AuthenticatedSafe ::= SEQUENCE OF ContentInfo
 *
 * Type id QUARN_ASN1_PKCS12AUTHSAFE (114). A quarn_asn1_list of ContentInfo
 * (quarn_pkcs7contentinfo).
 */
QUARN_ASN1_API void quarn_pkcs12authsafe_free(quarn_asn1_list *value);

/* ---- SafeBag */

/**
 * A key, certificate or other secret: what bagId names (RFC 7292, 4.2).
 *
 *     SafeBag ::= SEQUENCE {
 *         bagId          OBJECT IDENTIFIER,
 *         bagValue       [0] EXPLICIT ANY,
 *         bagAttributes  Attributes OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_PKCS12SAFEBAG (115).
 */
typedef struct quarn_pkcs12safebag quarn_pkcs12safebag;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS12SAFEBAG. */
QUARN_ASN1_API void quarn_pkcs12safebag_free(quarn_pkcs12safebag *value);
/** From its components. Null leaves out bag_attributes. */
QUARN_ASN1_API quarn_pkcs12safebag *quarn_pkcs12safebag_new(const quarn_asn1_oid *bag_id,
                                                            const quarn_asn1_any *bag_value,
                                                            const quarn_asn1_list *bag_attributes);
/** bagId. */
QUARN_ASN1_API quarn_asn1_oid *quarn_pkcs12safebag_getbagid(const quarn_pkcs12safebag *value);
/** bagValue. */
QUARN_ASN1_API quarn_asn1_any *quarn_pkcs12safebag_getbagvalue(const quarn_pkcs12safebag *value);
/** 1 when bagAttributes is there. */
QUARN_ASN1_API int quarn_pkcs12safebag_hasattrs(const quarn_pkcs12safebag *value);
/** bagAttributes, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_pkcs12safebag_getattrs(const quarn_pkcs12safebag *value);

/* ---- SafeContents */

/**
 * The bags of a safe (RFC 7292, 4.2).
 *
 *     SafeContents ::= SEQUENCE OF SafeBag
 *
 * Type id QUARN_ASN1_PKCS12SAFEBAGS (116). A quarn_asn1_list of SafeBag (quarn_pkcs12safebag).
 */
QUARN_ASN1_API void quarn_pkcs12safebags_free(quarn_asn1_list *value);

/* ---- CertBag */

/**
 * A certificate (RFC 7292, 4.2.3).
 *
 *     CertBag ::= SEQUENCE {
 *         certId     OBJECT IDENTIFIER,
 *         certValue  [0] EXPLICIT ANY
 *     }
 *
 * Type id QUARN_ASN1_PKCS12CERTBAG (117).
 */
typedef struct quarn_pkcs12certbag quarn_pkcs12certbag;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS12CERTBAG. */
QUARN_ASN1_API void quarn_pkcs12certbag_free(quarn_pkcs12certbag *value);
/** From its components. */
QUARN_ASN1_API quarn_pkcs12certbag *quarn_pkcs12certbag_new(const quarn_asn1_oid *cert_id,
                                                            const quarn_asn1_any *cert_value);
/** certId. */
QUARN_ASN1_API quarn_asn1_oid *quarn_pkcs12certbag_getcertid(const quarn_pkcs12certbag *value);
/** certValue. */
QUARN_ASN1_API quarn_asn1_any *quarn_pkcs12certbag_getcertvalue(const quarn_pkcs12certbag *value);

/* ---- CRLBag */

/**
 * A certificate revocation list (RFC 7292, 4.2.4).
 *
 *     CRLBag ::= SEQUENCE {
 *         crlId     OBJECT IDENTIFIER,
 *         crlValue  [0] EXPLICIT ANY
 *     }
 *
 * Type id QUARN_ASN1_PKCS12CRLBAG (118).
 */
typedef struct quarn_pkcs12crlbag quarn_pkcs12crlbag;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS12CRLBAG. */
QUARN_ASN1_API void quarn_pkcs12crlbag_free(quarn_pkcs12crlbag *value);
/** From its components. */
QUARN_ASN1_API quarn_pkcs12crlbag *quarn_pkcs12crlbag_new(const quarn_asn1_oid *crl_id,
                                                          const quarn_asn1_any *crl_value);
/** crlId. */
QUARN_ASN1_API quarn_asn1_oid *quarn_pkcs12crlbag_getcrlid(const quarn_pkcs12crlbag *value);
/** crlValue. */
QUARN_ASN1_API quarn_asn1_any *quarn_pkcs12crlbag_getcrlvalue(const quarn_pkcs12crlbag *value);

/* ---- SecretBag */

/**
 * A secret of another kind (RFC 7292, 4.2.5).
 *
 *     SecretBag ::= SEQUENCE {
 *         secretTypeId  OBJECT IDENTIFIER,
 *         secretValue   [0] EXPLICIT ANY
 *     }
 *
 * Type id QUARN_ASN1_PKCS12SECRETBAG (119).
 */
typedef struct quarn_pkcs12secretbag quarn_pkcs12secretbag;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS12SECRETBAG. */
QUARN_ASN1_API void quarn_pkcs12secretbag_free(quarn_pkcs12secretbag *value);
/** From its components. */
QUARN_ASN1_API quarn_pkcs12secretbag *quarn_pkcs12secretbag_new(
    const quarn_asn1_oid *secret_type_id, const quarn_asn1_any *secret_value);
/** secretTypeId. */
QUARN_ASN1_API quarn_asn1_oid *quarn_pkcs12secretbag_getsecrettypeid(
    const quarn_pkcs12secretbag *value);
/** secretValue. */
QUARN_ASN1_API quarn_asn1_any *quarn_pkcs12secretbag_getsecretvalue(
    const quarn_pkcs12secretbag *value);

/* ---- Pkcs-12PbeParams */

/**
 * The parameters of the encryption algorithms of the standard (RFC 7292, C).
 *
 *     Pkcs-12PbeParams ::= SEQUENCE {
 *         salt        OCTET STRING,
 *         iterations  INTEGER
 *     }
 *
 * Type id QUARN_ASN1_PKCS12PBEPARAMS (120).
 */
typedef struct quarn_pkcs12pbeparams quarn_pkcs12pbeparams;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS12PBEPARAMS. */
QUARN_ASN1_API void quarn_pkcs12pbeparams_free(quarn_pkcs12pbeparams *value);
/** From its components. */
QUARN_ASN1_API quarn_pkcs12pbeparams *quarn_pkcs12pbeparams_new(
    const quarn_asn1_octetstring *salt, const quarn_asn1_integer *iterations);
/** salt. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_pkcs12pbeparams_getsalt(
    const quarn_pkcs12pbeparams *value);
/** iterations. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs12pbeparams_getiterations(
    const quarn_pkcs12pbeparams *value);

#ifdef __cplusplus
}
#endif

#endif
