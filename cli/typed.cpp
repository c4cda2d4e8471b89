#include "cli/typed.h"

#include <algorithm>
#include <new>

#include "cli/handles.h"

namespace quarn::cli {

namespace {

// Strings opened inside one another: an attribute that holds extensions that hold attributes. Each
// is decoded into memory of its own, so that their number must not be the input's to choose.
constexpr int kMostOpenings = 8;

constexpr std::string_view kData = "1.2.840.113549.1.7.1";

struct Level {
  Node node;
  std::int64_t count = 0;
  std::int64_t next = 0;
  std::size_t label_width = 0;
  int openings = 0;
  // How the components, or the elements of the component that is a list, are to be opened.
  const OpenRecord *record = nullptr;
  bool elements = false;
  std::string oid;
  const Opening *data = nullptr;  // what it contains if it is a message of the type data
  // Kept for as long as the level is walked.
  Decoded string;
  Decoded opened;
  std::vector<std::uint8_t> octets;
};

void note_tag(std::vector<ContextTag> &tags, const quarn_asn1_component &component) {
  if (component.tagging == QUARN_ASN1_TAGGING_NONE) return;
  tags.push_back({static_cast<std::uint64_t>(component.tag),
                  component.tagging == QUARN_ASN1_TAGGING_EXPLICIT});
}

// Goes behind a CHOICE. Time and the CHOICEs of strings show in the type of the alternative.
void resolve(Node &node) {
  for (;;) {
    static_cast<void>(quarn_asn1_type_shape(node.type_id, &node.shape));
    const bool strings = node.shape.kind == QUARN_ASN1_KIND_STRINGS;
    if (!strings && node.shape.kind != QUARN_ASN1_KIND_CHOICE) return;
    const quarn_asn1_component chosen = component_of(node, 0);
    if (!strings && node.type_id != QUARN_ASN1_TIME) {
      if (node.alternatives.empty()) node.choice = node.shape.name;
      node.alternatives.push_back(chosen.name);
    }
    note_tag(node.holder < 0 ? node.tags : node.held_tags, chosen);
    node.type_id = chosen.type_id;
    node.value = chosen.value;
  }
}

class Walker {
 public:
  explicit Walker(TypedVisitor &visitor) : visitor_(visitor) {}

  void show(std::int64_t type_id, const void *value) {
    Level top;
    top.node.type_id = type_id;
    top.node.value = value;
    handle(std::move(top));
    while (!levels_.empty()) step();
  }

 private:
  void step();
  void handle(Level level);
  void push(Level level);
  static void unwrap(Level &level);
  static void open(Level &level, const Level &parent);
  static bool is_place(const Level &parent, std::int64_t index);

  TypedVisitor &visitor_;
  std::vector<Level> levels_;
};

// Whether octets to be opened are component number index.
bool Walker::is_place(const Level &parent, std::int64_t index) {
  if (parent.record == nullptr || parent.openings >= kMostOpenings) return false;
  return parent.elements || (parent.record->value == index && !parent.record->elements);
}

// How what a level holds is to be opened; null when nothing tells.
const Opening *opening_in(const Level &parent) {
  const bool data = parent.record->place == Place::content && parent.oid == kData;
  if (data && parent.data != nullptr) return parent.data;
  return find_opening(parent.record->place, parent.oid);
}

// Puts the OCTET STRING in an ANY in its place. Left alone when it holds something else: PKCS #7
// has contents as they are.
void Walker::unwrap(Level &level) {
  Node &node = level.node;
  Decoded string(QUARN_ASN1_OCTETSTRING, octets_of(node));
  if (string.get() == nullptr) return;
  level.string = std::move(string);
  node.type_id = QUARN_ASN1_OCTETSTRING;
  node.value = level.string.get();
  resolve(node);
}

// Whether what an identifier tells is no more than the string itself: data of a message.
bool is_data(const Opening &opening, Place place) {
  return place == Place::content && opening.type_id == QUARN_ASN1_OCTETSTRING;
}

// Whether an ANY may have an OCTET STRING around the value. Those of messages do: PKCS #7 has the
// value there, CMS has it in a string.
bool may_be_wrapped(const Opening &opening, Place place) {
  return opening.contained || (place == Place::content && !is_data(opening, place));
}

// Puts what the string or ANY of a level holds in its place.
void Walker::open(Level &level, const Level &parent) {
  Node &node = level.node;
  const Place place = parent.record->place;
  const Opening *opening = opening_in(parent);
  const bool any = node.shape.base == QUARN_ASN1_ANY;
  if (opening != nullptr && any && may_be_wrapped(*opening, place)) unwrap(level);
  const std::int64_t holder = node.shape.base;
  if (holder != QUARN_ASN1_ANY && holder != QUARN_ASN1_OCTETSTRING &&
      holder != QUARN_ASN1_BITSTRING) {
    return;
  }
  if (opening != nullptr && !any && is_data(*opening, place)) return;
  node.place = true;
  if (opening == nullptr) return;
  level.octets = octets_of(node);
  Octets octets(level.octets);
  if (holder == QUARN_ASN1_BITSTRING) {
    if (octets.empty() || octets[0] != 0) return;
    octets = octets.subspan(1);
  }
  Decoded decoded(opening->type_id, octets);
  if (decoded.get() == nullptr) {
    node.trouble = "no " + notation_of(opening->type_id) + ": " + decoded.reason();
    return;
  }
  level.opened = std::move(decoded);
  level.openings++;
  node.holder = holder;
  node.held = octets;
  node.type_id = opening->type_id;
  node.value = level.opened.get();
  node.names = opening->names;
  resolve(node);
}

void Walker::step() {
  Level &parent = levels_.back();
  if (parent.next == parent.count) {
    visitor_.leave();
    levels_.pop_back();
    return;
  }
  const std::int64_t index = parent.next++;
  const quarn_asn1_component component = component_of(parent.node, index);
  if (component.value == nullptr) return;
  Level level;
  level.openings = parent.openings;
  Node &node = level.node;
  node.type_id = component.type_id;
  node.value = component.value;
  node.parent_type = parent.node.type_id;
  node.label = parent.node.list() ? "[" + std::to_string(index) + "]" : std::string(component.name);
  node.label_width = parent.label_width;
  node.is_default = component.is_default == 1;
  node.names = component_names(node.parent_type, component.name);
  note_tag(node.tags, component);
  resolve(node);
  level.data = data_opening(node.parent_type, component.name);
  if (is_place(parent, index)) open(level, parent);
  if (parent.record != nullptr && parent.record->elements && !parent.elements &&
      parent.record->value == index && node.list()) {
    level.record = parent.record;
    level.elements = true;
    level.oid = parent.oid;
  }
  handle(std::move(level));
}

void Walker::handle(Level level) {
  if (levels_.empty()) resolve(level.node);
  const Node &node = level.node;
  if (!node.composed()) return visitor_.leaf(node);
  level.count = count_of(node);
  if (visitor_.enter(node, level.count)) push(std::move(level));
}

// The first identifier among the components of a record, or the algorithm of the first that has
// one.
std::string identifier_of(const Node &node, std::int64_t count) {
  for (std::int64_t i = 0; i < count; i++) {
    const quarn_asn1_component component = component_of(node, i);
    if (component.type_id == QUARN_ASN1_OID) return oid_text(component.value);
    if (component.type_id != QUARN_ASN1_X509ALGORITHMID) continue;
    return oid_text(part_of(part_of(node, i), 0).value);
  }
  return "";
}

void Walker::push(Level level) {
  Node &node = level.node;
  if (node.list()) {
    level.label_width = std::to_string(std::max<std::int64_t>(level.count - 1, 0)).size() + 2;
  } else {
    for (std::int64_t i = 0; i < level.count; i++) {
      const quarn_asn1_component component = component_of(node, i);
      if (component.value == nullptr) continue;
      level.label_width = std::max(level.label_width, std::string_view(component.name).size());
    }
    level.record = open_record(node.type_id);
    if (level.record != nullptr) level.oid = identifier_of(node, level.count);
  }
  levels_.push_back(std::move(level));
}

}  // namespace

quarn_asn1_type_description description_of(std::int64_t type_id) {
  quarn_asn1_type_description type{};
  static_cast<void>(quarn_asn1_type_describe(type_id, &type));
  return type;
}

std::string notation_of(std::int64_t type_id) {
  quarn_asn1_shape shape{};
  return quarn_asn1_type_shape(type_id, &shape) == 1 ? shape.name : "?";
}

void walk_value(std::int64_t type_id, const void *value, TypedVisitor &visitor) {
  Walker(visitor).show(type_id, value);
}

Node node_of(std::int64_t type_id, const void *value) {
  Node node;
  node.type_id = type_id;
  node.value = value;
  if (value != nullptr) resolve(node);
  return node;
}

Node part_of(const Node &node, std::string_view name) {
  for (std::int64_t i = 0; i < count_of(node); i++) {
    const quarn_asn1_component component = component_of(node, i);
    if (component.name == name) return node_of(component.type_id, component.value);
  }
  return {};
}

Node part_of(const Node &node, std::int64_t index) {
  const quarn_asn1_component component = component_of(node, index);
  return node_of(component.type_id, component.value);
}

std::int64_t count_of(const Node &node) {
  return node.value == nullptr ? 0 : quarn_asn1_component_count(node.type_id, node.value);
}

quarn_asn1_component component_of(const Node &node, std::int64_t index) {
  quarn_asn1_component component{};
  static_cast<void>(quarn_asn1_component_get(node.type_id, node.value, index, &component));
  return component;
}

std::vector<std::uint8_t> octets_of(const Node &node) {
  const Stream stream(quarn_stream_new_mem(0, nullptr));
  if (stream == nullptr) throw std::bad_alloc();
  // Encoding may move reading positions inside a value, which nobody else looks at here.
  void *subject = const_cast<void *>(node.value);
  const int result = node.type_id == QUARN_ASN1_ANY
                         ? quarn_asn1_encode(stream.get(), node.type_id, subject, nullptr, nullptr)
                         : quarn_asn1_encode_content(
                               stream.get(), node.type_id, subject,
                               quarn_asn1_content_length(node.type_id, subject), nullptr, nullptr);
  if (result != 1) throw std::bad_alloc();
  const std::uint8_t *octets = nullptr;
  std::uint64_t count = 0;
  static_cast<void>(quarn_memstream_peek(stream.get(), &octets, &count));
  return {octets, octets + count};
}

bool is_null(const Node &any) {
  constexpr std::uint8_t kNull = 0x05;  // identifier octet
  return any.value != nullptr && octets_of(any).at(0) == kNull &&
         quarn_asn1_any_getcontentlength(static_cast<const quarn_asn1_any *>(any.value)) == 0;
}

std::string oid_text(const void *value) {
  if (value == nullptr) return "";
  const char *text = quarn_asn1_oid_getstring(static_cast<const quarn_asn1_oid *>(value));
  return text == nullptr ? "" : text;
}

}  // namespace quarn::cli
