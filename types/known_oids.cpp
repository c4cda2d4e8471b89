// Object identifiers that certificates, CRLs and messages are full of: values that exist already.
//
//     06 03 55 04 03      decoding finds the octets here, and hands out the one value of 2.5.4.3
//
// They are found by a table that the compiler fills, with a slot for two octets and the length.
#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <utility>

#include "types/oid.h"

namespace quarn::asn1 {

namespace {

constexpr std::size_t kMostOctets = 11;
constexpr std::size_t kRoom = 48;  // for octets and text

struct Known {
  quarn_asn1_oid value;
  std::array<char, kRoom> behind;  // what follows a value in its block
};

// Writes one subidentifier, the last octet of which has no top bit.
consteval std::size_t put(std::uint64_t number, std::array<char, kRoom> &out, std::size_t at) {
  int groups = 1;
  while (number >> (7 * groups) != 0) groups++;
  while (--groups > 0) out[at++] = static_cast<char>(0x80u | (number >> (7 * groups) & 0x7Fu));
  out[at++] = static_cast<char>(number & 0x7Fu);
  return at;
}

// Text that is wrong or too long does not compile.
consteval Known known(const char *text) {
  Known made{};
  std::uint64_t number = 0;
  std::uint64_t first = 0;  // 40 times the first arc, for the second
  std::size_t arcs = 0;
  std::size_t octets = 0;
  std::size_t length = 0;
  for (bool more = true; more; length++) {
    const char c = text[length];
    more = c != '\0';
    if (c >= '0' && c <= '9') {
      number = 10 * number + static_cast<std::uint64_t>(c - '0');
    } else if (++arcs == 1) {
      first = 40 * std::exchange(number, 0);
    } else {
      octets = put(std::exchange(first, 0) + std::exchange(number, 0), made.behind, octets);
    }
  }
  length--;
  for (std::size_t i = 0; i <= length; i++) made.behind[octets + i] = text[i];
  made.value = {static_cast<std::int64_t>(octets), static_cast<std::int64_t>(length)};
  return made;
}

constexpr Known kKnown[] = {
    // Attributes of names.
    known("2.5.4.3"),
    known("2.5.4.4"),
    known("2.5.4.5"),
    known("2.5.4.6"),
    known("2.5.4.7"),
    known("2.5.4.8"),
    known("2.5.4.9"),
    known("2.5.4.10"),
    known("2.5.4.11"),
    known("2.5.4.12"),
    known("2.5.4.13"),
    known("2.5.4.15"),
    known("2.5.4.17"),
    known("2.5.4.20"),
    known("2.5.4.41"),
    known("2.5.4.42"),
    known("2.5.4.43"),
    known("2.5.4.44"),
    known("2.5.4.46"),
    known("2.5.4.65"),
    known("2.5.4.97"),
    known("0.9.2342.19200300.100.1.1"),
    known("0.9.2342.19200300.100.1.25"),
    known("1.2.840.113549.1.9.1"),
    known("1.3.6.1.4.1.311.60.2.1.1"),
    known("1.3.6.1.4.1.311.60.2.1.2"),
    known("1.3.6.1.4.1.311.60.2.1.3"),
    // Keys and signatures: RSA, elliptic curves, SM2.
    known("1.2.840.113549.1.1.1"),
    known("1.2.840.113549.1.1.5"),
    known("1.2.840.113549.1.1.7"),
    known("1.2.840.113549.1.1.8"),
    known("1.2.840.113549.1.1.10"),
    known("1.2.840.113549.1.1.11"),
    known("1.2.840.113549.1.1.12"),
    known("1.2.840.113549.1.1.13"),
    known("1.2.840.113549.1.1.14"),
    known("1.2.840.10045.2.1"),
    known("1.2.840.10045.3.1.7"),
    known("1.3.132.0.34"),
    known("1.3.132.0.35"),
    known("1.2.840.10045.4.1"),
    known("1.2.840.10045.4.3.1"),
    known("1.2.840.10045.4.3.2"),
    known("1.2.840.10045.4.3.3"),
    known("1.2.840.10045.4.3.4"),
    known("1.3.101.110"),
    known("1.3.101.111"),
    known("1.3.101.112"),
    known("1.3.101.113"),
    known("1.2.840.10040.4.1"),
    known("1.2.840.10040.4.3"),
    known("1.2.156.10197.1.301"),
    known("1.2.156.10197.1.501"),
    // Digests and ciphers.
    known("1.3.14.3.2.26"),
    known("2.16.840.1.101.3.4.1.2"),
    known("2.16.840.1.101.3.4.1.42"),
    known("2.16.840.1.101.3.4.2.1"),
    known("2.16.840.1.101.3.4.2.2"),
    known("2.16.840.1.101.3.4.2.3"),
    known("2.16.840.1.101.3.4.2.4"),
    known("2.16.840.1.101.3.4.2.8"),
    known("2.16.840.1.101.3.4.2.9"),
    known("2.16.840.1.101.3.4.2.10"),
    known("1.2.156.10197.1.401"),
    // Extensions.
    known("2.5.29.9"),
    known("2.5.29.14"),
    known("2.5.29.15"),
    known("2.5.29.16"),
    known("2.5.29.17"),
    known("2.5.29.18"),
    known("2.5.29.19"),
    known("2.5.29.20"),
    known("2.5.29.21"),
    known("2.5.29.23"),
    known("2.5.29.24"),
    known("2.5.29.27"),
    known("2.5.29.28"),
    known("2.5.29.29"),
    known("2.5.29.30"),
    known("2.5.29.31"),
    known("2.5.29.32"),
    known("2.5.29.33"),
    known("2.5.29.35"),
    known("2.5.29.36"),
    known("2.5.29.37"),
    known("2.5.29.46"),
    known("2.5.29.54"),
    known("2.5.29.55"),
    known("2.5.29.56"),
    known("1.3.6.1.5.5.7.1.1"),
    known("1.3.6.1.5.5.7.1.3"),
    known("1.3.6.1.5.5.7.1.11"),
    known("1.3.6.1.5.5.7.1.24"),
    known("1.3.6.1.4.1.11129.2.4.2"),
    known("2.16.840.1.113730.1.1"),
    // What they hold: policies and their qualifiers, purposes of keys, ways of access.
    known("2.5.29.32.0"),
    known("2.23.140.1.1"),
    known("2.23.140.1.2.1"),
    known("2.23.140.1.2.2"),
    known("2.23.140.1.2.3"),
    known("1.3.6.1.5.5.7.2.1"),
    known("1.3.6.1.5.5.7.2.2"),
    known("2.5.29.37.0"),
    known("1.3.6.1.5.5.7.3.1"),
    known("1.3.6.1.5.5.7.3.2"),
    known("1.3.6.1.5.5.7.3.3"),
    known("1.3.6.1.5.5.7.3.4"),
    known("1.3.6.1.5.5.7.3.8"),
    known("1.3.6.1.5.5.7.3.9"),
    known("1.3.6.1.5.5.7.3.17"),
    known("1.3.6.1.4.1.311.10.3.4"),
    known("1.3.6.1.4.1.311.10.3.12"),
    known("1.3.6.1.4.1.311.20.2.2"),
    known("1.3.6.1.4.1.311.20.2.3"),
    known("1.3.6.1.5.5.7.48.1"),
    known("1.3.6.1.5.5.7.48.2"),
    known("1.3.6.1.5.5.7.48.3"),
    known("1.3.6.1.5.5.7.48.5"),
    // Requests and messages.
    known("1.2.840.113549.1.7.1"),
    known("1.2.840.113549.1.7.2"),
    known("1.2.840.113549.1.7.3"),
    known("1.2.840.113549.1.7.5"),
    known("1.2.840.113549.1.7.6"),
    known("1.2.840.113549.1.9.3"),
    known("1.2.840.113549.1.9.4"),
    known("1.2.840.113549.1.9.5"),
    known("1.2.840.113549.1.9.6"),
    known("1.2.840.113549.1.9.7"),
    known("1.2.840.113549.1.9.14"),
    known("1.2.840.113549.1.9.15"),
    known("1.2.840.113549.1.9.20"),
    known("1.2.840.113549.1.9.21"),
    known("1.2.840.113549.1.9.16.1.4"),
    known("1.2.840.113549.1.9.16.2.12"),
    known("1.2.840.113549.1.9.16.2.14"),
    known("1.2.840.113549.1.9.16.2.47"),
};

// Slots of an open table, at most half of which are taken: index plus one, or 0.
constexpr std::size_t kSlots = 512;

constexpr std::size_t slot_of(std::uint8_t last_but_one, std::uint8_t last, std::size_t count) {
  return (last + std::size_t{37} * last_but_one + std::size_t{101} * count) % kSlots;
}

consteval std::array<std::uint8_t, kSlots> fill() {
  static_assert(2 * std::size(kKnown) <= kSlots && std::size(kKnown) < 256);
  std::array<std::uint8_t, kSlots> slots{};
  for (std::size_t i = 0; i < std::size(kKnown); i++) {
    const auto count = static_cast<std::size_t>(kKnown[i].value.length);
    const auto octet = [&](std::size_t at) {
      return static_cast<std::uint8_t>(kKnown[i].behind[at]);
    };
    std::size_t slot = slot_of(octet(count - 2), octet(count - 1), count);
    while (slots[slot] != 0) slot = (slot + 1) % kSlots;
    slots[slot] = static_cast<std::uint8_t>(i + 1);
  }
  return slots;
}

constexpr std::array<std::uint8_t, kSlots> kTable = fill();

}  // namespace

const quarn_asn1_oid *known_oid(const std::uint8_t *octets, std::size_t count) {
  if (count < 3 || count > kMostOctets) return nullptr;
  std::size_t slot = slot_of(octets[count - 2], octets[count - 1], count);
  for (; kTable[slot] != 0; slot = (slot + 1) % kSlots) {
    const Known &one = kKnown[kTable[slot] - 1];
    if (one.value.length == static_cast<std::int64_t>(count) &&
        std::memcmp(one.behind.data(), octets, count) == 0) {
      return &one.value;
    }
  }
  return nullptr;
}

bool is_known_oid(const void *value) {
  return std::greater_equal<>()(value, static_cast<const void *>(std::begin(kKnown))) &&
         std::less<>()(value, static_cast<const void *>(std::end(kKnown)));
}

}  // namespace quarn::asn1
