// What the kinds of stream share, and how stream.cpp reaches each of them.
//
//      position 0        start                                    start + end
//      |                 |  octets[0]   octets[cursor]  octets[end] |
//      |- - - - - - - - -|==============#=============|- - - - - - - - - ->
//                                        read position
//
// Each stream has a window of octets in memory. That of a memory stream is the whole stream; that
// of another stream is what was read from its source and not yet wanted. So reading, skipping and
// seeking inside the window need not know the kind.
#ifndef QUARN_UTIL_STREAM_H
#define QUARN_UTIL_STREAM_H

#include <cstddef>
#include <cstdint>

#include "quarn_util.h"
#include "util/error.h"

struct quarn_stream {
  uint32_t kind;
  const uint8_t *octets;
  uint64_t start;
  uint64_t cursor;
  uint64_t end;
};

namespace quarn::util {

inline constexpr Unit kStreamUnit{"QUARN_Stream"};
inline constexpr uint64_t kUnknownLength = UINT64_MAX;

inline bool is_memory(const quarn_stream *s) {
  return s->kind == QUARN_STREAM_MEMORY;
}
inline uint64_t position_of(const quarn_stream *s) {
  return s->start + s->cursor;
}
inline uint64_t in_window(const quarn_stream *s) {
  return s->end - s->cursor;
}

// Memory streams (stream_memory.cpp).
bool is_growable(const quarn_stream *s);
int memory_append(quarn_stream *s, const void *octets, uint64_t count, quarn_err_ctx *ctx);
void memory_free(quarn_stream *s);

// Streams over functions, of the caller or of stream_file.cpp (stream_external.cpp).

// Reads and writes of a buffered stream go through a buffer, which is allocated with the first.
enum class Buffering { none, buffered };

// user is left alone on failure.
quarn_stream *external_new(uint32_t kind,
                           const quarn_stream_callbacks &callbacks,
                           void *user,
                           Buffering buffering,
                           quarn_err_ctx *ctx);
// At least one octet unless the stream is at its end, at most count.
int external_read(quarn_stream *s, void *out, uint64_t count, uint64_t *got, quarn_err_ctx *ctx);
int external_write(quarn_stream *s, const void *octets, uint64_t count, quarn_err_ctx *ctx);
uint64_t external_length(const quarn_stream *s);
// A source that does not move to the target is reported with this code.
int external_seek(quarn_stream *s, uint64_t target, int code, quarn_err_ctx *ctx);
int external_skip(quarn_stream *s, uint64_t count, quarn_err_ctx *ctx);
int external_at_end(quarn_stream *s);
int external_flush(quarn_stream *s, quarn_err_ctx *ctx);
bool external_writable(const quarn_stream *s);
void external_free(quarn_stream *s);

}  // namespace quarn::util

#endif
