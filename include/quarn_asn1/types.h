/** Values of the universal types, open types and lists. Conventions: quarn_asn1.h. */
#ifndef QUARN_ASN1_TYPES_H
#define QUARN_ASN1_TYPES_H

#include "core.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct quarn_asn1_boolean quarn_asn1_boolean;     /**< BOOLEAN */
typedef struct quarn_asn1_integer quarn_asn1_integer;     /**< INTEGER and ENUMERATED */
typedef struct quarn_asn1_bitstring quarn_asn1_bitstring; /**< BIT STRING */
typedef struct quarn_asn1_octetstring
    quarn_asn1_octetstring;                     /**< OCTET STRING and every character string */
typedef struct quarn_asn1_oid quarn_asn1_oid;   /**< OBJECT IDENTIFIER and RELATIVE-OID */
typedef struct quarn_asn1_time quarn_asn1_time; /**< UTCTime, GeneralizedTime and Time */
typedef struct quarn_asn1_any quarn_asn1_any;   /**< one element of any type, octets kept */
typedef struct quarn_asn1_list quarn_asn1_list; /**< SEQUENCE OF and SET OF */

/* ---- BOOLEAN (id 1) */

/** A new TRUE. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_asn1_boolean_true(void);
/** A new FALSE. */
QUARN_ASN1_API quarn_asn1_boolean *quarn_asn1_boolean_false(void);
/** 1 for TRUE; 0 for FALSE and for null. */
QUARN_ASN1_API int quarn_asn1_boolean_istrue(const quarn_asn1_boolean *v);
/** The octet as it was received (any but 0 is TRUE), 255 or 0 for a value made here. */
QUARN_ASN1_API int quarn_asn1_boolean_getvalue(const quarn_asn1_boolean *v, uint32_t *cell);

/* ---- INTEGER (id 2) and ENUMERATED (id 7) */

/** From big-endian two's complement octets, at least one; superfluous leading octets are dropped.
 */
QUARN_ASN1_API quarn_asn1_integer *quarn_asn1_integer_new(const uint8_t *octets, int64_t length);
/** From a big-endian magnitude, at least one octet: never negative. */
QUARN_ASN1_API quarn_asn1_integer *quarn_asn1_unsigned_integer_new(const uint8_t *octets,
                                                                   int64_t length);
/** From a big integer, which stays the caller's; null for null. */
QUARN_ASN1_API quarn_asn1_integer *quarn_asn1_integer_newbigint(const quarn_biginteger *b);
/** From a number. */
QUARN_ASN1_API quarn_asn1_integer *quarn_asn1_integer_value(int64_t n);
/** An ENUMERATED of a number; the same as quarn_asn1_integer_value(). */
QUARN_ASN1_API quarn_asn1_integer *quarn_asn1_enum_value(int64_t n);
/** A new big integer, freed with quarn_biginteger_free(). */
QUARN_ASN1_API quarn_biginteger *quarn_asn1_integer_getbigintger(const quarn_asn1_integer *v,
                                                                 quarn_err_ctx *ctx);
/** The value, when it lies in -(2^63 - 1) to 2^63 - 1. The least 64-bit integer, -2^63, is refused.
 */
QUARN_ASN1_API int quarn_asn1_integer_getlong(const quarn_asn1_integer *v, int64_t *n);
/** The same as quarn_asn1_integer_getlong(). */
QUARN_ASN1_API int quarn_asn1_enum_getlong(const quarn_asn1_integer *v, int64_t *n);
/** Number of content octets. */
QUARN_ASN1_API int64_t quarn_asn1_integer_getlength(const quarn_asn1_integer *v);
/** Copies the content octets into a buffer of quarn_asn1_integer_getlength() octets. */
QUARN_ASN1_API int quarn_asn1_integer_get(const quarn_asn1_integer *v, uint8_t *buffer);
/** 1 when both are null or both have the same octets. */
QUARN_ASN1_API int quarn_asn1_integer_equals(const quarn_asn1_integer *a,
                                             const quarn_asn1_integer *b);
/** -1, 0 or 1 by the order of encodings, which is not that of numbers: longer is greater, then
 * octets. Null is least. */
QUARN_ASN1_API int quarn_asn1_integer_encodecmp(const quarn_asn1_integer *a,
                                                const quarn_asn1_integer *b);

/* ---- BIT STRING (id 3) */

/** From octets of which the last unused_bits (0 to 7) bits do not count; those bits are cleared. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_asn1_bitstring_new(uint32_t unused_bits,
                                                              const uint8_t *octets,
                                                              int64_t length);
/**
 * A named-bit list: the listed bits are set, the highest is the last. A null array gives the empty
 * string. The first position counts even when count is 0.
 */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_asn1_bitstring_newbits(const int32_t *positions,
                                                                  int32_t count);
/** From a bit set, which stays the caller's; null for null. */
QUARN_ASN1_API quarn_asn1_bitstring *quarn_asn1_bitstring_newbitset(const quarn_bitset *b);
/** A new bit set, freed with quarn_bitset_free(). */
QUARN_ASN1_API quarn_bitset *quarn_asn1_bitstring_getbitset(quarn_asn1_bitstring *v);
/** Bit number index, 0 the top bit of the first octet; 0 also when there is no such bit. */
QUARN_ASN1_API int quarn_asn1_bitstring_getbit(quarn_asn1_bitstring *v, int64_t index);
/** How many bits of the last octet do not count: 0 to 7. */
QUARN_ASN1_API int quarn_asn1_bitstring_getunusedbits(const quarn_asn1_bitstring *v,
                                                      uint32_t *unused_bits);
/** Number of data octets, without the octet that counts unused bits. */
QUARN_ASN1_API int64_t quarn_asn1_bitstring_getlength(const quarn_asn1_bitstring *v);
/** As quarn_asn1_octetstring_getall(), over the data octets. */
QUARN_ASN1_API int quarn_asn1_bitstring_getall(quarn_asn1_bitstring *v, uint8_t *buffer);
/** As quarn_asn1_octetstring_get(), over the data octets. */
QUARN_ASN1_API int quarn_asn1_bitstring_get(quarn_asn1_bitstring *v,
                                            int mode,
                                            uint8_t *buffer,
                                            int64_t size,
                                            uint64_t *count,
                                            quarn_err_ctx *ctx);
/** As quarn_asn1_octetstring_getobject(), over the data octets: a public key, for example. */
QUARN_ASN1_API int quarn_asn1_bitstring_getobject(quarn_asn1_bitstring *v,
                                                  int64_t type_id,
                                                  void **value,
                                                  quarn_err_ctx *ctx);
/** As quarn_asn1_decode() of a BIT STRING. */
QUARN_ASN1_API int quarn_asn1_decode_bitstring(quarn_stream *s,
                                               quarn_asn1_bitstring **v,
                                               uint64_t *consumed,
                                               quarn_err_ctx *ctx);
/** As quarn_asn1_decode_octetstring_ex(). */
QUARN_ASN1_API int quarn_asn1_decode_bitstring_ex(quarn_stream *s,
                                                  quarn_stream *destination,
                                                  quarn_asn1_bitstring **v,
                                                  uint64_t *consumed,
                                                  quarn_err_ctx *ctx);
/** As quarn_asn1_decode_octetstring_content_ex(). */
QUARN_ASN1_API int quarn_asn1_decode_bitstring_content_ex(quarn_stream *s,
                                                          quarn_stream *destination,
                                                          quarn_asn1_bitstring **v,
                                                          int32_t primitive,
                                                          int64_t length,
                                                          uint64_t *consumed,
                                                          quarn_err_ctx *ctx);

/* ---- OCTET STRING (id 4) and character strings (ids 9 to 19) */

/** A copy of the octets. Nothing is checked: character strings carry what they are given. */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_asn1_octetstring_new(const uint8_t *octets,
                                                                  int64_t length);
/** The same as quarn_asn1_octetstring_new(). */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_asn1_string_new(const uint8_t *octets, int64_t length);
/**
 * A value over a stream that stays the caller's and must outlive it. A memory stream is encoded in
 * one piece; another stream of 0x500000 octets or more, or of unknown length, in segments.
 */
QUARN_ASN1_API quarn_asn1_octetstring *quarn_asn1_octetstring_newstream(quarn_stream *s);
/** Number of octets; QUARN_ASN1_INDEFINITE when it will be encoded in segments. */
QUARN_ASN1_API int64_t quarn_asn1_octetstring_length(const quarn_asn1_octetstring *v);
/** The same as quarn_asn1_octetstring_length(). */
QUARN_ASN1_API int64_t quarn_asn1_octetstring_getlength(const quarn_asn1_octetstring *v);
/** The same as quarn_asn1_octetstring_length(). */
QUARN_ASN1_API int64_t quarn_asn1_string_getlength(const quarn_asn1_octetstring *v);
/** Copies the octets into a buffer of quarn_asn1_octetstring_getlength() octets; fails when that is
 * not a count. */
QUARN_ASN1_API int quarn_asn1_octetstring_getall(quarn_asn1_octetstring *v, uint8_t *buffer);
/** The same as quarn_asn1_octetstring_getall(). */
QUARN_ASN1_API int quarn_asn1_string_get(quarn_asn1_octetstring *v, uint8_t *buffer);
/**
 * Reads the octets piece by piece.
 *
 * @param mode   1 from the start, 2 where the last call ended; another mode fails with 0x10105
 * @param size   room in buffer; 0 reads nothing, and with mode 1 only rewinds
 * @param count  receives how many octets were read, 0 at the end
 */
QUARN_ASN1_API int quarn_asn1_octetstring_get(quarn_asn1_octetstring *v,
                                              int mode,
                                              uint8_t *buffer,
                                              int64_t size,
                                              uint64_t *count,
                                              quarn_err_ctx *ctx);
/** The octets in a new blob; null when the length is not a count. */
QUARN_ASN1_API quarn_data_blob *quarn_asn1_octetstring_getblob(quarn_asn1_octetstring *v);
/**
 * Decodes the octets as one value of a type.
 *
 * When octets follow the value the call fails with 0x1027f and still stores the value, which the
 * caller frees.
 */
QUARN_ASN1_API int quarn_asn1_octetstring_getobject(quarn_asn1_octetstring *v,
                                                    int64_t type_id,
                                                    void **value,
                                                    quarn_err_ctx *ctx);

/** Begins an OCTET STRING of unknown length: 24 80. */
QUARN_ASN1_API int quarn_asn1_encode_octetstring_init(quarn_stream *s);
/** Writes one segment of it, as a primitive OCTET STRING. */
QUARN_ASN1_API int quarn_asn1_encode_octetstring_update(quarn_stream *s,
                                                        const uint8_t *octets,
                                                        int64_t length);
/** Ends it: 00 00. */
QUARN_ASN1_API int quarn_asn1_encode_octetstring_end(quarn_stream *s);

/** As quarn_asn1_decode() of an OCTET STRING. */
QUARN_ASN1_API int quarn_asn1_decode_octetstring(quarn_stream *s,
                                                 quarn_asn1_octetstring **v,
                                                 uint64_t *consumed,
                                                 quarn_err_ctx *ctx);
/**
 * Decodes an OCTET STRING whose octets are appended to a stream of the caller's. The value is over
 * that stream and does not own it: free the value first. After a failure the stream keeps what it
 * was given.
 */
QUARN_ASN1_API int quarn_asn1_decode_octetstring_ex(quarn_stream *s,
                                                    quarn_stream *destination,
                                                    quarn_asn1_octetstring **v,
                                                    uint64_t *consumed,
                                                    quarn_err_ctx *ctx);
/** The same for content whose identifier and length the caller has read. */
QUARN_ASN1_API int quarn_asn1_decode_octetstring_content_ex(quarn_stream *s,
                                                            quarn_stream *destination,
                                                            quarn_asn1_octetstring **v,
                                                            int32_t primitive,
                                                            int64_t length,
                                                            uint64_t *consumed,
                                                            quarn_err_ctx *ctx);
/** Encodes a value as NumericString (id 10). */
QUARN_ASN1_API int quarn_asn1_encode_numbericstring(quarn_stream *s,
                                                    void *value,
                                                    uint64_t *written,
                                                    quarn_err_ctx *ctx);
/** Decodes a NumericString (id 10). */
QUARN_ASN1_API int quarn_asn1_decode_numbericstring(quarn_stream *s,
                                                    void **value,
                                                    uint64_t *consumed,
                                                    quarn_err_ctx *ctx);

/* ---- OBJECT IDENTIFIER (id 6) and RELATIVE-OID (id 90) */

/**
 * From dotted text of at least two arcs, each below 2^64 - 1; blanks may stand for dots. The first
 * arc is 0, 1 or 2, the second at most 39 below 0 and 1.
 */
QUARN_ASN1_API quarn_asn1_oid *quarn_asn1_oid_new(const char *text);
/** From dotted text of at least one arc. */
QUARN_ASN1_API quarn_asn1_oid *quarn_asn1_relative_oid_new(const char *text);
/** The dotted text, NUL-terminated, lent. An arc that the encoding leaves unfinished is not in it.
 */
QUARN_ASN1_API const char *quarn_asn1_oid_getstring(const quarn_asn1_oid *v);
/** The same as quarn_asn1_oid_getstring(), of a RELATIVE-OID. */
QUARN_ASN1_API const char *quarn_asn1_relative_oid_getstring(const quarn_asn1_oid *v);

/* ---- UTCTime (id 21), GeneralizedTime (id 22), Time (id 20) */

/** A UTCTime; years 1950 to 2049. A second of 60 is written as 59. */
QUARN_ASN1_API quarn_asn1_time *quarn_asn1_utctime_new(
    int year, int month, int day, int hour, int minute, int second);
/** A GeneralizedTime; years 1582 to 9999. */
QUARN_ASN1_API quarn_asn1_time *quarn_asn1_gentime_new(
    int year, int month, int day, int hour, int minute, int second, int nanoseconds);
/** A UTCTime, without the nanoseconds, for the years 1950 to 2049; else a GeneralizedTime (RFC
 * 5280, 4.1.2.5). */
QUARN_ASN1_API quarn_asn1_time *quarn_asn1_time_new(
    int year, int month, int day, int hour, int minute, int second, int nanoseconds);
/**
 * From a time object.
 *
 * @param flags  0 for a UTCTime, 1 for a GeneralizedTime, 2 for the rule of quarn_asn1_time_new();
 *               plus 0x10 to take the nanoseconds along
 */
QUARN_ASN1_API quarn_asn1_time *quarn_asn1_time_newutctime(const quarn_time *t, uint32_t flags);
/** The instant as a new time object, freed with quarn_time_free(). */
QUARN_ASN1_API quarn_time *quarn_asn1_time_getutctime(const quarn_asn1_time *v);
/** As quarn_asn1_encode() of a Time. */
QUARN_ASN1_API int quarn_asn1_encode_time(quarn_stream *s,
                                          void *value,
                                          uint64_t *written,
                                          quarn_err_ctx *ctx);
/** As quarn_asn1_encode() of a UTCTime. */
QUARN_ASN1_API int quarn_asn1_encode_utctime(quarn_stream *s,
                                             void *value,
                                             uint64_t *written,
                                             quarn_err_ctx *ctx);
/** As quarn_asn1_encode() of a GeneralizedTime. */
QUARN_ASN1_API int quarn_asn1_encode_gentime(quarn_stream *s,
                                             void *value,
                                             uint64_t *written,
                                             quarn_err_ctx *ctx);
/** As quarn_asn1_decode() of a Time. */
QUARN_ASN1_API int quarn_asn1_decode_time(quarn_stream *s,
                                          void **value,
                                          uint64_t *consumed,
                                          quarn_err_ctx *ctx);
/** As quarn_asn1_decode() of a UTCTime. */
QUARN_ASN1_API int quarn_asn1_decode_utctime(quarn_stream *s,
                                             void **value,
                                             uint64_t *consumed,
                                             quarn_err_ctx *ctx);
/** As quarn_asn1_decode() of a GeneralizedTime. */
QUARN_ASN1_API int quarn_asn1_decode_gentime(quarn_stream *s,
                                             void **value,
                                             uint64_t *consumed,
                                             quarn_err_ctx *ctx);
/** As quarn_asn1_encode_content() of a Time. */
QUARN_ASN1_API int quarn_asn1_encode_time_content(
    quarn_stream *s, void *value, int64_t content_length, uint64_t *written, quarn_err_ctx *ctx);
/** As quarn_asn1_encode_content() of a UTCTime. */
QUARN_ASN1_API int quarn_asn1_encode_utctime_content(
    quarn_stream *s, void *value, int64_t content_length, uint64_t *written, quarn_err_ctx *ctx);
/** As quarn_asn1_encode_content() of a GeneralizedTime. */
QUARN_ASN1_API int quarn_asn1_encode_gentime_content(
    quarn_stream *s, void *value, int64_t content_length, uint64_t *written, quarn_err_ctx *ctx);
/** As quarn_asn1_decode_content() of a UTCTime. */
QUARN_ASN1_API int quarn_asn1_decode_utctime_content(quarn_stream *s,
                                                     void **value,
                                                     int32_t primitive,
                                                     int64_t length,
                                                     uint64_t *consumed,
                                                     quarn_err_ctx *ctx);
/** As quarn_asn1_decode_content() of a GeneralizedTime. */
QUARN_ASN1_API int quarn_asn1_decode_gentime_content(quarn_stream *s,
                                                     void **value,
                                                     int32_t primitive,
                                                     int64_t length,
                                                     uint64_t *consumed,
                                                     quarn_err_ctx *ctx);

/* ---- ANY (id 23) */

/**
 * From the parts of an element. With content_length QUARN_ASN1_INDEFINITE the octets must end with
 * the end-of-contents 00 00. A definite content_length is not compared with count here: encoding
 * such a value fails.
 */
QUARN_ASN1_API quarn_asn1_any *quarn_asn1_any_new(uint32_t tag_class,
                                                  uint32_t primitive,
                                                  uint64_t tag_number,
                                                  int64_t content_length,
                                                  const uint8_t *octets,
                                                  int64_t count);
/** As quarn_asn1_value_free() of an ANY. */
QUARN_ASN1_API void quarn_asn1_any_free(quarn_asn1_any *v);
/** tag_class receives 0, 0x40, 0x80 or 0xC0. */
QUARN_ASN1_API int quarn_asn1_any_gettypeclass(const quarn_asn1_any *v, uint32_t *tag_class);
/** primitive receives 1, or 0 for constructed. */
QUARN_ASN1_API int quarn_asn1_any_isprimitive(const quarn_asn1_any *v, uint32_t *primitive);
/** The tag number. */
QUARN_ASN1_API int quarn_asn1_any_gettagnumber(const quarn_asn1_any *v, uint64_t *tag_number);
/** Octets of content without identifier and length, as quarn_asn1_content_length(). */
QUARN_ASN1_API int64_t quarn_asn1_any_getcontentlength(const quarn_asn1_any *v);
/** The same as quarn_asn1_any_getcontentlength(). */
QUARN_ASN1_API int64_t quarn_asn1_any_length(const quarn_asn1_any *v);
/** 1 when the value stands for an end-of-contents marker. */
QUARN_ASN1_API int quarn_asn1_any_iseoc(const quarn_asn1_any *v);
/** Octets of the whole element. */
QUARN_ASN1_API int64_t quarn_asn1_any_encodelength(const quarn_asn1_any *v);
/** As quarn_asn1_decode() of an ANY. */
QUARN_ASN1_API int quarn_asn1_decode_any(quarn_stream *s,
                                         quarn_asn1_any **v,
                                         uint64_t *consumed,
                                         quarn_err_ctx *ctx);
/**
 * As quarn_asn1_decode_any(), with the content appended to a stream that stays the caller's. It
 * must be another than s, empty if the value is to be encoded again, and outlive the value. After a
 * failure it keeps what it was given.
 */
QUARN_ASN1_API int quarn_asn1_decode_any_ex(quarn_stream *s,
                                            quarn_stream *content,
                                            quarn_asn1_any **v,
                                            uint64_t *consumed,
                                            quarn_err_ctx *ctx);
/** As quarn_asn1_encode() of an ANY. */
QUARN_ASN1_API int quarn_asn1_encode_any(quarn_stream *s,
                                         quarn_asn1_any *v,
                                         uint64_t *written,
                                         quarn_err_ctx *ctx);
/** As quarn_asn1_encode_content() of an ANY. */
QUARN_ASN1_API int quarn_asn1_encode_any_content(quarn_stream *s,
                                                 quarn_asn1_any *v,
                                                 int64_t content_length,
                                                 uint64_t *written,
                                                 quarn_err_ctx *ctx);
/** Copies exactly one element from stream to stream. */
QUARN_ASN1_API int quarn_asn1_readobjecttostream(quarn_stream *in,
                                                 quarn_stream *out,
                                                 quarn_err_ctx *ctx);
/** Reads exactly one element into a new buffer, freed with quarn_free(). */
QUARN_ASN1_API int quarn_asn1_readoneobject(quarn_stream *in,
                                            uint8_t **octets,
                                            uint64_t *count,
                                            quarn_err_ctx *ctx);
/** A new ANY that holds the encoding of a value. */
QUARN_ASN1_API quarn_asn1_any *quarn_asn1_objecttoany(int64_t type_id, void *value);
/** A deep copy of a value, made by encoding and decoding it; null on failure. */
QUARN_ASN1_API void *quarn_asn1_dupobject(int64_t type_id, void *value, quarn_err_ctx *ctx);
/** Decodes the element as a value of a type; octets after it are refused. */
QUARN_ASN1_API int quarn_asn1_any_toobject(quarn_asn1_any *v,
                                           int64_t type_id,
                                           void **value,
                                           quarn_err_ctx *ctx);
/** Decodes the content as the content of a type: what an IMPLICIT tag covers. */
QUARN_ASN1_API int quarn_asn1_any_contenttoobject(quarn_asn1_any *v,
                                                  int64_t type_id,
                                                  void **value,
                                                  quarn_err_ctx *ctx);
/** Decodes the content as one whole value of a type: what an EXPLICIT tag covers. */
QUARN_ASN1_API int quarn_asn1_any_getobject(quarn_asn1_any *v,
                                            int64_t type_id,
                                            void **value,
                                            quarn_err_ctx *ctx);
/** The content octets in a new buffer, freed with quarn_free(); those of the indefinite form end
 * with 00 00. */
QUARN_ASN1_API int quarn_asn1_any_getcontent(quarn_asn1_any *v,
                                             uint8_t **octets,
                                             uint64_t *count,
                                             quarn_err_ctx *ctx);
/** The content decoded as that of a string of either form. */
QUARN_ASN1_API int quarn_asn1_any_decode_string(quarn_asn1_any *v,
                                                quarn_asn1_octetstring **string,
                                                quarn_err_ctx *ctx);

/* ---- Lists: SEQUENCE OF and SET OF; of ANY: ids 24 to 27 */

/** How the values of a type are treated; for lists whose element type has no id. */
typedef void (*quarn_asn1_free_fn)(void *value);
typedef int64_t (*quarn_asn1_length_fn)(const void *value);
typedef int (*quarn_asn1_encode_fn)(quarn_stream *s,
                                    void *value,
                                    uint64_t *written,
                                    quarn_err_ctx *ctx);
typedef int (*quarn_asn1_decode_content_fn)(quarn_stream *s,
                                            void **value,
                                            int32_t form,
                                            int64_t content_length,
                                            uint64_t *consumed,
                                            quarn_err_ctx *ctx);

/** An empty list. A list does not know its element type: each operation is told. */
QUARN_ASN1_API quarn_asn1_list *quarn_asn1_list_new(void);
/** Appends an element, which the list takes over; on failure it stays the caller's. */
QUARN_ASN1_API int quarn_asn1_list_put(quarn_asn1_list *l, void *element);
/** Element number index, lent. */
QUARN_ASN1_API int quarn_asn1_list_get(const quarn_asn1_list *l, int index, void **element);
/** Number of elements. */
QUARN_ASN1_API int quarn_asn1_list_getsize(const quarn_asn1_list *l);
/** Removes element number index and hands it to the caller; later elements move down. */
QUARN_ASN1_API void *quarn_asn1_list_delete(quarn_asn1_list *l, int index);
/** Frees the list and its elements. */
QUARN_ASN1_API void quarn_asn1_list_free(quarn_asn1_list *l, int64_t element_type_id);
/** As quarn_asn1_list_free(); a null function leaves the elements alone. */
QUARN_ASN1_API void quarn_asn1_list_free_ex(quarn_asn1_list *l, quarn_asn1_free_fn element_free);
/** As quarn_asn1_list_free() of a list of ANY. */
QUARN_ASN1_API void quarn_asn1_anylist_free(quarn_asn1_list *l);
/** Sum of the elements' lengths; the first that is no count is handed on. */
QUARN_ASN1_API int64_t quarn_asn1_list_content_length(const quarn_asn1_list *l,
                                                      int64_t element_type_id);
/** As quarn_asn1_list_content_length(), with a function that measures an element. */
QUARN_ASN1_API int64_t quarn_asn1_list_content_length_ex(const quarn_asn1_list *l,
                                                         quarn_asn1_length_fn element_length);
/** As quarn_asn1_list_content_length() of a list of ANY. */
QUARN_ASN1_API int64_t quarn_asn1_anylist_length(const quarn_asn1_list *l);
/** Encodes the elements in the order of the list; a SET OF is sorted beforehand, see
 * quarn_asn1_list_sort_setof(). */
QUARN_ASN1_API int quarn_asn1_encode_list_content(quarn_stream *s,
                                                  quarn_asn1_list *l,
                                                  int64_t element_type_id,
                                                  int64_t content_length,
                                                  uint64_t *written,
                                                  quarn_err_ctx *ctx);
/** As quarn_asn1_encode_list_content(), with a function that encodes an element. */
QUARN_ASN1_API int quarn_asn1_encode_list_content_ex(quarn_stream *s,
                                                     quarn_asn1_list *l,
                                                     quarn_asn1_encode_fn element_encode,
                                                     int64_t content_length,
                                                     uint64_t *written,
                                                     quarn_err_ctx *ctx);
/** As quarn_asn1_encode_list_content() of a list of ANY. */
QUARN_ASN1_API int quarn_asn1_encode_anylist_content(quarn_stream *s,
                                                     quarn_asn1_list *l,
                                                     int64_t content_length,
                                                     uint64_t *written,
                                                     quarn_err_ctx *ctx);
/**
 * Decodes the content of a list whose identifier and length the caller has read.
 *
 * @param form            that of the list: 1 primitive, which is refused, 0 constructed
 * @param element_class   tag class that each element must have
 * @param element_form    1, 0, or -1 for either
 * @param element_tag     tag number that each element must have
 */
QUARN_ASN1_API int quarn_asn1_decode_list_content(quarn_stream *s,
                                                  quarn_asn1_list **l,
                                                  int64_t element_type_id,
                                                  int form,
                                                  int64_t content_length,
                                                  uint32_t element_class,
                                                  int element_form,
                                                  uint64_t element_tag,
                                                  uint64_t *consumed,
                                                  quarn_err_ctx *ctx);
/** As quarn_asn1_decode_list_content(), with functions that decode and free an element. */
QUARN_ASN1_API int quarn_asn1_decode_list_content_ex(
    quarn_stream *s,
    quarn_asn1_list **l,
    quarn_asn1_decode_content_fn element_decode_content,
    quarn_asn1_free_fn element_free,
    int form,
    int64_t content_length,
    uint32_t element_class,
    int element_form,
    uint64_t element_tag,
    uint64_t *consumed,
    quarn_err_ctx *ctx);
/** As quarn_asn1_decode_list_content() of a list of ANY. */
QUARN_ASN1_API int quarn_asn1_decode_anylist_content(quarn_stream *s,
                                                     quarn_asn1_list **l,
                                                     int32_t form,
                                                     int64_t content_length,
                                                     uint64_t *consumed,
                                                     quarn_err_ctx *ctx);
/** As quarn_asn1_decode_anylist_content(); an empty list is refused. */
QUARN_ASN1_API int quarn_asn1_decode_anylist_1_content(quarn_stream *s,
                                                       quarn_asn1_list **l,
                                                       int32_t form,
                                                       int64_t content_length,
                                                       uint64_t *consumed,
                                                       quarn_err_ctx *ctx);
/** Puts the elements into the order of a DER SET OF (X.690, 11.6). On failure the list is
 * unchanged. */
QUARN_ASN1_API int quarn_asn1_list_sort_setof(quarn_asn1_list *l, int64_t element_type_id);
/** As quarn_asn1_list_sort_setof(), with a function that encodes an element. */
QUARN_ASN1_API int quarn_asn1_list_sort_setof_ex(quarn_asn1_list *l,
                                                 quarn_asn1_encode_fn element_encode);

#ifdef __cplusplus
}
#endif

#endif
