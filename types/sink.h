// Where octets of content go while it is decoded: a buffer, a stream, or nowhere.
#ifndef QUARN_TYPES_SINK_H
#define QUARN_TYPES_SINK_H

#include <cstdint>

#include "core/buffer.h"
#include "core/reader.h"
#include "core/writer.h"

namespace quarn::asn1 {

class Sink {
 public:
  explicit Sink(Buffer &buffer) : buffer_(&buffer) {}
  // Null passes over them.
  explicit Sink(Writer *writer) : writer_(writer) {}

  // Moves exactly count octets from the Reader: from memory at once, else in pieces, so that memory
  // grows as they arrive. The unit records a lack of it.
  Status take(Reader &in, std::uint64_t count, const Unit &unit);

  // Octets that were to be moved.
  std::uint64_t count() const { return count_; }

 private:
  Status take_in_place(Reader &in, std::uint64_t count);
  Status take_through_piece(Reader &in, std::uint64_t count, const Unit &unit);

  Buffer *buffer_ = nullptr;
  Writer *writer_ = nullptr;
  std::uint64_t count_ = 0;
  Buffer piece_;
};

}  // namespace quarn::asn1

#endif
