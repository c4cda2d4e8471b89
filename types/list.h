// Lists: the values of every SEQUENCE OF and SET OF.
//
// A list holds pointers to its elements and nothing about their type, which each operation is told.
// The first few lie in the list's own block; more get a block of their own, which doubles. A list
// that is decoded has no more room at first than its content can fill, so that an empty one, of
// which hostile input can hold one for every two octets, is one small block. Removing the first
// element moves none of the others: callers empty lists that way.
#ifndef QUARN_TYPES_LIST_H
#define QUARN_TYPES_LIST_H

#include <cstring>

#include "core/type.h"
#include "quarn_asn1/types.h"

struct quarn_asn1_list {
  void **block;
  void **items;           // into the block: behind what was removed from the front
  std::int32_t capacity;  // from items on
  std::int32_t count;

  // The room in the list's own block.
  void **near() { return reinterpret_cast<void **>(this + 1); }
  void free_items() {
    if (block != near()) quarn_free(block);
  }
};

namespace quarn::asn1 {

// The tag that each element of a list must have; form: 1 primitive, 0 constructed, -1 either.
struct ElementTag {
  std::uint32_t tag_class;
  std::int32_t form;
  std::uint64_t number;
};

// False, with the element still the caller's, when it is null or memory is short.
[[nodiscard]] bool append(quarn_asn1_list &list, void *element);

void free_list(quarn_asn1_list *list, const Type &element);

// Lists that are to be freed, linked through what nobody needs of them any more.
class WaitingLists {
 public:
  bool is_empty() const { return first_ == nullptr; }
  // The elements go to the front of their block, and items is the link; capacity is the number of
  // their type's row.
  void add(quarn_asn1_list &list, const Type &element) {
    const auto count = static_cast<std::size_t>(list.count);
    if (list.items != list.block) std::memmove(list.block, list.items, count * sizeof(void *));
    list.items = reinterpret_cast<void **>(first_);
    list.capacity = static_cast<std::int32_t>(&element - kTypes);
    first_ = &list;
  }
  // Calls release(type, element) for each element of the list that was added last, which may add
  // more, and frees the list.
  template <typename Release>
  void free_next(Release release) {
    quarn_asn1_list &list = *first_;
    const Type &element = kTypes[list.capacity];
    first_ = reinterpret_cast<quarn_asn1_list *>(list.items);
    for (std::int32_t i = 0; i < list.count; i++) release(element, list.block[i]);
    list.free_items();
    quarn_free(&list);
  }

 private:
  quarn_asn1_list *first_ = nullptr;
};

std::int64_t list_content_length(const quarn_asn1_list *list, const Type &element);
Status encode_list_content(Writer &out,
                           const quarn_asn1_list *list,
                           const Type &element,
                           std::int64_t length);
// Stores a new list, or null first and on failure.
Status decode_list_content(Reader &in,
                           quarn_asn1_list **out,
                           const Type &element,
                           bool primitive,
                           std::int64_t length,
                           const ElementTag &expected);
// The same with elements as their row says, those of a CHOICE included, and at least so many.
Status decode_list(Reader &in,
                   quarn_asn1_list **out,
                   const Type &element,
                   bool primitive,
                   std::int64_t length,
                   std::int32_t least);
// Puts the elements into DER order. False, with the list unchanged, on failure.
[[nodiscard]] bool sort_set_of(quarn_asn1_list *list, const Type &element);

}  // namespace quarn::asn1

#endif
