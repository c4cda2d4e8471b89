// Real files: whatever make_corpus.py made, and the certificates that this machine trusts. Each
// comes back octet for octet, from what a value keeps and from its components alone.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

#include "quarn_asn1.h"
#include "tests/support/allocation.h"
#include "tests/support/streams.h"

namespace quarn::test {
namespace {

using Octets = std::vector<std::uint8_t>;

struct FreeBlob {
  void operator()(quarn_data_blob *blob) const { quarn_data_blob_free(blob); }
};

Octets encoding_of(std::int64_t type, void *value) {
  const std::unique_ptr<quarn_data_blob, FreeBlob> blob(quarn_asn1_mem_encode(type, value));
  return blob == nullptr ? Octets() : Octets(blob->data, blob->data + blob->length);
}

// The value encodes to the octets, as it is and once it keeps none of them.
void check_encoding(std::int64_t type, void *value, const Octets &octets) {
  const bool indefinite = octets.at(1) == 0x80;
  const std::int64_t length = indefinite ? -1 : static_cast<std::int64_t>(octets.size());
  EXPECT_EQ(quarn_asn1_length(type, value), length);
  EXPECT_EQ(encoding_of(type, value), octets) << "with what it keeps";
  quarn_asn1_forget_octets(type, value);
  EXPECT_EQ(quarn_asn1_length(type, value), length);
  EXPECT_EQ(encoding_of(type, value), octets) << "with nothing kept";
}

void check_from_stream(std::int64_t type, const Stream &stream, const Octets &octets) {
  void *value = nullptr;
  std::uint64_t consumed = 0;
  ASSERT_EQ(quarn_asn1_decode(stream.get(), type, &value, &consumed, nullptr), 1);
  EXPECT_EQ(consumed, octets.size());
  void *copy = quarn_asn1_dupobject(type, value, nullptr);
  ASSERT_NE(copy, nullptr);
  check_encoding(type, value, octets);
  quarn_asn1_value_free(type, value);
  check_encoding(type, copy, octets);
  quarn_asn1_value_free(type, copy);
}

void check_file(std::int64_t type, const Octets &octets) {
  check_from_stream(type, memory_stream(octets), octets);
  SlowSource slow(octets);
  check_from_stream(type, slow.stream(), octets);
}

// The types of what extensions and attributes hold (RFC 5280, RFC 3739, RFC 5755, RFC 8551, RFC
// 5035).
const std::map<std::string, std::int64_t> kHeldTypes = {
    {"2.5.29.9", QUARN_ASN1_X509SUBJECTDIRATTRS},
    {"2.5.29.14", QUARN_ASN1_OCTETSTRING},
    {"2.5.29.15", QUARN_ASN1_BITSTRING},
    {"2.5.29.16", QUARN_ASN1_X509PRIVKEYUSAGEPERIOD},
    {"2.5.29.17", QUARN_ASN1_X509GENERALNAMES},
    {"2.5.29.18", QUARN_ASN1_X509GENERALNAMES},
    {"2.5.29.19", QUARN_ASN1_X509BASICCONSTRAINTS},
    {"2.5.29.20", QUARN_ASN1_INTEGER},
    {"2.5.29.21", QUARN_ASN1_ENUMERATED},
    {"2.5.29.23", QUARN_ASN1_OID},
    {"2.5.29.24", QUARN_ASN1_GENTIME},
    {"2.5.29.27", QUARN_ASN1_INTEGER},
    {"2.5.29.28", QUARN_ASN1_PKIXIDP},
    {"2.5.29.29", QUARN_ASN1_X509GENERALNAMES},
    {"2.5.29.30", QUARN_ASN1_PKIXNAMECONSTAINTS},
    {"2.5.29.31", QUARN_ASN1_X509CRLDP},
    {"2.5.29.32", QUARN_ASN1_X509CERTPOLICIES},
    {"2.5.29.33", QUARN_ASN1_X509POLICYMAPPINGS},
    {"2.5.29.35", QUARN_ASN1_X509AKID},
    {"2.5.29.36", QUARN_ASN1_X509POLICYCONSTAINTS},
    {"2.5.29.37", QUARN_ASN1_X509EXKEYUSAGE},
    {"2.5.29.46", QUARN_ASN1_X509CRLDP},
    {"2.5.29.54", QUARN_ASN1_INTEGER},
    {"2.5.29.55", QUARN_ASN1_AC_SEQOFTARGETS},
    {"2.5.29.56", QUARN_ASN1_NULL},
    {"2.5.4.55", QUARN_ASN1_AC_CLEARANCE},
    {"2.5.4.72", QUARN_ASN1_AC_ROLESYNTAX},
    {"1.3.6.1.5.5.7.10.1", QUARN_ASN1_AC_SVCEAUTHINFO},
    {"1.3.6.1.5.5.7.10.2", QUARN_ASN1_AC_SVCEAUTHINFO},
    {"1.3.6.1.5.5.7.1.1", QUARN_ASN1_PKIXAIA},
    {"1.3.6.1.5.5.7.1.3", QUARN_ASN1_QCSTATEMENTS},
    {"1.3.6.1.5.5.7.1.11", QUARN_ASN1_PKIXAIA},
    {"1.2.840.113549.1.9.15", QUARN_ASN1_SMIMECAPABILITIES},
    {"1.2.840.113549.1.9.16.2.12", QUARN_ASN1_ESS_SIGNINGCERTIFICATE},
    {"1.2.840.113549.1.9.16.2.47", QUARN_ASN1_ESS_SIGNINGCERTIFICATEV2},
};

// Calls visit(oid, octets held) for an extension, with the content of its OCTET STRING.
template <typename Visit>
void visit_extension(const char *oid, const quarn_asn1_component &held, Visit visit) {
  const Octets whole = encoding_of(held.type_id, held.value);
  quarn_asn1_header header{};
  ASSERT_EQ(quarn_asn1_mem_header(whole.data(), static_cast<std::int64_t>(whole.size()), &header),
            1);
  visit(oid,
        Octets(whole.begin() + static_cast<std::ptrdiff_t>(header.header_length), whole.end()));
}

// The same for each value of an attribute.
template <typename Visit>
void visit_attribute(const char *oid, const quarn_asn1_component &values, Visit visit) {
  quarn_asn1_component held{};
  for (std::int64_t i = 0; quarn_asn1_component_get(values.type_id, values.value, i, &held) == 1;
       i++) {
    visit(oid, encoding_of(held.type_id, held.value));
  }
}

// The same for every extension and attribute anywhere in a value.
template <typename Visit>
void for_each_held(std::int64_t type, const void *value, Visit visit) {
  const bool extension = type == QUARN_ASN1_X509EXTENSION;
  if (extension || type == QUARN_ASN1_PKCS10ATTRIBUTE || type == QUARN_ASN1_X500ATTRIBUTE) {
    quarn_asn1_component oid{};
    quarn_asn1_component held{};
    ASSERT_EQ(quarn_asn1_component_get(type, value, 0, &oid), 1);
    ASSERT_EQ(quarn_asn1_component_get(type, value, extension ? 2 : 1, &held), 1);
    const char *text = quarn_asn1_oid_getstring(static_cast<quarn_asn1_oid *>(oid.value));
    extension ? visit_extension(text, held, visit) : visit_attribute(text, held, visit);
    return;
  }
  const std::int64_t count = quarn_asn1_component_count(type, value);
  for (std::int64_t i = 0; i < count; i++) {
    quarn_asn1_component part{};
    if (quarn_asn1_component_get(type, value, i, &part) != 1 || part.value == nullptr) continue;
    for_each_held(part.type_id, part.value, visit);
  }
}

// Counts what was checked, and says so.
class Corpus : public ::testing::Test {
 protected:
  ~Corpus() override {
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start_;
    std::printf("corpus: %s in %.1f s\n", done_.c_str(), passed.count());
    EXPECT_EQ(allocation_.live_blocks(), 0);
  }

  void check(std::int64_t type, const Octets &octets) {
    check_file(type, octets);
    void *value = nullptr;
    const auto size = static_cast<std::int64_t>(octets.size());
    ASSERT_EQ(quarn_asn1_mem_decode(octets.data(), size, type, &value), size);
    for_each_held(type, value, [this](const std::string &oid, const Octets &held) {
      const auto known = kHeldTypes.find(oid);
      if (known == kHeldTypes.end()) return;
      SCOPED_TRACE("extension or attribute " + oid);
      check_file(known->second, held);
      held_++;
    });
    quarn_asn1_value_free(type, value);
    objects_++;
  }

  void SetUp() override {
    if (folder().empty()) GTEST_SKIP() << "QUARN_CORPUS names no corpus";
  }
  static std::filesystem::path folder() {
    const char *name = std::getenv("QUARN_CORPUS");
    return name == nullptr ? "" : name;
  }

  int objects_ = 0;
  int held_ = 0;
  std::string done_ = "nothing";  // for people to read

 private:
  Allocation allocation_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

Octets read_file(const std::filesystem::path &path) {
  std::ifstream file(path, std::ios::binary);
  return Octets(std::istreambuf_iterator<char>(file), {});
}

// The types of which there are files, and how many at least.
constexpr struct {
  std::int64_t type;
  int least;
} kTypes[] = {
    {QUARN_ASN1_X509PUBKEYCERT, 300},   {QUARN_ASN1_X509CRL, 20},
    {QUARN_ASN1_PKCS10CERTREQ, 20},     {QUARN_ASN1_ATTRIBUTECERTIFICATE, 20},
    {QUARN_ASN1_PKCS7CONTENTINFO, 170}, {QUARN_ASN1_PKCS7SIGNEDDATA, 70},
    {QUARN_ASN1_CMSENVELOPEDDATA, 40},  {QUARN_ASN1_PKCS7DIGESTEDDATA, 5},
    {QUARN_ASN1_CMSENCRYPTEDDATA, 4},   {QUARN_ASN1_CMSAUTHDATA, 2},
    {QUARN_ASN1_LDAPMESSAGE, 80},
};

TEST_F(Corpus, every_file_comes_back_octet_for_octet) {
  for (const auto &[type, least] : kTypes) {
    quarn_asn1_type_description description{};
    ASSERT_EQ(quarn_asn1_type_describe(type, &description), 1);
    int files = 0;
    for (const auto &entry : std::filesystem::directory_iterator(folder() / description.name)) {
      SCOPED_TRACE(entry.path().string());
      check(type, read_file(entry.path()));
      files++;
    }
    EXPECT_GE(files, least) << description.name;
  }
  done_ = std::to_string(objects_) + " objects and " + std::to_string(held_) +
          " extensions and attributes came back";
}

using Numbers = std::vector<std::int64_t>;

// What the one-pass decoder tells: form, octets, where contentInfo and signerInfos are; and, when
// it decodes apart from the content, where that is and how much.
Numbers places_in(const Stream &stream, bool apart, quarn_stream *content = nullptr) {
  quarn_pkcs7signeddata *message = nullptr;
  quarn_asn1_content_place place{};
  std::uint64_t consumed = 0;
  const int result =
      apart ? quarn_asn1_decode_pkcs7signeddata_ex(stream.get(), content, &message, &place,
                                                   &consumed, nullptr)
            : quarn_asn1_decode_pkcs7signeddata(stream.get(), &message, &consumed, nullptr);
  Numbers places{quarn_pkcs7signeddata_gettype(message), static_cast<std::int64_t>(consumed),
                 quarn_pkcs7signeddata_getcontentinfooffset(message),
                 quarn_pkcs7signeddata_getcontentinfoendoffset(message),
                 quarn_pkcs7signeddata_getsignerinfosoffset(message)};
  if (apart) places.insert(places.end(), {place.offset, place.end, place.length});
  quarn_pkcs7signeddata_free(message);
  return result == 1 ? places : Numbers{};
}

// The content as it arrives, and as it is read where it lies.
std::string content_in(const Octets &octets, const Numbers &places) {
  const Stream source = memory_stream(octets);
  const Stream content(quarn_stream_new_mem(0, nullptr));
  EXPECT_EQ(places_in(source, true, content.get()), places);
  const std::string found = rest_of(content);
  if (places[5] >= 0) {
    const auto offset = static_cast<std::uint64_t>(places[5]);
    EXPECT_EQ(rest_of(Stream(quarn_asn1_contentstream_new(source.get(), offset, nullptr))), found);
  }
  return found;
}

// In every form and with lengths of every kind, from memory, from one stream over the file that
// holds them all, and octet by octet.
TEST_F(Corpus, places_in_signed_messages_are_those_that_openssl_finds) {
  const Octets all = read_file(folder() / "signed");
  const Octets contents = read_file(folder() / "contents");
  std::ifstream list(folder() / "signed.txt");
  SlowSource slow[2] = {SlowSource(all), SlowSource(all)};
  Stream files[2], slow_streams[2];
  for (int i = 0; i < 2; i++) {
    files[i].reset(quarn_stream_new_file((folder() / "signed").c_str(), "r", nullptr));
    slow_streams[i] = slow[i].stream();
  }
  auto next = all.begin();
  auto content = contents.begin();
  int messages = 0;
  Numbers places(8);
  for (std::string name; list >> name; messages++) {
    for (std::int64_t &place : places) list >> place;
    SCOPED_TRACE(name);
    const Octets octets(next, next + places[1]);
    const std::string held(content, content + std::max<std::int64_t>(places[7], 0));
    const Numbers first(places.begin(), places.begin() + 5);
    ASSERT_EQ(content_in(octets, places), held);
    ASSERT_EQ(places_in(memory_stream(octets), false), first);
    for (const Stream *streams : {files, slow_streams}) {
      ASSERT_EQ(places_in(streams[false], false), first);
      ASSERT_EQ(places_in(streams[true], true), places);
    }
    next += places[1];
    content += static_cast<std::ptrdiff_t>(held.size());
  }
  done_ = "places found in " + std::to_string(messages) + " messages, each from three streams";
  EXPECT_GE(messages, 1000);
  EXPECT_TRUE(next == all.end() && content == contents.end());
  for (const char *other : {"digest_sha1.der", "for_rsa_aes128.der", "compressed.der"}) {
    const Octets octets = read_file(folder() / "pkcs7contentinfo" / other);
    EXPECT_EQ(places_in(memory_stream(octets), false), Numbers{}) << other;
  }
}

// Values of rarer types from encoders in Python: files named after the type.
TEST_F(Corpus, what_other_encoders_made_comes_back) {
  for (const auto &entry : std::filesystem::directory_iterator(folder() / "made")) {
    SCOPED_TRACE(entry.path().string());
    const std::string name = entry.path().stem().string();
    const std::int64_t type = quarn_asn1_type_find(name.substr(0, name.rfind('.')).c_str());
    ASSERT_GE(type, 0);
    check(type, read_file(entry.path()));
  }
}

}  // namespace
}  // namespace quarn::test
