/** Encodings as JSON documents, and back to the same octets. The format: docs/json.md. */
#ifndef QUARN_ASN1_JSON_H
#define QUARN_ASN1_JSON_H

#include "core.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Renders one encoding of any type, BER or DER, of any depth.
 *
 * The octets must hold exactly one element. Nothing is recorded.
 *
 * @return a new JSON value, freed with quarn_json_free(); null when the octets are no encoding,
 * when octets follow it, or when memory is short
 */
QUARN_ASN1_API quarn_json *quarn_asn1_tojson(const uint8_t *octets, int64_t length);

/**
 * The octets that a document describes, in a new blob freed with quarn_data_blob_free(); null when
 * it describes none or when memory is short. Nothing is recorded.
 */
QUARN_ASN1_API quarn_data_blob *quarn_asn1_encodejson(quarn_json *j);

/** As quarn_asn1_encodejson(), appending to a stream. On failure part of the octets may have been
 * written. */
QUARN_ASN1_API int quarn_asn1_encodejsoninstream(quarn_stream *s, quarn_json *j);

#ifdef __cplusplus
}
#endif

#endif
