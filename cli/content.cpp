#include "cli/content.h"

#include <algorithm>

#include "quarn_util.h"

namespace quarn::cli {

namespace {

constexpr std::size_t kShown = 8;      // octets of content in a message
constexpr std::size_t kMostTime = 40;  // characters of what should be a time

std::string shown(Octets content) {
  if (content.empty()) return "no content";
  return hex_octets(content, kShown) + (content.size() > kShown ? " ..." : "");
}

void check_boolean(Octets content, const Departure &departure) {
  if (content.size() != 1) return departure(Rule::boolean_length, 0, shown(content));
  if (content[0] != 0 && content[0] != 0xFF) departure(Rule::boolean_true, 0, shown(content));
}

// Whether the first octet of a number in two's complement says nothing.
bool superfluous(Octets number) {
  if (number.size() < 2) return false;
  const bool high = (number[1] & 0x80u) != 0;
  return number[0] == (high ? 0xFF : 0x00);
}

void check_integer(Octets content, const Departure &departure) {
  if (content.empty()) return departure(Rule::integer_octets, 0, shown(content));
  if (superfluous(content)) departure(Rule::integer_minimal, 0, shown(content));
}

void check_bit_string(Octets content, const Departure &departure) {
  if (content.empty()) return departure(Rule::bit_count_missing, 0, shown(content));
  const std::uint8_t unused = content[0];
  if (unused > 7) return departure(Rule::bit_count, 0, std::to_string(unused) + " unused bits");
  if (unused == 0) return;
  if (content.size() == 1) return departure(Rule::bit_count_empty, 0, shown(content));
  const Octets last = content.last(1);
  if ((last[0] & ((1u << unused) - 1)) == 0) return;
  departure(Rule::bit_padding, content.size() - 1,
            hex_octets(last) + " with " + counted(unused, "unused bit"));
}

void check_null(Octets content, const Departure &departure) {
  if (!content.empty()) departure(Rule::null_content, 0, shown(content));
}

// The first fault only: where an arc is bad, those after it may be none.
void check_arcs(Rule rule, Octets content, const Departure &departure) {
  if (content.empty()) return departure(rule, 0, shown(content));
  bool first = true;
  for (std::size_t i = 0; i < content.size(); i++) {
    if (first && content[i] == 0x80) return departure(rule, i, "an arc that starts with 80");
    first = (content[i] & 0x80u) == 0;
  }
  if (!first) departure(rule, content.size() - 1, "a last arc that goes on past the content");
}

// "-12345.E-6" and "1.E+0" (X.690, 11.3.2).
bool canonical_decimal(std::string_view text) {
  const auto digits = [&text] {
    const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
    const std::string_view taken = text.substr(0, count);
    text.remove_prefix(count);
    return taken;
  };
  const auto take = [&text](std::string_view head) {
    if (text.substr(0, head.size()) != head) return false;
    text.remove_prefix(head.size());
    return true;
  };
  take("-");
  const std::string_view mantissa = digits();
  if (mantissa.empty() || mantissa.front() == '0' || mantissa.back() == '0') return false;
  if (!take(".E")) return false;
  if (text == "+0") return true;
  take("-");
  const std::string_view exponent = digits();
  return text.empty() && !exponent.empty() && exponent.front() != '0';
}

// First octet 1sbbffee: sign, base, scaling, octets of the exponent (X.690, 8.5.7).
void check_binary_real(Octets content, const Departure &departure) {
  const std::uint8_t first = content[0];
  const bool counted_exponent = (first & 0x03u) == 3;
  const std::size_t start = counted_exponent ? 2 : 1;
  const std::size_t size = !counted_exponent    ? (first & 0x03u) + 1u
                           : content.size() > 1 ? content[1]
                                                : 0;
  const bool reserved_base = (first & 0x30u) == 0x30;
  if (reserved_base || size == 0 || content.size() < start + size + 1) {
    return departure(Rule::real_form, 0, shown(content));
  }
  const Octets exponent = content.subspan(start, size);
  const Octets mantissa = content.subspan(start + size);
  const bool canonical = (first & 0x3Cu) == 0 && !superfluous(exponent) && mantissa[0] != 0 &&
                         (mantissa.back() & 1u) != 0 && (!counted_exponent || size > 3);
  if (!canonical) departure(Rule::real_canonical, 0, shown(content));
}

void check_real(Octets content, const Departure &departure) {
  if (content.empty()) return;
  const std::uint8_t first = content[0];
  if ((first & 0x80u) != 0) return check_binary_real(content, departure);
  if ((first & 0x40u) != 0) {
    const bool special = content.size() == 1 && first <= 0x43;
    if (!special) departure(Rule::real_form, 0, shown(content));
    return;
  }
  if (first == 0 || first > 3) return departure(Rule::real_form, 0, shown(content));
  const bool canonical = first == 3 && canonical_decimal(as_text(content.subspan(1)));
  if (!canonical) departure(Rule::real_canonical, 0, shown(content));
}

bool numeric(std::uint8_t c) {
  return (c >= '0' && c <= '9') || c == ' ';
}

bool of_printable_string(std::uint8_t c) {
  const bool letter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  return letter || numeric(c) ||
         std::string_view("'()+,-./:=?").find(static_cast<char>(c)) != std::string_view::npos;
}

bool ascii(std::uint8_t c) {
  return c < 0x80;
}

bool visible(std::uint8_t c) {
  return c >= 0x20 && c < 0x7F;
}

void check_alphabet(bool (*allowed)(std::uint8_t), Octets content, const Departure &departure) {
  const auto bad = std::find_if_not(content.begin(), content.end(), allowed);
  if (bad == content.end()) return;
  const auto at = static_cast<std::size_t>(bad - content.begin());
  const std::string octet = hex_octets(content.subspan(at, 1));
  departure(Rule::alphabet, at,
            visible(*bad) ? octet + " " + in_quotes(as_text(content.subspan(at, 1))) : octet);
}

void check_utf8(Octets content, const Departure &departure) {
  const std::size_t good = utf8_prefix(as_text(content));
  if (good < content.size()) departure(Rule::utf8, good, shown(content.subspan(good)));
}

void check_wide(std::size_t width, Octets content, const Departure &departure) {
  if (content.size() % width != 0) {
    return departure(Rule::character_width, 0, counted(content.size(), "octet"));
  }
  for (std::size_t i = 0; i < content.size(); i += width) {
    char32_t c = 0;
    for (std::size_t k = 0; k < width; k++) c = c << 8 | content[i + k];
    const bool surrogate = c >= 0xD800 && c <= 0xDFFF;
    if (surrogate || c > 0x10FFFF) {
      return departure(Rule::alphabet, i, hex_octets(content.subspan(i, width)));
    }
  }
}

std::string shown_text(Octets content) {
  const bool whole = content.size() <= kMostTime;
  return in_quotes(as_text(content.first(whole ? content.size() : kMostTime))) +
         (whole ? "" : " ...");
}

// A time taken apart: digits, a fraction with its mark, and what stands for the zone.
struct TimeText {
  std::string_view digits;
  std::string_view fraction;
  std::string_view zone;
};

std::size_t count_digits(std::string_view text) {
  return std::min(text.find_first_not_of("0123456789"), text.size());
}

TimeText take_apart(std::string_view text) {
  TimeText time;
  time.digits = text.substr(0, count_digits(text));
  text.remove_prefix(time.digits.size());
  if (!text.empty() && (text[0] == '.' || text[0] == ',')) {
    time.fraction = text.substr(0, 1 + count_digits(text.substr(1)));
    text.remove_prefix(time.fraction.size());
  }
  time.zone = text;
  return time;
}

int number(std::string_view digits) {
  int value = 0;
  for (const char digit : digits) value = 10 * value + (digit - '0');
  return value;
}

// "", "Z", "+hh" or "-hhmm".
bool good_zone(std::string_view zone) {
  if (zone.empty() || zone == "Z") return true;
  const std::string_view digits = zone.substr(1);
  const bool sizes = digits.size() == 2 || digits.size() == 4;
  if ((zone[0] != '+' && zone[0] != '-') || !sizes || count_digits(digits) != digits.size()) {
    return false;
  }
  return number(digits.substr(0, 2)) < 24 && number(digits.substr(2)) < 60;
}

// Whether there is such a time; the digits start with four of the year.
bool exists(const std::string &digits) {
  const auto field = [&digits](std::size_t at) {
    return at < digits.size() ? number(std::string_view(digits).substr(at, 2)) : 0;
  };
  // The calendar comes round every 400 years, and the library's starts in 1582.
  const int year = number(std::string_view(digits).substr(0, 4));
  const quarn_time_fields fields = {
      year < 1600 ? year + 2000 : year, field(4), field(6), field(8), field(10), field(12), 0};
  return quarn_time_fields_valid(&fields) == 1;
}

void check_utctime(Octets content, const Departure &departure) {
  const TimeText time = take_apart(as_text(content));
  const std::string_view digits = time.digits;
  const bool form = (digits.size() == 10 || digits.size() == 12) && time.fraction.empty() &&
                    good_zone(time.zone) && time.zone.size() != 3 && !time.zone.empty();
  if (!form || !exists((digits[0] >= '5' ? "19" : "20") + std::string(digits))) {
    return departure(Rule::time_form, 0, shown_text(content));
  }
  if (digits.size() == 10) departure(Rule::utctime_seconds, digits.size(), "no seconds");
  if (time.zone != "Z") departure(Rule::utctime_zone, digits.size(), in_quotes(time.zone));
}

void check_gentime(Octets content, const Departure &departure) {
  const TimeText time = take_apart(as_text(content));
  const std::size_t count = time.digits.size();
  const bool form = (count == 10 || count == 12 || count == 14) && time.fraction.size() != 1 &&
                    good_zone(time.zone);
  if (!form || !exists(std::string(time.digits))) {
    return departure(Rule::time_form, 0, shown_text(content));
  }
  if (count != 14) departure(Rule::gentime_seconds, count, "no seconds");
  if (!time.fraction.empty()) {
    if (time.fraction[0] == ',') departure(Rule::gentime_point, count, "a comma");
    if (time.fraction.back() == '0') {
      departure(Rule::gentime_fraction, count + time.fraction.size() - 1, "a zero at the end");
    }
  }
  if (time.zone == "Z") return;
  departure(Rule::gentime_zone, count + time.fraction.size(),
            time.zone.empty() ? "local time" : in_quotes(time.zone));
}

}  // namespace

void check_content(std::uint64_t tag_number, Octets content, const Departure &departure) {
  switch (tag_number) {
    case 1:
      return check_boolean(content, departure);
    case 2:
    case 10:
      return check_integer(content, departure);
    case 3:
      return check_bit_string(content, departure);
    case 5:
      return check_null(content, departure);
    case 6:
      return check_arcs(Rule::oid_arcs, content, departure);
    case 9:
      return check_real(content, departure);
    case 12:
      return check_utf8(content, departure);
    case 13:
      return check_arcs(Rule::relative_oid_arcs, content, departure);
    case 18:
      return check_alphabet(numeric, content, departure);
    case 19:
      return check_alphabet(of_printable_string, content, departure);
    case 22:
      return check_alphabet(ascii, content, departure);
    case 23:
      return check_utctime(content, departure);
    case 24:
      return check_gentime(content, departure);
    case 26:
      return check_alphabet(visible, content, departure);
    case 28:
      return check_wide(4, content, departure);
    case 30:
      return check_wide(2, content, departure);
    default:
      return;
  }
}

}  // namespace quarn::cli
