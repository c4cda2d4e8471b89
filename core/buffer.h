// Octets that grow as they arrive. A length that the input merely claims never sizes one.
#ifndef QUARN_CORE_BUFFER_H
#define QUARN_CORE_BUFFER_H

#include <cstdint>
#include <cstring>

#include "core/checked.h"
#include "util/memory.h"

namespace quarn::asn1 {

class Buffer {
 public:
  Buffer() = default;
  Buffer(const Buffer &) = delete;
  Buffer &operator=(const Buffer &) = delete;
  ~Buffer() {
    if (octets_ != nullptr) quarn_free(octets_);
  }

  const std::uint8_t *data() const { return octets_; }
  std::uint8_t *data() { return octets_; }
  std::size_t size() const { return size_; }

  // Makes room for count more octets. False when memory is short; what is held stays.
  [[nodiscard]] bool reserve(std::size_t count) {
    if (count <= capacity_ - size_) return true;
    return grow(count);
  }

  // The same for a buffer that holds nothing yet and will rarely need more than count octets.
  [[nodiscard]] bool start(std::size_t count) {
    octets_ = util::allocate_array<std::uint8_t>(count);
    capacity_ = octets_ == nullptr ? 0 : count;
    return octets_ != nullptr;
  }

  [[nodiscard]] bool append(const void *octets, std::size_t count) {
    if (!reserve(count)) return false;
    if (count > 0) std::memcpy(octets_ + size_, octets, count);
    size_ += count;
    return true;
  }

  [[nodiscard]] bool append(std::uint8_t octet) { return append(&octet, 1); }

  // Counts octets as held that the caller has put behind data() + size(), into reserved room.
  void extend(std::size_t count) { size_ += count; }
  void truncate(std::size_t size) { size_ = size; }

  // Hands the block over, to be freed with quarn_free(). Null when nothing was ever held.
  std::uint8_t *release() {
    std::uint8_t *octets = octets_;
    octets_ = nullptr;
    size_ = capacity_ = 0;
    return octets;
  }

 private:
  [[nodiscard]] bool grow(std::size_t count) {
    std::size_t needed = size_;
    if (!add_to(needed, count)) return false;
    std::size_t capacity = capacity_ < 32 ? 64 : capacity_;
    if (capacity_ >= 32 && !multiply_by<std::size_t>(capacity, 2)) return false;
    if (capacity < needed) capacity = needed;
    auto *octets = util::allocate_array<std::uint8_t>(capacity);
    if (octets == nullptr) return false;
    if (size_ > 0) std::memcpy(octets, octets_, size_);
    quarn_free(octets_);
    octets_ = octets;
    capacity_ = capacity;
    return true;
  }

  std::uint8_t *octets_ = nullptr;
  std::size_t size_ = 0;
  std::size_t capacity_ = 0;
};

}  // namespace quarn::asn1

#endif
