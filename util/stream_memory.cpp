// Memory streams: growable, read-only, and read-only duplicates that share a buffer.
//
//      quarn_stream_new_mem          quarn_memstream_dup_readonly
//        octets  share                 octets  share
//          |       '-------------.  .----|-------'
//          |  .------------------|--|----'
//          v  v                  v  v
//      block: | octets ... (room) | owners |
//
// The count of owners stands behind the octets, so that the block itself can be handed out when the
// stream is detached. Octets once written never change: a duplicate keeps its own end, and the one
// stream that may write appends behind it, in place while there is room. Duplicates may be released
// on other threads, hence the atomic count.
#include <algorithm>
#include <atomic>
#include <cstring>
#include <limits>

#include "util/memory.h"
#include "util/stream.h"

namespace {

using quarn::util::kStreamUnit;

struct Share {
  std::atomic<std::size_t> owners;
  uint8_t *block;
};

struct MemoryStream : quarn_stream {
  Share *share;  // null: nothing allocated, or octets of the caller
  bool growable;
  uint64_t hint;
  uint64_t capacity;
  uint64_t lent;  // room that quarn_memstream_reserve() lent and nobody used yet
};

constexpr uint64_t kLeastCapacity = 32;
// Hints come from lengths that hostile input claims; what they cost stays small.
constexpr uint64_t kMostHint = 16384;
constexpr uint64_t kMostCapacity =
    std::numeric_limits<std::ptrdiff_t>::max() - 2 * sizeof(Share) - alignof(Share);

MemoryStream *memory(quarn_stream *s) {
  return static_cast<MemoryStream *>(s);
}

MemoryStream *new_memory(quarn_err_ctx *ctx) {
  auto *s = quarn::util::allocate<MemoryStream>();
  if (s == nullptr) {
    kStreamUnit.fail(ctx, QUARN_ERROR_NO_MEMORY);
    return nullptr;
  }
  s->kind = QUARN_STREAM_MEMORY;
  return s;
}

// A block for at least capacity octets, owned once; capacity receives how many. Null when memory is
// short.
Share *new_share(uint64_t *capacity) {
  if (*capacity > kMostCapacity) return nullptr;
  const uint64_t octets = (*capacity + alignof(Share) - 1) / alignof(Share) * alignof(Share);
  auto *block = quarn::util::allocate_array<uint8_t>(octets + sizeof(Share));
  if (block == nullptr) return nullptr;
  *capacity = octets;
  return new (block + octets) Share{1, block};
}

void drop(Share *share) {
  if (share == nullptr) return;
  if (share->owners.fetch_sub(1, std::memory_order_acq_rel) == 1) quarn_free(share->block);
}

// Moves the content to a larger block with room for count more octets. The old one stays with the
// caller, who may still have to copy from it.
int grow(MemoryStream *s, uint64_t count, quarn_err_ctx *ctx) {
  if (count > kMostCapacity - s->end) return kStreamUnit.fail(ctx, QUARN_ERROR_NO_MEMORY);
  const uint64_t doubled = s->capacity > kMostCapacity / 2 ? kMostCapacity : s->capacity * 2;
  uint64_t capacity = std::max({s->end + count, doubled, s->hint, kLeastCapacity});
  Share *share = new_share(&capacity);
  if (share == nullptr) return kStreamUnit.fail(ctx, QUARN_ERROR_NO_MEMORY);
  if (s->end > 0) std::memcpy(share->block, s->octets, s->end);
  s->share = share;
  s->octets = share->block;
  s->capacity = capacity;
  return 1;
}

void forget_content(MemoryStream *s) {
  s->share = nullptr;
  s->octets = nullptr;
  s->cursor = s->end = s->capacity = s->lent = 0;
}

}  // namespace

namespace quarn::util {

bool is_growable(const quarn_stream *s) {
  return is_memory(s) && static_cast<const MemoryStream *>(s)->growable;
}

// The octets may lie in the stream's own buffer.
int memory_append(quarn_stream *stream, const void *octets, uint64_t count, quarn_err_ctx *ctx) {
  MemoryStream *s = memory(stream);
  if (!s->growable) return kStreamUnit.fail(ctx, QUARN_STREAM_ERROR_READONLY);
  Share *outgrown = nullptr;
  if (count > s->capacity - s->end) {
    outgrown = s->share;
    if (!grow(s, count, ctx)) return 0;
  }
  std::memcpy(s->share->block + s->end, octets, count);
  s->end += count;
  s->lent = 0;
  drop(outgrown);
  return 1;
}

void memory_free(quarn_stream *s) {
  drop(memory(s)->share);
  quarn_free(s);
}

}  // namespace quarn::util

quarn_stream *quarn_stream_new_mem(int64_t initial_capacity, quarn_err_ctx *ctx) {
  if (initial_capacity < 0) {
    kStreamUnit.fail(ctx, QUARN_ERROR_RANGE);
    return nullptr;
  }
  MemoryStream *s = new_memory(ctx);
  if (s == nullptr) return nullptr;
  s->growable = true;
  s->hint = std::min(static_cast<uint64_t>(initial_capacity), kMostHint);
  return s;
}

quarn_stream *quarn_stream_new_romem(const uint8_t *octets,
                                     int64_t count,
                                     int flag,
                                     quarn_err_ctx *ctx) {
  const bool bad_flag = flag != 0 && flag != 1;
  if (count < 0 || bad_flag || (octets == nullptr && count > 0)) {
    kStreamUnit.fail(ctx, count < 0 ? QUARN_ERROR_RANGE : QUARN_ERROR_ARGUMENT);
    return nullptr;
  }
  MemoryStream *s = new_memory(ctx);
  if (s == nullptr) return nullptr;
  s->octets = octets;
  if (flag == 1 && count > 0) {
    uint64_t capacity = static_cast<uint64_t>(count);
    s->share = new_share(&capacity);
    if (s->share == nullptr) {
      kStreamUnit.fail(ctx, QUARN_ERROR_NO_MEMORY);
      quarn_free(s);
      return nullptr;
    }
    std::memcpy(s->share->block, octets, static_cast<std::size_t>(count));
    s->octets = s->share->block;
  }
  s->end = static_cast<uint64_t>(count);
  return s;
}

quarn_stream *quarn_memstream_dup_readonly(quarn_stream *s, quarn_err_ctx *ctx) {
  if (s == nullptr) {
    kStreamUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
    return nullptr;
  }
  if (!quarn::util::is_memory(s)) return nullptr;
  MemoryStream *duplicate = new_memory(ctx);
  if (duplicate == nullptr) return nullptr;
  duplicate->octets = s->octets;
  duplicate->end = s->end;
  duplicate->share = memory(s)->share;
  if (duplicate->share != nullptr) {
    duplicate->share->owners.fetch_add(1, std::memory_order_relaxed);
  }
  return duplicate;
}

int quarn_memstreamdeatch(quarn_stream *stream, uint8_t **octets, uint64_t *count) {
  if (octets != nullptr) *octets = nullptr;
  if (count != nullptr) *count = 0;
  if (stream == nullptr || octets == nullptr || !quarn::util::is_growable(stream)) return 0;
  MemoryStream *s = memory(stream);
  uint8_t *detached = nullptr;
  if (s->end == 0) {
    drop(s->share);
  } else if (s->share->owners.load(std::memory_order_acquire) == 1) {
    detached = s->share->block;
  } else {
    detached = quarn::util::allocate_array<uint8_t>(s->end);
    if (detached == nullptr) return 0;
    std::memcpy(detached, s->octets, s->end);
    drop(s->share);
  }
  *octets = detached;
  if (count != nullptr) *count = s->end;
  forget_content(s);
  return 1;
}

int quarn_memstream_peek(const quarn_stream *s, const uint8_t **octets, uint64_t *count) {
  if (s == nullptr || octets == nullptr || !quarn::util::is_memory(s)) return 0;
  *octets = s->cursor == 0 ? s->octets : s->octets + s->cursor;
  if (count != nullptr) *count = quarn::util::in_window(s);
  return 1;
}

int quarn_memstream_reserve(
    quarn_stream *stream, uint64_t count, uint8_t **room, uint64_t *size, quarn_err_ctx *ctx) {
  if (stream == nullptr || room == nullptr) return kStreamUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
  if (!quarn::util::is_growable(stream)) return 0;
  MemoryStream *s = memory(stream);
  if (count > s->capacity - s->end) {
    Share *outgrown = s->share;
    if (!grow(s, count, ctx)) return 0;
    drop(outgrown);
  }
  s->lent = s->capacity - s->end;
  *room = s->share == nullptr ? nullptr : s->share->block + s->end;
  if (size != nullptr) *size = s->lent;
  return 1;
}

int quarn_memstream_commit(quarn_stream *stream, uint64_t count) {
  if (stream == nullptr || !quarn::util::is_growable(stream)) return 0;
  MemoryStream *s = memory(stream);
  if (count > s->lent) return 0;
  s->end += count;
  s->lent = 0;
  return 1;
}
