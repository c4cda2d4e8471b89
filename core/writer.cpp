#include "core/writer.h"

#include <algorithm>

namespace quarn::asn1 {

namespace {

// Content goes from stream to stream in pieces of this size.
constexpr std::uint64_t kPiece = 2048;

}  // namespace

void Writer::settle() {
  if (in_room_) return;
  if (next_ != begin_) {
    const auto count = static_cast<std::uint64_t>(next_ - begin_);
    // Cannot fail: the room was lent for at least these octets.
    static_cast<void>(quarn_memstream_commit(stream_, count));
    settled_ += count;
  }
  begin_ = next_ = end_ = nullptr;
}

Status Writer::octets_slowly(const void *octets, std::uint64_t count) {
  if (in_room_) {
    settled_ += count;
    return Status::success();
  }
  settle();
  std::uint8_t *room = nullptr;
  std::uint64_t size = 0;
  if (quarn_stream_gettype(stream_) == QUARN_STREAM_MEMORY &&
      quarn_memstream_reserve(stream_, count, &room, &size, nullptr) == 1) {
    begin_ = next_ = room;
    end_ = room + size;
    std::memcpy(next_, octets, count);
    next_ += count;
    return Status::success();
  }
  // Also a memory stream that is read-only or short of memory: it makes the record itself.
  const auto status =
      Status::from(quarn_stream_writen(stream_, octets, static_cast<std::int64_t>(count), ctx_));
  if (status) settled_ += count;
  return status;
}

Status Writer::from_stream(quarn_stream *source, std::uint64_t count, std::uint64_t &copied) {
  copied = 0;
  const std::uint8_t *octets_there = nullptr;
  std::uint64_t left = 0;
  if (quarn_memstream_peek(source, &octets_there, &left) == 1) {
    const std::uint64_t step = std::min(count, left);
    if (const Status status = octets(octets_there, step); !status) return status;
    copied = step;
    return Status::from(quarn_stream_skip(source, step, nullptr));
  }
  std::uint8_t piece[kPiece];
  while (copied < count) {
    std::uint64_t got = 0;
    const auto wanted = static_cast<std::int64_t>(std::min(count - copied, kPiece));
    const auto status = Status::from(quarn_stream_read(source, piece, wanted, &got, ctx_));
    if (!status) return status;
    if (got == 0) break;
    if (const Status written = octets(piece, got); !written) return written;
    copied += got;
  }
  return Status::success();
}

}  // namespace quarn::asn1
