// Long-term validation: which of two components under one tag is meant.
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

using Validation = Value<quarn_longtermvalidation, QUARN_ASN1_LONGTERMVALIDATION>;

constexpr const char *kTime = "18 0F 32 30 32 36 30 31 30 31 30 30 30 30 30 30 5A";

Octets validation(const char *rest) {
  Octets content = hex(kTime);
  const Octets more = hex(rest);
  content.insert(content.end(), more.begin(), more.end());
  content.insert(content.begin(), {0x30, static_cast<std::uint8_t>(content.size())});
  return content;
}

// Of poeValue, extraCertificates and extraRevocation, those that are there.
std::string found_in(Stream stream) {
  void *value = nullptr;
  quarn_asn1_decode(stream.get(), QUARN_ASN1_LONGTERMVALIDATION, &value, nullptr, nullptr);
  const Validation found(static_cast<quarn_longtermvalidation *>(value));
  if (found == nullptr) return "refused";
  std::string names;
  if (quarn_longtermvalidation_haspoevalue(found.get()) == 1) names += "P";
  if (quarn_longtermvalidation_hasextracerts(found.get()) == 1) names += "C";
  if (quarn_longtermvalidation_hasextrarevocation(found.get()) == 1) names += "R";
  return names;
}

TEST(LongTermValidation, what_stands_inside_tells_evidence_from_lists) {
  const struct {
    const char *rest, *found;
  } cases[] = {
      {"A0 05 30 03 06 01 2A", "P"},                     // a ContentInfo
      {"A0 80 30 80 06 01 2A 00 00 00 00", "P"},         // the same
      {"A1 09 30 07 02 01 01 30 00 30 00", "P"},         // an EvidenceRecord
      {"A0 07 A3 05 06 01 2A 05 00", "C"},               // a certificate of another kind
      {"A1 07 A1 05 06 01 2A 05 00", "R"},               // revocation of another kind
      {"A0 00", "C"},                                    // no certificates
      {"A1 80 00 00", "R"},                              // no revocation
      {"A0 00 A1 00", "CR"},                             //
      {"A0 05 30 03 06 01 2A A0 00 A1 00", "PCR"},       //
      {"A1 09 30 07 02 01 01 30 00 30 00 A1 00", "PR"},  //
      {"A0 05 30 03 06 01 2A A1 09 30 07 02 01 01 30 00 30 00", "refused"},  // evidence twice
      {"A0 00 A0 00", "refused"},                                            //
  };
  for (const auto &[rest, found] : cases) {
    SCOPED_TRACE(rest);
    const Octets octets = validation(rest);
    EXPECT_EQ(found_in(memory_stream(octets)), found);
    SlowSource slow(octets);
    EXPECT_EQ(found_in(slow.stream()), found);
  }
}

}  // namespace
}  // namespace quarn::test
