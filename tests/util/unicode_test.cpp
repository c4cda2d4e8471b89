#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "quarn_util.h"
#include "tests/support/allocation.h"

namespace quarn::test {
namespace {

using Octets = std::vector<uint8_t>;
using UString = std::unique_ptr<quarn_ustring, decltype(&quarn_ustring_free)>;

template <typename Make>
UString make(Make function, const Octets &octets) {
  return {function(octets.data(), static_cast<int64_t>(octets.size())), quarn_ustring_free};
}

// The octets that a conversion gives; {0xff} when it fails.
template <typename Convert>
Octets convert(Convert function, const UString &u) {
  uint8_t *octets = nullptr;
  int64_t count = 0;
  if (function(u.get(), &octets, &count) != 1) return {0xff};
  Octets result(octets, octets + count);
  quarn_free(octets);
  return result;
}

// UTF-8 by arithmetic, as a definition of it: bits to octets, no tables of ranges.
Octets utf8_of(uint32_t c) {
  auto tail = [c](int shift) { return static_cast<uint8_t>(128 + (c >> shift) % 64); };
  if (c < 128) return {static_cast<uint8_t>(c)};
  if (c < 2048) return {static_cast<uint8_t>(192 + c / 64), tail(0)};
  if (c < 65536) return {static_cast<uint8_t>(224 + c / 4096), tail(6), tail(0)};
  return {static_cast<uint8_t>(240 + c / 262144), tail(12), tail(6), tail(0)};
}

TEST(Unicode, every_scalar_value_passes_through_all_encodings_and_nothing_else_does) {
  for (uint32_t c = 0; c < 0x110800; c++) {
    const Octets utf8 = utf8_of(c);
    const Octets ucs4{0, static_cast<uint8_t>(c >> 16), static_cast<uint8_t>(c >> 8 & 0xff),
                      static_cast<uint8_t>(c & 0xff)};
    const UString from_utf8 = make(quarn_ustring_newutf8, utf8);
    const UString from_ucs4 = make(quarn_ustring_newutf32be, ucs4);
    const bool scalar = c < 0x110000 && (c < 0xd800 || c > 0xdfff);
    ASSERT_EQ(from_utf8 != nullptr, scalar) << c;
    ASSERT_EQ(from_ucs4 != nullptr, scalar) << c;
    if (c < 0x10000) {
      const UString from_bmp = make(quarn_ustring_newbmp, {ucs4[2], ucs4[3]});
      ASSERT_EQ(from_bmp != nullptr, scalar) << c;
      ASSERT_EQ(convert(quarn_ustring_toutf8, from_bmp), scalar ? utf8 : Octets{0xff});
    }
    if (!scalar) continue;
    ASSERT_EQ(convert(quarn_ustring_toutf8, from_ucs4), utf8);
    ASSERT_EQ(convert(quarn_ustring_toutf32be, from_utf8), ucs4);
    const Octets bmp = c < 0x10000 ? Octets{ucs4[2], ucs4[3]} : Octets{0xff};
    ASSERT_EQ(convert(quarn_ustring_tobmp, from_utf8), bmp);
  }
}

TEST(Unicode, what_no_scalar_value_encodes_to_is_not_utf8) {
  // Out of place, overlong, cut off, beyond the last.
  std::istringstream bad(
      "\x80 \xC0\x80 \xC1\xBF \xE0\x9F\xBF \xF0\x8F\xBF\xBF \xC2 \xC2\xC0 \xC2\x7F \xE1\x80 "
      "\xE1\x80\x40 \xF1\x80\x80 \xF1\x80\x80\xC0 \xF8\x88\x80\x80\x80 \xFE \xFF");
  for (std::string text; bad >> text;) {
    const Octets octets(text.begin(), text.end());
    EXPECT_EQ(quarn_utf8_valid(octets.data(), static_cast<int64_t>(octets.size())), 0) << text;
  }
}

TEST(Unicode, a_bad_octet_is_found_at_every_place_of_long_text) {
  for (size_t length = 0; length < 80; length++) {
    Octets text(length, 'a');
    const auto count = static_cast<int64_t>(length);
    EXPECT_EQ(quarn_utf8_valid(text.data(), count), 1);
    for (size_t i = 0; i < length; i++) {
      text[i] = 0xc3;  // needs one octet more than 'a'
      ASSERT_EQ(quarn_utf8_valid(text.data(), count), 0) << i;
      text[i] = 'a';
    }
  }
}

// python: "aé😀\0z".encode()
TEST(Unicode, mixed_text_keeps_its_order_and_its_nul_whatever_allocation_fails) {
  const Octets utf8{'a', 0xc3, 0xa9, 0xf0, 0x9f, 0x98, 0x80, 0, 'z'};
  const Octets ucs4{0, 0, 0, 'a', 0, 0, 0, 0xe9, 0, 1, 0xf6, 0, 0, 0, 0, 0, 0, 0, 0, 'z'};
  fail_each_allocation([&](Allocation &allocation) {
    const UString u = make(quarn_ustring_newutf32be, ucs4);
    EXPECT_LE(allocation.live_blocks(), 1);
    EXPECT_TRUE(convert(quarn_ustring_toutf8, u) == utf8 || allocation.failed());
    EXPECT_TRUE(convert(quarn_ustring_toutf32be, u) == ucs4 || allocation.failed());
  });
}

TEST(Unicode, refuses_broken_counts_and_null) {
  const uint8_t octets[8] = {};
  EXPECT_EQ(quarn_ustring_newbmp(octets, 3), nullptr);
  EXPECT_EQ(quarn_ustring_newutf32be(octets, 6), nullptr);
  EXPECT_EQ(quarn_ustring_newbmp(octets, -2), nullptr);
  EXPECT_EQ(quarn_ustring_newutf8(nullptr, 1), nullptr);
  EXPECT_EQ(quarn_utf8_valid(octets, -1), 0);
  EXPECT_EQ(convert(quarn_ustring_tobmp, make(quarn_ustring_newutf8, {})), Octets{});
}

}  // namespace
}  // namespace quarn::test
