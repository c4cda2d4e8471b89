// Octets written from the end forwards.
//
// The length of an element is known when its content has been written. So content goes first, from
// its last octet to its first, then length and identifier in front of it: each octet is written
// once, whatever the nesting.
//
//     block   [ free room          | 30 05 | 02 01 07 | 05 00 ]
//                          written last                written first
//
// Sorting a SET moves the encodings of its elements. They are not copied: what is written is a
// chain of pieces of the block, and sorting links them in another order. Without sorting there is
// one piece.
#ifndef QUARN_JSON_BACK_WRITER_H
#define QUARN_JSON_BACK_WRITER_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/buffer.h"
#include "core/reader.h"
#include "json/stack.h"

namespace quarn::asn1::json {

class BackWriter {
 public:
  static constexpr std::size_t kNone = SIZE_MAX;

  // A part of what was written that has been taken out, as a chain of pieces.
  struct Run {
    std::size_t first;
    std::size_t last;
    bool empty() const { return first == kNone; }
  };

  // Where the writer stood.
  struct Mark {
    std::size_t written;
    std::size_t cut;
    std::size_t rest;
    std::size_t last;
    std::size_t pieces;
  };

  // One stretch of contiguous octets.
  struct Slice {
    const std::uint8_t *octets;
    std::size_t count;
  };

  BackWriter() = default;
  BackWriter(const BackWriter &) = delete;
  BackWriter &operator=(const BackWriter &) = delete;
  ~BackWriter() { quarn_free(block_); }

  // Octets written.
  std::size_t size() const { return written_; }

  // Room for count more octets in front, which count as written; null when memory is short. Stays
  // in place until the next call.
  [[nodiscard]] std::uint8_t *extend(std::size_t count) {
    if ((block_ == nullptr || count > capacity_ - written_) && !grow(count)) return nullptr;
    written_ += count;
    return block_ + (capacity_ - written_);
  }
  [[nodiscard]] bool write(const void *octets, std::size_t count) {
    std::uint8_t *room = extend(count);
    if (room == nullptr) return false;
    if (count > 0) std::memcpy(room, octets, count);
    return true;
  }
  [[nodiscard]] bool write(std::uint8_t octet) { return write(&octet, 1); }
  // An empty buffer for what has to be made before it can be written; kept from one use to the
  // next.
  Buffer &scratch() {
    scratch_.truncate(0);
    return scratch_;
  }
  // Takes back the count octets written last, by one call of extend().
  void drop(std::size_t count) { written_ -= count; }

  [[nodiscard]] bool write_identifier(std::uint32_t tag_class,
                                      bool primitive,
                                      std::uint64_t number);
  [[nodiscard]] bool write_length(std::uint64_t length);

  // Takes back everything written since the mark.
  Mark mark() const { return {written_, cut_, rest_, last_, pieces_.size()}; }
  void rewind(const Mark &mark);

  // Sets apart what was written so far: runs taken from now on hold only what follows. put_back()
  // of them in reverse order, after resume(), makes one encoding of it all.
  [[nodiscard]] bool set_apart(Mark &apart);
  void resume(const Mark &apart);
  // Takes out what was written since set_apart() or the last take(). It may be empty.
  [[nodiscard]] bool take(Run &run);
  // Puts a run that is not empty in front of what is written.
  void put_back(const Run &run);

  // The pieces of a run in order: slice(run.first), then next_piece() until kNone.
  Slice slice(std::size_t piece) const {
    return {block_ + (capacity_ - pieces_[piece].end), pieces_[piece].end - pieces_[piece].begin};
  }
  std::size_t next_piece(std::size_t piece) const { return pieces_[piece].next; }

  // Calls visit(Slice) for each piece of the encoding in order, as long as it returns true.
  template <typename Visit>
  bool each_piece(Visit visit) const {
    if (written_ != cut_ && !visit(Slice{block_ + (capacity_ - written_), written_ - cut_})) {
      return false;
    }
    for (std::size_t piece = rest_; piece != kNone; piece = next_piece(piece)) {
      if (!visit(slice(piece))) return false;
    }
    return true;
  }

 private:
  // Positions count octets from the end of the block, so that they hold when it grows.
  struct Piece {
    std::size_t begin;
    std::size_t end;
    std::size_t next;
  };

  [[nodiscard]] bool grow(std::size_t count);
  // Ends the piece that is being written.
  [[nodiscard]] bool cut();

  Buffer scratch_;
  std::uint8_t *block_ = nullptr;
  std::size_t capacity_ = 0;
  std::size_t written_ = 0;
  std::size_t cut_ = 0;       // where the piece that is being written begins
  std::size_t rest_ = kNone;  // the pieces behind it: first
  std::size_t last_ = kNone;  // and last
  Stack<Piece> pieces_;
};

}  // namespace quarn::asn1::json

#endif
