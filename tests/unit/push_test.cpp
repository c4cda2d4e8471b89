// Push decoders. How an encoding is cut into slices makes no difference, except for the counts of
// the slice in which it ends and for empty content at its end.
#include <numeric>
#include <random>

#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

using Slices = std::vector<Octets>;

std::int64_t size(const Octets &octets) {
  return static_cast<std::int64_t>(octets.size());
}

// "(30 80)*n inner (00 00)*n"
Octets nested(int levels, const Octets &inner) {
  Octets octets;
  for (int i = 0; i < levels; i++) octets.insert(octets.end(), {0x30, 0x80});
  octets.insert(octets.end(), inner.begin(), inner.end());
  octets.resize(octets.size() + 2 * static_cast<std::size_t>(levels));
  return octets;
}

struct Any {
  Any() : c(quarn_asn1_decode_any_ctx_new()) {}
  ~Any() { quarn_asn1_decode_any_ctx_free(c); }
  Any(const Any &) = delete;
  Any &operator=(const Any &) = delete;

  int update(const Octets &slice, std::int64_t *left) {
    return quarn_asn1_decode_any_update(c, slice.data(), size(slice), left);
  }
  bool finished() const { return quarn_asn1_decode_any_isfinish(c) == 1; }
  // The element as an open type keeps it.
  Octets got() {
    void *value = nullptr;
    if (quarn_asn1_decode_any_ctx_toobject(c, QUARN_ASN1_ANY, &value) != 1) return {};
    const Value<void, QUARN_ASN1_ANY> any(value);
    return encoding_of(QUARN_ASN1_ANY, value);
  }

  quarn_asn1_decode_any_ctx *c;
};

struct String {
  String() : c(quarn_asn1_decode_octetstring_ctx_new()), out(growable()) {}
  ~String() { quarn_asn1_decode_octetstring_ctx_free(c); }
  String(const String &) = delete;
  String &operator=(const String &) = delete;

  int update(const Octets &slice, std::int64_t *left) {
    return quarn_asn1_decode_octetstring_update(c, out.get(), slice.data(), size(slice), left);
  }
  int content(const Octets &slice, std::int64_t *left) {
    const auto count = size(slice);
    return quarn_asn1_decode_octetstring_content_update(c, out.get(), slice.data(), count, left);
  }
  bool finished() const { return quarn_asn1_decode_octetstring_isfinish(c) == 1; }
  Octets got() const { return held_by(out); }
  std::int64_t total() const { return quarn_asn1_decode_octetstring_ctx_getencodelength(c); }

  quarn_asn1_decode_octetstring_ctx *c;
  Stream out;
};

struct Outcome {
  int result = 1;
  bool finished = false;
  std::int64_t taken = 0;
  Octets got{};
  bool operator==(const Outcome &) const = default;
};

template <typename Decoder>
Outcome fed(const Slices &slices) {
  Decoder decoder;
  Outcome outcome;
  for (const Octets &slice : slices) {
    std::int64_t left = -1;
    outcome.result = decoder.update(slice, &left);
    if (outcome.result != 1) {
      EXPECT_EQ(left, 0);
      return outcome;
    }
    outcome.taken += size(slice) - left;
  }
  outcome.finished = decoder.finished();
  outcome.got = decoder.got();
  return outcome;
}

template <typename Decoder>
void expect_same_in_slices(const Octets &octets, const Outcome &expected, std::mt19937 &random) {
  const auto expect = [&](const Slices &slices) {
    const Outcome outcome = fed<Decoder>(slices);
    EXPECT_TRUE(outcome == expected)
        << "slices: " << slices.size() << ", first of " << slices[0].size() << ": result "
        << outcome.result << ", taken " << outcome.taken << ", kept " << outcome.got.size();
  };
  const auto at = [&](std::size_t i) { return octets.begin() + static_cast<std::ptrdiff_t>(i); };
  for (std::size_t cut = 0; cut <= octets.size(); cut++) {
    expect({Octets(at(0), at(cut)), Octets(at(cut), octets.end())});
  }
  Slices slices;
  for (const std::uint8_t octet : octets) slices.push_back({octet});
  expect(slices);
  for (int round = 0; round < 1000; round++) {
    slices.clear();
    for (std::size_t i = 0; i < octets.size();) {
      const std::size_t next = std::min(octets.size(), i + random() % 6);
      slices.push_back(Octets(at(i), at(next)));
      i = next;
    }
    expect(slices);
  }
}

TEST(Push, slices_make_no_difference_to_an_element) {
  std::mt19937 random(1);
  const struct {
    Octets octets;
    std::int64_t taken;
    bool is_encoding;  // to X.690, too, as far as open types look into it
  } rows[] = {
      {hex("02 01 05 FF"), 3, true},
      {hex("30 03 02 01 05 FF FF"), 5, true},
      {hex("04 83 00 00 02 41 42 FF"), 7, true},
      {hex("00 00 FF"), 2, true},
      {hex("A0 80 02 01 05 30 80 04 01 41 00 00 00 00 00"), 14, true},
      {hex("30 0A 30 80 02 01 05 00 00 02 01 07 FF"), 12, true},
      {hex("30 05 02 01 07 05 00 FF"), 7, true},
      {hex("30 00 FF"), 2, true},
      {hex("30 05 05 00 02 01 07"), 4, false},          // the empty item ends it
      {hex("30 07 30 05 05 00 02 01 07 FF"), 9, true},  // 02 belongs to the outer content here
      {hex("30 04 00 00 01 00 FF"), 4, false},          // no end-of-contents, but an empty item
      {hex("30 80 30 80 05 00 05 00 00 00"), 8, false},
      {hex("30 04 30 80 05 00 FF"), 6, true},  // complete with its last octet all the same
      {hex("30 0B 30 80 30 09 05 00 02 01 07 00 00"), 13, true},  // 30 09 ends in time
      {hex("9F 1F 81 02 41 42 FF"), 6, true},
      {hex("BF 7F 7F 80 1F 00 20 81 01 41 00 00 FF"), 12, false},
      {nested(128, hex("02 01 05")), 515, false},  // X.690 sets no limit, but the value has one
      {nested(100, hex("02 01 05")), 403, true},
  };
  for (const auto &[octets, taken, is_encoding] : rows) {
    SCOPED_TRACE(::testing::PrintToString(octets));
    const Octets got(octets.begin(), octets.begin() + (is_encoding ? taken : 0));
    expect_same_in_slices<Any>(octets, {1, true, taken, got}, random);
  }
}

TEST(Push, slices_make_no_difference_to_a_string) {
  std::mt19937 random(2);
  const struct {
    Octets octets;
    std::int64_t taken;
    Octets content;
  } rows[] = {
      {hex("04 02 41 42 FF"), 4, hex("41 42")},
      {hex("04 81 00 FF"), 3, {}},
      {hex("24 80 04 02 41 42 04 01 43 00 00 FF"), 11, hex("41 42 43")},
      {hex("24 06 04 01 41 04 01 42 FF"), 8, hex("41 42")},
      {hex("24 80 24 80 04 01 41 00 00 24 03 04 01 42 00 00"), 16, hex("41 42")},
      {hex("24 80 04 00 04 01 41 00 00"), 4, {}},                   // the empty segment ends it
      {hex("24 80 24 04 04 00 04 01 42 00 00 FF"), 11, hex("42")},  // it ends that around it only
  };
  for (const auto &[octets, taken, content] : rows) {
    SCOPED_TRACE(::testing::PrintToString(octets));
    expect_same_in_slices<String>(octets, {1, true, taken, content}, random);
  }
}

TEST(Push, counts_depend_on_the_slice_in_which_a_string_ends) {
  const struct {
    Slices slices;
    std::int64_t left, total;
  } rows[] = {
      {{hex("04 02 41 42")}, 0, 4},
      {{hex("04 02"), hex("41 42")}, 0, 4},
      {{hex("04 02 41 42 FF")}, 1, 1},
      {{hex("04 02"), hex("41 42 FF FF")}, 2, 4},
      {{hex("04 02 41 42"), hex("FF FF"), {}}, 0, 4},
      {{hex("04 02 41 42"), {}, hex("FF FF")}, 2, 4},
      {{hex("04 00")}, 0, -1},
      {{hex("04 00"), {}}, 0, -1},
      {{hex("04 00"), hex("FF FF FF")}, 3, 5},
      {{hex("24 05 04 01 41 04 00")}, 0, -1},
      {{hex("24 05 04 01 41 04 00"), hex("FF")}, 1, 8},
      {{hex("24 04 04 00 04 00")}, 2, 2},
  };
  for (const auto &[slices, left, total] : rows) {
    SCOPED_TRACE(::testing::PrintToString(slices));
    String string;
    std::int64_t last_left = -1;
    for (const Octets &slice : slices) EXPECT_EQ(string.update(slice, &last_left), 1);
    EXPECT_EQ(last_left, left);
    EXPECT_EQ(string.total(), total);
    EXPECT_EQ(string.finished(), total >= 0);
  }
}

// Each row fails at its last octet, and not before.
template <typename Decoder>
void expect_failure(const Octets &octets) {
  SCOPED_TRACE(::testing::PrintToString(octets));
  EXPECT_EQ(fed<Decoder>({octets}).result, 0);
  Decoder decoder;
  std::int64_t left = 0;
  for (std::size_t i = 0; i < octets.size(); i++) {
    EXPECT_EQ(decoder.update({octets[i]}, &left), i + 1 < octets.size() ? 1 : 0) << i;
  }
  EXPECT_EQ(decoder.update({}, &left), 0) << "after a failure all fails";
  EXPECT_FALSE(decoder.finished());
}

TEST(Push, what_cannot_become_an_element_fails_at_once) {
  for (const char *row :
       {"04 80", "30 FF", "00 01", "9F 81", "9F 1E 81", "9F 01 00 00 00 00 00 00 00 00",
        "04 88 80 00 00 00 00 00 00 00", "04 89 01 00 00 00 00 00 00 00 00", "30 80 00 01",
        "30 80 04 80", "30 05 02 04", "30 01 30 80", "30 02 02 82 01 00", "30 02 30 80 00",
        "30 04 30 80 02 01 07", "30 05 30 80 02 01 07 00", "30 06 30 80 02 01 07 00 00",
        "30 08 30 03 02 01 07 02 02"}) {
    expect_failure<Any>(hex(row));
  }
  for (const char *row : {"0C", "00", "44", "1F", "24 80 05", "24 80 A4", "24 80 00 01", "24 04 00",
                          "04 80", "24 03 04 02", "24 80 24 03 04 02"}) {
    expect_failure<String>(hex(row));
  }
  Octets deep = nested(129, {});
  deep.resize(258);
  expect_failure<Any>(deep);
  deep[257] = 0;  // empty constructed content is a level, too
  expect_failure<Any>(deep);
}

struct Peeked {
  int result;
  std::uint32_t tag_class = 9, primitive = 9;
  std::uint64_t tag_number = 9;
  std::int64_t length = 9, left = 9;
};

Peeked peek(Any &any, int fresh, const Octets &slice) {
  Peeked got{};
  got.result = quarn_asn1_decode_any_identifier_length(any.c, fresh, slice.data(), size(slice),
                                                       &got.tag_class, &got.primitive,
                                                       &got.tag_number, &got.length, &got.left);
  return got;
}

TEST(Push, a_header_can_be_looked_at_before_its_content) {
  const struct {
    Octets octets;
    std::uint32_t tag_class, primitive;
    std::uint64_t tag_number;
    std::int64_t length, left;
  } rows[] = {
      {hex("30 82 01 00"), 0, 0, 16, 256, 0},
      {hex("30 80 02 01"), 0, 0, 16, -1, 2},
      {hex("DF 01 00 82 00 02 41 42 FF"), 0xC0, 1, 128, 2, 3},
      {hex("05 00 FF"), 0, 1, 5, 0, 1},
      {hex("00 00 FF"), 0, 1, 0, 0, 1},
  };
  for (const auto &row : rows) {
    const auto header = row.octets.size() - static_cast<std::size_t>(row.left);
    for (std::size_t cut = 0; cut < header; cut++) {
      const auto middle = row.octets.begin() + static_cast<std::ptrdiff_t>(cut);
      Any any;
      const Peeked first = peek(any, 1, Octets(row.octets.begin(), middle));
      EXPECT_TRUE(first.result == QUARN_ASN1_MORE && first.left == 0);
      const Peeked got = peek(any, 0, Octets(middle, row.octets.end()));
      EXPECT_EQ(got.result, 1);
      EXPECT_TRUE(got.tag_class == row.tag_class && got.primitive == row.primitive);
      EXPECT_TRUE(got.tag_number == row.tag_number && got.length == row.length);
      EXPECT_EQ(got.left, row.left);
      EXPECT_EQ(peek(any, 0, hex("00")).result, 0) << "it has been told";
    }
  }
  Any any;
  std::int64_t left = -1;
  EXPECT_EQ(peek(any, 1, hex("04 02 41 42 FF")).left, 3);
  EXPECT_EQ(any.update(hex("41 42 FF"), &left), 1);
  EXPECT_EQ(left, 1);
  EXPECT_EQ(any.got(), hex("04 02 41 42"));
  Any begun;
  EXPECT_EQ(peek(begun, 0, hex("30")).result, QUARN_ASN1_MORE);
  EXPECT_EQ(peek(begun, 1, hex("03")).result, 0) << "not fresh, but unharmed:";
  EXPECT_EQ(peek(begun, 0, hex("03")).result, 1);
  Any bad;
  EXPECT_EQ(peek(bad, 1, hex("30 FF")).result, 0);
  EXPECT_EQ(peek(bad, 0, {}).result, 0);
}

TEST(Push, an_element_becomes_a_value) {
  Any any;
  std::int64_t left = 0;
  void *value = &any;
  EXPECT_EQ(quarn_asn1_decode_any_ctx_toobject(any.c, QUARN_ASN1_INTEGER, &value), -100);
  EXPECT_EQ(value, nullptr);
  EXPECT_EQ(any.update(hex("02 01 05"), &left), 1);
  for (int again = 0; again < 2; again++) {
    EXPECT_EQ(quarn_asn1_decode_any_ctx_toobject(any.c, QUARN_ASN1_INTEGER, &value), 1);
    const Value<void, QUARN_ASN1_INTEGER> integer(value);
    EXPECT_EQ(encoding_of(QUARN_ASN1_INTEGER, value), hex("02 01 05"));
  }
  EXPECT_EQ(quarn_asn1_decode_any_ctx_toobject(any.c, QUARN_ASN1_BOOLEAN, &value), 0);
  EXPECT_EQ(quarn_asn1_decode_any_ctx_toobject(any.c, -1, &value), 0);
  EXPECT_EQ(quarn_asn1_decode_any_ctx_toobject(any.c, QUARN_ASN1_INTEGER, nullptr), 0);
  EXPECT_EQ(quarn_asn1_decode_any_ctx_iseoc(any.c), 0);

  // To X.690 this is an element of three octets, and others after it.
  Any trailing;
  EXPECT_EQ(trailing.update(hex("9F 1F 00 81 01 41"), &left), 1);
  EXPECT_TRUE(trailing.finished());
  EXPECT_EQ(quarn_asn1_decode_any_ctx_toobject(trailing.c, QUARN_ASN1_ANY, &value), 0);
  EXPECT_EQ(value, nullptr);

  Any end;
  EXPECT_EQ(end.update(hex("00"), &left), 1);
  EXPECT_EQ(quarn_asn1_decode_any_ctx_iseoc(end.c), 0);
  EXPECT_EQ(end.update(hex("00"), &left), 1);
  EXPECT_EQ(quarn_asn1_decode_any_ctx_iseoc(end.c), 1);

  Any deep;
  EXPECT_EQ(deep.update(nested(128, hex("02 01 05")), &left), 1);
  EXPECT_EQ(quarn_asn1_decode_any_ctx_toobject(deep.c, QUARN_ASN1_ANY, &value), 0x10008);
}

TEST(Push, a_string_can_go_on_behind_a_header_of_the_caller) {
  const struct {
    std::uint32_t primitive;
    std::int64_t length;
    Octets octets, content;
    std::int64_t left, total;
  } rows[] = {
      {1, 2, hex("41 42"), hex("41 42"), 0, 2},        {1, 0, hex("41"), {}, 1, 1},
      {0, 3, hex("04 01 41"), hex("41"), 0, 3},        {0, 0, hex("04"), {}, 1, 1},
      {0, -1, hex("04 01 41 00 00"), hex("41"), 0, 5},
  };
  std::int64_t left = -1;
  for (const auto &row : rows) {
    String string;
    EXPECT_EQ(string.content({}, &left), 0) << "there is no content yet";
    EXPECT_EQ(quarn_asn1_decode_octetstring_ctx_setstate(string.c, row.primitive, row.length), 1);
    EXPECT_EQ(quarn_asn1_decode_octetstring_ctx_setstate(string.c, row.primitive, row.length), 0);
    EXPECT_EQ(string.content({}, &left), 1);
    EXPECT_EQ(string.content(row.octets, &left), 1);
    EXPECT_EQ(left, row.left);
    EXPECT_EQ(string.got(), row.content);
    EXPECT_EQ(string.total(), row.total);
    EXPECT_EQ(string.content({}, &left), 0) << "nor after it";
  }
  String string;
  EXPECT_EQ(quarn_asn1_decode_octetstring_ctx_setstate(string.c, 1, -1), 0);
  EXPECT_EQ(quarn_asn1_decode_octetstring_ctx_setstate(string.c, 0, -2), 0);
  EXPECT_EQ(string.update(hex("04 01 41"), &left), 1) << "it is as it was";
}

TEST(Push, bad_arguments_do_no_harm) {
  std::int64_t left = -1;
  Any any;
  String string;
  const Octets octets = hex("04 01 41");
  EXPECT_EQ(quarn_asn1_decode_any_update(nullptr, octets.data(), 3, &left), 0);
  EXPECT_EQ(left, 0);
  EXPECT_EQ(quarn_asn1_decode_any_update(any.c, octets.data(), 3, nullptr), 0);
  EXPECT_EQ(quarn_asn1_decode_any_update(any.c, octets.data(), -1, &left), 0);
  EXPECT_EQ(quarn_asn1_decode_any_update(any.c, nullptr, 1, &left), 0);
  EXPECT_EQ(quarn_asn1_decode_any_update(any.c, nullptr, 0, &left), 1);
  EXPECT_EQ(any.update(octets, &left), 1);
  EXPECT_EQ(quarn_asn1_decode_octetstring_update(string.c, nullptr, octets.data(), 3, &left), 0);
  EXPECT_EQ(string.update(octets, &left), 1);
  EXPECT_TRUE(any.finished() && string.finished());
  EXPECT_EQ(quarn_asn1_decode_any_isfinish(nullptr), 0);
  EXPECT_EQ(quarn_asn1_decode_octetstring_ctx_getencodelength(nullptr), -1);
}

TEST(Push, failed_allocations_and_writes_are_failures) {
  Octets octets(1000, 0x41);
  octets[0] = 0x04, octets[1] = 0x82, octets[2] = 0x03, octets[3] = 0xE4;
  fail_each_allocation([&](Allocation &allocation) {
    Any any;
    ASSERT_EQ(any.c == nullptr, allocation.failed());
    std::int64_t left = 0;
    for (const std::uint8_t octet : octets) any.update({octet}, &left);
    ASSERT_EQ(any.finished(), !allocation.failed());
    void *value = nullptr;
    quarn_asn1_decode_any_ctx_toobject(any.c, QUARN_ASN1_OCTETSTRING, &value);
    ASSERT_EQ(value == nullptr, allocation.failed());
    quarn_asn1_value_free(QUARN_ASN1_OCTETSTRING, value);
  });
  String string;
  SlowSink sink;
  sink.fail_after(1);
  string.out = sink.stream();
  std::int64_t left = 0;
  EXPECT_EQ(string.update(hex("24 80 04 01 41 04 01 42 04 01 43"), &left), 0);
  EXPECT_EQ(sink.octets(), hex("41"));
  EXPECT_EQ(string.update(hex("44"), &left), 0);
}

TEST(Push, memory_is_that_of_what_arrived) {
  Allocation allocation;
  std::int64_t left = 0;
  const Octets slice(0x10000, 0x41);
  {
    Any any;
    ASSERT_EQ(any.update(hex("04 88 7F FF FF FF FF FF FF FF"), &left), 1);
    ASSERT_EQ(any.update({0x41}, &left), 1);
    EXPECT_LT(allocation.peak_octets(), 4096u) << "a claimed length costs nothing";
  }
  SlowSink sink;
  {
    String string;
    string.out = sink.stream();
    ASSERT_EQ(string.update(hex("24 80 04 83 10 00 00"), &left), 1);
    for (int i = 0; i < 16; i++) ASSERT_EQ(string.update(slice, &left), 1);
    EXPECT_LT(allocation.peak_octets(), 4096u) << "content is not kept";
  }
  EXPECT_EQ(sink.octets().size(), 0x100000u);
  EXPECT_EQ(allocation.live_blocks(), 0);
}

}  // namespace
}  // namespace quarn::test
