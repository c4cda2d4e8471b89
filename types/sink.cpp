#include "types/sink.h"

#include <algorithm>

namespace quarn::asn1 {

namespace {

// Octets go from stream to stream in pieces of this size.
constexpr std::uint64_t kPiece = 8192;

}  // namespace

Status Sink::take(Reader &in, std::uint64_t count, const Unit &unit) {
  count_ += count;
  if (buffer_ == nullptr && writer_ == nullptr) return in.skip(count);
  while (count > 0) {
    const bool all_there = count <= in.left();
    const std::uint64_t step = all_there ? count : std::min(count, kPiece);
    Status status = Status::success();
    if (buffer_ != nullptr) {
      status = in.octets(*buffer_, step, unit);
    } else {
      status = in.in_memory() ? take_in_place(in, step) : take_through_piece(in, step, unit);
    }
    if (!status) return status;
    count -= step;
  }
  return Status::success();
}

Status Sink::take_in_place(Reader &in, std::uint64_t count) {
  if (count > in.left()) return in.short_read();
  const Status status = writer_->octets(in.next(), count);
  if (status) in.advance(count);
  return status;
}

Status Sink::take_through_piece(Reader &in, std::uint64_t count, const Unit &unit) {
  if (!piece_.reserve(count)) return unit.fail(in.ctx(), QUARN_ERROR_NO_MEMORY, in.offset());
  const Status status = in.octets(piece_.data(), count);
  return status ? writer_->octets(piece_.data(), count) : status;
}

}  // namespace quarn::asn1
