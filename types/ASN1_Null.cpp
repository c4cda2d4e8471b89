#include "types/codecs.h"

namespace quarn::asn1 {

const Codec kNullCodec = {free_nothing,          no_length,     no_length,    cannot_encode_content,
                          cannot_decode_content, cannot_encode, cannot_decode};
const Codec kNullContentCodec = {
    free_nothing,          no_length,     no_length,    cannot_encode_content,
    cannot_decode_content, cannot_encode, cannot_decode};
Status encode_null_content(const Type &type, Writer &out, void *value, std::int64_t length);
Status encode_null_content(const Type &type, Writer &out, void *value, std::int64_t length) {
  return cannot_encode_content(type, out, value, length);
}

}  // namespace quarn::asn1
