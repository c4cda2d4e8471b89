// OBJECT IDENTIFIER and RELATIVE-OID values: text to octets and back.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

#include "tests/support/allocation.h"
#include "tests/unit/values.h"
#include "types/oid.h"

namespace quarn::test {
namespace {

using Oid = Value<quarn_asn1_oid, QUARN_ASN1_OID>;
using RelativeOid = Value<quarn_asn1_oid, QUARN_ASN1_RELATIVE_OID>;

Octets content_of(const quarn_asn1_oid *v) {
  return v == nullptr ? Octets{} : Octets(v->octets(), v->octets() + v->length);
}

std::optional<std::string> text_of(const Octets &octets, bool relative = false) {
  asn1::Buffer text;
  if (!asn1::append_oid_text(octets.data(), octets.size(), relative, text)) return std::nullopt;
  return std::string(reinterpret_cast<const char *>(text.data()), text.size());
}

Octets octets_of(std::string_view text, bool relative = false) {
  asn1::Buffer octets;
  if (!asn1::append_oid_octets(text.data(), text.size(), relative, octets)) return {};
  return Octets(octets.data(), octets.data() + octets.size());
}

TEST(Oid, text_becomes_octets_and_comes_back) {
  const std::pair<const char *, const char *> cases[] = {
      {"1.2.840.113549", "2A 86 48 86 F7 0D"},
      {"1.39", "4F"},
      {"2.47", "7F"},
      {"2.48", "81 00"},
      {"1.3.127.128.16383.16384", "2B 7F 81 00 FF 7F 81 80 00"},
      {"1.2.18446744073709551614", "2A 81 (FF)*8 7E"},
      {"2.18446744073709551535", "81 (FF)*8 7F"},
  };
  for (const auto &[text, octets] : cases) {
    const Oid v(quarn_asn1_oid_new(text));
    EXPECT_EQ(content_of(v.get()), hex(octets)) << text;
    EXPECT_STREQ(quarn_asn1_oid_getstring(v.get()), text);
    EXPECT_EQ(text_of(hex(octets)), text);
  }
}

TEST(Oid, blanks_are_dots_and_leading_zeros_stay_in_the_text) {
  const Oid blanks(quarn_asn1_oid_new("1 2 3"));
  EXPECT_STREQ(quarn_asn1_oid_getstring(blanks.get()), "1.2.3");
  const Oid zeros(quarn_asn1_oid_new("1.02.3"));
  EXPECT_STREQ(quarn_asn1_oid_getstring(zeros.get()), "1.02.3");
  EXPECT_EQ(content_of(zeros.get()), content_of(blanks.get()));
  EXPECT_EQ(octets_of("1.2." + std::string(29, '0') + "7"), (Octets{0x2A, 0x07}));
  EXPECT_EQ(octets_of("1.2." + std::string(30, '0') + "7"), Octets{}) << "31 digits";
}

TEST(Oid, text_that_is_no_identifier_is_refused) {
  const char *const kTexts[] = {
      // Not the form of an identifier.
      "", "1", "1.", "1.2.", "1.2 ", ".1.2", "1..2", "1. 2", "1.2.a", "1.2.-3", "1.2.+3", "1,2",
      // Parts that are out of range or no numbers.
      "3.1", "0.40", "1.40", "001", "999", "1.2\t.3", "1.2.3x", "1.2.0x3",
      "1.2.18446744073709551615", "2.18446744073709551536", "1.2.99999999999999999999999"};
  for (const char *text : kTexts) {
    EXPECT_EQ(quarn_asn1_oid_new(text), nullptr) << text;
  }
  EXPECT_EQ(octets_of(std::string_view("1.2\0.3", 6)), Octets{}) << "a NUL within";
  EXPECT_EQ(quarn_asn1_oid_new(nullptr), nullptr);
}

TEST(Oid, relative_identifiers_have_no_first_pair) {
  fail_each_allocation([](Allocation &allocation) {
    const RelativeOid v(quarn_asn1_relative_oid_new("8571 3.2"));
    EXPECT_EQ(content_of(v.get()), allocation.failed() ? Octets{} : Octets({0xC2, 0x7B, 3, 2}));
  });
  EXPECT_EQ(text_of({0xC2, 0x7B, 3, 2}, true), "8571.3.2");
  EXPECT_EQ(text_of(hex("81 (FF)*8 7F"), true), "18446744073709551615");
  const Held v(QUARN_ASN1_RELATIVE_OID, "0D 03 55 1D 13");  // octets of a well-known identifier
  EXPECT_STREQ(quarn_asn1_relative_oid_getstring(v.as<quarn_asn1_oid>()), "85.29.19");
  for (const char *text : {"", ".", "5.", ".5", "5..5", "a"}) {
    EXPECT_EQ(quarn_asn1_relative_oid_new(text), nullptr) << text;
  }
}

TEST(Oid, unfinished_subidentifiers_are_not_in_the_text) {
  EXPECT_EQ(text_of({0x2A, 0x86}), "1.2");
  EXPECT_EQ(text_of({0x86}), "");
  EXPECT_EQ(text_of({0x2A, 0x80}), std::nullopt);
  EXPECT_EQ(text_of({}), std::nullopt);
}

TEST(Oid, values_that_exist_already_are_what_their_octets_say) {
  int found = 0;
  for (const char *parent : {"2.5.4.", "2.5.29.", "1.2.840.113549.1.1.", "1.2.840.113549.1.9.",
                             "1.3.6.1.5.5.7.3.", "1.3.132.0.", "0.9.2342.19200300.100.1.",
                             "2.16.840.1.101.3.4.2.", "1.3.6.1.4.1.311.60.2.1."}) {
    for (int last = 0; last < 128; last++) {
      const std::string text = parent + std::to_string(last);
      const Octets octets = octets_of(text);
      const quarn_asn1_oid *known = asn1::known_oid(octets.data(), octets.size());
      if (known == nullptr) continue;
      found++;
      EXPECT_EQ(text, quarn_asn1_oid_getstring(known));
    }
  }
  EXPECT_GT(found, 60);
}

}  // namespace
}  // namespace quarn::test
