// Open types: construction, content in a caller's stream, and conversion to and from other values.
#include <gtest/gtest.h>

#include <tuple>

#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

using Any = Value<quarn_asn1_any, QUARN_ASN1_ANY>;

Any any_of(const char *text) {
  return decoded<quarn_asn1_any, QUARN_ASN1_ANY>(hex(text));
}

Any new_any(std::uint32_t tag_class, std::uint64_t number, std::int64_t length, const Octets &c) {
  const auto count = static_cast<std::int64_t>(c.size());
  return Any(quarn_asn1_any_new(tag_class, 0, number, length, c.data(), count));
}

using Convert = int (*)(quarn_asn1_any *, std::int64_t, void **, quarn_err_ctx *);

// The codes that a conversion of some octets to an INTEGER leaves; what it gives, 5, is checked.
Codes to_integer(Convert convert, quarn_asn1_any *v) {
  const Context ctx(quarn_err_ctx_new());
  void *value = &value;
  const int result = convert(v, QUARN_ASN1_INTEGER, &value, ctx.get());
  EXPECT_EQ(result == 1, value != nullptr);
  if (value != nullptr) {
    EXPECT_EQ(encoding_of(QUARN_ASN1_INTEGER, value), hex("02 01 05"));
  }
  quarn_asn1_value_free(QUARN_ASN1_INTEGER, value);
  return codes_in(ctx.get());
}

TEST(Any, is_built_from_parts_and_tells_them) {
  const Any v = new_any(0x80, 31, -1, Octets(2));
  EXPECT_EQ(encoding_of(QUARN_ASN1_ANY, v.get()), hex("BF1F 80 0000"));
  std::uint32_t tag_class = 0;
  std::uint64_t number = 0;
  EXPECT_EQ(quarn_asn1_any_gettypeclass(v.get(), &tag_class), 1);
  EXPECT_EQ(quarn_asn1_any_gettagnumber(v.get(), &number), 1);
  EXPECT_EQ(std::tuple(tag_class, number), std::tuple(0x80u, 31u));
  EXPECT_EQ(quarn_asn1_any_encodelength(v.get()), -1);
  EXPECT_EQ(quarn_asn1_any_encodelength(new_any(0, 16, 200, Octets(200)).get()), 203);
  EXPECT_EQ(quarn_asn1_any_encodelength(new_any(0, 4, INT64_MAX, {}).get()), -2);
  EXPECT_EQ(new_any(0, 16, -1, {5, 0}), nullptr) << "no end-of-contents";
  EXPECT_EQ(new_any(0, 16, -1, {0}), nullptr);
  EXPECT_EQ(new_any(0, 16, -2, {}), nullptr);
  EXPECT_EQ(new_any(0x20, 16, 0, {}), nullptr) << "no class";
  EXPECT_EQ(new_any(0, std::uint64_t{1} << 63, 0, {}), nullptr);
}

TEST(Any, a_length_that_differs_from_the_content_is_refused_when_encoding) {
  const Any v = new_any(0, 16, 3, {5, 0});
  const Context ctx(quarn_err_ctx_new());
  const Stream s = growable();
  EXPECT_EQ(quarn_asn1_encode_any(s.get(), v.get(), nullptr, ctx.get()), 0);
  EXPECT_EQ(quarn_asn1_encode_any_content(s.get(), v.get(), 3, nullptr, ctx.get()), 0);
  EXPECT_EQ(quarn_asn1_encode_any_content(s.get(), v.get(), 2, nullptr, ctx.get()), 0);
  EXPECT_EQ(codes_in(ctx.get()), (Codes{0x10235, 0x10004, 0x10001}));
}

Any decode_into(const Octets &octets, const Stream &content) {
  quarn_asn1_any *v = nullptr;
  std::uint64_t consumed = 0;
  SlowSource source(octets);
  quarn_asn1_decode_any_ex(source.stream().get(), content.get(), &v, &consumed, nullptr);
  EXPECT_EQ(consumed, octets.size());
  return Any(v);
}

TEST(Any, content_goes_to_the_callers_stream) {
  const Octets octets = hex("30 80 04 8101 41 30 80 0000 0000");
  const Stream content = growable();
  const Any v = decode_into(octets, content);
  Octets expected(octets.begin() + 2, octets.end());
  EXPECT_EQ(held_by(content), expected);
  EXPECT_EQ(encoding_of(QUARN_ASN1_ANY, v.get()), octets);
  EXPECT_EQ(quarn_asn1_encode_any(content.get(), v.get(), nullptr, nullptr), 1)
      << "into the stream that holds the content";
  expected.insert(expected.end(), octets.begin(), octets.end());
  EXPECT_EQ(held_by(content), expected);
  quarn_asn1_any *none = nullptr;
  EXPECT_EQ(quarn_asn1_decode_any_ex(content.get(), content.get(), &none, nullptr, nullptr), 0)
      << "it would read what it writes";
}

TEST(Any, content_in_a_stream_is_converted) {
  const Stream content = growable();
  const Any v = decode_into(hex("A1 03 020105"), content);
  EXPECT_EQ(to_integer(quarn_asn1_any_getobject, v.get()), Codes{});
  std::uint8_t *octets = nullptr;
  std::uint64_t count = 0;
  EXPECT_EQ(quarn_asn1_any_getcontent(v.get(), &octets, &count, nullptr), 1);
  const Memory<std::uint8_t> owner(octets);
  EXPECT_EQ(Octets(octets, octets + count), hex("020105"));
  const Stream number = growable();
  const Any integer = decode_into(hex("020105"), number);
  EXPECT_EQ(to_integer(quarn_asn1_any_toobject, integer.get()), Codes{});
  EXPECT_EQ(to_integer(quarn_asn1_any_contenttoobject, integer.get()), Codes{});
  EXPECT_EQ(quarn_stream_writen(number.get(), "x", 1, nullptr), 1);
  EXPECT_EQ(to_integer(quarn_asn1_any_contenttoobject, integer.get()), Codes{0x1027f});
}

TEST(Any, converts_as_a_whole_under_another_tag_and_from_within) {
  const std::tuple<Convert, const char *, Codes> cases[] = {
      {quarn_asn1_any_toobject, "02 01 05", {}},
      {quarn_asn1_any_toobject, "04 01 05", {0x1020a, 0x10210}},
      {quarn_asn1_any_contenttoobject, "81 01 05", {}},
      {quarn_asn1_any_contenttoobject, "A1 02 0500", {0x1026a, 0x10210}},
      {quarn_asn1_any_contenttoobject, "00 00", {0x10002}},
      {quarn_asn1_any_getobject, "A1 80 020105 0000", {}},
      {quarn_asn1_any_getobject, "A1 05 020105 0500", {0x1027f}},
      {quarn_asn1_any_getobject, "A1 80 020105 0500 0000", {0x10205}},
      {quarn_asn1_any_getobject, "00 00", {0x10002}},
  };
  for (const auto &[convert, octets, codes] : cases) {
    EXPECT_EQ(to_integer(convert, any_of(octets).get()), codes) << octets;
  }
  EXPECT_EQ(quarn_asn1_any_iseoc(any_of("00 00").get()), 1);
  const Held five(QUARN_ASN1_INTEGER, "02 01 05");
  const Any v(quarn_asn1_objecttoany(QUARN_ASN1_INTEGER, five.get()));
  EXPECT_EQ(encoding_of(QUARN_ASN1_ANY, v.get()), five.encoding());
}

TEST(Any, octets_after_the_end_of_its_content_are_no_part_of_an_element) {
  const Any trailing = new_any(0x80, 1, -1, Octets(4));
  const Context ctx(quarn_err_ctx_new());
  void *value = nullptr;
  EXPECT_EQ(quarn_asn1_any_toobject(trailing.get(), QUARN_ASN1_ANY, &value, ctx.get()), 0);
  EXPECT_EQ(quarn_asn1_objecttoany(QUARN_ASN1_ANY, trailing.get()), nullptr);
  EXPECT_EQ(quarn_asn1_dupobject(QUARN_ASN1_ANY, trailing.get(), ctx.get()), nullptr);
  EXPECT_EQ(quarn_asn1_any_toobject(trailing.get(), 420, &value, ctx.get()), 0);
  EXPECT_EQ(codes_in(ctx.get()), (Codes{0x1027f, 0x1027f, 0x1026b, 0x1026b}));
}

TEST(Any, strings_in_segments_are_read) {
  quarn_asn1_octetstring *string = nullptr;
  const Any v = any_of("2C 80 040141 040142 0000");
  EXPECT_EQ(quarn_asn1_any_decode_string(v.get(), &string, nullptr), 1);
  EXPECT_EQ(Held(QUARN_ASN1_OCTETSTRING, string).encoding(), hex("04 02 4142"));
}

TEST(Any, single_elements_are_copied_from_streams) {
  SlowSource source(hex("040141 30800000 2200"));
  const Stream in = source.stream();
  const Stream out = growable();
  EXPECT_EQ(quarn_asn1_readobjecttostream(in.get(), out.get(), nullptr), 1);
  EXPECT_EQ(quarn_asn1_readobjecttostream(out.get(), out.get(), nullptr), 1) << "onto its own end";
  EXPECT_EQ(held_by(out), hex("040141"));
  std::uint8_t *element = nullptr;
  std::uint64_t count = 0;
  EXPECT_EQ(quarn_asn1_readoneobject(in.get(), &element, &count, nullptr), 1);
  const Memory<std::uint8_t> owner(element);
  EXPECT_EQ(Octets(element, element + count), hex("30800000"));
  const Context ctx(quarn_err_ctx_new());
  EXPECT_EQ(quarn_asn1_readoneobject(in.get(), &element, &count, ctx.get()), 0);
  EXPECT_EQ(element, nullptr);
  EXPECT_EQ(codes_in(ctx.get()), Codes{0x10201});
}

TEST(Any, every_failed_allocation_is_an_error_and_no_leak) {
  const Octets octets = hex("A1 03 020105");
  fail_each_allocation([&octets](Allocation &allocation) {
    const auto fails = [&allocation](bool failed) { EXPECT_TRUE(!failed || allocation.failed()); };
    const Stream content = growable();
    const Stream in = memory_stream(octets);
    quarn_asn1_any *v = nullptr;
    fails(quarn_asn1_decode_any_ex(in.get(), content.get(), &v, nullptr, nullptr) != 1);
    const Any borrowed(v);
    fails(new_any(0x80, 1, 3, {2, 1, 5}) == nullptr);
    void *value = nullptr;
    fails(quarn_asn1_any_getobject(v, QUARN_ASN1_INTEGER, &value, nullptr) != 1);
    quarn_asn1_value_free(QUARN_ASN1_INTEGER, value);
    fails(Any(quarn_asn1_objecttoany(QUARN_ASN1_ANY, v)) == nullptr);
    std::uint8_t *copied = nullptr;
    fails(quarn_asn1_any_getcontent(v, &copied, nullptr, nullptr) != 1);
    quarn_free(copied);
    fails(quarn_asn1_readoneobject(memory_stream(octets).get(), &copied, nullptr, nullptr) != 1);
    quarn_free(copied);
  });
}

}  // namespace
}  // namespace quarn::test
