// This library, by its C interface.
#include "bench/typed/typed.h"
#include "quarn_asn1/types.h"

namespace bench {

namespace {

template <quarn_asn1_type_id type>
bool decode_and_free(const Octets &der) {
  void *value = nullptr;
  const auto count = static_cast<std::int64_t>(der.size());
  if (quarn_asn1_mem_decode(der.data(), count, type, &value) != count) return false;
  quarn_asn1_value_free(type, value);
  return true;
}

}  // namespace

}  // namespace bench
