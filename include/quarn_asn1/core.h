/** The codec core: dispatch by type id, identifiers and lengths, messages. Conventions:
 * quarn_asn1.h. */
#ifndef QUARN_ASN1_CORE_H
#define QUARN_ASN1_CORE_H

#include "../quarn_util.h"
#include "errors.h"
#include "ids.h"

#if defined(__GNUC__)
#define QUARN_ASN1_API __attribute__((visibility("default")))
#else
#define QUARN_ASN1_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** Results and lengths that stand for something else than success or a count. */
enum quarn_asn1_result {
  QUARN_ASN1_INDEFINITE =
      -1, /**< a length: the content is, or will be, written in indefinite form */
  QUARN_ASN1_NO_LENGTH = -2, /**< a length: the value is null or cannot be encoded */
  QUARN_ASN1_MORE = -100     /**< a result: more octets are needed to go on */
};

/* ---- Whole values by type id */

/**
 * Encodes one value.
 *
 * Values that were put into one another's lists deeper than quarn_get_recursive_level() end with
 * the result QUARN_ERROR_RECURSION, which is not recorded; they have no length.
 *
 * @param s        where to write; what was written before a failure stays there
 * @param type_id  a type id of quarn_asn1/ids.h
 * @param value    a value of that type; reading positions and caches inside it may change. Null is
 *                 accepted for NULL and end-of-contents only.
 * @param written  receives the octets written; may be null
 * @param ctx      receives a record from each layer that failed, innermost first; may be null
 */
QUARN_ASN1_API int quarn_asn1_encode(
    quarn_stream *s, int64_t type_id, void *value, uint64_t *written, quarn_err_ctx *ctx);

/**
 * Decodes one value.
 *
 * Reads exactly one encoding, BER or DER, and leaves the stream at the octet after it. A memory
 * stream is read in place. Values nested deeper than quarn_get_recursive_level() end with the
 * result QUARN_ERROR_RECURSION, which is not recorded.
 *
 * @param s         where to read
 * @param type_id   a type id of quarn_asn1/ids.h
 * @param value     receives the new value, to be freed with quarn_asn1_value_free() under the same
 *                  type id; null after a failure
 * @param consumed  receives the octets read; may be null
 * @param ctx       receives a record from each layer that failed, innermost first; may be null. An
 *                  INTEGER that is longer than it need be leaves the record 0x102e3 on success.
 */
QUARN_ASN1_API int quarn_asn1_decode(
    quarn_stream *s, int64_t type_id, void **value, uint64_t *consumed, quarn_err_ctx *ctx);

/** Octets of the whole encoding: a count, QUARN_ASN1_INDEFINITE, or QUARN_ASN1_NO_LENGTH. */
QUARN_ASN1_API int64_t quarn_asn1_length(int64_t type_id, const void *value);

/** Octets of the content without identifier and length; otherwise as quarn_asn1_length(). */
QUARN_ASN1_API int64_t quarn_asn1_content_length(int64_t type_id, const void *value);

/**
 * Encodes the content of a value without identifier and length, for components under a tag of their
 * own. content_length is what quarn_asn1_content_length() gives for the value; with
 * QUARN_ASN1_INDEFINITE the end-of-contents octets are written too.
 */
QUARN_ASN1_API int quarn_asn1_encode_content(quarn_stream *s,
                                             int64_t type_id,
                                             void *value,
                                             int64_t content_length,
                                             uint64_t *written,
                                             quarn_err_ctx *ctx);

/**
 * Decodes the content of a value whose identifier and length the caller has read.
 *
 * @param form            1 when the identifier was primitive, 0 when it was constructed
 * @param content_length  the length, or QUARN_ASN1_INDEFINITE: the end-of-contents is then consumed
 */
QUARN_ASN1_API int quarn_asn1_decode_content(quarn_stream *s,
                                             int64_t type_id,
                                             void **value,
                                             int form,
                                             int64_t content_length,
                                             uint64_t *consumed,
                                             quarn_err_ctx *ctx);

/** Frees a value of a type. Null values and unknown ids are ignored. */
QUARN_ASN1_API void quarn_asn1_value_free(int64_t type_id, void *value);

/**
 * Forgets the octets that a value and all values in it keep, so that the next encoding is made
 * anew.
 *
 * Certificates, CRLs, certification requests, attribute certificates and Names encode to the octets
 * that they were decoded from or last encoded to. Forgetting them makes DER of one that came in
 * BER: definite and minimal lengths, strings in one piece, no component that holds its default. It
 * also lets changes to parts of the value show. A signature over the octets forgotten need not
 * verify over the new ones unless these are the same, as those of DER are.
 *
 * Content stays as it is: ANY, what strings hold, superfluous octets of an INTEGER, the order of a
 * SET OF. Null values and unknown ids are ignored. Nothing is allocated and nothing can fail.
 */
QUARN_ASN1_API void quarn_asn1_forget_octets(int64_t type_id, void *value);

/** The encoding of a value in a new blob, freed with quarn_data_blob_free(). Nothing is recorded.
 */
QUARN_ASN1_API quarn_data_blob *quarn_asn1_mem_encode(int64_t type_id, void *value);

/**
 * Decodes the first value of some octets.
 *
 * @return the number of octets that the value took, which may be fewer than count; -1 on failure
 */
QUARN_ASN1_API int64_t quarn_asn1_mem_decode(const uint8_t *octets,
                                             int64_t count,
                                             int64_t type_id,
                                             void **value);

/* ---- What is known of a type */

/** One row of the registry. */
typedef struct quarn_asn1_type_description {
  const char *name;    /**< as in quarn_asn1/ids.h, lower case; static */
  uint64_t tag_number; /**< 0 also where the type has no tag of its own */
  uint32_t tag_class;  /**< 0 universal, 0x40 application */
  int32_t form;        /**< 1 primitive, 0 constructed, -1 either */
  int error_code;      /**< recorded when encoding fails; decoding records the next code */
  int supported;       /**< 1 when values of the type can be decoded: of this version, always */
} quarn_asn1_type_description;

/** Describes a type id. */
QUARN_ASN1_API int quarn_asn1_type_describe(int64_t type_id,
                                            quarn_asn1_type_description *description);
/** The id of a type by its name, or -1. */
QUARN_ASN1_API int64_t quarn_asn1_type_find(const char *name);

/* ---- Identifier, length, end-of-contents */

/** Writes identifier octets. form: not 0 primitive, 0 constructed. */
QUARN_ASN1_API int quarn_asn1_encode_identifier(quarn_stream *s,
                                                uint32_t tag_class,
                                                int form,
                                                int64_t tag_number,
                                                uint64_t *octets,
                                                quarn_err_ctx *ctx);

/**
 * Reads identifier octets. form receives 1 for primitive, 0 for constructed; only octets may be
 * null. Class and form are stored as soon as the first octet is read, the number on success.
 */
QUARN_ASN1_API int quarn_asn1_decode_identifier(quarn_stream *s,
                                                uint32_t *tag_class,
                                                int *form,
                                                uint64_t *tag_number,
                                                uint64_t *octets,
                                                quarn_err_ctx *ctx);

/** Writes length octets, as few as possible; 80 for QUARN_ASN1_INDEFINITE. */
QUARN_ASN1_API int quarn_asn1_encode_length(quarn_stream *s,
                                            int64_t length,
                                            uint64_t *octets,
                                            quarn_err_ctx *ctx);

/** Reads length octets; QUARN_ASN1_INDEFINITE for 80. Leading zero octets are accepted. */
QUARN_ASN1_API int quarn_asn1_decode_length(quarn_stream *s,
                                            int64_t *length,
                                            uint64_t *octets,
                                            quarn_err_ctx *ctx);

/** Number of identifier octets of a tag number; QUARN_ASN1_NO_LENGTH for a negative one. */
QUARN_ASN1_API int64_t quarn_asn1_identifier_length(int64_t tag_number);

/** Number of length octets of a length; QUARN_ASN1_NO_LENGTH below QUARN_ASN1_INDEFINITE. */
QUARN_ASN1_API int64_t quarn_asn1_length_length(int64_t length);

/** Reads the length octet of an end-of-contents whose identifier octet has been read; it must be
 * 00. */
QUARN_ASN1_API int quarn_asn1_decode_eoc_length(quarn_stream *s,
                                                uint64_t *octets,
                                                quarn_err_ctx *ctx);

/** Identifier and length octets as found. */
typedef struct quarn_asn1_header {
  uint64_t tag_number;
  int64_t content_length; /**< QUARN_ASN1_INDEFINITE for 80 */
  uint64_t header_length; /**< octets of identifier and length together */
  uint32_t tag_class;     /**< 0, 0x40, 0x80 or 0xC0 */
  int form;               /**< 1 primitive, 0 constructed */
} quarn_asn1_header;

/**
 * Reads identifier and length of the element that starts at octets, without a stream: the quick way
 * to walk encodings. Whether the content is there too is not looked at.
 *
 * @param count   octets there are
 * @param header  receives what was found; untouched unless the result is 1
 * @return 1; QUARN_ASN1_MORE when the header goes on past the octets; 0 when it is bad
 */
QUARN_ASN1_API int quarn_asn1_mem_header(const uint8_t *octets,
                                         int64_t count,
                                         quarn_asn1_header *header);

/* ---- Errors and version */

/** Records the encode code of a type under the caller's file and line; 0x1026b for an unknown id.
 */
QUARN_ASN1_API int quarn_asn1_encode_puterr(quarn_err_ctx *ctx,
                                            int64_t type_id,
                                            const char *file,
                                            int line);
/** Records the decode code of a type; as quarn_asn1_encode_puterr(). */
QUARN_ASN1_API int quarn_asn1_decode_puterr(quarn_err_ctx *ctx,
                                            int64_t type_id,
                                            const char *file,
                                            int line);
/** Message of a code from 0x10200 to 0x10576; an empty string for any other, never null. Static. */
QUARN_ASN1_API const char *quarn_igetASN1Error(int code);

/** Name and version of the library. Static. */
QUARN_ASN1_API const char *quarn_asn1_version(void);

#ifdef __cplusplus
}
#endif

#endif
