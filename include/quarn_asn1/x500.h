/* Generated from modules/ASN1_X500.asn1 by tools/generate.py; do not edit. */
/**
 * The X.500 family: names, attributes and the string and small types that attributes carry (X.501,
 * X.520, RFC 5280).
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
#ifndef QUARN_ASN1_X500_H
#define QUARN_ASN1_X500_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Context */

/**
 * Circumstances in which an attribute value applies: a language, a time, a place (X.501, 8.9).
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
 * Contexts of one value (X.501).
 *
 *     ContextList ::= SET OF Context
 *
 * Type id QUARN_ASN1_X500CONTEXTLIST (141). A quarn_asn1_list of Context (quarn_x500context).
 */
QUARN_ASN1_API void quarn_x500contextlist_free(quarn_asn1_list *value);

/* ---- ValueWithContext */

/**
 * One of several values that a relative distinguished name has in different contexts (X.501, 9.3).
 *
 *     ValueWithContext ::= SEQUENCE {
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
/** From its components. Null leaves out disting_attr_value. */
QUARN_ASN1_API quarn_x500dnvalueswithcontextitem *quarn_x500dnvalueswithcontextitem_new(
    const quarn_asn1_any *disting_attr_value, const quarn_asn1_list *context_list);
/** 1 when distingAttrValue is there. */
QUARN_ASN1_API int quarn_x500dnvalueswithcontextitem_hasdistvalue(
    const quarn_x500dnvalueswithcontextitem *value);
/** distingAttrValue, null when it is absent. */
QUARN_ASN1_API quarn_asn1_any *quarn_x500dnvalueswithcontextitem_getdistvalue(
    const quarn_x500dnvalueswithcontextitem *value);
/** contextList. */
QUARN_ASN1_API quarn_asn1_list *quarn_x500dnvalueswithcontextitem_getcontexts(
    const quarn_x500dnvalueswithcontextitem *value);

/* ---- ValuesWithContext */

/**
 * The values that a relative distinguished name has in different contexts (X.501, 9.3).
 *
 *     ValuesWithContext ::= SET OF ValueWithContext
 *
 * Type id QUARN_ASN1_X500DNVALUESWITHCONTEXT (142). A quarn_asn1_list of ValueWithContext
 * (quarn_x500dnvalueswithcontextitem).
 */
QUARN_ASN1_API void quarn_x500dnvalueswithcontext_free(quarn_asn1_list *value);

/* ---- AttributeTypeAndDistinguishedValue */

/**
 * Type and value of an attribute in a relative distinguished name (X.501, 9.3). Certificates use
 * type and value only.
 *
 *     AttributeTypeAndDistinguishedValue ::= SEQUENCE {
 *         type                  OBJECT IDENTIFIER,
 *         value                 ANY,
 *         primaryDistinguished  BOOLEAN DEFAULT TRUE,
 *         valuesWithContext     ValuesWithContext OPTIONAL
 *     }
 *
 * Type ids QUARN_ASN1_X500ATTRTYPEDISTVAL (29), QUARN_ASN1_PKIXATTRTYPEVAL (30).
 */
typedef struct quarn_x500attrtypedistval quarn_x500attrtypedistval;
/** As quarn_asn1_value_free() under QUARN_ASN1_X500ATTRTYPEDISTVAL. */
QUARN_ASN1_API void quarn_x500attrtypedistval_free(quarn_x500attrtypedistval *value);
/** As quarn_asn1_value_free() under QUARN_ASN1_PKIXATTRTYPEVAL. */
QUARN_ASN1_API void quarn_pkixattrtypeval_free(quarn_x500attrtypedistval *value);
/**
 * From its components. Null leaves out values_with_context, and stands for the default of
 * primary_distinguished (TRUE).
 */
QUARN_ASN1_API quarn_x500attrtypedistval *quarn_x500attrtypedistval_new(
    const quarn_asn1_oid *type,
    const quarn_asn1_any *value,
    const quarn_asn1_boolean *primary_distinguished,
    const quarn_asn1_list *values_with_context);
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
/** A new type and value without contexts, which is what RFC 5280 allows. */
QUARN_ASN1_API quarn_x500attrtypedistval *quarn_pkixattrtypeval_new(const quarn_asn1_oid *type,
                                                                    const quarn_asn1_any *value);

/* ---- RelativeDistinguishedName */

/**
 * One level of a distinguished name: an attribute, rarely more (X.501, 9.3).
 *
 *     RelativeDistinguishedName ::= SET OF AttributeTypeAndDistinguishedValue
 *
 * Type id QUARN_ASN1_X500RDN (31). A quarn_asn1_list of AttributeTypeAndDistinguishedValue
 * (quarn_x500attrtypedistval).
 */
QUARN_ASN1_API void quarn_x500RDN_free(quarn_asn1_list *value);
/**
 * Puts the attributes of a relative distinguished name, and the contexts of their values, into the
 * order of DER. On failure the order is undefined.
 */
QUARN_ASN1_API int quarn_x500RDN_sort(quarn_asn1_list *rdn);

/* ---- Name */

/**
 * A distinguished name (X.501, 9.2). A decoded name keeps its octets and encodes to exactly these,
 * whether they are DER or not, until it is changed.
 *
 *     Name ::= SEQUENCE OF RelativeDistinguishedName
 *
 * Type id QUARN_ASN1_X500NAME (32).
 */
typedef struct quarn_x500name quarn_x500name;
/** As quarn_asn1_value_free() under QUARN_ASN1_X500NAME. */
QUARN_ASN1_API void quarn_x500Name_free(quarn_x500name *value);
/** A new name without any relative distinguished name. */
QUARN_ASN1_API quarn_x500name *quarn_x500name_new(void);
/**
 * Appends a relative distinguished name.
 *
 * @param copy  not 0: a copy of rdn is appended; 0: the name takes rdn over, unless the call fails
 */
QUARN_ASN1_API int quarn_x500name_addrdn(quarn_x500name *name, quarn_asn1_list *rdn, int copy);
/**
 * The list of relative distinguished names, lent: each element a quarn_asn1_list of
 * quarn_x500attrtypedistval.
 */
QUARN_ASN1_API quarn_asn1_list *quarn_x500name_getdn(const quarn_x500name *name);
/**
 * Sorts each relative distinguished name as quarn_x500RDN_sort() does and forgets the octets kept.
 * The order of the relative distinguished names among each other stays.
 */
QUARN_ASN1_API int quarn_x500name_sort(quarn_x500name *name);

/* ---- AttributeValueWithContext */

/**
 * One of several values that an attribute has in different contexts (X.501, 8.2).
 *
 *     AttributeValueWithContext ::= SEQUENCE {
 *         value        ANY,
 *         contextList  ContextList
 *     }
 *
 * Type id QUARN_ASN1_X500ATTRVALUESWITHCONTEXTITEM (136).
 */
typedef struct quarn_x500attrvalueswithcontextitem quarn_x500attrvalueswithcontextitem;
/** As quarn_asn1_value_free() under QUARN_ASN1_X500ATTRVALUESWITHCONTEXTITEM. */
QUARN_ASN1_API void quarn_x500attrvalueswithcontextitem_free(
    quarn_x500attrvalueswithcontextitem *value);
/** value. */
QUARN_ASN1_API quarn_asn1_any *quarn_x500attrvalueswithcontextitem_getvalue(
    const quarn_x500attrvalueswithcontextitem *value);
/** contextList. */
QUARN_ASN1_API quarn_asn1_list *quarn_x500attrvalueswithcontextitem_getcontexts(
    const quarn_x500attrvalueswithcontextitem *value);

/* ---- AttributeValuesWithContext */

/**
 * The values that an attribute has in different contexts (X.501, 8.2).
 *
 *     AttributeValuesWithContext ::= SET OF AttributeValueWithContext
 *
 * Type id QUARN_ASN1_X500ATTRVALUESWITHCONTEXT (143). A quarn_asn1_list of
 * AttributeValueWithContext (quarn_x500attrvalueswithcontextitem).
 */
QUARN_ASN1_API void quarn_x500attrvalueswithcontext_free(quarn_asn1_list *value);

/* ---- Attribute */

/**
 * An attribute of a directory entry, a request or a message (X.501, 8.2).
 *
 *     Attribute ::= SEQUENCE {
 *         type               OBJECT IDENTIFIER,
 *         values             SET SIZE (1..MAX) OF ANY,
 *         valuesWithContext  AttributeValuesWithContext OPTIONAL
 *     }
 *
 * Type ids QUARN_ASN1_X500ATTRIBUTE (42), QUARN_ASN1_PKCS10ATTRIBUTE (43).
 */
typedef struct quarn_x500attribute quarn_x500attribute;
/** As quarn_asn1_value_free() under QUARN_ASN1_X500ATTRIBUTE. */
QUARN_ASN1_API void quarn_x500attribute_free(quarn_x500attribute *value);
/** As quarn_asn1_value_free() under QUARN_ASN1_PKCS10ATTRIBUTE. */
QUARN_ASN1_API void quarn_pkcs10attribute_free(quarn_x500attribute *value);
/** type. */
QUARN_ASN1_API quarn_asn1_oid *quarn_x500attribute_gettype(const quarn_x500attribute *value);
/** values. */
QUARN_ASN1_API quarn_asn1_list *quarn_x500attribute_getvalue(const quarn_x500attribute *value);
/** 1 when valuesWithContext is there. */
QUARN_ASN1_API int quarn_x500attribute_hascontext(const quarn_x500attribute *value);
/** valuesWithContext, null when it is absent. */
QUARN_ASN1_API quarn_asn1_list *quarn_x500attribute_getcontext(const quarn_x500attribute *value);
/** A new attribute from its type and a list of quarn_asn1_any, without contexts. */
QUARN_ASN1_API quarn_x500attribute *quarn_x500attribute_new(const quarn_asn1_oid *type,
                                                            const quarn_asn1_list *values);
/**
 * Puts the values of an attribute, the values with contexts and their contexts into the order of
 * DER. On failure the order is undefined.
 */
QUARN_ASN1_API int quarn_x500attribute_sort(quarn_x500attribute *attribute);

/* ---- DirectoryString */

/**
 * A string of a name, in one of five alphabets (X.520, 2).
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
 * A string of a PKCS #9 attribute: a DirectoryString or an IA5String (RFC 2985, 5.2.2).
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
 * Text for people (RFC 5280, 4.2.1.4).
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

/* ---- UUIDPair */

/**
 * Two UUIDs of sixteen octets each: of the issuer and of the subject of a certificate.
 *
 *     UUIDPair ::= SEQUENCE {
 *         issuerUUID   OCTET STRING,
 *         subjectUUID  OCTET STRING
 *     }
 *
 * Type id QUARN_ASN1_X500UUIDPAIR (48).
 */
typedef struct quarn_x500uuidpair quarn_x500uuidpair;
/** As quarn_asn1_value_free() under QUARN_ASN1_X500UUIDPAIR. */
QUARN_ASN1_API void quarn_x500uuidpair_free(quarn_x500uuidpair *value);
/** A new pair. Each argument points to 16 octets, which are copied. */
QUARN_ASN1_API quarn_x500uuidpair *quarn_x500uuidpair_new(const uint8_t *issuer,
                                                          const uint8_t *subject);
/** Copies the 16 octets of the issuer's UUID. */
QUARN_ASN1_API int quarn_x500uuidpair_getissueruuid(const quarn_x500uuidpair *pair, uint8_t *out);
/** Copies the 16 octets of the subject's UUID. */
QUARN_ASN1_API int quarn_x500uuidpair_getsubjectuuid(const quarn_x500uuidpair *pair, uint8_t *out);

/* ---- PostalAddress */

/**
 * The lines of an address (X.520, 6.6.1).
 *
 *     PostalAddress ::= SEQUENCE OF DirectoryString
 *
 * Type id QUARN_ASN1_X500POSTALADDRESS (49). A quarn_asn1_list of DirectoryString
 * (quarn_x500dirstring).
 */
QUARN_ASN1_API void quarn_x500postaladdress_free(quarn_asn1_list *value);

/* ---- TelexNumber */

/**
 * The number of a telex terminal (X.520, 6.7.2).
 *
 *     TelexNumber ::= SEQUENCE {
 *         telexNumber  PrintableString,
 *         countryCode  PrintableString,
 *         answerback   PrintableString
 *     }
 *
 * Type id QUARN_ASN1_X500TELEXNUMBER (50).
 */
typedef struct quarn_x500telexnum quarn_x500telexnum;
/** As quarn_asn1_value_free() under QUARN_ASN1_X500TELEXNUMBER. */
QUARN_ASN1_API void quarn_x500telexnumber_free(quarn_x500telexnum *value);
/** From its components. */
QUARN_ASN1_API quarn_x500telexnum *quarn_x500telexnum_new(
    const quarn_asn1_octetstring *telex_number,
    const quarn_asn1_octetstring *country_code,
    const quarn_asn1_octetstring *answerback);
/** telexNumber. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_x500telexnum_gettelexnum(
    const quarn_x500telexnum *value);
/** countryCode. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_x500telexnum_getcoutrycode(
    const quarn_x500telexnum *value);
/** answerback. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_x500telexnum_getanswerback(
    const quarn_x500telexnum *value);

/* ---- NameAndOptionalUID */

/**
 * A name, and what tells apart those who bore it (X.520, 6.9.3).
 *
 *     NameAndOptionalUID ::= SEQUENCE {
 *         dn   Name,
 *         uid  BIT STRING OPTIONAL
 *     }
 *
 * Type id QUARN_ASN1_X500NAMEANDUID (51).
 */
typedef struct quarn_x500nameandoptuid quarn_x500nameandoptuid;
/** As quarn_asn1_value_free() under QUARN_ASN1_X500NAMEANDUID. */
QUARN_ASN1_API void quarn_x500nameanduid_free(quarn_x500nameandoptuid *value);
/** From its components. Null leaves out uid. */
QUARN_ASN1_API quarn_x500nameandoptuid *quarn_x500nameandoptuid_new(
    const quarn_x500name *dn, const quarn_asn1_bitstring *uid);
/** dn. */
QUARN_ASN1_API quarn_x500name *quarn_x500nameandoptuid_getname(
    const quarn_x500nameandoptuid *value);
/** 1 when uid is there. */
QUARN_ASN1_API int quarn_x500nameandoptuid_hasuid(const quarn_x500nameandoptuid *value);
/** uid, null when it is absent. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_x500nameandoptuid_getuid(
    const quarn_x500nameandoptuid *value);

#ifdef __cplusplus
}
#endif

#endif
