// The error context, and the texts of the codes that belong to the support library.
#include "util/error.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>

#include "util/memory.h"

namespace {

// Some decoders record on success (a non-minimal INTEGER, say), so that hostile input can make
// records without end; past this many they are only counted.
constexpr std::size_t kMostRecords = 1024;

struct Entry {
  quarn_err_record record;
  int64_t offset;
};

struct CodeText {
  int code;
  const char *text;
};

constexpr CodeText kGeneralTexts[] = {
    {QUARN_ERROR_NO_MEMORY, "memory could not be allocated"},
    {QUARN_ERROR_RANGE, "length or count out of range"},
    {QUARN_ERROR_ARGUMENT, "null or bad argument"},
    {QUARN_ERROR_FORMAT, "bad format"},
    {QUARN_ERROR_COUNT, "octets written differ from the declared length"},
    {QUARN_ERROR_RECURSION, "nesting too deep"},
};

constexpr CodeText kStreamTexts[] = {
    {QUARN_STREAM_ERROR_OPEN, "file cannot be opened"},
    {QUARN_STREAM_ERROR_READ, "reading the stream failed"},
    {QUARN_STREAM_ERROR_WRITE, "writing the stream failed"},
    {QUARN_STREAM_ERROR_END, "unexpected end of stream"},
    {QUARN_STREAM_ERROR_READONLY, "stream cannot be written"},
    {QUARN_STREAM_ERROR_OPERATION, "unknown stream operation or mode"},
    {QUARN_STREAM_ERROR_POSITION, "position outside the stream"},
    {QUARN_STREAM_ERROR_SEEK, "stream cannot seek"},
    {QUARN_STREAM_ERROR_KIND, "not a memory stream"},
    {QUARN_STREAM_ERROR_REWIND, "stream cannot be rewound"},
    {QUARN_STREAM_ERROR_LENGTH, "stream length unknown"},
    {QUARN_STREAM_ERROR_NOTATEND, "stream gives no octets and is not at its end"},
};

const char *text_of(const CodeText *texts, std::size_t count, int code) {
  const auto *end = texts + count;
  const auto *found =
      std::find_if(texts, end, [code](const CodeText &entry) { return entry.code == code; });
  return found == end ? "" : found->text;
}

// Writes one record as a line; returns its length, as snprintf() does.
int print_entry(const Entry &entry, char *out, std::size_t room) {
  const quarn_err_record &r = entry.record;
  const auto code = static_cast<unsigned>(r.code);
  if (entry.offset < 0) {
    return std::snprintf(out, room, "%s:%d: 0x%x %s\n", r.file, r.line, code, r.message);
  }
  // cppcheck-suppress nullPointer ; with no room nothing is written
  return std::snprintf(out, room, "%s:%d: 0x%x %s (offset %lld)\n", r.file, r.line, code, r.message,
                       static_cast<long long>(entry.offset));
}

}  // namespace

constexpr std::size_t kMostPath = 256;
constexpr char kCut[] = "...";

struct quarn_err_ctx {
  Entry *entries;
  std::size_t count;
  std::size_t capacity;
  std::size_t dropped;
  std::size_t path_length;
  bool path_cut;
  char path[kMostPath + 1];  // written from its end, where there is a NUL
};

const char *quarn_igetGeneralError(int code) {
  return text_of(kGeneralTexts, std::size(kGeneralTexts), code);
}

const char *quarn_igetStreamError(int code) {
  return text_of(kStreamTexts, std::size(kStreamTexts), code);
}

// Deeper than any genuine message, shallow enough for every decoder on a stack of 256 KiB.
int quarn_get_recursive_level(void) {
  return 128;
}

const char *quarn_util_version(void) {
  return "2.0.0";
}

quarn_err_ctx *quarn_err_ctx_new(void) {
  return quarn::util::allocate<quarn_err_ctx>();
}

void quarn_err_ctx_free(quarn_err_ctx *ctx) {
  if (ctx == nullptr) return;
  quarn_free(ctx->entries);
  quarn_free(ctx);
}

static int grow(quarn_err_ctx *ctx) {
  const std::size_t capacity = std::max<std::size_t>(8, ctx->capacity * 2);
  auto *entries = quarn::util::allocate_array<Entry>(capacity);
  if (entries == nullptr) return 0;
  if (ctx->count > 0) std::memcpy(entries, ctx->entries, ctx->count * sizeof(Entry));
  quarn_free(ctx->entries);
  ctx->entries = entries;
  ctx->capacity = capacity;
  return 1;
}

int quarn_err_ctx_put_at(
    quarn_err_ctx *ctx, const char *file, int line, int code, const char *message, int64_t offset) {
  if (ctx == nullptr) return 1;
  if (ctx->count == kMostRecords) {
    ctx->dropped++;
    return 1;
  }
  if (ctx->count == ctx->capacity && !grow(ctx)) return 0;
  const quarn_err_record record{file == nullptr ? "" : file, line, code,
                                message == nullptr ? "" : message};
  ctx->entries[ctx->count++] = Entry{record, offset};
  return 1;
}

int quarn_err_ctx_put(
    quarn_err_ctx *ctx, const char *file, int line, int code, const char *message) {
  return quarn_err_ctx_put_at(ctx, file, line, code, message, -1);
}

size_t quarn_err_ctx_count(const quarn_err_ctx *ctx) {
  return ctx == nullptr ? 0 : ctx->count;
}

size_t quarn_err_ctx_dropped(const quarn_err_ctx *ctx) {
  return ctx == nullptr ? 0 : ctx->dropped;
}

const quarn_err_record *quarn_err_ctx_get(const quarn_err_ctx *ctx, size_t index) {
  if (ctx == nullptr || index >= ctx->count) return nullptr;
  return &ctx->entries[index].record;
}

int64_t quarn_err_ctx_offset(const quarn_err_ctx *ctx, size_t index) {
  if (ctx == nullptr || index >= ctx->count) return -1;
  return ctx->entries[index].offset;
}

void quarn_err_ctx_clear(quarn_err_ctx *ctx) {
  if (ctx == nullptr) return;
  ctx->count = 0;
  ctx->dropped = 0;
  ctx->path_length = 0;
  ctx->path_cut = false;
}

static const char *path_of(const quarn_err_ctx *ctx) {
  return ctx->path + kMostPath - ctx->path_length;
}

// Puts text in front of the path. False, with the path unchanged, when it has no room.
static bool put_before(quarn_err_ctx *ctx, const char *text) {
  const std::size_t length = std::strlen(text);
  if (length > kMostPath - ctx->path_length) return false;
  ctx->path_length += length;
  std::memcpy(ctx->path + kMostPath - ctx->path_length, text, length);
  return true;
}

int quarn_err_ctx_put_step(quarn_err_ctx *ctx, const char *name, int64_t index, int first) {
  if (ctx == nullptr) return 1;
  if (first != 0) {
    ctx->path_length = 0;
    ctx->path_cut = false;
  }
  if (ctx->path_cut) return 1;
  char number[24];
  std::snprintf(number, sizeof number, "[%lld]", static_cast<long long>(index));
  const bool parted = ctx->path_length > 0 && *path_of(ctx) != '[';
  const std::size_t before = ctx->path_length;
  const bool fits = (!parted || put_before(ctx, ".")) &&
                    put_before(ctx, name == nullptr ? number : name) &&
                    ctx->path_length <= kMostPath - (sizeof kCut - 1);
  if (fits) return 1;
  ctx->path_length = before;
  ctx->path_cut = put_before(ctx, kCut);
  return 1;
}

const char *quarn_err_ctx_path(const quarn_err_ctx *ctx) {
  return ctx == nullptr ? "" : path_of(ctx);
}

int quarn_err_ctx_print(const quarn_err_ctx *ctx, char **text, size_t *length) {
  if (text != nullptr) *text = nullptr;
  if (ctx == nullptr || text == nullptr) return 0;
  std::size_t size = 0;
  for (std::size_t i = 0; i < ctx->count; i++) {
    size += static_cast<std::size_t>(print_entry(ctx->entries[i], nullptr, 0));
  }
  auto *out = quarn::util::allocate_array<char>(size + 1);
  if (out == nullptr) return 0;
  out[0] = '\0';
  std::size_t used = 0;
  for (std::size_t i = 0; i < ctx->count; i++) {
    used += static_cast<std::size_t>(print_entry(ctx->entries[i], out + used, size + 1 - used));
  }
  *text = out;
  if (length != nullptr) *length = size;
  return 1;
}
