#include "cli/catalogue.h"

#include "quarn_asn1/ids.h"

namespace quarn::cli {

namespace {

#include "cli/gen/catalogue.inc"

}  // namespace

const Definition *definition_of(std::int64_t type_id) {
  if (type_id < 0 || type_id >= QUARN_ASN1_TYPE_COUNT) return nullptr;
  const int number = kDefinitionOf[type_id];
  return number < 0 ? nullptr : &kDefinitions[number];
}

std::vector<std::int64_t> ids_of(const Definition &definition) {
  std::vector<std::int64_t> ids;
  for (std::int64_t id = 0; id < QUARN_ASN1_TYPE_COUNT; id++) {
    if (definition_of(id) == &definition) ids.push_back(id);
  }
  return ids;
}

std::vector<std::string> places_of(std::int64_t type_id) {
  std::vector<std::string> places;
  for (const Definition &definition : kDefinitions) {
    for (const Component &component : definition.components) {
      if (component.type_id != type_id) continue;
      const std::string name = component.name;
      places.push_back(definition.name + (name.empty() ? "" : "." + name));
    }
  }
  return places;
}

}  // namespace quarn::cli
