// A work list on the heap: what a recursive function would keep in its frames.
#ifndef QUARN_JSON_STACK_H
#define QUARN_JSON_STACK_H

#include <cstddef>
#include <cstring>
#include <type_traits>

#include "core/checked.h"
#include "util/memory.h"

namespace quarn::asn1::json {

template <typename T>
class Stack {
  static_assert(std::is_trivially_copyable_v<T>);

 public:
  Stack() = default;
  Stack(const Stack &) = delete;
  Stack &operator=(const Stack &) = delete;
  ~Stack() { quarn_free(items_); }

  bool empty() const { return size_ == 0; }
  std::size_t size() const { return size_; }
  T &top() { return items_[size_ - 1]; }
  T &operator[](std::size_t index) { return items_[index]; }
  const T &operator[](std::size_t index) const { return items_[index]; }
  void truncate(std::size_t size) { size_ = size; }

  // False when memory is short.
  [[nodiscard]] bool push(const T &item) {
    if (size_ == capacity_ && !grow()) return false;
    items_[size_++] = item;
    return true;
  }

  T pop() { return items_[--size_]; }

 private:
  [[nodiscard]] bool grow() {
    std::size_t capacity = capacity_ == 0 ? 8 : capacity_;
    if (capacity_ != 0 && !multiply_by<std::size_t>(capacity, 2)) return false;
    T *items = util::allocate_array<T>(capacity);
    if (items == nullptr) return false;
    if (size_ > 0) std::memcpy(items, items_, size_ * sizeof(T));
    quarn_free(items_);
    items_ = items;
    capacity_ = capacity;
    return true;
  }

  T *items_ = nullptr;
  std::size_t size_ = 0;
  std::size_t capacity_ = 0;
};

}  // namespace quarn::asn1::json

#endif
