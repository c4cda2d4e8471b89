// What holds for every registered type, tried on every vector that decodes.
#include <gtest/gtest.h>

#include <map>

#include "core/type.h"
#include "quarn_asn1.h"
#include "tests/laws/use.h"
#include "tests/support/allocation.h"
#include "tests/support/streams.h"

namespace quarn::test {
namespace {

// Also of one that is laid out in a way only inferred.
bool is_choice(const asn1::Type &type) {
  const asn1::Schema *schema = type.schema;
  if (schema != nullptr && schema->layout != nullptr) schema = schema->layout->schema;
  return schema != nullptr && schema->is_choice();
}

// Every row is built. A string of any type has content only, and types without a tag of their own
// are decoded as a whole only; nothing else is left out.
TEST(Laws, every_row_encodes_decodes_and_has_samples) {
  std::map<std::int64_t, int> count;
  std::map<std::int64_t, int> made;
  for (const Vector &sample : samples(SIZE_MAX)) count[sample.type]++;
  for (const Vector &sample : structured_samples()) made[sample.type]++;
  for (std::int64_t id = 0; id < QUARN_ASN1_TYPE_COUNT; id++) {
    const asn1::Type &type = *asn1::find_type(id);
    const asn1::Codec &codec = *type.codec;
    const bool content_only = id == QUARN_ASN1_STRING;
    const bool whole_only = id == QUARN_ASN1_TIME || id == QUARN_ASN1_ANY || is_choice(type);
    EXPECT_EQ(codec.decode == asn1::cannot_decode, content_only) << type.name;
    EXPECT_EQ(codec.encode == asn1::cannot_encode, content_only) << type.name;
    EXPECT_EQ(codec.decode_content == asn1::cannot_decode_content, whole_only) << type.name;
    EXPECT_GE(made[id], type.schema == nullptr ? 0 : 2) << type.name << ": full and least";
    // An end-of-contents has no value.
    EXPECT_GE(count[id], id == QUARN_ASN1_EOC || content_only ? 0 : 1) << type.name;
  }
}

TEST(Laws, no_proper_prefix_decodes) {
  for_each_sample(2048, [](const Vector &sample) {
    for (std::size_t size = 1; size < sample.consumed.value_or(sample.in.size()); size++) {
      // Exactly as large as the prefix, so that a read past the end is seen.
      const Octets prefix(sample.in.begin(), sample.in.begin() + static_cast<std::ptrdiff_t>(size));
      EXPECT_EQ(Held(sample.type, prefix).consumed(), -1) << size << " octets";
      EXPECT_EQ(quarn_asn1_tojson(prefix.data(), static_cast<std::int64_t>(size)), nullptr);
    }
  });
}

TEST(Laws, octets_after_a_value_are_neither_read_nor_counted) {
  for_each_sample(2048, [](const Vector &sample) {
    Octets more = sample.in;
    more.insert(more.end(), {0xFF, 0xFF, 0xFF});
    EXPECT_EQ(Held(sample.type, more).consumed(),
              static_cast<std::int64_t>(sample.consumed.value_or(sample.in.size())));
  });
}

TEST(Laws, every_flipped_bit_gives_an_error_or_a_sound_value) {
  Allocation allocation;
  for_each_sample(300, [](const Vector &sample) {
    for (std::size_t bit = 0; bit < sample.in.size() * 8; bit++) {
      Octets flipped = sample.in;
      flipped[bit / 8] = static_cast<std::uint8_t>(flipped[bit / 8] ^ (1u << (bit % 8)));
      use(sample.type, flipped);
    }
  });
  EXPECT_EQ(allocation.live_blocks(), 0);
}

TEST(Laws, every_failed_allocation_is_an_error_and_no_leak) {
  for_each_sample(600, [](const Vector &sample) {
    fail_each_allocation([&sample](Allocation &allocation) {
      const Held decoded(sample.type, sample.in);
      if (decoded.get() == nullptr) {
        EXPECT_TRUE(allocation.failed());
        return;
      }
      const Octets encoding = decoded.encoding();
      EXPECT_EQ(encoding, encoding.empty() && allocation.failed() ? Octets{} : *sample.out)
          << "never a wrong answer";
      const Context ctx(quarn_err_ctx_new());
      const Held copy(sample.type, quarn_asn1_dupobject(sample.type, decoded.get(), ctx.get()));
      EXPECT_TRUE(copy.get() != nullptr || allocation.failed());
      allocation.never_fail();
      EXPECT_EQ(decoded.encoding(), *sample.out) << "the value is unharmed";
    });
  });
}

TEST(Laws, every_failed_read_is_an_error_and_no_leak) {
  Allocation allocation;
  for_each_sample(600, [](const Vector &sample) {
    for (std::int64_t calls = 0;; calls++) {
      SlowSource source(sample.in);
      source.fail_after(calls);
      const Context ctx(quarn_err_ctx_new());
      void *value = nullptr;
      const int result =
          quarn_asn1_decode(source.stream().get(), sample.type, &value, nullptr, ctx.get());
      quarn_asn1_value_free(sample.type, value);
      if (result == 1) break;
      EXPECT_EQ(value, nullptr);
      EXPECT_FALSE(codes_in(ctx.get()).empty()) << "read " << calls;
      ASSERT_LE(calls, static_cast<std::int64_t>(sample.in.size()) + 1);
    }
  });
  EXPECT_EQ(allocation.live_blocks(), 0);
}

TEST(Laws, every_failed_write_is_an_error) {
  for_each_sample(600, [](const Vector &sample) {
    const Held decoded(sample.type, sample.in);
    for (std::int64_t calls = 0;; calls++) {
      SlowSink sink;
      sink.fail_after(calls);
      const Stream stream = sink.stream();
      const Context ctx(quarn_err_ctx_new());
      std::uint64_t written = 0;
      if (quarn_asn1_encode(stream.get(), sample.type, decoded.get(), &written, ctx.get()) == 1) {
        EXPECT_EQ(sink.octets(), *sample.out);
        EXPECT_EQ(written, sample.out->size());
        break;
      }
      EXPECT_FALSE(codes_in(ctx.get()).empty()) << "write " << calls;
      EXPECT_EQ(sink.calls(), calls + 1) << "nothing is written after a failure";
    }
  });
}

// Ids without a tag of their own are offered an OCTET STRING.
Octets claiming(const asn1::Type &type, unsigned form, std::uint64_t length) {
  const bool tagged = type.tag_number != 0 || type.tag_class != 0;
  const unsigned first = tagged ? type.tag_class | form | (type.tag_number & 0x1F) : 0x04u;
  Octets octets{static_cast<std::uint8_t>(first), 0x88};
  for (int shift = 56; shift >= 0; shift -= 8) {
    octets.push_back(static_cast<std::uint8_t>(length >> shift));
  }
  return octets;
}

TEST(Laws, a_claimed_length_costs_no_memory) {
  for (std::int64_t id = 1; id < QUARN_ASN1_TYPE_COUNT; id++) {
    const asn1::Type &type = *asn1::find_type(id);
    for (const unsigned form : {0x00u, 0x20u}) {
      for (const std::uint64_t length : {std::uint64_t{1} << 62, std::uint64_t{INT64_MAX}}) {
        const Octets octets = claiming(type, form, length);
        Allocation allocation;
        EXPECT_EQ(Held(id, octets).consumed(), -1);
        SlowSource source(octets);
        void *value = nullptr;
        EXPECT_NE(quarn_asn1_decode(source.stream().get(), id, &value, nullptr, nullptr), 1);
        EXPECT_LT(allocation.peak_octets(), 64u * 1024) << type.name;
      }
    }
  }
}

TEST(Laws, null_arguments_are_refused) {
  for (std::int64_t id = 1; id < QUARN_ASN1_TYPE_COUNT; id++) {
    const asn1::Type &type = *asn1::find_type(id);
    const Context ctx(quarn_err_ctx_new());
    void *value = &value;
    EXPECT_NE(quarn_asn1_decode(nullptr, id, &value, nullptr, ctx.get()), 1) << type.name;
    EXPECT_EQ(value, nullptr) << type.name;
    EXPECT_FALSE(codes_in(ctx.get()).empty()) << type.name;
    EXPECT_NE(quarn_asn1_encode(nullptr, id, nullptr, nullptr, ctx.get()), 1) << type.name;
    const bool needs_no_value = id == QUARN_ASN1_NULL || id == QUARN_ASN1_LDAPUNBINDREQUEST;
    EXPECT_EQ(encoding_of(id, nullptr).empty(), !needs_no_value) << type.name;
    quarn_asn1_value_free(id, nullptr);
  }
}

}  // namespace
}  // namespace quarn::test
