// Dispatch by type id: what the registry's rows are good for, and what happens without one.
#include <gtest/gtest.h>

#include <tuple>

#include "core/type.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

TEST(Dispatch, an_id_without_a_row_is_refused) {
  for (const std::int64_t id : {std::int64_t{-1}, std::int64_t{420}, INT64_MIN}) {
    const Context ctx(quarn_err_ctx_new());
    const Stream stream = growable({0x05, 0x00});
    void *value = &value;
    EXPECT_EQ(quarn_asn1_decode(stream.get(), id, &value, nullptr, ctx.get()), 0);
    EXPECT_EQ(value, &value) << "nothing is touched";
    EXPECT_EQ(quarn_asn1_decode_content(stream.get(), id, &value, 1, 0, nullptr, ctx.get()), 0);
    EXPECT_EQ(quarn_asn1_encode(stream.get(), id, &value, nullptr, ctx.get()), 0);
    EXPECT_EQ(quarn_asn1_encode_puterr(ctx.get(), id, "UNIT", 1), 1);
    EXPECT_EQ(codes_in(ctx.get()), Codes(4, 0x1026b));
    EXPECT_EQ(quarn_asn1_length(id, nullptr), -2);
    quarn_asn1_value_free(id, &value);
  }
}

// The code that follows the stream's own when each write in turn fails; 0: none does.
void expect_writing(std::int64_t id, void *value, const Codes &steps) {
  for (std::size_t step = 0; step <= steps.size(); step++) {
    SCOPED_TRACE(step);
    SlowSink sink;
    sink.fail_after(static_cast<std::int64_t>(step));
    const Stream out = sink.stream();
    const Context ctx(quarn_err_ctx_new());
    const bool whole = step == steps.size();
    EXPECT_EQ(quarn_asn1_encode(out.get(), id, value, nullptr, ctx.get()), whole ? 1 : 0);
    Codes codes(whole ? 0 : 1, 0x10102);
    if (!whole && steps[step] != 0) codes.push_back(steps[step]);
    EXPECT_EQ(codes_in(ctx.get()), codes);
  }
}

TEST(Dispatch, each_write_that_fails_is_told_by_the_step_it_belongs_to) {
  const std::tuple<std::int64_t, const char *, Codes> cases[] = {
      {QUARN_ASN1_BOOLEAN, "01 01 FF", {0x102e4, 0x102e6, 0}},
      {QUARN_ASN1_BITSTRING, "03 02 03 F8", {0, 0x102e6, 0, 0}},
      {QUARN_ASN1_OCTETSTRING, "04 01 61", {0, 0x102e6, 0}},
      {QUARN_ASN1_NULL, "05 00", {0}},
      {QUARN_ASN1_UTF8STRING, "0C 01 61", {0x102e4, 0x102e6, 0}},
      {QUARN_ASN1_ANYLIST, "30 04 30 80 00 00", {0x102e4, 0x102e6, 0x10235, 0x102e8}},
      {QUARN_ASN1_LDAPUNBINDREQUEST, "42 00", {0x102e4, 0x102e6}},
      {QUARN_ASN1_TIME, R"(17 0D "240101000000Z")", {0x102e4, 0x10238, 0x102e6}},
  };
  for (const auto &[id, element, steps] : cases) {
    SCOPED_TRACE(id);
    expect_writing(id, Held(id, element).get(), steps);
  }
}

TEST(Dispatch, each_write_of_a_segment_that_fails_is_told_by_its_step) {
  Store store({'a', 'b'});
  store.knows_length = false;
  const Stream held = store.stream();
  const Held octets(4, quarn_asn1_octetstring_newstream(held.get()));
  expect_writing(4, octets.get(), {0, 0x102e6, 0x102e4, 0x102e4, 0, 0x102e8});
  const Octets empty{0x03, 1, 0};
  quarn_asn1_bitstring *bits = nullptr;
  quarn_asn1_decode_bitstring_ex(memory_stream(empty).get(), held.get(), &bits, nullptr, nullptr);
  expect_writing(3, Held(3, bits).get(), {0, 0x102e6, 0x102e4, 0x102e6, 0, 0, 0x102e8});
}

TEST(Dispatch, rows_have_the_codes_that_callers_know_and_those_of_the_table_a_message) {
  const Context ctx(quarn_err_ctx_new());
  EXPECT_EQ(quarn_asn1_encode_puterr(ctx.get(), 38, "UNIT", 1), 1);
  EXPECT_EQ(quarn_asn1_decode_puterr(ctx.get(), 49, "UNIT", 1), 1);
  EXPECT_EQ(codes_in(ctx.get()), (Codes{0x10256, 0x30}));
  EXPECT_STREQ(quarn_err_ctx_get(ctx.get(), 0)->message, "encode x509 tbscertificate fail");
  for (const int code : {0x10200, 0x10576}) EXPECT_STRNE(quarn_igetASN1Error(code), "");
  for (const int code : {0x101FF, 0x10577, 0, -1}) EXPECT_STREQ(quarn_igetASN1Error(code), "");
  EXPECT_STREQ(quarn_asn1_version(), "QUARN ASN.1 Library 1.8,Build on 2020");
}

TEST(Dispatch, types_are_found_by_name_and_described) {
  quarn_asn1_type_description description{};
  EXPECT_EQ(quarn_asn1_type_describe(quarn_asn1_type_find("ldapabandonrequest"), &description), 1);
  EXPECT_EQ(std::tuple(description.tag_class, description.tag_number, description.form),
            std::tuple(0x40u, 16u, 1));
  EXPECT_EQ(description.error_code, 0x1020f);
  EXPECT_EQ(quarn_asn1_type_find("no such type"), -1);
}

TEST(Dispatch, whole_lengths_are_sums_that_do_not_wrap) {
  using quarn::asn1::element_length;
  EXPECT_EQ(element_length(16, 200), 203);
  EXPECT_EQ(element_length(16, -1), -1);
  EXPECT_EQ(element_length(16, -2), -2);
  EXPECT_EQ(element_length(16, INT64_MAX - 10), INT64_MAX);
  EXPECT_EQ(element_length(16, INT64_MAX - 9), -1);
  EXPECT_EQ(element_length(UINT64_MAX, 0), -2) << "no such tag number";
}

}  // namespace
}  // namespace quarn::test
