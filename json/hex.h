// Hexadecimal text straight between the octets of an encoding and the text of a document, so that
// large content is converted where it lies.
#ifndef QUARN_JSON_HEX_H
#define QUARN_JSON_HEX_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quarn::asn1::json {

// Two upper-case digits for each octet.
constexpr std::array<std::array<char, 2>, 256> make_hex_pairs() {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::array<std::array<char, 2>, 256> pairs{};
  for (std::size_t octet = 0; octet < pairs.size(); octet++) {
    pairs[octet] = {kDigits[octet >> 4], kDigits[octet & 15]};
  }
  return pairs;
}
inline constexpr auto kHexPairs = make_hex_pairs();

inline constexpr std::uint8_t kNoDigit = 0xFF;

// The value of each hexadecimal digit, of either case; kNoDigit for every other character.
constexpr std::array<std::uint8_t, 256> make_hex_values() {
  std::array<std::uint8_t, 256> values{};
  values.fill(kNoDigit);
  for (std::uint8_t i = 0; i < 10; i++) values[static_cast<std::size_t>('0' + i)] = i;
  for (std::uint8_t i = 10; i < 16; i++) {
    values[static_cast<std::size_t>('A' + i - 10)] = i;
    values[static_cast<std::size_t>('a' + i - 10)] = i;
  }
  return values;
}
inline constexpr auto kHexValues = make_hex_values();

// Writes 2 * count characters.
inline void write_hex(const std::uint8_t *octets, std::size_t count, char *text) {
  for (std::size_t i = 0; i < count; i++) {
    text[2 * i] = kHexPairs[octets[i]][0];
    text[2 * i + 1] = kHexPairs[octets[i]][1];
  }
}

// Writes half as many octets as the text, whose length is even, has characters. False when one of
// them is no digit.
inline bool read_hex(std::string_view text, std::uint8_t *octets) {
  std::uint8_t seen = 0;
  for (std::size_t i = 0; i < text.size(); i += 2) {
    const std::uint8_t high = kHexValues[static_cast<std::uint8_t>(text[i])];
    const std::uint8_t low = kHexValues[static_cast<std::uint8_t>(text[i + 1])];
    seen |= high | low;
    octets[i / 2] = static_cast<std::uint8_t>(high << 4 | low);
  }
  return seen <= 0x0F;
}

}  // namespace quarn::asn1::json

#endif
