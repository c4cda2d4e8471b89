// The cursor through which everything is read.
//
// Over a memory stream a Reader walks the octets in place and puts the stream's position back when
// it is done or when somebody else is to use the stream; over any other stream it reads exactly the
// octets asked for. Components are decoded with the Reader of their container: to descend costs no
// stream and no copy. All code above octet() and octets() is the same for both.
#ifndef QUARN_CORE_READER_H
#define QUARN_CORE_READER_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/buffer.h"
#include "core/kept.h"
#include "core/status.h"

namespace quarn::asn1 {

struct Diversion;

class Reader {
 public:
  // A null stream gives a Reader on which is_null() is true and every read fails for the argument.
  Reader(quarn_stream *stream, quarn_err_ctx *ctx) : stream_(stream), ctx_(ctx) { borrow(); }
  // Reads octets that stay where they are while the Reader lives. depth: of what they are inside.
  Reader(const std::uint8_t *octets, std::size_t count, quarn_err_ctx *ctx, int depth = 0)
      : begin_(octets),
        next_(octets),
        end_(octets + count),
        ctx_(ctx),
        depth_(depth),
        in_memory_(true) {}
  // Reads again the octets that another Reader has just given out and that are kept: positions,
  // nesting and the path of a failure go on from there, and values may share the block.
  Reader(Reader &outer, const Kept &kept)
      : begin_(kept.octets),
        next_(kept.octets),
        end_(kept.octets + kept.count),
        ctx_(outer.ctx_),
        path_(&outer.path_),
        block_(kept.block),
        settled_(outer.count() - kept.count),
        depth_(outer.depth_),
        limit_(outer.limit_),
        in_memory_(true) {}
  Reader(const Reader &) = delete;
  Reader &operator=(const Reader &) = delete;
  ~Reader() { settle(); }

  bool is_null() const { return stream_ == nullptr && !in_memory_; }
  quarn_err_ctx *ctx() const { return ctx_; }

  // The block that all octets lie in, if it is one that values may share; else null.
  SharedOctets *block() const { return block_; }

  // Adds a step to the path of a failure.
  void step(const char *name) { path_.step(ctx_, name); }
  void step(std::int64_t index) { path_.step(ctx_, nullptr, index); }

  // Octets read since the Reader was made.
  std::uint64_t count() const { return settled_ + static_cast<std::uint64_t>(next_ - begin_); }
  std::int64_t offset() const { return static_cast<std::int64_t>(count()); }

  // Whether the octets are in memory, so that next() and left() tell what is still to come.
  bool in_memory() const { return in_memory_; }
  const std::uint8_t *next() const { return next_; }
  std::uint64_t left() const { return static_cast<std::uint64_t>(end_ - next_); }
  // Moves on over octets that next() showed; count is at most left().
  void advance(std::uint64_t count) { next_ += count; }

  Status octet(std::uint8_t &out) {
    if (next_ != end_) [[likely]] {
      out = *next_++;
      return Status::success();
    }
    return octets_slowly(&out, 1);
  }

  // Exactly count octets. When fewer are left, one record and failure, as for a stream.
  Status octets(std::uint8_t *out, std::uint64_t count) {
    if (count <= left()) [[likely]] {
      if (count > 0) std::memcpy(out, next_, count);
      next_ += count;
      return Status::success();
    }
    return octets_slowly(out, count);
  }

  // Appends exactly count octets to a buffer that grows as they arrive.
  Status octets(Buffer &out, std::uint64_t count, const Unit &unit);
  // Moves on over exactly count octets, without reading them where the stream can.
  Status skip(std::uint64_t count);

  // Fails as a read past the end does: with the record that the stream makes.
  Status short_read();
  // Whether a read failed because octets in memory came to their end.
  bool ran_out() const { return ran_out_; }

  // The content of the message that is read goes elsewhere than into its value; see
  // types/diversion.h. Taken by the first component that is content.
  void divert(Diversion &diversion) { diversion_ = &diversion; }
  Diversion *diversion() const { return diversion_; }
  Diversion *take_diversion() {
    Diversion *taken = diversion_;
    diversion_ = nullptr;
    return taken;
  }

  // The depth of values inside values that are being decoded; see Nesting.
  bool at_depth_limit() {
    if (limit_ == 0) limit_ = quarn_get_recursive_level();
    return depth_ >= limit_;
  }

  // Counts nesting from where another Reader is.
  void nest_in(const Reader &outer) {
    depth_ = outer.depth_;
    limit_ = outer.limit_;
  }

  // Gives the stream its position back, so that others can read on from it; resume() then goes on
  // from wherever the stream is.
  void settle();
  void resume() { borrow(); }
  quarn_stream *stream() const { return stream_; }

 private:
  friend class Nesting;
  friend class Capture;

  void borrow();
  std::uint64_t take_again(std::uint8_t *out, std::uint64_t count);
  Status octets_slowly(std::uint8_t *out, std::uint64_t count);

  const std::uint8_t *begin_ = nullptr;
  const std::uint8_t *next_ = nullptr;
  const std::uint8_t *end_ = nullptr;
  quarn_stream *stream_ = nullptr;
  quarn_err_ctx *ctx_;
  FailurePath path_;
  SharedOctets *block_ = nullptr;
  Diversion *diversion_ = nullptr;
  std::uint64_t settled_ = 0;
  Buffer captured_;
  Buffer given_back_;            // by a Capture; read before the stream goes on
  std::size_t taken_again_ = 0;  // of these
  int captures_ = 0;
  int depth_ = 0;
  int limit_ = 0;
  bool in_memory_ = false;
  bool ran_out_ = false;
};

// One level of values inside values, while it lives.
class Nesting {
 public:
  explicit Nesting(Reader &in) : in_(in) { in_.depth_++; }
  Nesting(const Nesting &) = delete;
  Nesting &operator=(const Nesting &) = delete;
  ~Nesting() { in_.depth_--; }

 private:
  Reader &in_;
};

// The octets that a Reader gives out while this lives: in memory a view, from other streams a copy
// made on the way. Captures nest.
class Capture {
 public:
  explicit Capture(Reader &in)
      : in_(in), start_(in.next_), offset_(in.captured_.size()), before_(in.count()) {
    in_.captures_++;
  }
  Capture(const Capture &) = delete;
  Capture &operator=(const Capture &) = delete;
  ~Capture() {
    if (--in_.captures_ == 0) in_.captured_.truncate(0);
  }

  // The octets read since the capture began; valid until the Reader reads on or is gone.
  const std::uint8_t *data() const {
    return in_.in_memory_ ? start_ : in_.captured_.data() + offset_;
  }
  std::size_t size() const { return static_cast<std::size_t>(in_.count() - before_); }

  // Has the Reader give them out again. False when memory is short; then they are lost.
  [[nodiscard]] bool give_back();

 private:
  Reader &in_;
  const std::uint8_t *start_;
  std::size_t offset_;
  std::uint64_t before_;
};

}  // namespace quarn::asn1

#endif
