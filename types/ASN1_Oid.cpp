// OBJECT IDENTIFIER and RELATIVE-OID (X.690, 8.19 and 8.20).
//
//     06 03 2A 03 04      1.2.3.4: the first subidentifier is 40 times the first arc plus the
//     second 06 03 88 37 03      2.999.3: base 128, the top bit set on all octets but the last
//
// Each value has both forms, since callers compare and look up identifiers by their text.
#include "types/oid.h"

#include <charconv>
#include <cstring>

#include "core/adapter.h"
#include "types/codecs.h"
#include "types/content.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_Oid"};

// An octet gives at most this many characters: a dot and three digits. Longer subidentifiers give
// fewer, and the two arcs in the first one fit as well.
constexpr std::size_t kMostCharacters = 4;
// Identifiers of at most this many octets are turned into text on the stack.
constexpr std::size_t kShort = 32;
// An arc that reaches this has no room for seven more bits.
constexpr std::uint64_t kNoRoom = std::uint64_t{1} << 57;
// Arcs in text are shorter than this and less than the greatest number, which the octets may hold.
constexpr std::size_t kTooManyDigits = 31;
constexpr std::uint64_t kTooGreat = UINT64_MAX;

char *put_number(std::uint64_t number, char *out) {
  if (number < 10) {
    *out = static_cast<char>('0' + number);
    return out + 1;
  }
  return std::to_chars(out, out + 20, number).ptr;
}

// Writes the arcs that share the first subidentifier.
char *put_first(std::uint64_t number, char *out) {
  const std::uint64_t first = number < 80 ? number / 40 : 2;
  out = put_number(first, out);
  *out++ = '.';
  return put_number(number - 40 * first, out);
}

// Reads one subidentifier and moves octets past it; at the end when it is unfinished, which
// finished then tells. False when it begins with 80 or does not fit.
bool take_subidentifier(const std::uint8_t *&octets,
                        const std::uint8_t *end,
                        std::uint64_t &number,
                        bool &finished) {
  number = 0;
  finished = false;
  if (*octets == 0x80) return false;
  while (octets != end) {
    const std::uint8_t octet = *octets++;
    number = number << 7 | (octet & 0x7Fu);
    finished = (octet & 0x80u) == 0;
    if (finished) break;
    if (number >= kNoRoom) return false;
  }
  return true;
}

// Writes the dotted text into room for kMostCharacters times count; null when the octets are bad.
char *put_text(const std::uint8_t *octets, std::size_t count, bool relative, char *out) {
  const std::uint8_t *end = octets + count;
  bool first = true;
  while (octets != end) {
    std::uint64_t number = 0;
    bool finished = false;
    if (!take_subidentifier(octets, end, number, finished)) return nullptr;
    if (!finished) break;
    if (first && !relative) {
      out = put_first(number, out);
    } else {
      if (!first) *out++ = '.';
      out = put_number(number, out);
    }
    first = false;
  }
  return out;
}

std::uint8_t *put_subidentifier(std::uint64_t number, std::uint8_t *out) {
  int groups = 1;
  while (groups < 10 && number >> (7 * groups) != 0) groups++;
  while (--groups > 0) *out++ = static_cast<std::uint8_t>(0x80u | number >> (7 * groups));
  *out++ = static_cast<std::uint8_t>(number & 0x7Fu);
  return out;
}

constexpr bool is_separator(char c) {
  return c == '.' || c == ' ';
}

// Reads the arc at text, and the separator after it where more follows. False when there is none,
// when it is too long or too great, or when something else follows.
bool take_arc(const char *&text, const char *end, std::uint64_t &arc) {
  const auto [after, error] = std::from_chars(text, end, arc);
  if (error != std::errc() || arc == kTooGreat) return false;
  if (after - text >= static_cast<std::ptrdiff_t>(kTooManyDigits)) return false;
  text = after;
  return text == end || is_separator(*text++);
}

// Reads the first two arcs as the number that they share.
bool take_first_arcs(const char *&text, const char *end, std::uint64_t &number) {
  std::uint64_t first = 0;
  if (!take_arc(text, end, first) || first > 2) return false;
  if (!take_arc(text, end, number)) return false;
  if (first < 2 && number > 39) return false;
  return add_to(number, 40 * first);
}

// Writes the content octets into room for length, which is enough: no arc has more octets than
// digits. Null when the text is no identifier.
std::uint8_t *put_octets(const char *text, std::size_t length, bool relative, std::uint8_t *out) {
  if (length < (relative ? 1 : 3)) return nullptr;
  const char *end = text + length;
  if (is_separator(end[-1])) return nullptr;
  std::uint64_t number = 0;
  if (!relative) {
    if (!take_first_arcs(text, end, number)) return nullptr;
    out = put_subidentifier(number, out);
  }
  while (text != end) {
    if (!take_arc(text, end, number)) return nullptr;
    out = put_subidentifier(number, out);
  }
  return out;
}

quarn_asn1_oid *new_oid(const std::uint8_t *octets,
                        std::size_t count,
                        const char *text,
                        std::size_t text_length) {
  std::size_t extra = count;
  if (!add_to(extra, text_length) || !add_to<std::size_t>(extra, 1)) return nullptr;
  auto *value = util::allocate<quarn_asn1_oid>(extra);
  if (value == nullptr) return nullptr;
  value->length = static_cast<std::int64_t>(count);
  value->text_length = static_cast<std::int64_t>(text_length);
  std::memcpy(value->octets(), octets, count);
  if (text_length > 0) std::memcpy(value->text(), text, text_length);
  value->text()[text_length] = '\0';
  return value;
}

quarn_asn1_oid *new_from_text(const char *text, bool relative) {
  if (text == nullptr) return nullptr;
  const std::size_t length = std::strlen(text);
  Buffer octets;
  if (!append_oid_octets(text, length, relative, octets)) return nullptr;
  quarn_asn1_oid *value = new_oid(octets.data(), octets.size(), text, length);
  if (value == nullptr) return nullptr;
  for (char *c = value->text(); *c != '\0'; c++) {
    if (*c == ' ') *c = '.';
  }
  return value;
}

void free_oid(const Type & /*type*/, void *value) {
  if (!is_known_oid(value)) quarn_free(value);
}

std::int64_t oid_length(const Type & /*type*/, const void *value) {
  return value == nullptr ? kNoLength : static_cast<const quarn_asn1_oid *>(value)->length;
}

Status encode_oid_content(const Type &type, Writer &out, void *value, std::int64_t length) {
  const Status status = expect_length(out, value, length, oid_length(type, value), kUnit);
  if (!status) return status;
  return out.octets(static_cast<quarn_asn1_oid *>(value)->octets(),
                    static_cast<std::uint64_t>(length));
}

// Makes the value of content octets; bad octets and memory that is short for the text alike are
// failures of the content.
Status new_decoded(Reader &in, const Content &content, bool relative, void **value) {
  char few[kShort * kMostCharacters];
  Buffer many;
  const char *text = few;
  std::size_t length = 0;
  if (content.size() <= kShort) [[likely]] {
    const char *end = put_text(content.data(), content.size(), relative, few);
    if (end == nullptr) return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_OID_CONTENT, in.offset());
    length = static_cast<std::size_t>(end - few);
  } else {
    if (!append_oid_text(content.data(), content.size(), relative, many)) {
      return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_OID_CONTENT, in.offset());
    }
    text = reinterpret_cast<const char *>(many.data());
    length = many.size();
  }
  *value = new_oid(content.data(), content.size(), text, length);
  if (*value == nullptr) return kUnit.fail(in.ctx(), QUARN_ERROR_NO_MEMORY, in.offset());
  return Status::success();
}

template <bool kRelative>
Status decode_oid_content(
    const Type & /*type*/, Reader &in, void **value, bool primitive, std::int64_t length) {
  Status status = expect_some_primitive(in, value, primitive, length, kUnit);
  if (!status) return status;
  Content content;
  status = content.read(in, static_cast<std::uint64_t>(length), kUnit);
  if (!status) return status;
  if constexpr (!kRelative) {
    // Values of identifiers are not changed once they are made.
    *value = const_cast<quarn_asn1_oid *>(known_oid(content.data(), content.size()));
    if (*value != nullptr) return status;
  }
  return new_decoded(in, content, kRelative, value);
}

}  // namespace

bool append_oid_text(const std::uint8_t *octets, std::size_t count, bool relative, Buffer &out) {
  std::size_t room = count;
  if (count == 0 || !multiply_by(room, kMostCharacters) || !out.reserve(room)) return false;
  char *begin = reinterpret_cast<char *>(out.data() + out.size());
  const char *end = put_text(octets, count, relative, begin);
  if (end == nullptr) return false;
  out.extend(static_cast<std::size_t>(end - begin));
  return true;
}

bool append_oid_octets(const char *text, std::size_t length, bool relative, Buffer &out) {
  if (!out.reserve(length)) return false;
  std::uint8_t *begin = out.data() + out.size();
  const std::uint8_t *end = put_octets(text, length, relative, begin);
  if (end == nullptr) return false;
  out.extend(static_cast<std::size_t>(end - begin));
  return true;
}

const Codec kOidCodec = {
    free_oid, oid_length, nullptr, encode_oid_content, decode_oid_content<false>, nullptr, nullptr};
const Codec kRelativeOidCodec = {
    free_oid, oid_length, nullptr, encode_oid_content, decode_oid_content<true>, nullptr, nullptr};

}  // namespace quarn::asn1

quarn_asn1_oid *quarn_asn1_oid_new(const char *text) {
  return quarn::asn1::new_from_text(text, false);
}

quarn_asn1_oid *quarn_asn1_relative_oid_new(const char *text) {
  return quarn::asn1::new_from_text(text, true);
}

const char *quarn_asn1_oid_getstring(const quarn_asn1_oid *v) {
  return v == nullptr ? nullptr : v->text();
}

const char *quarn_asn1_relative_oid_getstring(const quarn_asn1_oid *v) {
  return v == nullptr ? nullptr : v->text();
}
