#include "cli/catalogue.h"

#include <strings.h>

#include <algorithm>
#include <iterator>

#include "quarn_asn1/ids.h"

namespace quarn::cli {

namespace {

#include "cli/gen/catalogue.inc"

constexpr auto kIds = static_cast<std::int64_t>(std::size(kDefinitionOf));

}  // namespace

const Definition *definition_of(std::int64_t type_id) {
  if (type_id < 0 || type_id >= kIds) return nullptr;
  const int number = kDefinitionOf[type_id];
  return number < 0 ? nullptr : &kDefinitions[number];
}

std::vector<std::int64_t> ids_of(const Definition &definition) {
  std::vector<std::int64_t> ids;
  for (std::int64_t id = 0; id < kIds; id++) {
    if (definition_of(id) == &definition) ids.push_back(id);
  }
  return ids;
}

const Definition *definition_named(const std::string &name) {
  const auto *found = std::find_if(
      std::begin(kDefinitions), std::end(kDefinitions),
      [&](const Definition &definition) { return strcasecmp(name.c_str(), definition.name) == 0; });
  return found == std::end(kDefinitions) ? nullptr : found;
}

std::vector<std::string> places_of(const std::vector<std::int64_t> &type_ids) {
  std::vector<std::string> places;
  for (const Definition &definition : kDefinitions) {
    for (const Component &component : definition.components) {
      if (std::ranges::count(type_ids, component.type_id) == 0) continue;
      const std::string name = component.name;
      places.push_back(definition.name + (name.empty() ? "" : "." + name));
    }
  }
  return places;
}

}  // namespace quarn::cli
