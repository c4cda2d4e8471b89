// The tree of JSON values: making, joining, reading and freeing them.
#include <algorithm>
#include <bit>
#include <cmath>

#include "util/json.h"

namespace quarn::util {
namespace {

// Objects of more members than this have an index of their keys: a hash table with linear probing,
// two cells for each pointer, behind the pointers in the same block.
constexpr uint32_t kMostUnindexed = 16;

// A free cell has place 0. The hash spares a look at the member, which lies anywhere in memory,
// where the keys differ and where a table is made anew.
struct Cell {
  uint32_t hash;
  uint32_t place;  // position of the member plus 1
};

// Number of pointers in the block of a value that has one.
uint64_t capacity(const quarn_json *container) {
  return std::bit_ceil(uint64_t{container->size});
}

bool is_indexed(const quarn_json *container, uint64_t pointers) {
  return container->kind == QUARN_JSON_OBJECT && pointers > kMostUnindexed;
}

uint32_t hash_of(std::string_view key) {
  return static_cast<uint32_t>(keyed_hash(key));
}

// The key index of a block of so many pointers.
class Index {
 public:
  Index(quarn_json *const *block, uint64_t pointers)
      : children_(block),
        pointers_(pointers),
        cells_(reinterpret_cast<Cell *>(const_cast<quarn_json **>(block + pointers))) {}

  void clear() { std::memset(cells_, 0, 2 * pointers_ * sizeof(Cell)); }

  quarn_json *find(std::string_view key) const {
    const uint32_t hash = hash_of(key);
    for (uint64_t at = first(hash); cells_[at].place != 0; at = next(at)) {
      if (cells_[at].hash != hash) continue;
      quarn_json *child = children_[cells_[at].place - 1];
      if (child->key.is(key)) return child;
    }
    return nullptr;
  }

  // Adds a cell for a key that is not there yet.
  void add(const Cell &cell) {
    uint64_t at = first(cell.hash);
    while (cells_[at].place != 0) at = next(at);
    cells_[at] = cell;
  }
  void add(const quarn_json *child) { add({hash_of(child->key.view()), child->position + 1}); }

  // The cells of a smaller index come in about the order in which they are put here, so that both
  // tables are passed through from end to end.
  void add_all(const Index &smaller) {
    for (uint64_t i = 0; i < 2 * smaller.pointers_; i++) {
      if (smaller.cells_[i].place != 0) add(smaller.cells_[i]);
    }
  }

 private:
  // Where a hash belongs: in proportion to its size, so that cells keep their order.
  uint64_t first(uint32_t hash) const { return hash * pointers_ >> 31; }
  uint64_t next(uint64_t at) const { return (at + 1) & (2 * pointers_ - 1); }

  quarn_json *const *children_;
  uint64_t pointers_;
  Cell *cells_;
};

// A larger block with the same children; null when memory is short.
quarn_json **grown_block(const quarn_json *container, uint64_t pointers) {
  const bool indexed = is_indexed(container, pointers);
  const std::size_t cells = indexed ? 2 * sizeof(Cell) : 0;
  std::size_t octets;
  if (__builtin_mul_overflow(pointers, sizeof(void *) + cells, &octets)) return nullptr;
  auto **block = reinterpret_cast<quarn_json **>(allocate_array<char>(octets));
  if (block == nullptr) return nullptr;
  std::copy_n(container->children(), container->size, block);
  if (!indexed) return block;
  Index index(block, pointers);
  index.clear();
  if (is_indexed(container, container->size)) {
    index.add_all(Index(container->children(), container->size));
  } else {
    for (uint32_t i = 0; i < container->size; i++) index.add(block[i]);
  }
  return block;
}

// Makes room for one more child; false when that cannot be.
bool reserve(quarn_json *container) {
  const uint32_t size = container->size;
  if (size < quarn_json::kMostNear) return true;
  if (size == UINT32_MAX) return false;
  const bool first = size == quarn_json::kMostNear;
  if (!first && (size & (size - 1)) != 0) return true;  // the block is full at powers of two
  quarn_json **block = grown_block(container, std::bit_ceil(uint64_t{size} + 1));
  if (block == nullptr) return false;
  if (!first) quarn_free(const_cast<quarn_json **>(container->children()));
  new (container + 1) quarn_json **(block);
  return true;
}

// The next value of a walk over root and all below it, parents first; null after the last.
const quarn_json *next_below(const quarn_json *root, const quarn_json *j) {
  if (j->has_children()) return j->children()[0];
  for (; j != root; j = j->parent) {
    if (const quarn_json *next = j->next()) return next;
  }
  return nullptr;
}

// Whether container is value or lies below it. Looks up from container and down from value in turn,
// so that it costs no more than the lesser of container's depth and the values below value: whoever
// builds a tree of n values in whatever order pays at most n log n for it.
bool contains(const quarn_json *value, const quarn_json *container) {
  const quarn_json *up = container;
  const quarn_json *down = value;
  while (up != value) {
    up = up->parent;
    down = next_below(value, down);
    if (up == nullptr || down == nullptr) return false;
  }
  return true;
}

// Whether value may become a child of a value of this kind.
bool may_add(const quarn_json *container, quarn_json_kind kind, const quarn_json *value) {
  return container != nullptr && container->kind == kind && value != nullptr &&
         value->parent == nullptr && !contains(value, container);
}

// Releases one value and returns its parent.
quarn_json *release(quarn_json *j) {
  quarn_json *parent = j->parent;
  j->key.clear();
  if (j->is_container() && j->size > quarn_json::kMostNear)
    quarn_free(const_cast<quarn_json **>(j->children()));
  if (!j->pooled) {
    quarn_free(j);
  } else if (j->has_pool) {
    json_release_pool(j);
  }
  return parent;
}

quarn_json *last_leaf(quarn_json *j) {
  while (j->has_children()) j = j->children()[j->size - 1];
  return j;
}

bool is_kind(const quarn_json *j, quarn_json_kind kind) {
  return j != nullptr && j->kind == kind;
}

}  // namespace

quarn_json *json_new(quarn_json_kind kind, std::size_t room) {
  auto *j = allocate<quarn_json>(room);
  if (j != nullptr) j->kind = static_cast<uint8_t>(kind) & 0x3F;
  return j;
}

quarn_json *json_set_text(quarn_json *string, std::string_view octets) {
  if (string == nullptr) return nullptr;
  char *text = reinterpret_cast<char *>(string + 1);
  if (!octets.empty()) std::memcpy(text, octets.data(), octets.size());
  text[octets.size()] = '\0';
  string->size = static_cast<uint32_t>(octets.size());
  return string;
}

quarn_json *json_find(const quarn_json *object, std::string_view key) {
  if (object->size == 0) return nullptr;
  quarn_json *const *children = object->children();
  if (is_indexed(object, object->size)) {
    return Index(children, capacity(object)).find(key);
  }
  for (uint32_t i = 0; i < object->size; i++) {
    if (children[i]->key.is(key)) return children[i];
  }
  return nullptr;
}

bool json_append(quarn_json *container, quarn_json *value, const JsonKey &key) {
  if (!reserve(container)) return false;
  value->parent = container;
  value->position = container->size++;
  value->key = key;
  const_cast<quarn_json **>(container->children())[value->position] = value;
  if (is_indexed(container, container->size)) {
    Index(container->children(), capacity(container)).add(value);
  }
  return true;
}

}  // namespace quarn::util

using quarn::util::is_kind;
using quarn::util::json_new;

quarn_json *quarn_json_newnull(void) {
  return json_new(QUARN_JSON_NULL, 0);
}

quarn_json *quarn_json_newobject(void) {
  return json_new(QUARN_JSON_OBJECT, quarn_json::kNearRoom);
}

quarn_json *quarn_json_newarray(void) {
  return json_new(QUARN_JSON_ARRAY, quarn_json::kNearRoom);
}

quarn_json *quarn_json_newstring(const char *text, uint32_t length) {
  if (text == nullptr) return nullptr;
  if (quarn_utf8_valid(reinterpret_cast<const uint8_t *>(text), length) != 1) return nullptr;
  quarn_json *j = json_new(QUARN_JSON_STRING, std::size_t{length} + 1);
  return quarn::util::json_set_text(j, {text, length});
}

quarn_json *quarn_json_newnumber(double value) {
  if (!std::isfinite(value)) return nullptr;
  quarn_json *j = json_new(QUARN_JSON_NUMBER, sizeof value);
  if (j != nullptr) new (j + 1) double(value);
  return j;
}

quarn_json *quarn_json_newboolean(int value) {
  quarn_json *j = json_new(QUARN_JSON_BOOLEAN, 0);
  if (j != nullptr) j->size = value != 0;
  return j;
}

// A key that is not UTF-8 is refused too: it could not be printed as JSON.
int quarn_json_addobjectitem(quarn_json *object,
                             const char *key,
                             uint32_t key_length,
                             quarn_json *value) {
  if (key == nullptr || !quarn::util::may_add(object, QUARN_JSON_OBJECT, value)) return 0;
  if (quarn_utf8_valid(reinterpret_cast<const uint8_t *>(key), key_length) != 1) return 0;
  if (quarn::util::json_find(object, {key, key_length}) != nullptr) return 0;
  quarn::util::JsonKey own;
  if (!own.assign({key, key_length})) return 0;
  if (quarn::util::json_append(object, value, own)) return 1;
  own.clear();
  return 0;
}

int quarn_json_addarrayitem(quarn_json *array, quarn_json *value) {
  if (!quarn::util::may_add(array, QUARN_JSON_ARRAY, value)) return 0;
  return quarn::util::json_append(array, value, {}) ? 1 : 0;
}

int quarn_json_gettype(const quarn_json *j) {
  return j == nullptr ? 0 : j->kind;
}

quarn_json *quarn_json_getobjectvalue(const quarn_json *object,
                                      const char *key,
                                      uint32_t key_length) {
  if (key == nullptr || !is_kind(object, QUARN_JSON_OBJECT)) return nullptr;
  return quarn::util::json_find(object, {key, key_length});
}

uint32_t quarn_json_getobjectsize(const quarn_json *object) {
  return is_kind(object, QUARN_JSON_OBJECT) ? object->size : 0;
}

quarn_json *quarn_json_getobjectitem(const quarn_json *object,
                                     uint32_t index,
                                     const char **key,
                                     uint32_t *key_length) {
  if (index >= quarn_json_getobjectsize(object)) return nullptr;
  quarn_json *member = object->children()[index];
  if (key != nullptr) *key = member->key.view().data();
  if (key_length != nullptr) *key_length = static_cast<uint32_t>(member->key.view().size());
  return member;
}

uint32_t quarn_json_getarraysize(const quarn_json *array) {
  return is_kind(array, QUARN_JSON_ARRAY) ? array->size : 0;
}

quarn_json *quarn_json_getarrayitem(const quarn_json *array, uint32_t index) {
  return index < quarn_json_getarraysize(array) ? array->children()[index] : nullptr;
}

const char *quarn_json_getstring(const quarn_json *j) {
  return is_kind(j, QUARN_JSON_STRING) ? j->text() : nullptr;
}

uint32_t quarn_json_getstringlength(const quarn_json *j) {
  return is_kind(j, QUARN_JSON_STRING) ? j->size : 0;
}

double quarn_json_getnumber(const quarn_json *j) {
  return is_kind(j, QUARN_JSON_NUMBER) ? j->number() : 0;
}

int quarn_json_istrue(const quarn_json *j) {
  return is_kind(j, QUARN_JSON_BOOLEAN) && j->size != 0 ? 1 : 0;
}

// Last to first, so that the position of each tells how many are left; releasing in the opposite
// order of making also leaves the heap in better order.
void quarn_json_free(quarn_json *j) {
  if (j == nullptr || j->parent != nullptr) return;
  quarn_json *at = quarn::util::last_leaf(j);
  while (at != nullptr) {
    const uint32_t left = at->position;
    at = quarn::util::release(at);
    if (left > 0) at = quarn::util::last_leaf(at->children()[left - 1]);
  }
}
