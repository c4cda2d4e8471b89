// Bit sets: octets with an explicit count of bits.
//
// The octets that a set is made from stand behind its head, in the same block; a set that outgrows
// them gets a block of its own.
#include <algorithm>
#include <cstring>

#include "quarn_util.h"
#include "util/memory.h"

struct quarn_bitset {
  uint8_t *octets;  // what lies behind count is 0, but for the last octet after quarn_bitset_new()
  std::size_t capacity;  // octets there is room for
  int64_t count;         // bits

  uint8_t *own_block() { return reinterpret_cast<uint8_t *>(this + 1); }
  void release_octets() {
    if (octets != own_block()) quarn_free(octets);
  }
};

namespace {

std::size_t octets_for(int64_t bits) {
  return static_cast<std::size_t>(bits / 8) + (bits % 8 == 0 ? 0 : 1);
}

uint8_t mask(int64_t n) {
  return static_cast<uint8_t>(0x80 >> (n % 8));
}

// Makes room for wanted octets; at least doubling keeps setting bits one after the other linear.
int reserve(quarn_bitset *b, std::size_t wanted) {
  if (wanted <= b->capacity) return 1;
  const std::size_t capacity = std::max({wanted, b->capacity * 2, std::size_t{16}});
  auto *octets = quarn::util::allocate_array<uint8_t>(capacity);
  if (octets == nullptr) return 0;
  std::memcpy(octets, b->octets, octets_for(b->count));
  b->release_octets();
  b->octets = octets;
  b->capacity = capacity;
  return 1;
}

// Appends zero bits up to the new count.
int grow(quarn_bitset *b, int64_t count) {
  const std::size_t used = octets_for(b->count);
  const std::size_t wanted = octets_for(count);
  if (reserve(b, wanted) != 1) return 0;
  // The unused bits that a set was made with become bits that count now.
  if (b->count % 8 != 0) b->octets[used - 1] &= static_cast<uint8_t>(0xff00 >> (b->count % 8));
  std::memset(b->octets + used, 0, wanted - used);
  b->count = count;
  return 1;
}

}  // namespace

quarn_bitset *quarn_bitset_new(uint32_t unused_bits, const uint8_t *octets, int64_t length) {
  if (length < 0 || length > INT64_MAX / 8 || unused_bits > 7) return nullptr;
  if (length == 0 ? unused_bits > 0 : octets == nullptr) return nullptr;
  const auto size = static_cast<std::size_t>(length);
  auto *b = quarn::util::allocate<quarn_bitset>(size);
  if (b == nullptr) return nullptr;
  b->octets = b->own_block();
  b->capacity = size;
  b->count = length * 8 - unused_bits;
  if (size > 0) std::memcpy(b->octets, octets, size);
  return b;
}

quarn_bitset *quarn_bitset_empty(void) {
  return quarn_bitset_new(0, nullptr, 0);
}

int quarn_bitset_set(quarn_bitset *b, int64_t n) {
  if (b == nullptr || n < 0 || n == INT64_MAX) return 0;
  if (n >= b->count && grow(b, n + 1) != 1) return 0;
  b->octets[n / 8] |= mask(n);
  return 1;
}

int quarn_bitset_isset(const quarn_bitset *b, int64_t n) {
  if (b == nullptr || n < 0 || n >= b->count) return 0;
  return (b->octets[n / 8] & mask(n)) != 0 ? 1 : 0;
}

int64_t quarn_bitset_getcount(const quarn_bitset *b) {
  return b == nullptr ? 0 : b->count;
}

quarn_data_blob *quarn_bitset_getdata(const quarn_bitset *b, uint32_t *unused_bits) {
  if (b == nullptr) return nullptr;
  const std::size_t octets = octets_for(b->count);
  if (unused_bits != nullptr) *unused_bits = static_cast<uint32_t>(-b->count & 7);
  return quarn_data_blob_new(b->octets, static_cast<int64_t>(octets));
}

void quarn_bitset_free(quarn_bitset *b) {
  if (b == nullptr) return;
  b->release_octets();
  quarn_free(b);
}
