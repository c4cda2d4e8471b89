// A growable memory stream for encodings that are needed only for a moment.
#ifndef QUARN_TYPES_SCRATCH_H
#define QUARN_TYPES_SCRATCH_H

#include <cstdint>

#include "quarn_util.h"

namespace quarn::asn1 {

class Scratch {
 public:
  // Short of memory, stream() is null, which the context was told.
  explicit Scratch(quarn_err_ctx *ctx) : stream_(quarn_stream_new_mem(0, ctx)) {}
  Scratch(const Scratch &) = delete;
  Scratch &operator=(const Scratch &) = delete;
  ~Scratch() { quarn_stream_free(stream_); }

  quarn_stream *stream() const { return stream_; }

  // What has been written; a Writer must have settled. Valid until more is.
  const std::uint8_t *data() const {
    const std::uint8_t *octets = nullptr;
    static_cast<void>(quarn_memstream_peek(stream_, &octets, nullptr));
    return octets;
  }
  std::uint64_t size() const {
    const std::uint8_t *octets = nullptr;
    std::uint64_t count = 0;
    static_cast<void>(quarn_memstream_peek(stream_, &octets, &count));
    return count;
  }

 private:
  quarn_stream *stream_;
};

}  // namespace quarn::asn1

#endif
