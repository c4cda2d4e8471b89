// Owners and streams for tests: a source that gives one octet at a time, knows no length and cannot
// seek, and a sink.
#ifndef QUARN_TESTS_SUPPORT_STREAMS_H
#define QUARN_TESTS_SUPPORT_STREAMS_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "quarn_util.h"

namespace quarn::test {

struct FreeStream {
  void operator()(quarn_stream *s) const { quarn_stream_free(s); }
};
using Stream = std::unique_ptr<quarn_stream, FreeStream>;

struct FreeContext {
  void operator()(quarn_err_ctx *ctx) const { quarn_err_ctx_free(ctx); }
};
using Context = std::unique_ptr<quarn_err_ctx, FreeContext>;

struct FreeBlob {
  void operator()(quarn_data_blob *b) const { quarn_data_blob_free(b); }
};
using Blob = std::unique_ptr<quarn_data_blob, FreeBlob>;

struct FreeMemory {
  void operator()(void *p) const { quarn_free(p); }
};
template <typename T>
using Memory = std::unique_ptr<T, FreeMemory>;

inline const std::uint8_t *octets_of(const char *text) {
  return reinterpret_cast<const std::uint8_t *>(text);
}

inline Stream memory_stream(const std::vector<std::uint8_t> &octets, quarn_err_ctx *ctx = nullptr) {
  return Stream(
      quarn_stream_new_romem(octets.data(), static_cast<std::int64_t>(octets.size()), 0, ctx));
}

// Gives its octets one by one. The calls that may still succeed can be limited.
class SlowSource {
 public:
  explicit SlowSource(const std::vector<std::uint8_t> &octets) : octets_(octets) {}

  Stream stream(quarn_err_ctx *ctx = nullptr) {
    const quarn_stream_callbacks callbacks{read, nullptr, nullptr, nullptr, nullptr};
    return Stream(quarn_stream_new_callback(&callbacks, this, ctx));
  }
  // The call after this many fails, as all later ones do.
  void fail_after(std::int64_t calls) { calls_left_ = calls; }
  std::int64_t calls() const { return calls_; }

 private:
  static std::int64_t read(void *user, void *buffer, std::int64_t count) {
    auto *self = static_cast<SlowSource *>(user);
    self->calls_++;
    if (self->calls_left_ == 0) return -1;
    self->calls_left_--;
    if (self->at_ == self->octets_.size() || count == 0) return 0;
    *static_cast<std::uint8_t *>(buffer) = self->octets_[self->at_++];
    return 1;
  }

  const std::vector<std::uint8_t> &octets_;
  std::size_t at_ = 0;
  std::int64_t calls_ = 0;
  std::int64_t calls_left_ = INT64_MAX;
};

// Keeps what is written. The calls that may still succeed can be limited.
class SlowSink {
 public:
  Stream stream(quarn_err_ctx *ctx = nullptr) {
    const quarn_stream_callbacks callbacks{nullptr, write, nullptr, nullptr, nullptr};
    return Stream(quarn_stream_new_callback(&callbacks, this, ctx));
  }
  void fail_after(std::int64_t calls) { calls_left_ = calls; }
  std::int64_t calls() const { return calls_; }
  const std::vector<std::uint8_t> &octets() const { return octets_; }

 private:
  static int write(void *user, const void *buffer, std::int64_t count) {
    auto *self = static_cast<SlowSink *>(user);
    self->calls_++;
    if (self->calls_left_ == 0) return 0;
    self->calls_left_--;
    const auto *octets = static_cast<const std::uint8_t *>(buffer);
    self->octets_.insert(self->octets_.end(), octets, octets + count);
    return 1;
  }

  std::vector<std::uint8_t> octets_;
  std::int64_t calls_ = 0;
  std::int64_t calls_left_ = INT64_MAX;
};

// Codes of the records of a context, oldest first.
inline std::vector<int> codes_in(const quarn_err_ctx *ctx) {
  std::vector<int> codes;
  for (std::size_t i = 0; i < quarn_err_ctx_count(ctx); i++) {
    codes.push_back(quarn_err_ctx_get(ctx, i)->code);
  }
  return codes;
}

// What a stream gives from its read position on.
inline std::string rest_of(quarn_stream *s) {
  std::string rest;
  char piece[1000];
  std::uint64_t got = 1;
  while (got > 0 && quarn_stream_read(s, piece, sizeof piece, &got, nullptr) == 1) {
    rest.append(piece, got);
  }
  return rest;
}
inline std::string rest_of(const Stream &s) {
  return rest_of(s.get());
}

}  // namespace quarn::test

#endif
