/* Generated from modules/ASN1_LDAP.asn1 by tools/generate.py; do not edit. */
/**
 * The messages of LDAP (RFC 4511) and what they are made of. Names and values are OCTET STRINGs
 * there, in UTF-8 if they are text. Enumerations are extensible: any number is decoded. Sets keep
 * the order that they come in. Elements behind those of a definition are refused. Peers take
 * definite lengths alone (RFC 4511, 5.1): an OCTET STRING over a stream that cannot tell its length
 * is not for them.
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
#ifndef QUARN_ASN1_LDAP_H
#define QUARN_ASN1_LDAP_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- AttributeValueAssertion */

/**
 * What a value of an attribute is compared with (RFC 4511, 4.1.6).
 *
 *     AttributeValueAssertion ::= SEQUENCE {
 *         attributeDesc   OCTET STRING,
 *         assertionValue  OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_LDAPATTRIBUTEVALUEASSERTION (312).
 */
typedef struct quarn_ldapattributevalueassertion quarn_ldapattributevalueassertion;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPATTRIBUTEVALUEASSERTION. */
QUARN_ASN1_API void quarn_ldapattributevalueassertion_free(
    quarn_ldapattributevalueassertion *value);
/** From its components. */
QUARN_ASN1_API quarn_ldapattributevalueassertion *quarn_ldapattributevalueassertion_new(
    const quarn_asn1_octetstring *attribute_desc, const quarn_asn1_octetstring *assertion_value);
/** attributeDesc. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapattributevalueassertion_getattributedesc(
    const quarn_ldapattributevalueassertion *value);
/** assertionValue. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapattributevalueassertion_getassertionvalue(
    const quarn_ldapattributevalueassertion *value);

/* ---- Referral */

/**
 * Where else to ask, and as the message SearchResultReference (RFC 4511, 4.1.10, 4.5.3).
 *
 *     Referral ::= SEQUENCE SIZE (1..MAX) OF uri OCTET STRING
 *
 * Type ids QUARN_ASN1_LDAPREFERRAL (313), QUARN_ASN1_LDAPSEARCHRESULTREFERENCE (334, [APPLICATION
 * 19]). A quarn_asn1_list of OCTET STRING (quarn_asn1_octetstring).
 */
QUARN_ASN1_API void quarn_ldapreferral_free(quarn_asn1_list *value);

/* ---- PartialAttribute */

/**
 * An attribute of which there may be no value (RFC 4511, 4.1.7).
 *
 *     PartialAttribute ::= SEQUENCE {
 *         type  OCTET STRING,
 *         vals  LDAPAttributeValues
 *     }
 *
 * Type id QUARN_ASN1_LDAPPARTIALATTRIBUTE (314).
 */
typedef struct quarn_ldappartialattribute quarn_ldappartialattribute;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPPARTIALATTRIBUTE. */
QUARN_ASN1_API void quarn_ldappartialattribute_free(quarn_ldappartialattribute *value);
/** From its components. */
QUARN_ASN1_API quarn_ldappartialattribute *quarn_ldappartialattribute_new(
    const quarn_asn1_octetstring *type, const quarn_asn1_list *vals);
/** type. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldappartialattribute_gettype(
    const quarn_ldappartialattribute *value);
/** vals. */
QUARN_ASN1_API quarn_asn1_list *quarn_ldappartialattribute_getvals(
    const quarn_ldappartialattribute *value);

/* ---- LDAPAttribute */

/**
 * An attribute with at least one value (RFC 4511, 4.1.7).
 *
 *     LDAPAttribute ::= SEQUENCE {
 *         type  OCTET STRING,
 *         vals  LDAPAttributeValues
 *     }
 *
 * Type id QUARN_ASN1_LDAPATTRIBUTE (315).
 */
typedef struct quarn_ldapattribute quarn_ldapattribute;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPATTRIBUTE. */
QUARN_ASN1_API void quarn_ldapattribute_free(quarn_ldapattribute *value);
/** From its components. */
QUARN_ASN1_API quarn_ldapattribute *quarn_ldapattribute_new(const quarn_asn1_octetstring *type,
                                                            const quarn_asn1_list *vals);
/** type. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapattribute_gettype(
    const quarn_ldapattribute *value);
/** vals. */
QUARN_ASN1_API quarn_asn1_list *quarn_ldapattribute_getvals(const quarn_ldapattribute *value);

/* ---- LDAPResult */

/**
 * How an operation ended (RFC 4511, 4.1.9): as such, and as the messages SearchResultDone,
 * ModifyResponse, AddResponse, DelResponse, ModifyDNResponse and CompareResponse.
 *
 *     LDAPResult ::= SEQUENCE {
 *         resultCode         ENUMERATED,
 *         matchedDN          OCTET STRING,
 *         diagnosticMessage  OCTET STRING,
 *         referral           [3] IMPLICIT Referral OPTIONAL
 *     }
 *
 * Type ids QUARN_ASN1_LDAPRESULT (316), QUARN_ASN1_LDAPSEARCHRESULTDONE (335, [APPLICATION 5]),
 * QUARN_ASN1_LDAPMODIFYRESPONSE (339, [APPLICATION 7]), QUARN_ASN1_LDAPADDRESPONSE (342,
 * [APPLICATION 9]), QUARN_ASN1_LDAPDELRESPONSE (344, [APPLICATION 11]),
 * QUARN_ASN1_LDAPMODIFYDNRESPONSE (346, [APPLICATION 13]), QUARN_ASN1_LDAPCOMPARERESPONSE (348,
 * [APPLICATION 15]).
 */
typedef struct quarn_ldapresult quarn_ldapresult;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPRESULT. */
QUARN_ASN1_API void quarn_ldapresult_free(quarn_ldapresult *value);
/** From its components. Null leaves out referral. */
QUARN_ASN1_API quarn_ldapresult *quarn_ldapresult_new(
    const quarn_asn1_integer *result_code,
    const quarn_asn1_octetstring *matched_dn,
    const quarn_asn1_octetstring *diagnostic_message,
    const quarn_asn1_list *referral);
/** resultCode. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ldapresult_getresultcode(const quarn_ldapresult *value);
/** matchedDN. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapresult_getmatcheddn(const quarn_ldapresult *value);
/** diagnosticMessage. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapresult_getdiagnosticmessage(
    const quarn_ldapresult *value);
/** 1 when referral is there. */
QUARN_ASN1_API int quarn_ldapresult_hasreferral(const quarn_ldapresult *value);
/** referral, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ldapresult_getreferral(const quarn_ldapresult *value);

/* ---- Control */

/**
 * An extension of an operation (RFC 4511, 4.1.11).
 *
 *     Control ::= SEQUENCE {
 *         controlType   OCTET STRING,
 *         criticality   BOOLEAN DEFAULT FALSE,
 *         controlValue  OCTET STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_LDAPCONTROL (317).
 */
typedef struct quarn_ldapcontrol quarn_ldapcontrol;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPCONTROL. */
QUARN_ASN1_API void quarn_ldapcontrol_free(quarn_ldapcontrol *value);
/**
 * From its components. Null leaves out control_value, and stands for the default of criticality
 * (FALSE).
 */
QUARN_ASN1_API quarn_ldapcontrol *quarn_ldapcontrol_new(
    const quarn_asn1_octetstring *control_type,
    const quarn_asn1_boolean *criticality,
    const quarn_asn1_octetstring *control_value);
/** controlType. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapcontrol_getcontroltype(
    const quarn_ldapcontrol *value);
/** criticality, FALSE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_ldapcontrol_getcriticality(const quarn_ldapcontrol *value);
/** 1 when controlValue is there. */
QUARN_ASN1_API int quarn_ldapcontrol_hascontrolvalue(const quarn_ldapcontrol *value);
/** controlValue, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapcontrol_getcontrolvalue(
    const quarn_ldapcontrol *value);

/* ---- Controls */

/**
 * Extensions of an operation (RFC 4511, 4.1.11).
 *
 *     Controls ::= SEQUENCE OF Control
 *
 * Type id QUARN_ASN1_LDAPCONTROLS (318). A quarn_asn1_list of Control (quarn_ldapcontrol).
 */
QUARN_ASN1_API void quarn_ldapcontrols_free(quarn_asn1_list *value);

/* ---- SaslCredentials */

/**
 * What a client tells a SASL mechanism (RFC 4511, 4.2).
 *
 *     SaslCredentials ::= SEQUENCE {
 *         mechanism    OCTET STRING,
 *         credentials  OCTET STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_LDAPSASLCREDENTIALS (319).
 */
typedef struct quarn_ldapsaslcredentials quarn_ldapsaslcredentials;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPSASLCREDENTIALS. */
QUARN_ASN1_API void quarn_ldapsaslcredentials_free(quarn_ldapsaslcredentials *value);
/** From its components. Null leaves out credentials. */
QUARN_ASN1_API quarn_ldapsaslcredentials *quarn_ldapsaslcredentials_new(
    const quarn_asn1_octetstring *mechanism, const quarn_asn1_octetstring *credentials);
/** mechanism. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapsaslcredentials_getmechanism(
    const quarn_ldapsaslcredentials *value);
/** 1 when credentials is there. */
QUARN_ASN1_API int quarn_ldapsaslcredentials_hascredentials(const quarn_ldapsaslcredentials *value);
/** credentials, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapsaslcredentials_getcredentials(
    const quarn_ldapsaslcredentials *value);

/* ---- AuthenticationChoice */

/**
 * How a client proves who it is (RFC 4511, 4.2). The tags 1 and 2 are reserved and refused.
 *
 *     AuthenticationChoice ::= CHOICE {
 *         simple  [0] IMPLICIT OCTET STRING,
 *         sasl    [3] IMPLICIT SaslCredentials
 *     }
 *
 * Type id QUARN_ASN1_LDAPAUTHENTICATIONCHOICE (320).
 */
typedef struct quarn_ldapauthenticationchoice quarn_ldapauthenticationchoice;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPAUTHENTICATIONCHOICE. */
QUARN_ASN1_API void quarn_ldapauthenticationchoice_free(quarn_ldapauthenticationchoice *value);
/** Number of the alternative: 0 simple, 3 sasl; all ones for null. */
QUARN_ASN1_API uint32_t quarn_ldapauthenticationchoice_gettype(
    const quarn_ldapauthenticationchoice *value);
/** The alternative simple. */
QUARN_ASN1_API quarn_ldapauthenticationchoice *quarn_ldapauthenticationchoice_newsimple(
    const quarn_asn1_octetstring *simple);
/** simple, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapauthenticationchoice_getsimple(
    const quarn_ldapauthenticationchoice *value);
/** The alternative sasl. */
QUARN_ASN1_API quarn_ldapauthenticationchoice *quarn_ldapauthenticationchoice_newsasl(
    const quarn_ldapsaslcredentials *sasl);
/** sasl, null when it is another alternative. */
QUARN_ASN1_API quarn_ldapsaslcredentials *quarn_ldapauthenticationchoice_getsasl(
    const quarn_ldapauthenticationchoice *value);

/* ---- BindRequest */

/**
 * Begins a session as somebody (RFC 4511, 4.2). The version is a number from 1 to 127.
 *
 *     BindRequest ::= [APPLICATION 0] IMPLICIT SEQUENCE {
 *         version         INTEGER,
 *         name            OCTET STRING,
 *         authentication  AuthenticationChoice
 *     }
 *
 * Type id QUARN_ASN1_LDAPBINDREQUEST (321, [APPLICATION 0]).
 */
typedef struct quarn_ldapbindrequest quarn_ldapbindrequest;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPBINDREQUEST. */
QUARN_ASN1_API void quarn_ldapbindrequest_free(quarn_ldapbindrequest *value);
/** From its components. */
QUARN_ASN1_API quarn_ldapbindrequest *quarn_ldapbindrequest_new(
    const quarn_asn1_integer *version,
    const quarn_asn1_octetstring *name,
    const quarn_ldapauthenticationchoice *authentication);
/** version. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ldapbindrequest_getversion(
    const quarn_ldapbindrequest *value);
/** name. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapbindrequest_getname(
    const quarn_ldapbindrequest *value);
/** authentication. */
QUARN_ASN1_API quarn_ldapauthenticationchoice *quarn_ldapbindrequest_getauthentication(
    const quarn_ldapbindrequest *value);

/* ---- BindResponse */

/**
 * How a BindRequest ended (RFC 4511, 4.2.2). The first four components are those of LDAPResult.
 *
 *     BindResponse ::= [APPLICATION 1] IMPLICIT SEQUENCE {
 *         resultCode         ENUMERATED,
 *         matchedDN          OCTET STRING,
 *         diagnosticMessage  OCTET STRING,
 *         referral           [3] IMPLICIT Referral OPTIONAL,
 *         serverSaslCreds    [7] IMPLICIT OCTET STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_LDAPBINDRESPONSE (322, [APPLICATION 1]).
 */
typedef struct quarn_ldapbindresponse quarn_ldapbindresponse;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPBINDRESPONSE. */
QUARN_ASN1_API void quarn_ldapbindresponse_free(quarn_ldapbindresponse *value);
/** From its components. Null leaves out referral and server_sasl_creds. */
QUARN_ASN1_API quarn_ldapbindresponse *quarn_ldapbindresponse_new(
    const quarn_asn1_integer *result_code,
    const quarn_asn1_octetstring *matched_dn,
    const quarn_asn1_octetstring *diagnostic_message,
    const quarn_asn1_list *referral,
    const quarn_asn1_octetstring *server_sasl_creds);
/** resultCode. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ldapbindresponse_getresultcode(
    const quarn_ldapbindresponse *value);
/** matchedDN. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapbindresponse_getmatcheddn(
    const quarn_ldapbindresponse *value);
/** diagnosticMessage. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapbindresponse_getdiagnosticmessage(
    const quarn_ldapbindresponse *value);
/** 1 when referral is there. */
QUARN_ASN1_API int quarn_ldapbindresponse_hasreferral(const quarn_ldapbindresponse *value);
/** referral, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ldapbindresponse_getreferral(
    const quarn_ldapbindresponse *value);
/** 1 when serverSaslCreds is there. */
QUARN_ASN1_API int quarn_ldapbindresponse_hasserversaslcreds(const quarn_ldapbindresponse *value);
/** serverSaslCreds, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapbindresponse_getserversaslcreds(
    const quarn_ldapbindresponse *value);

/* ---- Substring */

/**
 * A part of a value (RFC 4511, 4.5.1.7.2).
 *
 *     Substring ::= CHOICE {
 *         initial  [0] IMPLICIT OCTET STRING,
 *         any      [1] IMPLICIT OCTET STRING,
 *         final    [2] IMPLICIT OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_LDAPSUBSTRING (324).
 */
typedef struct quarn_ldapsubstring quarn_ldapsubstring;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPSUBSTRING. */
QUARN_ASN1_API void quarn_ldapsubstring_free(quarn_ldapsubstring *value);
/** Number of the alternative: 0 initial, 1 any, 2 final; all ones for null. */
QUARN_ASN1_API uint32_t quarn_ldapsubstring_gettype(const quarn_ldapsubstring *value);
/** The alternative initial. */
QUARN_ASN1_API quarn_ldapsubstring *quarn_ldapsubstring_newinitial(
    const quarn_asn1_octetstring *initial);
/** initial, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapsubstring_getinitial(
    const quarn_ldapsubstring *value);
/** The alternative any. */
QUARN_ASN1_API quarn_ldapsubstring *quarn_ldapsubstring_newany(const quarn_asn1_octetstring *any);
/** any, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapsubstring_getany(const quarn_ldapsubstring *value);
/** The alternative final. */
QUARN_ASN1_API quarn_ldapsubstring *quarn_ldapsubstring_newfinal(
    const quarn_asn1_octetstring *final);
/** final, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapsubstring_getfinal(
    const quarn_ldapsubstring *value);

/* ---- Substrings */

/**
 * Parts of a value in their order (RFC 4511, 4.5.1.7.2). Only the first is an initial one, only the
 * last a final.
 *
 *     Substrings ::= SEQUENCE SIZE (1..MAX) OF Substring
 *
 * Type id QUARN_ASN1_LDAPSUBSTRINGS (325). A quarn_asn1_list of Substring (quarn_ldapsubstring).
 */
QUARN_ASN1_API void quarn_ldapsubstrings_free(quarn_asn1_list *value);

/* ---- SubstringFilter */

/**
 * An attribute that has these parts (RFC 4511, 4.5.1.7.2).
 *
 *     SubstringFilter ::= SEQUENCE {
 *         type        OCTET STRING,
 *         substrings  Substrings
 *     }
 *
 * Type id QUARN_ASN1_LDAPSUBSTRINGFILTER (326).
 */
typedef struct quarn_ldapsubstringfilter quarn_ldapsubstringfilter;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPSUBSTRINGFILTER. */
QUARN_ASN1_API void quarn_ldapsubstringfilter_free(quarn_ldapsubstringfilter *value);
/** From its components. */
QUARN_ASN1_API quarn_ldapsubstringfilter *quarn_ldapsubstringfilter_new(
    const quarn_asn1_octetstring *type, const quarn_asn1_list *substrings);
/** type. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapsubstringfilter_gettype(
    const quarn_ldapsubstringfilter *value);
/** substrings. */
QUARN_ASN1_API quarn_asn1_list *quarn_ldapsubstringfilter_getsubstrings(
    const quarn_ldapsubstringfilter *value);

/* ---- MatchingRuleAssertion */

/**
 * A comparison by a rule (RFC 4511, 4.5.1.7.7). That rule or type must be there is for servers to
 * check.
 *
 *     MatchingRuleAssertion ::= SEQUENCE {
 *         matchingRule  [1] IMPLICIT OCTET STRING OPTIONAL,
 *         type          [2] IMPLICIT OCTET STRING OPTIONAL,
 *         matchValue    [3] IMPLICIT OCTET STRING,
 *         dnAttributes  [4] IMPLICIT BOOLEAN DEFAULT FALSE
 *     }
 *
 * Type id QUARN_ASN1_LDAPMATCHINGRULEASSERTION (327).
 */
typedef struct quarn_ldapmatchingruleassertion quarn_ldapmatchingruleassertion;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPMATCHINGRULEASSERTION. */
QUARN_ASN1_API void quarn_ldapmatchingruleassertion_free(quarn_ldapmatchingruleassertion *value);
/**
 * From its components. Null leaves out matching_rule and type, and stands for the default of
 * dn_attributes (FALSE).
 */
QUARN_ASN1_API quarn_ldapmatchingruleassertion *quarn_ldapmatchingruleassertion_new(
    const quarn_asn1_octetstring *matching_rule,
    const quarn_asn1_octetstring *type,
    const quarn_asn1_octetstring *match_value,
    const quarn_asn1_boolean *dn_attributes);
/** 1 when matchingRule is there. */
QUARN_ASN1_API int quarn_ldapmatchingruleassertion_hasmatchingrule(
    const quarn_ldapmatchingruleassertion *value);
/** matchingRule, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapmatchingruleassertion_getmatchingrule(
    const quarn_ldapmatchingruleassertion *value);
/** 1 when type is there. */
QUARN_ASN1_API int quarn_ldapmatchingruleassertion_hastype(
    const quarn_ldapmatchingruleassertion *value);
/** type, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapmatchingruleassertion_gettype(
    const quarn_ldapmatchingruleassertion *value);
/** matchValue. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapmatchingruleassertion_getmatchvalue(
    const quarn_ldapmatchingruleassertion *value);
/** dnAttributes, FALSE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_ldapmatchingruleassertion_getdnattributes(
    const quarn_ldapmatchingruleassertion *value);

/* ---- Filter */

/**
 * What entries are searched for (RFC 4511, 4.5.1.7). Filters hold filters, up to
 * quarn_get_recursive_level() values inside one another: decoding ends there, and constructors
 * return null.
 *
 *     Filter ::= CHOICE {
 *         and              [0] IMPLICIT Filters,
 *         or               [1] IMPLICIT Filters,
 *         not              [2] EXPLICIT Filter,
 *         equalityMatch    [3] IMPLICIT AttributeValueAssertion,
 *         substrings       [4] IMPLICIT SubstringFilter,
 *         greaterOrEqual   [5] IMPLICIT AttributeValueAssertion,
 *         lessOrEqual      [6] IMPLICIT AttributeValueAssertion,
 *         present          [7] IMPLICIT OCTET STRING,
 *         approxMatch      [8] IMPLICIT AttributeValueAssertion,
 *         extensibleMatch  [9] IMPLICIT MatchingRuleAssertion
 *     }
 *
 * Type id QUARN_ASN1_LDAPFILTER (328).
 */
typedef struct quarn_ldapfilter quarn_ldapfilter;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPFILTER. */
QUARN_ASN1_API void quarn_ldapfilter_free(quarn_ldapfilter *value);
/**
 * Number of the alternative: 0 and, 1 or, 2 not, 3 equalityMatch, 4 substrings, 5 greaterOrEqual, 6
 * lessOrEqual, 7 present, 8 approxMatch, 9 extensibleMatch; all ones for null.
 */
QUARN_ASN1_API uint32_t quarn_ldapfilter_gettype(const quarn_ldapfilter *value);
/** The alternative and. */
QUARN_ASN1_API quarn_ldapfilter *quarn_ldapfilter_newand(const quarn_asn1_list *and_);
/** and, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_list *quarn_ldapfilter_getand(const quarn_ldapfilter *value);
/** The alternative or. */
QUARN_ASN1_API quarn_ldapfilter *quarn_ldapfilter_newor(const quarn_asn1_list *or_);
/** or, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_list *quarn_ldapfilter_getor(const quarn_ldapfilter *value);
/** The alternative not. */
QUARN_ASN1_API quarn_ldapfilter *quarn_ldapfilter_newnot(const quarn_ldapfilter *not_);
/** not, null when it is another alternative. */
QUARN_ASN1_API quarn_ldapfilter *quarn_ldapfilter_getnot(const quarn_ldapfilter *value);
/** The alternative equalityMatch. */
QUARN_ASN1_API quarn_ldapfilter *quarn_ldapfilter_newequalitymatch(
    const quarn_ldapattributevalueassertion *equality_match);
/** equalityMatch, null when it is another alternative. */
QUARN_ASN1_API quarn_ldapattributevalueassertion *quarn_ldapfilter_getequalitymatch(
    const quarn_ldapfilter *value);
/** The alternative substrings. */
QUARN_ASN1_API quarn_ldapfilter *quarn_ldapfilter_newsubstrings(
    const quarn_ldapsubstringfilter *substrings);
/** substrings, null when it is another alternative. */
QUARN_ASN1_API quarn_ldapsubstringfilter *quarn_ldapfilter_getsubstrings(
    const quarn_ldapfilter *value);
/** The alternative greaterOrEqual. */
QUARN_ASN1_API quarn_ldapfilter *quarn_ldapfilter_newgreaterorequal(
    const quarn_ldapattributevalueassertion *greater_or_equal);
/** greaterOrEqual, null when it is another alternative. */
QUARN_ASN1_API quarn_ldapattributevalueassertion *quarn_ldapfilter_getgreaterorequal(
    const quarn_ldapfilter *value);
/** The alternative lessOrEqual. */
QUARN_ASN1_API quarn_ldapfilter *quarn_ldapfilter_newlessorequal(
    const quarn_ldapattributevalueassertion *less_or_equal);
/** lessOrEqual, null when it is another alternative. */
QUARN_ASN1_API quarn_ldapattributevalueassertion *quarn_ldapfilter_getlessorequal(
    const quarn_ldapfilter *value);
/** The alternative present. */
QUARN_ASN1_API quarn_ldapfilter *quarn_ldapfilter_newpresent(const quarn_asn1_octetstring *present);
/** present, null when it is another alternative. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapfilter_getpresent(const quarn_ldapfilter *value);
/** The alternative approxMatch. */
QUARN_ASN1_API quarn_ldapfilter *quarn_ldapfilter_newapproxmatch(
    const quarn_ldapattributevalueassertion *approx_match);
/** approxMatch, null when it is another alternative. */
QUARN_ASN1_API quarn_ldapattributevalueassertion *quarn_ldapfilter_getapproxmatch(
    const quarn_ldapfilter *value);
/** The alternative extensibleMatch. */
QUARN_ASN1_API quarn_ldapfilter *quarn_ldapfilter_newextensiblematch(
    const quarn_ldapmatchingruleassertion *extensible_match);
/** extensibleMatch, null when it is another alternative. */
QUARN_ASN1_API quarn_ldapmatchingruleassertion *quarn_ldapfilter_getextensiblematch(
    const quarn_ldapfilter *value);

/* ---- Filters */

/**
 * Filters of which all or one must match (RFC 4511, 4.5.1.7). The empty sets of RFC 4526 are
 * refused.
 *
 *     Filters ::= SET SIZE (1..MAX) OF Filter
 *
 * Type id QUARN_ASN1_LDAPFILTERS (329). A quarn_asn1_list of Filter (quarn_ldapfilter).
 */
QUARN_ASN1_API void quarn_ldapfilters_free(quarn_asn1_list *value);

/* ---- AttributeSelection */

/**
 * Which attributes to return (RFC 4511, 4.5.1.8).
 *
 *     AttributeSelection ::= SEQUENCE OF selector OCTET STRING
 *
 * Type id QUARN_ASN1_LDAPATTRIBUTESELECTION (330). A quarn_asn1_list of OCTET STRING
 * (quarn_asn1_octetstring).
 */
QUARN_ASN1_API void quarn_ldapattributeselection_free(quarn_asn1_list *value);

/* ---- SearchRequest */

/**
 * Asks for entries (RFC 4511, 4.5.1). The limits are numbers from 0 to 2147483647.
 *
 *     SearchRequest ::= [APPLICATION 3] IMPLICIT SEQUENCE {
 *         baseObject    OCTET STRING,
 *         scope         ENUMERATED,
 *         derefAliases  ENUMERATED,
 *         sizeLimit     INTEGER,
 *         timeLimit     INTEGER,
 *         typesOnly     BOOLEAN,
 *         filter        Filter,
 *         attributes    AttributeSelection
 *     }
 *
 * Type id QUARN_ASN1_LDAPSEARCHREQUEST (331, [APPLICATION 3]).
 */
typedef struct quarn_ldapsearchrequest quarn_ldapsearchrequest;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPSEARCHREQUEST. */
QUARN_ASN1_API void quarn_ldapsearchrequest_free(quarn_ldapsearchrequest *value);
/** From its components. */
QUARN_ASN1_API quarn_ldapsearchrequest *quarn_ldapsearchrequest_new(
    const quarn_asn1_octetstring *base_object,
    const quarn_asn1_integer *scope,
    const quarn_asn1_integer *deref_aliases,
    const quarn_asn1_integer *size_limit,
    const quarn_asn1_integer *time_limit,
    const quarn_asn1_boolean *types_only,
    const quarn_ldapfilter *filter,
    const quarn_asn1_list *attributes);
/** baseObject. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapsearchrequest_getbaseobject(
    const quarn_ldapsearchrequest *value);
/** scope. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ldapsearchrequest_getscope(
    const quarn_ldapsearchrequest *value);
/** derefAliases. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ldapsearchrequest_getderefaliases(
    const quarn_ldapsearchrequest *value);
/** sizeLimit. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ldapsearchrequest_getsizelimit(
    const quarn_ldapsearchrequest *value);
/** timeLimit. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ldapsearchrequest_gettimelimit(
    const quarn_ldapsearchrequest *value);
/** typesOnly. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_ldapsearchrequest_gettypesonly(
    const quarn_ldapsearchrequest *value);
/** filter. */
QUARN_ASN1_API quarn_ldapfilter *quarn_ldapsearchrequest_getfilter(
    const quarn_ldapsearchrequest *value);
/** attributes. */
QUARN_ASN1_API quarn_asn1_list *quarn_ldapsearchrequest_getattributes(
    const quarn_ldapsearchrequest *value);

/* ---- PartialAttributeList */

/**
 * The attributes of an entry that was found (RFC 4511, 4.5.2).
 *
 *     PartialAttributeList ::= SEQUENCE OF PartialAttribute
 *
 * Type id QUARN_ASN1_LDAPPARTIALATTRIBUTELIST (332). A quarn_asn1_list of PartialAttribute
 * (quarn_ldappartialattribute).
 */
QUARN_ASN1_API void quarn_ldappartialattributelist_free(quarn_asn1_list *value);

/* ---- SearchResultEntry */

/**
 * An entry that was found (RFC 4511, 4.5.2).
 *
 *     SearchResultEntry ::= [APPLICATION 4] IMPLICIT SEQUENCE {
 *         objectName  OCTET STRING,
 *         attributes  PartialAttributeList
 *     }
 *
 * Type id QUARN_ASN1_LDAPSEARCHRESULTENTRY (333, [APPLICATION 4]).
 */
typedef struct quarn_ldapsearchresultentry quarn_ldapsearchresultentry;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPSEARCHRESULTENTRY. */
QUARN_ASN1_API void quarn_ldapsearchresultentry_free(quarn_ldapsearchresultentry *value);
/** From its components. */
QUARN_ASN1_API quarn_ldapsearchresultentry *quarn_ldapsearchresultentry_new(
    const quarn_asn1_octetstring *object_name, const quarn_asn1_list *attributes);
/** objectName. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapsearchresultentry_getobjectname(
    const quarn_ldapsearchresultentry *value);
/** attributes. */
QUARN_ASN1_API quarn_asn1_list *quarn_ldapsearchresultentry_getattributes(
    const quarn_ldapsearchresultentry *value);

/* ---- Change */

/**
 * One change of an entry (RFC 4511, 4.6): 0 adds values, 1 deletes, 2 replaces; 3 increments (RFC
 * 4525).
 *
 *     Change ::= SEQUENCE {
 *         operation     ENUMERATED,
 *         modification  PartialAttribute
 *     }
 *
 * Type id QUARN_ASN1_LDAPCHANGE (336).
 */
typedef struct quarn_ldapchange quarn_ldapchange;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPCHANGE. */
QUARN_ASN1_API void quarn_ldapchange_free(quarn_ldapchange *value);
/** From its components. */
QUARN_ASN1_API quarn_ldapchange *quarn_ldapchange_new(
    const quarn_asn1_integer *operation, const quarn_ldappartialattribute *modification);
/** operation. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ldapchange_getoperation(const quarn_ldapchange *value);
/** modification. */
QUARN_ASN1_API quarn_ldappartialattribute *quarn_ldapchange_getmodification(
    const quarn_ldapchange *value);

/* ---- Changes */

/**
 * Changes of an entry, made in this order (RFC 4511, 4.6).
 *
 *     Changes ::= SEQUENCE OF Change
 *
 * Type id QUARN_ASN1_LDAPCHANGES (337). A quarn_asn1_list of Change (quarn_ldapchange).
 */
QUARN_ASN1_API void quarn_ldapchanges_free(quarn_asn1_list *value);

/* ---- ModifyRequest */

/**
 * Changes an entry (RFC 4511, 4.6).
 *
 *     ModifyRequest ::= [APPLICATION 6] IMPLICIT SEQUENCE {
 *         object   OCTET STRING,
 *         changes  Changes
 *     }
 *
 * Type id QUARN_ASN1_LDAPMODIFYREQUEST (338, [APPLICATION 6]).
 */
typedef struct quarn_ldapmodifyrequest quarn_ldapmodifyrequest;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPMODIFYREQUEST. */
QUARN_ASN1_API void quarn_ldapmodifyrequest_free(quarn_ldapmodifyrequest *value);
/** From its components. */
QUARN_ASN1_API quarn_ldapmodifyrequest *quarn_ldapmodifyrequest_new(
    const quarn_asn1_octetstring *object, const quarn_asn1_list *changes);
/** object. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapmodifyrequest_getobject(
    const quarn_ldapmodifyrequest *value);
/** changes. */
QUARN_ASN1_API quarn_asn1_list *quarn_ldapmodifyrequest_getchanges(
    const quarn_ldapmodifyrequest *value);

/* ---- LDAPAttributeList */

/**
 * The attributes of a new entry (RFC 4511, 4.7).
 *
 *     LDAPAttributeList ::= SEQUENCE OF LDAPAttribute
 *
 * Type id QUARN_ASN1_LDAPATTRIBUTELIST (340). A quarn_asn1_list of LDAPAttribute
 * (quarn_ldapattribute).
 */
QUARN_ASN1_API void quarn_ldapattributelist_free(quarn_asn1_list *value);

/* ---- AddRequest */

/**
 * Adds an entry (RFC 4511, 4.7).
 *
 *     AddRequest ::= [APPLICATION 8] IMPLICIT SEQUENCE {
 *         entry       OCTET STRING,
 *         attributes  LDAPAttributeList
 *     }
 *
 * Type id QUARN_ASN1_LDAPADDREQUEST (341, [APPLICATION 8]).
 */
typedef struct quarn_ldapaddrequest quarn_ldapaddrequest;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPADDREQUEST. */
QUARN_ASN1_API void quarn_ldapaddrequest_free(quarn_ldapaddrequest *value);
/** From its components. */
QUARN_ASN1_API quarn_ldapaddrequest *quarn_ldapaddrequest_new(const quarn_asn1_octetstring *entry,
                                                              const quarn_asn1_list *attributes);
/** entry. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapaddrequest_getentry(
    const quarn_ldapaddrequest *value);
/** attributes. */
QUARN_ASN1_API quarn_asn1_list *quarn_ldapaddrequest_getattributes(
    const quarn_ldapaddrequest *value);

/* ---- ModifyDNRequest */

/**
 * Gives an entry another name or place (RFC 4511, 4.9).
 *
 *     ModifyDNRequest ::= [APPLICATION 12] IMPLICIT SEQUENCE {
 *         entry         OCTET STRING,
 *         newrdn        OCTET STRING,
 *         deleteoldrdn  BOOLEAN,
 *         newSuperior   [0] IMPLICIT OCTET STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_LDAPMODIFYDNREQUEST (345, [APPLICATION 12]).
 */
typedef struct quarn_ldapmodifydnrequest quarn_ldapmodifydnrequest;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPMODIFYDNREQUEST. */
QUARN_ASN1_API void quarn_ldapmodifydnrequest_free(quarn_ldapmodifydnrequest *value);
/** From its components. Null leaves out new_superior. */
QUARN_ASN1_API quarn_ldapmodifydnrequest *quarn_ldapmodifydnrequest_new(
    const quarn_asn1_octetstring *entry,
    const quarn_asn1_octetstring *newrdn,
    const quarn_asn1_boolean *deleteoldrdn,
    const quarn_asn1_octetstring *new_superior);
/** entry. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapmodifydnrequest_getentry(
    const quarn_ldapmodifydnrequest *value);
/** newrdn. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapmodifydnrequest_getnewrdn(
    const quarn_ldapmodifydnrequest *value);
/** deleteoldrdn. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_ldapmodifydnrequest_getdeleteoldrdn(
    const quarn_ldapmodifydnrequest *value);
/** 1 when newSuperior is there. */
QUARN_ASN1_API int quarn_ldapmodifydnrequest_hasnewsuperior(const quarn_ldapmodifydnrequest *value);
/** newSuperior, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapmodifydnrequest_getnewsuperior(
    const quarn_ldapmodifydnrequest *value);

/* ---- CompareRequest */

/**
 * Asks whether an entry has a value (RFC 4511, 4.10).
 *
 *     CompareRequest ::= [APPLICATION 14] IMPLICIT SEQUENCE {
 *         entry  OCTET STRING,
 *         ava    AttributeValueAssertion
 *     }
 *
 * Type id QUARN_ASN1_LDAPCOMPAREREQUEST (347, [APPLICATION 14]).
 */
typedef struct quarn_ldapcomparerequest quarn_ldapcomparerequest;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPCOMPAREREQUEST. */
QUARN_ASN1_API void quarn_ldapcomparerequest_free(quarn_ldapcomparerequest *value);
/** From its components. */
QUARN_ASN1_API quarn_ldapcomparerequest *quarn_ldapcomparerequest_new(
    const quarn_asn1_octetstring *entry, const quarn_ldapattributevalueassertion *ava);
/** entry. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapcomparerequest_getentry(
    const quarn_ldapcomparerequest *value);
/** ava. */
QUARN_ASN1_API quarn_ldapattributevalueassertion *quarn_ldapcomparerequest_getava(
    const quarn_ldapcomparerequest *value);

/* ---- ExtendedRequest */

/**
 * An operation that LDAP itself does not define (RFC 4511, 4.12).
 *
 *     ExtendedRequest ::= [APPLICATION 23] IMPLICIT SEQUENCE {
 *         requestName   [0] IMPLICIT OCTET STRING,
 *         requestValue  [1] IMPLICIT OCTET STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_LDAPEXTENDEDREQUEST (350, [APPLICATION 23]).
 */
typedef struct quarn_ldapextendedrequest quarn_ldapextendedrequest;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPEXTENDEDREQUEST. */
QUARN_ASN1_API void quarn_ldapextendedrequest_free(quarn_ldapextendedrequest *value);
/** From its components. Null leaves out request_value. */
QUARN_ASN1_API quarn_ldapextendedrequest *quarn_ldapextendedrequest_new(
    const quarn_asn1_octetstring *request_name, const quarn_asn1_octetstring *request_value);
/** requestName. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapextendedrequest_getrequestname(
    const quarn_ldapextendedrequest *value);
/** 1 when requestValue is there. */
QUARN_ASN1_API int quarn_ldapextendedrequest_hasrequestvalue(
    const quarn_ldapextendedrequest *value);
/** requestValue, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapextendedrequest_getrequestvalue(
    const quarn_ldapextendedrequest *value);

/* ---- ExtendedResponse */

/**
 * How an ExtendedRequest ended (RFC 4511, 4.12). The first four components are those of LDAPResult.
 *
 *     ExtendedResponse ::= [APPLICATION 24] IMPLICIT SEQUENCE {
 *         resultCode         ENUMERATED,
 *         matchedDN          OCTET STRING,
 *         diagnosticMessage  OCTET STRING,
 *         referral           [3] IMPLICIT Referral OPTIONAL,
 *         responseName       [10] IMPLICIT OCTET STRING OPTIONAL,
 *         responseValue      [11] IMPLICIT OCTET STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_LDAPEXTENDEDRESPONSE (351, [APPLICATION 24]).
 */
typedef struct quarn_ldapextendedresponse quarn_ldapextendedresponse;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPEXTENDEDRESPONSE. */
QUARN_ASN1_API void quarn_ldapextendedresponse_free(quarn_ldapextendedresponse *value);
/** From its components. Null leaves out referral, response_name and response_value. */
QUARN_ASN1_API quarn_ldapextendedresponse *quarn_ldapextendedresponse_new(
    const quarn_asn1_integer *result_code,
    const quarn_asn1_octetstring *matched_dn,
    const quarn_asn1_octetstring *diagnostic_message,
    const quarn_asn1_list *referral,
    const quarn_asn1_octetstring *response_name,
    const quarn_asn1_octetstring *response_value);
/** resultCode. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ldapextendedresponse_getresultcode(
    const quarn_ldapextendedresponse *value);
/** matchedDN. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapextendedresponse_getmatcheddn(
    const quarn_ldapextendedresponse *value);
/** diagnosticMessage. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapextendedresponse_getdiagnosticmessage(
    const quarn_ldapextendedresponse *value);
/** 1 when referral is there. */
QUARN_ASN1_API int quarn_ldapextendedresponse_hasreferral(const quarn_ldapextendedresponse *value);
/** referral, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ldapextendedresponse_getreferral(
    const quarn_ldapextendedresponse *value);
/** 1 when responseName is there. */
QUARN_ASN1_API int quarn_ldapextendedresponse_hasresponsename(
    const quarn_ldapextendedresponse *value);
/** responseName, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapextendedresponse_getresponsename(
    const quarn_ldapextendedresponse *value);
/** 1 when responseValue is there. */
QUARN_ASN1_API int quarn_ldapextendedresponse_hasresponsevalue(
    const quarn_ldapextendedresponse *value);
/** responseValue, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapextendedresponse_getresponsevalue(
    const quarn_ldapextendedresponse *value);

/* ---- IntermediateResponse */

/**
 * A response that others follow (RFC 4511, 4.13).
 *
 *     IntermediateResponse ::= [APPLICATION 25] IMPLICIT SEQUENCE {
 *         responseName   [0] IMPLICIT OCTET STRING OPTIONAL,
 *         responseValue  [1] IMPLICIT OCTET STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_LDAPINTERMEDIATERESPONSE (352, [APPLICATION 25]).
 */
typedef struct quarn_ldapintermediateresponse quarn_ldapintermediateresponse;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPINTERMEDIATERESPONSE. */
QUARN_ASN1_API void quarn_ldapintermediateresponse_free(quarn_ldapintermediateresponse *value);
/** From its components. Null leaves out response_name and response_value. */
QUARN_ASN1_API quarn_ldapintermediateresponse *quarn_ldapintermediateresponse_new(
    const quarn_asn1_octetstring *response_name, const quarn_asn1_octetstring *response_value);
/** 1 when responseName is there. */
QUARN_ASN1_API int quarn_ldapintermediateresponse_hasresponsename(
    const quarn_ldapintermediateresponse *value);
/** responseName, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapintermediateresponse_getresponsename(
    const quarn_ldapintermediateresponse *value);
/** 1 when responseValue is there. */
QUARN_ASN1_API int quarn_ldapintermediateresponse_hasresponsevalue(
    const quarn_ldapintermediateresponse *value);
/** responseValue, null when it is absent. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_ldapintermediateresponse_getresponsevalue(
    const quarn_ldapintermediateresponse *value);

/* ---- ProtocolOp */

/**
 * What a message asks or answers (RFC 4511, 4.1.1). All have APPLICATION tags, those of universal
 * types too. A delRequest is the name of an entry, an abandonRequest the messageID of the request
 * that is given up.
 *
 *     ProtocolOp ::= CHOICE {
 *         bindRequest           BindRequest,
 *         bindResponse          BindResponse,
 *         unbindRequest         NULL,
 *         searchRequest         SearchRequest,
 *         searchResEntry        SearchResultEntry,
 *         searchResDone         LDAPResult,
 *         searchResRef          Referral,
 *         modifyRequest         ModifyRequest,
 *         modifyResponse        LDAPResult,
 *         addRequest            AddRequest,
 *         addResponse           LDAPResult,
 *         delRequest            OCTET STRING,
 *         delResponse           LDAPResult,
 *         modDNRequest          ModifyDNRequest,
 *         modDNResponse         LDAPResult,
 *         compareRequest        CompareRequest,
 *         compareResponse       LDAPResult,
 *         abandonRequest        INTEGER,
 *         extendedReq           ExtendedRequest,
 *         extendedResp          ExtendedResponse,
 *         intermediateResponse  IntermediateResponse
 *     }
 *
 * It has no type id. Its alternatives: 0 bindRequest (QUARN_ASN1_LDAPBINDREQUEST), 1 bindResponse
 * (QUARN_ASN1_LDAPBINDRESPONSE), 2 unbindRequest (QUARN_ASN1_LDAPUNBINDREQUEST), 3 searchRequest
 * (QUARN_ASN1_LDAPSEARCHREQUEST), 4 searchResEntry (QUARN_ASN1_LDAPSEARCHRESULTENTRY), 5
 * searchResDone (QUARN_ASN1_LDAPSEARCHRESULTDONE), 19 searchResRef
 * (QUARN_ASN1_LDAPSEARCHRESULTREFERENCE), 6 modifyRequest (QUARN_ASN1_LDAPMODIFYREQUEST), 7
 * modifyResponse (QUARN_ASN1_LDAPMODIFYRESPONSE), 8 addRequest (QUARN_ASN1_LDAPADDREQUEST), 9
 * addResponse (QUARN_ASN1_LDAPADDRESPONSE), 10 delRequest (QUARN_ASN1_LDAPDELREQUEST), 11
 * delResponse (QUARN_ASN1_LDAPDELRESPONSE), 12 modDNRequest (QUARN_ASN1_LDAPMODIFYDNREQUEST), 13
 * modDNResponse (QUARN_ASN1_LDAPMODIFYDNRESPONSE), 14 compareRequest
 * (QUARN_ASN1_LDAPCOMPAREREQUEST), 15 compareResponse (QUARN_ASN1_LDAPCOMPARERESPONSE), 16
 * abandonRequest (QUARN_ASN1_LDAPABANDONREQUEST), 23 extendedReq (QUARN_ASN1_LDAPEXTENDEDREQUEST),
 * 24 extendedResp (QUARN_ASN1_LDAPEXTENDEDRESPONSE), 25 intermediateResponse
 * (QUARN_ASN1_LDAPINTERMEDIATERESPONSE).
 */

/* ---- LDAPMessage */

/**
 * A message (RFC 4511, 4.1.1). Message numbers, also those of abandoned operations, are from 0 to
 * 2147483647. That an operation is given and lent by its number is this library's choice.
 *
 *     LDAPMessage ::= SEQUENCE {
 *         messageID   INTEGER,
 *         protocolOp  ProtocolOp,
 *         controls    [0] IMPLICIT Controls OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_LDAPMESSAGE (353).
 */
typedef struct quarn_ldapmessage quarn_ldapmessage;
/** As quarn_asn1_value_free() under QUARN_ASN1_LDAPMESSAGE. */
QUARN_ASN1_API void quarn_ldapmessage_free(quarn_ldapmessage *value);
/** messageID. */
QUARN_ASN1_API quarn_asn1_integer *quarn_ldapmessage_getmessageid(const quarn_ldapmessage *value);
/** 1 when controls is there. */
QUARN_ASN1_API int quarn_ldapmessage_hascontrols(const quarn_ldapmessage *value);
/** controls, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_ldapmessage_getcontrols(const quarn_ldapmessage *value);
/**
 * From its components. controls may be null, and protocol_op when op_type is 2; another op_type
 * than those of ProtocolOp gives null.
 *
 * @param op_type      the number of the operation
 * @param protocol_op  a value of the type that this operation has
 */
QUARN_ASN1_API quarn_ldapmessage *quarn_ldapmessage_new(const quarn_asn1_integer *message_id,
                                                        uint32_t op_type,
                                                        const void *protocol_op,
                                                        const quarn_asn1_list *controls);
/** The number of the operation; all ones for null. */
QUARN_ASN1_API uint32_t quarn_ldapmessage_getoptype(const quarn_ldapmessage *value);
/** The operation, a value of the type that goes with its number; null for an unbindRequest. */
QUARN_ASN1_API void *quarn_ldapmessage_getprotocolop(const quarn_ldapmessage *value);

/* ---- LDAPAttributeValues */

/**
 * The values of an attribute (RFC 4511, 4.1.7).
 *
 *     LDAPAttributeValues ::= SET OF value OCTET STRING
 *
 * Type id QUARN_ASN1_LDAPATTRIBUTEVALUES (354). A quarn_asn1_list of OCTET STRING
 * (quarn_asn1_octetstring).
 */
QUARN_ASN1_API void quarn_ldapattributevalues_free(quarn_asn1_list *value);

#ifdef __cplusplus
}
#endif

#endif
