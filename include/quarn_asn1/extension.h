/* Generated from modules/ASN1_Extension.asn1 by tools/generate.py; do not edit. */
/**
 * The values of extensions of certificates and revocation lists (X.509, RFC 5280, RFC 3739).
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
#ifndef QUARN_ASN1_EXTENSION_H
#define QUARN_ASN1_EXTENSION_H

#include "types.h"
#include "x500.h"
#include "x509.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- EDIPartyName */

/**
 * A party of electronic data interchange (RFC 5280, 4.2.1.6).
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
 * A name of any kind (RFC 5280, 4.2.1.6).
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
    const quarn_x500name *directory_name);
/** directoryName, null when it is another alternative. */
QUARN_ASN1_API quarn_x500name *quarn_x509generalname_getdirname(const quarn_x509generalname *value);
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
 * Names of any kinds (RFC 5280, 4.2.1.6).
 *
 *     GeneralNames ::= SEQUENCE OF GeneralName
 *
 * Type id QUARN_ASN1_X509GENERALNAMES (64). A quarn_asn1_list of GeneralName
 * (quarn_x509generalname).
 */
QUARN_ASN1_API void quarn_x509generalnames_free(quarn_asn1_list *value);

/* ---- AuthorityKeyIdentifier */

/**
 * Which key of the issuer signed (RFC 5280, 4.2.1.1). Decoding accepts an issuer without a serial
 * number.
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
/** A new identifier. Each argument may be null, but an issuer calls for a serial number. */
QUARN_ASN1_API quarn_x509akid *quarn_x509akid_new(const quarn_asn1_octetstring *key_identifier,
                                                  const quarn_asn1_list *issuer,
                                                  const quarn_asn1_integer *serial_number);

/* ---- ExtKeyUsageSyntax */

/**
 * The purposes that a key may be used for (RFC 5280, 4.2.1.12).
 *
 *     ExtKeyUsageSyntax ::= SEQUENCE OF OBJECT IDENTIFIER
 *
 * Type id QUARN_ASN1_X509EXKEYUSAGE (66). A quarn_asn1_list of OBJECT IDENTIFIER (quarn_asn1_oid).
 */
QUARN_ASN1_API void quarn_x509exkeyusage_free(quarn_asn1_list *value);

/* ---- PrivateKeyUsagePeriod */

/**
 * From when until when a private key signs (X.509, 9.2.2.5).
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

/* ---- PolicyQualifiers */

/**
 * Qualifiers of a policy (RFC 5280, 4.2.1.4).
 *
 *     PolicyQualifiers ::= SEQUENCE OF AlgorithmIdentifier
 *
 * Type id QUARN_ASN1_X509POLICYQUALIFIERINFOS (137). A quarn_asn1_list of AlgorithmIdentifier
 * (quarn_x509algoid).
 */
QUARN_ASN1_API void quarn_x509policyqualifierinfos_free(quarn_asn1_list *value);

/* ---- PolicyInformation */

/**
 * A policy and its qualifiers (RFC 5280, 4.2.1.4).
 *
 *     PolicyInformation ::= SEQUENCE {
 *         policyIdentifier  OBJECT IDENTIFIER,
 *         policyQualifiers  PolicyQualifiers OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_X509POLICYINFO (69).
 */
typedef struct quarn_x509policyinfo quarn_x509policyinfo;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509POLICYINFO. */
QUARN_ASN1_API void quarn_x509policyinfo_free(quarn_x509policyinfo *value);
/** From its components. Null leaves out policy_qualifiers. */
QUARN_ASN1_API quarn_x509policyinfo *quarn_x509policyinfo_new(
    const quarn_asn1_oid *policy_identifier, const quarn_asn1_list *policy_qualifiers);
/** policyIdentifier. */
QUARN_ASN1_API quarn_asn1_oid *quarn_x509policyinfo_getpolicyidentifier(
    const quarn_x509policyinfo *value);
/** 1 when policyQualifiers is there. */
QUARN_ASN1_API int quarn_x509policyinfo_haspolicyqualifiers(const quarn_x509policyinfo *value);
/** policyQualifiers, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509policyinfo_getpolicyqualifiers(
    const quarn_x509policyinfo *value);

/* ---- CertificatePolicies */

/**
 * The policies that a certificate was issued under (RFC 5280, 4.2.1.4).
 *
 *     CertificatePolicies ::= SEQUENCE OF PolicyInformation
 *
 * Type ids QUARN_ASN1_X509CERTPOLICIES (70), QUARN_ASN1_X509POLICYINFOS (198). A quarn_asn1_list of
 * PolicyInformation (quarn_x509policyinfo).
 */
QUARN_ASN1_API void quarn_x509certpolicies_free(quarn_asn1_list *value);
/** As quarn_asn1_value_free() under QUARN_ASN1_X509POLICYINFOS. */
QUARN_ASN1_API void quarn_x509policyinfos_free(quarn_asn1_list *value);

/* ---- NoticeNumbers */

/**
 * Numbers of notices (RFC 5280, 4.2.1.4).
 *
 *     NoticeNumbers ::= SEQUENCE OF INTEGER
 *
 * Type id QUARN_ASN1_PKIXNOTICENUMBERS (138). A quarn_asn1_list of INTEGER (quarn_asn1_integer).
 */
QUARN_ASN1_API void quarn_pkixnoticenumbers_free(quarn_asn1_list *value);

/* ---- NoticeReference */

/**
 * Notices of an organization (RFC 5280, 4.2.1.4).
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
 * What a user of a certificate is to be shown (RFC 5280, 4.2.1.4).
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

/* ---- PolicyMapping */

/**
 * A policy of the issuer's domain that is as good as one of the subject's (RFC 5280, 4.2.1.5).
 *
 *     PolicyMapping ::= SEQUENCE {
 *         issuerDomainPolicy   OBJECT IDENTIFIER,
 *         subjectDomainPolicy  OBJECT IDENTIFIER
 *     }
 *
 * Type id QUARN_ASN1_X509POLICYMAPPING (139).
 */
typedef struct quarn_x509policymapping quarn_x509policymapping;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509POLICYMAPPING. */
QUARN_ASN1_API void quarn_x509policymapping_free(quarn_x509policymapping *value);
/** From its components. */
QUARN_ASN1_API quarn_x509policymapping *quarn_x509policymapping_new(
    const quarn_asn1_oid *issuer_domain_policy, const quarn_asn1_oid *subject_domain_policy);
/** issuerDomainPolicy. */
QUARN_ASN1_API quarn_asn1_oid *quarn_x509policymapping_getissuerdomainpolicy(
    const quarn_x509policymapping *value);
/** subjectDomainPolicy. */
QUARN_ASN1_API quarn_asn1_oid *quarn_x509policymapping_getsubjectdomainpolicy(
    const quarn_x509policymapping *value);

/* ---- PolicyMappings */

/**
 * Pairs of equivalent policies (RFC 5280, 4.2.1.5).
 *
 *     PolicyMappings ::= SEQUENCE OF PolicyMapping
 *
 * Type id QUARN_ASN1_X509POLICYMAPPINGS (74). A quarn_asn1_list of PolicyMapping
 * (quarn_x509policymapping).
 */
QUARN_ASN1_API void quarn_x509policymappings_free(quarn_asn1_list *value);

/* ---- SubjectDirectoryAttributes */

/**
 * Attributes of the subject (RFC 5280, 4.2.1.8).
 *
 *     SubjectDirectoryAttributes ::= SEQUENCE OF Attribute
 *
 * Type id QUARN_ASN1_X509SUBJECTDIRATTRS (75). A quarn_asn1_list of Attribute
 * (quarn_x500attribute).
 */
QUARN_ASN1_API void quarn_x509subjectdirattrs_free(quarn_asn1_list *value);

/* ---- BasicConstraints */

/**
 * Whether the subject is a certification authority (RFC 5280, 4.2.1.9). Decoding accepts a path
 * length without cA.
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
/** cA, FALSE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_x509basicconstraints_getca(
    const quarn_x509basicconstraints *value);
/** 1 when pathLenConstraint is there. */
QUARN_ASN1_API int quarn_x509basicconstraints_haspathlenconstraint(
    const quarn_x509basicconstraints *value);
/** pathLenConstraint, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_x509basicconstraints_getpathlenconstraint(
    const quarn_x509basicconstraints *value);
/** New constraints. A null ca stands for FALSE; the path length is kept only when ca is TRUE. */
QUARN_ASN1_API quarn_x509basicconstraints *quarn_x509basicconstraints_new(
    const quarn_asn1_boolean *ca, const quarn_asn1_integer *path_length);

/* ---- GeneralSubtree */

/**
 * The names under a name (RFC 5280, 4.2.1.10).
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

/* ---- GeneralSubtrees */

/**
 * Parts of the space of names (RFC 5280, 4.2.1.10).
 *
 *     GeneralSubtrees ::= SEQUENCE OF GeneralSubtree
 *
 * Type id QUARN_ASN1_X509GENERALTREES (78). A quarn_asn1_list of GeneralSubtree
 * (quarn_x509generaltree).
 */
QUARN_ASN1_API void quarn_x509generaltrees_free(quarn_asn1_list *value);

/* ---- NameForms */

/**
 * OBJECT IDENTIFIERs of name forms (X.509, 9.4.2.2).
 *
 *     NameForms ::= SEQUENCE {
 *         basicNameForms  [0] IMPLICIT BIT STRING OPTIONAL,
 *         otherNameForms  [1] IMPLICIT ExtKeyUsageSyntax OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_X509NAMEFORMS (79).
 */
typedef struct quarn_x509nameforms quarn_x509nameforms;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509NAMEFORMS. */
QUARN_ASN1_API void quarn_x509nameforms_free(quarn_x509nameforms *value);
/** From its components. Null leaves out basic_name_forms and other_name_forms. */
QUARN_ASN1_API quarn_x509nameforms *quarn_x509nameforms_new(
    const quarn_asn1_bitstring *basic_name_forms, const quarn_asn1_list *other_name_forms);
/** 1 when basicNameForms is there. */
QUARN_ASN1_API int quarn_x509nameforms_hasbasicnameforms(const quarn_x509nameforms *value);
/** basicNameForms, null when it is absent. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_x509nameforms_getbasicnameforms(
    const quarn_x509nameforms *value);
/** 1 when otherNameForms is there. */
QUARN_ASN1_API int quarn_x509nameforms_hasothernameforms(const quarn_x509nameforms *value);
/** otherNameForms, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509nameforms_getothernameforms(
    const quarn_x509nameforms *value);

/* ---- NameConstraints */

/**
 * The names that a certification authority may issue for (X.509, 9.4.2.2). RFC 5280 (type id
 * QUARN_ASN1_PKIXNAMECONSTAINTS) has no requiredNameForms: there, such a value is refused.
 *
 *     NameConstraints ::= SEQUENCE {
 *         permittedSubtrees  [0] IMPLICIT GeneralSubtrees OPTIONAL,
 *         excludedSubtrees   [1] IMPLICIT GeneralSubtrees OPTIONAL,
 *         requiredNameForms  [2] IMPLICIT NameForms OPTIONAL
 *     }
 *
 * Type ids QUARN_ASN1_X509NAMECONSTAINTS (80), QUARN_ASN1_PKIXNAMECONSTAINTS (81).
 */
typedef struct quarn_x509nameconstaints quarn_x509nameconstaints;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509NAMECONSTAINTS. */
QUARN_ASN1_API void quarn_x509nameconstaints_free(quarn_x509nameconstaints *value);
/** As quarn_asn1_value_free() under QUARN_ASN1_PKIXNAMECONSTAINTS. */
QUARN_ASN1_API void quarn_pkixnameconstaints_free(quarn_x509nameconstaints *value);
/**
 * From its components. Null leaves out permitted_subtrees, excluded_subtrees and
 * required_name_forms.
 */
QUARN_ASN1_API quarn_x509nameconstaints *quarn_x509nameconstaints_new(
    const quarn_asn1_list *permitted_subtrees,
    const quarn_asn1_list *excluded_subtrees,
    const quarn_x509nameforms *required_name_forms);
/** 1 when permittedSubtrees is there. */
QUARN_ASN1_API int quarn_x509nameconstaints_haspermittedsubtrees(
    const quarn_x509nameconstaints *value);
/** permittedSubtrees, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509nameconstaints_getpermittedsubtrees(
    const quarn_x509nameconstaints *value);
/** 1 when excludedSubtrees is there. */
QUARN_ASN1_API int quarn_x509nameconstaints_hasexcludedsubtrees(
    const quarn_x509nameconstaints *value);
/** excludedSubtrees, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_x509nameconstaints_getexcludedsubtrees(
    const quarn_x509nameconstaints *value);
/** 1 when requiredNameForms is there. */
QUARN_ASN1_API int quarn_x509nameconstaints_hasrequirednameforms(
    const quarn_x509nameconstaints *value);
/** requiredNameForms, null when it is absent. */
QUARN_ASN1_API quarn_x509nameforms *quarn_x509nameconstaints_getrequirednameforms(
    const quarn_x509nameconstaints *value);

/* ---- PolicyConstraints */

/**
 * After how many certificates policies must be explicit and mappings end (RFC 5280, 4.2.1.11).
 *
 *     PolicyConstraints ::= SEQUENCE {
 *         requireExplicitPolicy  [0] IMPLICIT INTEGER OPTIONAL,
 *         inhibitPolicyMapping   [1] IMPLICIT INTEGER OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_X509POLICYCONSTAINTS (82).
 */
typedef struct quarn_x509policyconstaints quarn_x509policyconstaints;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509POLICYCONSTAINTS. */
QUARN_ASN1_API void quarn_x509policyconstaints_free(quarn_x509policyconstaints *value);
/** From its components. Null leaves out require_explicit_policy and inhibit_policy_mapping. */
QUARN_ASN1_API quarn_x509policyconstaints *quarn_x509policyconstaints_new(
    const quarn_asn1_integer *require_explicit_policy,
    const quarn_asn1_integer *inhibit_policy_mapping);
/** 1 when requireExplicitPolicy is there. */
QUARN_ASN1_API int quarn_x509policyconstaints_hasrequireexplicitpolicy(
    const quarn_x509policyconstaints *value);
/** requireExplicitPolicy, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_x509policyconstaints_getrequireexplicitpolicy(
    const quarn_x509policyconstaints *value);
/** 1 when inhibitPolicyMapping is there. */
QUARN_ASN1_API int quarn_x509policyconstaints_hasinhibitpolicymapping(
    const quarn_x509policyconstaints *value);
/** inhibitPolicyMapping, null when it is absent. */
QUARN_ASN1_API quarn_asn1_integer *quarn_x509policyconstaints_getinhibitpolicymapping(
    const quarn_x509policyconstaints *value);

/* ---- DistributionPointName */

/**
 * The name of a place where lists are found (RFC 5280, 4.2.1.13).
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
 * Where to find lists, for which reasons, issued by whom (RFC 5280, 4.2.1.13).
 *
 *     DistributionPoint ::= SEQUENCE {
 *         distributionPoint  [0] EXPLICIT DistributionPointName OPTIONAL,
 *         reasons            [1] IMPLICIT ReasonFlags OPTIONAL,
 *         cRLIssuer          [2] IMPLICIT GeneralNames OPTIONAL
 *     }
 *     ReasonFlags ::= BIT STRING {
 *         unused(0), keyCompromise(1), cACompromise(2), affiliationChanged(3), superseded(4),
 *         cessationOfOperation(5), certificateHold(6), privilegeWithdrawn(7), aACompromise(8)
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
 * Where to find lists (RFC 5280, 4.2.1.13).
 *
 *     CRLDistributionPoints ::= SEQUENCE OF DistributionPoint
 *
 * Type id QUARN_ASN1_X509CRLDP (85). A quarn_asn1_list of DistributionPoint (quarn_x509distpoint).
 */
QUARN_ASN1_API void quarn_x509crldp_free(quarn_asn1_list *value);

/* ---- AccessDescription */

/**
 * A way of access and a place (RFC 5280, 4.2.2.1).
 *
 *     AccessDescription ::= SEQUENCE {
 *         accessMethod    OBJECT IDENTIFIER,
 *         accessLocation  GeneralName
 *     }
 *
 * Type id QUARN_ASN1_PKIXACCESSDESC (86).
 */
typedef struct quarn_pkixaccessdesc quarn_pkixaccessdesc;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKIXACCESSDESC. */
QUARN_ASN1_API void quarn_pkixaccessdesc_free(quarn_pkixaccessdesc *value);
/** From its components. */
QUARN_ASN1_API quarn_pkixaccessdesc *quarn_pkixaccessdesc_new(
    const quarn_asn1_oid *access_method, const quarn_x509generalname *access_location);
/** accessMethod. */
QUARN_ASN1_API quarn_asn1_oid *quarn_pkixaccessdesc_getaccessmethod(
    const quarn_pkixaccessdesc *value);
/** accessLocation. */
QUARN_ASN1_API quarn_x509generalname *quarn_pkixaccessdesc_getaccesslocation(
    const quarn_pkixaccessdesc *value);

/* ---- AuthorityInfoAccessSyntax */

/**
 * Services of the issuer or the subject (RFC 5280, 4.2.2.1).
 *
 *     AuthorityInfoAccessSyntax ::= SEQUENCE OF AccessDescription
 *
 * Type id QUARN_ASN1_PKIXAIA (87). A quarn_asn1_list of AccessDescription (quarn_pkixaccessdesc).
 */
QUARN_ASN1_API void quarn_pkixaia_free(quarn_asn1_list *value);

/* ---- IssuingDistributionPoint */

/**
 * What a list covers (RFC 5280, 5.2.5).
 *
 *     IssuingDistributionPoint ::= SEQUENCE {
 *         distributionPoint           [0] EXPLICIT DistributionPointName OPTIONAL,
 *         onlyContainsUserCerts       [1] IMPLICIT BOOLEAN DEFAULT FALSE,
 *         onlyContainsCACerts         [2] IMPLICIT BOOLEAN DEFAULT FALSE,
 *         onlySomeReasons             [3] IMPLICIT ReasonFlags OPTIONAL,
 *         indirectCRL                 [4] IMPLICIT BOOLEAN DEFAULT FALSE,
 *         onlyContainsAttributeCerts  [5] IMPLICIT BOOLEAN DEFAULT FALSE
 *     }
 *     ReasonFlags ::= BIT STRING {
 *         unused(0), keyCompromise(1), cACompromise(2), affiliationChanged(3), superseded(4),
 *         cessationOfOperation(5), certificateHold(6), privilegeWithdrawn(7), aACompromise(8)
 *     }
 *
 * Type id QUARN_ASN1_PKIXIDP (88).
 */
typedef struct quarn_pkixidp quarn_pkixidp;
/** As quarn_asn1_value_free() under QUARN_ASN1_PKIXIDP. */
QUARN_ASN1_API void quarn_pkixidp_free(quarn_pkixidp *value);
/**
 * From its components. Null leaves out distribution_point and only_some_reasons, and stands for the
 * default of only_contains_user_certs (FALSE), only_contains_ca_certs (FALSE), indirect_crl (FALSE)
 * and only_contains_attribute_certs (FALSE).
 */
QUARN_ASN1_API quarn_pkixidp *quarn_pkixidp_new(
    const quarn_x509dpname *distribution_point,
    const quarn_asn1_boolean *only_contains_user_certs,
    const quarn_asn1_boolean *only_contains_ca_certs,
    const quarn_asn1_bitstring *only_some_reasons,
    const quarn_asn1_boolean *indirect_crl,
    const quarn_asn1_boolean *only_contains_attribute_certs);
/** 1 when distributionPoint is there. */
QUARN_ASN1_API int quarn_pkixidp_hasdistributionpoint(const quarn_pkixidp *value);
/** distributionPoint, null when it is absent. */
QUARN_ASN1_API quarn_x509dpname *quarn_pkixidp_getdistributionpoint(const quarn_pkixidp *value);
/** onlyContainsUserCerts, FALSE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_pkixidp_getonlycontainsusercerts(
    const quarn_pkixidp *value);
/** onlyContainsCACerts, FALSE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_pkixidp_getonlycontainscacerts(const quarn_pkixidp *value);
/** 1 when onlySomeReasons is there. */
QUARN_ASN1_API int quarn_pkixidp_hasonlysomereasons(const quarn_pkixidp *value);
/** onlySomeReasons, null when it is absent. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_pkixidp_getonlysomereasons(const quarn_pkixidp *value);
/** indirectCRL, FALSE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_pkixidp_getindirectcrl(const quarn_pkixidp *value);
/** onlyContainsAttributeCerts, FALSE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_pkixidp_getonlycontainsattributecerts(
    const quarn_pkixidp *value);

/* ---- AAIssuingDistributionPoint */

/**
 * What a list of attribute certificates covers (X.509, 17.2.2.5).
 *
 *     AAIssuingDistributionPoint ::= SEQUENCE {
 *         distributionPoint           [0] EXPLICIT DistributionPointName OPTIONAL,
 *         onlySomeReasons             [1] IMPLICIT ReasonFlags OPTIONAL,
 *         indirectCRL                 [2] IMPLICIT BOOLEAN DEFAULT FALSE,
 *         containsUserAttributeCerts  [3] IMPLICIT BOOLEAN DEFAULT TRUE,
 *         containsAACerts             [4] IMPLICIT BOOLEAN DEFAULT TRUE,
 *         containsSOAPublicKeyCerts   [5] IMPLICIT BOOLEAN DEFAULT TRUE
 *     }
 *     ReasonFlags ::= BIT STRING {
 *         unused(0), keyCompromise(1), cACompromise(2), affiliationChanged(3), superseded(4),
 *         cessationOfOperation(5), certificateHold(6), privilegeWithdrawn(7), aACompromise(8)
 *     }
 *
 * Type id QUARN_ASN1_X509AAIDP (89).
 */
typedef struct quarn_x509aaidp quarn_x509aaidp;
/** As quarn_asn1_value_free() under QUARN_ASN1_X509AAIDP. */
QUARN_ASN1_API void quarn_x509aaidp_free(quarn_x509aaidp *value);
/** 1 when distributionPoint is there. */
QUARN_ASN1_API int quarn_x509aaidp_hasdistributionpoint(const quarn_x509aaidp *value);
/** distributionPoint, null when it is absent. */
QUARN_ASN1_API quarn_x509dpname *quarn_x509aaidp_getdistributionpoint(const quarn_x509aaidp *value);
/** 1 when onlySomeReasons is there. */
QUARN_ASN1_API int quarn_x509aaidp_hasonlysomereasons(const quarn_x509aaidp *value);
/** onlySomeReasons, null when it is absent. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_x509aaidp_getonlysomereasons(
    const quarn_x509aaidp *value);
/** indirectCRL, FALSE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_x509aaidp_getindirectcrl(const quarn_x509aaidp *value);
/** containsUserAttributeCerts, TRUE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_x509aaidp_getcontainsuserattributecerts(
    const quarn_x509aaidp *value);
/** containsAACerts, TRUE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_x509aaidp_getcontainsaacerts(const quarn_x509aaidp *value);
/** containsSOAPublicKeyCerts, TRUE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_x509aaidp_getcontainssoapublickeycerts(
    const quarn_x509aaidp *value);
/** A new distribution point. Each argument may be null; the order is not that of the components. */
QUARN_ASN1_API quarn_x509aaidp *quarn_x509aaidp_new(
    const quarn_x509dpname *distribution_point,
    const quarn_asn1_boolean *contains_user_attribute_certs,
    const quarn_asn1_boolean *contains_aa_certs,
    const quarn_asn1_boolean *contains_soa_public_key_certs,
    const quarn_asn1_bitstring *only_some_reasons,
    const quarn_asn1_boolean *indirect_crl);

/* ---- OldCertificateThumbprints */

/**
 * Digests of earlier certificates of the same subject.
 *
 *     OldCertificateThumbprints ::= SEQUENCE OF DigestInfo
 *
 * Type id QUARN_ASN1_QUARNOLDCERTTHUMBS (91). A quarn_asn1_list of DigestInfo
 * (quarn_pkcsdigestinfo).
 */
QUARN_ASN1_API void quarn_quarnoldcertthumbs_free(quarn_asn1_list *value);

/* ---- IdentityCode */

/**
 * An official number of a person.
 *
 *     IdentityCode ::= CHOICE {
 *         residenterCardNumber       [0] IMPLICIT PrintableString,
 *         militaryOfficerCardNumber  [1] IMPLICIT UTF8String,
 *         passportNumber             [2] IMPLICIT PrintableString
 *     }
 *
 * Type id QUARN_ASN1_IDENTITYCODE (217).
 */
typedef struct quarn_identitycode quarn_identitycode;
/** As quarn_asn1_value_free() under QUARN_ASN1_IDENTITYCODE. */
QUARN_ASN1_API void quarn_identitycode_free(quarn_identitycode *value);
/**
 * Number of the alternative: 0 residenterCardNumber, 1 militaryOfficerCardNumber, 2 passportNumber;
 * all ones for null.
 */
QUARN_ASN1_API uint32_t quarn_identitycode_gettype(const quarn_identitycode *value);
/** The alternative residenterCardNumber. */
QUARN_ASN1_API quarn_identitycode *quarn_identitycode_newresidentercardnumber(
    const quarn_asn1_octetstring *residenter_card_number);
/** residenterCardNumber, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_identitycode_getresidentercardnumber(
    const quarn_identitycode *value);
/** The alternative militaryOfficerCardNumber. */
QUARN_ASN1_API quarn_identitycode *quarn_identitycode_newmilitaryofficercardnumber(
    const quarn_asn1_octetstring *military_officer_card_number);
/** militaryOfficerCardNumber, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_identitycode_getmilitaryofficercardnumber(
    const quarn_identitycode *value);
/** The alternative passportNumber. */
QUARN_ASN1_API quarn_identitycode *quarn_identitycode_newpassportnumber(
    const quarn_asn1_octetstring *passport_number);
/** passportNumber, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_identitycode_getpassportnumber(
    const quarn_identitycode *value);

/* ---- TypeOfBiometricData */

/**
 * A kind of biometric data (RFC 3739, 3.2.5).
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

/* ---- BiometricData */

/**
 * A digest of biometric data and where to find them (RFC 3739, 3.2.5).
 *
 *     BiometricData ::= SEQUENCE {
 *         typeOfBiometricData  TypeOfBiometricData,
 *         hashAlgorithm        AlgorithmIdentifier,
 *         biometricDataHash    OCTET STRING,
 *         sourceDataUri        IA5String OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_BIOMETRICDATA (220).
 */
typedef struct quarn_biometricdata quarn_biometricdata;
/** As quarn_asn1_value_free() under QUARN_ASN1_BIOMETRICDATA. */
QUARN_ASN1_API void quarn_biometricdata_free(quarn_biometricdata *value);
/** From its components. Null leaves out source_data_uri. */
QUARN_ASN1_API quarn_biometricdata *quarn_biometricdata_new(
    const quarn_typeofbiometricdata *type_of_biometric_data,
    const quarn_x509algoid *hash_algorithm,
    const quarn_asn1_octetstring *biometric_data_hash,
    const quarn_asn1_octetstring *source_data_uri);
/** typeOfBiometricData. */
QUARN_ASN1_API quarn_typeofbiometricdata *quarn_biometricdata_gettypeofbiometricdata(
    const quarn_biometricdata *value);
/** hashAlgorithm. */
QUARN_ASN1_API quarn_x509algoid *quarn_biometricdata_gethashalgorithm(
    const quarn_biometricdata *value);
/** biometricDataHash. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_biometricdata_getbiometricdatahash(
    const quarn_biometricdata *value);
/** 1 when sourceDataUri is there. */
QUARN_ASN1_API int quarn_biometricdata_hassourcedatauri(const quarn_biometricdata *value);
/** sourceDataUri, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_biometricdata_getsourcedatauri(
    const quarn_biometricdata *value);

/* ---- QCStatements */

/**
 * Statements about a qualified certificate (RFC 3739, 3.2.6).
 *
 *     QCStatements ::= SEQUENCE OF AlgorithmIdentifier
 *
 * Type id QUARN_ASN1_QCSTATEMENTS (222). A quarn_asn1_list of AlgorithmIdentifier
 * (quarn_x509algoid).
 */
QUARN_ASN1_API void quarn_qcstatements_free(quarn_asn1_list *value);

/* ---- NameRegistrationAuthorities */

/**
 * Who registered the names (RFC 3739, 3.2.6.1).
 *
 *     NameRegistrationAuthorities ::= SEQUENCE OF GeneralName
 *
 * Type id QUARN_ASN1_NAMEREGISTRATIONAUTHORITIES (223). A quarn_asn1_list of GeneralName
 * (quarn_x509generalname).
 */
QUARN_ASN1_API void quarn_nameregistrationauthorities_free(quarn_asn1_list *value);

/* ---- SemanticsInformation */

/**
 * How the names of a certificate are meant (RFC 3739, 3.2.6.1). Decoding accepts a value without
 * either.
 *
 *     SemanticsInformation ::= SEQUENCE {
 *         semanticsIdentifier          OBJECT IDENTIFIER OPTIONAL,
 *         nameRegistrationAuthorities  NameRegistrationAuthorities OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_SEMANTICSINFORMATION (224).
 */
typedef struct quarn_semanticsinformation quarn_semanticsinformation;
/** As quarn_asn1_value_free() under QUARN_ASN1_SEMANTICSINFORMATION. */
QUARN_ASN1_API void quarn_semanticsinformation_free(quarn_semanticsinformation *value);
/** 1 when semanticsIdentifier is there. */
QUARN_ASN1_API int quarn_semanticsinformation_hassemanticsidentifier(
    const quarn_semanticsinformation *value);
/** semanticsIdentifier, null when it is absent. */
QUARN_ASN1_API quarn_asn1_oid *quarn_semanticsinformation_getsemanticsidentifier(
    const quarn_semanticsinformation *value);
/** 1 when nameRegistrationAuthorities is there. */
QUARN_ASN1_API int quarn_semanticsinformation_hasnameregistrationauthorities(
    const quarn_semanticsinformation *value);
/** nameRegistrationAuthorities, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_semanticsinformation_getnameregistrationauthorities(
    const quarn_semanticsinformation *value);
/** New semantics from an identifier, authorities, or both. */
QUARN_ASN1_API quarn_semanticsinformation *quarn_semanticsinformation_new(
    const quarn_asn1_oid *identifier, const quarn_asn1_list *authorities);

/* ---- OctetStrings */

/**
 * OCTET STRINGs one after another; also the PartialHashtree of RFC 4998.
 *
 *     OctetStrings ::= SEQUENCE OF OCTET STRING
 *
 * Type ids QUARN_ASN1_OCTETSTRINGS (250), QUARN_ASN1_ERS_PARTIALHASHTREE (269). A quarn_asn1_list
 * of OCTET STRING (quarn_asn1_octetstring).
 */
QUARN_ASN1_API void quarn_octetstrings_free(quarn_asn1_list *value);

/* ---- IdentificationItem */

/**
 * Something that identifies the holder, in a form that type and encode name.
 *
 *     IdentificationItem ::= SEQUENCE {
 *         type    INTEGER,
 *         encode  INTEGER,
 *         value   OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_QUARNIDENTIFICATIONITEM (299).
 */
typedef struct quarn_quarnidentificationitem quarn_quarnidentificationitem;
/** As quarn_asn1_value_free() under QUARN_ASN1_QUARNIDENTIFICATIONITEM. */
QUARN_ASN1_API void quarn_quarnidentificationitem_free(quarn_quarnidentificationitem *value);
/** From its components. */
QUARN_ASN1_API quarn_quarnidentificationitem *quarn_quarnidentificationitem_new(
    const quarn_asn1_integer *type,
    const quarn_asn1_integer *encode,
    const quarn_asn1_octetstring *value);
/** type. */
QUARN_ASN1_API quarn_asn1_integer *quarn_quarnidentificationitem_gettype(
    const quarn_quarnidentificationitem *value);
/** encode. */
QUARN_ASN1_API quarn_asn1_integer *quarn_quarnidentificationitem_getencode(
    const quarn_quarnidentificationitem *value);
/** value. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_quarnidentificationitem_getvalue(
    const quarn_quarnidentificationitem *value);

/* ---- IdentificationItems */

/**
 * What identifies the holder.
 *
 *     IdentificationItems ::= SEQUENCE OF IdentificationItem
 *
 * Type id QUARN_ASN1_QUARNIDENTIFICATIONITEMS (300). A quarn_asn1_list of IdentificationItem
 * (quarn_quarnidentificationitem).
 */
QUARN_ASN1_API void quarn_quarnidentificationitems_free(quarn_asn1_list *value);

#ifdef __cplusplus
}
#endif

#endif
