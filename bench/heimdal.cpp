#include "bench/heimdal.h"
#include "bench/peers.h"

namespace bench {

bool header_heimdal(const std::uint8_t *octets, std::size_t count, Found &found) {
  Der_class tag_class{};
  Der_type type{};
  unsigned number = 0;
  std::size_t identifier_length = 0;
  std::size_t length = 0;
  std::size_t length_length = 0;
  if (der_get_tag(octets, count, &tag_class, &type, &number, &identifier_length) != 0 ||
      der_get_length(octets + identifier_length, count - identifier_length, &length,
                     &length_length) != 0) {
    return false;
  }
  found = {number, length, identifier_length + length_length, type == CONS};
  return true;
}

bool decode_heimdal(const Octets &der) {
  return decode_certificate(der.data(), der.size());
}

}  // namespace bench
