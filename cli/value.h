// The value of a primitive element, as a person wants to read it.
#ifndef QUARN_CLI_VALUE_H
#define QUARN_CLI_VALUE_H

#include <optional>
#include <string>

#include "cli/walk.h"

namespace quarn::cli {

// The parts of a UTCTime or GeneralizedTime.
struct TimeText {
  std::string date;      // "2026-01-31"
  std::string time;      // "12:00:00"; without what the encoding leaves out
  std::string fraction;  // ".5", or nothing
  std::string zone;      // "Z", "+0100", or nothing
};
// Nothing when the content is no time. Only the digits in front are looked at.
std::optional<TimeText> read_time(Octets content, bool short_year);

// One line, coloured, of at most `width` characters of content (0: all of it); empty when there is
// nothing to show.
std::string value_text(const quarn_asn1_header &header, Octets content, std::size_t width);

// Where the encodings inside the element that the walk stands at start in its content: it is an
// OCTET STRING or a BIT STRING that holds nothing else, and they make sense. Nothing when it holds
// none.
std::optional<std::uint64_t> encapsulated(const Walk &walk);

// Whether the octets are encodings that make sense: any octets may happen to be well-formed.
bool sensible_encodings(Octets octets);

}  // namespace quarn::cli

#endif
