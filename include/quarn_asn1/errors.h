/* Generated from core/messages.tsv by tools/generate.py; do not edit. */
/**
 * Error codes that are not tied to one type. The codes of a type are those of its registry row: see
 * quarn_asn1_type_describe(). quarn_igetASN1Error() has the message of every code; several messages
 * name another stage than the one that records them, so tell failures apart by their code.
 */
#ifndef QUARN_ASN1_ERRORS_H
#define QUARN_ASN1_ERRORS_H

#ifdef __cplusplus
extern "C" {
#endif

enum quarn_asn1_error {
  QUARN_ASN1_ERROR_TAG_CLASS = 0x10200, /**< the tag class is not 0, 0x40, 0x80 or 0xC0 */
  QUARN_ASN1_ERROR_TAG_NUMBER = 0x10201, /**< a tag number is negative, in a longer form than it needs, or of a form its type does not have */
  QUARN_ASN1_ERROR_TOO_LARGE = 0x10202, /**< a tag number or a length does not fit; lengths use this code too */
  QUARN_ASN1_ERROR_LENGTH = 0x10203, /**< a length is not one that this element can have */
  QUARN_ASN1_ERROR_END_OF_CONTENTS = 0x10205, /**< the end-of-contents octets are not 00 00 */
  QUARN_ASN1_ERROR_INDEFINITE = 0x10206, /**< a primitive element has the indefinite length */
  QUARN_ASN1_ERROR_UNUSED_BITS = 0x10207, /**< a BIT STRING has unused bits that it cannot have */
  QUARN_ASN1_ERROR_TIME_TYPE = 0x10208, /**< a Time is neither UTCTime nor GeneralizedTime, or not the one asked for */
  QUARN_ASN1_ERROR_ITEM = 0x1020a, /**< an element of another type stands where this one was expected */
  QUARN_ASN1_ERROR_ITEM_LENGTH = 0x1020b, /**< components and the length of what holds them do not agree */
  QUARN_ASN1_ERROR_SIZE = 0x1020c, /**< a list has fewer elements than it must */
  QUARN_ASN1_ERROR_FORM = 0x1026a, /**< a primitive encoding where a constructed one must stand, or the reverse */
  QUARN_ASN1_ERROR_TYPE = 0x1026b, /**< no such type id */
  QUARN_ASN1_ERROR_CANNOT_ENCODE = 0x1026c, /**< the type cannot be encoded this way */
  QUARN_ASN1_ERROR_CANNOT_DECODE = 0x1026d, /**< the type cannot be decoded this way */
  QUARN_ASN1_ERROR_TRAILING = 0x1027f, /**< octets follow the value */
  QUARN_ASN1_ERROR_NOT_MINIMAL = 0x102e3, /**< an INTEGER is longer than it need be; recorded, and accepted */
  QUARN_ASN1_ERROR_WRITE_IDENTIFIER = 0x102e4, /**< an identifier could not be written */
  QUARN_ASN1_ERROR_READ_IDENTIFIER = 0x102e5, /**< an identifier could not be read */
  QUARN_ASN1_ERROR_WRITE_LENGTH = 0x102e6, /**< a length could not be written */
  QUARN_ASN1_ERROR_READ_LENGTH = 0x102e7, /**< a length could not be read */
  QUARN_ASN1_ERROR_WRITE_END = 0x102e8, /**< an end-of-contents could not be written */
  QUARN_ASN1_ERROR_READ_END = 0x102e9, /**< an end-of-contents could not be read */
  QUARN_ASN1_ERROR_MEASURE = 0x102ea, /**< a length could not be computed */
  QUARN_ASN1_ERROR_OID_CONTENT = 0x102eb, /**< the content of an OBJECT IDENTIFIER or RELATIVE-OID is bad */
  QUARN_ASN1_ERROR_UTCTIME_TEXT = 0x102ec, /**< the text of a UTCTime is bad */
  QUARN_ASN1_ERROR_GENTIME_TEXT = 0x102ed /**< the text of a GeneralizedTime is bad */
};

#ifdef __cplusplus
}
#endif

#endif
