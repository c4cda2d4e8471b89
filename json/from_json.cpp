// From a document to octets.
//
// The document is walked from its last element to its first and written backwards, see
// back_writer.h: end-of-contents, content, length, identifier. The elements whose content is being
// written stand on a work list; each is written once.
#include "json/document.h"
#include "json/hex.h"
#include "json/json.h"
#include "json/set_order.h"
#include "json/stack.h"

namespace quarn::asn1::json {

namespace {

// What a document says of one element.
struct Node {
  const quarn_json *json;
  // Overrides of "user defined"; null where it has none.
  const quarn_json *identifier;
  const quarn_json *length;
  const quarn_json *content;
  const quarn_json *end;
  const TypeName *type;       // null under an identifier override
  const quarn_json *subject;  // what content is written from: behind implicit tags their "value"
  const quarn_json *value;    // of the subject; null when it has none
  Kind kind;                  // of the subject; none when there is none
  bool constructed;
  bool indefinite;
};

const TypeName *type_named(const quarn_json *name) {
  const std::string_view text = text_of(name);
  return text.data() == nullptr ? nullptr : find_type_name(text);
}

// Goes down implicit tags to the element whose content they carry.
void find_subject(Node &node) {
  const TypeName *type = node.type;
  while (type != nullptr && type->kind == Kind::tagged && flag(node.subject, "implicit")) {
    node.subject = node.value;
    node.value = member(node.subject, "value");
    type = type_named(member(node.subject, "type"));
  }
  node.kind = type == nullptr ? Kind::none : type->kind;
  const bool named = is_string(node.kind) || is_container(node.kind);
  node.indefinite = named && flag(node.subject, "indefinite");
  node.constructed = node.subject == nullptr || is_container(node.kind);
  if (is_string(node.kind) || node.kind == Kind::none) {
    node.constructed = node.constructed || flag(node.subject, "constructed");
  }
}

// Reads a node apart from its "value". False when it describes no element.
bool describe(const quarn_json *json, Node &node) {
  if (!is_kind(json, QUARN_JSON_OBJECT)) return false;
  node = Node{};
  node.json = node.subject = json;
  node.value = member(json, "value");
  const quarn_json *type = member(json, "type");
  // Most nodes have no other members: then there is nothing else to look for.
  if (type != nullptr && quarn_json_getobjectsize(json) == (node.value == nullptr ? 1u : 2u)) {
    node.type = type_named(type);
    node.kind = node.type == nullptr ? Kind::none : node.type->kind;
    node.constructed = is_container(node.kind);
    return node.type != nullptr;
  }
  const quarn_json *user_defined = member(json, "user defined");
  if (is_kind(user_defined, QUARN_JSON_OBJECT)) {
    node.identifier = member(user_defined, "identifier");
    node.length = member(user_defined, "length");
    node.content = member(user_defined, "content");
    node.end = member(user_defined, "end of contents");
  }
  if (node.identifier != nullptr) return is_kind(node.identifier, QUARN_JSON_STRING);
  node.type = type_named(type);
  if (node.type == nullptr) return false;
  find_subject(node);
  return true;
}

bool write_tag(BackWriter &out, const Node &node) {
  const quarn_json *class_text = member(node.json, "class");
  const std::string_view wanted = class_text == nullptr ? "CONTEXT" : text_of(class_text);
  std::int64_t number = 0;
  if (!read_integral(member(node.json, "number"), number) || number < 0) return false;
  for (const ClassName &name : kClassNames) {
    if (name.text != wanted) continue;
    return out.write_identifier(name.tag_class, !node.constructed,
                                static_cast<std::uint64_t>(number));
  }
  return false;
}

bool write_identifier(BackWriter &out, const Node &node) {
  if (node.identifier != nullptr) return write_hex_text(out, node.identifier);
  if (node.type->kind == Kind::tagged) return write_tag(out, node);
  return out.write_identifier(kUniversal, !node.constructed, node.type->tag);
}

bool write_length(BackWriter &out, const Node &node, std::size_t measured) {
  if (node.length == nullptr) {
    return node.indefinite ? out.write(0x80) : out.write_length(measured);
  }
  if (!is_kind(node.length, QUARN_JSON_NUMBER)) return write_hex_text(out, node.length);
  std::int64_t length = 0;
  return read_integral(node.length, length) && length >= 0 &&
         out.write_length(static_cast<std::uint64_t>(length));
}

bool write_end(BackWriter &out, const Node &node) {
  if (node.end != nullptr) return write_hex_text(out, node.end);
  constexpr std::uint8_t kEndOfContents[] = {0, 0};
  return !node.indefinite || out.write(kEndOfContents, sizeof kEndOfContents);
}

// An element whose content is being written, its last element first.
struct Open {
  const quarn_json *json;
  const quarn_json *content;  // the array, or the only element
  std::size_t begin;          // octets written before the content
  std::uint32_t left;         // elements still to be written
  bool is_array;
  bool sorted;
};

class Encoder {
 public:
  explicit Encoder(BackWriter &out) : out_(out), order_(out) {}

  bool run(const quarn_json *document) {
    if (!open(document)) return false;
    while (!open_.empty()) {
      if (!step()) return false;
    }
    return true;
  }

 private:
  bool open(const quarn_json *json);
  bool open_elements(const Node &node);
  bool step();
  bool close();
  bool finish(const Node &node, std::size_t measured);

  BackWriter &out_;
  Stack<Open> open_;
  Stack<BackWriter::Mark> replaced_;  // where content begins that an override takes the place of
  SetOrder order_;
};

// Writes an element, or puts it on the work list to have its own elements written first.
bool Encoder::open(const quarn_json *json) {
  Node node;
  if (!describe(json, node) || !write_end(out_, node)) return false;
  // Content that an override replaces is written all the same where its length is asked for. The
  // length of a BOOLEAN needs no looking.
  const bool measured = node.length == nullptr && !node.indefinite && node.kind != Kind::boolean;
  if (node.content != nullptr && !replaced_.push(out_.mark())) return false;
  if (node.content != nullptr && !measured) return finish(node, 1);
  if (node.kind == Kind::none || node.kind == Kind::real) return false;

  const bool segments = is_string(node.kind) && (node.constructed || node.indefinite);
  if (segments || is_container(node.kind)) return open_elements(node);
  const std::size_t begin = out_.size();
  return write_value(out_, node.kind, node.subject) && finish(node, out_.size() - begin);
}

bool Encoder::open_elements(const Node &node) {
  const quarn_json *content = node.value;
  Open open{node.json, content, out_.size(), 1, node.kind != Kind::tagged, false};
  if (open.is_array) {
    if (!is_kind(content, QUARN_JSON_ARRAY)) return false;
    open.left = quarn_json_getarraysize(content);
    open.sorted = (node.kind == Kind::set || node.kind == Kind::set_of) && !node.indefinite &&
                  open.left > 1 && flag(node.subject, "sort");
  }
  if (open.sorted && !order_.begin(node.kind == Kind::set)) return false;
  return open_.push(open);
}

bool Encoder::step() {
  Open &top = open_.top();
  if (top.left == 0) return close();
  top.left--;
  const quarn_json *element =
      top.is_array ? quarn_json_getarrayitem(top.content, top.left) : top.content;
  return open(element);
}

bool Encoder::close() {
  const Open closed = open_.pop();
  if (closed.sorted && !order_.end()) return false;
  Node node;
  return describe(closed.json, node) && finish(node, out_.size() - closed.begin);
}

// Completes an element whose content has been written.
bool Encoder::finish(const Node &node, std::size_t measured) {
  if (node.content != nullptr) {
    out_.rewind(replaced_.pop());
    if (!write_hex_text(out_, node.content)) return false;
  }
  if (!write_length(out_, node, measured) || !write_identifier(out_, node)) return false;
  return open_.empty() || !open_.top().sorted || order_.add();
}

}  // namespace

bool write_document(BackWriter &out, const quarn_json *document) {
  return Encoder(out).run(document);
}

}  // namespace quarn::asn1::json
