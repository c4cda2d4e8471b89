// The functions that work on every kind of stream.
#include "util/stream.h"

#include <algorithm>
#include <cstring>

namespace {

using quarn::util::in_window;
using quarn::util::is_memory;
using quarn::util::kStreamUnit;
using quarn::util::position_of;

int fail_at_end(const quarn_stream *s, quarn_err_ctx *ctx) {
  return kStreamUnit.fail(ctx, QUARN_STREAM_ERROR_END, static_cast<int64_t>(position_of(s)));
}

// Whether a buffer of the caller can be used for count octets; a record if not.
bool usable(const quarn_stream *s, const void *buffer, int64_t count, quarn_err_ctx *ctx) {
  if (count < 0) return kStreamUnit.fail(ctx, QUARN_ERROR_RANGE) == 1;
  if (s != nullptr && (buffer != nullptr || count == 0)) return true;
  return kStreamUnit.fail(ctx, QUARN_ERROR_ARGUMENT) == 1;
}

void take(quarn_stream *s, void *buffer, uint64_t count) {
  std::memcpy(buffer, s->octets + s->cursor, count);
  s->cursor += count;
}

int read_pieces(quarn_stream *s, uint8_t *buffer, uint64_t count, quarn_err_ctx *ctx) {
  while (count > 0) {
    uint64_t got = 0;
    if (!quarn::util::external_read(s, buffer, count, &got, ctx)) return 0;
    if (got == 0) return fail_at_end(s, ctx);
    buffer += got;
    count -= got;
  }
  return 1;
}

int write_octets(quarn_stream *s, const void *octets, uint64_t count, quarn_err_ctx *ctx) {
  if (count == 0) return 1;
  if (is_memory(s)) return quarn::util::memory_append(s, octets, count, ctx);
  return quarn::util::external_write(s, octets, count, ctx);
}

int seek(quarn_stream *s, uint64_t target, int code, quarn_err_ctx *ctx) {
  if (!is_memory(s)) return quarn::util::external_seek(s, target, code, ctx);
  if (target > s->end) return kStreamUnit.fail(ctx, QUARN_STREAM_ERROR_POSITION);
  s->cursor = target;
  return 1;
}

// What is there when the call begins is copied, also when source and destination are one.
int copy_from_memory(quarn_stream *destination,
                     quarn_stream *source,
                     quarn_err_ctx *ctx,
                     uint64_t *copied) {
  const uint64_t count = in_window(source);
  if (count == 0) return 1;
  if (!write_octets(destination, source->octets + source->cursor, count, ctx)) return 0;
  source->cursor += count;
  *copied = count;
  return 1;
}

int copy_to_memory(quarn_stream *destination,
                   quarn_stream *source,
                   quarn_err_ctx *ctx,
                   uint64_t *copied) {
  constexpr uint64_t kPiece = 8192;
  for (;;) {
    uint8_t *room = nullptr;
    uint64_t size = 0;
    uint64_t got = 0;
    if (!quarn_memstream_reserve(destination, 0, &room, &size, ctx)) return 0;
    if (size == 0 && !quarn_memstream_reserve(destination, kPiece, &room, &size, ctx)) return 0;
    if (!quarn::util::external_read(source, room, size, &got, ctx)) return 0;
    if (got == 0) return 1;
    quarn_memstream_commit(destination, got);
    *copied += got;
  }
}

int copy_in_pieces(quarn_stream *destination,
                   quarn_stream *source,
                   quarn_err_ctx *ctx,
                   uint64_t *copied) {
  uint8_t piece[2048];
  for (;;) {
    uint64_t got = 0;
    if (!quarn::util::external_read(source, piece, sizeof piece, &got, ctx)) return 0;
    if (got == 0) return 1;
    if (!write_octets(destination, piece, got, ctx)) return 0;
    *copied += got;
  }
}

bool writable(const quarn_stream *s) {
  return is_memory(s) ? quarn::util::is_growable(s) : quarn::util::external_writable(s);
}

int at_end(quarn_stream *s) {
  if (in_window(s) > 0) return 0;
  return is_memory(s) ? 1 : quarn::util::external_at_end(s);
}

}  // namespace

void quarn_stream_free(quarn_stream *s) {
  if (s == nullptr) return;
  if (is_memory(s)) {
    quarn::util::memory_free(s);
  } else {
    quarn::util::external_free(s);
  }
}

int quarn_stream_readn(quarn_stream *s, void *buffer, int64_t count, quarn_err_ctx *ctx) {
  if (!usable(s, buffer, count, ctx)) return 0;
  if (count == 0) return 1;
  const auto wanted = static_cast<uint64_t>(count);
  if (wanted <= in_window(s)) {
    take(s, buffer, wanted);
    return 1;
  }
  if (is_memory(s)) return fail_at_end(s, ctx);
  return read_pieces(s, static_cast<uint8_t *>(buffer), wanted, ctx);
}

int quarn_stream_read(
    quarn_stream *s, void *buffer, int64_t count, uint64_t *count_read, quarn_err_ctx *ctx) {
  if (count_read != nullptr) *count_read = 0;
  if (!usable(s, buffer, count, ctx)) return 0;
  if (count == 0) return 1;
  uint64_t got = std::min(static_cast<uint64_t>(count), in_window(s));
  if (got > 0) {
    take(s, buffer, got);
  } else if (!is_memory(s)) {
    if (!quarn::util::external_read(s, buffer, static_cast<uint64_t>(count), &got, ctx)) return 0;
  }
  if (count_read != nullptr) *count_read = got;
  return 1;
}

int quarn_stream_writen(quarn_stream *s, const void *buffer, int64_t count, quarn_err_ctx *ctx) {
  if (!usable(s, buffer, count, ctx)) return 0;
  return write_octets(s, buffer, static_cast<uint64_t>(count), ctx);
}

int quarn_stream_writefromstream(quarn_stream *destination,
                                 quarn_stream *source,
                                 quarn_err_ctx *ctx,
                                 uint64_t *copied) {
  uint64_t count = 0;
  if (copied == nullptr) copied = &count;
  *copied = 0;
  if (destination == nullptr || source == nullptr) {
    return kStreamUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
  }
  if (!writable(destination)) return kStreamUnit.fail(ctx, QUARN_STREAM_ERROR_READONLY);
  if (is_memory(source)) return copy_from_memory(destination, source, ctx, copied);
  if (is_memory(destination)) return copy_to_memory(destination, source, ctx, copied);
  // What is written could be read again, without end.
  if (source == destination) return kStreamUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
  return copy_in_pieces(destination, source, ctx, copied);
}

int quarn_stream_ctrl(quarn_stream *s, int operation, void *argument, quarn_err_ctx *ctx) {
  if (s == nullptr) return kStreamUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
  auto *number = static_cast<uint64_t *>(argument);
  const bool needs_number = operation == QUARN_STREAM_LENGTH || operation == QUARN_STREAM_SEEK;
  if (needs_number && number == nullptr) return kStreamUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
  switch (operation) {
    case QUARN_STREAM_REWIND:
      return seek(s, 0, QUARN_STREAM_ERROR_REWIND, ctx);
    case QUARN_STREAM_LENGTH:
      *number = is_memory(s) ? s->end : quarn::util::external_length(s);
      return 1;
    case QUARN_STREAM_SEEK:
      return seek(s, *number, QUARN_STREAM_ERROR_SEEK, ctx);
    case QUARN_STREAM_ATEND:
      return at_end(s);
    default:
      return kStreamUnit.fail(ctx, QUARN_STREAM_ERROR_OPERATION);
  }
}

uint32_t quarn_stream_gettype(const quarn_stream *s) {
  return s == nullptr ? 0 : s->kind;
}

uint64_t quarn_stream_position(const quarn_stream *s) {
  return s == nullptr ? 0 : position_of(s);
}

int quarn_stream_skip(quarn_stream *s, uint64_t count, quarn_err_ctx *ctx) {
  if (s == nullptr) return kStreamUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
  if (count <= in_window(s)) {
    s->cursor += count;
    return 1;
  }
  if (is_memory(s)) return fail_at_end(s, ctx);
  return quarn::util::external_skip(s, count, ctx);
}

int quarn_stream_flush(quarn_stream *s, quarn_err_ctx *ctx) {
  if (s == nullptr) return kStreamUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
  return is_memory(s) ? 1 : quarn::util::external_flush(s, ctx);
}
