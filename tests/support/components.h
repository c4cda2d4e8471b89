// Looking at every component of a value.
#ifndef QUARN_TESTS_SUPPORT_COMPONENTS_H
#define QUARN_TESTS_SUPPORT_COMPONENTS_H

#include <utility>
#include <vector>

#include "quarn_asn1.h"
#include "quarn_asn1/inspect.h"

namespace quarn::test {

// Whether a value and all that is in it holds what must be there, under names. Every length is
// asked for too.
inline bool is_whole(std::int64_t type, const void *value) {
  std::vector<std::pair<std::int64_t, const void *>> left{{type, value}};
  while (!left.empty()) {
    const auto [id, of] = left.back();
    left.pop_back();
    quarn_asn1_length(id, of);
    quarn_asn1_content_length(id, of);
    const std::int64_t count = quarn_asn1_component_count(id, of);
    quarn_asn1_component part{};
    if (quarn_asn1_component_get(id, of, count, &part) != 0) return false;
    for (std::int64_t i = 0; i < count; i++) {
      if (quarn_asn1_component_get(id, of, i, &part) != 1) return false;
      if (part.name == nullptr || part.name[0] == '\0') return false;
      if (part.value == nullptr && part.optional == 0) return false;
      if (part.value != nullptr) left.emplace_back(part.type_id, part.value);
    }
  }
  return true;
}

}  // namespace quarn::test

#endif
