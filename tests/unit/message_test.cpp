// Messages apart from their content: where it was, what it was, and what is left of the message.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <optional>
#include <utility>

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

// Levels of indefinite length inside one another.
Octets nested(std::uint8_t identifier, int levels, const Octets &inner = {}) {
  Octets octets;
  for (int i = 0; i < levels; i++) octets.insert(octets.end(), {identifier, 0x80});
  octets.insert(octets.end(), inner.begin(), inner.end());
  octets.resize(octets.size() + static_cast<std::size_t>(2 * levels));
  return octets;
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
    {QUARN_ASN1_PKCS12PFX, Info::any, "02 01 03", ""},
    {QUARN_ASN1_AUTHENTICODE_TIMESTAMPREQ, Info::any, "06 01 2A", ""},
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
  for (const int size : {1, 2, 64}) EXPECT_EQ(piecewise(streams[0].get(), offset, size), expected);
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

// Types that the notation says nothing of content for, and arguments that make no sense.
TEST(Message, what_cannot_be_decoded_apart_is_refused) {
  const Octets octets = message(kShapes[0], false, hex("04 01 41"));
  const Stream stream = memory_stream(octets);
  const Stream out = growable();
  const auto type = kShapes[0].type;
  std::vector<std::uint32_t> accepted;
  for (std::uint32_t id = 0; id < QUARN_ASN1_TYPE_COUNT; id++) {
    const Outcome got = apart(memory_stream({}).get(), id, nullptr);
    EXPECT_EQ(got.value, nullptr);
    if (got.codes != Codes{QUARN_ERROR_ARGUMENT}) accepted.push_back(id);
  }
  EXPECT_EQ(accepted, (std::vector<std::uint32_t>{111, 113, 121, 133, 134, 147, 148, 149, 164, 165,
                                                  215, 271, 355}));
  EXPECT_EQ(apart(stream.get(), QUARN_ASN1_TYPE_COUNT, out.get()).codes,
            Codes{QUARN_ASN1_ERROR_TYPE});
  EXPECT_EQ(apart(stream.get(), type, stream.get()).codes, Codes{QUARN_ERROR_ARGUMENT});
  EXPECT_EQ(apart(nullptr, type, out.get()).codes, Codes{QUARN_ERROR_ARGUMENT});
  EXPECT_EQ(apart(stream.get(), type, memory_stream({}).get()).codes.front(),
            QUARN_STREAM_ERROR_READONLY);
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
      {0, "30 07 06 01 2A A0 02 0F 00"},           // of a tag that an open type refuses
      {0, "30 80 06 01 2A A0 80 04 01 41 05 00"},  // no end-of-contents behind it
      {3, "30 10 02 01 01 31 00 30 07 06 01 2A A0 02 30 00 31 00"},  // no OCTET STRING
      {4, "30 07 06 01 2A A0 02 05 00"},
      {4, "30 0A 06 01 2A A0 05 24 03 04 02 41"},
      {6, "30 0B 06 01 2A 30 03 06 01 2A 80 01"},
      {6, "30 0D 06 01 2A 30 03 06 01 2A A0 02 05 00"},
  };
  for (const auto &each : cases) {
    SCOPED_TRACE(each.octets);
    const Octets octets = hex(each.octets);
    const std::uint32_t type = kShapes[each.shape].type;
    const Context ctx(quarn_err_ctx_new());
    void *value = nullptr;
    quarn_asn1_decode(memory_stream(octets).get(), type, &value, nullptr, ctx.get());
    EXPECT_EQ(value, nullptr);
    const Outcome got = apart(memory_stream(octets).get(), type, nullptr);
    EXPECT_EQ(got.value, nullptr);
    EXPECT_EQ(in(got.place), (Places{-1, -1, -1}));
    EXPECT_EQ(got.codes, codes_in(ctx.get()));
  }
  // Content in as many levels as the plain decoder reads, and in more.
  for (const Shape *shape : {&kShapes[0], &kShapes[4]}) {
    const int limit = quarn_get_recursive_level();
    for (int levels = limit - 4; levels <= limit + 1; levels++) {
      for (const Octets &innermost : {Octets{}, hex("04 01 41")}) {
        const Octets octets = message(*shape, true, nested(0x24, levels, innermost));
        const Held whole(shape->type, octets);
        const Held rest(shape->type,
                        apart(memory_stream(octets).get(), shape->type, nullptr).value);
        EXPECT_EQ(rest.get() != nullptr, whole.get() != nullptr) << levels;
      }
    }
  }
  // This one alone is refused that the plain decoder takes: no content can be made of it.
  const Octets octets = message(kShapes[0], false, hex("24 80 05 00 00 00"));
  EXPECT_EQ(apart(memory_stream(octets).get(), kShapes[0].type, nullptr).result, 0);
}

TEST(Message, every_cut_failed_call_and_failed_allocation_gives_no_message) {
  const Octets octets = message(kShapes[2], true, hex("24 80 04 01 41 24 03 04 01 42 00 00"));
  const auto type = kShapes[2].type;
  for (std::size_t size = 0; size < octets.size(); size++) {
    SlowSource source(octets);
    source.fail_after(static_cast<std::int64_t>(size));
    const Octets cut(octets.begin(), octets.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_EQ(apart(memory_stream(cut).get(), type, nullptr).value, nullptr) << size;
    EXPECT_EQ(apart(source.stream().get(), type, nullptr).value, nullptr) << size;
  }
  for (int calls = 0; calls < 2; calls++) {
    SlowSink sink;
    sink.fail_after(calls);
    const Outcome got = apart(memory_stream(octets).get(), type, sink.stream().get());
    EXPECT_EQ(got.value, nullptr);
    EXPECT_EQ(got.codes.front(), QUARN_STREAM_ERROR_WRITE);
    EXPECT_EQ(sink.octets(), calls == 0 ? Octets{} : Octets{0x41});
  }
  fail_each_allocation([&](Allocation &allocation) {
    const Stream stream = memory_stream(octets);
    const Stream out(quarn_stream_new_mem(0, nullptr));
    if (stream == nullptr || out == nullptr) return;
    const Outcome got = apart(stream.get(), type, out.get());
    EXPECT_TRUE(allocation.failed() || got.value != nullptr);
    quarn_asn1_value_free(type, got.value);
  });
}

// Content of 64 MiB, all zeros, that is nowhere whole.
TEST(Message, what_is_held_does_not_depend_on_the_size_of_the_content) {
  constexpr std::int64_t kSize = 1 << 26;
  const std::pair<std::uint32_t, const char *> cases[] = {
      {QUARN_ASN1_CMSENCAPSULATEDCONTENTINFO,
       "30 84 04 00 00 0F 06 01 2A A0 84 04 00 00 06 04 84 04 00 00 00"},
      {QUARN_ASN1_CMSENCRYPTEDCONTENTINFO,
       "30 84 04 00 00 0E 06 01 2A 30 03 06 01 2A 80 84 04 00 00 00"},
      {QUARN_ASN1_PKCS7CONTENTINFO,
       "30 84 04 00 00 0F 06 01 2A A0 84 04 00 00 06 05 84 04 00 00 00"},
  };
  const quarn_stream_callbacks counting{nullptr,
                                        [](void *count, const void *, std::int64_t n) {
                                          *static_cast<std::int64_t *>(count) += n;
                                          return 1;
                                        },
                                        nullptr, nullptr, nullptr};
  for (const auto &[type, before] : cases) {
    for (const bool dropped : {false, true}) {
      const Allocation allocation;
      Store large(hex(before));
      large.size += kSize;
      std::int64_t written = 0;
      const Stream out(quarn_stream_new_callback(&counting, &written, nullptr));
      const Stream in = large.stream(Store::Kind::read_only);
      const Outcome got = apart(in.get(), type, dropped ? nullptr : out.get());
      EXPECT_EQ(got.place.length, kSize);
      EXPECT_EQ(written, dropped ? 0 : kSize);
      quarn_asn1_value_free(type, got.value);
      EXPECT_LT(allocation.peak_octets(), std::size_t{1} << 15);
    }
  }
}

TEST(ContentStream, what_is_no_element_fails_at_once_or_where_it_shows) {
  for (const char *octets : {"", "04", "04 80 00 00", "00 00", "04 02 41", "24 80 04 01 41",
                             "24 80 05 00 00 00", "24 03 04 02 41 42", "24 04 00 00 00 00",
                             "24 80 04 80 00 00 00 00", "30 80 02 01", "30 80 0F 00 00 00"}) {
    const Octets held = hex(octets);
    EXPECT_EQ(piecewise(memory_stream(held).get(), 0, 64), std::nullopt) << octets;
  }
  // As deep as the limit, and deeper.
  for (const std::uint8_t identifier : Octets{0x24, 0x30}) {
    const int limit = quarn_get_recursive_level();
    for (const int levels : {limit, limit + 1}) {
      const Octets octets = nested(identifier, levels);
      EXPECT_EQ(piecewise(memory_stream(octets).get(), 0, 64).has_value(), levels == limit);
    }
  }
  const Octets octets = hex("04 01 41");
  SlowSource source(octets);
  const Stream no_seek = source.stream();
  EXPECT_EQ(quarn_asn1_contentstream_new(no_seek.get(), 1, nullptr), nullptr);
  EXPECT_EQ(quarn_asn1_contentstream_new(nullptr, 0, nullptr), nullptr);
  fail_each_allocation([&](Allocation &allocation) {
    const Stream stream = memory_stream(octets);
    EXPECT_TRUE(piecewise(stream.get(), 0, 64).has_value() || allocation.failed());
  });
}

// What is written piece by piece is the message that it was begun and ended with.
TEST(Message, a_signed_message_is_written_around_its_content) {
  const Octets whole = message(kShapes[2], false, hex("04 02 58 58"));
  const Octets detached = again(QUARN_ASN1_PKCS7SIGNEDDATA, message(kShapes[2], false, {}));
  void *value = nullptr;
  quarn_asn1_mem_decode(whole.data(), static_cast<std::int64_t>(whole.size()),
                        QUARN_ASN1_PKCS7SIGNEDDATA, &value);
  const auto *from = static_cast<quarn_pkcs7signeddata *>(value);
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
    EXPECT_EQ(quarn_asn1_decode_pkcs7signeddata_ex(out.get(), content.get(), &read, nullptr,
                                                   nullptr, nullptr),
              1);
    EXPECT_EQ(quarn_pkcs7signeddata_gettype(read), form);
    EXPECT_EQ(held_by(content), hex("41 42 43"));
    EXPECT_EQ(encoding_of(QUARN_ASN1_PKCS7SIGNEDDATA, read), detached);
    quarn_pkcs7signeddata_free(read);
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
  quarn_asn1_value_free(QUARN_ASN1_PKCS7SIGNEDDATA, value);
}

}  // namespace
}  // namespace quarn::test
