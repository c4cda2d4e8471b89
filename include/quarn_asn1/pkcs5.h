/* Generated from modules/ASN1_PKCS5.asn1 by tools/generate.py; do not edit. */
/**
 * Password-based cryptography: the parameters of its algorithms (PKCS #5, RFC 8018).
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
#ifndef QUARN_ASN1_PKCS5_H
#define QUARN_ASN1_PKCS5_H

#include "types.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- PBKDF2Salt */

/**
 * The salt of PBKDF2, or where it comes from (RFC 8018, A.2).
 *
 *     PBKDF2Salt ::= CHOICE {
 *         specified    OCTET STRING,
 *         otherSource  AlgorithmIdentifier
 *     }
 *
 * Type id QUARN_ASN1_PKCS5PBKDF2PARAMSSALT (146).
 */
typedef struct quarn_pkcs5pbkdf2paramssalt quarn_pkcs5pbkdf2paramssalt;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS5PBKDF2PARAMSSALT. */
QUARN_ASN1_API void quarn_pkcs5pbkdf2paramssalt_free(quarn_pkcs5pbkdf2paramssalt *value);
/** Number of the alternative: 0 specified, 1 otherSource; all ones for null. */
QUARN_ASN1_API uint32_t quarn_pkcs5pbkdf2paramssalt_gettype(
    const quarn_pkcs5pbkdf2paramssalt *value);
/** The alternative specified. */
QUARN_ASN1_API quarn_pkcs5pbkdf2paramssalt *quarn_pkcs5pbkdf2paramssalt_newspecified(
    const quarn_asn1_octetstring *specified);
/** specified, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_pkcs5pbkdf2paramssalt_getspecified(
    const quarn_pkcs5pbkdf2paramssalt *value);
/** The alternative otherSource. */
QUARN_ASN1_API quarn_pkcs5pbkdf2paramssalt *quarn_pkcs5pbkdf2paramssalt_newothersource(
    const quarn_x509algoid *other_source);
/** otherSource, null when it is another alternative. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcs5pbkdf2paramssalt_getothersource(
    const quarn_pkcs5pbkdf2paramssalt *value);

/* ---- PBKDF2-params */

/**
 * The parameters of PBKDF2 (RFC 8018, A.2). The default is HMAC with SHA-1.
 *
 *     PBKDF2-params ::= SEQUENCE {
 *         salt            PBKDF2Salt,
 *         iterationCount  INTEGER,
 *         keyLength       INTEGER OPTIONAL,
 *         prf             AlgorithmIdentifier DEFAULT '300c06082a864886f70d02070500'H
 *     }
 *
 * Type id QUARN_ASN1_PKCS5PBKDF2PARAMS (105).
 */
typedef struct quarn_pkcs5pbkdf2params quarn_pkcs5pbkdf2params;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS5PBKDF2PARAMS. */
QUARN_ASN1_API void quarn_pkcs5pbkdf2params_free(quarn_pkcs5pbkdf2params *value);
/** From its components. Null leaves out key_length, and stands for the default of prf. */
QUARN_ASN1_API quarn_pkcs5pbkdf2params *quarn_pkcs5pbkdf2params_new(
    const quarn_pkcs5pbkdf2paramssalt *salt,
    const quarn_asn1_integer *iteration_count,
    const quarn_asn1_integer *key_length,
    const quarn_x509algoid *prf);
/** salt. */
QUARN_ASN1_API quarn_pkcs5pbkdf2paramssalt *quarn_pkcs5pbkdf2params_getsalt(
    const quarn_pkcs5pbkdf2params *value);
/** iterationCount. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs5pbkdf2params_getitercount(
    const quarn_pkcs5pbkdf2params *value);
/** 1 when keyLength is there. */
QUARN_ASN1_API int quarn_pkcs5pbkdf2params_haskeylen(const quarn_pkcs5pbkdf2params *value);
/** keyLength, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs5pbkdf2params_getkeylen(
    const quarn_pkcs5pbkdf2params *value);
/** prf, the default when the encoding has none. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcs5pbkdf2params_getprf(
    const quarn_pkcs5pbkdf2params *value);

/* ---- PBEParameter */

/**
 * The parameters of PBES1 (RFC 8018, A.3). The salt has 8 octets: decoding, encoding and the
 * constructor refuse another.
 *
 *     PBEParameter ::= SEQUENCE {
 *         salt            OCTET STRING,
 *         iterationCount  INTEGER
 *     }
 *
 * Type id QUARN_ASN1_PKCS5PBEPARAM (106).
 */
typedef struct quarn_pkcs5pbeparam quarn_pkcs5pbeparam;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS5PBEPARAM. */
QUARN_ASN1_API void quarn_pkcs5pbeparam_free(quarn_pkcs5pbeparam *value);
/** From its components. */
QUARN_ASN1_API quarn_pkcs5pbeparam *quarn_pkcs5pbeparam_new(
    const quarn_asn1_octetstring *salt, const quarn_asn1_integer *iteration_count);
/** salt. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_pkcs5pbeparam_getsalt(
    const quarn_pkcs5pbeparam *value);
/** iterationCount. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs5pbeparam_getitercount(
    const quarn_pkcs5pbeparam *value);

/* ---- PBES2-params */

/**
 * The parameters of PBES2 (RFC 8018, A.4).
 *
 *     PBES2-params ::= SEQUENCE {
 *         keyDerivationFunc  AlgorithmIdentifier,
 *         encryptionScheme   AlgorithmIdentifier
 *     }
 *
 * Type id QUARN_ASN1_PKCS5PBES2PARAMS (107).
 */
typedef struct quarn_pkcs5pbes2params quarn_pkcs5pbes2params;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS5PBES2PARAMS. */
QUARN_ASN1_API void quarn_pkcs5pbes2params_free(quarn_pkcs5pbes2params *value);
/** From its components. */
QUARN_ASN1_API quarn_pkcs5pbes2params *quarn_pkcs5pbes2params_new(
    const quarn_x509algoid *key_derivation_func, const quarn_x509algoid *encryption_scheme);
/** keyDerivationFunc. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcs5pbes2params_getkdf(const quarn_pkcs5pbes2params *value);
/** encryptionScheme. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcs5pbes2params_getencscheme(
    const quarn_pkcs5pbes2params *value);

/* ---- PBMAC1-params */

/**
 * The parameters of PBMAC1 (RFC 8018, A.5).
 *
 *     PBMAC1-params ::= SEQUENCE {
 *         keyDerivationFunc  AlgorithmIdentifier,
 *         messageAuthScheme  AlgorithmIdentifier
 *     }
 *
 * Type id QUARN_ASN1_PKCS5PBMAC1PARAMS (108).
 */
typedef struct quarn_pkcs5pbmac1params quarn_pkcs5pbmac1params;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS5PBMAC1PARAMS. */
QUARN_ASN1_API void quarn_pkcs5pbmac1params_free(quarn_pkcs5pbmac1params *value);
/** From its components. */
QUARN_ASN1_API quarn_pkcs5pbmac1params *quarn_pkcs5pbmac1params_new(
    const quarn_x509algoid *key_derivation_func, const quarn_x509algoid *message_auth_scheme);
/** keyDerivationFunc. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcs5pbmac1params_getkdf(
    const quarn_pkcs5pbmac1params *value);
/** messageAuthScheme. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcs5pbmac1params_getmacscheme(
    const quarn_pkcs5pbmac1params *value);

/* ---- RC2-CBC-Parameter */

/**
 * The parameters of RC2 in CBC mode (RFC 8018, B.2.3).
 *
 *     RC2-CBC-Parameter ::= SEQUENCE {
 *         rc2ParameterVersion  INTEGER OPTIONAL,
 *         iv                   OCTET STRING (SIZE (8))
 *     }
 *
 * Type id QUARN_ASN1_PKCS5RC2CBCPARAMETER (109).
 */
typedef struct quarn_pkcs5rc2cbcparameter quarn_pkcs5rc2cbcparameter;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS5RC2CBCPARAMETER. */
QUARN_ASN1_API void quarn_pkcs5rc2cbcparameter_free(quarn_pkcs5rc2cbcparameter *value);
/** From its components. Null leaves out rc2_parameter_version. */
QUARN_ASN1_API quarn_pkcs5rc2cbcparameter *quarn_pkcs5rc2cbcparameter_new(
    const quarn_asn1_integer *rc2_parameter_version, const quarn_asn1_octetstring *iv);
/** 1 when rc2ParameterVersion is there. */
QUARN_ASN1_API int quarn_pkcs5rc2cbcparameter_hasversion(const quarn_pkcs5rc2cbcparameter *value);
/** rc2ParameterVersion, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs5rc2cbcparameter_getversion(
    const quarn_pkcs5rc2cbcparameter *value);
/** iv. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_pkcs5rc2cbcparameter_getiv(
    const quarn_pkcs5rc2cbcparameter *value);

/* ---- RC5-CBC-Parameters */

/**
 * The parameters of RC5 in CBC mode (RFC 8018, B.2.4).
 *
 *     RC5-CBC-Parameters ::= SEQUENCE {
 *         version          INTEGER,
 *         rounds           INTEGER,
 *         blockSizeInBits  INTEGER,
 *         iv               OCTET STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_PKCS5RC5CBCPARAMETER (110).
 */
typedef struct quarn_pkcs5rc5cbcparameter quarn_pkcs5rc5cbcparameter;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS5RC5CBCPARAMETER. */
QUARN_ASN1_API void quarn_pkcs5rc5cbcparameter_free(quarn_pkcs5rc5cbcparameter *value);
/** From its components. Null leaves out iv. */
QUARN_ASN1_API quarn_pkcs5rc5cbcparameter *quarn_pkcs5rc5cbcparameter_new(
    const quarn_asn1_integer *version,
    const quarn_asn1_integer *rounds,
    const quarn_asn1_integer *block_size_in_bits,
    const quarn_asn1_octetstring *iv);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs5rc5cbcparameter_getversion(
    const quarn_pkcs5rc5cbcparameter *value);
/** rounds. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs5rc5cbcparameter_getrounds(
    const quarn_pkcs5rc5cbcparameter *value);
/** blockSizeInBits. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs5rc5cbcparameter_getblocksize(
    const quarn_pkcs5rc5cbcparameter *value);
/** 1 when iv is there. */
QUARN_ASN1_API int quarn_pkcs5rc5cbcparameter_hasiv(const quarn_pkcs5rc5cbcparameter *value);
/** iv, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_pkcs5rc5cbcparameter_getiv(
    const quarn_pkcs5rc5cbcparameter *value);

#ifdef __cplusplus
}
#endif

#endif
