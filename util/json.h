// The tree behind the JSON handles.
//
// A value is one block that never moves, so that handles stay valid: a fixed head, then the number,
// the text with its NUL, or the pointers to a few children, or to more in a block of their own.
//
//     {"type":"SET","value":[5]}
//
//     [object, 2 | o o . ]    [array, 1, "value" | o . . ]--->[number | 5.0]
//                  | |              ^
//                  | '--------------'               up to three children: pointed to directly;
//                  '-->[string, 3, "type" | SET\0]    more: a block of pointers, doubled when full
//
// A value also holds its key, its parent and its position there. That is enough to walk, print and
// free a tree of any depth with neither recursion nor a stack.
#ifndef QUARN_UTIL_JSON_H
#define QUARN_UTIL_JSON_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <string_view>

#include "util/error.h"
#include "util/memory.h"

namespace quarn::util {

inline constexpr Unit kJsonUnit{"QUARN_JSON"};

// Octets of a member's key. Few octets lie in the key itself, more in a block of their own whose
// address takes their place. Copying moves that block: one of the copies is to be forgotten.
class JsonKey {
 public:
  std::string_view view() const { return {length_ <= sizeof near_ ? near_ : far(), length_}; }

  // Mostly told by length and first octet.
  bool is(std::string_view octets) const {
    if (length_ != octets.size()) return false;
    const char *own = view().data();
    return octets.empty() ||
           (*own == octets.front() && std::memcmp(own, octets.data(), octets.size()) == 0);
  }

  // Makes an empty key a copy of the octets; false when memory is short.
  bool assign(std::string_view octets) {
    char *to = near_;
    if (octets.size() > sizeof near_) {
      to = allocate_array<char>(octets.size());
      if (to == nullptr) return false;
      std::memcpy(near_, &to, sizeof to);
    }
    if (!octets.empty()) std::memcpy(to, octets.data(), octets.size());
    length_ = static_cast<uint32_t>(octets.size());
    return true;
  }

  void clear() {
    if (length_ > sizeof near_) quarn_free(far());
    length_ = 0;
  }

 private:
  char *far() const {
    char *octets;
    std::memcpy(&octets, near_, sizeof octets);
    return octets;
  }

  uint32_t length_ = 0;
  char near_[11] = {};
};

// A hash whose collisions cannot be computed outside this process.
uint64_t keyed_hash(std::string_view octets);

}  // namespace quarn::util

struct quarn_json {
  // Children that are pointed to from the value's own block.
  static constexpr uint32_t kMostNear = 3;
  static constexpr std::size_t kNearRoom = kMostNear * sizeof(void *);

  quarn_json *parent = nullptr;
  uint32_t position = 0;  // among the parent's children
  uint32_t size = 0;      // octets of text, number of children, or whether a boolean is true
  [[no_unique_address]] quarn::util::JsonKey key;
  uint8_t kind : 6 = 0;      // quarn_json_kind; lies in the padding of the key
  uint8_t pooled : 1 = 0;    // lies in a pool
  uint8_t has_pool : 1 = 0;  // is the first value of its pool, which goes with it

  bool is_container() const { return kind == QUARN_JSON_ARRAY || kind == QUARN_JSON_OBJECT; }
  bool has_children() const { return is_container() && size > 0; }
  double number() const { return *reinterpret_cast<const double *>(this + 1); }
  const char *text() const { return reinterpret_cast<const char *>(this + 1); }

  // Pointers to the children of a value that has some.
  quarn_json *const *children() const {
    if (size <= kMostNear) return reinterpret_cast<quarn_json *const *>(this + 1);
    return *reinterpret_cast<quarn_json **const *>(this + 1);
  }
  // The child after this one; null for the last and for a value without a parent.
  const quarn_json *next() const {
    if (parent == nullptr || position + 1 >= parent->size) return nullptr;
    return parent->children()[position + 1];
  }
};

static_assert(sizeof(quarn_json) == 32, "the head is the memory cost of every value");

namespace quarn::util {

// A value with room for its content behind the head; null when memory is short.
quarn_json *json_new(quarn_json_kind kind, std::size_t room);

// Blocks that hold the values of one parsed text, one after the other: much cheaper to make and to
// release than a block for each. The first value made is the root of all others, and releases the
// blocks with itself.
//
//     first block: | next | root | value | value ... |     further blocks: | next | value ... |
class JsonPool {
 public:
  // size is about what the values will take.
  explicit JsonPool(std::size_t size);

  // As json_new().
  quarn_json *make(quarn_json_kind kind, std::size_t room);
  // A string of octets that are known to be UTF-8.
  quarn_json *make_text(std::string_view octets);

 private:
  bool add_block(std::size_t least);

  std::size_t next_size_;
  void **last_ = nullptr;  // the link of the block made last
  char *at_ = nullptr;
  std::size_t left_ = 0;
};

// Releases the blocks of the pool that the root of all its values lies in.
void json_release_pool(quarn_json *root);
// Puts text into a new string that has room for it.
quarn_json *json_set_text(quarn_json *string, std::string_view octets);
// The member of an object; null when there is none.
quarn_json *json_find(const quarn_json *object, std::string_view key);
// Makes value, which has no parent and no key, the last child of container. The key is taken over
// when it succeeds; for an object it must be a new one. False when memory or positions run out.
bool json_append(quarn_json *container, quarn_json *value, const JsonKey &key);

}  // namespace quarn::util

#endif
