// Reading the members of a document's nodes.
#ifndef QUARN_JSON_DOCUMENT_H
#define QUARN_JSON_DOCUMENT_H

#include <cmath>
#include <cstdint>
#include <string_view>

#include "quarn_util.h"

namespace quarn::asn1::json {

// The member of a node; null when there is none or the node is no object.
inline const quarn_json *member(const quarn_json *node, std::string_view key) {
  return quarn_json_getobjectvalue(node, key.data(), static_cast<std::uint32_t>(key.size()));
}

inline bool is_kind(const quarn_json *value, quarn_json_kind kind) {
  return quarn_json_gettype(value) == kind;
}

// Whether a member is there and true.
inline bool flag(const quarn_json *node, std::string_view key) {
  return quarn_json_istrue(member(node, key)) == 1;
}

// The text of a string; of anything else no text, whose data() is null.
inline std::string_view text_of(const quarn_json *value) {
  const char *text = quarn_json_getstring(value);
  return text == nullptr ? std::string_view()
                         : std::string_view(text, quarn_json_getstringlength(value));
}

// The value of an integral number within 64 bits. False for any other value.
inline bool read_integral(const quarn_json *value, std::int64_t &number) {
  if (!is_kind(value, QUARN_JSON_NUMBER)) return false;
  constexpr double kLimit = 9223372036854775808.0;  // 2^63
  const double real = quarn_json_getnumber(value);
  if (!(real >= -kLimit && real < kLimit) || std::trunc(real) != real) return false;
  number = static_cast<std::int64_t>(real);
  return true;
}

}  // namespace quarn::asn1::json

#endif
