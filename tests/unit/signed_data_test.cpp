// Signed messages in one pass: what is none. Those that are, in all forms and lengths, are in the
// corpus.
#include <gtest/gtest.h>

#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

using SignedData = Value<quarn_pkcs7signeddata, QUARN_ASN1_PKCS7SIGNEDDATA>;
const char *const kOid = "06 09 2A 86 48 86 F7 0D 01 07 02";

struct Outcome {
  SignedData message;
  int result = 0;
  std::uint64_t consumed = 0;
  Codes codes;
};

Outcome decoded(quarn_stream *stream, quarn_asn1_content_place *place = nullptr) {
  const Context ctx(quarn_err_ctx_new());
  Outcome outcome;
  quarn_pkcs7signeddata *message = nullptr;
  outcome.result =
      place == nullptr
          ? quarn_asn1_decode_pkcs7signeddata(stream, &message, &outcome.consumed, ctx.get())
          : quarn_asn1_decode_pkcs7signeddata_ex(stream, nullptr, &message, place,
                                                 &outcome.consumed, ctx.get());
  outcome.message.reset(message);
  outcome.codes = codes_in(ctx.get());
  return outcome;
}

TEST(OnePass, what_is_no_signed_message_is_told_from_a_bad_one) {
  const std::string data = "06 09 2A 86 48 86 F7 0D 01 07 01 ";
  const std::string oid = std::string(kOid) + " ";
  const struct {
    std::string octets;
    int result;
    int code;  // of the last record; 0 when there is none
  } cases[] = {
      {"02 01 05", 1, 0},
      {"10 00", 1, 0},
      {"30 03 04 01 41", 1, 0x10354},
      {"30 04 30 02 05 00", 1, 0x10354},
      {"30 0D " + data + "A0 00", 0, 0x10354},
      {"30 0D " + oid + "80 00", 1, 0x10354},
      {"30 0F " + oid + "A0 02 31 00", 1, 0x10354},
      {"30 11 " + oid + "A0 04 30 02 80 00", 1, 0x10354},
      {"30 00", 0, QUARN_ASN1_ERROR_READ_IDENTIFIER},
      {"30 04 02 01 01 31 00 30 03 06 01 2A 31 00", 0, QUARN_ASN1_ERROR_ITEM_LENGTH},
      {"30 0D 02 01 01 31 00 30 03 06 01 2A 31 00 00", 0, QUARN_ASN1_ERROR_ITEM_LENGTH},
      {"30 0E 02 01 01 31 00 30 03 06 01 2A 80 00 31 00", 0, QUARN_ASN1_ERROR_ITEM},
      {"30 10 02 01 01 31 00 30 03 06 01 2A A1 00 A0 00 31 00", 0, QUARN_ASN1_ERROR_ITEM},
      {"30 0A 02 01 01 31 00 30 03 06 01 2A", 0, QUARN_ASN1_ERROR_READ_IDENTIFIER},
      {"30 80 02 01 01 31 00 30 03 06 01 2A 31 00 05 00", 0, QUARN_ASN1_ERROR_ITEM},
      {"30 80 02 01 01 31 00 30 03 06 01 2A 31 00 00 01", 0, QUARN_ASN1_ERROR_READ_END},
      {"30 80 " + oid + "A0 0F 30 0C 02 01 01 31 00 30 03 06 01 2A 31 00 00", 0,
       QUARN_ASN1_ERROR_ITEM_LENGTH},
      {"30 80 " + oid + "A0 80 30 0C 02 01 01 31 00 30 03 06 01 2A 31 00 05 00", 0, 0x10354},
      {"30 0A 02 01 01 31 02 05 00 30 03 06 01 2A", 0, 0x1033e},
      {"30 0A 02 01 01 31 00 05 00", 0, 0x10322},
      {"30 12 02 01 01 31 00 30 03 06 01 2A A0 02 05 00 31 00", 0, 0x1034e},
      {"30 12 02 01 01 31 00 30 03 06 01 2A A1 02 05 00 31 00", 0, 0x10350},
      {"30 0E 02 01 01 31 00 30 03 06 01 2A 31 02 05 00", 0, 0x1033c},
  };
  for (const auto &each : cases) {
    SCOPED_TRACE(each.octets);
    const Octets octets = hex(each.octets.c_str());
    const Outcome outcome = decoded(memory_stream(octets).get());
    EXPECT_EQ(outcome.message, nullptr);
    EXPECT_EQ(outcome.result, each.result);
    EXPECT_EQ(outcome.codes.empty() ? 0 : outcome.codes.back(), each.code);
    EXPECT_EQ(outcome.consumed, 0u);
  }
  EXPECT_EQ(decoded(nullptr).codes, Codes{QUARN_ERROR_ARGUMENT});
}

TEST(OnePass, every_cut_and_every_failed_allocation_gives_no_message) {
  const Octets octets =
      hex("30 80 06 09 2A 86 48 86 F7 0D 01 07 02 A0 19 30 80 02 01 01 31 00 30 08 06 01 2A A0 03 "
          "04 01 41 A0 00 A1 00 31 00 00 00 00 00");
  ASSERT_NE(decoded(memory_stream(octets).get()).message, nullptr);
  for (std::size_t size = 0; size < octets.size(); size++) {
    const Octets cut(octets.begin(), octets.begin() + static_cast<std::ptrdiff_t>(size));
    const Outcome outcome = decoded(memory_stream(cut).get());
    EXPECT_EQ(outcome.result, 0) << size;
    EXPECT_EQ(outcome.message, nullptr) << size;
  }
  fail_each_allocation([&octets](Allocation &allocation) {
    const Stream stream = memory_stream(octets);
    if (stream == nullptr) return;
    const Outcome outcome = decoded(stream.get());
    EXPECT_TRUE(allocation.failed() || outcome.message != nullptr);
  });
}

}  // namespace
}  // namespace quarn::test
