#include "json/back_writer.h"

#include <bit>

namespace quarn::asn1::json {

namespace {

// Room to begin with: most certificates need it twice. Somewhat less than a power of two, beyond
// which common allocators are slower.
constexpr std::size_t kFirstCapacity = 1000;

}  // namespace

bool BackWriter::grow(std::size_t count) {
  std::size_t needed = written_;
  if (!add_to(needed, count)) return false;
  std::size_t capacity = capacity_ == 0 ? kFirstCapacity / 2 : capacity_;
  if (!multiply_by<std::size_t>(capacity, 2)) return false;
  if (capacity < needed) capacity = needed;
  auto *block = util::allocate_array<std::uint8_t>(capacity);
  if (block == nullptr) return false;
  if (block_ != nullptr) {
    std::memcpy(block + (capacity - written_), block_ + (capacity_ - written_), written_);
  }
  quarn_free(block_);
  block_ = block;
  capacity_ = capacity;
  return true;
}

bool BackWriter::write_identifier(std::uint32_t tag_class, bool primitive, std::uint64_t number) {
  const std::uint32_t leading = tag_class | (primitive ? 0u : 0x20u);
  if (number < 0x1F) return write(static_cast<std::uint8_t>(leading | number));
  std::uint8_t more = 0;
  for (; number != 0 || more == 0; number >>= 7) {
    if (!write(static_cast<std::uint8_t>(more | (number & 0x7Fu)))) return false;
    more = 0x80;
  }
  return write(static_cast<std::uint8_t>(leading | 0x1Fu));
}

bool BackWriter::write_length(std::uint64_t length) {
  if (length < 0x80) return write(static_cast<std::uint8_t>(length));
  std::uint8_t count = 0;
  for (; length != 0; length >>= 8) {
    if (!write(static_cast<std::uint8_t>(length))) return false;
    count++;
  }
  return write(static_cast<std::uint8_t>(0x80u | count));
}

void BackWriter::rewind(const Mark &mark) {
  written_ = mark.written;
  cut_ = mark.cut;
  rest_ = mark.rest;
  last_ = mark.last;
  pieces_.truncate(mark.pieces);
}

bool BackWriter::cut() {
  if (written_ == cut_) return true;
  const std::size_t piece = pieces_.size();
  if (!pieces_.push({cut_, written_, rest_})) return false;
  cut_ = written_;
  rest_ = piece;
  if (last_ == kNone) last_ = piece;
  return true;
}

bool BackWriter::set_apart(Mark &apart) {
  if (!cut()) return false;
  apart = mark();
  rest_ = last_ = kNone;
  return true;
}

void BackWriter::resume(const Mark &apart) {
  rest_ = apart.rest;
  last_ = apart.last;
}

bool BackWriter::take(Run &run) {
  if (!cut()) return false;
  run.first = rest_;
  run.last = last_;
  rest_ = last_ = kNone;
  return true;
}

void BackWriter::put_back(const Run &run) {
  pieces_[run.last].next = rest_;
  rest_ = run.first;
  if (last_ == kNone) last_ = run.last;
}

}  // namespace quarn::asn1::json
