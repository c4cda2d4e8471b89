// Messages apart from their content: where it was, what it was, and what is left of the message.
#include <algorithm>
#include <optional>
#include <utility>

#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

using Places = std::vector<std::int64_t>;

// Content of every form, as it may stand in a message, and what it is.
const struct Case {
  const char *element;
  const char *content;
  bool is_octets = true;  // which alone some messages hold
} kContents[] = {
    {"04 03 41 42 43", "41 42 43"},
    {"24 00", ""},
    {"24 07 04 01 41 04 02 42 43", "41 42 43"},
    {"24 80 24 80 04 01 41 00 00 04 00 24 04 04 02 42 43 00 00", "41 42 43"},
    {"04 82 00 01 41", "41"},
    {"30 03 02 01 05", "02 01 05", false},
    {"30 80 02 01 05 30 80 05 00 00 00 00 00", "02 01 05 30 80 05 00 00 00", false},
    {"05 00", "", false},
    {"5F 81 01 01 41", "41", false},
};

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
    {QUARN_ASN1_PKCS12PFX, Info::any, "02 01 03", ""},
    {QUARN_ASN1_AUTHENTICODE_TIMESTAMPREQ, Info::any, "06 01 2A", ""},
    {QUARN_ASN1_ARCHIVETIMESTAMP, Info::any, "", ""},
    {QUARN_ASN1_SIGNEDANDENVELOPEDDATA, Info::encrypted, "02 01 00 31 00 31 00", "31 00"},
};

Octets element(std::uint8_t identifier, bool indefinite, std::initializer_list<Octets> parts) {
  Octets whole{identifier, 0x80};
  for (const Octets &part : parts) whole.insert(whole.end(), part.begin(), part.end());
  if (!indefinite) whole[1] = static_cast<std::uint8_t>(whole.size() - 2);
  whole.resize(whole.size() + (indefinite ? 2 : 0));
  return whole;
}

// Levels of indefinite length inside one another.
Octets nested(const std::string &identifier, int levels, const std::string &inner = "") {
  const std::string times = ")*" + std::to_string(levels);
  return hex("(" + identifier + " 80" + times + " " + inner + " (00 00" + times);
}

// An element of content under the tag that it has in a message.
Octets inside(const Shape &shape, Octets content) {
  if (shape.info == Info::encrypted) content[0] ^= 0x84;
  return content;
}

// The message around such an element, or around none.
Octets message(const Shape &shape, bool indefinite, Octets content) {
  const bool encrypted = shape.info == Info::encrypted;
  if (!encrypted && !content.empty()) content = element(0xA0, indefinite, {content});
  const Octets head = hex(encrypted ? "06 01 2A 30 03 06 01 2A" : "06 01 2A");
  const Octets info = element(0x30, indefinite, {head, content});
  if (shape.before == nullptr) return info;
  return element(0x30, indefinite, {hex(shape.before), info, hex(shape.behind)});
}

struct Outcome {
  Held value;
  int result;
  Places place;
  std::uint64_t consumed;
  Codes codes;
};

Outcome apart(quarn_stream *stream, std::uint32_t type, quarn_stream *content = nullptr) {
  const Context ctx(quarn_err_ctx_new());
  void *value = nullptr;
  quarn_asn1_content_place place{};
  std::uint64_t consumed = 0;
  const int result =
      quarn_asn1_decode_message(stream, type, content, &value, &place, &consumed, ctx.get());
  return {{type, value},
          result,
          {place.offset, place.end, place.length},
          consumed,
          codes_in(ctx.get())};
}

// What a stream of the content gives, in pieces of a size; nothing when it fails.
std::optional<Octets> piecewise(quarn_stream *source, std::int64_t offset, std::int64_t size) {
  const Stream content(
      quarn_asn1_contentstream_new(source, static_cast<std::uint64_t>(offset), nullptr));
  if (content == nullptr) return std::nullopt;
  Octets octets;
  std::uint8_t piece[64];
  for (;;) {
    std::uint64_t got = 0;
    if (quarn_stream_read(content.get(), piece, size, &got, nullptr) != 1) return std::nullopt;
    if (got == 0) return octets;
    octets.insert(octets.end(), piece, piece + got);
    // Whoever else reads the source does no harm.
    quarn_stream_ctrl(source, QUARN_STREAM_REWIND, nullptr, nullptr);
  }
}

void expect_apart(const Shape &shape, bool indefinite, const Case &content) {
  const Octets element = inside(shape, hex(content.element));
  const Octets expected = hex(content.content);
  const Octets octets = message(shape, indefinite, element);
  const auto at = std::search(octets.begin(), octets.end(), element.begin(), element.end());
  const std::int64_t offset = at - octets.begin();
  const auto end = offset + static_cast<std::int64_t>(element.size());
  const Octets detached = Held(shape.type, message(shape, indefinite, {})).encoding();
  const Stream whole = memory_stream(octets);
  SlowSource slow(octets);
  for (const bool dropped : {false, true}) {
    const Stream out = growable();
    const Outcome got = dropped ? apart(slow.stream().get(), shape.type)
                                : apart(whole.get(), shape.type, out.get());
    EXPECT_EQ(got.result, 1);
    EXPECT_EQ(got.codes, Codes{});
    EXPECT_EQ(got.consumed, octets.size());
    EXPECT_EQ(got.place, (Places{offset, end, static_cast<std::int64_t>(expected.size())}));
    EXPECT_EQ(held_by(out), dropped ? Octets{} : expected);
    EXPECT_EQ(got.value.encoding(), detached);
  }
  for (const int size : {1, 2, 64}) EXPECT_EQ(piecewise(whole.get(), offset, size), expected);
}

TEST(Message, every_type_in_every_form_is_decoded_apart) {
  for (const Shape &shape : kShapes) {
    for (const Case &each : kContents) {
      if (shape.info != Info::any && !each.is_octets) continue;
      SCOPED_TRACE(testing::Message() << shape.type << ' ' << each.element);
      expect_apart(shape, false, each);
      expect_apart(shape, true, each);
    }
  }
}

// Types that the notation says nothing of content for, and arguments that make no sense.
TEST(Message, what_cannot_be_decoded_apart_is_refused) {
  const auto type = kShapes[0].type;
  const Stream stream = memory_stream({});
  std::size_t accepted = 0;
  for (std::uint32_t id = 0; id < QUARN_ASN1_TYPE_COUNT; id++) {
    if (apart(stream.get(), id).codes != Codes{QUARN_ERROR_ARGUMENT}) accepted++;
  }
  EXPECT_EQ(accepted, std::size(kShapes));
  EXPECT_EQ(apart(stream.get(), QUARN_ASN1_TYPE_COUNT).codes, Codes{QUARN_ASN1_ERROR_TYPE});
  EXPECT_EQ(apart(stream.get(), type, stream.get()).codes, Codes{QUARN_ERROR_ARGUMENT});
  EXPECT_EQ(apart(nullptr, type).codes, Codes{QUARN_ERROR_ARGUMENT});
}

// The codes of a message that is wrong are those of the decoder that holds the content.
TEST(Message, what_is_wrong_is_told_as_by_the_plain_decoder) {
  const struct {
    int shape;
    const char *octets;
  } cases[] = {
      {0, "30 08 06 01 2A A0 03 04 02 41"},        // the content runs past its tag and the end
      {0, "30 08 06 01 2A A0 03 04 00 00"},        // something behind the content
      {0, "30 07 06 01 2A A0 02 00 00"},           // an end-of-contents in its place
      {0, "30 80 06 01 2A A0 80 04 01 41 05 00"},  // no end-of-contents behind it
      {3, "30 10 02 01 01 31 00 30 07 06 01 2A A0 02 30 00 31 00"},  // no OCTET STRING
      {4, "30 0A 06 01 2A A0 05 24 03 04 02 41"},
      {6, "30 0B 06 01 2A 30 03 06 01 2A 80 01"},
      {6, "30 0D 06 01 2A 30 03 06 01 2A A0 02 05 00"},
  };
  for (const auto &[shape, digits] : cases) {
    SCOPED_TRACE(digits);
    const Octets octets = hex(digits);
    const auto type = kShapes[shape].type;
    const Context ctx(quarn_err_ctx_new());
    void *value = nullptr;
    quarn_asn1_decode(memory_stream(octets).get(), type, &value, nullptr, ctx.get());
    EXPECT_EQ(value, nullptr);
    const Outcome got = apart(memory_stream(octets).get(), type);
    EXPECT_EQ(got.value.get(), nullptr);
    EXPECT_EQ(got.place, (Places{-1, -1, -1}));
    EXPECT_EQ(got.codes, codes_in(ctx.get()));
  }
  // Content in as many levels as the plain decoder reads, and in more.
  for (const Shape *shape : {&kShapes[0], &kShapes[4]}) {
    const int limit = quarn_get_recursive_level();
    for (int levels = limit - 4; levels <= limit + 1; levels++) {
      for (const char *innermost : {"", "04 01 41"}) {
        const Octets octets = message(*shape, true, nested("24", levels, innermost));
        EXPECT_EQ(apart(memory_stream(octets).get(), shape->type).result == 1,
                  Held(shape->type, octets).get() != nullptr)
            << levels;
      }
    }
  }
  // This one alone is refused that the plain decoder takes: no content can be made of it.
  const Octets octets = message(kShapes[0], false, hex("24 80 05 00 00 00"));
  EXPECT_EQ(apart(memory_stream(octets).get(), kShapes[0].type).result, 0);
}

TEST(Message, every_cut_failed_call_and_failed_allocation_gives_no_message) {
  const auto type = kShapes[2].type;
  const Octets octets = message(kShapes[2], true, hex("24 80 04 01 41 24 03 04 01 42 00 00"));
  for (std::size_t size = 0; size < octets.size(); size++) {
    SlowSource source(octets);
    source.fail_after(static_cast<std::int64_t>(size));
    EXPECT_EQ(apart(source.stream().get(), type).value.get(), nullptr) << size;
  }
  SlowSink sink;
  sink.fail_after(1);
  const Outcome got = apart(memory_stream(octets).get(), type, sink.stream().get());
  EXPECT_EQ(got.value.get(), nullptr);
  EXPECT_EQ(got.codes.front(), QUARN_STREAM_ERROR_WRITE);
  EXPECT_EQ(sink.octets(), hex("41"));
  fail_each_allocation([&](Allocation &allocation) {
    const Stream stream = memory_stream(octets);
    const Stream out(quarn_stream_new_mem(0, nullptr));
    if (stream == nullptr || out == nullptr) return;
    EXPECT_TRUE(apart(stream.get(), type, out.get()).result == 1 || allocation.failed());
  });
}

// Content of 16 MiB, all zeros, that is nowhere whole.
TEST(Message, what_is_held_does_not_depend_on_the_size_of_the_content) {
  constexpr std::int64_t kSize = 1 << 24;
  const std::pair<std::uint32_t, const char *> cases[] = {
      {QUARN_ASN1_CMSENCAPSULATEDCONTENTINFO,
       "30 84 01 00 00 0F 06 01 2A A0 84 01 00 00 06 04 84 01 00 00 00"},
      {QUARN_ASN1_CMSENCRYPTEDCONTENTINFO,
       "30 84 01 00 00 0E 06 01 2A 30 03 06 01 2A 80 84 01 00 00 00"},
      {QUARN_ASN1_PKCS7CONTENTINFO,
       "30 84 01 00 00 0F 06 01 2A A0 84 01 00 00 06 05 84 01 00 00 00"},
  };
  for (const auto &[type, before] : cases) {
    for (const bool dropped : {false, true}) {
      const Allocation allocation;
      Store large(hex(before));
      large.size += kSize;
      SlowSink sink;
      const Stream out = sink.stream();
      const Stream in = large.stream(Store::Kind::read_only);
      EXPECT_EQ(apart(in.get(), type, dropped ? nullptr : out.get()).place[2], kSize);
      EXPECT_EQ(sink.octets().size(), dropped ? 0 : kSize);
      EXPECT_LT(allocation.peak_octets(), std::size_t{1} << 15);
    }
  }
}

TEST(ContentStream, what_is_no_element_fails_at_once_or_where_it_shows) {
  for (const char *octets : {"", "04", "04 80 00 00", "00 00", "04 02 41", "24 80 04 01 41",
                             "24 80 05 00 00 00", "24 03 04 02 41 42", "24 04 00 00 00 00",
                             "24 80 04 80 00 00 00 00", "30 80 02 01", "30 80 0F 00 00 00"}) {
    EXPECT_EQ(piecewise(memory_stream(hex(octets)).get(), 0, 64), std::nullopt) << octets;
  }
  const int limit = quarn_get_recursive_level();
  for (const int levels : {limit, limit + 1}) {
    for (const char *identifier : {"24", "30"}) {
      const Octets octets = nested(identifier, levels);
      EXPECT_EQ(piecewise(memory_stream(octets).get(), 0, 64).has_value(), levels == limit);
    }
  }
  const Octets octets = hex("04 01 41");
  SlowSource source(octets);
  EXPECT_EQ(quarn_asn1_contentstream_new(source.stream().get(), 1, nullptr), nullptr);
  EXPECT_EQ(quarn_asn1_contentstream_new(nullptr, 0, nullptr), nullptr);
  fail_each_allocation([&](Allocation &allocation) {
    const Stream stream = memory_stream(octets);
    EXPECT_TRUE(piecewise(stream.get(), 0, 64).has_value() || allocation.failed());
  });
}

// What is written piece by piece is the message that it was begun and ended with.
TEST(Message, a_signed_message_is_written_around_its_content) {
  const Shape &shape = kShapes[2];
  const Octets detached = Held(shape.type, message(shape, false, {})).encoding();
  const Held whole(shape.type, message(shape, false, hex("04 02 58 58")));
  const auto *from = whole.as<quarn_pkcs7signeddata>();
  const auto write = [&](quarn_stream *out, int form, quarn_err_ctx *ctx) {
    return quarn_asn1_encode_signeddata_init(out, from, form, ctx) == 1 &&
           quarn_asn1_encode_octetstring_update(out, octets_of("AB"), 2) == 1 &&
           quarn_asn1_encode_octetstring_update(out, octets_of("C"), 1) == 1 &&
           quarn_asn1_encode_signeddata_end(out, from, form, ctx) == 1;
  };
  for (const int form : {0, 1, 2}) {
    const Stream out = growable();
    const Stream content = growable();
    EXPECT_TRUE(write(out.get(), form, nullptr));
    quarn_pkcs7signeddata *read = nullptr;
    quarn_asn1_decode_pkcs7signeddata_ex(out.get(), content.get(), &read, nullptr, nullptr,
                                         nullptr);
    const Held message(shape.type, read);
    EXPECT_EQ(quarn_pkcs7signeddata_gettype(read), form);
    EXPECT_EQ(held_by(content), hex("41 42 43"));
    EXPECT_EQ(message.encoding(), detached);
  }
  const Context ctx(quarn_err_ctx_new());
  for (const int form : {-1, 3}) EXPECT_FALSE(write(growable().get(), form, ctx.get()));
  EXPECT_EQ(codes_in(ctx.get()), (Codes{QUARN_ERROR_ARGUMENT, QUARN_ERROR_ARGUMENT}));
  std::int64_t calls = 0;
  for (bool done = false; !done; calls++) {
    SlowSink sink;
    sink.fail_after(calls);
    done = write(sink.stream().get(), 0, nullptr);
  }
  EXPECT_GT(calls, 10);
  fail_each_allocation([&](Allocation &allocation) {
    const Stream out(quarn_stream_new_mem(0, nullptr));
    EXPECT_TRUE((out != nullptr && write(out.get(), 2, nullptr)) || allocation.failed());
  });
}

}  // namespace
}  // namespace quarn::test
