#include "cli/value.h"

#include <algorithm>
#include <array>

#include "cli/oid.h"
#include "cli/output.h"

namespace quarn::cli {

namespace {

constexpr std::size_t kShortInteger = 8;  // octets that are shown in decimal
constexpr std::size_t kShortBits = 32;    // bits that are shown one by one
constexpr std::size_t kLongestTime = 40;  // octets of text that may be a time

// What is shown of octets that are no text.
std::string excerpt(Octets content, std::size_t width) {
  const std::size_t most = width == 0 ? content.size() : std::max<std::size_t>(width / 3, 1);
  return hex_octets(content, most) + (content.size() > most ? " ..." : "");
}

std::string octets_value(Octets content, std::size_t width) {
  if (content.empty()) return painted(Paint::dim, "(empty)");
  return painted(Paint::dim, "(" + counted(content.size(), "octet") + ") ") +
         excerpt(content, width);
}

std::string bad(const std::string &why, Octets content, std::size_t width) {
  return painted(Paint::fault, "(" + why + ") ") + excerpt(content, width);
}

std::string boolean_value(Octets content, std::size_t width) {
  if (content.size() != 1) return bad("no BOOLEAN", content, width);
  if (content[0] == 0) return painted(Paint::number, "FALSE");
  const std::string text = content[0] == 0xFF ? "TRUE" : "TRUE (" + hex_number(content[0]) + ")";
  return painted(Paint::number, text);
}

std::string integer_value(Octets content, std::size_t width) {
  if (content.empty()) return bad("no INTEGER", content, width);
  if (content.size() <= kShortInteger) {
    std::uint64_t bits = (content[0] & 0x80u) != 0 ? UINT64_MAX : 0;
    for (const std::uint8_t octet : content) bits = bits << 8 | octet;
    return painted(Paint::number, std::to_string(static_cast<std::int64_t>(bits)));
  }
  const bool negative = (content[0] & 0x80u) != 0;
  const std::string size =
      "(" + counted(content.size(), "octet") + (negative ? ", negative) " : ") ");
  return painted(Paint::dim, size) + painted(Paint::number, excerpt(content, width));
}

// Whether unused bits and octets agree.
bool bit_string(Octets content) {
  if (content.empty() || content[0] > 7) return false;
  return content.size() > 1 || content[0] == 0;
}

std::string bit_string_value(Octets content, std::size_t width) {
  if (!bit_string(content)) {
    return bad("no BIT STRING", content, width);
  }
  const std::size_t count = 8 * (content.size() - 1) - content[0];
  std::string size = painted(Paint::dim, "(" + counted(count, "bit") + ")");
  if (count == 0) return size;
  if (count > kShortBits) return size + " " + excerpt(content.subspan(1), width);
  std::string bits;
  for (std::size_t i = 0; i < count; i++) {
    bits.push_back((content[1 + i / 8] & 0x80u >> i % 8) != 0 ? '1' : '0');
  }
  return size + " " + painted(Paint::number, "'" + bits + "'B");
}

std::string oid_value(Octets content, std::size_t width) {
  const std::optional<std::string> dotted = dotted_oid(content);
  if (!dotted) return bad("no OID that can be shown", content, width);
  const OidName *name = find_oid(*dotted);
  std::string text = cut(*dotted, width);
  if (name == nullptr) return text;
  text += " " + painted(Paint::name, name->name);
  if (*name->description != '\0') {
    text += painted(Paint::dim, std::string(" (") + name->description + ")");
  }
  return text;
}

std::string relative_oid_value(Octets content, std::size_t width) {
  const std::optional<std::string> dotted = dotted_relative_oid(content);
  if (!dotted) return bad("no RELATIVE-OID that can be shown", content, width);
  return cut(*dotted, width);
}

// At most as much content as can be shown: escaping a gigabyte to cut it again would be a waste.
std::string string_value(Octets content, std::size_t width, std::size_t octets_a_character) {
  const std::size_t most = width == 0 ? content.size() : std::min(content.size(), (width + 1) * 4);
  const Octets shown = content.first(most);
  const std::string text = octets_a_character == 1 ? printable(as_text(shown))
                                                   : printable_wide(shown, octets_a_character);
  return painted(Paint::text, "'" + cut(text, width) + "'");
}

bool digits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// "2026-01-31 12:00:00 UTC"
std::string time_value(Octets content, std::size_t width, bool short_year) {
  const std::optional<TimeText> time = read_time(content, short_year);
  if (!time) {
    const std::string why = content.size() > kLongestTime ? "" : "(no time) ";
    return painted(Paint::fault, why) + string_value(content, width, 1);
  }
  const std::string zone = time->zone == "Z" ? " UTC" : time->zone;
  return painted(Paint::text, printable(time->date + " " + time->time + time->fraction + zone));
}

// Content under a tag of which only the schema knows the type: text when it is nothing but that.
std::string untyped_value(Octets content, std::size_t width) {
  const bool text = content.size() > 1 && std::all_of(content.begin(), content.end(),
                                                      [](auto c) { return c >= 0x20 && c < 0x7F; });
  return text ? string_value(content, width, 1) : octets_value(content, width);
}

bool printable_string(Octets content) {
  return std::all_of(content.begin(), content.end(), [](std::uint8_t c) {
    const bool alphanumeric =
        (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    constexpr std::string_view kOthers = " '()+,-./:=?*&@_";
    return alphanumeric || kOthers.find(static_cast<char>(c)) != std::string_view::npos;
  });
}

bool ascii(Octets content) {
  return std::all_of(content.begin(), content.end(), [](std::uint8_t c) { return c < 0x80; });
}

// Whether content can be that of a primitive element with this tag: what a value of the type must
// look like, for the universal types that are commonly found inside strings.
bool plausible(const quarn_asn1_header &header, Octets content) {
  switch (header.tag_number) {
    case 1:
      return content.size() == 1;
    case 2:
    case 10:
      return !content.empty();
    case 3:
      return bit_string(content);
    case 4:
      return true;
    case 5:
      return content.empty();
    case 6:
      return dotted_oid(content).has_value();
    case 12:
      return quarn_utf8_valid(content.data(), static_cast<std::int64_t>(content.size())) == 1;
    case 18:
    case 19:
      return printable_string(content);
    case 20:
      return true;
    case 22:
    case 26:
      return ascii(content);
    case 23:
    case 24:
      return content.size() >= 10 && digits(as_text(content.first(10)));
    case 28:
      return content.size() % 4 == 0;
    case 30:
      return content.size() % 2 == 0;
    default:
      return false;
  }
}

}  // namespace

std::optional<TimeText> read_time(Octets content, bool short_year) {
  std::string text(as_text(content));
  if (text.size() > kLongestTime) return std::nullopt;
  if (short_year && text.size() >= 2) text.insert(0, text[0] >= '5' ? "19" : "20");
  const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
  if (count != 10 && count != 12 && count != 14) return std::nullopt;
  TimeText time;
  time.date = text.substr(0, 4) + "-" + text.substr(4, 2) + "-" + text.substr(6, 2);
  time.time = text.substr(8, 2);
  for (std::size_t i = 10; i < count; i += 2) time.time += ":" + text.substr(i, 2);
  const std::size_t zone = std::min(text.find_first_of("Z+-", count), text.size());
  time.fraction = text.substr(count, zone - count);
  time.zone = text.substr(zone);
  return time;
}

std::string value_text(const quarn_asn1_header &header, Octets content, std::size_t width) {
  if (header.tag_class != kUniversal) return untyped_value(content, width);
  switch (header.tag_number) {
    case 1:
      return boolean_value(content, width);
    case 2:
    case 10:
      return integer_value(content, width);
    case 3:
      return bit_string_value(content, width);
    case 5:
      return content.empty() ? "" : bad("NULL with content", content, width);
    case 6:
      return oid_value(content, width);
    case 13:
      return relative_oid_value(content, width);
    case 7:
    case 12:
    case 18:
    case 19:
    case 20:
    case 22:
    case 25:
    case 26:
    case 27:
      return string_value(content, width, 1);
    case 23:
      return time_value(content, width, true);
    case 24:
      return time_value(content, width, false);
    case 28:
      return string_value(content, width, 4);
    case 30:
      return string_value(content, width, 2);
    default:
      return octets_value(content, width);
  }
}

bool sensible_encodings(Octets octets) {
  if (octets.size() < 2) return false;
  Walk walk(octets, Walk::Top::several);
  Walk::Step step = walk.next();
  for (; step == Walk::Step::element; step = walk.next()) {
    const Element &found = walk.element();
    if (found.depth > 0 || found.constructed() || found.end_of_contents) continue;
    if (found.header.tag_class != kUniversal || !plausible(found.header, walk.content())) {
      return false;
    }
  }
  return step == Walk::Step::end;
}

std::optional<std::uint64_t> encapsulated(const Walk &walk) {
  const Element &element = walk.element();
  if (element.constructed()) return std::nullopt;
  const Octets content = walk.content();
  if (element.universal(4) && sensible_encodings(content)) return 0;
  const bool whole_octets = element.universal(3) && !content.empty() && content[0] == 0;
  if (whole_octets && sensible_encodings(content.subspan(1))) return 1;
  return std::nullopt;
}

}  // namespace quarn::cli
