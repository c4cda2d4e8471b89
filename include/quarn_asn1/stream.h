/**
 * Push decoders: one encoding, handed over in slices as it arrives. Conventions: quarn_asn1.h.
 *
 * A context takes slices of any size, down to single octets, and finds where the element ends. That
 * of an ANY keeps the octets of the element; that of an OCTET STRING passes its content on to a
 * stream and keeps nothing. Each octet is handled once and a slice is not needed after the call. A
 * context serves one element, and one thread at a time.
 *
 * What is accepted departs from X.690 in these points. Callers rely on them; those who cannot live
 * with them have quarn_asn1_decode() on a stream of their own.
 *
 *  - Empty content is noticed by the next octet. An element whose last octets are 05 00, 04 00 or
 *    30 00 is complete only when a further octet arrives, all of whose slice is then left over.
 *  - Inside constructed content an empty element ends the element around it, whatever that one's
 *    length. 30 05 05 00 02 01 07 ends after four octets. Content around that goes on: of
 *    30 07 30 05 05 00 02 01 07 all nine octets are taken.
 *  - A tag number of 31 or more has the bits 80 of its octets reversed: octets below 80 go on, and
 *    the first from 80 up is not part of it but the first length octet. 9F 1F 81 02 41 42 has tag
 *    number 31 and content 41 42; 9F 81 00 02 is an error. The number is at most 2^56 - 1.
 *  - 00 is an identifier like any other in content of definite length.
 *
 * Elements of constructed content are followed however deep, to quarn_get_recursive_level(), and
 * must lie within the lengths around them.
 *
 * No failure is recorded. After the failure of an update every later one fails; bad arguments are
 * refused without harm to the context.
 */
#ifndef QUARN_ASN1_STREAM_H
#define QUARN_ASN1_STREAM_H

#include "core.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- One element of any type */

/** The state of decoding one element. */
typedef struct quarn_asn1_decode_any_ctx quarn_asn1_decode_any_ctx;

/** A context that waits for the first octet. */
QUARN_ASN1_API quarn_asn1_decode_any_ctx *quarn_asn1_decode_any_ctx_new(void);
/** Frees a context with the octets that it keeps. */
QUARN_ASN1_API void quarn_asn1_decode_any_ctx_free(quarn_asn1_decode_any_ctx *c);

/**
 * Takes the next slice.
 *
 * @param data       may be null when length is 0
 * @param length     octets there are; with 0 nothing happens
 * @param left_over  receives how many octets at the end of the slice do not belong to the element:
 *                   0 while it goes on, the whole slice when it was complete before; 0 on failure
 * @return 1; 0 when this cannot become an element, when memory is short, or after a failure
 */
QUARN_ASN1_API int quarn_asn1_decode_any_update(quarn_asn1_decode_any_ctx *c,
                                                const uint8_t *data,
                                                int64_t length,
                                                int64_t *left_over);

/** 1 when the element is complete. */
QUARN_ASN1_API int quarn_asn1_decode_any_isfinish(const quarn_asn1_decode_any_ctx *c);
/** 1 when the element is complete and is an end-of-contents, 00 00. */
QUARN_ASN1_API int quarn_asn1_decode_any_ctx_iseoc(const quarn_asn1_decode_any_ctx *c);

/**
 * Takes the next slice as far as the length octets go, and tells identifier and length. The left
 * over octets are content: they go to quarn_asn1_decode_any_update().
 *
 * @param fresh           1 on the first call, for a context that has taken nothing yet; 0 to go on
 *                        after QUARN_ASN1_MORE
 * @param tag_class       receives 0, 0x40, 0x80 or 0xC0
 * @param primitive       receives 1 or 0
 * @param content_length  receives the length, or QUARN_ASN1_INDEFINITE
 * @param left_over       receives the octets of the slice behind the length; 0 unless the result is
 *                        1
 * @return 1; QUARN_ASN1_MORE when the slice ends before the length does; 0 on failure, for a null
 *         out pointer, and, without harm to the context, when its length was complete before
 */
QUARN_ASN1_API int quarn_asn1_decode_any_identifier_length(quarn_asn1_decode_any_ctx *c,
                                                           int fresh,
                                                           const uint8_t *data,
                                                           int64_t length,
                                                           uint32_t *tag_class,
                                                           uint32_t *primitive,
                                                           uint64_t *tag_number,
                                                           int64_t *content_length,
                                                           int64_t *left_over);

/**
 * Decodes the complete element as a value of a type, as quarn_asn1_decode() does, which reads tag
 * numbers and empty content as X.690 has them. May be called again.
 *
 * @param value  receives the new value, to be freed with quarn_asn1_value_free() under the same
 *               type id; null after a failure
 * @return 1; QUARN_ASN1_MORE while the element is not complete; otherwise 0 or the result of the
 *         step that failed, also when the value does not take all octets of the element
 */
QUARN_ASN1_API int quarn_asn1_decode_any_ctx_toobject(quarn_asn1_decode_any_ctx *c,
                                                      int64_t type_id,
                                                      void **value);

/* ---- The content of an OCTET STRING */

/** The state of decoding one OCTET STRING, primitive (04) or constructed of such (24). */
typedef struct quarn_asn1_decode_octetstring_ctx quarn_asn1_decode_octetstring_ctx;

/** A context that waits for the first octet. */
QUARN_ASN1_API quarn_asn1_decode_octetstring_ctx *quarn_asn1_decode_octetstring_ctx_new(void);
/** Frees a context. */
QUARN_ASN1_API void quarn_asn1_decode_octetstring_ctx_free(quarn_asn1_decode_octetstring_ctx *c);

/**
 * Takes the next slice and writes what it holds of the string's content to a stream.
 *
 * @param out        receives the content of the primitive segments, in their order; what was
 *                   written before a failure stays there. It may be another one at each call.
 * @param data       may be null when length is 0
 * @param length     octets there are; with 0 nothing happens
 * @param left_over  as for quarn_asn1_decode_any_update()
 * @return 1; 0 when this cannot become an OCTET STRING, when writing fails, or after a failure
 */
QUARN_ASN1_API int quarn_asn1_decode_octetstring_update(quarn_asn1_decode_octetstring_ctx *c,
                                                        quarn_stream *out,
                                                        const uint8_t *data,
                                                        int64_t length,
                                                        int64_t *left_over);

/**
 * Makes a new context go on behind identifier and length that the caller has read, of an implicitly
 * tagged string, for example.
 *
 * @param primitive       not 0: the content of a primitive string; 0: segments
 * @param content_length  the length, or QUARN_ASN1_INDEFINITE for segments that an end-of-contents
 *                        follows
 * @return 1; 0, with the context as it was, for another length or after the first octet
 */
QUARN_ASN1_API int quarn_asn1_decode_octetstring_ctx_setstate(quarn_asn1_decode_octetstring_ctx *c,
                                                              uint32_t primitive,
                                                              int64_t content_length);

/** As quarn_asn1_decode_octetstring_update(), but 0, without harm, unless the context stands inside
 * the content: behind the length and before the end. */
QUARN_ASN1_API int quarn_asn1_decode_octetstring_content_update(
    quarn_asn1_decode_octetstring_ctx *c,
    quarn_stream *out,
    const uint8_t *data,
    int64_t length,
    int64_t *left_over);

/** 1 when the string is complete. */
QUARN_ASN1_API int quarn_asn1_decode_octetstring_isfinish(
    const quarn_asn1_decode_octetstring_ctx *c);

/**
 * Octets of the complete encoding, for callers whose last slice ended with it; -1 before the end.
 *
 * It is the sum of the lengths of the slices, but of the slice with octets left over it counts only
 * these: after 04 01 41 FF in one slice it is 1. What the caller read before
 * quarn_asn1_decode_octetstring_ctx_setstate() is not counted.
 */
QUARN_ASN1_API int64_t
quarn_asn1_decode_octetstring_ctx_getencodelength(const quarn_asn1_decode_octetstring_ctx *c);

#ifdef __cplusplus
}
#endif

#endif
