// Signed messages in one pass: what they stand in, where their parts are, and what is none.
#include <gtest/gtest.h>

#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

using SignedData = Value<quarn_pkcs7signeddata, QUARN_ASN1_PKCS7SIGNEDDATA>;
using Places = std::vector<std::int64_t>;

const char *const kOid = "06 09 2A 86 48 86 F7 0D 01 07 02";
const char *const kSm2Oid = "06 0A 2A 81 1C CF 55 06 01 04 02 02";
const char *const kParts = "02 01 01 31 00 30 08 06 01 2A A0 03 04 01 41 A0 00 A1 00 31 00";

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

Octets element(std::uint8_t identifier, bool indefinite, const Octets &content) {
  const auto size = static_cast<std::uint8_t>(content.size());
  Octets octets{identifier, indefinite ? std::uint8_t{0x80} : size};
  octets.insert(octets.end(), content.begin(), content.end());
  if (indefinite) octets.insert(octets.end(), {0, 0});
  return octets;
}

// A ContentInfo around a SignedData whose content is given; the lowest bits say which of its three
// levels are indefinite.
Octets framed(const char *oid, unsigned indefinite, const Octets &content) {
  const Octets tag = element(0xA0, (indefinite & 2) != 0, element(0x30, indefinite & 1, content));
  Octets whole = hex(oid);
  whole.insert(whole.end(), tag.begin(), tag.end());
  return element(0x30, (indefinite & 4) != 0, whole);
}

// From memory and from a stream that gives one octet at a time, with the content and apart from it;
// what follows is not read.
void expect_message(Octets octets, int form, const Places &places) {
  const std::size_t size = octets.size();
  octets.push_back(0x05);
  SlowSource source(octets);
  SlowSource source_apart(octets);
  const Stream streams[] = {memory_stream(octets), source.stream(), memory_stream(octets),
                            source_apart.stream()};
  quarn_asn1_content_place place{};
  for (const Stream &stream : streams) {
    const bool apart = &stream >= streams + 2;
    const Outcome outcome = decoded(stream.get(), apart ? &place : nullptr);
    ASSERT_EQ(outcome.result, 1);
    const quarn_pkcs7signeddata *message = outcome.message.get();
    ASSERT_NE(message, nullptr);
    EXPECT_EQ(outcome.codes, Codes{});
    EXPECT_EQ(outcome.consumed, size);
    EXPECT_EQ(quarn_pkcs7signeddata_gettype(message), form);
    EXPECT_EQ((Places{quarn_pkcs7signeddata_getcontentinfooffset(message),
                      quarn_pkcs7signeddata_getcontentinfoendoffset(message),
                      quarn_pkcs7signeddata_getsignerinfosoffset(message)}),
              places);
    EXPECT_EQ(quarn_pkcs7signeddata_hascerts(message), places[2] > places[1]);
    const auto *info = quarn_pkcs7signeddata_getcontentinfo(message);
    const bool there = octets[static_cast<std::size_t>(places[0]) + 1] > 3;
    EXPECT_EQ(quarn_pkcs7contentinfo_hascontent(info), there && !apart);
    EXPECT_EQ(rest_of(stream), "\x05");
  }
  const bool there = place.length >= 0;
  EXPECT_EQ((Places{place.offset, place.end, place.length}),
            there ? (Places{places[0] + 7, places[1], 1}) : (Places{-1, -1, -1}));
}

TEST(OnePass, places_are_right_in_every_framing) {
  for (unsigned indefinite = 0; indefinite < 8; indefinite++) {
    SCOPED_TRACE(indefinite);
    expect_message(framed(kOid, indefinite, hex(kParts)), 0, {22, 32, 36});
    expect_message(framed(kSm2Oid, indefinite, hex(kParts)), 2, {23, 33, 37});
    if (indefinite > 1) continue;
    expect_message(element(0x30, indefinite == 1, hex(kParts)), 1, {7, 17, 21});
    expect_message(element(0x30, indefinite == 1, hex("02 01 01 31 00 30 03 06 01 2A 31 00")), 1,
                   {7, 12, 12});
  }
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
  const Octets octets = framed(kOid, 5, hex(kParts));
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
