#include "core/reader.h"

#include <algorithm>

namespace quarn::asn1 {

namespace {

// The unit whose name a short read from octets in memory carries: the same as from a stream.
constexpr Unit kStreamUnit{"QUARN_Stream"};
// Without a stream it is an identifier or a length that cannot be read.
constexpr Unit kHeaderUnit{"QUARN_ASN1_Lib"};

// From a stream that cannot say what it still holds, buffers grow by at most this much ahead.
constexpr std::uint64_t kStep = 8192;

// What is passed over but captured is read in pieces of this size.
constexpr std::uint64_t kSkipped = 2048;

// Lengths that no memory can hold are answered as lack of memory before anything is read.
constexpr std::uint64_t kAddressable = std::uint64_t{1} << 47;

}  // namespace

void Reader::borrow() {
  const std::uint8_t *octets = nullptr;
  std::uint64_t count = 0;
  if (stream_ == nullptr || quarn_memstream_peek(stream_, &octets, &count) != 1) return;
  in_memory_ = true;
  begin_ = next_ = octets;
  end_ = octets + count;
}

void Reader::settle() {
  if (stream_ == nullptr || !in_memory_ || next_ == begin_) return;
  const auto count = static_cast<std::uint64_t>(next_ - begin_);
  // Cannot fail: the octets were there to be read.
  static_cast<void>(quarn_stream_skip(stream_, count, nullptr));
  settled_ += count;
  begin_ = next_;
}

Status Reader::short_read() {
  ran_out_ = true;
  return kStreamUnit.fail(ctx_, QUARN_STREAM_ERROR_END, offset());
}

// From what was given back; how many octets that was.
std::uint64_t Reader::take_again(std::uint8_t *out, std::uint64_t count) {
  const std::uint64_t taken = std::min<std::uint64_t>(count, given_back_.size() - taken_again_);
  if (taken > 0) std::memcpy(out, given_back_.data() + taken_again_, taken);
  taken_again_ += taken;
  return taken;
}

bool Capture::give_back() {
  if (in_.in_memory_) {
    in_.next_ = start_;
    return true;
  }
  const std::size_t count = size();
  in_.settled_ -= count;
  // Octets that had been given back before are still there, unless the stream has gone on.
  const bool again = count <= in_.taken_again_;
  if (again) {
    in_.taken_again_ -= count;
  } else {
    in_.given_back_.truncate(0);
    in_.taken_again_ = 0;
  }
  const bool done = again || in_.given_back_.append(in_.captured_.data() + offset_, count);
  in_.captured_.truncate(offset_);
  return done;
}

Status Reader::octets_slowly(std::uint8_t *out, std::uint64_t count) {
  if (in_memory_) return short_read();
  if (stream_ == nullptr) return kHeaderUnit.fail(ctx_, QUARN_ERROR_ARGUMENT);
  const std::uint64_t again = take_again(out, count);
  if (again < count) {
    given_back_.truncate(0);
    taken_again_ = 0;
    const auto status = Status::from(
        quarn_stream_readn(stream_, out + again, static_cast<std::int64_t>(count - again), ctx_));
    if (!status) return status;
  }
  settled_ += count;
  if (captures_ > 0 && !captured_.append(out, count)) {
    return kStreamUnit.fail(ctx_, QUARN_ERROR_NO_MEMORY, offset());
  }
  return Status::success();
}

Status Reader::skip(std::uint64_t count) {
  if (in_memory_) {
    if (count > left()) return short_read();
    next_ += count;
    return Status::success();
  }
  if (captures_ == 0) {
    const auto status = Status::from(quarn_stream_skip(stream_, count, ctx_));
    if (status) settled_ += count;
    return status;
  }
  std::uint8_t piece[kSkipped];
  while (count > 0) {
    const std::uint64_t step = std::min(count, kSkipped);
    if (const Status status = octets_slowly(piece, step); !status) return status;
    count -= step;
  }
  return Status::success();
}

Status Reader::octets(Buffer &out, std::uint64_t count, const Unit &unit) {
  if (count > kAddressable) return unit.fail(ctx_, QUARN_ERROR_NO_MEMORY, offset());
  if (in_memory_ && count > left()) return short_read();
  while (count > 0) {
    const std::uint64_t step = in_memory_ ? count : std::min(count, kStep);
    if (!out.reserve(step)) return unit.fail(ctx_, QUARN_ERROR_NO_MEMORY, offset());
    if (const Status status = octets(out.data() + out.size(), step); !status) return status;
    out.extend(step);
    count -= step;
  }
  return Status::success();
}

}  // namespace quarn::asn1
