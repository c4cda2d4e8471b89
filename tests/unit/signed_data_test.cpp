// Signed messages: where their parts stand, what is none in one pass, and what they are made of.
// Those that are, in all forms and lengths, are in the corpus.
#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

constexpr auto kType = QUARN_ASN1_PKCS7SIGNEDDATA;

struct Outcome {
  Held message;
  int result;
  std::uint64_t consumed;
  Codes codes;
};

Outcome decoded(quarn_stream *stream) {
  const Context ctx(quarn_err_ctx_new());
  quarn_pkcs7signeddata *message = nullptr;
  std::uint64_t consumed = 0;
  const int result = quarn_asn1_decode_pkcs7signeddata(stream, &message, &consumed, ctx.get());
  return {{kType, message}, result, consumed, codes_in(ctx.get())};
}

TEST(OnePass, what_is_no_signed_message_is_told_from_a_bad_one) {
  const std::string data = "06 09 2A 86 48 86 F7 0D 01 07 01 ";
  const std::string oid = "06 09 2A 86 48 86 F7 0D 01 07 02 ";
  const struct {
    std::string octets;
    int result;
    int code;  // of the last record; 0 when there is none
  } cases[] = {
      {"02 01 05", 1, 0},
      {"30 03 04 01 41", 1, 0x10354},
      {"30 0D " + data + "A0 00", 0, 0x10354},
      {"30 0D " + oid + "80 00", 1, 0x10354},
      {"30 11 " + oid + "A0 04 30 02 80 00", 1, 0x10354},
      {"30 00", 0, QUARN_ASN1_ERROR_READ_IDENTIFIER},
      {"30 04 02 01 01 31 00 30 03 06 01 2A 31 00", 0, QUARN_ASN1_ERROR_ITEM_LENGTH},
      {"30 0E 02 01 01 31 00 30 03 06 01 2A 80 00 31 00", 0, QUARN_ASN1_ERROR_ITEM},
      {"30 10 02 01 01 31 00 30 03 06 01 2A A1 00 A0 00 31 00", 0, QUARN_ASN1_ERROR_ITEM},
      {"30 0A 02 01 01 31 00 30 03 06 01 2A", 0, QUARN_ASN1_ERROR_READ_IDENTIFIER},
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
  for (const auto &[digits, result, code] : cases) {
    SCOPED_TRACE(digits);
    const Octets octets = hex(digits);
    const Outcome outcome = decoded(memory_stream(octets).get());
    EXPECT_EQ(outcome.message.get(), nullptr);
    EXPECT_EQ(outcome.result, result);
    EXPECT_EQ(outcome.codes.empty() ? 0 : outcome.codes.back(), code);
    EXPECT_EQ(outcome.consumed, 0u);
  }
  EXPECT_EQ(decoded(nullptr).codes, Codes{QUARN_ERROR_ARGUMENT});
}

TEST(OnePass, every_cut_and_every_failed_allocation_gives_no_message) {
  const Octets octets =
      hex("30 80 06 09 2A 86 48 86 F7 0D 01 07 02 A0 19 30 80 02 01 01 31 00 30 08 06 01 2A A0 03 "
          "04 01 41 A0 00 A1 00 31 00 00 00 00 00");
  ASSERT_NE(decoded(memory_stream(octets).get()).message.get(), nullptr);
  for (std::size_t size = 0; size < octets.size(); size++) {
    const Octets cut(octets.begin(), octets.begin() + static_cast<std::ptrdiff_t>(size));
    const Outcome outcome = decoded(memory_stream(cut).get());
    EXPECT_EQ(outcome.result, 0) << size;
    EXPECT_EQ(outcome.message.get(), nullptr) << size;
  }
  fail_each_allocation([&octets](Allocation &allocation) {
    const Stream stream = memory_stream(octets);
    if (stream == nullptr) return;
    EXPECT_TRUE(decoded(stream.get()).message.get() != nullptr || allocation.failed());
  });
}

// Where the content info, its end and the signer infos are.
using Places = std::vector<std::int64_t>;

Places places_of(const Held &message) {
  const auto *value = message.as<quarn_pkcs7signeddata>();
  return {quarn_pkcs7signeddata_getcontentinfooffset(value),
          quarn_pkcs7signeddata_getcontentinfoendoffset(value),
          quarn_pkcs7signeddata_getsignerinfosoffset(value)};
}

TEST(SignedData, places_count_from_the_identifier_under_its_own_type_only) {
  const std::string least = "02 01 01 31 00 30 03 06 01 2A 31 00 ";
  const std::string most = "02 01 01 31 00 30 08 06 01 2A A0 03 04 01 41 A0 00 A1 00 31 00 ";
  const struct {
    std::string octets;
    Places places;
    Places under_other_type;
  } rows[] = {
      {"30 0C " + least, {7, 12, 12}, {5, 10, 10}},
      {"30 82 00 15 " + most, {9, 19, 23}, {5, 15, 19}},
      {"30 80 " + most + "00 00", {7, 17, 21}, {5, 15, 19}},
  };
  for (const auto &[digits, places, under_other_type] : rows) {
    const Octets octets = hex(digits);
    EXPECT_EQ(places_of({kType, octets}), places);
    EXPECT_EQ(places_of({QUARN_ASN1_CMSSIGNEDDATA, octets}), under_other_type);
    SlowSource source(octets);
    void *value = nullptr;
    quarn_asn1_decode(source.stream().get(), kType, &value, nullptr, nullptr);
    EXPECT_EQ(places_of({kType, value}), places);
  }
  EXPECT_EQ(quarn_pkcs7signeddata_getsignerinfosoffset(nullptr), -1);
}

TEST(SignedData, content_alone_and_indefinite_components_have_places) {
  const Octets octets = hex("02 01 01 31 80 00 00 30 80 06 01 2A 00 00 A0 80 00 00 31 00 00 00");
  const Stream stream = growable(octets);
  void *value = nullptr;
  quarn_asn1_decode_content(stream.get(), kType, &value, 0, QUARN_ASN1_INDEFINITE, nullptr,
                            nullptr);
  const Held message(kType, value);
  EXPECT_EQ(places_of(message), (Places{7, 14, 18}));
  EXPECT_EQ(quarn_pkcs7signeddata_gettype(message.as<quarn_pkcs7signeddata>()), 1);
  const Stream out = growable();
  EXPECT_EQ(quarn_asn1_encode_content(out.get(), kType, value, 14, nullptr, nullptr), 1);
  EXPECT_EQ(places_of(message), (Places{5, 10, 12}));
}

TEST(SignedData, encoding_moves_the_places_to_what_was_written) {
  // Content of a type that is refused in CMS, when it is decoded.
  const Held message(kType, "30 82 00 10 02 01 01 31 00 30 07 06 01 2A A0 02 05 00 31 00");
  for (int i = 0; i < 2; i++) {
    message.encoding();
    EXPECT_EQ(places_of(message), (Places{7, 16, 16}));
  }
  encoding_of(QUARN_ASN1_CMSSIGNEDDATA, message.get());
  EXPECT_EQ(places_of(message), (Places{5, 14, 14}));
  EXPECT_EQ(places_of({kType, quarn_asn1_dupobject(kType, message.get(), nullptr)}),
            (Places{7, 16, 16}));
}

TEST(SignedData, its_parts_are_taken_over_or_left_with_the_caller) {
  void *info = nullptr;
  quarn_asn1_mem_decode(hex("30 03 06 01 2A").data(), 5, QUARN_ASN1_PKCS7CONTENTINFO, &info);
  auto *content = static_cast<quarn_pkcs7contentinfo *>(info);
  quarn_asn1_integer *version = quarn_asn1_integer_value(1);
  quarn_asn1_list *digests = quarn_asn1_list_new();
  quarn_asn1_list *crls = quarn_asn1_list_new();
  quarn_asn1_list *signers = quarn_asn1_list_new();
  const auto make = quarn_pkcs7signeddata_new0;
  EXPECT_EQ(make(nullptr, digests, content, nullptr, crls, signers), nullptr);
  EXPECT_EQ(make(version, nullptr, content, nullptr, crls, signers), nullptr);
  EXPECT_EQ(make(version, digests, nullptr, nullptr, crls, signers), nullptr);
  EXPECT_EQ(make(version, digests, content, nullptr, crls, nullptr), nullptr);
  {
    Allocation allocation;
    allocation.fail_after(0);
    EXPECT_EQ(make(version, digests, content, nullptr, crls, signers), nullptr);
  }
  const Held message(kType, make(version, digests, content, nullptr, crls, signers));
  EXPECT_EQ(quarn_pkcs7signeddata_gettype(message.as<quarn_pkcs7signeddata>()), 1);
  EXPECT_EQ(places_of(message), (Places{-1, -1, -1}));
  EXPECT_EQ(message.encoding(), hex("30 0E 02 01 01 31 00 30 03 06 01 2A A1 00 31 00"));
  EXPECT_EQ(places_of(message), (Places{7, 12, 14}));
}

}  // namespace
}  // namespace quarn::test
