// Encodings and documents as text, for tests of the JSON mapping.
#ifndef QUARN_TESTS_SUPPORT_JSON_H
#define QUARN_TESTS_SUPPORT_JSON_H

#include <cstdint>
#include <memory>
#include <string>

#include "quarn_asn1/json.h"
#include "tests/support/streams.h"
#include "tests/support/vector_file.h"

namespace quarn::test {

struct FreeJson {
  void operator()(quarn_json *j) const { quarn_json_free(j); }
};
using Json = std::unique_ptr<quarn_json, FreeJson>;

inline std::string from_hex(const std::string &hex) {
  const Octets octets = read_octets(hex);
  return std::string(octets.begin(), octets.end());
}

inline std::string to_hex(const std::string &octets) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string hex;
  for (const char c : octets) {
    hex += kDigits[static_cast<uint8_t>(c) >> 4];
    hex += kDigits[static_cast<uint8_t>(c) & 15];
  }
  return hex;
}

inline Json parse(const std::string &text) {
  return Json(quarn_json_parse(text.data(), text.size(), nullptr));
}

inline std::string printed(const Json &document, int indent = 0) {
  char *text = nullptr;
  size_t length = 0;
  if (quarn_json_print(document.get(), indent, &text, &length) != 1) return "null";
  return std::string(Memory<char>(text).get(), length);
}

inline Json to_json(const std::string &octets) {
  return Json(quarn_asn1_tojson(reinterpret_cast<const uint8_t *>(octets.data()),
                                static_cast<int64_t>(octets.size())));
}

// The document of octets as compact text, and the octets of a document as hex; "null" for none.
inline std::string rendered(const std::string &octets) {
  return printed(to_json(octets));
}
inline std::string encoded(const Json &document) {
  const Blob blob(quarn_asn1_encodejson(document.get()));
  if (blob == nullptr) return "null";
  if (blob->length == 0) return "";
  return to_hex({reinterpret_cast<const char *>(blob->data), static_cast<size_t>(blob->length)});
}

}  // namespace quarn::test

#endif
