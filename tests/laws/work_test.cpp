// What operations cost, counted in calls, allocations and octets instead of time: twice the input
// costs at most about twice the work, and memory stays a small multiple of the input.
#include <gtest/gtest.h>

#include <functional>

#include "quarn_asn1.h"
#include "tests/support/allocation.h"
#include "tests/support/streams.h"
#include "tests/support/vector_file.h"

namespace quarn::test {
namespace {

struct Cost {
  std::uint64_t allocations;
  std::size_t peak;
};

Cost cost_of(const std::function<void()> &operation) {
  Allocation allocation;
  allocation.reset_peak();
  allocation.reset_count();
  operation();
  EXPECT_EQ(allocation.live_blocks(), 0);
  return {allocation.count(), allocation.peak_octets()};
}

Octets repeated(const Octets &unit, std::size_t times) {
  Octets octets;
  for (std::size_t i = 0; i < times; i++) octets.insert(octets.end(), unit.begin(), unit.end());
  return octets;
}

// An element of indefinite length around content.
Octets wrapped(std::uint8_t identifier, const Octets &content) {
  Octets octets{identifier, 0x80};
  octets.insert(octets.end(), content.begin(), content.end());
  octets.resize(octets.size() + 2);
  return octets;
}

void through_type(const Octets &octets, std::int64_t type) {
  void *value = nullptr;
  ASSERT_GT(
      quarn_asn1_mem_decode(octets.data(), static_cast<std::int64_t>(octets.size()), type, &value),
      0);
  quarn_data_blob_free(quarn_asn1_mem_encode(type, value));
  quarn_asn1_value_free(type, quarn_asn1_dupobject(type, value, nullptr));
  quarn_asn1_value_free(type, value);
}

void through_json(const Octets &octets) {
  quarn_json *document = quarn_asn1_tojson(octets.data(), static_cast<std::int64_t>(octets.size()));
  ASSERT_NE(document, nullptr);
  char *text = nullptr;
  std::size_t length = 0;
  ASSERT_EQ(quarn_json_print(document, 0, &text, &length), 1);
  quarn_json_free(quarn_json_parse(text, length, nullptr));
  quarn_free(text);
  quarn_data_blob_free(quarn_asn1_encodejson(document));
  quarn_json_free(document);
}

struct Family {
  const char *name;
  std::int64_t type;
  double most_peak;  // octets of memory for each octet of input, typed
  std::function<Octets(std::size_t)> make;
};

const Family kFamilies[] = {
    {"NULLs in a SEQUENCE", QUARN_ASN1_ANYLIST, 64,
     [](std::size_t n) {
       return wrapped(0x30, repeated({5, 0}, n));
     }},
    {"one-octet segments", QUARN_ASN1_OCTETSTRING, 8,
     [](std::size_t n) {
       return wrapped(0x24, repeated({4, 1, 0x41}, n));
     }},
    {"segments of bits", QUARN_ASN1_BITSTRING, 8,
     [](std::size_t n) {
       return wrapped(0x23, repeated({3, 2, 0, 0x41}, n));
     }},
    {"elements of an open type", QUARN_ASN1_ANY, 8,
     [](std::size_t n) {
       return wrapped(0xA0, repeated({0x30, 0x80, 0, 0}, n));
     }},
    {"INTEGERs that are too long", QUARN_ASN1_ANYSET, 64,
     [](std::size_t n) {
       return wrapped(0x31, repeated({2, 2, 0, 1}, n));
     }},
    {"extensions", QUARN_ASN1_X509EXTENSIONS, 32,
     [](std::size_t n) {
       return wrapped(0x30, repeated({0x30, 5, 6, 1, 0x2A, 4, 0}, n));
     }},
    {"names", QUARN_ASN1_X509GENERALNAMES, 64,
     [](std::size_t n) {
       return wrapped(0x30, repeated({0x82, 0}, n));
     }},
};

TEST(Work, grows_no_faster_than_the_input) {
  constexpr std::size_t kCount = 20000;
  for (const Family &family : kFamilies) {
    SCOPED_TRACE(family.name);
    const Octets once = family.make(kCount);
    const Octets twice = family.make(2 * kCount);
    const Cost typed = cost_of([&] { through_type(once, family.type); });
    const Cost typed_twice = cost_of([&] { through_type(twice, family.type); });
    EXPECT_LE(typed_twice.allocations, 2.1 * static_cast<double>(typed.allocations) + 100);
    EXPECT_LE(typed_twice.peak, 2.3 * static_cast<double>(typed.peak));
    EXPECT_LE(static_cast<double>(typed_twice.peak),
              family.most_peak * static_cast<double>(twice.size()));
    const Cost json = cost_of([&] { through_json(once); });
    const Cost json_twice = cost_of([&] { through_json(twice); });
    EXPECT_LE(json_twice.allocations, 2.1 * static_cast<double>(json.allocations) + 100);
    EXPECT_LE(json_twice.peak, 2.3 * static_cast<double>(json.peak));
  }
}

TEST(Work, a_stream_is_asked_for_each_octet_once) {
  for (const Family &family : kFamilies) {
    SCOPED_TRACE(family.name);
    const Octets octets = family.make(500);
    SlowSource source(octets);
    const Stream stream = source.stream();
    void *value = nullptr;
    ASSERT_EQ(quarn_asn1_decode(stream.get(), family.type, &value, nullptr, nullptr), 1);
    EXPECT_EQ(source.calls(), static_cast<std::int64_t>(octets.size()));
    quarn_asn1_value_free(family.type, value);
  }
}

TEST(Work, a_small_value_is_one_block_or_exists_already) {
  const struct {
    std::int64_t type;
    const char *octets;
    std::uint64_t allocations;
  } values[] = {
      {QUARN_ASN1_INTEGER, "02 02 12 34", 1},
      {QUARN_ASN1_ENUMERATED, "0A 01 03", 1},
      {QUARN_ASN1_BITSTRING, "03 02 00 80", 1},
      {QUARN_ASN1_OCTETSTRING, "04 03 01 02 03", 1},
      {QUARN_ASN1_OID, "06 06 2A 86 48 86 F7 0D", 1},
      {QUARN_ASN1_UTF8STRING, "0C 02 61 62", 1},
      {QUARN_ASN1_UTCTIME, R"(17 0D "240229120000Z")", 1},
      {QUARN_ASN1_GENTIME, R"(18 0F "20240229120000Z")", 1},
      {QUARN_ASN1_ANY, "30 02 05 00", 1},
      {QUARN_ASN1_BOOLEAN, "01 01 FF", 0},
      {QUARN_ASN1_NULL, "05 00", 0},
      {QUARN_ASN1_OID, "06 03 55 04 03", 0},
  };
  for (const auto &[type, text, allocations] : values) {
    const Octets octets = read_octets(text);
    const Cost cost = cost_of([&] {
      void *value = nullptr;
      const auto count = static_cast<std::int64_t>(octets.size());
      EXPECT_EQ(quarn_asn1_mem_decode(octets.data(), count, type, &value), count);
      quarn_asn1_value_free(type, value);
    });
    EXPECT_EQ(cost.allocations, allocations) << text;
  }
}

}  // namespace
}  // namespace quarn::test
