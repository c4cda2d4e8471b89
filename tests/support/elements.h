// Encodings as trees of elements, to be changed and written again.
#ifndef QUARN_TESTS_SUPPORT_ELEMENTS_H
#define QUARN_TESTS_SUPPORT_ELEMENTS_H

#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "quarn_asn1.h"
#include "tests/support/vector_file.h"

namespace quarn::test {

struct Element {
  Octets identifier;
  Octets content;              // of a primitive element
  std::vector<Element> parts;  // of a constructed one

  bool constructed() const { return (identifier[0] & 0x20) != 0; }
};

// The elements of some octets; none unless all are whole and of definite length.
inline std::optional<std::vector<Element>> elements_of(const Octets &octets) {
  std::vector<Element> elements;
  const auto size = static_cast<std::int64_t>(octets.size());
  for (std::int64_t at = 0; at < size;) {
    quarn_asn1_header header{};
    if (quarn_asn1_mem_header(octets.data() + at, size - at, &header) != 1) return std::nullopt;
    const std::int64_t start = at + static_cast<std::int64_t>(header.header_length);
    if (header.content_length < 0 || header.content_length > size - start) return std::nullopt;
    const std::int64_t end = start + header.content_length;
    Element element;
    const auto tag_octets =
        quarn_asn1_identifier_length(static_cast<std::int64_t>(header.tag_number));
    element.identifier = Octets(octets.begin() + at, octets.begin() + at + tag_octets);
    element.content = Octets(octets.begin() + start, octets.begin() + end);
    if (element.constructed()) {
      auto parts = elements_of(element.content);
      if (!parts) return std::nullopt;
      element.parts = std::move(*parts);
    }
    elements.push_back(std::move(element));
    at = end;
  }
  return elements;
}

enum class Lengths { definite, indefinite };  // of constructed elements

inline Octets written(const std::vector<Element> &elements, Lengths lengths) {
  Octets octets;
  for (const Element &element : elements) {
    const Octets content =
        element.constructed() ? written(element.parts, lengths) : element.content;
    octets.insert(octets.end(), element.identifier.begin(), element.identifier.end());
    const bool indefinite = element.constructed() && lengths == Lengths::indefinite;
    if (indefinite) {
      octets.push_back(0x80);
    } else if (content.size() < 0x80) {
      octets.push_back(static_cast<std::uint8_t>(content.size()));
    } else {
      octets.insert(octets.end(), {0x82, static_cast<std::uint8_t>(content.size() >> 8),
                                   static_cast<std::uint8_t>(content.size())});
    }
    octets.insert(octets.end(), content.begin(), content.end());
    if (indefinite) octets.insert(octets.end(), {0, 0});
  }
  return octets;
}

// Calls visit for the parts of every constructed element, which it may change for a while.
inline void for_each_parts(std::vector<Element> &elements,
                           const std::function<void(std::vector<Element> &)> &visit) {
  for (Element &element : elements) {
    if (!element.constructed()) continue;
    visit(element.parts);
    for_each_parts(element.parts, visit);
  }
}

}  // namespace quarn::test

#endif
