#include <libtasn1.h>

#include "bench/peers.h"

namespace bench {

bool header_libtasn1(const std::uint8_t *octets, std::size_t count, Found &found) {
  unsigned char tag_class = 0;
  int identifier_length = 0;
  int length_length = 0;
  unsigned long number = 0;
  const int left = static_cast<int>(count);
  if (asn1_get_tag_der(octets, left, &tag_class, &identifier_length, &number) != ASN1_SUCCESS) {
    return false;
  }
  const long length =
      asn1_get_length_der(octets + identifier_length, left - identifier_length, &length_length);
  if (length < 0) return false;
  found = {number, static_cast<std::size_t>(length),
           static_cast<std::size_t>(identifier_length + length_length),
           (tag_class & ASN1_CLASS_STRUCTURED) != 0};
  return true;
}

}  // namespace bench
