// The malloc of the benchmark program. It takes the place of the system's for every library that is
// loaded, and counts while a count runs.
#include <malloc.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include "bench/bench.h"

extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
void *__libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void *block);
}

namespace {

bool counting = false;
std::int64_t live = 0;
bench::Memory counted{};

void note_release(void *block) {
  if (counting && block != nullptr) live -= static_cast<std::int64_t>(malloc_usable_size(block));
}

void *noted(void *block, std::size_t size) {
  if (!counting || block == nullptr) return block;
  counted.allocations++;
  counted.octets += size;
  live += static_cast<std::int64_t>(malloc_usable_size(block));
  counted.peak = std::max(counted.peak, live);
  return block;
}

}  // namespace

extern "C" {

__attribute__((visibility("default"))) void *malloc(std::size_t size) {
  return noted(__libc_malloc(size), size);
}

__attribute__((visibility("default"))) void *calloc(std::size_t count, std::size_t size) {
  return noted(__libc_calloc(count, size), count * size);
}

// Counts as an allocation even where the block grows in place.
__attribute__((visibility("default"))) void *realloc(void *block, std::size_t size) {
  note_release(block);
  return noted(__libc_realloc(block, size), size);
}

__attribute__((visibility("default"))) void *aligned_alloc(std::size_t alignment,
                                                           std::size_t size) {
  return noted(__libc_memalign(alignment, size), size);
}

__attribute__((visibility("default"))) int posix_memalign(void **block,
                                                          std::size_t alignment,
                                                          std::size_t size) {
  *block = noted(__libc_memalign(alignment, size), size);
  return *block == nullptr ? ENOMEM : 0;
}

__attribute__((visibility("default"))) void free(void *block) {
  note_release(block);
  __libc_free(block);
}

}  // extern "C"

namespace bench {

void start_count() {
  live = 0;
  counted = {};
  counting = true;
}

Memory end_count() {
  counting = false;
  return counted;
}

}  // namespace bench
