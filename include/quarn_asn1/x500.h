/* Generated from modules/ASN1_X500.asn1 by tools/generate.py; do not edit. */
/**
 * Strings and addresses of the directory (X.520, PKCS #9, RFC 5280).
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
#ifndef QUARN_ASN1_X500_H
#define QUARN_ASN1_X500_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- DirectoryString */

/**
 * A string in one of the character sets that the directory knows.
 *
 *     DirectoryString ::= CHOICE {
 *         utf8String       UTF8String,
 *         printableString  PrintableString,
 *         teletexString    TeletexString,
 *         universalString  UniversalString,
 *         bmpString        BMPString
 *     }
 *
 * Type id QUARN_ASN1_X500DIRSTRING (47).
 */
typedef struct quarn_x500dirstring quarn_x500dirstring;
/** As quarn_asn1_value_free() under QUARN_ASN1_X500DIRSTRING. */
QUARN_ASN1_API void quarn_x500dirstring_free(quarn_x500dirstring *value);
/**
 * A string under one of the tags 12 UTF8String, 19 PrintableString, 20 TeletexString, 28
 * UniversalString, 30 BMPString; another tag gives null.
 */
QUARN_ASN1_API quarn_x500dirstring *quarn_x500dirstring_new(uint64_t tag,
                                                            const quarn_asn1_octetstring *string);
/** The universal tag of the string; 0 for null. */
QUARN_ASN1_API uint64_t quarn_x500dirstring_gettype(const quarn_x500dirstring *value);
/** Its content. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_x500dirstring_getstring(
    const quarn_x500dirstring *value);

/* ---- PKCS9String */

/**
 * A directory string, or an IA5String: what the attributes of PKCS #9 hold.
 *
 *     PKCS9String ::= CHOICE {
 *         utf8String       UTF8String,
 *         printableString  PrintableString,
 *         teletexString    TeletexString,
 *         ia5String        IA5String,
 *         universalString  UniversalString,
 *         bmpString        BMPString
 *     }
 *
 * Type id QUARN_ASN1_PKCS9STRING (52). Freed with quarn_x500dirstring_free().
 */
typedef struct quarn_x500dirstring quarn_pkcs9string;
/**
 * A string under one of the tags 12 UTF8String, 19 PrintableString, 20 TeletexString, 22 IA5String,
 * 28 UniversalString, 30 BMPString; another tag gives null.
 */
QUARN_ASN1_API quarn_pkcs9string *quarn_pkcs9string_new(uint64_t tag,
                                                        const quarn_asn1_octetstring *string);
/** The universal tag of the string; 0 for null. */
QUARN_ASN1_API uint64_t quarn_pkcs9string_gettype(const quarn_pkcs9string *value);
/** Its content. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_pkcs9string_getstring(const quarn_pkcs9string *value);

/* ---- DisplayText */

/**
 * Text that a policy shows to people.
 *
 *     DisplayText ::= CHOICE {
 *         utf8String     UTF8String,
 *         ia5String      IA5String,
 *         visibleString  VisibleString,
 *         bmpString      BMPString
 *     }
 *
 * Type id QUARN_ASN1_DISPLAYTEXT (71). Freed with quarn_x500dirstring_free().
 */
typedef struct quarn_x500dirstring quarn_disptext;
/**
 * A string under one of the tags 12 UTF8String, 22 IA5String, 26 VisibleString, 30 BMPString;
 * another tag gives null.
 */
QUARN_ASN1_API quarn_disptext *quarn_disptext_new(uint64_t tag,
                                                  const quarn_asn1_octetstring *string);
/** The universal tag of the string; 0 for null. */
QUARN_ASN1_API uint64_t quarn_disptext_gettype(const quarn_disptext *value);
/** Its content. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_disptext_getstring(const quarn_disptext *value);

/* ---- PostalAddress */

/**
 * The lines of a postal address.
 *
 *     PostalAddress ::= SEQUENCE OF line DirectoryString
 *
 * Type id QUARN_ASN1_X500POSTALADDRESS (49). A quarn_asn1_list of DirectoryString
 * (quarn_x500dirstring).
 */
QUARN_ASN1_API void quarn_x500postaladdress_free(quarn_asn1_list *value);

/* ---- Context */

/**
 * A property of a value: the language that it is written in, for example.
 *
 *     Context ::= SEQUENCE {
 *         contextType    OBJECT IDENTIFIER,
 *         contextValues  SET SIZE (1..MAX) OF ANY,
 *         fallback       BOOLEAN DEFAULT FALSE
 *     }
 *
 * Type id QUARN_ASN1_X500CONTEXT (28).
 */
typedef struct quarn_x500context quarn_x500context;
/** As quarn_asn1_value_free() under QUARN_ASN1_X500CONTEXT. */
QUARN_ASN1_API void quarn_x500context_free(quarn_x500context *value);
/** From its components. Null stands for the default of fallback (FALSE). */
QUARN_ASN1_API quarn_x500context *quarn_x500context_new(const quarn_asn1_oid *context_type,
                                                        const quarn_asn1_list *context_values,
                                                        const quarn_asn1_boolean *fallback);
/** contextType. */
QUARN_ASN1_API quarn_asn1_oid *quarn_x500context_gettype(const quarn_x500context *value);
/** contextValues. */
QUARN_ASN1_API quarn_asn1_list *quarn_x500context_getvalues(const quarn_x500context *value);
/** fallback, FALSE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_x500context_getfallback(const quarn_x500context *value);

/* ---- ContextList */

/**
 * Properties of one value.
 *
 *     ContextList ::= SET OF Context
 *
 * Type id QUARN_ASN1_X500CONTEXTLIST (141). A quarn_asn1_list of Context (quarn_x500context).
 */
QUARN_ASN1_API void quarn_x500contextlist_free(quarn_asn1_list *value);

/* ---- DNValueWithContextItem */

/**
 * A distinguished value in one context.
 *
 *     DNValueWithContextItem ::= SEQUENCE {
 *         distingAttrValue  [0] EXPLICIT ANY OPTIONAL,
 *         contextList       ContextList
 *     }
 *
 * Type id QUARN_ASN1_X500DNVALUESWITHCONTEXTITEM (135).
 */
typedef struct quarn_x500dnvalueswithcontextitem quarn_x500dnvalueswithcontextitem;
/** As quarn_asn1_value_free() under QUARN_ASN1_X500DNVALUESWITHCONTEXTITEM. */
QUARN_ASN1_API void quarn_x500dnvalueswithcontextitem_free(
    quarn_x500dnvalueswithcontextitem *value);
/** 1 when distingAttrValue is there. */
QUARN_ASN1_API int quarn_x500dnvalueswithcontextitem_hasdistvalue(
    const quarn_x500dnvalueswithcontextitem *value);
/** distingAttrValue, null when it is absent. */
QUARN_ASN1_API quarn_asn1_any *quarn_x500dnvalueswithcontextitem_getdistvalue(
    const quarn_x500dnvalueswithcontextitem *value);
/** contextList. */
QUARN_ASN1_API quarn_asn1_list *quarn_x500dnvalueswithcontextitem_getcontexts(
    const quarn_x500dnvalueswithcontextitem *value);

/* ---- DNValuesWithContext */

/**
 * Distinguished values by context.
 *
 *     DNValuesWithContext ::= SET OF DNValueWithContextItem
 *
 * Type id QUARN_ASN1_X500DNVALUESWITHCONTEXT (142). A quarn_asn1_list of DNValueWithContextItem
 * (quarn_x500dnvalueswithcontextitem).
 */
QUARN_ASN1_API void quarn_x500dnvalueswithcontext_free(quarn_asn1_list *value);

/* ---- AttributeTypeAndDistinguishedValue */

/**
 * A part of a name: an attribute type and the value that distinguishes.
 *
 *     AttributeTypeAndDistinguishedValue ::= SEQUENCE {
 *         type                  OBJECT IDENTIFIER,
 *         value                 ANY,
 *         primaryDistinguished  BOOLEAN DEFAULT TRUE,
 *         valuesWithContext     DNValuesWithContext OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_X500ATTRTYPEDISTVAL (29).
 */
typedef struct quarn_x500attrtypedistval quarn_x500attrtypedistval;
/** As quarn_asn1_value_free() under QUARN_ASN1_X500ATTRTYPEDISTVAL. */
QUARN_ASN1_API void quarn_x500attrtypedistval_free(quarn_x500attrtypedistval *value);
/** type. */
QUARN_ASN1_API quarn_asn1_oid *quarn_x500attrtypedistval_gettype(
    const quarn_x500attrtypedistval *value);
/** value. */
QUARN_ASN1_API quarn_asn1_any *quarn_x500attrtypedistval_getvalue(
    const quarn_x500attrtypedistval *value);
/** primaryDistinguished, TRUE when the encoding has none. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_x500attrtypedistval_getprimedist(
    const quarn_x500attrtypedistval *value);
/** 1 when valuesWithContext is there. */
QUARN_ASN1_API int quarn_x500attrtypedistval_hascontext(const quarn_x500attrtypedistval *value);
/** valuesWithContext, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_x500attrtypedistval_getcontext(
    const quarn_x500attrtypedistval *value);

/* ---- RelativeDistinguishedName */

/**
 * One step of a name.
 *
 *     RelativeDistinguishedName ::= SET OF AttributeTypeAndDistinguishedValue
 *
 * Type id QUARN_ASN1_X500RDN (31). A quarn_asn1_list of AttributeTypeAndDistinguishedValue
 * (quarn_x500attrtypedistval).
 */
QUARN_ASN1_API void quarn_x500RDN_free(quarn_asn1_list *value);

/* ---- Name */

/**
 * The name of an entry of the directory.
 *
 *     Name ::= SEQUENCE OF RelativeDistinguishedName
 *
 * Type id QUARN_ASN1_X500NAME (32). A quarn_asn1_list of RelativeDistinguishedName
 * (quarn_asn1_list).
 */
QUARN_ASN1_API void quarn_x500Name_free(quarn_asn1_list *value);

#ifdef __cplusplus
}
#endif

#endif
