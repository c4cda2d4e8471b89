// Text that is safe to print. What comes from input may hold escape sequences, controls that turn
// the direction of writing, line separators, or no UTF-8 at all: none of it reaches a terminal or a
// log as it is.
#ifndef QUARN_CLI_TEXT_H
#define QUARN_CLI_TEXT_H

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quarn::cli {

using Octets = std::span<const std::uint8_t>;

inline std::string_view as_text(Octets octets) {
  return {reinterpret_cast<const char *>(octets.data()), octets.size()};
}

// UTF-8 with everything that is not plainly visible written as \n, \u{202E} or, for octets that are
// no UTF-8, \xFF. A backslash becomes two, so that the result is unambiguous.
std::string printable(std::string_view text);
// The same between single quotes.
std::string in_quotes(std::string_view text);
// The same for a string of code points, each in `width` octets, big-endian; a last incomplete one
// is shown as octets.
std::string printable_wide(Octets octets, std::size_t width);

// Octets at the start of the text that are UTF-8.
std::size_t utf8_prefix(std::string_view text);

// A JSON string with its quotation marks, all of ASCII control, bidirectional and non-UTF-8 content
// escaped; octets that are no UTF-8 become U+FFFD.
std::string json_string(std::string_view text);

// JSON text that the library has printed, in pieces that may end within a character, with what
// json_string() escapes in its strings escaped as well.
class JsonText {
 public:
  std::string escaped(std::string_view piece);

 private:
  std::string rest_;  // the start of a character
};

// The content of a character string with this universal tag as UTF-8; nothing when it is not valid,
// and for the character sets of TeletexString and its like where they differ from ASCII.
std::optional<std::string> utf8_text(std::uint64_t tag_number, Octets content);
// The value of an attribute in the text of a Name (RFC 4514, 2.4): what is not plainly visible too
// is escaped, as octets.
std::string escaped_4514(std::string_view text);

// Octets as "30 82 01", at most `most` of them.
std::string hex_octets(Octets octets, std::size_t most = SIZE_MAX);
// "0x88"
std::string hex_number(std::uint64_t number);
// "offset 136 (0x88)"
std::string offset_text(std::uint64_t offset);
// An error code: "0x10203".
std::string code_text(int code);
// "a, b, c"
std::string joined(const std::vector<std::string> &words);
// ["a","b","c"] of JSON.
std::string json_list(const std::vector<std::string> &words);
// "1 octet", "2 octets"
std::string counted(std::uint64_t count, const std::string &thing);

// The first `width` characters of UTF-8 text, with "..." when that cuts it; 0 leaves it whole.
std::string cut(const std::string &text, std::size_t width);

}  // namespace quarn::cli

#endif
