/* Generated from modules/ASN1_X509.asn1 by tools/generate.py; do not edit. */
/**
 * Certificates and what they are made of (RFC 5280).
 *
 * Constructors copy their arguments and return null when a mandatory one is null or memory is
 * short. Getters lend: what they return lives as long as the value. Null for the value gives null
 * from a getter and 0 from a test. A component with a DEFAULT is always there once a value has been
 * made or decoded.
 *
 * A value is decoded, encoded, copied and freed under its type id by the functions of
 * quarn_asn1/core.h; free functions are there for each type as well. Lists are of the type
 * quarn_asn1_list.
 */
#ifndef QUARN_ASN1_X509_H
#define QUARN_ASN1_X509_H

#include "types.h"
#include "x500.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- AlgorithmIdentifier */

/**
 * Names an algorithm and carries its parameters, if it takes any.
 *
 *     AlgorithmIdentifier ::= SEQUENCE {
 *         algorithm   OBJECT IDENTIFIER,
 *         parameters  ANY OPTIONAL
 *     }
 *
 * Type ids QUARN_ASN1_X509ALGORITHMID (33), QUARN_ASN1_SMIMECAPABILITY (53),
 * QUARN_ASN1_X509POLICYQUALIFIERINFO (68), QUARN_ASN1_QCSTATEMENT (221).
 */
typedef struct quarn_x509algoid quarn_x509algoid;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509ALGORITHMID. */
QUARN_ASN1_API void quarn_x509AlgorithmId_free(quarn_x509algoid *value);
/** algorithm. */
QUARN_ASN1_API quarn_asn1_oid *quarn_x509algoid_getalgorithm(const quarn_x509algoid *value);
/** 1 when parameters is there. */
QUARN_ASN1_API int quarn_x509algoid_hasparam(const quarn_x509algoid *value);
/** parameters, null when it is absent. */
QUARN_ASN1_API quarn_asn1_any *quarn_x509algoid_getparam(const quarn_x509algoid *value);

/* ---- Validity */

/**
 * The time in which a certificate may be relied on, both ends included.
 *
 *     Validity ::= SEQUENCE {
 *         notBefore  Time,
 *         notAfter   Time
 *     }
 *
 * Type id QUARN_ASN1_X509VALIDITY (34).
 */
typedef struct quarn_x509validity quarn_x509validity;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509VALIDITY. */
QUARN_ASN1_API void quarn_x509Validity_free(quarn_x509validity *value);
/** From its components. */
QUARN_ASN1_API quarn_x509validity *quarn_x509validity_new(const quarn_asn1_time *not_before,
                                                          const quarn_asn1_time *not_after);
/** notBefore. */
QUARN_ASN1_API quarn_asn1_time *quarn_x509validity_getnotbefore(const quarn_x509validity *value);
/** notAfter. */
QUARN_ASN1_API quarn_asn1_time *quarn_x509validity_getnotafter(const quarn_x509validity *value);

/* ---- SubjectPublicKeyInfo */

/**
 * A public key and the algorithm that it is for.
 *
 *     SubjectPublicKeyInfo ::= SEQUENCE {
 *         algorithm         AlgorithmIdentifier,
 *         subjectPublicKey  BIT STRING
 *     }
 *
 * Type id QUARN_ASN1_X509PUBLICKEYINFO (35).
 */
typedef struct quarn_x509publickeyinfo quarn_x509publickeyinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509PUBLICKEYINFO. */
QUARN_ASN1_API void quarn_x509PublicKeyInfo_free(quarn_x509publickeyinfo *value);
/** From its components. */
QUARN_ASN1_API quarn_x509publickeyinfo *quarn_x509publickeyinfo_new(
    const quarn_x509algoid *algorithm, const quarn_asn1_bitstring *subject_public_key);
/** algorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_x509publickeyinfo_getalgorithm(
    const quarn_x509publickeyinfo *value);
/** subjectPublicKey. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_x509publickeyinfo_getsubjectpublickey(
    const quarn_x509publickeyinfo *value);

/* ---- Extension */

/**
 * An extension of a certificate, CRL or request: its content is the encoding of a type that extnID
 * names.
 *
 *     Extension ::= SEQUENCE {
 *         extnID     OBJECT IDENTIFIER,
 *         critical   BOOLEAN DEFAULT FALSE,
 *         extnValue  OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_X509EXTENSION (36).
 */
typedef struct quarn_x509extension quarn_x509extension;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509EXTENSION. */
QUARN_ASN1_API void quarn_x509Extension_free(quarn_x509extension *value);
/** From its components. Null stands for the default of critical (FALSE). */
QUARN_ASN1_API quarn_x509extension *quarn_x509extension_new(
    const quarn_asn1_oid *extn_id,
    const quarn_asn1_boolean *critical,
    const quarn_asn1_octetstring *extn_value);
/** extnID. */
QUARN_ASN1_API quarn_asn1_oid *quarn_x509extension_getextnid(const quarn_x509extension *value);
/** critical, FALSE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_x509extension_getcritical(
    const quarn_x509extension *value);
/** extnValue. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_x509extension_getextnvalue(
    const quarn_x509extension *value);

/* ---- Extensions */

/**
 * The extensions of a certificate, CRL or CRL entry.
 *
 *     Extensions ::= SEQUENCE OF Extension
 *
 * Type id QUARN_ASN1_X509EXTENSIONS (37). A quarn_asn1_list of Extension (quarn_x509extension).
 */
QUARN_ASN1_API void quarn_x509Extensions_free(quarn_asn1_list *value);

/* ---- DigestInfo */

/**
 * A digest and the algorithm that made it.
 *
 *     DigestInfo ::= SEQUENCE {
 *         digestAlgorithm  AlgorithmIdentifier,
 *         digest           OCTET STRING
 *     }
 *
 * Type ids QUARN_ASN1_PKCSDIGESTINFO (57), QUARN_ASN1_TSP_MESSAGEIMPRINT (186),
 * QUARN_ASN1_OTHERHASHALGANDVALUE (225).
 */
typedef struct quarn_pkcsdigestinfo quarn_pkcsdigestinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCSDIGESTINFO. */
QUARN_ASN1_API void quarn_pkcsdigestinfo_free(quarn_pkcsdigestinfo *value);
/** From its components. */
QUARN_ASN1_API quarn_pkcsdigestinfo *quarn_pkcsdigestinfo_new(
    const quarn_x509algoid *digest_algorithm, const quarn_asn1_octetstring *digest);
/** digestAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_pkcsdigestinfo_getdigestalgorithm(
    const quarn_pkcsdigestinfo *value);
/** digest. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_pkcsdigestinfo_getdigest(
    const quarn_pkcsdigestinfo *value);

/* ---- InstanceOf */

/**
 * A value of a type that an object identifier names.
 *
 *     InstanceOf ::= [UNIVERSAL 8] IMPLICIT SEQUENCE {
 *         type-id  OBJECT IDENTIFIER,
 *         value    [0] EXPLICIT ANY
 *     }
 *
 * Type id QUARN_ASN1_INSTANCEOFTYPEID (61).
 */
typedef struct quarn_instanceoftypeid quarn_instanceoftypeid;
/** As quarn_asn1_value_free() under QUARN_ASN1_INSTANCEOFTYPEID. */
QUARN_ASN1_API void quarn_instanceoftypeid_free(quarn_instanceoftypeid *value);
/** From its components. */
QUARN_ASN1_API quarn_instanceoftypeid *quarn_instanceoftypeid_new(const quarn_asn1_oid *type_id,
                                                                  const quarn_asn1_any *value);
/** type-id. */
QUARN_ASN1_API quarn_asn1_oid *quarn_instanceoftypeid_gettypeid(
    const quarn_instanceoftypeid *value);
/** value. */
QUARN_ASN1_API quarn_asn1_any *quarn_instanceoftypeid_getvalue(const quarn_instanceoftypeid *value);

/* ---- EDIPartyName */

/**
 * The name of a party in electronic data interchange.
 *
 *     EDIPartyName ::= SEQUENCE {
 *         nameAssigner  [0] EXPLICIT DirectoryString OPTIONAL,
 *         partyName     [1] EXPLICIT DirectoryString
 *     }
 *
 * Type id QUARN_ASN1_X509EDIPARTYNAME (62).
 */
typedef struct quarn_x509edipartyname quarn_x509edipartyname;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509EDIPARTYNAME. */
QUARN_ASN1_API void quarn_x509edipartyname_free(quarn_x509edipartyname *value);
/** From its components. Null leaves out name_assigner. */
QUARN_ASN1_API quarn_x509edipartyname *quarn_x509edipartyname_new(
    const quarn_x500dirstring *name_assigner, const quarn_x500dirstring *party_name);
/** 1 when nameAssigner is there. */
QUARN_ASN1_API int quarn_x509edipartyname_hasnameassigner(const quarn_x509edipartyname *value);
/** nameAssigner, null when it is absent. */
QUARN_ASN1_API quarn_x500dirstring *quarn_x509edipartyname_getnameassigner(
    const quarn_x509edipartyname *value);
/** partyName. */
QUARN_ASN1_API quarn_x500dirstring *quarn_x509edipartyname_getpartyname(
    const quarn_x509edipartyname *value);

/* ---- GeneralName */

/**
 * A name in one of several forms.
 *
 *     GeneralName ::= CHOICE {
 *         otherName                  [0] IMPLICIT InstanceOf,
 *         rfc822Name                 [1] IMPLICIT IA5String,
 *         dNSName                    [2] IMPLICIT IA5String,
 *         x400Address                [3] IMPLICIT SEQUENCE SIZE (1..MAX) OF ANY,
 *         directoryName              [4] EXPLICIT Name,
 *         ediPartyName               [5] IMPLICIT EDIPartyName,
 *         uniformResourceIdentifier  [6] IMPLICIT IA5String,
 *         iPAddress                  [7] IMPLICIT OCTET STRING,
 *         registeredID               [8] IMPLICIT OBJECT IDENTIFIER
 *     }
 *
 * Type id QUARN_ASN1_X509GENERALNAME (63).
 */
typedef struct quarn_x509generalname quarn_x509generalname;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509GENERALNAME. */
QUARN_ASN1_API void quarn_x509generalname_free(quarn_x509generalname *value);
/**
 * Number of the alternative: 0 otherName, 1 rfc822Name, 2 dNSName, 3 x400Address, 4 directoryName,
 * 5 ediPartyName, 6 uniformResourceIdentifier, 7 iPAddress, 8 registeredID; all ones for null.
 */
QUARN_ASN1_API uint32_t quarn_x509generalname_gettype(const quarn_x509generalname *value);
/** The alternative otherName. */
QUARN_ASN1_API quarn_x509generalname *quarn_x509generalname_new_othername(
    const quarn_instanceoftypeid *other_name);
/** otherName, null when it is another alternative. */
QUARN_ASN1_API quarn_instanceoftypeid *quarn_x509generalname_getothername(
    const quarn_x509generalname *value);
/** The alternative rfc822Name. */
QUARN_ASN1_API quarn_x509generalname *quarn_x509generalname_new_rfc822name(
    const quarn_asn1_octetstring *rfc822_name);
/** rfc822Name, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_x509generalname_getrfc822name(
    const quarn_x509generalname *value);
/** The alternative dNSName. */
QUARN_ASN1_API quarn_x509generalname *quarn_x509generalname_new_dnsname(
    const quarn_asn1_octetstring *dns_name);
/** dNSName, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_x509generalname_getdnsname(
    const quarn_x509generalname *value);
/** x400Address, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509generalname_getx400address(
    const quarn_x509generalname *value);
/** The alternative directoryName. */
QUARN_ASN1_API quarn_x509generalname *quarn_x509generalname_new_dirname(
    const quarn_asn1_list *directory_name);
/** directoryName, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509generalname_getdirname(
    const quarn_x509generalname *value);
/** The alternative ediPartyName. */
QUARN_ASN1_API quarn_x509generalname *quarn_x509generalname_new_ediname(
    const quarn_x509edipartyname *edi_party_name);
/** ediPartyName, null when it is another alternative. */
QUARN_ASN1_API quarn_x509edipartyname *quarn_x509generalname_getediname(
    const quarn_x509generalname *value);
/** The alternative uniformResourceIdentifier. */
QUARN_ASN1_API quarn_x509generalname *quarn_x509generalname_new_uri(
    const quarn_asn1_octetstring *uniform_resource_identifier);
/** uniformResourceIdentifier, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_x509generalname_geturi(
    const quarn_x509generalname *value);
/** The alternative iPAddress. */
QUARN_ASN1_API quarn_x509generalname *quarn_x509generalname_new_ip(
    const quarn_asn1_octetstring *ip_address);
/** iPAddress, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_x509generalname_getip(
    const quarn_x509generalname *value);
/** The alternative registeredID. */
QUARN_ASN1_API quarn_x509generalname *quarn_x509generalname_new_regid(
    const quarn_asn1_oid *registered_id);
/** registeredID, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_oid *quarn_x509generalname_getregid(const quarn_x509generalname *value);

/* ---- GeneralNames */

/**
 * Names of one entity.
 *
 *     GeneralNames ::= SEQUENCE OF GeneralName
 *
 * Type id QUARN_ASN1_X509GENERALNAMES (64). A quarn_asn1_list of GeneralName
 * (quarn_x509generalname).
 */
QUARN_ASN1_API void quarn_x509generalnames_free(quarn_asn1_list *value);

/* ---- AuthorityKeyIdentifier */

/**
 * Tells the key that signed a certificate or CRL.
 *
 *     AuthorityKeyIdentifier ::= SEQUENCE {
 *         keyIdentifier              [0] IMPLICIT OCTET STRING OPTIONAL,
 *         authorityCertIssuer        [1] IMPLICIT GeneralNames OPTIONAL,
 *         authorityCertSerialNumber  [2] IMPLICIT INTEGER OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_X509AKID (65).
 */
typedef struct quarn_x509akid quarn_x509akid;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509AKID. */
QUARN_ASN1_API void quarn_x509akid_free(quarn_x509akid *value);
/**
 * From its components. Null leaves out key_identifier, authority_cert_issuer and
 * authority_cert_serial_number.
 */
QUARN_ASN1_API quarn_x509akid *quarn_x509akid_new(
    const quarn_asn1_octetstring *key_identifier,
    const quarn_asn1_list *authority_cert_issuer,
    const quarn_asn1_integer *authority_cert_serial_number);
/** 1 when keyIdentifier is there. */
QUARN_ASN1_API int quarn_x509akid_haskeyidentifier(const quarn_x509akid *value);
/** keyIdentifier, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_x509akid_getkeyidentifier(const quarn_x509akid *value);
/** 1 when authorityCertIssuer is there. */
QUARN_ASN1_API int quarn_x509akid_hasauthoritycertissuer(const quarn_x509akid *value);
/** authorityCertIssuer, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509akid_getauthoritycertissuer(const quarn_x509akid *value);
/** 1 when authorityCertSerialNumber is there. */
QUARN_ASN1_API int quarn_x509akid_hasauthoritycertserialnumber(const quarn_x509akid *value);
/** authorityCertSerialNumber, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_x509akid_getauthoritycertserialnumber(
    const quarn_x509akid *value);

/* ---- ExtKeyUsageSyntax */

/**
 * What a key may be used for.
 *
 *     ExtKeyUsageSyntax ::= SEQUENCE OF keyPurposeId OBJECT IDENTIFIER
 *
 * Type id QUARN_ASN1_X509EXKEYUSAGE (66). A quarn_asn1_list of OBJECT IDENTIFIER (quarn_asn1_oid).
 */
QUARN_ASN1_API void quarn_x509exkeyusage_free(quarn_asn1_list *value);

/* ---- PrivateKeyUsagePeriod */

/**
 * The time in which a private key may be used.
 *
 *     PrivateKeyUsagePeriod ::= SEQUENCE {
 *         notBefore  [0] IMPLICIT GeneralizedTime OPTIONAL,
 *         notAfter   [1] IMPLICIT GeneralizedTime OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_X509PRIVKEYUSAGEPERIOD (67).
 */
typedef struct quarn_x509privkeyusageperiod quarn_x509privkeyusageperiod;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509PRIVKEYUSAGEPERIOD. */
QUARN_ASN1_API void quarn_x509privkeyusageperiod_free(quarn_x509privkeyusageperiod *value);
/** From its components. Null leaves out not_before and not_after. */
QUARN_ASN1_API quarn_x509privkeyusageperiod *quarn_x509privkeyusageperiod_new(
    const quarn_asn1_time *not_before, const quarn_asn1_time *not_after);
/** 1 when notBefore is there. */
QUARN_ASN1_API int quarn_x509privkeyusageperiod_hasnotbefore(
    const quarn_x509privkeyusageperiod *value);
/** notBefore, null when it is absent. */
QUARN_ASN1_API quarn_asn1_time *quarn_x509privkeyusageperiod_getnotbefore(
    const quarn_x509privkeyusageperiod *value);
/** 1 when notAfter is there. */
QUARN_ASN1_API int quarn_x509privkeyusageperiod_hasnotafter(
    const quarn_x509privkeyusageperiod *value);
/** notAfter, null when it is absent. */
QUARN_ASN1_API quarn_asn1_time *quarn_x509privkeyusageperiod_getnotafter(
    const quarn_x509privkeyusageperiod *value);

/* ---- BasicConstraints */

/**
 * Whether a key may sign certificates, and how long the paths through it may be.
 *
 *     BasicConstraints ::= SEQUENCE {
 *         cA                 BOOLEAN DEFAULT FALSE,
 *         pathLenConstraint  INTEGER OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_X509BASICCONSTRAINTS (76).
 */
typedef struct quarn_x509basicconstraints quarn_x509basicconstraints;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509BASICCONSTRAINTS. */
QUARN_ASN1_API void quarn_x509basicconstraints_free(quarn_x509basicconstraints *value);
/**
 * From its components. Null leaves out path_len_constraint, and stands for the default of ca
 * (FALSE).
 */
QUARN_ASN1_API quarn_x509basicconstraints *quarn_x509basicconstraints_new(
    const quarn_asn1_boolean *ca, const quarn_asn1_integer *path_len_constraint);
/** cA, FALSE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_x509basicconstraints_getca(
    const quarn_x509basicconstraints *value);
/** 1 when pathLenConstraint is there. */
QUARN_ASN1_API int quarn_x509basicconstraints_haspathlenconstraint(
    const quarn_x509basicconstraints *value);
/** pathLenConstraint, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_x509basicconstraints_getpathlenconstraint(
    const quarn_x509basicconstraints *value);

/* ---- GeneralSubtree */

/**
 * A part of a name space.
 *
 *     GeneralSubtree ::= SEQUENCE {
 *         base     GeneralName,
 *         minimum  [0] IMPLICIT INTEGER DEFAULT 0,
 *         maximum  [1] IMPLICIT INTEGER OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_X509GENERALTREE (77).
 */
typedef struct quarn_x509generaltree quarn_x509generaltree;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509GENERALTREE. */
QUARN_ASN1_API void quarn_x509generaltree_free(quarn_x509generaltree *value);
/** From its components. Null leaves out maximum, and stands for the default of minimum (0). */
QUARN_ASN1_API quarn_x509generaltree *quarn_x509generaltree_new(const quarn_x509generalname *base,
                                                                const quarn_asn1_integer *minimum,
                                                                const quarn_asn1_integer *maximum);
/** base. */
QUARN_ASN1_API quarn_x509generalname *quarn_x509generaltree_getbase(
    const quarn_x509generaltree *value);
/** minimum, 0 when the encoding has none. */
QUARN_ASN1_API quarn_asn1_integer *quarn_x509generaltree_getminimum(
    const quarn_x509generaltree *value);
/** 1 when maximum is there. */
QUARN_ASN1_API int quarn_x509generaltree_hasmaximum(const quarn_x509generaltree *value);
/** maximum, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_x509generaltree_getmaximum(
    const quarn_x509generaltree *value);

/* ---- DistributionPointName */

/**
 * Where CRLs are found.
 *
 *     DistributionPointName ::= CHOICE {
 *         fullName                 [0] IMPLICIT GeneralNames,
 *         nameRelativeToCRLIssuer  [1] IMPLICIT RelativeDistinguishedName
 *     }
 *
 * Type id QUARN_ASN1_X509DPNAME (83).
 */
typedef struct quarn_x509dpname quarn_x509dpname;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509DPNAME. */
QUARN_ASN1_API void quarn_x509dpname_free(quarn_x509dpname *value);
/** Number of the alternative: 0 fullName, 1 nameRelativeToCRLIssuer; all ones for null. */
QUARN_ASN1_API uint32_t quarn_x509dpname_gettype(const quarn_x509dpname *value);
/** The alternative fullName. */
QUARN_ASN1_API quarn_x509dpname *quarn_x509dpname_newfullname(const quarn_asn1_list *full_name);
/** fullName, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509dpname_getfullname(const quarn_x509dpname *value);
/** The alternative nameRelativeToCRLIssuer. */
QUARN_ASN1_API quarn_x509dpname *quarn_x509dpname_newnamerelativetocrlissuer(
    const quarn_asn1_list *name_relative_to_crl_issuer);
/** nameRelativeToCRLIssuer, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509dpname_getnamerelativetocrlissuer(
    const quarn_x509dpname *value);

/* ---- DistributionPoint */

/**
 * A source of CRLs and what they are about.
 *
 *     DistributionPoint ::= SEQUENCE {
 *         distributionPoint  [0] EXPLICIT DistributionPointName OPTIONAL,
 *         reasons            [1] IMPLICIT BIT STRING OPTIONAL,
 *         cRLIssuer          [2] IMPLICIT GeneralNames OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_X509DISTPOINT (84).
 */
typedef struct quarn_x509distpoint quarn_x509distpoint;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509DISTPOINT. */
QUARN_ASN1_API void quarn_x509distpoint_free(quarn_x509distpoint *value);
/** From its components. Null leaves out distribution_point, reasons and crl_issuer. */
QUARN_ASN1_API quarn_x509distpoint *quarn_x509distpoint_new(
    const quarn_x509dpname *distribution_point,
    const quarn_asn1_bitstring *reasons,
    const quarn_asn1_list *crl_issuer);
/** 1 when distributionPoint is there. */
QUARN_ASN1_API int quarn_x509distpoint_hasdistributionpoint(const quarn_x509distpoint *value);
/** distributionPoint, null when it is absent. */
QUARN_ASN1_API quarn_x509dpname *quarn_x509distpoint_getdistributionpoint(
    const quarn_x509distpoint *value);
/** 1 when reasons is there. */
QUARN_ASN1_API int quarn_x509distpoint_hasreasons(const quarn_x509distpoint *value);
/** reasons, null when it is absent. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_x509distpoint_getreasons(
    const quarn_x509distpoint *value);
/** 1 when cRLIssuer is there. */
QUARN_ASN1_API int quarn_x509distpoint_hascrlissuer(const quarn_x509distpoint *value);
/** cRLIssuer, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509distpoint_getcrlissuer(const quarn_x509distpoint *value);

/* ---- CRLDistributionPoints */

/**
 * The sources of CRLs that cover a certificate.
 *
 *     CRLDistributionPoints ::= SEQUENCE OF DistributionPoint
 *
 * Type id QUARN_ASN1_X509CRLDP (85). A quarn_asn1_list of DistributionPoint (quarn_x509distpoint).
 */
QUARN_ASN1_API void quarn_x509crldp_free(quarn_asn1_list *value);

/* ---- TypeOfBiometricData */

/**
 * What biometric data are of: a number for the known kinds, or an object identifier.
 *
 *     TypeOfBiometricData ::= CHOICE {
 *         predefinedBiometricType  INTEGER,
 *         biometricDataOid         OBJECT IDENTIFIER
 *     }
 *
 * Type id QUARN_ASN1_TYPEOFBIOMETRICDATA (219).
 */
typedef struct quarn_typeofbiometricdata quarn_typeofbiometricdata;
/** As quarn_asn1_value_free() under QUARN_ASN1_TYPEOFBIOMETRICDATA. */
QUARN_ASN1_API void quarn_typeofbiometricdata_free(quarn_typeofbiometricdata *value);
/** Number of the alternative: 1 predefinedBiometricType, 2 biometricDataOid; all ones for null. */
QUARN_ASN1_API uint32_t quarn_typeofbiometricdata_gettype(const quarn_typeofbiometricdata *value);
/** The alternative predefinedBiometricType. */
QUARN_ASN1_API quarn_typeofbiometricdata *quarn_typeofbiometricdata_newpredefined(
    const quarn_asn1_integer *predefined_biometric_type);
/** predefinedBiometricType, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_integer *quarn_typeofbiometricdata_getpredefined(
    const quarn_typeofbiometricdata *value);
/** The alternative biometricDataOid. */
QUARN_ASN1_API quarn_typeofbiometricdata *quarn_typeofbiometricdata_newoid(
    const quarn_asn1_oid *biometric_data_oid);
/** biometricDataOid, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_oid *quarn_typeofbiometricdata_getoid(
    const quarn_typeofbiometricdata *value);

/* ---- RevokedCertificate */

/**
 * An entry of a CRL.
 *
 *     RevokedCertificate ::= SEQUENCE {
 *         userCertificate     INTEGER,
 *         revocationDate      Time,
 *         crlEntryExtensions  Extensions OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_X509REVOKEDCERT (92).
 */
typedef struct quarn_x509revokedcert quarn_x509revokedcert;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509REVOKEDCERT. */
QUARN_ASN1_API void quarn_x509RevokedCert_free(quarn_x509revokedcert *value);
/** From its components. Null leaves out crl_entry_extensions. */
QUARN_ASN1_API quarn_x509revokedcert *quarn_x509revokedcert_new(
    const quarn_asn1_integer *user_certificate,
    const quarn_asn1_time *revocation_date,
    const quarn_asn1_list *crl_entry_extensions);
/** userCertificate. */
QUARN_ASN1_API quarn_asn1_integer *quarn_x509revokedcert_getusercertificate(
    const quarn_x509revokedcert *value);
/** revocationDate. */
QUARN_ASN1_API quarn_asn1_time *quarn_x509revokedcert_getrevocationdate(
    const quarn_x509revokedcert *value);
/** 1 when crlEntryExtensions is there. */
QUARN_ASN1_API int quarn_x509revokedcert_hascrlentryextensions(const quarn_x509revokedcert *value);
/** crlEntryExtensions, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509revokedcert_getcrlentryextensions(
    const quarn_x509revokedcert *value);

/* ---- NoticeNumbers */

/**
 * Numbers of notices.
 *
 *     NoticeNumbers ::= SEQUENCE OF noticeNumber INTEGER
 *
 * Type id QUARN_ASN1_PKIXNOTICENUMBERS (138). A quarn_asn1_list of INTEGER (quarn_asn1_integer).
 */
QUARN_ASN1_API void quarn_pkixnoticenumbers_free(quarn_asn1_list *value);

/* ---- NoticeReference */

/**
 * Notices of an organization, by number.
 *
 *     NoticeReference ::= SEQUENCE {
 *         organization   DisplayText,
 *         noticeNumbers  NoticeNumbers
 *     }
 *
 * Type id QUARN_ASN1_PKIXNOTICEREF (72).
 */
typedef struct quarn_pkixnoticeref quarn_pkixnoticeref;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKIXNOTICEREF. */
QUARN_ASN1_API void quarn_pkixnoticeref_free(quarn_pkixnoticeref *value);
/** From its components. */
QUARN_ASN1_API quarn_pkixnoticeref *quarn_pkixnoticeref_new(const quarn_disptext *organization,
                                                            const quarn_asn1_list *notice_numbers);
/** organization. */
QUARN_ASN1_API quarn_disptext *quarn_pkixnoticeref_getorganization(
    const quarn_pkixnoticeref *value);
/** noticeNumbers. */
QUARN_ASN1_API quarn_asn1_list *quarn_pkixnoticeref_getnoticenumbers(
    const quarn_pkixnoticeref *value);

/* ---- UserNotice */

/**
 * What a policy wants shown to whoever relies on a certificate.
 *
 *     UserNotice ::= SEQUENCE {
 *         noticeRef     NoticeReference OPTIONAL,
 *         explicitText  DisplayText OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_PKIXUSERNOTICE (73).
 */
typedef struct quarn_pkixusernotice quarn_pkixusernotice;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKIXUSERNOTICE. */
QUARN_ASN1_API void quarn_pkixusernotice_free(quarn_pkixusernotice *value);
/** From its components. Null leaves out notice_ref and explicit_text. */
QUARN_ASN1_API quarn_pkixusernotice *quarn_pkixusernotice_new(const quarn_pkixnoticeref *notice_ref,
                                                              const quarn_disptext *explicit_text);
/** 1 when noticeRef is there. */
QUARN_ASN1_API int quarn_pkixusernotice_hasnoticeref(const quarn_pkixusernotice *value);
/** noticeRef, null when it is absent. */
QUARN_ASN1_API quarn_pkixnoticeref *quarn_pkixusernotice_getnoticeref(
    const quarn_pkixusernotice *value);
/** 1 when explicitText is there. */
QUARN_ASN1_API int quarn_pkixusernotice_hasexplicittext(const quarn_pkixusernotice *value);
/** explicitText, null when it is absent. */
QUARN_ASN1_API quarn_disptext *quarn_pkixusernotice_getexplicittext(
    const quarn_pkixusernotice *value);

#ifdef __cplusplus
}
#endif

#endif
