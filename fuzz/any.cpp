// Open types: what decodes encodes to the very octets it came from, and its content can be read as
// any universal type without harm.
#include "fuzz/fuzz.h"

using namespace quarn::fuzz;

namespace {

void read_as(quarn_asn1_any *any, std::int64_t type) {
  void *value = nullptr;
  quarn_asn1_any_toobject(any, type, &value, nullptr);
  quarn_asn1_value_free(type, value);
  value = nullptr;
  quarn_asn1_any_contenttoobject(any, type, &value, nullptr);
  quarn_asn1_value_free(type, value);
  value = nullptr;
  quarn_asn1_any_getobject(any, type, &value, nullptr);
  quarn_asn1_value_free(type, value);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const Exact input(data, size);
  void *value = nullptr;
  const std::int64_t consumed =
      quarn_asn1_mem_decode(input.data(), input.size(), QUARN_ASN1_ANY, &value);
  if (consumed < 0) return 0;
  auto *any = static_cast<quarn_asn1_any *>(value);
  const Blob encoding(quarn_asn1_mem_encode(QUARN_ASN1_ANY, any));
  must(encoding != nullptr && equal(*encoding, input.data(), consumed));
  for (std::int64_t type = QUARN_ASN1_BOOLEAN; type <= QUARN_ASN1_ANYSET_1; type++)
    read_as(any, type);
  read_as(any, QUARN_ASN1_RELATIVE_OID);
  quarn_asn1_octetstring *string = nullptr;
  if (quarn_asn1_any_decode_string(any, &string, nullptr) == 1) {
    quarn_asn1_value_free(QUARN_ASN1_OCTETSTRING, string);
  }
  std::uint8_t *content = nullptr;
  std::uint64_t count = 0;
  if (quarn_asn1_any_getcontent(any, &content, &count, nullptr) == 1) {
    must(count <= static_cast<std::uint64_t>(consumed));
  }
  quarn_free(content);
  quarn_asn1_any_free(any);
  return 0;
}
