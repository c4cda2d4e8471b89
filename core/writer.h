// The builder through which everything is written.
//
// Into a growable memory stream a Writer puts octets in place and makes them part of the stream
// when it is done; any other stream receives each piece as it is written, so that a failing stream
// fails at the step that wrote to it. Into room of a known size it puts what fits and counts the
// rest: who made the room compares.
#ifndef QUARN_CORE_WRITER_H
#define QUARN_CORE_WRITER_H

#include <cstdint>
#include <cstring>
#include <span>

#include "core/status.h"

namespace quarn::asn1 {

class Writer {
 public:
  // A null stream gives a Writer on which is_null() is true and every write fails.
  Writer(quarn_stream *stream, quarn_err_ctx *ctx) : stream_(stream), ctx_(ctx) {}
  // On the way to another Writer, which gets the octets in the end.
  Writer(quarn_stream *stream, Writer &outer)
      : stream_(stream), ctx_(outer.ctx_), path_(&outer.path_) {}
  // Into room that stays where it is; perhaps on the way to another Writer.
  explicit Writer(std::span<std::uint8_t> room, Writer *outer = nullptr)
      : begin_(room.data()),
        next_(begin_),
        end_(begin_ + room.size()),
        stream_(nullptr),
        ctx_(outer == nullptr ? nullptr : outer->ctx_),
        path_(outer == nullptr ? nullptr : &outer->path_),
        in_room_(true) {}
  Writer(const Writer &) = delete;
  Writer &operator=(const Writer &) = delete;
  ~Writer() { settle(); }

  bool is_null() const { return stream_ == nullptr && !in_room_; }
  quarn_err_ctx *ctx() const { return ctx_; }

  // Adds a step to the path of a failure.
  void step(const char *name) { path_.step(ctx_, name); }
  void step(std::int64_t index) { path_.step(ctx_, nullptr, index); }

  // Octets written since the Writer was made.
  std::uint64_t count() const { return settled_ + static_cast<std::uint64_t>(next_ - begin_); }
  std::int64_t offset() const { return static_cast<std::int64_t>(count()); }

  Status octets(const void *octets, std::uint64_t count) {
    if (count <= room()) [[likely]] {
      if (count > 0) std::memcpy(next_, octets, count);
      next_ += count;
      return Status::success();
    }
    return octets_slowly(octets, count);
  }

  // Octets that can be put in place, and putting one of them.
  std::uint64_t room() const { return static_cast<std::uint64_t>(end_ - next_); }
  void put(std::uint8_t octet) { *next_++ = octet; }
  // Where the next octet will be put.
  const std::uint8_t *next() const { return next_; }

  // Copies the next count octets of a stream. Fewer, or an unreadable stream, is failure; what did
  // arrive has been written. copied receives how many that were.
  Status from_stream(quarn_stream *source, std::uint64_t count, std::uint64_t &copied);

  // Makes what was written part of the stream, so that others can write on.
  void settle();
  // Null for room.
  quarn_stream *stream() const { return stream_; }

 private:
  Status octets_slowly(const void *octets, std::uint64_t count);

  std::uint8_t *begin_ = nullptr;
  std::uint8_t *next_ = nullptr;
  std::uint8_t *end_ = nullptr;
  quarn_stream *stream_;
  quarn_err_ctx *ctx_;
  FailurePath path_;
  std::uint64_t settled_ = 0;
  bool in_room_ = false;
};

}  // namespace quarn::asn1

#endif
