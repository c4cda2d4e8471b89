/**
 * The ASN.1 library, libquarn_asn1.so.1: BER in, DER out, for public-key-infrastructure software.
 *
 * What holds for every function, unless its own text says otherwise:
 *
 *  - A type is named by a type id of quarn_asn1/ids.h, a value is a pointer to an object of that
 *    type. Values belong to whoever made them, by a constructor or by decoding, and are freed with
 *    quarn_asn1_value_free() under their type id. Freeing null does nothing.
 *  - Constructors copy what they are given and return null when an argument is bad or memory is
 *    short. A copy is what the encoding of a value decodes to: what encoding changes is changed in
 *    it too (any TRUE is FF, what tells lists or strings under one tag apart is lost). Getters of
 *    components, octets, numbers and texts lend: what they return lives as long as the value.
 *    Functions that return a new object or buffer say so.
 *  - An int result is 1 for success. Anything else is failure; compare with 1.
 *  - A length is a count of octets, QUARN_ASN1_INDEFINITE, or QUARN_ASN1_NO_LENGTH.
 *  - Null for an object that is only asked gives the answer for nothing: 0, null, or
 *    QUARN_ASN1_NO_LENGTH. Out pointers for octet counts may be null.
 *  - Each failure puts one record into the error context, and each enclosing layer one of its own,
 *    so that the records tell the chain from the innermost failure outwards. A context may be null.
 *  - Input is BER, output is DER, except: content of unknown or very large length that a caller's
 *    stream holds is written in segments of indefinite length; what was received in a form that is
 *    not canonical is written as it was where it is an open type, a name, a signed object or an
 *    INTEGER; and the elements of a SET OF are written in the order in which they are held.
 *    quarn_asn1_list_sort_setof() and the functions called _sort put them into that of DER.
 *  - Values are not locked: one value or stream by one thread at a time. Encoding a value, and
 *    copying one that is given to a constructor, counts as changing it: reading positions move, and
 *    names and signed objects keep their octets. There is no shared state.
 *  - Nothing is believed that the input only claims: memory grows with the octets that arrive, time
 *    is linear in them, nesting is bounded by quarn_get_recursive_level().
 */
#ifndef QUARN_ASN1_H
#define QUARN_ASN1_H

#include "quarn_asn1/attribute.h"
#include "quarn_asn1/authenticode.h"
#include "quarn_asn1/cades.h"
#include "quarn_asn1/certstore.h"
#include "quarn_asn1/cms.h"
#include "quarn_asn1/core.h"
#include "quarn_asn1/ecc.h"
#include "quarn_asn1/ers.h"
#include "quarn_asn1/ess.h"
#include "quarn_asn1/extension.h"
#include "quarn_asn1/inspect.h"
#include "quarn_asn1/json.h"
#include "quarn_asn1/message.h"
#include "quarn_asn1/ocsp.h"
#include "quarn_asn1/pkcs1.h"
#include "quarn_asn1/pkcs10.h"
#include "quarn_asn1/pkcs12.h"
#include "quarn_asn1/pkcs3.h"
#include "quarn_asn1/pkcs5.h"
#include "quarn_asn1/pkcs8.h"
#include "quarn_asn1/ses.h"
#include "quarn_asn1/stream.h"
#include "quarn_asn1/tsp.h"
#include "quarn_asn1/types.h"
#include "quarn_asn1/x500.h"
#include "quarn_asn1/x509.h"

#endif
