/**
 * Messages of any size. Conventions: quarn_asn1.h.
 *
 * A message is decoded apart from its content, which goes to a stream of the caller's or stays
 * where it is; the content is read again, in pieces, from where it lies; and a signed message is
 * written around content that comes in pieces. What is held does not depend on how large the
 * content is.
 */
#ifndef QUARN_ASN1_MESSAGE_H
#define QUARN_ASN1_MESSAGE_H

#include "cms.h"
#include "core.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Decoding */

/**
 * Where a message had its content. All three are -1 for a message without any.
 *
 *     A0 80  24 80 04 01 41 04 01 42 00 00  00 00
 *            ^ offset                       ^ end      length is 2
 */
typedef struct quarn_asn1_content_place {
  int64_t offset; /**< octets before the element that holds the content, counted from where the
                       stream was; inside an explicit tag, but with an implicit one */
  int64_t end;    /**< octets up to the end of that element, its end-of-contents included */
  int64_t length; /**< octets of content: of an OCTET STRING those of all its segments, of another
                       element those between its header and its end */
} quarn_asn1_content_place;

/**
 * Decodes a message as quarn_asn1_decode() does, but for its content, which the value does not
 * hold. The value is then that of a detached message: it has no content, and encodes without.
 *
 * What is content: of a ContentInfo, and of a DigestedData, either kind of SignedData, a PFX, an
 * ArchiveTimeStamp and an Authenticode TimeStampRequest, which hold one, its content; of an
 * EncapsulatedContentInfo and an AuthenticatedData the eContent; of an EncryptedContentInfo, an
 * EncryptedData, an EnvelopedData and a SignedAndEnvelopedData the encryptedContent. Other types
 * are refused with QUARN_ERROR_ARGUMENT.
 *
 * Unlike quarn_asn1_decode(), which takes any element for the content of a ContentInfo, this
 * refuses an OCTET STRING in segments that are not right.
 *
 * @param content   receives the octets of the content as they arrive, the segments of an OCTET
 *                  STRING joined; what was written before a failure stays there. Null passes over
 *                  the content: a stream that can seek is moved on, others are read. Not the
 *                  stream that is read.
 * @param value     receives the new value, null on failure
 * @param place     receives where the content was; may be null
 * @param consumed  receives the octets read; may be null
 */
QUARN_ASN1_API int quarn_asn1_decode_message(quarn_stream *stream,
                                             uint32_t type_id,
                                             quarn_stream *content,
                                             void **value,
                                             quarn_asn1_content_place *place,
                                             uint64_t *consumed,
                                             quarn_err_ctx *ctx);

/** quarn_asn1_decode_pkcs7signeddata() apart from the content, as quarn_asn1_decode_message() does
 * it. The places that the value tells are those of the message with its content. */
QUARN_ASN1_API int quarn_asn1_decode_pkcs7signeddata_ex(quarn_stream *stream,
                                                        quarn_stream *content,
                                                        quarn_pkcs7signeddata **message,
                                                        quarn_asn1_content_place *place,
                                                        uint64_t *consumed,
                                                        quarn_err_ctx *ctx);

/* ---- Reading content where it lies */

/**
 * A new stream of the content of the element that begins at an offset of a source: of an OCTET
 * STRING the octets of its segments, joined, of another element those between its header and its
 * end. An element [0] is taken for an OCTET STRING under an implicit tag, as encryptedContent is.
 *
 * It is read once, from start to end, and has no length. An element that is not right, or comes to
 * its end early, is a failure of the read that finds it. Freed with quarn_stream_free().
 *
 * @param source  a stream that can seek, which must outlive the new one; each read moves it
 * @param offset  from the start of source; quarn_asn1_content_place tells it of a message there
 * @return null, with a record, when no element begins there
 */
QUARN_ASN1_API quarn_stream *quarn_asn1_contentstream_new(quarn_stream *source,
                                                          uint64_t offset,
                                                          quarn_err_ctx *ctx);

/* ---- Writing */

/**
 * Begins a signed message whose content comes in pieces: writes what stands before the content, in
 * indefinite lengths. Any number of quarn_asn1_encode_octetstring_update() follows, each of which
 * writes a piece, and then quarn_asn1_encode_signeddata_end().
 *
 * @param message  gives version, digest algorithms and type of the content; content that it may
 *                 have is not written
 * @param form     as of quarn_pkcs7signeddata_gettype(): 0 for a ContentInfo, 2 for one of SM2, 1
 *                 for a SignedData alone; another one is refused with QUARN_ERROR_ARGUMENT
 */
QUARN_ASN1_API int quarn_asn1_encode_signeddata_init(quarn_stream *stream,
                                                     const quarn_pkcs7signeddata *message,
                                                     int32_t form,
                                                     quarn_err_ctx *ctx);

/**
 * Ends a signed message: writes what stands behind the content.
 *
 * @param message  gives certificates, revocation lists and signer infos; it may be another one than
 *                 that which the message was begun with, as signatures are made last
 * @param form     that which the message was begun with
 */
QUARN_ASN1_API int quarn_asn1_encode_signeddata_end(quarn_stream *stream,
                                                    const quarn_pkcs7signeddata *message,
                                                    int32_t form,
                                                    quarn_err_ctx *ctx);

#ifdef __cplusplus
}
#endif

#endif
