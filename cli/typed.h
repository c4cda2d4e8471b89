// A walk over a value of any type, component by component, as the library's reflection shows it:
// with an explicit stack, so that nesting costs no native one.
//
//     Certificate                         enter
//       tbsCertificate  TBSCertificate      enter
//         extensions    Extensions            enter
//           [0]         Extension               enter
//             extnID    OBJECT IDENTIFIER         leaf
//             extnValue OCTET STRING              enter, or leaf: what it holds is opened
//
// Components that are absent are passed over. A CHOICE is no level of its own: the alternatives on
// the way to a value go with it. Octets whose type an object identifier beside them tells are
// decoded on the way and shown in their place.
#ifndef QUARN_CLI_TYPED_H
#define QUARN_CLI_TYPED_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "cli/open.h"
#include "cli/text.h"
#include "quarn_asn1.h"

namespace quarn::cli {

// The registered name, tag and codes of a type; zeros for one that does not exist.
quarn_asn1_type_description description_of(std::int64_t type_id);
// Its name in ASN.1: "Certificate".
std::string notation_of(std::int64_t type_id);

// A context-specific tag [n], around an encoding or in place of its own tag.
struct ContextTag {
  std::uint64_t number;
  bool is_explicit;
};

// One value on the way.
struct Node {
  std::int64_t type_id = 0;  // of the value, behind every CHOICE
  const void *value = nullptr;
  quarn_asn1_shape shape{};

  std::string label;              // name of the component, or "[3]"; empty at the top
  std::size_t label_width = 0;    // of the longest label beside it
  std::int64_t parent_type = -1;  // what it is a component of
  bool is_default = false;

  // Names of the alternatives that lead to the value, outermost first.
  std::vector<const char *> alternatives;
  const char *choice = nullptr;  // the type that the first of them is of
  const char *names = nullptr;   // of its bits or numbers
  // Before its content, outermost first; of what was opened, those of the string or ANY.
  std::vector<ContextTag> tags;

  // Where octets may be opened: what was found.
  bool place = false;                 // octets whose type an identifier tells stand here
  std::int64_t holder = -1;           // type of the string or ANY that was opened to give the value
  Octets held;                        // its octets
  std::vector<ContextTag> held_tags;  // inside these, before the content of the value
  std::string trouble;                // why it could not be opened although its type is known

  bool composed() const {
    return shape.kind == QUARN_ASN1_KIND_RECORD || shape.kind == QUARN_ASN1_KIND_LIST;
  }
  bool list() const { return shape.kind == QUARN_ASN1_KIND_LIST; }
};

class TypedVisitor {
 public:
  virtual ~TypedVisitor() = default;
  // A record or a list. False passes over its components; leave() is then not called.
  virtual bool enter(const Node &node, std::int64_t count) = 0;
  virtual void leave() = 0;
  // A value of a primitive type.
  virtual void leaf(const Node &node) = 0;
};

// Shows the value and everything in it. Memory grows with the nesting of the value only.
void walk_value(std::int64_t type_id, const void *value, TypedVisitor &visitor);

// A value outside a walk, seen behind every CHOICE; an empty one for null.
Node node_of(std::int64_t type_id, const void *value);
// What its component of this name holds, or an empty node.
Node part_of(const Node &node, std::string_view name);

// How many components a record or a list has; none for an empty node.
std::int64_t count_of(const Node &node);
// Component number index; its value is null when it is absent.
quarn_asn1_component component_of(const Node &node, std::int64_t index);
// What that component holds, or an empty node.
Node part_of(const Node &node, std::int64_t index);

// Content octets of a primitive value, as they stand in its encoding; of an ANY the whole encoding.
std::vector<std::uint8_t> octets_of(const Node &node);
// Whether an ANY is NULL, as the parameters of many algorithms are.
bool is_null(const Node &any);
// The dotted text of an OBJECT IDENTIFIER.
std::string oid_text(const void *value);

}  // namespace quarn::cli

#endif
