// Octets that values keep of the encoding they came from.
//
//     SharedOctets | 30 82 .. 30 82 .. .. 30 .. (issuer) .. 30 .. (subject) .. 03 82 .. |
//                    '--- Certificate: all of it
//                               '--- its body   '--- Name     '--- Name
//
// The outermost object copies its octets once; what lies inside shows a part of the same block. The
// block counts those who show it and goes with the last of them, so that no value can be left
// showing octets that are gone, whatever becomes of the object it was taken from.
#ifndef QUARN_CORE_KEPT_H
#define QUARN_CORE_KEPT_H

#include <atomic>
#include <cstddef>
#include <cstdint>

#include "util/memory.h"

namespace quarn::asn1 {

// A block with its octets behind it.
class SharedOctets {
 public:
  // With one user, who releases it; null when memory is short.
  static SharedOctets *make(std::size_t size) { return util::allocate<SharedOctets>(size); }

  std::uint8_t *octets() { return reinterpret_cast<std::uint8_t *>(this + 1); }

  void use() { users_.fetch_add(1, std::memory_order_relaxed); }
  void release() {
    // The last user need not say so: nobody else can come in any more.
    const bool last = users_.load(std::memory_order_acquire) == 1 ||
                      users_.fetch_sub(1, std::memory_order_acq_rel) == 1;
    if (last) quarn_free(this);
  }

 private:
  std::atomic<std::uint32_t> users_{1};
};

// In a value: the octets it keeps. All zero keeps nothing; values are freed as plain memory, so
// that they drop what they keep themselves.
struct Kept {
  SharedOctets *block;
  const std::uint8_t *octets;
  std::uint64_t count;

  bool valid() const { return block != nullptr; }

  // Shows octets of a block, whose user this becomes. The block comes last: whoever sees it sees
  // the rest.
  void take(SharedOctets *of, const std::uint8_t *start, std::uint64_t size) {
    drop();
    octets = start;
    count = size;
    block = of;
  }
  void share(SharedOctets *of, const std::uint8_t *start, std::uint64_t size) {
    of->use();
    take(of, start, size);
  }
  void drop() {
    SharedOctets *dropped = block;
    block = nullptr;
    if (dropped != nullptr) dropped->release();
  }
};

// Keeps octets while it lives, or until a value takes them over.
class Keeping {
 public:
  Keeping() = default;
  Keeping(const Keeping &) = delete;
  Keeping &operator=(const Keeping &) = delete;
  ~Keeping() { kept_.drop(); }

  Kept &get() { return kept_; }
  const Kept &get() const { return kept_; }
  void move_to(Kept &value) {
    value.take(kept_.block, kept_.octets, kept_.count);
    kept_.block = nullptr;
  }

 private:
  Kept kept_{};
};

}  // namespace quarn::asn1

#endif
