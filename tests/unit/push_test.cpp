// Push decoders. How an encoding is cut into slices makes no difference, except for the counts of
// the slice in which it ends and for empty content at its end.
#include <random>

#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

using Numbers = std::vector<std::int64_t>;

std::int64_t size(const Octets &octets) {
  return static_cast<std::int64_t>(octets.size());
}

using FreeAny = decltype([](auto *c) { quarn_asn1_decode_any_ctx_free(c); });
using FreeString = decltype([](auto *c) { quarn_asn1_decode_octetstring_ctx_free(c); });
enum Kind { kAny, kString };

// A push decoder of either kind. left is what the last slice left over.
struct Push {
  Kind kind;
  Stream out = growable();
  std::unique_ptr<quarn_asn1_decode_any_ctx, FreeAny> any{quarn_asn1_decode_any_ctx_new()};
  std::unique_ptr<quarn_asn1_decode_octetstring_ctx, FreeString> string{
      quarn_asn1_decode_octetstring_ctx_new()};
  std::int64_t left = -1;

  int feed(const std::uint8_t *data, std::int64_t length) {
    return kind == kAny
               ? quarn_asn1_decode_any_update(any.get(), data, length, &left)
               : quarn_asn1_decode_octetstring_update(string.get(), out.get(), data, length, &left);
  }
  int feed(const Octets &slice) { return feed(slice.data(), size(slice)); }
  int feed(const char *digits) { return feed(hex(digits)); }
  int feed_content(const Octets &slice) {
    return quarn_asn1_decode_octetstring_content_update(string.get(), out.get(), slice.data(),
                                                        size(slice), &left);
  }
  int begin(std::uint32_t primitive, std::int64_t length) {
    return quarn_asn1_decode_octetstring_ctx_setstate(string.get(), primitive, length);
  }

  bool finished() const {
    return (kind == kAny ? quarn_asn1_decode_any_isfinish(any.get())
                         : quarn_asn1_decode_octetstring_isfinish(string.get())) == 1;
  }
  int value(std::int64_t as, void **value) {
    return quarn_asn1_decode_any_ctx_toobject(any.get(), as, value);
  }
  // The content of a string, or the encoding of the element as a value.
  Octets got(std::int64_t as = QUARN_ASN1_ANY) {
    if (kind == kString) return held_by(out);
    void *object = nullptr;
    value(as, &object);
    return Held(as, object).encoding();
  }
};

struct Outcome {
  int result = 1;
  bool finished = false;
  std::int64_t taken = 0;
  Octets got{};
  bool operator==(const Outcome &) const = default;
};

// Feeds octets cut into slices, the last of which ends with them.
Outcome fed(Kind kind, const Octets &octets, const Numbers &cuts, std::int64_t as = 0) {
  Push push{kind};
  Outcome outcome;
  for (std::int64_t at = 0; const std::int64_t cut : cuts) {
    outcome.result = push.feed(octets.data() + at, cut - at);
    if (outcome.result != 1) return outcome;
    outcome.taken += cut - at - push.left;
    at = cut;
  }
  outcome.finished = push.finished();
  outcome.got = push.got(as);
  return outcome;
}

// In one piece, in two cut anywhere, octet by octet and cut at random it comes to the same, which
// is returned.
Outcome same_in_slices(Kind kind, const Octets &octets, std::int64_t as = QUARN_ASN1_ANY) {
  static std::minstd_rand generator(1);
  const auto random = [] { return static_cast<std::int64_t>(generator()); };
  const std::int64_t all = size(octets);
  const Outcome whole = fed(kind, octets, {all}, as);
  const auto expect = [&](const Numbers &cuts) {
    EXPECT_TRUE(fed(kind, octets, cuts, as) == whole) << ::testing::PrintToString(cuts);
  };
  for (std::int64_t cut = 0; cut <= all; cut++) expect({cut, all});
  for (int round = 0; round <= 1000; round++) {
    Numbers cuts{0};
    const std::int64_t most = random() % all + 1;
    while (cuts.back() < all) {
      const std::int64_t next = round == 0 ? 1 : random() % (most + 1);
      cuts.push_back(std::min(all, cuts.back() + next));
    }
    expect(cuts);
  }
  return whole;
}

TEST(Push, slices_make_no_difference) {
  const struct {
    Kind kind;
    const char *octets;
    std::int64_t taken;
    const char *got;  // nothing where open types, which look into an element, see another one
  } rows[] = {
      {kAny, "04 83 00 00 02 41 42 FF", 7, "04 83 00 00 02 41 42"},
      {kAny, "00 00 FF", 2, "00 00"},
      {kAny, "30 0A 30 80 02 01 05 00 00 02 01 07 FF", 12, "30 0A 30 80 02 01 05 00 00 02 01 07"},
      {kAny, "30 05 05 00 02 01 07", 4, ""},  // the empty item ends it
      {kAny, "30 07 30 05 05 00 02 01 07 FF", 9, "30 07 30 05 05 00 02 01 07"},
      {kAny, "30 04 00 00 01 00 FF", 4, ""},  // no end-of-contents, but an empty item
      {kAny, "9F 1F 00 81 01 41", 6, ""},     // to X.690 three octets, and others after it
      {kAny, "30 80 30 80 05 00 05 00 00 00", 8, ""},
      {kAny, "30 04 30 80 05 00 FF", 6, "30 04 30 80 05 00"},
      {kAny, "30 0B 30 80 30 09 05 00 02 01 07 00 00", 13,
       "30 0B 30 80 30 09 05 00 02 01 07 00 00"},
      {kAny, "BF 7F 7F 80 1F 00 20 81 01 41 00 00 FF", 12, ""},
      {kAny, "(30 80)*100 02 01 05 (00 00)*100", 403, "(30 80)*100 02 01 05 (00 00)*100"},
      {kAny, "(30 80)*128 02 01 05 (00 00)*128", 515, ""},  // the value has a limit, too
      {kString, "04 02 41 42 FF", 4, "41 42"},
      {kString, "04 81 00 FF", 3, ""},
      {kString, "24 06 04 01 41 04 01 42 FF", 8, "41 42"},
      {kString, "24 80 24 80 04 01 41 00 00 24 03 04 01 42 00 00", 16, "41 42"},
      {kString, "24 80 04 00 04 01 41 00 00", 4, ""},              // the empty segment ends it
      {kString, "24 80 24 04 04 00 04 01 42 00 00 FF", 11, "42"},  // it ends that around it only
  };
  for (const auto &[kind, octets, taken, got] : rows) {
    SCOPED_TRACE(octets);
    EXPECT_TRUE((same_in_slices(kind, hex(octets)) == Outcome{1, true, taken, hex(got)}));
  }
}

// Every type there is, with octets behind it. It is read to its end unless an empty item ends it.
TEST(Push, slices_make_no_difference_to_the_samples) {
  for (const Vector &sample : read_vectors(QUARN_SOURCE_DIR "/tests/vectors/gen/samples.vec")) {
    SCOPED_TRACE(sample.line);
    Octets octets = sample.in;
    octets.insert(octets.end(), {0xFF, 0xFF});
    const Outcome outcome = same_in_slices(kAny, octets, sample.type);
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
      {kWhole, 0, {"04 02 41 42 FF"}, "41 42", 1, 1},
      {kWhole, 0, {"04 02", "41 42 FF FF"}, "41 42", 2, 4},
      {kWhole, 0, {"04 02 41 42", "FF FF", ""}, "41 42", 0, 4},
      {kWhole, 0, {"04 02 41 42", "", "FF FF"}, "41 42", 2, 4},
      {kWhole, 0, {"04 00", ""}, "", 0, -1},
      {kWhole, 0, {"04 00", "FF FF FF"}, "", 3, 5},
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
    Push push{kString};
    EXPECT_EQ(push.feed_content({}), 0) << "there is no content yet";
    if (primitive != kWhole) {
      const auto form = static_cast<std::uint32_t>(primitive);
      EXPECT_TRUE(push.begin(form, length) == 1 && push.begin(form, length) == 0) << "once";
    }
    for (const char *slice : slices) {
      EXPECT_EQ(primitive == kWhole ? push.feed(slice) : push.feed_content(hex(slice)), 1);
    }
    EXPECT_EQ(push.left, left);
    EXPECT_EQ(quarn_asn1_decode_octetstring_ctx_getencodelength(push.string.get()), total);
    EXPECT_EQ(push.got(), hex(content));
    EXPECT_EQ(push.finished(), total >= 0);
    EXPECT_EQ(push.feed_content({}), total >= 0 ? 0 : 1) << "nor is there after it";
  }
  Push push{kString};
  EXPECT_TRUE(push.begin(1, -1) == 0 && push.begin(0, -2) == 0);
  EXPECT_EQ(push.feed("04 01 41"), 1) << "it is as it was";
}

// Each row fails at its last octet, and not before.
void expect_failure(Kind kind, const char *row) {
  SCOPED_TRACE(row);
  const Octets octets = hex(row);
  EXPECT_EQ(fed(kind, octets, {size(octets)}).result, 0);
  Push push{kind};
  for (std::size_t i = 0; i < octets.size(); i++) {
    EXPECT_EQ(push.feed(&octets[i], 1), i + 1 < octets.size() ? 1 : 0) << i;
  }
  EXPECT_EQ(push.left, 0);
  EXPECT_EQ(push.feed(""), 0) << "after a failure all fails";
  EXPECT_FALSE(push.finished());
}

TEST(Push, what_cannot_become_an_element_fails_at_once) {
  const char *const kElements[] = {
      // Headers.
      "04 80", "30 FF", "00 01", "9F 81", "9F 1E 81", "9F 01 00 00 00 00 00 00 00 00",
      "04 88 80 00 00 00 00 00 00 00", "04 89 01 00 00 00 00 00 00 00 00",
      // Content that is longer than what it is in, or no elements, and too many levels.
      "30 80 00 01", "30 80 04 80", "30 05 02 04", "30 01 30 80", "30 02 02 82 01 00",
      "30 02 30 80 00", "30 04 30 80 02 01 07", "30 05 30 80 02 01 07 00",
      "30 06 30 80 02 01 07 00 00", "30 08 30 03 02 01 07 02 02", "(30 80)*129",
      "(30 80)*128 30 00"};
  for (const char *row : kElements) expect_failure(kAny, row);
  for (const char *row : {"0C", "00", "44", "1F", "24 80 05", "24 80 A4", "24 80 00 01", "24 04 00",
                          "04 80", "24 03 04 02", "24 80 24 03 04 02"}) {
    expect_failure(kString, row);
  }
}

// The result, the class, whether primitive, the number, the length, and what is left.
Numbers peek(Push &push, int fresh, const Octets &slice) {
  std::uint32_t tag_class = 9;
  std::uint32_t primitive = 9;
  std::uint64_t number = 9;
  std::int64_t length = 9;
  const int result =
      quarn_asn1_decode_any_identifier_length(push.any.get(), fresh, slice.data(), size(slice),
                                              &tag_class, &primitive, &number, &length, &push.left);
  return {result, tag_class, primitive, static_cast<std::int64_t>(number), length, push.left};
}

TEST(Push, a_header_can_be_looked_at_before_its_content) {
  const std::pair<const char *, Numbers> rows[] = {
      {"30 82 01 00", {1, 0, 0, 16, 256, 0}},
      {"30 80 02 01", {1, 0, 0, 16, -1, 2}},
      {"DF 01 00 82 00 02 41 42 FF", {1, 0xC0, 1, 128, 2, 3}},
      {"00 00 FF", {1, 0, 1, 0, 0, 1}},
  };
  for (const auto &[digits, header] : rows) {
    const Octets octets = hex(digits);
    for (auto cut = octets.begin(); cut < octets.end() - header.back(); cut++) {
      Push push{kAny};
      EXPECT_EQ(peek(push, 1, Octets(octets.begin(), cut)).front(), QUARN_ASN1_MORE);
      EXPECT_EQ(push.left, 0);
      if (cut > octets.begin()) {
        EXPECT_EQ(peek(push, 1, {}).front(), 0) << "not fresh, but unharmed";
      }
      EXPECT_EQ(peek(push, 0, Octets(cut, octets.end())), header) << digits;
      EXPECT_EQ(peek(push, 0, hex("00")).front(), 0) << "it has been told";
    }
  }
  Push push{kAny};
  EXPECT_EQ(peek(push, 1, hex("04 02 41 42 FF")).back(), 3);
  EXPECT_EQ(push.feed("41 42 FF"), 1);
  EXPECT_EQ(push.left, 1);
  EXPECT_EQ(push.got(), hex("04 02 41 42"));
}

TEST(Push, an_element_becomes_a_value) {
  Push push{kAny};
  void *value = &push;
  EXPECT_EQ(push.value(QUARN_ASN1_INTEGER, &value), QUARN_ASN1_MORE);
  EXPECT_EQ(value, nullptr);
  EXPECT_EQ(push.feed("02 01 05"), 1);
  for (int i = 0; i < 2; i++) EXPECT_EQ(push.got(QUARN_ASN1_INTEGER), hex("02 01 05"));
  EXPECT_EQ(push.value(QUARN_ASN1_BOOLEAN, &value), 0);
  EXPECT_EQ(push.value(-1, &value), 0);
  EXPECT_EQ(push.value(QUARN_ASN1_INTEGER, nullptr), 0);
  EXPECT_EQ(quarn_asn1_decode_any_ctx_iseoc(push.any.get()), 0);
  Push end{kAny};
  for (const int is_end : {0, 1}) {
    EXPECT_EQ(end.feed("00"), 1);
    EXPECT_EQ(quarn_asn1_decode_any_ctx_iseoc(end.any.get()), is_end);
  }
  Push deep{kAny};
  EXPECT_EQ(deep.feed("(30 80)*128 02 01 05 (00 00)*128"), 1);
  EXPECT_EQ(deep.value(QUARN_ASN1_ANY, &value), 0x10008);
}

TEST(Push, bad_arguments_do_no_harm) {
  const Octets octets = hex("04 01 41");
  Push any{kAny};
  EXPECT_EQ(quarn_asn1_decode_any_update(nullptr, octets.data(), 3, &any.left), 0);
  EXPECT_EQ(quarn_asn1_decode_any_update(any.any.get(), octets.data(), 3, nullptr), 0);
  EXPECT_EQ(any.feed(octets.data(), -1), 0);
  EXPECT_EQ(any.feed(nullptr, 1), 0);
  EXPECT_EQ(any.feed(nullptr, 0), 1);
  EXPECT_EQ(any.got(), Octets{});
  EXPECT_EQ((Push{kString, nullptr}.feed(octets)), 0);
}

TEST(Push, failed_allocations_and_writes_are_failures) {
  const Octets octets = hex("04 82 03 E4 (41)*996");
  fail_each_allocation([&](Allocation &allocation) {
    Push push{kAny, nullptr};
    for (const std::uint8_t octet : octets) push.feed(&octet, 1);
    EXPECT_TRUE(push.finished() || allocation.failed());
    const Octets got = push.got(QUARN_ASN1_OCTETSTRING);
    EXPECT_TRUE(got == octets || (got.empty() && allocation.failed()));
  });
  SlowSink sink;
  sink.fail_after(1);
  Push push{kString, sink.stream()};
  EXPECT_EQ(push.feed("24 80 04 01 41 04 01 42 04 01 43"), 0);
  EXPECT_EQ(sink.octets(), hex("41"));
  EXPECT_EQ(push.feed("44"), 0);
}

TEST(Push, memory_is_that_of_what_arrived) {
  const Octets slice(0x10000, 0x41);
  SlowSink sink;
  const Allocation allocation;
  Push any{kAny};
  ASSERT_EQ(any.feed("04 88 7F FF FF FF FF FF FF FF"), 1);
  ASSERT_EQ(any.feed("41"), 1);
  Push string{kString, sink.stream()};
  ASSERT_EQ(string.feed("24 80 04 83 10 00 00"), 1);
  for (int i = 0; i < 16; i++) ASSERT_EQ(string.feed(slice), 1);
  EXPECT_LT(allocation.peak_octets(), 16000u) << "nothing for a claimed length or for content";
  EXPECT_EQ(sink.octets().size(), 0x100000u);
}

}  // namespace
}  // namespace quarn::test
