// Unicode strings: kept as UTF-8, with strict readers and writers of UTF-8, UCS-2 and UCS-4.
#include <cstring>

#include "quarn_util.h"
#include "util/memory.h"

// The UTF-8 octets stand behind the head, in the same block, with a NUL after them.
struct quarn_ustring {
  std::size_t length;      // octets of UTF-8
  std::size_t characters;  // scalar values

  uint8_t *octets() { return reinterpret_cast<uint8_t *>(this + 1); }
  const uint8_t *octets() const { return reinterpret_cast<const uint8_t *>(this + 1); }
};

namespace {

constexpr uint64_t kTopBits = 0x8080808080808080U;
constexpr char32_t kLastScalar = 0x10ffff;

// First octet in the range that is not ASCII, or end.
const uint8_t *skip_ascii(const uint8_t *p, const uint8_t *end) {
  uint64_t words[4];
  while (static_cast<std::size_t>(end - p) >= sizeof words) {
    std::memcpy(words, p, sizeof words);
    if (((words[0] | words[1] | words[2] | words[3]) & kTopBits) != 0) break;
    p += sizeof words;
  }
  while (p != end && *p < 0x80) p++;
  return p;
}

bool continues(uint8_t octet) {
  return (octet & 0xc0) == 0x80;
}

// Whether the second octet lies in the narrower range that some first octets leave it: this keeps
// out overlong forms, surrogates and values above U+10FFFF.
bool may_follow(uint8_t first, uint8_t second) {
  switch (first) {
    case 0xe0:
      return second >= 0xa0;
    case 0xed:
      return second <= 0x9f;
    case 0xf0:
      return second >= 0x90;
    case 0xf4:
      return second <= 0x8f;
    default:
      return true;
  }
}

// Octets of the sequence of two to four octets that starts at p; 0 when it is not well-formed.
std::size_t sequence_length(const uint8_t *p, const uint8_t *end) {
  const uint8_t first = p[0];
  if (first < 0xc2 || first > 0xf4) return 0;
  const std::size_t length = first < 0xe0 ? 2 : first < 0xf0 ? 3 : 4;
  if (static_cast<std::size_t>(end - p) < length) return 0;
  if (!continues(p[1]) || !may_follow(first, p[1])) return 0;
  if (length > 2 && !continues(p[2])) return 0;
  if (length > 3 && !continues(p[3])) return 0;
  return length;
}

// Whether the octets are UTF-8, and how many scalar values they hold.
bool count_utf8(const uint8_t *p, std::size_t count, std::size_t *characters) {
  const uint8_t *end = p + count;
  std::size_t continuations = 0;
  while ((p = skip_ascii(p, end)) != end) {
    // Text in other scripts has runs of long sequences: stay with them.
    while (p != end && *p >= 0x80) {
      const std::size_t length = sequence_length(p, end);
      if (length == 0) return false;
      continuations += length - 1;
      p += length;
    }
  }
  *characters = count - continuations;
  return true;
}

// The scalar value at p, which points into valid UTF-8; moves p behind it.
char32_t next_scalar(const uint8_t *&p) {
  const char32_t first = *p++;
  if (first < 0x80) return first;
  const int more = first < 0xe0 ? 1 : first < 0xf0 ? 2 : 3;
  char32_t scalar = first & (0x3fU >> more);
  for (int i = 0; i < more; i++) scalar = scalar << 6 | (*p++ & 0x3fU);
  return scalar;
}

bool is_scalar(char32_t c) {
  return c <= kLastScalar && (c < 0xd800 || c > 0xdfff);
}

std::size_t utf8_length(char32_t c) {
  return c < 0x80 ? 1 : c < 0x800 ? 2 : c < 0x10000 ? 3 : 4;
}

uint8_t *put_utf8(uint8_t *out, char32_t c) {
  const std::size_t length = utf8_length(c);
  if (length == 1) {
    *out++ = static_cast<uint8_t>(c);
    return out;
  }
  for (std::size_t i = length - 1; i > 0; i--, c >>= 6) {
    out[i] = static_cast<uint8_t>(0x80 | (c & 0x3f));
  }
  out[0] = static_cast<uint8_t>((0xf00 >> length) | c);
  return out + length;
}

// Big-endian code units of Width octets: UCS-2 and UCS-4.
template <std::size_t Width>
char32_t get_unit(const uint8_t *p) {
  char32_t c = 0;
  for (std::size_t i = 0; i < Width; i++) c = c << 8 | p[i];
  return c;
}

template <std::size_t Width>
void put_unit(uint8_t *p, char32_t c) {
  for (std::size_t i = Width; i-- > 0; c >>= 8) p[i] = static_cast<uint8_t>(c & 0xff);
}

// A string with room for length octets and the NUL behind them, which is set.
quarn_ustring *new_string(std::size_t length, std::size_t characters) {
  if (length == SIZE_MAX) return nullptr;
  auto *u = quarn::util::allocate<quarn_ustring>(length + 1);
  if (u == nullptr) return nullptr;
  u->length = length;
  u->characters = characters;
  u->octets()[length] = '\0';
  return u;
}

bool readable(const uint8_t *octets, int64_t count) {
  return count == 0 || (count > 0 && octets != nullptr);
}

template <std::size_t Width>
quarn_ustring *from_units(const uint8_t *octets, int64_t count) {
  if (!readable(octets, count) || count % static_cast<int64_t>(Width) != 0) return nullptr;
  const uint8_t *end = octets + count;
  std::size_t length = 0;
  for (const uint8_t *p = octets; p != end; p += Width) {
    const char32_t c = get_unit<Width>(p);
    if (!is_scalar(c)) return nullptr;
    length += utf8_length(c);
  }
  quarn_ustring *u = new_string(length, static_cast<std::size_t>(count) / Width);
  if (u == nullptr) return nullptr;
  uint8_t *out = u->octets();
  for (const uint8_t *p = octets; p != end; p += Width) out = put_utf8(out, get_unit<Width>(p));
  return u;
}

// Clears the results; 1 when they can be written.
int start(const quarn_ustring *u, uint8_t **octets, int64_t *count) {
  if (octets == nullptr) return 0;
  *octets = nullptr;
  if (count != nullptr) *count = 0;
  return u == nullptr ? 0 : 1;
}

template <std::size_t Width>
int to_units(const quarn_ustring *u, uint8_t **octets, int64_t *count) {
  if (start(u, octets, count) != 1 || u->characters > INT64_MAX / Width) return 0;
  const std::size_t size = u->characters * Width;
  quarn::util::Block<uint8_t> block(quarn::util::allocate_array<uint8_t>(size));
  if (block == nullptr) return 0;
  const uint8_t *p = u->octets();
  const uint8_t *end = p + u->length;
  for (uint8_t *out = block.get(); p != end; out += Width) {
    const char32_t c = next_scalar(p);
    if (Width == 2 && c > 0xffff) return 0;
    put_unit<Width>(out, c);
  }
  *octets = block.release();
  if (count != nullptr) *count = static_cast<int64_t>(size);
  return 1;
}

}  // namespace

int quarn_utf8_valid(const uint8_t *octets, int64_t count) {
  std::size_t characters = 0;
  if (!readable(octets, count)) return 0;
  return count_utf8(octets, static_cast<std::size_t>(count), &characters) ? 1 : 0;
}

quarn_ustring *quarn_ustring_newutf8(const uint8_t *octets, int64_t count) {
  if (!readable(octets, count)) return nullptr;
  const auto length = static_cast<std::size_t>(count);
  std::size_t characters = 0;
  if (!count_utf8(octets, length, &characters)) return nullptr;
  quarn_ustring *u = new_string(length, characters);
  if (u != nullptr && length > 0) std::memcpy(u->octets(), octets, length);
  return u;
}

quarn_ustring *quarn_ustring_newbmp(const uint8_t *octets, int64_t count) {
  return from_units<2>(octets, count);
}

quarn_ustring *quarn_ustring_newutf32be(const uint8_t *octets, int64_t count) {
  return from_units<4>(octets, count);
}

int quarn_ustring_toutf8(const quarn_ustring *u, uint8_t **octets, int64_t *count) {
  if (start(u, octets, count) != 1) return 0;
  auto *copy = quarn::util::allocate_array<uint8_t>(u->length + 1);
  if (copy == nullptr) return 0;
  std::memcpy(copy, u->octets(), u->length + 1);
  *octets = copy;
  if (count != nullptr) *count = static_cast<int64_t>(u->length);
  return 1;
}

int quarn_ustring_tobmp(const quarn_ustring *u, uint8_t **octets, int64_t *count) {
  return to_units<2>(u, octets, count);
}

int quarn_ustring_toutf32be(const quarn_ustring *u, uint8_t **octets, int64_t *count) {
  return to_units<4>(u, octets, count);
}

void quarn_ustring_free(quarn_ustring *u) {
  quarn_free(u);
}
