// Push decoders. How an encoding is cut into slices makes no difference, except for the counts of
// the slice in which it ends and for empty content at its end.
#include <random>

#include "tests/support/allocation.h"
#include "tests/support/vector_file.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

std::int64_t size(const Octets &octets) {
  return static_cast<std::int64_t>(octets.size());
}

// "(30 80)*n inner (00 00)*n"
Octets nested(std::size_t levels, const Octets &inner) {
  Octets octets;
  for (std::size_t i = 0; i < levels; i++) octets.insert(octets.end(), {0x30, 0x80});
  octets.insert(octets.end(), inner.begin(), inner.end());
  octets.resize(octets.size() + 2 * levels);
  return octets;
}

using FreeAny = decltype([](auto *c) { quarn_asn1_decode_any_ctx_free(c); });
using FreeString = decltype([](auto *c) { quarn_asn1_decode_octetstring_ctx_free(c); });
enum Kind { kAny, kString };

// A push decoder of either kind. left is what the last slice left over.
struct Push {
  explicit Push(Kind kind, Stream to = growable()) : out(std::move(to)) {
    if (kind == kAny) any.reset(quarn_asn1_decode_any_ctx_new());
    if (kind == kString) string.reset(quarn_asn1_decode_octetstring_ctx_new());
  }

  int feed(const std::uint8_t *data, std::int64_t length) {
    if (any != nullptr) return quarn_asn1_decode_any_update(any.get(), data, length, &left);
    return quarn_asn1_decode_octetstring_update(string.get(), out.get(), data, length, &left);
  }
  int feed(const Octets &slice) { return feed(slice.data(), size(slice)); }
  int feed(const char *digits) { return feed(hex(digits)); }
  int feed_content(const char *digits) {
    const Octets slice = hex(digits);
    return quarn_asn1_decode_octetstring_content_update(string.get(), out.get(), slice.data(),
                                                        size(slice), &left);
  }
  int begin(int primitive, std::int64_t length) {
    return quarn_asn1_decode_octetstring_ctx_setstate(
        string.get(), static_cast<std::uint32_t>(primitive), length);
  }

  bool finished() const {
    return (any != nullptr ? quarn_asn1_decode_any_isfinish(any.get())
                           : quarn_asn1_decode_octetstring_isfinish(string.get())) == 1;
  }
  int value(std::int64_t as, void **value) {
    return quarn_asn1_decode_any_ctx_toobject(any.get(), as, value);
  }
  // The content of a string, or the encoding of the element as a value.
  Octets got(std::int64_t as = QUARN_ASN1_ANY) {
    if (any == nullptr) return held_by(out);
    void *object = nullptr;
    value(as, &object);
    const Octets octets = encoding_of(as, object);
    quarn_asn1_value_free(as, object);
    return octets;
  }
  std::int64_t total() const {
    return quarn_asn1_decode_octetstring_ctx_getencodelength(string.get());
  }

  std::unique_ptr<quarn_asn1_decode_any_ctx, FreeAny> any;
  std::unique_ptr<quarn_asn1_decode_octetstring_ctx, FreeString> string;
  Stream out;
  std::int64_t left = -1;
};

struct Outcome {
  int result = 1;
  bool finished = false;
  std::int64_t taken = 0;
  Octets got{};
  bool operator==(const Outcome &) const = default;
};

// Feeds octets cut into slices, the last of which ends with them.
Outcome fed(Kind kind, const Octets &octets, const std::vector<std::int64_t> &cuts, int as = 0) {
  Push push(kind);
  Outcome outcome;
  std::int64_t at = 0;
  for (const std::int64_t cut : cuts) {
    const int result = push.feed(octets.data() + at, cut - at);
    if (result != 1) return {result, push.finished(), push.left};
    outcome.taken += cut - at - push.left;
    at = cut;
  }
  outcome.finished = push.finished();
  outcome.got = push.got(as);
  return outcome;
}

// In one piece, in two cut anywhere, octet by octet and cut at random it comes to the same, which
// is returned.
Outcome same_in_slices(Kind kind, const Octets &octets, int as = QUARN_ASN1_ANY) {
  static std::minstd_rand random(1);
  const auto below = [](std::int64_t most) { return static_cast<std::int64_t>(random()) % most; };
  const std::int64_t all = size(octets);
  const Outcome whole = fed(kind, octets, {all}, as);
  const auto expect = [&](const std::vector<std::int64_t> &cuts) {
    EXPECT_TRUE(fed(kind, octets, cuts, as) == whole) << ::testing::PrintToString(cuts);
  };
  for (std::int64_t cut = 0; cut <= all; cut++) expect({cut, all});
  for (int round = 0; round <= 1000; round++) {
    std::vector<std::int64_t> cuts{0};
    const std::int64_t most = below(all) + 1;
    while (cuts.back() < all) {
      const std::int64_t next = round == 0 ? 1 : below(most + 1);
      cuts.push_back(std::min(all, cuts.back() + next));
    }
    expect(cuts);
  }
  return whole;
}

TEST(Push, slices_make_no_difference) {
  const auto expect = [](Kind kind, const Octets &octets, std::int64_t taken, const Octets &got) {
    SCOPED_TRACE(::testing::PrintToString(octets));
    EXPECT_TRUE((same_in_slices(kind, octets) == Outcome{1, true, taken, got}));
  };
  const struct {
    const char *octets;
    std::int64_t taken;
    bool is_encoding;  // to X.690, too, as far as open types look into it
  } elements[] = {
      {"04 83 00 00 02 41 42 FF", 7, true},
      {"00 00 FF", 2, true},
      {"A0 80 02 01 05 30 80 04 01 41 00 00 00 00 00", 14, true},
      {"30 0A 30 80 02 01 05 00 00 02 01 07 FF", 12, true},
      {"30 05 02 01 07 05 00 FF", 7, true},
      {"30 00 FF", 2, true},
      {"30 05 05 00 02 01 07", 4, false},          // the empty item ends it
      {"30 07 30 05 05 00 02 01 07 FF", 9, true},  // 02 belongs to the outer content here
      {"30 04 00 00 01 00 FF", 4, false},          // no end-of-contents, but an empty item
      {"30 80 30 80 05 00 05 00 00 00", 8, false},
      {"30 04 30 80 05 00 FF", 6, true},  // complete with its last octet all the same
      {"30 0B 30 80 30 09 05 00 02 01 07 00 00", 13, true},  // 30 09 ends in time
      {"9F 1F 81 02 41 42 FF", 6, true},
      {"BF 7F 7F 80 1F 00 20 81 01 41 00 00 FF", 12, false},
  };
  for (const auto &[digits, taken, is_encoding] : elements) {
    const Octets octets = hex(digits);
    expect(kAny, octets, taken, {octets.begin(), octets.begin() + (is_encoding ? taken : 0)});
  }
  const Octets deep = nested(100, hex("02 01 05"));
  expect(kAny, deep, 403, deep);
  expect(kAny, nested(128, hex("02 01 05")), 515, {});  // the value has a limit, too

  const struct {
    const char *octets;
    std::int64_t taken;
    const char *content;
  } strings[] = {
      {"04 02 41 42 FF", 4, "41 42"},
      {"04 81 00 FF", 3, ""},
      {"24 80 04 02 41 42 04 01 43 00 00 FF", 11, "41 42 43"},
      {"24 06 04 01 41 04 01 42 FF", 8, "41 42"},
      {"24 80 24 80 04 01 41 00 00 24 03 04 01 42 00 00", 16, "41 42"},
      {"24 80 04 00 04 01 41 00 00", 4, ""},              // the empty segment ends it
      {"24 80 24 04 04 00 04 01 42 00 00 FF", 11, "42"},  // it ends that around it only
  };
  for (const auto &[octets, taken, content] : strings) {
    expect(kString, hex(octets), taken, hex(content));
  }
}

// Every type there is, with octets behind it. It is read to its end unless an empty item ends it.
TEST(Push, slices_make_no_difference_to_the_samples) {
  for (const Vector &sample : read_vectors(QUARN_SOURCE_DIR "/tests/vectors/gen/samples.vec")) {
    SCOPED_TRACE(sample.line);
    Octets octets = sample.in;
    octets.insert(octets.end(), {0xFF, 0xFF});
    const Outcome outcome = same_in_slices(kAny, octets, static_cast<int>(sample.type));
    EXPECT_TRUE(outcome.finished);
    if (outcome.taken == size(sample.in)) {
      EXPECT_EQ(outcome.got, sample.out);
    } else {
      EXPECT_EQ(octets[static_cast<std::size_t>(outcome.taken) - 1], 0);
    }
  }
}

// Also behind a header that the caller has read.
TEST(Push, counts_depend_on_the_slice_in_which_a_string_ends) {
  constexpr int kWhole = -1;
  const struct {
    int primitive;
    std::int64_t length;
    std::vector<const char *> slices;
    const char *content;
    std::int64_t left, total;
  } rows[] = {
      {kWhole, 0, {"04 02 41 42"}, "41 42", 0, 4},
      {kWhole, 0, {"04 02", "41 42"}, "41 42", 0, 4},
      {kWhole, 0, {"04 02 41 42 FF"}, "41 42", 1, 1},
      {kWhole, 0, {"04 02", "41 42 FF FF"}, "41 42", 2, 4},
      {kWhole, 0, {"04 02 41 42", "FF FF", ""}, "41 42", 0, 4},
      {kWhole, 0, {"04 02 41 42", "", "FF FF"}, "41 42", 2, 4},
      {kWhole, 0, {"04 00", ""}, "", 0, -1},
      {kWhole, 0, {"04 00", "FF FF FF"}, "", 3, 5},
      {kWhole, 0, {"24 05 04 01 41 04 00"}, "41", 0, -1},
      {kWhole, 0, {"24 05 04 01 41 04 00", "FF"}, "41", 1, 8},
      {kWhole, 0, {"24 04 04 00 04 00"}, "", 2, 2},
      {1, 2, {"", "41 42"}, "41 42", 0, 2},
      {1, 0, {"41"}, "", 1, 1},
      {0, 3, {"04 01 41"}, "41", 0, 3},
      {0, 0, {"04"}, "", 1, 1},
      {0, -1, {"04 01 41 00 00"}, "41", 0, 5},
  };
  for (const auto &[primitive, length, slices, content, left, total] : rows) {
    SCOPED_TRACE(::testing::PrintToString(slices));
    Push push(kString);
    EXPECT_EQ(push.feed_content(""), 0) << "there is no content yet";
    if (primitive != kWhole) {
      EXPECT_EQ(push.begin(primitive, length), 1);
      EXPECT_EQ(push.begin(primitive, length), 0) << "once";
    }
    for (const char *slice : slices) {
      EXPECT_EQ(primitive == kWhole ? push.feed(slice) : push.feed_content(slice), 1);
    }
    EXPECT_EQ(push.left, left);
    EXPECT_EQ(push.total(), total);
    EXPECT_EQ(push.got(), hex(content));
    EXPECT_EQ(push.finished(), total >= 0);
    EXPECT_EQ(push.feed_content(""), total >= 0 ? 0 : 1) << "nor is there after it";
  }
  Push push(kString);
  EXPECT_EQ(push.begin(1, -1), 0);
  EXPECT_EQ(push.begin(0, -2), 0);
  EXPECT_EQ(push.feed("04 01 41"), 1) << "it is as it was";
}

// Each row fails at its last octet, and not before.
void expect_failure(Kind kind, const Octets &octets) {
  SCOPED_TRACE(::testing::PrintToString(octets));
  EXPECT_EQ(fed(kind, octets, {size(octets)}).result, 0);
  Push push(kind);
  for (std::size_t i = 0; i < octets.size(); i++) {
    EXPECT_EQ(push.feed(&octets[i], 1), i + 1 < octets.size() ? 1 : 0) << i;
  }
  EXPECT_EQ(push.feed(""), 0) << "after a failure all fails";
  EXPECT_FALSE(push.finished());
}

TEST(Push, what_cannot_become_an_element_fails_at_once) {
  for (const char *row :
       {"04 80", "30 FF", "00 01", "9F 81", "9F 1E 81", "9F 01 00 00 00 00 00 00 00 00",
        "04 88 80 00 00 00 00 00 00 00", "04 89 01 00 00 00 00 00 00 00 00", "30 80 00 01",
        "30 80 04 80", "30 05 02 04", "30 01 30 80", "30 02 02 82 01 00", "30 02 30 80 00",
        "30 04 30 80 02 01 07", "30 05 30 80 02 01 07 00", "30 06 30 80 02 01 07 00 00",
        "30 08 30 03 02 01 07 02 02"}) {
    expect_failure(kAny, hex(row));
  }
  for (const char *row : {"0C", "00", "44", "1F", "24 80 05", "24 80 A4", "24 80 00 01", "24 04 00",
                          "04 80", "24 03 04 02", "24 80 24 03 04 02"}) {
    expect_failure(kString, hex(row));
  }
  Octets deep = nested(129, {});
  deep.resize(258);
  expect_failure(kAny, deep);
  deep[257] = 0;  // empty constructed content is a level, too
  expect_failure(kAny, deep);
}

struct Peeked {
  int result;
  std::uint32_t tag_class = 9, primitive = 9;
  std::uint64_t tag_number = 9;
  std::int64_t length = 9, left = 9;
  bool operator==(const Peeked &) const = default;
};

Peeked peek(Push &push, int fresh, const Octets &slice) {
  Peeked got{};
  got.result = quarn_asn1_decode_any_identifier_length(push.any.get(), fresh, slice.data(),
                                                       size(slice), &got.tag_class, &got.primitive,
                                                       &got.tag_number, &got.length, &got.left);
  return got;
}

TEST(Push, a_header_can_be_looked_at_before_its_content) {
  const struct {
    const char *octets;
    Peeked header;
  } rows[] = {
      {"30 82 01 00", {1, 0, 0, 16, 256, 0}},
      {"30 80 02 01", {1, 0, 0, 16, -1, 2}},
      {"DF 01 00 82 00 02 41 42 FF", {1, 0xC0, 1, 128, 2, 3}},
      {"05 00 FF", {1, 0, 1, 5, 0, 1}},
      {"00 00 FF", {1, 0, 1, 0, 0, 1}},
  };
  for (const auto &[digits, header] : rows) {
    const Octets octets = hex(digits);
    for (auto cut = octets.begin(); cut < octets.end() - header.left; cut++) {
      Push push(kAny);
      const Peeked first = peek(push, 1, Octets(octets.begin(), cut));
      EXPECT_TRUE(first.result == QUARN_ASN1_MORE && first.left == 0);
      EXPECT_TRUE(peek(push, 0, Octets(cut, octets.end())) == header) << digits;
      EXPECT_EQ(peek(push, 0, hex("00")).result, 0) << "it has been told";
    }
  }
  Push push(kAny);
  EXPECT_EQ(peek(push, 1, hex("04 02 41 42 FF")).left, 3);
  EXPECT_EQ(push.feed("41 42 FF"), 1);
  EXPECT_EQ(push.left, 1);
  EXPECT_EQ(push.got(), hex("04 02 41 42"));
  Push begun(kAny);
  EXPECT_EQ(peek(begun, 0, hex("30")).result, QUARN_ASN1_MORE);
  EXPECT_EQ(peek(begun, 1, hex("03")).result, 0) << "not fresh, but unharmed:";
  EXPECT_EQ(peek(begun, 0, hex("03")).result, 1);
  Push bad(kAny);
  EXPECT_EQ(peek(bad, 1, hex("30 FF")).result, 0);
  EXPECT_EQ(peek(bad, 0, {}).result, 0);
}

TEST(Push, an_element_becomes_a_value) {
  Push push(kAny);
  void *value = &push;
  EXPECT_EQ(push.value(QUARN_ASN1_INTEGER, &value), QUARN_ASN1_MORE);
  EXPECT_EQ(value, nullptr);
  EXPECT_EQ(push.feed("02 01 05"), 1);
  EXPECT_EQ(push.got(QUARN_ASN1_INTEGER), hex("02 01 05"));
  EXPECT_EQ(push.got(QUARN_ASN1_INTEGER), hex("02 01 05")) << "again";
  EXPECT_EQ(push.value(QUARN_ASN1_BOOLEAN, &value), 0);
  EXPECT_EQ(push.value(-1, &value), 0);
  EXPECT_EQ(push.value(QUARN_ASN1_INTEGER, nullptr), 0);
  EXPECT_EQ(quarn_asn1_decode_any_ctx_iseoc(push.any.get()), 0);

  // To X.690 this is an element of three octets, and others after it.
  Push trailing(kAny);
  EXPECT_EQ(trailing.feed("9F 1F 00 81 01 41"), 1);
  EXPECT_TRUE(trailing.finished());
  EXPECT_EQ(trailing.value(QUARN_ASN1_ANY, &value), 0);
  EXPECT_EQ(value, nullptr);

  Push end(kAny);
  for (const int is_end : {0, 1}) {
    EXPECT_EQ(end.feed("00"), 1);
    EXPECT_EQ(quarn_asn1_decode_any_ctx_iseoc(end.any.get()), is_end);
  }
  Push deep(kAny);
  EXPECT_EQ(deep.feed(nested(128, hex("02 01 05"))), 1);
  EXPECT_EQ(deep.value(QUARN_ASN1_ANY, &value), 0x10008);
}

TEST(Push, bad_arguments_do_no_harm) {
  const Octets octets = hex("04 01 41");
  Push any(kAny);
  Push string(kString);
  EXPECT_EQ(quarn_asn1_decode_any_update(nullptr, octets.data(), 3, &any.left), 0);
  EXPECT_EQ(any.left, 0);
  EXPECT_EQ(quarn_asn1_decode_any_update(any.any.get(), octets.data(), 3, nullptr), 0);
  EXPECT_EQ(any.feed(octets.data(), -1), 0);
  EXPECT_EQ(any.feed(nullptr, 1), 0);
  EXPECT_EQ(any.feed(nullptr, 0), 1);
  EXPECT_EQ(any.feed(octets), 1);
  EXPECT_EQ(Push(kString, nullptr).feed(octets), 0);
  EXPECT_EQ(string.feed(octets), 1);
  EXPECT_TRUE(any.finished() && string.finished());
  EXPECT_EQ(quarn_asn1_decode_any_isfinish(nullptr), 0);
  EXPECT_EQ(quarn_asn1_decode_octetstring_ctx_getencodelength(nullptr), -1);
}

TEST(Push, failed_allocations_and_writes_are_failures) {
  Octets octets(1000, 0x41);
  octets[0] = 0x04, octets[1] = 0x82, octets[2] = 0x03, octets[3] = 0xE4;
  fail_each_allocation([&](Allocation &allocation) {
    const std::unique_ptr<quarn_asn1_decode_any_ctx, FreeAny> c(quarn_asn1_decode_any_ctx_new());
    ASSERT_EQ(c == nullptr, allocation.failed());
    std::int64_t left = 0;
    for (const std::uint8_t octet : octets) quarn_asn1_decode_any_update(c.get(), &octet, 1, &left);
    ASSERT_EQ(quarn_asn1_decode_any_isfinish(c.get()) == 1, !allocation.failed());
    void *value = nullptr;
    quarn_asn1_decode_any_ctx_toobject(c.get(), QUARN_ASN1_OCTETSTRING, &value);
    ASSERT_EQ(value == nullptr, allocation.failed());
    quarn_asn1_value_free(QUARN_ASN1_OCTETSTRING, value);
  });
  SlowSink sink;
  sink.fail_after(1);
  Push push(kString, sink.stream());
  EXPECT_EQ(push.feed("24 80 04 01 41 04 01 42 04 01 43"), 0);
  EXPECT_EQ(sink.octets(), hex("41"));
  EXPECT_EQ(push.feed("44"), 0);
}

TEST(Push, memory_is_that_of_what_arrived) {
  const Octets slice(0x10000, 0x41);
  SlowSink sink;
  Allocation allocation;
  {
    Push any(kAny);
    ASSERT_EQ(any.feed("04 88 7F FF FF FF FF FF FF FF"), 1);
    ASSERT_EQ(any.feed("41"), 1);
    Push string(kString, sink.stream());
    ASSERT_EQ(string.feed("24 80 04 83 10 00 00"), 1);
    for (int i = 0; i < 16; i++) ASSERT_EQ(string.feed(slice), 1);
    EXPECT_LT(allocation.peak_octets(), 10000u) << "nothing for a claimed length or for content";
  }
  EXPECT_EQ(sink.octets().size(), 0x100000u);
  EXPECT_EQ(allocation.live_blocks(), 0);
}

}  // namespace
}  // namespace quarn::test
