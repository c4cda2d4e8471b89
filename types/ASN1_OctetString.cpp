#include "types/codecs.h"
#include "types/string.h"

namespace quarn::asn1 {

const SegmentRules kOctetRules{{"QUARN_ASN1_OctetString"}, 4, false, false, 0x10219, 0,
                               QUARN_ASN1_ERROR_READ_END,  0};

const Codec kOctetstringCodec = {
    free_nothing,          no_length,     no_length,    cannot_encode_content,
    cannot_decode_content, cannot_encode, cannot_decode};
const Codec kCharacterstringCodec = {
    free_nothing,          no_length,     no_length,    cannot_encode_content,
    cannot_decode_content, cannot_encode, cannot_decode};
const Codec kStringCodec = {
    free_nothing,          no_length,     no_length,    cannot_encode_content,
    cannot_decode_content, cannot_encode, cannot_decode};
const Codec kOctetstringContentCodec = {
    free_nothing,          no_length,     no_length,    cannot_encode_content,
    cannot_decode_content, cannot_encode, cannot_decode};

}  // namespace quarn::asn1
