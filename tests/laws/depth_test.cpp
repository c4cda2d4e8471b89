// A million elements or values inside one another, on a small stack: a result or a clean limit,
// never a crash.
#include <gtest/gtest.h>

#include "quarn_asn1.h"
#include "tests/support/allocation.h"
#include "tests/support/json.h"
#include "tests/support/thread.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

constexpr std::size_t kLevels = 1'000'000;

// Levels of definite length around a NULL: built from the inside, that is from the end.
Octets nested_definite(std::uint8_t identifier, std::size_t levels) {
  Octets reversed{0x00, 0x05};
  for (std::size_t i = 0; i < levels; i++) {
    std::size_t length = reversed.size();
    const bool short_form = length < 0x80;
    std::uint8_t count = 0;
    for (; length > 0; length >>= 8, count++) {
      reversed.push_back(static_cast<std::uint8_t>(length));
    }
    if (!short_form) reversed.push_back(0x80 | count);
    reversed.push_back(identifier);
  }
  return Octets(reversed.rbegin(), reversed.rend());
}

Octets nested_indefinite(std::uint8_t identifier, std::size_t levels) {
  Octets octets;
  for (std::size_t i = 0; i < levels; i++) octets.insert(octets.end(), {identifier, 0x80});
  octets.insert(octets.end(), levels * 2, 0x00);
  return octets;
}

// Octets to document to text to document to octets.
void round_trip(const Octets &octets) {
  Json document = to_json(std::string(octets.begin(), octets.end()));
  char *text = nullptr;
  std::size_t length = 0;
  ASSERT_EQ(quarn_json_print(document.get(), 2, &text, &length), 1);
  EXPECT_LT(length, octets.size() * 1200) << "indentation stops growing";
  document.reset();  // two of them would be more than a GiB
  document.reset(quarn_json_parse(text, length, nullptr));
  quarn_free(text);
  const Blob blob(quarn_asn1_encodejson(document.get()));
  ASSERT_NE(blob, nullptr);
  EXPECT_EQ(Octets(blob->data, blob->data + blob->length), octets);
}

TEST(Depth, a_million_definite_levels_go_through_json_and_back) {
  on_small_stack([] {
    Allocation allocation;
    round_trip(nested_definite(0x30, kLevels));
    round_trip(nested_definite(0xA3, kLevels));
    EXPECT_EQ(allocation.live_blocks(), 0);
  });
}

TEST(Depth, a_million_indefinite_levels_end_at_the_limit) {
  on_small_stack([] {
    Allocation allocation;
    for (const auto identifier : Octets{0x30, 0x24, 0x23, 0xA0}) {
      const Octets octets = nested_indefinite(identifier, kLevels);
      EXPECT_EQ(quarn_asn1_tojson(octets.data(), static_cast<std::int64_t>(octets.size())),
                nullptr);
    }
    EXPECT_EQ(allocation.live_blocks(), 0);
  });
}

TEST(Depth, every_type_ends_at_the_limit) {
  on_small_stack([] {
    Allocation allocation;
    for (std::int64_t id = 1; id < QUARN_ASN1_TYPE_COUNT; id++) {
      quarn_asn1_type_description type{};
      quarn_asn1_type_describe(id, &type);
      const auto tag = static_cast<std::uint8_t>(type.tag_class | 0x20 | (type.tag_number & 0x1F));
      for (const std::uint8_t inner :
           {std::uint8_t{0x24}, std::uint8_t{0x23}, std::uint8_t{0x30}}) {
        Octets octets = nested_indefinite(inner, 100000);
        if (type.tag_number != 0) octets[0] = tag;
        void *value = nullptr;
        const Stream stream = memory_stream(octets);
        EXPECT_NE(quarn_asn1_decode(stream.get(), id, &value, nullptr, nullptr), 1) << type.name;
        EXPECT_EQ(value, nullptr);
      }
    }
    EXPECT_EQ(allocation.live_blocks(), 0);
  });
}

// What stands before levels of a type that holds itself, or of an open type deep inside.
struct Nest {
  std::int64_t type;
  const char *before;
  std::uint8_t identifier;
};

const Nest kNests[] = {
    {QUARN_ASN1_LDAPFILTER, "", 0xA0},
    {QUARN_ASN1_LDAPFILTER, "", 0xA2},
    {QUARN_ASN1_LDAPMESSAGE,
     "30 80 02 01 01 63 80 04 00 0A 01 00 0A 01 00 02 01 00 02 01 00 01 01 00", 0xA1},
    // A response, the request that it answers, that one's query, policy, and its parameters.
    {QUARN_ASN1_SCVPCVRESPONSE,
     R"(30 80 02 01 01 02 01 01 18 0F "20260101000000Z" 30 00 A1 80 A1 80 30 80 A0 0B A1 09 04 00
        30 05 30 00 02 01 01 30 03 06 01 2A 30 80 30 80 06 01 2A)",
     0x30},
};

void ends_at_the_limit(const Nest &nest, const Octets &levels) {
  Octets octets = read_octets(nest.before);
  octets.insert(octets.end(), levels.begin(), levels.end());
  void *value = nullptr;
  const Stream stream = memory_stream(octets);
  EXPECT_EQ(quarn_asn1_decode(stream.get(), nest.type, &value, nullptr, nullptr),
            QUARN_ERROR_RECURSION);
  EXPECT_EQ(value, nullptr);
}

TEST(Depth, levels_deep_inside_a_message_end_at_the_limit) {
  on_small_stack([] {
    Allocation allocation;
    for (const Nest &nest : kNests) {
      ends_at_the_limit(nest, nested_indefinite(nest.identifier, kLevels));
      // What is of definite length is not looked into where any type may be.
      if (nest.identifier == 0x30) continue;
      ends_at_the_limit(nest, nested_definite(nest.identifier, kLevels));
    }
    EXPECT_EQ(allocation.live_blocks(), 0);
  });
}

TEST(Depth, values_are_built_as_deep_as_they_can_be_decoded) {
  on_small_stack([] {
    const Allocation allocation;
    quarn_ldapfilter *filter = quarn_ldapfilter_newpresent(
        Held(QUARN_ASN1_OCTETSTRING, "04 02 63 6E").as<quarn_asn1_octetstring>());
    int levels = 0;
    while (quarn_ldapfilter *deeper = quarn_ldapfilter_newnot(filter)) {
      quarn_ldapfilter_free(filter);
      filter = deeper;
      ASSERT_LT(++levels, quarn_get_recursive_level());
    }
    EXPECT_GT(levels, quarn_get_recursive_level() / 3);
    const Held built(QUARN_ASN1_LDAPFILTER, filter);
    Octets octets = built.encoding();
    EXPECT_EQ(quarn_asn1_length(built.type(), filter), static_cast<std::int64_t>(octets.size()));
    const Held copy(built.type(), quarn_asn1_dupobject(built.type(), filter, nullptr));
    EXPECT_NE(copy.get(), nullptr) << "what is built can be decoded";
    const std::size_t size = octets.size();
    octets.insert(octets.begin(), {0xA2, 0x82, static_cast<std::uint8_t>(size >> 8),
                                   static_cast<std::uint8_t>(size)});
    ends_at_the_limit({built.type(), "", 0}, octets);
  });
}

TEST(Depth, lists_put_into_lists_beyond_the_limit_end_there_and_can_be_freed) {
  on_small_stack([] {
    Allocation allocation;
    const Octets octets{0xA0, 0x02, 0x87, 0x00};  // (&(=*))
    void *filter = nullptr;
    for (std::size_t i = 0; i < kLevels; i++) {
      void *outer = nullptr;
      quarn_asn1_mem_decode(octets.data(), 4, QUARN_ASN1_LDAPFILTER, &outer);
      if (filter != nullptr) {
        quarn_asn1_list_put(quarn_ldapfilter_getand(static_cast<quarn_ldapfilter *>(outer)),
                            filter);
      }
      filter = outer;
    }
    quarn_asn1_forget_octets(QUARN_ASN1_LDAPFILTER, filter);
    EXPECT_EQ(quarn_asn1_length(QUARN_ASN1_LDAPFILTER, filter), -2);
    EXPECT_EQ(
        quarn_asn1_encode(memory_stream({}).get(), QUARN_ASN1_LDAPFILTER, filter, nullptr, nullptr),
        QUARN_ERROR_RECURSION);
    EXPECT_EQ(quarn_asn1_dupobject(QUARN_ASN1_LDAPFILTER, filter, nullptr), nullptr);
    quarn_asn1_value_free(QUARN_ASN1_LDAPFILTER, filter);
    EXPECT_EQ(allocation.live_blocks(), 0);
  });
}

}  // namespace
}  // namespace quarn::test
