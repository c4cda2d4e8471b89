// The order of a SET OF in DER (X.690, 11.6).
//
// Encodings are compared octet by octet as unsigned numbers, the shorter one padded at its end with
// zero octets. Those that differ in zero octets at the end only may come in any order; with the
// shorter one first, the rule is plain lexicographic order:
//
//     04 01 00
//     04 01 01
//     04 02
//
// All encodings lie one behind the other in one buffer.
#include <algorithm>
#include <cstring>

#include "types/list.h"
#include "types/scratch.h"
#include "util/memory.h"

namespace quarn::asn1 {

namespace {

struct Key {
  const std::uint8_t *octets;
  std::size_t size;
  void *element;
};

bool precedes(const Key &a, const Key &b) {
  const int order = std::memcmp(a.octets, b.octets, std::min(a.size, b.size));
  return order != 0 ? order < 0 : a.size < b.size;
}

// Makes each key's size, which so far says where its encoding ends in the buffer, that of the
// encoding itself.
void locate(Key *keys, std::size_t count, const std::uint8_t *encodings) {
  std::size_t start = 0;
  for (std::size_t i = 0; i < count; i++) {
    const std::size_t end = keys[i].size;
    keys[i].octets = encodings + start;
    keys[i].size = end - start;
    start = end;
  }
}

// encode_all(scratch, keys, count) encodes the elements of the keys in turn and stores where each
// ends.
template <typename EncodeAll>
bool sort_with(quarn_asn1_list *list, EncodeAll encode_all) {
  if (list == nullptr) return false;
  if (list->count < 2) return true;
  const auto count = static_cast<std::size_t>(list->count);
  const util::Block<Key> block(util::allocate_array<Key>(count));
  const Scratch scratch(nullptr);
  Key *keys = block.get();
  if (keys == nullptr || scratch.stream() == nullptr) return false;
  for (std::size_t i = 0; i < count; i++) keys[i] = {nullptr, 0, list->items[i]};
  if (!encode_all(scratch, keys, count)) return false;
  if (scratch.size() == 0) return true;
  locate(keys, count, scratch.data());
  std::sort(keys, keys + count, precedes);
  for (std::size_t i = 0; i < count; i++) list->items[i] = keys[i].element;
  return true;
}

}  // namespace

bool sort_set_of(quarn_asn1_list *list, const Type &element) {
  return sort_with(list, [&element](const Scratch &scratch, Key *keys, std::size_t count) {
    Writer out(scratch.stream(), nullptr);
    for (std::size_t i = 0; i < count; i++) {
      if (!encode(element, out, keys[i].element)) return false;
      keys[i].size = out.count();
    }
    return true;
  });
}

}  // namespace quarn::asn1

using namespace quarn::asn1;

int quarn_asn1_list_sort_setof(quarn_asn1_list *l, int64_t element_type_id) {
  if (l != nullptr && l->count < 2) return 1;
  const Type *type = find_type(element_type_id);
  return type != nullptr && sort_set_of(l, *type) ? 1 : 0;
}

int quarn_asn1_list_sort_setof_ex(quarn_asn1_list *l, quarn_asn1_encode_fn element_encode) {
  if (l != nullptr && l->count < 2) return 1;
  if (element_encode == nullptr) return 0;
  const auto encode_all = [=](const Scratch &scratch, Key *keys, std::size_t count) {
    for (std::size_t i = 0; i < count; i++) {
      std::uint64_t written = 0;
      const int result = element_encode(scratch.stream(), keys[i].element, &written, nullptr);
      if (result != 1) return false;
      keys[i].size = scratch.size();
    }
    return true;
  };
  return sort_with(l, encode_all) ? 1 : 0;
}
