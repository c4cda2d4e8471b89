// What the fuzz targets share: owners of C objects, and a check that stops the fuzzer.
#ifndef QUARN_FUZZ_FUZZ_H
#define QUARN_FUZZ_FUZZ_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "cli/handles.h"
#include "quarn_asn1.h"

namespace quarn::fuzz {

// The law does not hold: let the fuzzer keep the input.
inline void must(bool holds) {
  if (!holds) std::abort();
}

using cli::Blob;
using cli::Json;
using cli::Stream;
using Context = cli::Records;
template <typename T>
using Buffer = std::unique_ptr<T, cli::FreedBy<quarn_free>>;

// A copy exactly as large as its content, so that the sanitizer sees reads past the end.
class Exact {
 public:
  Exact(const std::uint8_t *data, std::size_t size) : octets_(new std::uint8_t[size]), size_(size) {
    if (size > 0) std::memcpy(octets_.get(), data, size);
  }
  const std::uint8_t *data() const { return octets_.get(); }
  std::int64_t size() const { return static_cast<std::int64_t>(size_); }

 private:
  std::unique_ptr<std::uint8_t[]> octets_;
  std::size_t size_;
};

struct Octets {
  const std::uint8_t *data = nullptr;
  std::uint64_t count = 0;
};

// Lent by a memory stream.
inline Octets held_by(const Stream &stream) {
  Octets held;
  must(quarn_memstream_peek(stream.get(), &held.data, &held.count) == 1);
  return held;
}

inline bool same(const Octets &a, const Octets &b) {
  return a.count == b.count && std::equal(a.data, a.data + a.count, b.data);
}

inline bool equal(const quarn_data_blob &blob, const std::uint8_t *octets, std::int64_t count) {
  return blob.length == count &&
         (count == 0 || std::memcmp(blob.data, octets, static_cast<std::size_t>(count)) == 0);
}

// JSON text of a value; null when it cannot be printed.
inline Buffer<char> text_of(const quarn_json *json, std::size_t *length) {
  char *text = nullptr;
  must(quarn_json_print(json, 0, &text, length) == 1);
  return Buffer<char>(text);
}

}  // namespace quarn::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

#endif
