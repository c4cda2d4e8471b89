// Values of every type: the first two octets name the type id, the rest is the encoding. What
// decodes encodes, and that decodes and encodes to the same, also when no octets are kept; nothing
// is missing inside; memory and one-octet streams agree.
#include "fuzz/fuzz.h"
#include "tests/support/components.h"

using namespace quarn::fuzz;

namespace {

struct Source {
  const std::uint8_t *next;
  std::int64_t left;
};

std::int64_t read_one(void *user, void *buffer, std::int64_t count) {
  auto *source = static_cast<Source *>(user);
  if (source->left == 0 || count == 0) return 0;
  *static_cast<std::uint8_t *>(buffer) = *source->next++;
  source->left--;
  return 1;
}

// Decodes from a stream that gives one octet at a time; the result is that from memory.
void decode_slowly(std::int64_t type, const Exact &input, std::int64_t expected) {
  Source source{input.data(), input.size()};
  const quarn_stream_callbacks callbacks{read_one, nullptr, nullptr, nullptr, nullptr};
  const Stream stream(quarn_stream_new_callback(&callbacks, &source, nullptr));
  void *value = nullptr;
  std::uint64_t consumed = 0;
  const int result = quarn_asn1_decode(stream.get(), type, &value, &consumed, nullptr);
  must((result == 1) == (expected >= 0));
  if (result == 1) must(static_cast<std::int64_t>(consumed) == expected);
  quarn_asn1_value_free(type, value);
}

// Encodes a value, and what that decodes to gives the same.
void encode_and_back(std::int64_t type, void *value) {
  const std::int64_t length = quarn_asn1_length(type, value);
  const Blob encoding(quarn_asn1_mem_encode(type, value));
  if (encoding == nullptr) return;
  if (length >= 0) must(encoding->length == length);
  void *again = nullptr;
  must(quarn_asn1_mem_decode(encoding->data, encoding->length, type, &again) == encoding->length);
  const Blob same(quarn_asn1_mem_encode(type, again));
  must(same != nullptr && equal(*same, encoding->data, encoding->length));
  quarn_asn1_value_free(type, again);
}

void check_value(std::int64_t type, void *value) {
  must(quarn::test::is_whole(type, value));
  encode_and_back(type, value);
  quarn_asn1_value_free(type, quarn_asn1_dupobject(type, value, nullptr));
  quarn_asn1_forget_octets(type, value);
  encode_and_back(type, value);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  if (size < 3) return 0;
  const std::int64_t type = (data[0] << 8 | data[1]) % QUARN_ASN1_TYPE_COUNT;
  if (type == QUARN_ASN1_EOC) return 0;
  const Exact input(data + 2, size - 2);
  void *value = nullptr;
  const std::int64_t consumed = quarn_asn1_mem_decode(input.data(), input.size(), type, &value);
  must(consumed <= input.size());
  must(consumed >= 0 || value == nullptr);
  decode_slowly(type, input, consumed);
  if (consumed >= 0) check_value(type, value);
  quarn_asn1_value_free(type, value);
  return 0;
}
