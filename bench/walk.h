// The walk that the library itself would make, with what callers do not see: in a shared object of
// its own, because the rest of the benchmark uses the libraries as they are installed.
#ifndef QUARN_BENCH_WALK_H
#define QUARN_BENCH_WALK_H

#include <cstddef>
#include <cstdint>

namespace bench {

// What a walk sums up, so that no header can be skipped or half read.
struct Seen {
  std::uint64_t elements = 0;
  std::uint64_t sum = 0;  // of tag numbers and content lengths

  void add(std::uint64_t number, std::uint64_t length) {
    elements++;
    sum += number + length;
  }
  std::uint64_t result() const { return elements << 32 | sum; }
};

// Walks the elements of all octets, on into constructed ones and over the content of primitive
// ones.
__attribute__((visibility("default"))) Seen walk_inside(const std::uint8_t *octets,
                                                        std::size_t count,
                                                        Seen seen);

}  // namespace bench

#endif
