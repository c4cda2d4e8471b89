/* Generated from modules/ASN1_ECC.asn1 by tools/generate.py; do not edit. */
/**
 * Keys of elliptic curves (RFC 3279, RFC 5480, RFC 5753, RFC 5915) and of SM2 (GM/T 0009).
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
#ifndef QUARN_ASN1_ECC_H
#define QUARN_ASN1_ECC_H

#include "types.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- ECC-CMS-SharedInfo */

/**
 * What a key is derived from besides the shared secret (RFC 5753, 7.2). suppPubInfo is the length
 * of the key in bits, in four octets.
 *
 *     ECC-CMS-SharedInfo ::= SEQUENCE {
 *         keyInfo      AlgorithmIdentifier,
 *         entityUInfo  [0] EXPLICIT OCTET STRING OPTIONAL,
 *         suppPubInfo  [2] EXPLICIT OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_ECCCMSSHAREDINFO (292).
 */
typedef struct quarn_ecccmssharedinfo quarn_ecccmssharedinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_ECCCMSSHAREDINFO. */
QUARN_ASN1_API void quarn_ecccmssharedinfo_free(quarn_ecccmssharedinfo *value);
/** From its components. Null leaves out entity_u_info. */
QUARN_ASN1_API quarn_ecccmssharedinfo *quarn_ecccmssharedinfo_new(
    const quarn_x509algoid *key_info,
    const quarn_asn1_octetstring *entity_u_info,
    const quarn_asn1_octetstring *supp_pub_info);
/** keyInfo. */
QUARN_ASN1_API quarn_x509algoid *quarn_ecccmssharedinfo_getkeyinfo(
    const quarn_ecccmssharedinfo *value);
/** 1 when entityUInfo is there. */
QUARN_ASN1_API int quarn_ecccmssharedinfo_hasentityuinfo(const quarn_ecccmssharedinfo *value);
/** entityUInfo, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ecccmssharedinfo_getentityuinfo(
    const quarn_ecccmssharedinfo *value);
/** suppPubInfo. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ecccmssharedinfo_getsupppubinfo(
    const quarn_ecccmssharedinfo *value);

/* ---- EcpkParameters */

/**
 * A curve: its parameters, its name, or that of the authority (RFC 3279, 2.3.5; RFC 5480, 2.1.1).
 * Parameters are elements of any type.
 *
 *     EcpkParameters ::= CHOICE {
 *         ecParameters  SEQUENCE SIZE (1..MAX) OF ANY,
 *         namedCurve    OBJECT IDENTIFIER,
 *         implicitlyCA  NULL
 *     }
 *
 * Type id QUARN_ASN1_ECPKPARAMETERS (201).
 */
typedef struct quarn_ecpkparameters quarn_ecpkparameters;
/** As quarn_asn1_value_free() under QUARN_ASN1_ECPKPARAMETERS. */
QUARN_ASN1_API void quarn_ecpkparameters_free(quarn_ecpkparameters *value);
/** Number of the alternative: 0 ecParameters, 1 namedCurve, 2 implicitlyCA; all ones for null. */
QUARN_ASN1_API uint32_t quarn_ecpkparameters_gettype(const quarn_ecpkparameters *value);
/** The alternative ecParameters. */
QUARN_ASN1_API quarn_ecpkparameters *quarn_ecpkparameters_newecparams(
    const quarn_asn1_list *ec_parameters);
/** ecParameters, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_list *quarn_ecpkparameters_getecparams(const quarn_ecpkparameters *value);
/** The alternative namedCurve. */
QUARN_ASN1_API quarn_ecpkparameters *quarn_ecpkparameters_newnamedcurve(
    const quarn_asn1_oid *named_curve);
/** namedCurve, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_oid *quarn_ecpkparameters_getnamedcurve(
    const quarn_ecpkparameters *value);
/** The alternative implicitlyCA. */
QUARN_ASN1_API quarn_ecpkparameters *quarn_ecpkparameters_newimplicitlyca(void);

/* ---- ECPrivateKey */

/**
 * A private key (RFC 5915, 3).
 *
 *     ECPrivateKey ::= SEQUENCE {
 *         version     INTEGER,
 *         privateKey  OCTET STRING,
 *         parameters  [0] EXPLICIT EcpkParameters OPTIONAL,
 *         publicKey   [1] EXPLICIT BIT STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_ECPRIVATEKEY (202).
 */
typedef struct quarn_ecprivatekey quarn_ecprivatekey;
/** As quarn_asn1_value_free() under QUARN_ASN1_ECPRIVATEKEY. */
QUARN_ASN1_API void quarn_ecprivatekey_free(quarn_ecprivatekey *value);
/** From its components. Null leaves out parameters and public_key. */
QUARN_ASN1_API quarn_ecprivatekey *quarn_ecprivatekey_new(const quarn_asn1_integer *version,
                                                          const quarn_asn1_octetstring *private_key,
                                                          const quarn_ecpkparameters *parameters,
                                                          const quarn_asn1_bitstring *public_key);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ecprivatekey_getversion(const quarn_ecprivatekey *value);
/** privateKey. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ecprivatekey_getprivkey(
    const quarn_ecprivatekey *value);
/** 1 when parameters is there. */
QUARN_ASN1_API int quarn_ecprivatekey_hasparams(const quarn_ecprivatekey *value);
/** parameters, null when it is absent. */
QUARN_ASN1_API quarn_ecpkparameters *quarn_ecprivatekey_getparams(const quarn_ecprivatekey *value);
/** 1 when publicKey is there. */
QUARN_ASN1_API int quarn_ecprivatekey_haspubkey(const quarn_ecprivatekey *value);
/** publicKey, null when it is absent. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_ecprivatekey_getpubkey(const quarn_ecprivatekey *value);

/* ---- SM2Cipher */

/**
 * Octets encrypted with SM2 (GM/T 0009, 7.2).
 *
 *     SM2Cipher ::= SEQUENCE {
 *         xCoordinate  INTEGER,
 *         yCoordinate  INTEGER,
 *         hash         OCTET STRING (SIZE (32)),
 *         cipherText   OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_SM2CIPHER (203).
 */
typedef struct quarn_sm2cipher quarn_sm2cipher;
/** As quarn_asn1_value_free() under QUARN_ASN1_SM2CIPHER. */
QUARN_ASN1_API void quarn_sm2cipher_free(quarn_sm2cipher *value);
/** From its components. */
QUARN_ASN1_API quarn_sm2cipher *quarn_sm2cipher_new(const quarn_asn1_integer *x_coordinate,
                                                    const quarn_asn1_integer *y_coordinate,
                                                    const quarn_asn1_octetstring *hash,
                                                    const quarn_asn1_octetstring *cipher_text);
/** xCoordinate. */
QUARN_ASN1_API quarn_asn1_integer *quarn_sm2cipher_getx(const quarn_sm2cipher *value);
/** yCoordinate. */
QUARN_ASN1_API quarn_asn1_integer *quarn_sm2cipher_gety(const quarn_sm2cipher *value);
/** hash. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_sm2cipher_gethash(const quarn_sm2cipher *value);
/** cipherText. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_sm2cipher_getciphertext(const quarn_sm2cipher *value);

/* ---- SM2EnvelopedKey */

/**
 * A key pair of SM2, its private key encrypted with a key that is encrypted in turn (GM/T 0009,
 * 7.4). The layout is inferred from what public implementations write.
 *
 *     SM2EnvelopedKey ::= SEQUENCE {
 *         symAlgID                AlgorithmIdentifier,
 *         symEncryptedKey         SM2Cipher,
 *         sm2PublicKey            BIT STRING,
 *         sm2EncryptedPrivateKey  BIT STRING
 *     }
 *
 * Type id QUARN_ASN1_SM2ENVELOPEDKEY (204).
 */
typedef struct quarn_sm2envelopedkey quarn_sm2envelopedkey;
/** As quarn_asn1_value_free() under QUARN_ASN1_SM2ENVELOPEDKEY. */
QUARN_ASN1_API void quarn_sm2envelopedkey_free(quarn_sm2envelopedkey *value);
/** From its components. */
QUARN_ASN1_API quarn_sm2envelopedkey *quarn_sm2envelopedkey_new(
    const quarn_x509algoid *sym_alg_id,
    const quarn_sm2cipher *sym_encrypted_key,
    const quarn_asn1_bitstring *sm2_public_key,
    const quarn_asn1_bitstring *sm2_encrypted_private_key);
/** symAlgID. */
QUARN_ASN1_API quarn_x509algoid *quarn_sm2envelopedkey_getsymalgo(
    const quarn_sm2envelopedkey *value);
/** symEncryptedKey. */
QUARN_ASN1_API quarn_sm2cipher *quarn_sm2envelopedkey_getsymenckey(
    const quarn_sm2envelopedkey *value);
/** sm2PublicKey. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_sm2envelopedkey_getpubkey(
    const quarn_sm2envelopedkey *value);
/** sm2EncryptedPrivateKey. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_sm2envelopedkey_getencprivkey(
    const quarn_sm2envelopedkey *value);

/* ---- RSAEnvelopedKeyPair */

/**
 * A key pair of RSA, encrypted with a key that is encrypted in turn. The layout is inferred from
 * SM2EnvelopedKey; no public standard defines it. Any elements are read, and written as they came.
 *
 *     RSAEnvelopedKeyPair ::= SEQUENCE {
 *         symAlgID          AlgorithmIdentifier,
 *         symEncryptedKey   OCTET STRING,
 *         encryptedKeyPair  OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_RSAENVELOPEDKEYPAIR (205).
 */
typedef struct quarn_rsaenvelopedkeypair quarn_rsaenvelopedkeypair;
/** As quarn_asn1_value_free() under QUARN_ASN1_RSAENVELOPEDKEYPAIR. */
QUARN_ASN1_API void quarn_rsaenvelopedkeypair_free(quarn_rsaenvelopedkeypair *value);
/** From its components. */
QUARN_ASN1_API quarn_rsaenvelopedkeypair *quarn_rsaenvelopedkeypair_new(
    const quarn_x509algoid *sym_alg_id,
    const quarn_asn1_octetstring *sym_encrypted_key,
    const quarn_asn1_octetstring *encrypted_key_pair);
/** symAlgID, null also when the elements are laid out otherwise. */
QUARN_ASN1_API quarn_x509algoid *quarn_rsaenvelopedkeypair_getsymalgo(
    const quarn_rsaenvelopedkeypair *value);
/** symEncryptedKey, null also when the elements are laid out otherwise. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_rsaenvelopedkeypair_getsymenckey(
    const quarn_rsaenvelopedkeypair *value);
/** encryptedKeyPair, null also when the elements are laid out otherwise. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_rsaenvelopedkeypair_getenckeypair(
    const quarn_rsaenvelopedkeypair *value);

/* ---- InnerEnvelopedKeyPair */

/**
 * A key pair of either kind. The layout is inferred; no public standard defines it. Any element is
 * read, and written as it came.
 *
 *     InnerEnvelopedKeyPair ::= CHOICE {
 *         rsa  [0] IMPLICIT RSAEnvelopedKeyPair,
 *         sm2  [1] IMPLICIT SM2EnvelopedKey
 *     }
 *
 * Type id QUARN_ASN1_INNERENVELOPEDKEYPAIR (206).
 */
typedef struct quarn_innerenvelopedkeypair quarn_innerenvelopedkeypair;
/** As quarn_asn1_value_free() under QUARN_ASN1_INNERENVELOPEDKEYPAIR. */
QUARN_ASN1_API void quarn_innerenvelopedkeypair_free(quarn_innerenvelopedkeypair *value);
/** Number of the alternative: 0 rsa, 1 sm2; all ones for null, and for another element. */
QUARN_ASN1_API uint32_t quarn_innerenvelopedkeypair_gettype(
    const quarn_innerenvelopedkeypair *value);
/** The alternative rsa. */
QUARN_ASN1_API quarn_innerenvelopedkeypair *quarn_innerenvelopedkeypair_newrsa(
    const quarn_rsaenvelopedkeypair *rsa);
/** rsa, null when it is another alternative. */
QUARN_ASN1_API quarn_rsaenvelopedkeypair *quarn_innerenvelopedkeypair_getrsa(
    const quarn_innerenvelopedkeypair *value);
/** The alternative sm2. */
QUARN_ASN1_API quarn_innerenvelopedkeypair *quarn_innerenvelopedkeypair_newsm2(
    const quarn_sm2envelopedkey *sm2);
/** sm2, null when it is another alternative. */
QUARN_ASN1_API quarn_sm2envelopedkey *quarn_innerenvelopedkeypair_getsm2(
    const quarn_innerenvelopedkeypair *value);

/* ---- EnvelopedKeyPair */

/**
 * A key pair with a version. The layout is inferred; no public standard defines it. Any elements
 * are read, and written as they came.
 *
 *     EnvelopedKeyPair ::= SEQUENCE {
 *         version  INTEGER,
 *         keyPair  InnerEnvelopedKeyPair
 *     }
 *
 * Type id QUARN_ASN1_ENVELOPEDKEYPAIR (207).
 */
typedef struct quarn_envelopedkeypair quarn_envelopedkeypair;
/** As quarn_asn1_value_free() under QUARN_ASN1_ENVELOPEDKEYPAIR. */
QUARN_ASN1_API void quarn_envelopedkeypair_free(quarn_envelopedkeypair *value);
/** From its components. */
QUARN_ASN1_API quarn_envelopedkeypair *quarn_envelopedkeypair_new(
    const quarn_asn1_integer *version, const quarn_innerenvelopedkeypair *key_pair);
/** version, null also when the elements are laid out otherwise. */
QUARN_ASN1_API quarn_asn1_integer *quarn_envelopedkeypair_getversion(
    const quarn_envelopedkeypair *value);
/** keyPair, null also when the elements are laid out otherwise. */
QUARN_ASN1_API quarn_innerenvelopedkeypair *quarn_envelopedkeypair_getkeypair(
    const quarn_envelopedkeypair *value);

/* ---- ECCEnvelopedKeyPair */

/**
 * A key pair of any curve, encrypted with a key that is encrypted in turn. The layout is inferred;
 * no public standard defines it. Any elements are read, and written as they came.
 *
 *     ECCEnvelopedKeyPair ::= SEQUENCE {
 *         symAlgID             AlgorithmIdentifier,
 *         symEncryptedKey      OCTET STRING,
 *         parameters           EcpkParameters,
 *         publicKey            BIT STRING,
 *         encryptedPrivateKey  BIT STRING
 *     }
 *
 * Type id QUARN_ASN1_ECCENVELOPEDKEYPAIR (301).
 */
typedef struct quarn_eccenvelopedkeypair quarn_eccenvelopedkeypair;
/** As quarn_asn1_value_free() under QUARN_ASN1_ECCENVELOPEDKEYPAIR. */
QUARN_ASN1_API void quarn_eccenvelopedkeypair_free(quarn_eccenvelopedkeypair *value);
/** From its components. */
QUARN_ASN1_API quarn_eccenvelopedkeypair *quarn_eccenvelopedkeypair_new(
    const quarn_x509algoid *sym_alg_id,
    const quarn_asn1_octetstring *sym_encrypted_key,
    const quarn_ecpkparameters *parameters,
    const quarn_asn1_bitstring *public_key,
    const quarn_asn1_bitstring *encrypted_private_key);
/** symAlgID, null also when the elements are laid out otherwise. */
QUARN_ASN1_API quarn_x509algoid *quarn_eccenvelopedkeypair_getsymalgo(
    const quarn_eccenvelopedkeypair *value);
/** symEncryptedKey, null also when the elements are laid out otherwise. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_eccenvelopedkeypair_getsymenckey(
    const quarn_eccenvelopedkeypair *value);
/** parameters, null also when the elements are laid out otherwise. */
QUARN_ASN1_API quarn_ecpkparameters *quarn_eccenvelopedkeypair_getparams(
    const quarn_eccenvelopedkeypair *value);
/** publicKey, null also when the elements are laid out otherwise. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_eccenvelopedkeypair_getpubkey(
    const quarn_eccenvelopedkeypair *value);
/** encryptedPrivateKey, null also when the elements are laid out otherwise. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_eccenvelopedkeypair_getencprivkey(
    const quarn_eccenvelopedkeypair *value);

#ifdef __cplusplus
}
#endif

#endif
