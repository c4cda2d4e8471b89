// From octets to a document.
//
// One walk over the caller's octets renders each element as it ends. What encloses the element at
// hand stands on a work list; only leaves are copied, into their values.
//
//     A0 80            open, so far empty
//        02 01 05      an INTEGER: the content of the tag, for now
//        05 00         a second element: the content becomes an array
//     00 00            closed: a tag over an array is implicit, over one element explicit
//
// What is accepted is what decoding as an open type accepts, of each element in turn: its table of
// tags and forms, and its limit on indefinite lengths within indefinite lengths, which starts
// afresh in the content of each definite length.
#include "core/reader.h"
#include "json/hex.h"
#include "json/json.h"
#include "json/object.h"
#include "json/stack.h"
#include "types/any.h"

namespace quarn::asn1::json {

namespace {

constexpr std::uint64_t kMostTagNumber = 0x7fffffff;  // tag numbers of documents have 32 bits

// An element whose content is being read.
struct Container {
  const std::uint8_t *limit;  // end of the innermost definite content around what is read
  quarn_json *content;        // its elements in an array; of a tag the only one so far, or null
  std::uint32_t number;       // tag number
  std::int32_t layers;        // indefinite lengths around what is read, up to a definite one
  std::uint8_t tag_class;
  bool indefinite;
  bool is_array;
};

class Renderer {
 public:
  Renderer(const std::uint8_t *octets, std::size_t count)
      : in_(octets, count, nullptr), end_(octets + count), limit_(quarn_get_recursive_level()) {}
  Renderer(const Renderer &) = delete;
  Renderer &operator=(const Renderer &) = delete;
  ~Renderer() {
    while (!open_.empty()) quarn_json_free(open_.pop().content);
    quarn_json_free(result_);
  }

  quarn_json *run();

 private:
  bool read_element();
  bool open(const Identifier &identifier, std::int64_t length);
  bool at_end(const Container &container);
  bool close();
  bool deliver(quarn_json *element);
  const std::uint8_t *limit() { return open_.empty() ? end_ : open_.top().limit; }
  std::int32_t layers() { return open_.empty() ? 0 : open_.top().layers; }

  Reader in_;
  const std::uint8_t *end_;
  std::int32_t limit_;
  Stack<Container> open_;
  quarn_json *result_ = nullptr;
  Buffer scratch_;
};

quarn_json *Renderer::run() {
  if (!read_element()) return nullptr;
  while (!open_.empty()) {
    if (!(at_end(open_.top()) ? close() : read_element())) return nullptr;
  }
  if (in_.left() > 0) return nullptr;
  quarn_json *result = result_;
  result_ = nullptr;
  return result;
}

// Whether content ends here; the end-of-contents of an indefinite length is then behind us. Any
// other end-of-contents is read as an element and refused as such.
bool Renderer::at_end(const Container &container) {
  const std::uint8_t *next = in_.next();
  if (!container.indefinite) return next == container.limit;
  if (container.limit - next < 2 || next[0] != 0 || next[1] != 0) return false;
  in_.advance(2);
  return true;
}

bool Renderer::read_element() {
  const std::uint8_t *begin = in_.next();
  Identifier identifier{};
  std::int64_t length = 0;
  if (layers() >= limit_ || !read_identifier(in_, identifier)) return false;
  if (identifier.is_end_of_contents() || !form_allowed(identifier)) return false;
  if (identifier.tag_class != kUniversal && identifier.number > kMostTagNumber) return false;
  if (!read_length(in_, length) || length > limit() - in_.next()) return false;

  if (!identifier.primitive) return open(identifier, length);
  if (length == kIndefinite) {
    // A primitive of a named type has no indefinite length, nor has one of another class. Of other
    // types it reads like the constructed form.
    const bool named = !type_name_of(identifier.number).empty();
    if (identifier.tag_class != kUniversal || named) return false;
    return open(identifier, length);
  }
  const Primitive element{begin, in_.next(), static_cast<std::size_t>(length), identifier.tag_class,
                          static_cast<std::uint32_t>(identifier.number)};
  in_.advance(element.length);
  return deliver(render_primitive(element, scratch_));
}

bool Renderer::open(const Identifier &identifier, std::int64_t length) {
  const bool indefinite = length == kIndefinite;
  const std::uint8_t *limit = indefinite ? this->limit() : in_.next() + length;
  if (in_.next() > limit) return false;
  Container container{limit,
                      nullptr,
                      static_cast<std::uint32_t>(identifier.number),
                      indefinite ? layers() + 1 : 0,
                      static_cast<std::uint8_t>(identifier.tag_class),
                      indefinite,
                      false};
  if (identifier.tag_class == kUniversal) {
    container.content = quarn_json_newarray();
    container.is_array = true;
    if (container.content == nullptr) return false;
  }
  if (open_.push(container)) return true;
  quarn_json_free(container.content);
  return false;
}

// Hands a finished element, null when there is none, to what encloses it, which takes it over.
bool Renderer::deliver(quarn_json *element) {
  if (element == nullptr) return false;
  if (open_.empty()) {
    result_ = element;
    return true;
  }
  Container &container = open_.top();
  if (container.content == nullptr) {
    container.content = element;
    return true;
  }
  if (!container.is_array) {
    quarn_json *array = quarn_json_newarray();
    if (quarn_json_addarrayitem(array, container.content) != 1) {
      quarn_json_free(array);
      quarn_json_free(element);
      return false;
    }
    container.content = array;
    container.is_array = true;
  }
  if (quarn_json_addarrayitem(container.content, element) == 1) return true;
  quarn_json_free(element);
  return false;
}

// The identifier octets that a type without a name has in constructed form.
std::string_view constructed_identifier(std::uint32_t number, char (&text)[12]) {
  BackWriter identifier;
  if (!identifier.write_identifier(kUniversal, false, number)) return {};
  identifier.each_piece([&text](BackWriter::Slice slice) {
    write_hex(slice.octets, slice.count, text);
    return true;
  });
  return {text, 2 * identifier.size()};
}

// An element made of elements under a universal tag. Takes the array over.
quarn_json *render_constructed(std::uint32_t number, bool indefinite, quarn_json *array) {
  const std::string_view name = type_name_of(number);
  Object object(name.empty() ? kUnknown : name);
  if (name.empty()) {
    char text[12];
    Object user_defined;
    user_defined.add("identifier", constructed_identifier(number, text));
    object.add("user defined", user_defined.release());
  }
  if (number != 16 && number != 17) object.add_true("constructed");
  if (indefinite) object.add_true("indefinite");
  return object.add("value", array).release();
}

bool Renderer::close() {
  const Container container = open_.pop();
  if (container.tag_class == kUniversal) {
    return deliver(render_constructed(container.number, container.indefinite, container.content));
  }
  const bool is_explicit = container.content != nullptr && !container.is_array;
  quarn_json *content = container.content;
  if (content == nullptr) content = quarn_json_newarray();
  if (!is_explicit) content = render_constructed(16, container.indefinite, content);

  Object object(kTaggedType);
  object.add("class", class_name_of(container.tag_class));
  object.add("implicit", quarn_json_newboolean(is_explicit ? 0 : 1));
  if (is_explicit && container.indefinite) object.add_true("indefinite");
  object.add("number", new_number(container.number)).add("value", content);
  return deliver(object.release());
}

}  // namespace

quarn_json *render(const std::uint8_t *octets, std::size_t count) {
  return Renderer(octets, count).run();
}

}  // namespace quarn::asn1::json
