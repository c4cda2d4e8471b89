// Inputs that no tool makes, or not of the size that is wanted.
#include <array>

#include "bench/typed/typed.h"

namespace bench {

namespace {

void append(Octets &all, const Octets &more) {
  all.insert(all.end(), more.begin(), more.end());
}

Octets joined(std::initializer_list<Octets> parts) {
  Octets all;
  for (const Octets &part : parts) append(all, part);
  return all;
}

Octets text(std::uint8_t identifier, const std::string &content) {
  return element(identifier, Octets(content.begin(), content.end()));
}

Octets attribute(std::uint8_t last_of_type, const std::string &value) {
  return element(0x30, joined({element(0x06, {0x55, 0x04, last_of_type}), text(0x0C, value)}));
}

Octets extension(const Octets &type, const Octets &value) {
  return element(0x30, joined({element(0x06, type), element(0x04, value)}));
}

// 15 octets, the first of which keeps the number positive and without leading zeros.
Octets serial_number(std::size_t index) {
  return element(0x02, joined({{0x5A}, random_octets(14, index)}));
}

Octets revoked(std::size_t index, bool extensions) {
  const auto reason = static_cast<std::uint8_t>(1 + index % 5);
  Octets entry = joined({serial_number(index), text(0x17, "240229235959Z")});
  if (!extensions || index % 2 != 0) return element(0x30, entry);
  Octets content = extension({0x55, 0x1D, 0x15}, element(0x0A, {reason}));
  if (index % 4 == 0) {
    append(content, extension({0x55, 0x1D, 0x18}, text(0x18, "20240131120000Z")));
  }
  append(entry, element(0x30, content));
  return element(0x30, entry);
}

}  // namespace

Octets revocation_list(std::size_t entries, bool extensions) {
  const Octets algorithm =
      element(0x30, joined({element(0x06, {0x2A, 0x86, 0x48, 0x86, 0xF7, 0x0D, 0x01, 0x01, 0x0B}),
                            element(0x05, {})}));
  const Octets issuer =
      element(0x30, joined({element(0x31, attribute(10, "Example Trust Services")),
                            element(0x31, attribute(3, "Example Issuing CA 1"))}));
  Octets content;
  for (std::size_t i = 0; i < entries; i++) append(content, revoked(i, extensions));
  const Octets number = extension({0x55, 0x1D, 0x14}, element(0x02, {0x12, 0x34}));
  const Octets body =
      element(0x30, joined({element(0x02, {0x01}), algorithm, issuer, text(0x17, "240301000000Z"),
                            text(0x17, "240308000000Z"), element(0x30, content),
                            element(0xA0, element(0x30, number))}));
  Octets signature(257, 0x5A);
  signature[0] = 0;
  return element(0x30, joined({body, algorithm, element(0x03, signature)}));
}

Octets name_to_sort() {
  constexpr std::array<std::uint8_t, 8> kFalling = {17, 12, 11, 10, 8, 7, 5, 3};
  Octets content;
  for (const std::uint8_t type : kFalling) append(content, attribute(type, "Example"));
  return element(0x30, element(0x31, content));
}

}  // namespace bench
