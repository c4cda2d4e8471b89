// Content lengths that have been measured and wait to be written, in the order of writing.
#ifndef QUARN_CORE_LENGTHS_H
#define QUARN_CORE_LENGTHS_H

#include <cstdint>
#include <cstring>

#include "core/buffer.h"
#include "core/header.h"

namespace quarn::asn1 {

// In place of a length: the element is written as the octets that its value keeps.
constexpr std::int64_t kAsKept = INT64_MIN;

class Lengths {
 public:
  // cppcheck-suppress uninitMemberVar ; near_ is written before it is read
  Lengths() = default;

  // A place for a length that is not known yet, because those after it are part of it.
  std::size_t reserve() {
    const std::size_t place = count_++;
    const std::int64_t unknown = 0;
    if (place >= kNear && !far_.append(&unknown, sizeof unknown)) out_of_memory_ = true;
    return place;
  }
  void add(std::int64_t length) { set(reserve(), length); }
  void set(std::size_t place, std::int64_t length) {
    if (place < kNear) {
      near_[place] = length;
    } else if (!out_of_memory_) {
      std::memcpy(far_.data() + (place - kNear) * sizeof length, &length, sizeof length);
    }
  }
  // Some lengths are lost.
  bool out_of_memory() const { return out_of_memory_; }

  // The next length; kNoLength when there is none.
  std::int64_t peek() const {
    if (next_ >= count_) return kNoLength;
    if (next_ < kNear) return near_[next_];
    std::int64_t length = 0;
    std::memcpy(&length, far_.data() + (next_ - kNear) * sizeof length, sizeof length);
    return length;
  }
  std::int64_t next() {
    const std::int64_t length = peek();
    next_++;
    return length;
  }

 private:
  static constexpr std::size_t kNear = 64;  // enough for most values, and no allocation

  std::int64_t near_[kNear];  // written before it is read
  Buffer far_;
  std::size_t count_ = 0;
  std::size_t next_ = 0;
  bool out_of_memory_ = false;
};

}  // namespace quarn::asn1

#endif
