// Octet by octet through headers, in runs through content. A handler takes at least one octet or
// leaves its state, so that the loop comes to an end; those that take nothing complete a level.
#include "stream/push.h"

#include <algorithm>
#include <limits>

#include "core/header.h"

namespace quarn::asn1 {

namespace {

constexpr std::uint64_t kNoEnd = std::numeric_limits<std::uint64_t>::max();
constexpr std::uint64_t kMostTagNumber = (std::uint64_t{1} << 56) - 1;
// A length beyond this has no room for another octet.
constexpr std::int64_t kMostLengthSoFar = (std::int64_t{1} << 55) - 1;

constexpr std::uint8_t kOctetString = 0x04;
constexpr std::uint8_t kConstructed = 0x20;

}  // namespace

void PushMachine::start(Accepts accepts, Level *levels, int deepest) {
  accepts_ = accepts;
  levels_ = levels;
  deepest_ = deepest;
  levels_[0] = {kNoEnd, kNoEnd, accepts == Accepts::any_element};
}

bool PushMachine::start_in_content(bool primitive, std::int64_t length) {
  if (!is_new() || length < kIndefinite || (primitive && length == kIndefinite)) return false;
  header_.primitive = primitive;
  return enter_content(length);
}

bool PushMachine::feed(Slice &slice, quarn_stream *out, bool header_only) {
  if (has_failed()) return false;
  while (slice.left > 0 && !is_complete() && !(header_only && !in_header())) {
    if (!step(slice, out)) {
      fail();
      return false;
    }
  }
  return true;
}

bool PushMachine::step(Slice &slice, quarn_stream *out) {
  switch (state_) {
    case State::tag:
      return take_tag(slice);
    case State::tag_number:
      return take_tag_number(slice);
    case State::length:
      return take_length(slice);
    case State::more_length:
      return take_more_length(slice);
    case State::end_of_contents:
      return take_end_of_contents(slice);
    case State::content:
      return take_content(slice, out);
    default:
      return false;
  }
}

// The position cannot wrap: that many octets never arrive.
inline void PushMachine::advance(Slice &slice, std::uint64_t count) {
  slice.next += count;
  slice.left -= count;
  position_ += count;
}

inline std::uint8_t PushMachine::octet(Slice &slice) {
  const std::uint8_t octet = *slice.next;
  advance(slice, 1);
  return octet;
}

bool PushMachine::take_tag(Slice &slice) {
  const Level &level = levels_[depth_];
  if (position_ >= level.limit) return false;
  const std::uint8_t first = octet(slice);
  header_ = {first & 0xC0u, (first & kConstructed) == 0, first & 0x1Fu, 0};
  if (first == 0 && level.until_eoc) {
    state_ = State::end_of_contents;
    return true;
  }
  if (accepts_ == Accepts::octet_strings) {
    state_ = State::length;
    return (first & ~kConstructed) == kOctetString;
  }
  state_ = State::length;
  if (header_.tag_number == 0x1F) {
    header_.tag_number = 0;
    state_ = State::tag_number;
  }
  return true;
}

// Against X.690, 8.1.2.4.2, bit 8 is set in the octet after the tag number, which is the first one
// of the length, and in none of the tag number itself. Callers rely on it.
bool PushMachine::take_tag_number(Slice &slice) {
  while (slice.left > 0) {
    if ((*slice.next & 0x80u) != 0) {
      state_ = State::length;
      return header_.tag_number >= 31;
    }
    header_.tag_number = header_.tag_number << 7 | octet(slice);
    if (header_.tag_number > kMostTagNumber) return false;
  }
  return true;
}

bool PushMachine::take_length(Slice &slice) {
  const std::uint8_t first = octet(slice);
  if (first == 0xFF) return false;
  if (first == 0x80) return !header_.primitive && enter_content(kIndefinite);
  if (first < 0x80) return enter_content(first);
  length_octets_ = first & 0x7F;
  state_ = State::more_length;
  return true;
}

bool PushMachine::take_more_length(Slice &slice) {
  while (slice.left > 0 && length_octets_ > 0) {
    if (header_.length > kMostLengthSoFar) return false;
    header_.length = header_.length << 8 | octet(slice);
    length_octets_--;
  }
  return length_octets_ > 0 || enter_content(header_.length);
}

bool PushMachine::take_end_of_contents(Slice &slice) {
  if (position_ >= levels_[depth_].limit || octet(slice) != 0) return false;
  end_level();
  return true;
}

bool PushMachine::take_content(Slice &slice, quarn_stream *out) {
  if (remaining_ == 0) {
    end_level();
    return true;
  }
  const std::uint64_t count = std::min(remaining_, slice.left);
  if (count > levels_[depth_].limit - position_) return false;
  if (accepts_ == Accepts::octet_strings &&
      quarn_stream_writen(out, slice.next, static_cast<std::int64_t>(count), nullptr) != 1) {
    return false;
  }
  advance(slice, count);
  remaining_ -= count;
  if (remaining_ == 0) end_item();
  return true;
}

// The header is complete. What it claims must fit into the level, and what comes into all levels
// around: within indefinite length an item may end early after all. Empty content waits for an
// octet behind it.
bool PushMachine::enter_content(std::int64_t length) {
  const Level level = levels_[depth_];
  if (position_ > level.limit || (!header_.primitive && depth_ == deepest_)) return false;
  const bool until_eoc = length == kIndefinite;
  const std::uint64_t count = until_eoc ? 0 : static_cast<std::uint64_t>(length);
  if (count > level.end - position_) return false;
  header_.length = length;
  remaining_ = count;
  state_ = State::content;
  if (!header_.primitive && length != 0) {
    const std::uint64_t end = until_eoc ? kNoEnd : position_ + count;
    levels_[++depth_] = {end, std::min(end, level.limit), until_eoc};
    state_ = State::tag;
  }
  return true;
}

void PushMachine::end_item() {
  while (depth_ > 0 && position_ == levels_[depth_].end) depth_--;
  state_ = depth_ == 0 ? State::end : State::tag;
}

// The level is complete, and with it the item that it is the content of.
void PushMachine::end_level() {
  if (depth_ > 0) depth_--;
  end_item();
}

}  // namespace quarn::asn1
