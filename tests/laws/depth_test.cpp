// A million elements or values inside one another, on a small stack: a result or a clean limit,
// never a crash.
#include <gtest/gtest.h>

#include "quarn_asn1.h"
#include "tests/support/allocation.h"
#include "tests/support/streams.h"
#include "tests/support/thread.h"

namespace quarn::test {
namespace {

using Octets = std::vector<std::uint8_t>;

constexpr std::size_t kLevels = 1'000'000;

void append_length(Octets &reversed, std::size_t length) {
  if (length < 0x80) {
    reversed.push_back(static_cast<std::uint8_t>(length));
    return;
  }
  std::uint8_t count = 0;
  for (; length > 0; length >>= 8, count++) reversed.push_back(static_cast<std::uint8_t>(length));
  reversed.push_back(0x80 | count);
}

// Levels of definite length around a NULL: built from the inside, that is from the end.
Octets nested_definite(std::uint8_t identifier, std::size_t levels) {
  Octets reversed{0x00, 0x05};
  for (std::size_t i = 0; i < levels; i++) {
    append_length(reversed, reversed.size());
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
  quarn_json *document = quarn_asn1_tojson(octets.data(), static_cast<std::int64_t>(octets.size()));
  ASSERT_NE(document, nullptr);
  char *text = nullptr;
  std::size_t length = 0;
  ASSERT_EQ(quarn_json_print(document, 2, &text, &length), 1);
  EXPECT_LT(length, octets.size() * 1200) << "indentation stops growing";
  quarn_json_free(document);
  document = quarn_json_parse(text, length, nullptr);
  quarn_free(text);
  ASSERT_NE(document, nullptr);
  quarn_data_blob *blob = quarn_asn1_encodejson(document);
  quarn_json_free(document);
  ASSERT_NE(blob, nullptr);
  EXPECT_EQ(Octets(blob->data, blob->data + blob->length), octets);
  quarn_data_blob_free(blob);
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
  Octets before;
  std::uint8_t identifier;
};

const Nest kNests[] = {
    {QUARN_ASN1_LDAPFILTER, {}, 0xA0},
    {QUARN_ASN1_LDAPFILTER, {}, 0xA2},
    {QUARN_ASN1_LDAPMESSAGE,
     {0x30, 0x80, 0x02, 0x01, 0x01, 0x63, 0x80, 0x04, 0x00, 0x0A, 0x01, 0x00,
      0x0A, 0x01, 0x00, 0x02, 0x01, 0x00, 0x02, 0x01, 0x00, 0x01, 0x01, 0x00},
     0xA1},
};

// A response, the request that it answers, that one's query, policy, and the policy's parameters.
const Nest kOpenNest{
    QUARN_ASN1_SCVPCVRESPONSE,
    {0x30, 0x80, 0x02, 0x01, 0x01, 0x02, 0x01, 0x01, 0x18, 0x0F, '2',  '0',  '2',  '6',  '0',
     '1',  '0',  '1',  '0',  '0',  '0',  '0',  '0',  '0',  'Z',  0x30, 0x00, 0xA1, 0x80, 0xA1,
     0x80, 0x30, 0x80, 0xA0, 0x0B, 0xA1, 0x09, 0x04, 0x00, 0x30, 0x05, 0x30, 0x00, 0x02, 0x01,
     0x01, 0x30, 0x03, 0x06, 0x01, 0x2A, 0x30, 0x80, 0x30, 0x80, 0x06, 0x01, 0x2A},
    0x30};

void ends_at_the_limit(const Nest &nest, Octets octets) {
  octets.insert(octets.begin(), nest.before.begin(), nest.before.end());
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
      ends_at_the_limit(nest, nested_definite(nest.identifier, kLevels));
    }
    ends_at_the_limit(kOpenNest, nested_indefinite(kOpenNest.identifier, kLevels));
    EXPECT_EQ(allocation.live_blocks(), 0);
  });
}

TEST(Depth, values_are_built_as_deep_as_they_can_be_decoded) {
  on_small_stack([] {
    Allocation allocation;
    quarn_asn1_octetstring *cn = quarn_asn1_octetstring_new(Octets{'c', 'n'}.data(), 2);
    quarn_ldapfilter *filter = quarn_ldapfilter_newpresent(cn);
    quarn_asn1_value_free(QUARN_ASN1_OCTETSTRING, cn);
    int levels = 0;
    while (quarn_ldapfilter *deeper = quarn_ldapfilter_newnot(filter)) {
      quarn_ldapfilter_free(filter);
      filter = deeper;
      ASSERT_LT(++levels, quarn_get_recursive_level());
    }
    EXPECT_GT(levels, quarn_get_recursive_level() / 3);
    const Blob blob(quarn_asn1_mem_encode(QUARN_ASN1_LDAPFILTER, filter));
    ASSERT_NE(blob, nullptr);
    EXPECT_EQ(quarn_asn1_length(QUARN_ASN1_LDAPFILTER, filter),
              static_cast<std::int64_t>(blob->length));
    void *copy = quarn_asn1_dupobject(QUARN_ASN1_LDAPFILTER, filter, nullptr);
    EXPECT_NE(copy, nullptr) << "what is built can be decoded";
    quarn_asn1_value_free(QUARN_ASN1_LDAPFILTER, copy);
    Octets deeper{0xA2, 0x82, static_cast<std::uint8_t>(blob->length >> 8),
                  static_cast<std::uint8_t>(blob->length)};
    deeper.insert(deeper.end(), blob->data, blob->data + blob->length);
    const Stream stream = memory_stream(deeper);
    EXPECT_EQ(quarn_asn1_decode(stream.get(), QUARN_ASN1_LDAPFILTER, &copy, nullptr, nullptr),
              QUARN_ERROR_RECURSION);
    quarn_ldapfilter_free(filter);
  });
}

TEST(Depth, lists_put_into_lists_beyond_the_limit_end_there_and_can_be_freed) {
  on_small_stack([] {
    Allocation allocation;
    const Octets octets{0xA0, 0x02, 0x87, 0x00};  // (&(=*))
    void *filter = nullptr;
    for (std::size_t i = 0; i < kLevels; i++) {
      void *outer = nullptr;
      const Stream stream = memory_stream(octets);
      ASSERT_EQ(quarn_asn1_decode(stream.get(), QUARN_ASN1_LDAPFILTER, &outer, nullptr, nullptr),
                1);
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
