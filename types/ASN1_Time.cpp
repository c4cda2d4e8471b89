#include "types/codecs.h"

namespace quarn::asn1 {

const Codec kTimeCodec = {free_nothing,          no_length,     no_length,    cannot_encode_content,
                          cannot_decode_content, cannot_encode, cannot_decode};
const Codec kUtctimeCodec = {
    free_nothing,          no_length,     no_length,    cannot_encode_content,
    cannot_decode_content, cannot_encode, cannot_decode};
const Codec kGentimeCodec = {
    free_nothing,          no_length,     no_length,    cannot_encode_content,
    cannot_decode_content, cannot_encode, cannot_decode};

}  // namespace quarn::asn1
