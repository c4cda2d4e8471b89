/** Looking into values of any type: what a type is made of, and the components of a value with
 * their names. Conventions: quarn_asn1.h. */
#ifndef QUARN_ASN1_INSPECT_H
#define QUARN_ASN1_INSPECT_H

#include "core.h"

#ifdef __cplusplus
extern "C" {
#endif

/** What the values of a type look like. */
enum quarn_asn1_kind {
  QUARN_ASN1_KIND_UNKNOWN = 0,   /**< values cannot be decoded: of this version, no type */
  QUARN_ASN1_KIND_PRIMITIVE = 1, /**< no components: a universal type, or an ANY */
  QUARN_ASN1_KIND_RECORD = 2,    /**< SEQUENCE or SET: the components are those it is defined with,
                                      absent ones included */
  QUARN_ASN1_KIND_LIST = 3,      /**< SEQUENCE OF or SET OF: the components are the elements */
  QUARN_ASN1_KIND_CHOICE = 4,    /**< one component: the alternative that was chosen */
  QUARN_ASN1_KIND_STRINGS = 5    /**< a CHOICE of character strings, such as DirectoryString */
};

/** The form of a type. */
typedef struct quarn_asn1_shape {
  const char *name; /**< in ASN.1: "TBSCertificate", "OCTET STRING"; static. The same for several
                         type ids where the same definition serves them. */
  int64_t base;     /**< of a primitive type, the universal type whose functions serve its values;
                         else the type itself */
  int kind;         /**< a value of quarn_asn1_kind */
} quarn_asn1_shape;

/** What stands before a component's content. */
enum quarn_asn1_tagging {
  QUARN_ASN1_TAGGING_NONE = 0,     /**< the identifier of its own type */
  QUARN_ASN1_TAGGING_IMPLICIT = 1, /**< [n] in place of that */
  QUARN_ASN1_TAGGING_EXPLICIT = 2  /**< [n] around the whole encoding */
};

/** A component of a value. */
typedef struct quarn_asn1_component {
  const char *name; /**< in ASN.1: "serialNumber"; of a list's element, what each is; static */
  void *value;      /**< of type type_id, lent by the value that it is part of; null when absent */
  int64_t type_id;
  int optional;   /**< 1 when the component may be absent */
  int is_default; /**< 1 when it equals the default that it has, so that encoding leaves it out */
  int tagging;    /**< a value of quarn_asn1_tagging */
  int64_t tag;    /**< n of the context-specific [n]; 0 where there is none */
} quarn_asn1_component;

/** Tells the form of a type; 0 for an unknown id. */
QUARN_ASN1_API int quarn_asn1_type_shape(int64_t type_id, quarn_asn1_shape *shape);

/** Number of components of a value, as quarn_asn1_kind tells; 0 for null and for primitive types.
 */
QUARN_ASN1_API int64_t quarn_asn1_component_count(int64_t type_id, const void *value);

/**
 * Component number index of a value, from 0. A whole value can be walked with a stack of such
 * numbers; nothing is allocated, and each call takes constant time.
 *
 * @param component  receives what there is; untouched unless the result is 1
 * @return 1; 0 when there is no such component
 */
QUARN_ASN1_API int quarn_asn1_component_get(int64_t type_id,
                                            const void *value,
                                            int64_t index,
                                            quarn_asn1_component *component);

#ifdef __cplusplus
}
#endif

#endif
