// Elements in primitive form as JSON objects.
#include "json/hex.h"
#include "json/json.h"
#include "json/object.h"
#include "types/oid.h"
#include "types/time.h"

namespace quarn::asn1::json {

namespace {

// Room for count characters of text; null when memory is short.
char *room_for(Buffer &scratch, std::size_t count) {
  scratch.truncate(0);
  // A character more, so that no room is room too.
  return scratch.reserve(count + 1) ? reinterpret_cast<char *>(scratch.data()) : nullptr;
}

quarn_json *new_hex(const std::uint8_t *octets, std::size_t count, Buffer &scratch) {
  char *text = room_for(scratch, 2 * count);
  if (text == nullptr) return nullptr;
  write_hex(octets, count, text);
  return new_text({text, 2 * count});
}

// Content that the type's own notation cannot give back.
quarn_json *verbatim_content(const Primitive &element, Buffer &scratch) {
  Object user_defined;
  user_defined.add("content", new_hex(element.content, element.length, scratch));
  return user_defined.add("length", new_number(element.length)).release();
}

quarn_json *render_boolean(const Primitive &element, Buffer &scratch) {
  if (element.length != 1) return nullptr;
  Object object("BOOLEAN");
  const std::uint8_t octet = element.content[0];
  if (octet == 0x00 || octet == 0xFF) {
    return object.add("value", quarn_json_newboolean(octet == 0xFF ? 1 : 0)).release();
  }
  Object user_defined;
  user_defined.add("content", new_hex(&octet, 1, scratch));
  return object.add("user defined", user_defined.release()).release();
}

bool is_minimal(const std::uint8_t *octets, std::size_t count) {
  if (count < 2) return true;
  const bool negative = (octets[1] & 0x80u) != 0;
  return octets[0] != (negative ? 0xFF : 0x00);
}

// "0X" and the magnitude in hex, after a "-" where it is negative.
quarn_json *big_number(const std::uint8_t *octets, std::size_t count, Buffer &scratch) {
  const bool negative = (octets[0] & 0x80u) != 0;
  char *text = room_for(scratch, 3 + 2 * count);
  if (text == nullptr) return nullptr;
  char *digits = text;
  if (negative) *digits++ = '-';
  *digits++ = '0';
  *digits++ = 'X';
  // The magnitude of a negative number: all octets inverted down to the last that is not zero,
  // which is negated.
  std::size_t last = count;
  while (negative && octets[last - 1] == 0) last--;
  bool leading = true;
  for (std::size_t i = 0; i < count; i++) {
    std::uint8_t octet = octets[i];
    if (negative && i + 1 < last) octet = static_cast<std::uint8_t>(~octet);
    if (negative && i + 1 == last) octet = static_cast<std::uint8_t>(-octet);
    leading = leading && octet == 0;
    if (leading) continue;
    write_hex(&octet, 1, digits);
    digits += 2;
  }
  return new_text({text, static_cast<std::size_t>(digits - text)});
}

quarn_json *render_integer(const Primitive &element, Buffer &scratch) {
  const std::uint8_t *octets = element.content;
  const std::size_t count = element.length;
  if (count == 0) return nullptr;
  Object object(type_name_of(element.number));
  if (!is_minimal(octets, count)) {
    return object.add("user defined", verbatim_content(element, scratch)).release();
  }
  if (count > sizeof(std::int32_t)) {
    return object.add("value", big_number(octets, count, scratch)).release();
  }
  std::uint32_t bits = (octets[0] & 0x80u) != 0 ? ~0u : 0;
  for (std::size_t i = 0; i < count; i++) bits = bits << 8 | octets[i];
  return object.add("value", quarn_json_newnumber(static_cast<std::int32_t>(bits))).release();
}

quarn_json *render_bit_string(const Primitive &element, Buffer &scratch) {
  if (element.length == 0) return nullptr;
  const std::uint8_t unused = element.content[0];
  if (unused > 7 || (unused > 0 && element.length == 1)) return nullptr;
  Object bits;
  bits.add("unused bits", new_number(unused));
  bits.add("value", new_hex(element.content + 1, element.length - 1, scratch));
  return Object("BITSTRING").add("value", bits.release()).release();
}

quarn_json *render_hex(const Primitive &element, std::string_view name, Buffer &scratch) {
  return Object(name).add("value", new_hex(element.content, element.length, scratch)).release();
}

quarn_json *render_oid(const Primitive &element, bool relative, Buffer &scratch) {
  if (element.length == 0) return nullptr;
  scratch.truncate(0);
  // Unfinished octets give no text at all; there is room for none.
  if (!scratch.reserve(1) || !append_oid_text(element.content, element.length, relative, scratch)) {
    return nullptr;
  }
  const auto *text = reinterpret_cast<const char *>(scratch.data());
  return Object(type_name_of(element.number))
      .add("value", new_text({text, scratch.size()}))
      .release();
}

// The text appears as it stands, once its form's rules accept it.
quarn_json *render_time(const Primitive &element) {
  const auto *text = reinterpret_cast<const char *>(element.content);
  quarn_time_fields fields{};
  if (!read_time_text(element.number, text, element.length, fields)) return nullptr;
  return Object(type_name_of(element.number))
      .add("value", new_text({text, element.length}))
      .release();
}

// Writes a character as UTF-8 and returns where it ends; null when it is none.
char *write_utf8(char *text, std::uint32_t character) {
  const auto tail = [character](int shift) {
    return static_cast<char>(0x80u | (character >> shift & 0x3Fu));
  };
  if (character < 0x80) {
    *text++ = static_cast<char>(character);
  } else if (character < 0x800) {
    *text++ = static_cast<char>(0xC0u | character >> 6);
    *text++ = tail(0);
  } else if (character < 0x10000) {
    if (character >= 0xD800 && character < 0xE000) return nullptr;
    *text++ = static_cast<char>(0xE0u | character >> 12);
    *text++ = tail(6);
    *text++ = tail(0);
  } else {
    if (character > 0x10FFFF) return nullptr;
    *text++ = static_cast<char>(0xF0u | character >> 18);
    *text++ = tail(12);
    *text++ = tail(6);
    *text++ = tail(0);
  }
  return text;
}

// Text of characters that fill width octets each, two or four; content that is no such text stays
// as it is.
quarn_json *render_wide(const Primitive &element, std::size_t width, Buffer &scratch) {
  // A character takes at most width octets of UTF-8, or three where width is two.
  const std::size_t most = width == 2 ? 3 : 4;
  char *text = room_for(scratch, element.length / width * most);
  if (text == nullptr) return nullptr;
  char *next = element.length % width == 0 ? text : nullptr;
  for (std::size_t i = 0; i < element.length && next != nullptr; i += width) {
    std::uint32_t character = 0;
    for (std::size_t j = 0; j < width; j++) character = character << 8 | element.content[i + j];
    next = write_utf8(next, character);
  }
  Object object(type_name_of(element.number));
  if (next == nullptr) {
    return object.add("user defined", verbatim_content(element, scratch)).release();
  }
  return object.add("value", new_text({text, static_cast<std::size_t>(next - text)})).release();
}

quarn_json *render_text(const Primitive &element, Buffer &scratch) {
  const auto *text = reinterpret_cast<const char *>(element.content);
  Object object(type_name_of(element.number));
  quarn_json *value = new_text({text, element.length});
  if (value == nullptr &&
      quarn_utf8_valid(element.content, static_cast<std::int64_t>(element.length)) != 1) {
    return object.add("user defined", verbatim_content(element, scratch)).release();
  }
  return object.add("value", value).release();
}

quarn_json *render_unknown(const Primitive &element, Buffer &scratch) {
  const auto whole = static_cast<std::size_t>(element.content - element.begin) + element.length;
  Object user_defined;
  user_defined.add("content", new_hex(element.begin, whole, scratch));
  user_defined.add("identifier", "").add("length", "");
  return Object(kUnknown).add("user defined", user_defined.release()).release();
}

quarn_json *render_tagged(const Primitive &element, Buffer &scratch) {
  Object object(kTaggedType);
  object.add("class", class_name_of(element.tag_class));
  object.add("implicit", quarn_json_newboolean(1));
  object.add("number", new_number(element.number));
  return object.add("value", render_hex(element, "OCTETSTRING", scratch)).release();
}

}  // namespace

quarn_json *render_primitive(const Primitive &element, Buffer &scratch) {
  if (element.tag_class != kUniversal) return render_tagged(element, scratch);
  switch (element.number) {
    case 1:
      return render_boolean(element, scratch);
    case 2:
    case 10:
      return render_integer(element, scratch);
    case 3:
      return render_bit_string(element, scratch);
    case 5:
      return element.length == 0 ? Object("NULL").release() : nullptr;
    case 6:
      return render_oid(element, false, scratch);
    case 13:
      return render_oid(element, true, scratch);
    case 12:
    case 18:
    case 19:
    case 22:
    case 26:
      return render_text(element, scratch);
    case 4:
    case 20:
    case 21:
    case 25:
    case 27:
      return render_hex(element, type_name_of(element.number), scratch);
    case 23:
    case 24:
      return render_time(element);
    case 28:
      return render_wide(element, 4, scratch);
    case 30:
      return render_wide(element, 2, scratch);
    default:
      return render_unknown(element, scratch);
  }
}

}  // namespace quarn::asn1::json
