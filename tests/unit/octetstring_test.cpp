// OCTET STRING and character strings: values in memory and over streams, and their segments.
#include <gtest/gtest.h>

#include "tests/support/store.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

using String = Value<quarn_asn1_octetstring, QUARN_ASN1_OCTETSTRING>;

String string_of(const Octets &octets) {
  return String(
      quarn_asn1_octetstring_new(octets.data(), static_cast<std::int64_t>(octets.size())));
}

// A string in all the places where one can be.
struct Places {
  explicit Places(Octets content = {'a', 'b', 'c'}) : octets(std::move(content)) {}

  Octets octets;
  Store store{octets};
  Stream memory = growable(octets);
  Stream external = store.stream();
  String values[3] = {string_of(octets), String(quarn_asn1_octetstring_newstream(memory.get())),
                      String(quarn_asn1_octetstring_newstream(external.get()))};
};

TEST(OctetString, constructors_refuse_what_is_none) {
  EXPECT_EQ(quarn_asn1_octetstring_new(nullptr, 1), nullptr);
  EXPECT_EQ(quarn_asn1_octetstring_newstream(nullptr), nullptr);
  EXPECT_EQ(encoding_of(4, String(quarn_asn1_octetstring_new(nullptr, 0)).get()), (Octets{4, 0}));
}

TEST(OctetString, octets_are_read_in_pieces_of_any_size) {
  Places places;
  std::uint8_t buffer[8] = {};
  std::uint64_t count = 9;
  const Context ctx(quarn_err_ctx_new());
  const auto get = [&](const String &value, int mode, std::int64_t size) {
    return quarn_asn1_octetstring_get(value.get(), mode, buffer, size, &count, ctx.get());
  };
  for (const String &value : places.values) {
    for (const std::uint64_t expected : {2u, 1u, 0u}) {
      EXPECT_EQ(get(value, 2, 2), 1);
      EXPECT_EQ(count, expected);
    }
    EXPECT_EQ(get(value, 1, 0), 1) << "only rewinds";
    EXPECT_EQ(get(value, 2, 1), 1);
    EXPECT_EQ(quarn_asn1_string_get(value.get(), buffer), 1) << "all at once";
    EXPECT_EQ(Octets(buffer, buffer + 3), places.octets);
    EXPECT_EQ(get(value, 2, 8), 1);
    EXPECT_EQ(count, value == places.values[2] ? 0u : 2u) << "the position in memory stays";
  }
  EXPECT_EQ(get(places.values[0], 0, -1), 0);
  EXPECT_EQ(get(places.values[0], 1, -1), 0);
  places.store.seekable = false;
  EXPECT_EQ(get(places.values[2], 1, 0), 0);
  EXPECT_EQ(codes_in(ctx.get()), (Codes{0x10105, 0x10001, 0x10109}));
}

TEST(OctetString, an_object_inside_must_be_all_there_is) {
  const std::pair<const char *, Codes> cases[] = {
      {"04 01 07", {}}, {"04 01 07 00", {0x1027f}}, {"04 02 07", {0x10103, 0x10219, 0x10219}}};
  for (const auto &[octets, codes] : cases) {
    const Places places(hex(octets));
    for (const String &value : places.values) {
      const Context ctx(quarn_err_ctx_new());
      void *object = nullptr;
      quarn_asn1_octetstring_getobject(value.get(), 4, &object, ctx.get());
      EXPECT_EQ(codes_in(ctx.get()), codes);
      EXPECT_EQ(object != nullptr, codes.size() < 2) << "it is there when octets follow it";
      quarn_asn1_value_free(4, object);
    }
  }
}

TEST(OctetString, large_content_outside_memory_is_written_in_segments) {
  Store store;
  const Stream source = store.stream();
  const String value(quarn_asn1_octetstring_newstream(source.get()));
  store.size = 0x4fffff;
  EXPECT_EQ(quarn_asn1_octetstring_length(value.get()), 0x4fffff);
  EXPECT_TRUE(encoding_of(4, value.get()) == hex("04 83 4F FF FF (00)*5242879"));
  store.size = 0x500000;
  EXPECT_EQ(quarn_asn1_octetstring_length(value.get()), QUARN_ASN1_INDEFINITE);
  EXPECT_EQ(quarn_asn1_octetstring_getblob(value.get()), nullptr);
  std::uint8_t octet = 0;
  EXPECT_EQ(quarn_asn1_octetstring_getall(value.get(), &octet), 0);
  EXPECT_TRUE(encoding_of(4, value.get()) == hex("24 80 (04 82 20 00 (00)*8192)*640 00 00"));
}

TEST(OctetString, content_of_unknown_length_is_written_in_octetstring_segments) {
  Store store({'a', 'b'});
  store.knows_length = false;
  const Stream source = store.stream();
  const String value(quarn_asn1_octetstring_newstream(source.get()));
  const Octets expected = hex(R"(33 80 04 02 "ab" 00 00)");
  EXPECT_EQ(encoding_of(QUARN_ASN1_PRINTABLESTRING, value.get()), expected);
  EXPECT_EQ(encoding_of(QUARN_ASN1_PRINTABLESTRING, value.get()), expected) << "once more";
  store.seekable = false;
  const Context ctx(quarn_err_ctx_new());
  EXPECT_EQ(quarn_asn1_encode(growable().get(), 4, value.get(), nullptr, ctx.get()), 0);
  EXPECT_EQ(codes_in(ctx.get()), Codes{0x10109});
}

TEST(OctetString, a_length_that_is_not_true_is_noticed) {
  const Context ctx(quarn_err_ctx_new());
  Places places;
  const auto encode = [&](const String &value, std::int64_t length) {
    return quarn_asn1_encode_content(growable().get(), 4, value.get(), length, nullptr, ctx.get());
  };
  for (const String &value : places.values) {
    for (const std::int64_t length : {-2, 2, 4}) EXPECT_EQ(encode(value, length), 0);
    EXPECT_EQ(encode(value, 3), 1);
    EXPECT_EQ(encode(value, -1), 1) << "in segments, wherever it is";
  }
  EXPECT_EQ(codes_in(ctx.get()), Codes(9, 0x10004));
  quarn_err_ctx_clear(ctx.get());
  places.store.claimed = 0x500000;
  EXPECT_EQ(quarn_asn1_encode(growable().get(), 4, places.values[2].get(), nullptr, ctx.get()), 0);
  EXPECT_EQ(codes_in(ctx.get()), Codes{0x10116}) << "no octets, and not the end";
}

TEST(OctetString, a_value_can_be_written_to_the_stream_that_holds_it) {
  const Places places(Octets(300, 'x'));
  const Octets expected = hex(R"(("x")*300 04 82 01 2C ("x")*300)");
  const auto encode = [](const Stream &to, const String &value) {
    return quarn_asn1_encode(to.get(), 4, value.get(), nullptr, nullptr);
  };
  EXPECT_EQ(encode(places.memory, places.values[1]), 1);
  EXPECT_EQ(held_by(places.memory), expected);
  EXPECT_EQ(encode(places.external, places.values[2]), 1);
  EXPECT_EQ(places.store.octets, expected);
  Store endless({'x'});
  endless.knows_length = false;
  const Stream stream = endless.stream();
  EXPECT_EQ(encode(stream, String(quarn_asn1_octetstring_newstream(stream.get()))), 0);
}

TEST(OctetString, a_string_is_written_segment_by_segment) {
  const Stream s = growable();
  const std::uint8_t octets[] = {'a', 'b'};
  EXPECT_EQ(quarn_asn1_encode_octetstring_init(s.get()), 1);
  EXPECT_EQ(quarn_asn1_encode_octetstring_update(s.get(), octets, 2), 1);
  EXPECT_EQ(quarn_asn1_encode_octetstring_update(s.get(), nullptr, 0), 1);
  EXPECT_EQ(quarn_asn1_encode_octetstring_update(s.get(), nullptr, 1), 0);
  EXPECT_EQ(quarn_asn1_encode_octetstring_end(s.get()), 1);
  EXPECT_EQ(held_by(s), hex(R"(24 80 04 02 "ab" 04 00 00 00)"));
}

TEST(OctetString, content_is_decoded_to_the_end_of_a_stream_of_the_caller) {
  const Octets octets{0x24, 0x80, 0x04, 1, 'b', 0x04, 1, 'c', 0, 0};
  for (const bool whole : {true, false}) {
    SlowSource slow(Octets(octets.begin(), octets.end() - (whole ? 0 : 2)));
    const Stream destination = growable({'a'});
    quarn_asn1_octetstring *value = nullptr;
    EXPECT_EQ(quarn_asn1_decode_octetstring_ex(slow.stream().get(), destination.get(), &value,
                                               nullptr, nullptr) == 1,
              whole);
    const String owned(value);
    EXPECT_EQ(held_by(destination), (Octets{'a', 'b', 'c'})) << "after a failure too";
    EXPECT_EQ(encoding_of(4, value), whole ? Octets({4, 3, 'a', 'b', 'c'}) : Octets{});
  }
  const Stream both = growable(octets);
  quarn_asn1_octetstring *value = nullptr;
  EXPECT_EQ(quarn_asn1_decode_octetstring_ex(both.get(), both.get(), &value, nullptr, nullptr), 0)
      << "it would read what it writes";
}

TEST(OctetString, every_failing_call_is_a_failure_and_leaves_nothing) {
  const auto also = [](quarn_asn1_octetstring *string, const Stream &memory) {
    const String in_memory(quarn_asn1_octetstring_newstream(memory.get()));
    return quarn_asn1_encode(memory.get(), 12, string, nullptr, nullptr) == 1 &&
           Blob(quarn_asn1_octetstring_getblob(in_memory.get())) != nullptr &&
           quarn_asn1_encode(memory.get(), 4, in_memory.get(), nullptr, nullptr) == 1;
  };
  fail_each_call(hex("24 80 04 02 04 01 24 03 04 01 61 00 00"), [&](Store &from, Store &to) {
    return use_over<quarn_asn1_octetstring>(from, to, 4, quarn_asn1_decode_octetstring_ex,
                                            quarn_asn1_octetstring_getobject, also);
  });
}

}  // namespace
}  // namespace quarn::test
