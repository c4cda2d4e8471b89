// Memory inside the support library: typed allocation through quarn_malloc() and owners of its
// results.
#ifndef QUARN_UTIL_MEMORY_H
#define QUARN_UTIL_MEMORY_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>

#include "quarn_util.h"

namespace quarn::util {

// Memory for a T followed by extra octets; null when it is short or the sum does not fit.
// The T is value-initialised, the extra octets are not.
template <typename T>
T *allocate(std::size_t extra = 0,
            const char *file = __builtin_FILE(),
            int line = __builtin_LINE()) {
  if (extra > SIZE_MAX - sizeof(T)) return nullptr;
  void *memory = quarn_malloc(sizeof(T) + extra, file, line);
  if (memory == nullptr) return nullptr;
  return new (memory) T{};
}

// Memory for count uninitialised elements of trivial type; null when it is short.
template <typename T>
T *allocate_array(std::size_t count,
                  const char *file = __builtin_FILE(),
                  int line = __builtin_LINE()) {
  if (count > SIZE_MAX / sizeof(T)) return nullptr;
  return static_cast<T *>(quarn_malloc(count * sizeof(T), file, line));
}

struct Release {
  void operator()(void *p) const { quarn_free(p); }
};

// Owns a block of quarn_malloc() whose content needs no destructor.
template <typename T>
using Block = std::unique_ptr<T, Release>;

}  // namespace quarn::util

#endif
