/* Generated from modules/ASN1_ERS.asn1 by tools/generate.py; do not edit. */
/**
 * Evidence records, and what keeps signatures verifiable over time (RFC 4998, ETSI TS 101 733).
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
#ifndef QUARN_ASN1_ERS_H
#define QUARN_ASN1_ERS_H

#include "cms.h"
#include "types.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- AlgorithmIdentifiers */

/**
 * Algorithms one after another (RFC 4998, 3.1).
 *
 *     AlgorithmIdentifiers ::= SEQUENCE OF AlgorithmIdentifier
 *
 * Type id QUARN_ASN1_ERS_ALGOIDS (265). A quarn_asn1_list of AlgorithmIdentifier
 * (quarn_x509algoid).
 */
QUARN_ASN1_API void quarn_ers_algoids_free(quarn_asn1_list *value);

/* ---- CryptoInfos */

/**
 * What helps with validating the time-stamps (RFC 4998, 3.1). That the elements are attributes of
 * PKCS #10, which have no contexts, is inferred.
 *
 *     CryptoInfos ::= SEQUENCE SIZE (1..MAX) OF Attribute
 *
 * Type id QUARN_ASN1_ERS_ATTRIBUTES (266). A quarn_asn1_list of Attribute (quarn_x500attribute).
 */
QUARN_ASN1_API void quarn_ers_attributes_free(quarn_asn1_list *value);

/* ---- ArchiveTimeStampAttributes */

/**
 * Attributes of an archive time-stamp (RFC 4998, 4.1), in the order in which they came. The
 * elements are as in CryptoInfos.
 *
 *     ArchiveTimeStampAttributes ::= SET SIZE (1..MAX) OF Attribute
 *
 * Type id QUARN_ASN1_ERS_ATTRIBUTESET (267). A quarn_asn1_list of Attribute (quarn_x500attribute).
 * Freed with quarn_ers_attributes_free().
 */

/* ---- EncryptionInfo */

/**
 * How the archived data were encrypted (RFC 4998, 6.1).
 *
 *     EncryptionInfo ::= SEQUENCE {
 *         encryptionInfoType   OBJECT IDENTIFIER,
 *         encryptionInfoValue  ANY
 *     }
 *
 * Type id QUARN_ASN1_ERS_ENCRYPTIONINFO (268).
 */
typedef struct quarn_ers_encryptioninfo quarn_ers_encryptioninfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_ERS_ENCRYPTIONINFO. */
QUARN_ASN1_API void quarn_ers_encryptioninfo_free(quarn_ers_encryptioninfo *value);
/** From its components. */
QUARN_ASN1_API quarn_ers_encryptioninfo *quarn_ers_encryptioninfo_new(
    const quarn_asn1_oid *encryption_info_type, const quarn_asn1_any *encryption_info_value);
/** encryptionInfoType. */
QUARN_ASN1_API quarn_asn1_oid *quarn_ers_encryptioninfo_gettype(
    const quarn_ers_encryptioninfo *value);
/** encryptionInfoValue. */
QUARN_ASN1_API quarn_asn1_any *quarn_ers_encryptioninfo_getvalue(
    const quarn_ers_encryptioninfo *value);

/* ---- ReducedHashtree */

/**
 * Groups of digests (RFC 4998, 4.1).
 *
 *     ReducedHashtree ::= SEQUENCE OF OctetStrings
 *
 * Type id QUARN_ASN1_ERS_SEQOF_PARTIALHASHTREE (270). A quarn_asn1_list of OctetStrings
 * (quarn_asn1_list).
 */
QUARN_ASN1_API void quarn_ers_seqof_partialhashtree_free(quarn_asn1_list *value);

/* ---- ArchiveTimeStamp */

/**
 * A time-stamp over the root of a hash tree, or over one digest (RFC 4998, 4.1).
 *
 *     ArchiveTimeStamp ::= SEQUENCE {
 *         digestAlgorithm  [0] IMPLICIT AlgorithmIdentifier OPTIONAL,
 *         attributes       [1] IMPLICIT ArchiveTimeStampAttributes OPTIONAL,
 *         reducedHashtree  [2] IMPLICIT ReducedHashtree OPTIONAL,
 *         timeStamp        ContentInfo
 *     }
 *
 * Type id QUARN_ASN1_ARCHIVETIMESTAMP (271).
 */
typedef struct quarn_archivetimestamp quarn_archivetimestamp;
/** As quarn_asn1_value_free() under QUARN_ASN1_ARCHIVETIMESTAMP. */
QUARN_ASN1_API void quarn_archivetimestamp_free(quarn_archivetimestamp *value);
/** From its components. Null leaves out digest_algorithm, attributes and reduced_hashtree. */
QUARN_ASN1_API quarn_archivetimestamp *quarn_archivetimestamp_new(
    const quarn_x509algoid *digest_algorithm,
    const quarn_asn1_list *attributes,
    const quarn_asn1_list *reduced_hashtree,
    const quarn_pkcs7contentinfo *time_stamp);
/** 1 when digestAlgorithm is there. */
QUARN_ASN1_API int quarn_archivetimestamp_hasdigestalgo(const quarn_archivetimestamp *value);
/** digestAlgorithm, null when it is absent. */
QUARN_ASN1_API quarn_x509algoid *quarn_archivetimestamp_getdigestalgo(
    const quarn_archivetimestamp *value);
/** 1 when attributes is there. */
QUARN_ASN1_API int quarn_archivetimestamp_hasattrs(const quarn_archivetimestamp *value);
/** attributes, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_archivetimestamp_getattrs(
    const quarn_archivetimestamp *value);
/** 1 when reducedHashtree is there. */
QUARN_ASN1_API int quarn_archivetimestamp_hasreducedhashtree(const quarn_archivetimestamp *value);
/** reducedHashtree, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_archivetimestamp_getreducedhashtree(
    const quarn_archivetimestamp *value);
/** timeStamp. */
QUARN_ASN1_API quarn_pkcs7contentinfo *quarn_archivetimestamp_gettimestamp(
    const quarn_archivetimestamp *value);

/* ---- ArchiveTimeStampChain */

/**
 * Time-stamps of which each but the first renews the one before it, with one digest algorithm (RFC
 * 4998, 5.1).
 *
 *     ArchiveTimeStampChain ::= SEQUENCE OF ArchiveTimeStamp
 *
 * Type id QUARN_ASN1_ARCHIVETIMESTAMPCHAIN (273). A quarn_asn1_list of ArchiveTimeStamp
 * (quarn_archivetimestamp).
 */
QUARN_ASN1_API void quarn_archivetimestampchain_free(quarn_asn1_list *value);

/* ---- ArchiveTimeStampSequence */

/**
 * Chains of which each but the first renews the one before it with another algorithm (RFC 4998,
 * 5.1).
 *
 *     ArchiveTimeStampSequence ::= SEQUENCE OF ArchiveTimeStampChain
 *
 * Type id QUARN_ASN1_ARCHIVETIMESTAMPSEQUENCE (274). A quarn_asn1_list of ArchiveTimeStampChain
 * (quarn_asn1_list).
 */
QUARN_ASN1_API void quarn_archivetimestampsequence_free(quarn_asn1_list *value);

/* ---- EvidenceRecord */

/**
 * Evidence that data existed at a time (RFC 4998, 3.1).
 *
 *     EvidenceRecord ::= SEQUENCE {
 *         version                   INTEGER,
 *         digestAlgorithms          AlgorithmIdentifiers,
 *         cryptoInfos               [0] IMPLICIT CryptoInfos OPTIONAL,
 *         encryptionInfo            [1] IMPLICIT EncryptionInfo OPTIONAL,
 *         archiveTimeStampSequence  ArchiveTimeStampSequence
 *     }
 *
 * Type id QUARN_ASN1_EVIDENCERECORD (272).
 */
typedef struct quarn_evidencerecord quarn_evidencerecord;
/** As quarn_asn1_value_free() under QUARN_ASN1_EVIDENCERECORD. */
QUARN_ASN1_API void quarn_evidencerecord_free(quarn_evidencerecord *value);
/** From its components. Null leaves out crypto_infos and encryption_info. */
QUARN_ASN1_API quarn_evidencerecord *quarn_evidencerecord_new(
    const quarn_asn1_integer *version,
    const quarn_asn1_list *digest_algorithms,
    const quarn_asn1_list *crypto_infos,
    const quarn_ers_encryptioninfo *encryption_info,
    const quarn_asn1_list *archive_time_stamp_sequence);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_evidencerecord_getversion(
    const quarn_evidencerecord *value);
/** digestAlgorithms. */
QUARN_ASN1_API quarn_asn1_list *quarn_evidencerecord_getdigestalgos(
    const quarn_evidencerecord *value);
/** 1 when cryptoInfos is there. */
QUARN_ASN1_API int quarn_evidencerecord_hascryptoinfos(const quarn_evidencerecord *value);
/** cryptoInfos, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_evidencerecord_getcryptoinfos(
    const quarn_evidencerecord *value);
/** 1 when encryptionInfo is there. */
QUARN_ASN1_API int quarn_evidencerecord_hasencryptioninfo(const quarn_evidencerecord *value);
/** encryptionInfo, null when it is absent. */
QUARN_ASN1_API quarn_ers_encryptioninfo *quarn_evidencerecord_getencryptioninfo(
    const quarn_evidencerecord *value);
/** archiveTimeStampSequence. */
QUARN_ASN1_API quarn_asn1_list *quarn_evidencerecord_getarchivetimestampseq(
    const quarn_evidencerecord *value);

/* ---- PoeValue */

/**
 * Evidence of a time by a time-stamp or an evidence record (TS 101 733 V2.1.1, 6.5.1).
 *
 *     PoeValue ::= CHOICE {
 *         timeStamp       [0] EXPLICIT ContentInfo,
 *         evidenceRecord  [1] EXPLICIT EvidenceRecord
 *     }
 *
 * Type id QUARN_ASN1_POEVALUE (275).
 */
typedef struct quarn_poevalue quarn_poevalue;
/** As quarn_asn1_value_free() under QUARN_ASN1_POEVALUE. */
QUARN_ASN1_API void quarn_poevalue_free(quarn_poevalue *value);
/** Number of the alternative: 0 timeStamp, 1 evidenceRecord; all ones for null. */
QUARN_ASN1_API uint32_t quarn_poevalue_gettype(const quarn_poevalue *value);
/** The alternative timeStamp. */
QUARN_ASN1_API quarn_poevalue *quarn_poevalue_newtimestamp(
    const quarn_pkcs7contentinfo *time_stamp);
/** timeStamp, null when it is another alternative. */
QUARN_ASN1_API quarn_pkcs7contentinfo *quarn_poevalue_gettimestamp(const quarn_poevalue *value);
/** The alternative evidenceRecord. */
QUARN_ASN1_API quarn_poevalue *quarn_poevalue_newevidencerecord(
    const quarn_evidencerecord *evidence_record);
/** evidenceRecord, null when it is another alternative. */
QUARN_ASN1_API quarn_evidencerecord *quarn_poevalue_getevidencerecord(const quarn_poevalue *value);

/* ---- LongTermValidation */

/**
 * What a signature is verified with later on (TS 101 733 V2.1.1, 6.5.1; taken back in V2.2.1). The
 * standard gives poeValue the tags of the two components after it. How they are told apart is
 * inferred: it is poeValue when the first element inside begins as a ContentInfo or an
 * EvidenceRecord does.
 *
 *     LongTermValidation ::= SEQUENCE {
 *         poeDate            GeneralizedTime,
 *         poeValue           PoeValue OPTIONAL,
 *         extraCertificates  [0] IMPLICIT CertificateSet OPTIONAL,
 *         extraRevocation    [1] IMPLICIT RevocationInfoChoices OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_LONGTERMVALIDATION (276).
 */
typedef struct quarn_longtermvalidation quarn_longtermvalidation;
/** As quarn_asn1_value_free() under QUARN_ASN1_LONGTERMVALIDATION. */
QUARN_ASN1_API void quarn_longtermvalidation_free(quarn_longtermvalidation *value);
/** From its components. Null leaves out poe_value, extra_certificates and extra_revocation. */
QUARN_ASN1_API quarn_longtermvalidation *quarn_longtermvalidation_new(
    const quarn_asn1_time *poe_date,
    const quarn_poevalue *poe_value,
    const quarn_asn1_list *extra_certificates,
    const quarn_asn1_list *extra_revocation);
/** poeDate. */
QUARN_ASN1_API quarn_asn1_time *quarn_longtermvalidation_getpoedate(
    const quarn_longtermvalidation *value);
/** 1 when poeValue is there. */
QUARN_ASN1_API int quarn_longtermvalidation_haspoevalue(const quarn_longtermvalidation *value);
/** poeValue, null when it is absent. */
QUARN_ASN1_API quarn_poevalue *quarn_longtermvalidation_getpoevalue(
    const quarn_longtermvalidation *value);
/** 1 when extraCertificates is there. */
QUARN_ASN1_API int quarn_longtermvalidation_hasextracerts(const quarn_longtermvalidation *value);
/** extraCertificates, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_longtermvalidation_getextracerts(
    const quarn_longtermvalidation *value);
/** 1 when extraRevocation is there. */
QUARN_ASN1_API int quarn_longtermvalidation_hasextrarevocation(
    const quarn_longtermvalidation *value);
/** extraRevocation, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_longtermvalidation_getextrarevocation(
    const quarn_longtermvalidation *value);

#ifdef __cplusplus
}
#endif

#endif
