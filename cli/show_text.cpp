// Typed values as lines for people.
//
//     Certificate
//       tbsCertificate      TBSCertificate
//         version           INTEGER 2 (v3)
//         issuer            Name CN=Root,O=Example,C=DE
//           [0]  2.5.4.6 countryName: PrintableString 'DE'
//
// Lines are written as the walk goes, so that a list of any length needs no memory.
#include "cli/leaf.h"
#include "cli/oid.h"
#include "cli/output.h"
#include "cli/show.h"
#include "cli/value.h"

namespace quarn::cli {

namespace {

constexpr std::size_t kMostIndent = 32;  // levels that are indented; see dump.cpp

std::string indented(std::size_t level) {
  if (level <= kMostIndent) return std::string(2 * level, ' ');
  return std::string(2 * kMostIndent, ' ') +
         painted(Paint::dim, "(depth " + std::to_string(level) + ") ");
}

// The name in ASN.1, with the one in use for object identifiers.
std::string type_name(std::int64_t type_id) {
  return type_id == QUARN_ASN1_OID ? "OID" : notation_of(type_id);
}

// Why octets are not shown as what they should be.
std::string trouble_text(const Node &node) {
  return node.trouble.empty() ? "" : " " + painted(Paint::fault, "(" + node.trouble + ")");
}

std::string alternatives_text(const Node &node) {
  const bool top = node.label.empty() && node.choice != nullptr;
  std::string text = top ? painted(Paint::tag, node.choice) + " " : "";
  for (const char *alternative : node.alternatives) {
    text += painted(Paint::name, alternative) + ": ";
  }
  return text;
}

// The alternatives that led to a value, what held it, and its type.
std::string type_text(const Node &node) {
  std::string text = alternatives_text(node);
  if (node.holder >= 0 && node.holder != QUARN_ASN1_ANY) {
    text += painted(Paint::tag, type_name(node.holder)) + painted(Paint::dim, " holds ");
  }
  return text + painted(Paint::tag, type_name(node.type_id));
}

std::string oid_with_name(const std::string &dotted) {
  const OidName *name = find_oid(dotted);
  return name == nullptr ? dotted : dotted + " " + painted(Paint::name, name->name);
}

// One element of a tree of any type.
std::string element_text(const Walk &walk, bool encapsulates, std::size_t width) {
  const Element &element = walk.element();
  std::string text = painted(Paint::tag, tag_name(element.header));
  if (encapsulates) return text + painted(Paint::dim, " holds");
  if (element.constructed()) return text;
  const std::string value = value_text(element.header, walk.content(), width);
  return text + (value.empty() ? "" : " ") + value;
}

bool is_attribute(std::int64_t type_id) {
  return type_id == QUARN_ASN1_X500ATTRTYPEDISTVAL || type_id == QUARN_ASN1_PKIXATTRTYPEVAL;
}

// Whether an attribute is a type and a primitive value and nothing else.
bool is_plain_pair(const Node &attribute) {
  for (std::int64_t i = 2; i < count_of(attribute); i++) {
    const quarn_asn1_component more = component_of(attribute, i);
    if (more.value != nullptr && more.is_default == 0) return false;
  }
  const Node value = part_of(attribute, 1);
  std::uint32_t primitive = 0;
  return value.type_id == QUARN_ASN1_ANY && value.value != nullptr &&
         quarn_asn1_any_isprimitive(static_cast<const quarn_asn1_any *>(value.value), &primitive) ==
             1 &&
         primitive == 1;
}

}  // namespace

// Indentation and label, with the blanks that put what follows into one column.
std::string TextShow::head(const Node &node) const {
  if (node.label.empty()) return indented(indent());
  const std::size_t gap = node.label_width - std::min(node.label_width, node.label.size()) + 2;
  return indented(indent()) + node.label + std::string(gap, ' ');
}

void TextShow::line(const Node &node, const std::string &text) const {
  const std::string mark = node.is_default ? painted(Paint::dim, " (default)") : "";
  standard_output().write(head(node) + text + trouble_text(node) + mark + "\n");
}

void TextShow::summary(const Node &node, const std::string &text) const {
  line(node, type_text(node) + " " + text + remark(node));
}

void TextShow::pair(const Node &node, const Node &attribute) const {
  const std::string type = oid_with_name(oid_text(part_of(attribute, 0).value));
  elements(octets_of(part_of(attribute, 1)), Walk::Top::one, head(node) + type + ": ", "");
}

// Writes an attribute of a Name, or a set of one, on one line.
bool TextShow::fold(const Node &node) const {
  const bool set_of_one = node.type_id == QUARN_ASN1_X500RDN && count_of(node) == 1;
  const Node attribute = set_of_one ? part_of(node, 0) : node;
  if (!is_attribute(attribute.type_id) || !is_plain_pair(attribute)) return false;
  pair(node, attribute);
  return true;
}

bool TextShow::enter(const Node &node, std::int64_t count) {
  if (fold(node)) return false;
  std::string text = type_text(node);
  if (node.type_id == QUARN_ASN1_X500NAME) {
    text += " " + painted(Paint::text, cut(name_text(node), width_));
  } else if (node.list()) {
    text += painted(Paint::dim, ", " + counted(static_cast<std::uint64_t>(count), "element"));
  }
  line(node, text + remark(node));
  indents_.push_back(indent() + 1);
  return true;
}

// A line for each element. What stands before the first one on its line is in `head`; without one
// the elements begin a level deeper. `after` follows the first.
void TextShow::elements(Octets octets,
                        Walk::Top top,
                        const std::optional<std::string> &head,
                        const std::string &after) const {
  const std::size_t level = indent() + (head ? 0 : 1);
  Walk walk(octets, top);
  bool first = head.has_value();
  Walk::Step step = walk.next();
  for (; step == Walk::Step::element; step = walk.next()) {
    const Element &element = walk.element();
    if (element.end_of_contents) continue;
    const std::optional<std::uint64_t> inside = encapsulated(walk);
    const std::string text = element_text(walk, inside.has_value(), width_);
    std::string line = first ? *head : indented(level + element.depth);
    line += text;
    if (first) line += after;
    standard_output().write(line + "\n");
    first = false;
    if (inside) walk.descend(*inside);
  }
  if (step == Walk::Step::end) return;
  standard_output().write((first ? *head : indented(level)) +
                          painted(Paint::fault, "(no encoding: " + walk.fault().found + ")") +
                          "\n");
}

void TextShow::tree(Octets octets) const {
  elements(octets, Walk::Top::one, "", "");
}

// A string in which a type was to be found that is not known, or not there.
void TextShow::unopened(const Node &node) const {
  const std::vector<std::uint8_t> content = octets_of(node);
  const bool bits = node.shape.base == QUARN_ASN1_BITSTRING;
  const bool whole = !bits || (!content.empty() && content[0] == 0);
  const Octets inside = bits && whole ? Octets(content).subspan(1) : Octets(content);
  if (!whole || !sensible_encodings(inside)) {
    return line(node, type_text(node) + " " + leaf_text(node, width_));
  }
  line(node, type_text(node) + painted(Paint::dim, " holds"));
  elements(inside, Walk::Top::several, std::nullopt, "");
}

void TextShow::leaf(const Node &node) {
  if (node.shape.base == QUARN_ASN1_ANY) {
    const std::vector<std::uint8_t> octets = octets_of(node);
    return elements(octets, Walk::Top::one, head(node) + alternatives_text(node),
                    trouble_text(node));
  }
  if (node.place && node.holder < 0) return unopened(node);
  const std::string value = leaf_text(node, width_);
  line(node, type_text(node) + (value.empty() ? "" : " ") + value);
}

}  // namespace quarn::cli
