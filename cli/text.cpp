#include "cli/text.h"

#include <algorithm>
#include <array>

namespace quarn::cli {

namespace {

constexpr char kDigits[] = "0123456789ABCDEF";
constexpr char kLowerDigits[] = "0123456789abcdef";
constexpr char32_t kInvalid = 0xFFFFFFFF;

struct Range {
  char32_t first;
  char32_t last;
};

// Controls, marks without width or of direction, line separators, tags, surrogates, and what is no
// character.
constexpr Range kHidden[] = {
    {0x00, 0x1F},     {0x7F, 0x9F},     {0xAD, 0xAD},     {0x61C, 0x61C},     {0x180E, 0x180E},
    {0x200B, 0x200F}, {0x2028, 0x202E}, {0x2060, 0x206F}, {0xD800, 0xDFFF},   {0xFE00, 0xFE0F},
    {0xFEFF, 0xFEFF}, {0xFFF0, 0xFFFB}, {0xFFFE, 0xFFFF}, {0xE0000, 0xE0FFF}, {0x10FFFE, kInvalid},
};

bool hidden(char32_t c) {
  return std::any_of(std::begin(kHidden), std::end(kHidden),
                     [c](const Range &range) { return c >= range.first && c <= range.last; });
}

// Octets of the UTF-8 form that starts with this one; 0 for one that starts none.
std::size_t utf8_size(std::uint8_t first) {
  if (first < 0x80) return 1;
  if (first < 0xC0 || first >= 0xF8) return 0;
  if (first < 0xE0) return 2;
  return first < 0xF0 ? 3 : 4;
}

// The code point that the first `size` octets are, or kInvalid.
char32_t code_point_of(std::string_view text, std::size_t size) {
  constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  const auto first = static_cast<std::uint8_t>(text[0]);
  if (size == 1) return first;
  char32_t c = first & (0x7Fu >> size);
  for (std::size_t i = 1; i < size; i++) {
    const auto octet = static_cast<std::uint8_t>(text[i]);
    if ((octet & 0xC0u) != 0x80) return kInvalid;
    c = c << 6 | (octet & 0x3Fu);
  }
  const bool surrogate = c >= 0xD800 && c <= 0xDFFF;
  return c < kLeast[size] || c > 0x10FFFF || surrogate ? kInvalid : c;
}

// Takes one code point off the text; kInvalid, and one octet, when it is no UTF-8.
char32_t next_code_point(std::string_view &text) {
  const std::size_t size = utf8_size(static_cast<std::uint8_t>(text[0]));
  const bool there = size != 0 && size <= text.size();
  const char32_t c = there ? code_point_of(text, size) : kInvalid;
  text.remove_prefix(c == kInvalid ? 1 : size);
  return c;
}

void append_utf8(std::string &out, char32_t c) {
  const auto put = [&out](char32_t octet) { out.push_back(static_cast<char>(octet)); };
  if (c < 0x80) return put(c);
  if (c < 0x800) {
    put(0xC0 | c >> 6);
  } else if (c < 0x10000) {
    put(0xE0 | c >> 12);
    put(0x80 | (c >> 6 & 0x3F));
  } else {
    put(0xF0 | c >> 18);
    put(0x80 | (c >> 12 & 0x3F));
    put(0x80 | (c >> 6 & 0x3F));
  }
  put(0x80 | (c & 0x3F));
}

void append_hex(std::string &out,
                std::uint64_t number,
                int least_digits,
                const char *hex_digits = kDigits) {
  int digits = 1;
  while (digits < 16 && number >> (4 * digits) != 0) digits++;
  for (int i = std::max(digits, least_digits); i > 0; i--) {
    out.push_back(hex_digits[number >> (4 * (i - 1)) & 0xF]);
  }
}

void append_octet_escape(std::string &out, std::uint8_t octet) {
  out += "\\x";
  append_hex(out, octet, 2);
}

void append_printable(std::string &out, char32_t c) {
  if (c == '\\') {
    out += "\\\\";
  } else if (c == '\n') {
    out += "\\n";
  } else if (c == '\t') {
    out += "\\t";
  } else if (c == '\r') {
    out += "\\r";
  } else if (hidden(c)) {
    out += "\\u{";
    append_hex(out, c, 1);
    out += "}";
  } else {
    append_utf8(out, c);
  }
}

void append_json_escape(std::string &out, char32_t unit) {
  out += "\\u";
  append_hex(out, unit, 4);
}

// A character of a JSON string that is no part of the syntax.
void append_json(std::string &out, char32_t c) {
  if (c == kInvalid) {
    out += "\\uFFFD";
  } else if (hidden(c) && c > 0xFFFF) {
    append_json_escape(out, 0xD7C0 + (c >> 10));
    append_json_escape(out, 0xDC00 | (c & 0x3FF));
  } else if (hidden(c)) {
    append_json_escape(out, c);
  } else {
    append_utf8(out, c);
  }
}

// Character strings of an octet a character, and UTF8String.
std::optional<std::string> narrow_text(std::uint64_t tag_number, Octets content) {
  constexpr std::uint64_t kTags[] = {18, 19, 20, 21, 22, 25, 26, 27};
  const bool ascii = std::all_of(content.begin(), content.end(), [](auto c) { return c < 0x80; });
  const bool known = std::find(std::begin(kTags), std::end(kTags), tag_number) != std::end(kTags);
  if (tag_number == 12 ? utf8_prefix(as_text(content)) != content.size() : !known || !ascii)
    return std::nullopt;
  return std::string(as_text(content));
}

}  // namespace

std::string printable(std::string_view text) {
  std::string out;
  while (!text.empty()) {
    const auto first = static_cast<std::uint8_t>(text[0]);
    const char32_t c = next_code_point(text);
    if (c == kInvalid) {
      append_octet_escape(out, first);
    } else {
      append_printable(out, c);
    }
  }
  return out;
}

std::string in_quotes(std::string_view text) {
  return "'" + printable(text) + "'";
}

std::string printable_wide(Octets octets, std::size_t width) {
  std::string out;
  std::size_t i = 0;
  for (; i + width <= octets.size(); i += width) {
    char32_t c = 0;
    for (std::size_t k = 0; k < width; k++) c = c << 8 | octets[i + k];
    append_printable(out, c);
  }
  for (; i < octets.size(); i++) append_octet_escape(out, octets[i]);
  return out;
}

std::size_t utf8_prefix(std::string_view text) {
  std::string_view rest = text;
  while (!rest.empty()) {
    const std::size_t good = text.size() - rest.size();
    if (next_code_point(rest) == kInvalid) return good;
  }
  return text.size();
}

std::string json_string(std::string_view text) {
  std::string out = "\"";
  while (!text.empty()) {
    const char32_t c = next_code_point(text);
    if (c == '"' || c == '\\') {
      out.push_back('\\');
      out.push_back(static_cast<char>(c));
    } else {
      append_json(out, c);
    }
  }
  return out + "\"";
}

std::string JsonText::escaped(std::string_view piece) {
  const auto plain = [](char c) { return static_cast<std::uint8_t>(c) < 0x7F; };
  rest_ += piece;
  std::string_view text = rest_;
  std::string out;
  while (!text.empty()) {
    const auto *end = std::find_if_not(text.begin(), text.end(), plain);
    const auto count = static_cast<std::size_t>(end - text.begin());
    out += text.substr(0, count);
    text.remove_prefix(count);
    if (text.empty() || text.size() < utf8_size(static_cast<std::uint8_t>(text[0]))) break;
    append_json(out, next_code_point(text));
  }
  rest_ = std::string(text);
  return out;
}

std::optional<std::string> utf8_text(std::uint64_t tag_number, Octets content) {
  if (tag_number != 28 && tag_number != 30) return narrow_text(tag_number, content);
  const std::size_t width = tag_number == 28 ? 4 : 2;
  if (content.size() % width != 0) return std::nullopt;
  std::string text;
  for (std::size_t i = 0; i < content.size(); i += width) {
    char32_t c = 0;
    for (std::size_t k = 0; k < width; k++) c = c << 8 | content[i + k];
    if (c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return std::nullopt;
    append_utf8(text, c);
  }
  return text;
}

std::string escaped_4514(std::string_view text) {
  constexpr std::string_view kSpecial = "\"+,;<>\\";
  std::string out;
  const std::size_t size = text.size();
  while (!text.empty()) {
    const bool first = text.size() == size;
    const std::string_view before = text;
    const char32_t c = next_code_point(text);
    const std::string_view octets = before.substr(0, before.size() - text.size());
    if (c == kInvalid || hidden(c)) {
      for (const char octet : octets) {
        out.push_back('\\');
        append_hex(out, static_cast<std::uint8_t>(octet), 2);
      }
      continue;
    }
    const bool edge = (c == ' ' && (first || text.empty())) || (c == '#' && first);
    if (edge || (c < 0x80 && kSpecial.find(static_cast<char>(c)) != std::string_view::npos)) {
      out.push_back('\\');
    }
    out += octets;
  }
  return out;
}

std::string hex_octets(Octets octets, std::size_t most) {
  std::string out;
  for (const std::uint8_t octet : octets.first(std::min(most, octets.size()))) {
    if (!out.empty()) out.push_back(' ');
    append_hex(out, octet, 2);
  }
  return out;
}

std::string hex_number(std::uint64_t number) {
  std::string out = "0x";
  append_hex(out, number, 1, kLowerDigits);
  return out;
}

std::string offset_text(std::uint64_t offset) {
  return "offset " + std::to_string(offset) + " (" + hex_number(offset) + ")";
}

std::string code_text(int code) {
  return hex_number(static_cast<std::uint64_t>(code));
}

std::string joined(const std::vector<std::string> &words) {
  std::string text;
  for (const std::string &word : words) text += (text.empty() ? "" : ", ") + word;
  return text;
}

std::string json_list(const std::vector<std::string> &words) {
  std::string text;
  for (const std::string &word : words) text += (text.empty() ? "" : ",") + json_string(word);
  return "[" + text + "]";
}

std::string counted(std::uint64_t count, const std::string &thing) {
  return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

std::string cut(const std::string &text, std::size_t width) {
  if (width == 0 || text.size() <= width) return text;
  std::size_t characters = 0;
  for (std::size_t i = 0; i < text.size(); i++) {
    const bool starts = (static_cast<std::uint8_t>(text[i]) & 0xC0u) != 0x80;
    if (starts && characters++ == width) return text.substr(0, i) + "...";
  }
  return text;
}

}  // namespace quarn::cli
