/* Generated from modules/ASN1_PKCS1.asn1 by tools/generate.py; do not edit. */
/**
 * RSA keys and the parameters of RSA algorithms (PKCS #1, RFC 8017).
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
#ifndef QUARN_ASN1_PKCS1_H
#define QUARN_ASN1_PKCS1_H

#include "types.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- RSAPublicKey */

/**
 * An RSA public key (RFC 8017, A.1.1).
 *
 *     RSAPublicKey ::= SEQUENCE {
 *         modulus         INTEGER,
 *         publicExponent  INTEGER
 *     }
 *
 * Type id QUARN_ASN1_PKCS1RSAPUBKEY (56).
 */
typedef struct quarn_pkcs1rsapubkey quarn_pkcs1rsapubkey;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS1RSAPUBKEY. */
QUARN_ASN1_API void quarn_pkcs1rsapubkey_free(quarn_pkcs1rsapubkey *value);
/** From its components. */
QUARN_ASN1_API quarn_pkcs1rsapubkey *quarn_pkcs1rsapubkey_new(
    const quarn_asn1_integer *modulus, const quarn_asn1_integer *public_exponent);
/** modulus. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs1rsapubkey_getmodulus(
    const quarn_pkcs1rsapubkey *value);
/** publicExponent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs1rsapubkey_getpubexp(
    const quarn_pkcs1rsapubkey *value);

/* ---- OtherPrimeInfo */

/**
 * A third or later prime of an RSA key (RFC 8017, A.1.2).
 *
 *     OtherPrimeInfo ::= SEQUENCE {
 *         prime        INTEGER,
 *         exponent     INTEGER,
 *         coefficient  INTEGER
 *     }
 *
 * Type id QUARN_ASN1_PKCS1OTHERPRIMEINFO (144).
 */
typedef struct quarn_pkcs1otherprimeinfo quarn_pkcs1otherprimeinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS1OTHERPRIMEINFO. */
QUARN_ASN1_API void quarn_pkcs1otherprimeinfo_free(quarn_pkcs1otherprimeinfo *value);
/** From its components. */
QUARN_ASN1_API quarn_pkcs1otherprimeinfo *quarn_pkcs1otherprimeinfo_new(
    const quarn_asn1_integer *prime,
    const quarn_asn1_integer *exponent,
    const quarn_asn1_integer *coefficient);
/** prime. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs1otherprimeinfo_getprime(
    const quarn_pkcs1otherprimeinfo *value);
/** exponent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs1otherprimeinfo_getexponent(
    const quarn_pkcs1otherprimeinfo *value);
/** coefficient. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs1otherprimeinfo_getcoefficient(
    const quarn_pkcs1otherprimeinfo *value);

/* ---- OtherPrimeInfos */

/**
 * The primes of an RSA key after the first two (RFC 8017, A.1.2).
 *
 *     OtherPrimeInfos ::= SEQUENCE SIZE (1..MAX) OF OtherPrimeInfo
 *
 * Type id QUARN_ASN1_PKCS1OTHERPRIMEINFOS (145). A quarn_asn1_list of OtherPrimeInfo
 * (quarn_pkcs1otherprimeinfo).
 */
QUARN_ASN1_API void quarn_pkcs1otherprimeinfos_free(quarn_asn1_list *value);

/* ---- RSAPrivateKey */

/**
 * An RSA private key (RFC 8017, A.1.2). version is 1 when there are other primes, else 0: decoding,
 * encoding and the constructor refuse another.
 *
 *     RSAPrivateKey ::= SEQUENCE {
 *         version          INTEGER,
 *         modulus          INTEGER,
 *         publicExponent   INTEGER,
 *         privateExponent  INTEGER,
 *         prime1           INTEGER,
 *         prime2           INTEGER,
 *         exponent1        INTEGER,
 *         exponent2        INTEGER,
 *         coefficient      INTEGER,
 *         otherPrimeInfos  OtherPrimeInfos OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_PKCS1RSAPRIVKEY (99).
 */
typedef struct quarn_pkcs1rsaprivkey quarn_pkcs1rsaprivkey;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS1RSAPRIVKEY. */
QUARN_ASN1_API void quarn_pkcs1rsaprivkey_free(quarn_pkcs1rsaprivkey *value);
/** From its components. Null leaves out other_prime_infos. */
QUARN_ASN1_API quarn_pkcs1rsaprivkey *quarn_pkcs1rsaprivkey_new(
    const quarn_asn1_integer *version,
    const quarn_asn1_integer *modulus,
    const quarn_asn1_integer *public_exponent,
    const quarn_asn1_integer *private_exponent,
    const quarn_asn1_integer *prime1,
    const quarn_asn1_integer *prime2,
    const quarn_asn1_integer *exponent1,
    const quarn_asn1_integer *exponent2,
    const quarn_asn1_integer *coefficient,
    const quarn_asn1_list *other_prime_infos);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs1rsaprivkey_getversion(
    const quarn_pkcs1rsaprivkey *value);
/** modulus. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs1rsaprivkey_getmodulus(
    const quarn_pkcs1rsaprivkey *value);
/** publicExponent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs1rsaprivkey_getpubexp(
    const quarn_pkcs1rsaprivkey *value);
/** privateExponent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs1rsaprivkey_getprivexp(
    const quarn_pkcs1rsaprivkey *value);
/** prime1. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs1rsaprivkey_getprime1(
    const quarn_pkcs1rsaprivkey *value);
/** prime2. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs1rsaprivkey_getprime2(
    const quarn_pkcs1rsaprivkey *value);
/** exponent1. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs1rsaprivkey_getexp1(
    const quarn_pkcs1rsaprivkey *value);
/** exponent2. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs1rsaprivkey_getexp2(
    const quarn_pkcs1rsaprivkey *value);
/** coefficient. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs1rsaprivkey_getcoeff(
    const quarn_pkcs1rsaprivkey *value);
/** 1 when otherPrimeInfos is there. */
QUARN_ASN1_API int quarn_pkcs1rsaprivkey_hasotherprimes(const quarn_pkcs1rsaprivkey *value);
/** otherPrimeInfos, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_pkcs1rsaprivkey_getotherprimes(
    const quarn_pkcs1rsaprivkey *value);

/* ---- RSAES-OAEP-params */

/**
 * The parameters of RSAES-OAEP (RFC 8017, A.2.1). The defaults are SHA-1, MGF1 with SHA-1, and the
 * empty label. An algorithm that differs from them only in absent or NULL parameters is not one of
 * them, and is written.
 *
 *     RSAES-OAEP-params ::= SEQUENCE {
 *         hashAlgorithm     [0] EXPLICIT AlgorithmIdentifier DEFAULT
 *                           '300906052b0e03021a0500'H,
 *         maskGenAlgorithm  [1] EXPLICIT AlgorithmIdentifier DEFAULT
 *                           '301606092a864886f70d010108300906052b0e03021a0500'H,
 *         pSourceAlgorithm  [2] EXPLICIT AlgorithmIdentifier DEFAULT
 *                           '300d06092a864886f70d0101090400'H
 *     }
 *
 * Type id QUARN_ASN1_PKCS1RSAESOAEPPRARAMS (100).
 */
typedef struct quarn_pkcs1rsaesoaepprarams quarn_pkcs1rsaesoaepprarams;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS1RSAESOAEPPRARAMS. */
QUARN_ASN1_API void quarn_pkcs1rsaesoaepprarams_free(quarn_pkcs1rsaesoaepprarams *value);
/**
 * From its components. Null stands for the default of hash_algorithm, mask_gen_algorithm and
 * p_source_algorithm.
 */
QUARN_ASN1_API quarn_pkcs1rsaesoaepprarams *quarn_pkcs1rsaesoaepprarams_new(
    const quarn_x509algoid *hash_algorithm,
    const quarn_x509algoid *mask_gen_algorithm,
    const quarn_x509algoid *p_source_algorithm);
/** hashAlgorithm, the default when the encoding has none. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcs1rsaesoaepprarams_gethashalgo(
    const quarn_pkcs1rsaesoaepprarams *value);
/** maskGenAlgorithm, the default when the encoding has none. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcs1rsaesoaepprarams_getmaskgenalgo(
    const quarn_pkcs1rsaesoaepprarams *value);
/** pSourceAlgorithm, the default when the encoding has none. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcs1rsaesoaepprarams_getpsourcealgo(
    const quarn_pkcs1rsaesoaepprarams *value);

/* ---- RSASSA-PSS-params */

/**
 * The parameters of RSASSA-PSS (RFC 8017, A.2.3). The defaults are those of RSAES-OAEP, a salt of
 * 20 octets and the trailer BC, which has the number 1.
 *
 *     RSASSA-PSS-params ::= SEQUENCE {
 *         hashAlgorithm     [0] EXPLICIT AlgorithmIdentifier DEFAULT
 *                           '300906052b0e03021a0500'H,
 *         maskGenAlgorithm  [1] EXPLICIT AlgorithmIdentifier DEFAULT
 *                           '301606092a864886f70d010108300906052b0e03021a0500'H,
 *         saltLength        [2] EXPLICIT INTEGER DEFAULT 20,
 *         trailerField      [3] EXPLICIT INTEGER DEFAULT 1
 *     }
 *
 * Type id QUARN_ASN1_PKCS1RSASSAPSSPRARAMS (101).
 */
typedef struct quarn_pkcs1rsassapssprarams quarn_pkcs1rsassapssprarams;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS1RSASSAPSSPRARAMS. */
QUARN_ASN1_API void quarn_pkcs1rsassapssprarams_free(quarn_pkcs1rsassapssprarams *value);
/**
 * From its components. Null stands for the default of hash_algorithm, mask_gen_algorithm,
 * salt_length (20) and trailer_field (1).
 */
QUARN_ASN1_API quarn_pkcs1rsassapssprarams *quarn_pkcs1rsassapssprarams_new(
    const quarn_x509algoid *hash_algorithm,
    const quarn_x509algoid *mask_gen_algorithm,
    const quarn_asn1_integer *salt_length,
    const quarn_asn1_integer *trailer_field);
/** hashAlgorithm, the default when the encoding has none. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcs1rsassapssprarams_gethashalgo(
    const quarn_pkcs1rsassapssprarams *value);
/** maskGenAlgorithm, the default when the encoding has none. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcs1rsassapssprarams_getmaskgenalgo(
    const quarn_pkcs1rsassapssprarams *value);
/** saltLength, 20 when the encoding has none. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs1rsassapssprarams_getsaltlen(
    const quarn_pkcs1rsassapssprarams *value);
/** trailerField, 1 when the encoding has none. */
QUARN_ASN1_API quarn_asn1_integer *quarn_pkcs1rsassapssprarams_gettrailerfield(
    const quarn_pkcs1rsassapssprarams *value);

#ifdef __cplusplus
}
#endif

#endif
