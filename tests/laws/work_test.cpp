// What operations cost, counted in calls, allocations and octets instead of time: twice the input
// costs at most about twice the work, and memory stays a small multiple of the input.
#include <gtest/gtest.h>

#include <functional>

#include "quarn_asn1.h"
#include "tests/support/allocation.h"
#include "tests/support/json.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

struct Cost {
  std::uint64_t allocations;
  std::size_t peak;
};

Cost cost_of(const std::function<void()> &operation) {
  Allocation allocation;
  operation();
  EXPECT_EQ(allocation.live_blocks(), 0);
  return {allocation.count(), allocation.peak_octets()};
}

void through_type(const Octets &octets, std::int64_t type) {
  const Held decoded(type, octets);
  ASSERT_GT(decoded.consumed(), 0);
  decoded.encoding();
  const Held copy(type, quarn_asn1_dupobject(type, decoded.get(), nullptr));
}

void through_json(const Octets &octets) {
  const Json document = to_json(std::string(octets.begin(), octets.end()));
  ASSERT_NE(parse(printed(document)), nullptr);
  Blob(quarn_asn1_encodejson(document.get()));
}

// A unit repeated within an element of indefinite length.
struct Family {
  std::int64_t type;
  double most_peak;  // octets of memory for each octet of input, typed
  const char *identifier;
  const char *unit;

  Octets make(std::size_t n) const {
    return read_octets(std::string(identifier) + " 80 (" + unit + ")*" + std::to_string(n) +
                       " 00 00");
  }
};

const Family kFamilies[] = {
    {QUARN_ASN1_ANYLIST, 64, "30", "05 00"},
    {QUARN_ASN1_OCTETSTRING, 8, "24", "04 01 41"},
    {QUARN_ASN1_BITSTRING, 8, "23", "03 02 00 41"},
    {QUARN_ASN1_ANY, 8, "A0", "30 80 00 00"},
    {QUARN_ASN1_ANYSET, 64, "31", "02 02 00 01"},  // INTEGERs that are too long
    {QUARN_ASN1_X509EXTENSIONS, 32, "30", "30 05 06 01 2A 04 00"},
    {QUARN_ASN1_X509GENERALNAMES, 64, "30", "82 00"},
};

TEST(Work, grows_no_faster_than_the_input) {
  constexpr std::size_t kCount = 20000;
  for (const Family &family : kFamilies) {
    SCOPED_TRACE(family.type);
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
    SCOPED_TRACE(family.type);
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
      {QUARN_ASN1_BITSTRING, "03 02 00 80", 1},
      {QUARN_ASN1_OCTETSTRING, "04 03 01 02 03", 1},
      {QUARN_ASN1_OID, "06 06 2A 86 48 86 F7 0D", 1},
      {QUARN_ASN1_UTF8STRING, "0C 02 61 62", 1},
      {QUARN_ASN1_UTCTIME, R"(17 0D "240229120000Z")", 1},
      {QUARN_ASN1_ANY, "30 02 05 00", 1},
      {QUARN_ASN1_BOOLEAN, "01 01 FF", 0},
      {QUARN_ASN1_NULL, "05 00", 0},
      {QUARN_ASN1_OID, "06 03 55 04 03", 0},
  };
  for (const auto &value : values) {
    const Octets octets = read_octets(value.octets);
    const Cost cost = cost_of([&] { EXPECT_GT(Held(value.type, octets).consumed(), 0); });
    EXPECT_EQ(cost.allocations, value.allocations) << value.octets;
  }
}

}  // namespace
}  // namespace quarn::test
