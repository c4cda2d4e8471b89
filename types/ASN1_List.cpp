// Lists: growth, lengths, encoding and decoding.
//
// What is done with the elements is written once, over a description of them that is a type of the
// registry, ANY, or functions of a caller. Those functions take streams: the cursors hand the
// stream over before each call, and what a function says it read or wrote is added to what the
// cursor counted.
#include "types/list.h"

#include <algorithm>
#include <limits>

#include "core/adapter.h"
#include "types/any.h"
#include "types/codecs.h"
#include "util/memory.h"

namespace quarn::asn1 {

namespace {

constexpr Unit kUnit{"QUARN_ASN1_List"};

// Elements for which there is room in the list itself when nothing is known of them: fills a block
// of 56 octets.
constexpr std::int32_t kNear = 4;
// The same for a list whose content is long enough. Names and extensions seldom have more.
constexpr std::int32_t kMostNear = 12;
// Octets of content that call for room for an element.
constexpr std::int64_t kElementOctets = 8;
// Elements for which there is room in the first block of their own, at least.
constexpr std::int32_t kFirstBlock = 8;

// An empty list with room for so many elements in its own block; null when memory is short.
quarn_asn1_list *new_list(std::int32_t room) {
  auto *list = util::allocate<quarn_asn1_list>(static_cast<std::size_t>(room) * sizeof(void *));
  if (list == nullptr) return nullptr;
  list->block = list->items = list->near();
  list->capacity = room;
  return list;
}

// The room that content of a length calls for. No element is shorter than two octets.
std::int32_t room_for(std::int64_t length) {
  if (length < 0) return kNear;
  const std::int64_t few = std::min<std::int64_t>(length / 2 + length % 2, kNear);
  return static_cast<std::int32_t>(
      std::clamp<std::int64_t>(length / kElementOctets, few, kMostNear));
}

bool grow(quarn_asn1_list &list) {
  std::int32_t capacity = std::max(list.capacity, kFirstBlock / 2);
  if (!multiply_by<std::int32_t>(capacity, 2)) return false;
  auto **items = util::allocate_array<void *>(static_cast<std::size_t>(capacity));
  if (items == nullptr) return false;
  const auto count = static_cast<std::size_t>(list.count);
  if (count > 0) std::memcpy(items, list.items, count * sizeof(void *));
  list.free_items();
  list.block = list.items = items;
  list.capacity = capacity;
  return true;
}

bool has(const quarn_asn1_list *list, int index) {
  return list != nullptr && index >= 0 && index < list->count;
}

// Calls release(element) for each.
template <typename Release>
void free_with(quarn_asn1_list *list, Release release) {
  if (list == nullptr) return;
  for (std::int32_t i = 0; i < list->count; i++) release(list->items[i]);
  list->free_items();
  quarn_free(list);
}

// measure(element) returns a length. The first that is no count is the result.
template <typename Measure>
std::int64_t length_with(const quarn_asn1_list *list, Measure measure) {
  if (list == nullptr) return kNoLength;
  std::int64_t sum = 0;
  for (std::int32_t i = 0; i < list->count; i++) {
    const std::int64_t length = measure(list->items[i]);
    if (length < 0) return length == kIndefinite ? kIndefinite : kNoLength;
    if (!add_to(sum, length)) return kNoLength;
  }
  return sum;
}

// put(element) returns Status.
template <typename Put>
Status encode_with(Writer &out, const quarn_asn1_list *list, std::int64_t length, Put put) {
  if (out.is_null() || list == nullptr) return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  if (length < kIndefinite) return kUnit.fail(out.ctx(), QUARN_ERROR_RANGE, out.offset());
  for (std::int32_t i = 0; i < list->count; i++) {
    if (const Status status = put(list->items[i]); !status) return status;
  }
  if (length != kIndefinite) return Status::success();
  const Status status = write_end_of_contents(out);
  if (status) return status;
  return kUnit.pass_on(status, out.ctx(), QUARN_ASN1_ERROR_WRITE_END, out.offset());
}

// Owns a list that is being decoded, with its elements.
template <typename Elements>
class Building {
 public:
  Building(Elements &elements, std::int64_t length)
      : elements_(elements), list_(new_list(room_for(length))) {}
  Building(const Building &) = delete;
  Building &operator=(const Building &) = delete;
  ~Building() {
    free_with(list_, [this](void *element) { elements_.release(element); });
  }

  quarn_asn1_list *get() const { return list_; }
  quarn_asn1_list *release() {
    quarn_asn1_list *list = list_;
    list_ = nullptr;
    return list;
  }

 private:
  Elements &elements_;
  quarn_asn1_list *list_;
};

// What stands where an element can stand.
struct Item {
  bool primitive;
  std::int64_t length;
  bool end_of_contents;
};

// Reads the length of an end-of-contents.
Status read_end(Reader &in) {
  const Status status = read_end_of_contents_length(in);
  if (status) return status;
  return kUnit.pass_on(status, in.ctx(), QUARN_ASN1_ERROR_READ_END, in.offset());
}

Status read_first(Reader &in, Identifier &out) {
  const Status status = read_identifier(in, out);
  if (status) return status;
  return kUnit.pass_on(status, in.ctx(), QUARN_ASN1_ERROR_READ_IDENTIFIER, in.offset());
}

// Reads the identifier of an element, which must be the expected one, and the length; or, where
// there may be one, the end-of-contents.
Status read_item(Reader &in, const ElementTag &expected, bool may_end, Item &out) {
  Identifier identifier{};
  Status status = read_first(in, identifier);
  if (!status) return status;
  out.primitive = identifier.primitive;
  if (!identifier.is(expected.tag_class, expected.number)) {
    if (!may_end || !identifier.is_end_of_contents()) {
      return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_ITEM, in.offset());
    }
    out.end_of_contents = true;
    return read_end(in);
  }
  if (expected.form != -1 && identifier.primitive != (expected.form != 0)) {
    return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_ITEM, in.offset());
  }
  status = read_length(in, out.length);
  if (status) return status;
  return kUnit.pass_on(status, in.ctx(), QUARN_ASN1_ERROR_READ_LENGTH, in.offset());
}

// Elements are read by read(in, may_end, element, ended), which stores an element or finds the
// end-of-contents, and freed by release(). position() counts the octets read.
class ElementsOfType {
 public:
  explicit ElementsOfType(const Type &type) : type_(type) {}

  void release(void *element) const { free_value(type_, element); }
  std::uint64_t position(const Reader &in) const { return in.count(); }

 protected:
  const Type &type() const { return type_; }
  Status recorded(Status status, const Reader &in) const {
    if (status) return status;
    return kUnit.pass_on(status, in.ctx(), type_.decode_error(), in.offset());
  }

 private:
  const Type &type_;
};

class TypedElements : public ElementsOfType {
 public:
  TypedElements(const Type &type, const ElementTag &expected)
      : ElementsOfType(type), expected_(expected) {}

  Status read(Reader &in, bool may_end, void **element, bool &ended) const {
    Item item{};
    const Status status = read_item(in, expected_, may_end, item);
    ended = item.end_of_contents;
    if (!status || ended) return status;
    return recorded(decode_content(type(), in, element, item.primitive, item.length), in);
  }

 private:
  const ElementTag &expected_;
};

// Elements that begin with one of several tags.
class ChoiceElements : public ElementsOfType {
 public:
  using ElementsOfType::ElementsOfType;

  Status read(Reader &in, bool may_end, void **element, bool &ended) const {
    Identifier identifier{};
    const Status status = read_first(in, identifier);
    if (!status) return status;
    ended = may_end && identifier.is_end_of_contents();
    if (ended) return read_end(in);
    return recorded(decode_rest(type(), in, identifier, element), in);
  }
};

class AnyElements {
 public:
  Status read(Reader &in, bool may_end, void **element, bool &ended) const {
    quarn_asn1_any *v = nullptr;
    const Status status = decode_any(in, &v);
    if (!status) {
      const int code = type_of(QUARN_ASN1_ANY).decode_error();
      return kUnit.pass_on(status, in.ctx(), code, in.offset());
    }
    ended = v->end_of_contents;
    if (!ended) {
      *element = v;
      return status;
    }
    quarn_free(v);
    return may_end ? status : kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_ITEM, in.offset());
  }
  void release(void *element) const { quarn_free(element); }
  std::uint64_t position(const Reader &in) const { return in.count(); }
};

class CallersElements {
 public:
  CallersElements(quarn_asn1_decode_content_fn decode,
                  quarn_asn1_free_fn free_element,
                  const ElementTag &expected)
      : decode_(decode), free_(free_element), expected_(expected) {}

  Status read(Reader &in, bool may_end, void **element, bool &ended) {
    Item item{};
    Status status = read_item(in, expected_, may_end, item);
    ended = item.end_of_contents;
    if (!status || ended) return status;
    in.settle();
    std::uint64_t consumed = 0;
    const int form = item.primitive ? 1 : 0;
    status = Status::from(decode_(in.stream(), element, form, item.length, &consumed, in.ctx()));
    in.resume();
    std::uint64_t position = in.count();
    if (!status || (add_to(consumed_, consumed) && add_to(position, consumed_))) return status;
    release(*element);
    return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_ITEM_LENGTH, in.offset());
  }
  void release(void *element) const {
    if (element != nullptr) free_(element);
  }
  std::uint64_t position(const Reader &in) const { return in.count() + consumed_; }

 private:
  quarn_asn1_decode_content_fn decode_;
  quarn_asn1_free_fn free_;
  const ElementTag &expected_;
  std::uint64_t consumed_ = 0;
};

template <typename Elements>
Status decode_elements(Reader &in, quarn_asn1_list &list, std::int64_t length, Elements &elements) {
  const std::uint64_t start = elements.position(in);
  for (;;) {
    void *element = nullptr;
    bool ended = false;
    const Status status = elements.read(in, length == kIndefinite, &element, ended);
    if (!status) in.step(list.count);
    if (!status || ended) return status;
    if (!append(list, element)) {
      elements.release(element);
      return kUnit.fail(in.ctx(), QUARN_ERROR_NO_MEMORY, in.offset());
    }
    if (length == kIndefinite) continue;
    const std::uint64_t taken = elements.position(in) - start;
    if (taken < static_cast<std::uint64_t>(length)) continue;
    if (taken == static_cast<std::uint64_t>(length)) return status;
    return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_ITEM_LENGTH, in.offset());
  }
}

// Stores null on failure. Fewer than least elements are one.
template <typename Elements>
Status decode_with(Reader &in,
                   quarn_asn1_list **out,
                   bool primitive,
                   std::int64_t length,
                   std::int32_t least,
                   Elements &elements) {
  if (out != nullptr) *out = nullptr;
  if (in.is_null() || out == nullptr) return kUnit.fail(in.ctx(), QUARN_ERROR_ARGUMENT);
  if (primitive) return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_FORM, in.offset());
  Building list(elements, length);
  if (list.get() == nullptr) return kUnit.fail(in.ctx(), QUARN_ERROR_NO_MEMORY, in.offset());
  if (length < kIndefinite) return kUnit.fail(in.ctx(), QUARN_ERROR_RANGE, in.offset());
  if (length != 0) {
    const Status status = decode_elements(in, *list.get(), length, elements);
    if (!status) return status;
  }
  if (list.get()->count < least) return kUnit.fail(in.ctx(), QUARN_ASN1_ERROR_SIZE, in.offset());
  *out = list.release();
  return Status::success();
}

// The dispatch by type id and the list each make their record, after null arguments.
Status no_such_type(const quarn_stream *stream, const void *list, quarn_err_ctx *ctx) {
  if (stream == nullptr || list == nullptr) return kUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
  return kUnit.pass_on(kUnit.fail(ctx, QUARN_ASN1_ERROR_TYPE), ctx, QUARN_ASN1_ERROR_TYPE);
}

const Type &any_type() {
  return type_of(QUARN_ASN1_ANY);
}

Status decode_anylist(
    Reader &in, quarn_asn1_list **out, bool primitive, std::int64_t length, std::int32_t least) {
  AnyElements elements;
  return decode_with(in, out, primitive, length, least, elements);
}

}  // namespace

bool append(quarn_asn1_list &list, void *element) {
  if (element == nullptr) return false;
  if (list.count == list.capacity && !grow(list)) return false;
  list.items[list.count++] = element;
  return true;
}

void free_list(quarn_asn1_list *list, const Type &element) {
  free_with(list, [&element](void *value) { free_value(element, value); });
}

std::int64_t list_content_length(const quarn_asn1_list *list, const Type &element) {
  return length_with(list, [&element](const void *value) { return length_of(element, value); });
}

Status encode_list_content(Writer &out,
                           const quarn_asn1_list *list,
                           const Type &element,
                           std::int64_t length) {
  return encode_with(out, list, length, [&](void *value) {
    const Status status = encode(element, out, value);
    if (status) return status;
    return kUnit.pass_on(status, out.ctx(), element.encode_error(), out.offset());
  });
}

Status decode_list_content(Reader &in,
                           quarn_asn1_list **out,
                           const Type &element,
                           bool primitive,
                           std::int64_t length,
                           const ElementTag &expected) {
  TypedElements elements(element, expected);
  return decode_with(in, out, primitive, length, 0, elements);
}

Status decode_list(Reader &in,
                   quarn_asn1_list **out,
                   const Type &element,
                   bool primitive,
                   std::int64_t length,
                   std::int32_t least) {
  if (element.codec->decode_rest != nullptr) {
    ChoiceElements elements(element);
    return decode_with(in, out, primitive, length, least, elements);
  }
  const ElementTag expected{element.tag_class, element.form, element.tag_number};
  TypedElements elements(element, expected);
  return decode_with(in, out, primitive, length, least, elements);
}

namespace {

// Type ids 24 to 27.
quarn_asn1_list *list_of(const void *value) {
  return static_cast<quarn_asn1_list *>(const_cast<void *>(value));
}

void free_anylist(const Type & /*type*/, void *value) {
  free_list(list_of(value), any_type());
}

std::int64_t anylist_content_length(const Type & /*type*/, const void *value) {
  return list_content_length(list_of(value), any_type());
}

Status encode_anylist(const Type & /*type*/, Writer &out, void *value, std::int64_t length) {
  return encode_list_content(out, list_of(value), any_type(), length);
}

template <std::int32_t kLeast>
Status decode_anylist_value(
    const Type & /*type*/, Reader &in, void **value, bool primitive, std::int64_t length) {
  auto **list = reinterpret_cast<quarn_asn1_list **>(value);
  return decode_anylist(in, list, primitive, length, kLeast);
}

}  // namespace

const Codec kAnylistCodec = {free_anylist,   anylist_content_length,  nullptr,
                             encode_anylist, decode_anylist_value<0>, nullptr,
                             nullptr};
const Codec kAnylist1Codec = {free_anylist,   anylist_content_length,  nullptr,
                              encode_anylist, decode_anylist_value<1>, nullptr,
                              nullptr};

}  // namespace quarn::asn1

using namespace quarn::asn1;

quarn_asn1_list *quarn_asn1_list_new(void) {
  return new_list(kNear);
}

int quarn_asn1_list_put(quarn_asn1_list *l, void *element) {
  return l != nullptr && append(*l, element) ? 1 : 0;
}

int quarn_asn1_list_get(const quarn_asn1_list *l, int index, void **element) {
  if (element == nullptr || !has(l, index)) return 0;
  *element = l->items[index];
  return 1;
}

int quarn_asn1_list_getsize(const quarn_asn1_list *l) {
  return l == nullptr ? 0 : l->count;
}

void *quarn_asn1_list_delete(quarn_asn1_list *l, int index) {
  if (!has(l, index)) return nullptr;
  void **place = l->items + index;
  void *element = *place;
  if (index == 0) {
    l->items++;
    l->capacity--;
  } else {
    const auto later = static_cast<std::size_t>(l->count - index - 1);
    std::memmove(place, place + 1, later * sizeof(void *));
  }
  l->count--;
  return element;
}

void quarn_asn1_list_free(quarn_asn1_list *l, int64_t element_type_id) {
  free_with(l, [=](void *element) { quarn_asn1_value_free(element_type_id, element); });
}

void quarn_asn1_list_free_ex(quarn_asn1_list *l, quarn_asn1_free_fn element_free) {
  free_with(l, [=](void *element) {
    if (element_free != nullptr) element_free(element);
  });
}

void quarn_asn1_anylist_free(quarn_asn1_list *l) {
  free_list(l, any_type());
}

int64_t quarn_asn1_list_content_length(const quarn_asn1_list *l, int64_t element_type_id) {
  return length_with(
      l, [=](const void *element) { return quarn_asn1_length(element_type_id, element); });
}

int64_t quarn_asn1_list_content_length_ex(const quarn_asn1_list *l,
                                          quarn_asn1_length_fn element_length) {
  return element_length == nullptr ? kNoLength : length_with(l, element_length);
}

int64_t quarn_asn1_anylist_length(const quarn_asn1_list *l) {
  return list_content_length(l, any_type());
}

int quarn_asn1_encode_list_content(quarn_stream *s,
                                   quarn_asn1_list *l,
                                   int64_t element_type_id,
                                   int64_t content_length,
                                   uint64_t *written,
                                   quarn_err_ctx *ctx) {
  const Type *type = find_type(element_type_id);
  if (type == nullptr) return no_such_type(s, l, ctx).raw();
  return writing(s, written, ctx,
                 [=](Writer &out) { return encode_list_content(out, l, *type, content_length); });
}

int quarn_asn1_encode_list_content_ex(quarn_stream *s,
                                      quarn_asn1_list *l,
                                      quarn_asn1_encode_fn element_encode,
                                      int64_t content_length,
                                      uint64_t *written,
                                      quarn_err_ctx *ctx) {
  if (element_encode == nullptr) return kUnit.fail(ctx, QUARN_ERROR_ARGUMENT).raw();
  uint64_t total = 0;
  uint64_t end = 0;
  const int result = writing(s, &end, ctx, [&](Writer &out) {
    return encode_with(out, l, content_length, [&](void *element) {
      uint64_t count = 0;
      const auto status = Status::from(element_encode(s, element, &count, ctx));
      if (!status || add_to(total, count)) return status;
      return kUnit.fail(ctx, QUARN_ASN1_ERROR_ITEM_LENGTH);
    });
  });
  if (result != 1) return result;
  if (!add_to(total, end)) return kUnit.fail(ctx, QUARN_ASN1_ERROR_ITEM_LENGTH).raw();
  if (written != nullptr) *written = total;
  return result;
}

int quarn_asn1_encode_anylist_content(quarn_stream *s,
                                      quarn_asn1_list *l,
                                      int64_t content_length,
                                      uint64_t *written,
                                      quarn_err_ctx *ctx) {
  return quarn_asn1_encode_list_content(s, l, QUARN_ASN1_ANY, content_length, written, ctx);
}

int quarn_asn1_decode_list_content(quarn_stream *s,
                                   quarn_asn1_list **l,
                                   int64_t element_type_id,
                                   int form,
                                   int64_t content_length,
                                   uint32_t element_class,
                                   int element_form,
                                   uint64_t element_tag,
                                   uint64_t *consumed,
                                   quarn_err_ctx *ctx) {
  if (l != nullptr) *l = nullptr;
  const Type *type = find_type(element_type_id);
  if (type == nullptr) return no_such_type(s, l, ctx).raw();
  const ElementTag expected{element_class, element_form, element_tag};
  return reading(s, consumed, ctx, [&](Reader &in) {
    return decode_list_content(in, l, *type, form != 0, content_length, expected);
  });
}

int quarn_asn1_decode_list_content_ex(quarn_stream *s,
                                      quarn_asn1_list **l,
                                      quarn_asn1_decode_content_fn element_decode_content,
                                      quarn_asn1_free_fn element_free,
                                      int form,
                                      int64_t content_length,
                                      uint32_t element_class,
                                      int element_form,
                                      uint64_t element_tag,
                                      uint64_t *consumed,
                                      quarn_err_ctx *ctx) {
  if (l != nullptr) *l = nullptr;
  if (element_decode_content == nullptr || element_free == nullptr) {
    return kUnit.fail(ctx, QUARN_ERROR_ARGUMENT).raw();
  }
  const ElementTag expected{element_class, element_form, element_tag};
  CallersElements elements(element_decode_content, element_free, expected);
  Reader in(s, ctx);
  const Status status = decode_with(in, l, form != 0, content_length, 0, elements);
  if (status && consumed != nullptr) *consumed = elements.position(in);
  return status.raw();
}

int quarn_asn1_decode_anylist_content(quarn_stream *s,
                                      quarn_asn1_list **l,
                                      int32_t form,
                                      int64_t content_length,
                                      uint64_t *consumed,
                                      quarn_err_ctx *ctx) {
  return reading(s, consumed, ctx,
                 [=](Reader &in) { return decode_anylist(in, l, form != 0, content_length, 0); });
}

int quarn_asn1_decode_anylist_1_content(quarn_stream *s,
                                        quarn_asn1_list **l,
                                        int32_t form,
                                        int64_t content_length,
                                        uint64_t *consumed,
                                        quarn_err_ctx *ctx) {
  return reading(s, consumed, ctx,
                 [=](Reader &in) { return decode_anylist(in, l, form != 0, content_length, 1); });
}
