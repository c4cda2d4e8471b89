// Messages apart from their content: where it was, what it was, and what is left of the message.
#include <gtest/gtest.h>

#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

using Places = std::vector<std::int64_t>;

// Content of every form, as it may stand in a message, and what it is.
struct Case {
  const char *element;
  const char *content;
};
const Case kContents[] = {
    {"04 03 41 42 43", "41 42 43"},
    {"04 00", ""},
    {"24 00", ""},
    {"24 80 00 00", ""},
    {"24 07 04 01 41 04 02 42 43", "41 42 43"},
    {"24 80 04 01 41 24 04 04 02 42 43 00 00", "41 42 43"},
    {"24 80 24 80 04 01 41 00 00 04 00 04 02 42 43 00 00", "41 42 43"},
    {"04 82 00 01 41", "41"},
};
const Case kOtherContents[] = {
    {"30 03 02 01 05", "02 01 05"},
    {"30 80 02 01 05 30 80 05 00 00 00 00 00", "02 01 05 30 80 05 00 00 00"},
    {"30 80 00 00", ""},
    {"05 00", ""},
    {"5F 81 01 01 41", "41"},
};

Octets joined(std::initializer_list<Octets> parts) {
  Octets whole;
  for (const Octets &part : parts) whole.insert(whole.end(), part.begin(), part.end());
  return whole;
}

Octets element(std::uint8_t identifier, bool indefinite, const Octets &content) {
  const auto size = static_cast<std::uint8_t>(content.size());
  const Octets end = indefinite ? Octets{0, 0} : Octets{};
  return joined({{identifier, indefinite ? std::uint8_t{0x80} : size}, content, end});
}

// A message: what stands around the info that holds the content, and what that looks like.
enum class Info { any, octets, encrypted };
const struct Shape {
  std::uint32_t type;
  Info info;
  const char *before;  // null: the info is the message
  const char *behind;
} kShapes[] = {
    {QUARN_ASN1_PKCS7CONTENTINFO, Info::any, nullptr, nullptr},
    {QUARN_ASN1_PKCS7DIGESTEDDATA, Info::any, "02 01 00 30 03 06 01 2A", "04 01 41"},
    {QUARN_ASN1_PKCS7SIGNEDDATA, Info::any, "02 01 01 31 00", "A0 00 31 00"},
    {QUARN_ASN1_CMSSIGNEDDATA, Info::octets, "02 01 01 31 00", "A1 00 31 00"},
    {QUARN_ASN1_CMSENCAPSULATEDCONTENTINFO, Info::octets, nullptr, nullptr},
    {QUARN_ASN1_CMSAUTHDATA, Info::octets, "02 01 00 31 00 30 03 06 01 2A", "04 01 41"},
    {QUARN_ASN1_CMSENCRYPTEDCONTENTINFO, Info::encrypted, nullptr, nullptr},
    {QUARN_ASN1_CMSENCRYPTEDDATA, Info::encrypted, "02 01 00", ""},
    {QUARN_ASN1_CMSENVELOPEDDATA, Info::encrypted, "02 01 00 31 00", ""},
    {QUARN_ASN1_SIGNEDANDENVELOPEDDATA, Info::encrypted, "02 01 00 31 00 31 00", "31 00"},
};

// The message around an element of content, or around none, and where that begins.
Octets message(const Shape &shape,
               bool indefinite,
               Octets content,
               std::int64_t *offset = nullptr) {
  Octets head = hex("06 01 2A");
  if (shape.info == Info::encrypted) head = joined({head, hex("30 03 06 01 2A")});
  if (!content.empty() && shape.info == Info::encrypted) {
    content[0] = static_cast<std::uint8_t>(0x80 | (content[0] & 0x20));
  } else if (!content.empty()) {
    content = element(0xA0, indefinite, content);
  }
  const Octets info = element(0x30, indefinite, joined({head, content}));
  const bool alone = shape.before == nullptr;
  const Octets before = hex(alone ? "" : shape.before);
  if (offset != nullptr) {
    *offset = static_cast<std::int64_t>(2 + head.size() + (shape.info == Info::encrypted ? 0 : 2) +
                                        (alone ? 0 : 2 + before.size()));
  }
  return alone ? info : element(0x30, indefinite, joined({before, info, hex(shape.behind)}));
}

struct Outcome {
  int result = 0;
  void *value = nullptr;
  quarn_asn1_content_place place{};
  std::uint64_t consumed = 0;
  Codes codes;
};

Outcome apart(quarn_stream *stream, std::uint32_t type, quarn_stream *content) {
  const Context ctx(quarn_err_ctx_new());
  Outcome out;
  out.result = quarn_asn1_decode_message(stream, type, content, &out.value, &out.place,
                                         &out.consumed, ctx.get());
  out.codes = codes_in(ctx.get());
  return out;
}

Places in(const quarn_asn1_content_place &place) {
  return {place.offset, place.end, place.length};
}

// The encoding of what octets are decoded to as a whole.
Octets again(std::uint32_t type, const Octets &octets) {
  void *value = nullptr;
  const auto size = static_cast<std::int64_t>(octets.size());
  EXPECT_EQ(quarn_asn1_mem_decode(octets.data(), size, type, &value), size);
  const Octets encoded = encoding_of(type, value);
  quarn_asn1_value_free(type, value);
  return encoded;
}

void expect_apart(const Shape &shape, bool indefinite, const Case &content) {
  const Octets inside = hex(content.element);
  const Octets expected = hex(content.content);
  std::int64_t offset = 0;
  const Octets octets = message(shape, indefinite, inside, &offset);
  const Octets detached = again(shape.type, message(shape, indefinite, {}));
  SlowSource source(octets);
  SlowSource skipped(octets);
  const Stream streams[] = {memory_stream(octets), source.stream(), memory_stream(octets),
                            skipped.stream()};
  for (int i = 0; i < 4; i++) {
    const bool dropped = i >= 2;
    const Stream out = growable();
    const Outcome got = apart(streams[i].get(), shape.type, dropped ? nullptr : out.get());
    EXPECT_EQ(got.result, 1);
    EXPECT_EQ(got.codes, Codes{});
    EXPECT_EQ(got.consumed, octets.size());
    EXPECT_EQ(in(got.place), (Places{offset, offset + static_cast<std::int64_t>(inside.size()),
                                     static_cast<std::int64_t>(expected.size())}));
    EXPECT_EQ(held_by(out), dropped ? Octets{} : expected);
    EXPECT_EQ(encoding_of(shape.type, got.value), detached);
    quarn_asn1_value_free(shape.type, got.value);
  }
}

TEST(Message, every_type_in_every_form_is_decoded_apart) {
  for (const Shape &shape : kShapes) {
    for (const bool indefinite : {false, true}) {
      SCOPED_TRACE(testing::Message() << shape.type << ' ' << indefinite);
      for (const Case &each : kContents) expect_apart(shape, indefinite, each);
      if (shape.info != Info::any) continue;
      for (const Case &each : kOtherContents) expect_apart(shape, indefinite, each);
    }
  }
}

}  // namespace
}  // namespace quarn::test
