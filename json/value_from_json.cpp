// The primitive content of an element from the "value" of its node.
#include "json/document.h"
#include "json/hex.h"
#include "json/json.h"
#include "types/oid.h"

namespace quarn::asn1::json {

namespace {

bool write_boolean(BackWriter &out, const quarn_json *value) {
  if (!is_kind(value, QUARN_JSON_BOOLEAN)) return false;
  return out.write(quarn_json_istrue(value) == 1 ? 0xFF : 0x00);
}

// The two's complement content of a number, as few octets as possible.
bool write_number(BackWriter &out, std::int64_t number) {
  std::uint8_t octet = 0;
  do {
    octet = static_cast<std::uint8_t>(number);
    number >>= 8;
    if (!out.write(octet)) return false;
  } while (number != ((octet & 0x80u) != 0 ? -1 : 0));
  return true;
}

// Makes a magnitude in front of what is written, count octets of it, the content of an INTEGER.
bool complete_magnitude(BackWriter &out, std::uint8_t *octets, std::size_t count, bool negative) {
  std::size_t zeros = 0;
  while (zeros + 1 < count && octets[zeros] == 0) zeros++;
  out.drop(zeros);
  octets += zeros;
  count -= zeros;
  if (negative) {
    bool carry = true;
    for (std::size_t i = count; i > 0; i--) {
      octets[i - 1] = static_cast<std::uint8_t>(~octets[i - 1] + (carry ? 1 : 0));
      carry = carry && octets[i - 1] == 0;
    }
    // Only zero carries out of its first octet; it has no sign.
    negative = !carry;
  }
  const bool signed_so = (octets[0] & 0x80u) != 0;
  return signed_so == negative || out.write(negative ? 0xFF : 0x00);
}

bool write_hex_number(BackWriter &out, std::string_view digits, bool negative) {
  if (digits.size() % 2 != 0) return false;
  const std::size_t count = digits.size() / 2;
  std::uint8_t *octets = out.extend(count);
  return octets != nullptr && read_hex(digits, octets) &&
         complete_magnitude(out, octets, count, negative);
}

// digits ends with a NUL.
bool write_decimal_number(BackWriter &out, std::string_view digits, bool negative) {
  constexpr std::size_t kShort = 18;  // digits that fit 64 bits whatever they are
  std::int64_t number = 0;
  for (const char digit : digits) {
    if (digit < '0' || digit > '9') return false;
    if (digits.size() <= kShort) number = 10 * number + (digit - '0');
  }
  if (digits.empty()) return false;
  if (digits.size() <= kShort) return write_number(out, negative ? -number : number);

  quarn_biginteger *big = quarn_biginteger_newdec(digits.data(), nullptr);
  quarn_data_blob *content = nullptr;
  if (big != nullptr && (!negative || quarn_biginteger_neg(big) == 1)) {
    content = quarn_biginteger_getdata(big);
  }
  quarn_biginteger_free(big);
  const bool written =
      content != nullptr && out.write(content->data, static_cast<std::size_t>(content->length));
  quarn_data_blob_free(content);
  return written;
}

bool write_integer(BackWriter &out, const quarn_json *value) {
  std::int64_t number = 0;
  if (is_kind(value, QUARN_JSON_NUMBER)) {
    return read_integral(value, number) && write_number(out, number);
  }
  std::string_view text = text_of(value);
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  if (text.size() > 2 && (text.starts_with("0x") || text.starts_with("0X"))) {
    return write_hex_number(out, text.substr(2), negative);
  }
  return write_decimal_number(out, text, negative);
}

// A list of named bits: those behind the last that is set do not count.
bool write_named_bits(BackWriter &out, const quarn_json *array) {
  const std::uint32_t size = quarn_json_getarraysize(array);
  std::uint32_t count = 0;
  for (std::uint32_t i = 0; i < size; i++) {
    const quarn_json *bit = quarn_json_getarrayitem(array, i);
    if (!is_kind(bit, QUARN_JSON_BOOLEAN)) return false;
    if (quarn_json_istrue(bit) == 1) count = i + 1;
  }
  const std::size_t octet_count = (static_cast<std::size_t>(count) + 7) / 8;
  std::uint8_t *octets = out.extend(1 + octet_count);
  if (octets == nullptr) return false;
  std::memset(octets, 0, 1 + octet_count);
  octets[0] = static_cast<std::uint8_t>(8 * octet_count - count);
  for (std::uint32_t i = 0; i < count; i++) {
    if (quarn_json_istrue(quarn_json_getarrayitem(array, i)) != 1) continue;
    octets[1 + i / 8] |= static_cast<std::uint8_t>(0x80u >> i % 8);
  }
  return true;
}

bool write_bit_string(BackWriter &out, const quarn_json *value) {
  if (is_kind(value, QUARN_JSON_ARRAY)) return write_named_bits(out, value);
  const quarn_json *bits = member(value, "value");
  std::int64_t unused = 0;
  if (!read_integral(member(value, "unused bits"), unused) || unused < 0 || unused > 7) {
    return false;
  }
  if (unused > 0 && text_of(bits).empty()) return false;
  return write_hex_text(out, bits) && out.write(static_cast<std::uint8_t>(unused));
}

bool write_oid(BackWriter &out, const quarn_json *value, bool relative) {
  const std::string_view text = text_of(value);
  Buffer &octets = out.scratch();
  return text.data() != nullptr && append_oid_octets(text.data(), text.size(), relative, octets) &&
         out.write(octets.data(), octets.size());
}

bool write_text(BackWriter &out, const quarn_json *value) {
  const std::string_view text = text_of(value);
  return text.data() != nullptr && out.write(text.data(), text.size());
}

// The character that UTF-8 text, which is valid, begins with; takes it off the text.
std::uint32_t take_character(std::string_view &text) {
  const auto lead = static_cast<std::uint8_t>(text[0]);
  const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  std::uint32_t character = length == 1 ? lead : lead & (0xFFu >> (length + 1));
  for (std::size_t i = 1; i < length; i++) {
    character = character << 6 | (static_cast<std::uint8_t>(text[i]) & 0x3Fu);
  }
  text.remove_prefix(length);
  return character;
}

// Text in characters of width octets each, two or four.
bool write_wide(BackWriter &out, const quarn_json *value, std::size_t width) {
  std::string_view text = text_of(value);
  if (text.data() == nullptr) return false;
  std::size_t size = 0;
  for (const char octet : text) {
    if ((static_cast<std::uint8_t>(octet) & 0xC0u) == 0x80) continue;
    if (!add_to(size, width)) return false;
  }
  std::uint8_t *octets = out.extend(size);
  if (octets == nullptr) return false;
  while (!text.empty()) {
    const std::uint32_t character = take_character(text);
    if (width == 2 && character > 0xFFFF) return false;
    for (std::size_t i = width; i > 0; i--) {
      *octets++ = static_cast<std::uint8_t>(character >> (8 * (i - 1)));
    }
  }
  return true;
}

}  // namespace

bool write_hex_text(BackWriter &out, const quarn_json *text) {
  const std::string_view digits = text_of(text);
  if (digits.data() == nullptr || digits.size() % 2 != 0) return false;
  std::uint8_t *octets = out.extend(digits.size() / 2);
  return octets != nullptr && read_hex(digits, octets);
}

bool write_value(BackWriter &out, Kind kind, const quarn_json *node) {
  const quarn_json *value = member(node, "value");
  switch (kind) {
    case Kind::boolean:
      return write_boolean(out, value);
    case Kind::integer:
      return write_integer(out, value);
    case Kind::bit_string:
      return write_bit_string(out, value);
    case Kind::octet_string:
      return write_hex_text(out, value);
    case Kind::null:
      return true;
    case Kind::oid:
      return write_oid(out, value, false);
    case Kind::relative_oid:
      return write_oid(out, value, true);
    case Kind::text:
      return write_text(out, value);
    case Kind::universal:
      return write_wide(out, value, 4);
    case Kind::bmp:
      return write_wide(out, value, 2);
    case Kind::none:
    case Kind::real:
    case Kind::sequence:
    case Kind::set:
    case Kind::set_of:
    case Kind::tagged:
      break;
  }
  return false;
}

}  // namespace quarn::asn1::json
