// The one place that gets memory from the system, and blobs.
#include "util/memory.h"

#include <cstdlib>
#include <cstring>

namespace {

// Written by quarn_mem_set_functions() only, which runs before anything else uses the libraries.
void *(*allocate_function)(std::size_t) = nullptr;
void (*release_function)(void *) = nullptr;

}  // namespace

void quarn_mem_set_functions(void *(*allocate)(size_t), void (*release)(void *)) {
  const bool both = allocate != nullptr && release != nullptr;
  allocate_function = both ? allocate : nullptr;
  release_function = both ? release : nullptr;
}

void *quarn_malloc(size_t size, const char * /*file*/, int /*line*/) {
  if (size > PTRDIFF_MAX) return nullptr;  // no object is that large; some allocators abort
  if (size == 0) size = 1;
  if (allocate_function != nullptr) return allocate_function(size);
  return std::malloc(size);
}

void quarn_free(void *p) {
  if (p == nullptr) return;
  if (release_function != nullptr) {
    release_function(p);
  } else {
    std::free(p);
  }
}

// A copying blob and its octets are one block; the octets of an adopting blob are told from those
// by their address.
quarn_data_blob *quarn_data_blob_new(const uint8_t *octets, int64_t count) {
  if (count < 0 || (octets == nullptr && count > 0)) return nullptr;
  auto *blob = quarn::util::allocate<quarn_data_blob>(static_cast<std::size_t>(count));
  if (blob == nullptr) return nullptr;
  if (count > 0) {
    blob->data = reinterpret_cast<uint8_t *>(blob + 1);
    std::memcpy(blob->data, octets, static_cast<std::size_t>(count));
  }
  blob->length = count;
  return blob;
}

quarn_data_blob *quarn_data_blob_adopt(uint8_t *octets, int64_t count) {
  if (count < 0 || (octets == nullptr && count > 0)) return nullptr;
  auto *blob = quarn::util::allocate<quarn_data_blob>();
  if (blob == nullptr) return nullptr;
  blob->data = octets;
  blob->length = count;
  return blob;
}

void quarn_data_blob_free(quarn_data_blob *blob) {
  if (blob == nullptr) return;
  if (blob->data != reinterpret_cast<uint8_t *>(blob + 1)) quarn_free(blob->data);
  quarn_free(blob);
}
