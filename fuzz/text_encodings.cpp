// Hexadecimal, base64 and PEM text: the input is read as each, and written as each and read back.
#include "fuzz/fuzz.h"

using namespace quarn::fuzz;

namespace {

struct Decoded {
  Buffer<std::uint8_t> octets;
  std::int64_t count = 0;
};

void same(const Decoded &decoded, const Exact &input) {
  must(decoded.count == input.size());
  must(decoded.count == 0 || std::memcmp(decoded.octets.get(), input.data(),
                                         static_cast<std::size_t>(decoded.count)) == 0);
}

// encode(&text, &length) and decode(text, length, &octets, &count) undo each other.
template <typename Encode, typename Decode>
void round_trip(const Exact &input, Encode encode, Decode decode) {
  char *text = nullptr;
  std::int64_t length = 0;
  must(encode(&text, &length) == 1);
  const Buffer<char> owner(text);
  must(text[length] == '\0');
  std::uint8_t *octets = nullptr;
  Decoded decoded;
  must(decode(text, length, &octets, &decoded.count) == 1);
  decoded.octets.reset(octets);
  same(decoded, input);
}

void write_and_read(const Exact &input) {
  round_trip(
      input,
      [&](char **text, std::int64_t *length) {
        return quarn_hexencode(1, input.data(), input.size(), text, length);
      },
      quarn_hexdecode);
  for (const int mode : {1, 2}) {
    round_trip(
        input,
        [&](char **text, std::int64_t *length) {
          return quarn_base64encode(mode == 1 ? 0 : 64, input.data(), input.size(), text, length);
        },
        [mode](const char *text, std::int64_t length, std::uint8_t **octets, std::int64_t *count) {
          return quarn_base64decode(mode, text, length, octets, count, nullptr);
        });
  }
  round_trip(
      input,
      [&](char **text, std::int64_t *length) {
        return quarn_pemencode("X509 CRL", input.data(), input.size(), text, length);
      },
      [](const char *text, std::int64_t length, std::uint8_t **octets, std::int64_t *count) {
        return quarn_pemdecode("X509 CRL", text, length, octets, count);
      });
}

void read(const Exact &input) {
  const auto *text = reinterpret_cast<const char *>(input.data());
  std::uint8_t *octets = nullptr;
  std::int64_t count = 0;
  quarn_hexdecode(text, input.size(), &octets, &count);
  quarn_free(octets);
  for (const int mode : {1, 2}) {
    octets = nullptr;
    quarn_base64decode(mode, text, input.size(), &octets, &count, nullptr);
    quarn_free(octets);
  }
  std::int64_t offset = 0;
  for (;;) {
    quarn_pem_block block{};
    const std::int64_t before = offset;
    const int found = quarn_pemnext(text, input.size(), &offset, &block, nullptr);
    quarn_free(block.octets);
    if (found == -1) break;
    must(offset > before && offset <= input.size());
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const Exact input(data, size);
  read(input);
  write_and_read(input);
  return 0;
}
