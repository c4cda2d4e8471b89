// Real files: whatever make_corpus.py made, and the certificates that this machine trusts. Each
// comes back octet for octet, from what a value keeps and from its components alone.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

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

class Corpus : public ::testing::Test {
 protected:
  ~Corpus() override { EXPECT_EQ(allocation_.live_blocks(), 0); }

  void SetUp() override {
    const char *name = std::getenv("QUARN_CORPUS");
    if (name == nullptr) GTEST_SKIP() << "QUARN_CORPUS names no corpus";
    folder_ = name;
  }

  std::filesystem::path folder_;

 private:
  Allocation allocation_;
};

Octets read_file(const std::filesystem::path &path) {
  std::ifstream file(path, std::ios::binary);
  return Octets(std::istreambuf_iterator<char>(file), {});
}

TEST_F(Corpus, every_file_comes_back_octet_for_octet) {
  int files = 0;
  int types = 0;
  for (std::int64_t type = 0; type < QUARN_ASN1_TYPE_COUNT; type++) {
    quarn_asn1_type_description description{};
    ASSERT_EQ(quarn_asn1_type_describe(type, &description), 1);
    if (!std::filesystem::exists(folder_ / description.name)) continue;
    for (const auto &entry : std::filesystem::directory_iterator(folder_ / description.name)) {
      SCOPED_TRACE(entry.path().string());
      const Octets octets = read_file(entry.path());
      check_from_stream(type, memory_stream(octets), octets);
      SlowSource slow(octets);
      check_from_stream(type, slow.stream(), octets);
      files++;
    }
    types++;
  }
  EXPECT_GE(files, 1400);
  EXPECT_GE(types, 60);
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
  const Octets all = read_file(folder_ / "signed");
  const Octets contents = read_file(folder_ / "contents");
  std::ifstream list(folder_ / "signed.txt");
  const std::string path = folder_ / "signed";
  SlowSource slow[2] = {SlowSource(all), SlowSource(all)};
  Stream streams[4];
  for (int i = 0; i < 2; i++) {
    streams[i].reset(quarn_stream_new_file(path.c_str(), "r", nullptr));
    streams[2 + i] = slow[i].stream();
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
    for (int i = 0; i < 4; i++) {
      const bool apart = i % 2 == 1;
      ASSERT_EQ(places_in(streams[i], apart), apart ? places : first);
    }
    next += places[1];
    content += static_cast<std::ptrdiff_t>(held.size());
  }
  EXPECT_GE(messages, 1000);
  EXPECT_TRUE(next == all.end() && content == contents.end());
}

}  // namespace
}  // namespace quarn::test
