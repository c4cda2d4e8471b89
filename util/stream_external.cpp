// Streams over functions: read, write, length, seek and close, of the caller or of stream_file.cpp.
//
// The source always stands behind the window, at start + end. A buffered stream reads its source in
// pieces of kBufferSize and writes it likewise; it does one of the two, so both use one buffer. An
// unbuffered stream has a window of one octet, filled only when nothing but reading can tell
// whether the end is reached.
#include <algorithm>
#include <cstring>
#include <limits>

#include "util/memory.h"
#include "util/stream.h"

namespace {

using quarn::util::in_window;
using quarn::util::kStreamUnit;
using quarn::util::kUnknownLength;
using quarn::util::position_of;

constexpr uint64_t kBufferSize = 65536;
// Positions stay where offsets and counts of the interface can say them.
constexpr uint64_t kMostPosition = std::numeric_limits<int64_t>::max();

struct ExternalStream : quarn_stream {
  quarn_stream_callbacks call;
  void *user;
  bool buffered;
  bool write_failed;  // buffered octets were lost: nothing that follows may succeed
  uint8_t *buffer;
  uint64_t pending;  // octets of the buffer that wait to be written
  uint8_t octet;     // the window of an unbuffered stream
};

ExternalStream *external(quarn_stream *s) {
  return static_cast<ExternalStream *>(s);
}

int fail_at(const quarn_stream *s, int code, quarn_err_ctx *ctx) {
  return kStreamUnit.fail(ctx, code, static_cast<int64_t>(position_of(s)));
}

int ensure_buffer(ExternalStream *s, quarn_err_ctx *ctx) {
  if (s->buffer != nullptr) return 1;
  s->buffer = s->buffered ? quarn::util::allocate_array<uint8_t>(kBufferSize) : &s->octet;
  return s->buffer != nullptr ? 1 : kStreamUnit.fail(ctx, QUARN_ERROR_NO_MEMORY);
}

// Empties the window and puts it where the source stands.
void move_window(ExternalStream *s, uint64_t position) {
  s->start = position;
  s->cursor = s->end = 0;
}

// One read of the source, which stands at the read position; got is 0 at its end.
int pull(ExternalStream *s, void *out, uint64_t count, uint64_t *got, quarn_err_ctx *ctx) {
  const uint64_t left = kMostPosition - std::min(position_of(s), kMostPosition);
  const auto asked = static_cast<int64_t>(std::min(count, left));
  const int64_t result = s->call.read == nullptr ? -1 : s->call.read(s->user, out, asked);
  if (result < 0 || result > asked) return fail_at(s, QUARN_STREAM_ERROR_READ, ctx);
  *got = static_cast<uint64_t>(result);
  return 1;
}

// Fills the empty window by one read; it stays empty at the end.
int fill(ExternalStream *s, quarn_err_ctx *ctx) {
  if (!ensure_buffer(s, ctx)) return 0;
  move_window(s, position_of(s));
  s->octets = s->buffer;
  return pull(s, s->buffer, s->buffered ? kBufferSize : 1, &s->end, ctx);
}

int push(ExternalStream *s, const void *octets, uint64_t count, quarn_err_ctx *ctx) {
  if (s->call.write(s->user, octets, static_cast<int64_t>(count)) == 1) return 1;
  s->write_failed = s->buffered;
  return kStreamUnit.fail(ctx, QUARN_STREAM_ERROR_WRITE);
}

int push_pending(ExternalStream *s, quarn_err_ctx *ctx) {
  if (s->write_failed) return kStreamUnit.fail(ctx, QUARN_STREAM_ERROR_WRITE);
  const uint64_t count = s->pending;
  s->pending = 0;
  return count == 0 ? 1 : push(s, s->buffer, count, ctx);
}

int skip_by_reading(ExternalStream *s, uint64_t count, quarn_err_ctx *ctx) {
  uint8_t piece[2048];
  while (count > in_window(s)) {
    count -= in_window(s);
    s->cursor = s->end;
    uint64_t got = 0;
    if (s->buffered) {
      if (!fill(s, ctx)) return 0;
      got = s->end;
    } else {
      if (!pull(s, piece, std::min<uint64_t>(count, sizeof piece), &got, ctx)) return 0;
      move_window(s, position_of(s) + got);
      count -= got;
    }
    if (got == 0) return fail_at(s, QUARN_STREAM_ERROR_END, ctx);
  }
  s->cursor += count;
  return 1;
}

// Without a length nothing but reading the last octet shows that it is there.
int skip_by_seeking(ExternalStream *s, uint64_t count, quarn_err_ctx *ctx) {
  const uint64_t position = position_of(s);
  const uint64_t length = quarn::util::external_length(s);
  if (count > kMostPosition - std::min(position, kMostPosition) ||
      count > length - std::min(position, length)) {
    return fail_at(s, QUARN_STREAM_ERROR_END, ctx);
  }
  const uint64_t by_seek = length == kUnknownLength ? count - 1 : count;
  if (by_seek > 0 &&
      !quarn::util::external_seek(s, position + by_seek, QUARN_STREAM_ERROR_SEEK, ctx)) {
    return 0;
  }
  return skip_by_reading(s, count - by_seek, ctx);
}

}  // namespace

namespace quarn::util {

quarn_stream *external_new(uint32_t kind,
                           const quarn_stream_callbacks &callbacks,
                           void *user,
                           Buffering buffering,
                           quarn_err_ctx *ctx) {
  auto *s = allocate<ExternalStream>();
  if (s == nullptr) {
    kStreamUnit.fail(ctx, QUARN_ERROR_NO_MEMORY);
    return nullptr;
  }
  s->kind = kind;
  s->call = callbacks;
  s->user = user;
  s->buffered = buffering == Buffering::buffered;
  return s;
}

int external_read(
    quarn_stream *stream, void *out, uint64_t count, uint64_t *got, quarn_err_ctx *ctx) {
  ExternalStream *s = external(stream);
  *got = 0;
  if (in_window(s) == 0 && (!s->buffered || count >= kBufferSize)) {
    if (!pull(s, out, count, got, ctx)) return 0;
    move_window(s, position_of(s) + *got);
    return 1;
  }
  if (in_window(s) == 0 && !fill(s, ctx)) return 0;
  *got = std::min(count, in_window(s));
  if (*got > 0) std::memcpy(out, s->octets + s->cursor, *got);
  s->cursor += *got;
  return 1;
}

int external_write(quarn_stream *stream, const void *octets, uint64_t count, quarn_err_ctx *ctx) {
  ExternalStream *s = external(stream);
  if (s->call.write == nullptr) return kStreamUnit.fail(ctx, QUARN_STREAM_ERROR_READONLY);
  if (!s->buffered) return push(s, octets, count, ctx);
  if (s->write_failed) return kStreamUnit.fail(ctx, QUARN_STREAM_ERROR_WRITE);
  if (!ensure_buffer(s, ctx)) return 0;
  if (count > kBufferSize - s->pending && !push_pending(s, ctx)) return 0;
  if (count >= kBufferSize) return push(s, octets, count, ctx);
  std::memcpy(s->buffer + s->pending, octets, count);
  s->pending += count;
  return 1;
}

uint64_t external_length(const quarn_stream *stream) {
  const auto *s = static_cast<const ExternalStream *>(stream);
  const int64_t length = s->call.length == nullptr ? -1 : s->call.length(s->user);
  return length < 0 ? kUnknownLength : static_cast<uint64_t>(length) + s->pending;
}

int external_seek(quarn_stream *stream, uint64_t target, int code, quarn_err_ctx *ctx) {
  ExternalStream *s = external(stream);
  if (s->call.seek == nullptr) return kStreamUnit.fail(ctx, code);
  const uint64_t length = external_length(s);
  if (target > std::min(length, kMostPosition)) {
    return kStreamUnit.fail(ctx, QUARN_STREAM_ERROR_POSITION);
  }
  if (s->buffered && target >= s->start && target - s->start <= s->end) {
    s->cursor = target - s->start;
    return 1;
  }
  if (s->call.seek(s->user, target) != 1) return kStreamUnit.fail(ctx, code);
  move_window(s, target);
  return 1;
}

int external_skip(quarn_stream *stream, uint64_t count, quarn_err_ctx *ctx) {
  ExternalStream *s = external(stream);
  const bool near = s->buffered && count < kBufferSize;
  if (s->call.seek == nullptr || near) return skip_by_reading(s, count, ctx);
  return skip_by_seeking(s, count, ctx);
}

// A file may grow or shrink, so that its length is no better than trying.
int external_at_end(quarn_stream *stream) {
  ExternalStream *s = external(stream);
  const uint64_t length = s->buffered ? kUnknownLength : external_length(s);
  if (length != kUnknownLength) return position_of(s) >= length ? 1 : 0;
  return fill(s, nullptr) && in_window(s) == 0 ? 1 : 0;
}

int external_flush(quarn_stream *stream, quarn_err_ctx *ctx) {
  return push_pending(external(stream), ctx);
}

bool external_writable(const quarn_stream *stream) {
  return static_cast<const ExternalStream *>(stream)->call.write != nullptr;
}

void external_free(quarn_stream *stream) {
  ExternalStream *s = external(stream);
  push_pending(s, nullptr);
  if (s->call.close != nullptr) s->call.close(s->user);
  if (s->buffered) quarn_free(s->buffer);
  quarn_free(s);
}

}  // namespace quarn::util

quarn_stream *quarn_stream_new_callback(const quarn_stream_callbacks *callbacks,
                                        void *user,
                                        quarn_err_ctx *ctx) {
  if (callbacks == nullptr) {
    kStreamUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
    return nullptr;
  }
  return quarn::util::external_new(QUARN_STREAM_CALLBACK, *callbacks, user,
                                   quarn::util::Buffering::none, ctx);
}
