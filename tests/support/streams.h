// Owners and streams for tests.
#ifndef QUARN_TESTS_SUPPORT_STREAMS_H
#define QUARN_TESTS_SUPPORT_STREAMS_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
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

// A stream that can do everything and can be made to do less: lie about its length, refuse to seek,
// fail at any call. Octets that were never written, up to `size`, read as zeros, so that large
// content costs nothing.
class Store {
 public:
  static constexpr std::int64_t kUnknownLength = -1;

  enum class Kind { all, read_only, write_only };

  explicit Store(std::vector<std::uint8_t> content = {})
      : octets(std::move(content)), size(octets.size()) {}

  Stream stream(Kind kind = Kind::all) {
    quarn_stream_callbacks callbacks{read, write, length, seek, close};
    if (kind == Kind::read_only) callbacks = {read, nullptr, nullptr, nullptr, nullptr};
    if (kind == Kind::write_only) callbacks = {nullptr, write, nullptr, nullptr, nullptr};
    return Stream(quarn_stream_new_callback(&callbacks, this, nullptr));
  }

  std::vector<std::uint8_t> octets;
  std::uint64_t size;  // of the content, with the zeros that follow the octets
  bool knows_length = true;
  std::int64_t claimed = kUnknownLength;  // a length that is not the true one
  bool seekable = true;
  std::uint64_t piece = UINT64_MAX;  // most octets given at once
  std::int64_t wrong_result = -1;    // of a read that fails
  int closed = 0;
  std::uint64_t calls = 0;
  std::uint64_t fail_at = UINT64_MAX;  // the call that fails, counted from 0
  bool goes_on_failing = false;        // as do all later ones

 private:
  bool fails() {
    const std::uint64_t call = calls++;
    return call == fail_at || (goes_on_failing && call > fail_at);
  }
  static Store &self(void *user) { return *static_cast<Store *>(user); }

  static std::int64_t read(void *user, void *buffer, std::int64_t count) {
    Store &s = self(user);
    if (s.fails()) return s.wrong_result;
    const auto got = std::min({static_cast<std::uint64_t>(count), s.piece, s.size - s.at_});
    std::memset(buffer, 0, got);
    if (s.at_ < s.octets.size()) {
      std::memcpy(buffer, s.octets.data() + s.at_, std::min(got, s.octets.size() - s.at_));
    }
    s.at_ += got;
    return static_cast<std::int64_t>(got);
  }
  static int write(void *user, const void *buffer, std::int64_t count) {
    Store &s = self(user);
    if (s.fails()) return 0;
    const auto *from = static_cast<const std::uint8_t *>(buffer);
    s.octets.insert(s.octets.end(), from, from + count);
    s.size = s.octets.size();
    return 1;
  }
  static std::int64_t length(void *user) {
    Store &s = self(user);
    if (s.claimed != kUnknownLength) return s.claimed;
    return s.knows_length ? static_cast<std::int64_t>(s.size) : kUnknownLength;
  }
  static void close(void *user) { self(user).closed++; }
  static int seek(void *user, std::uint64_t position) {
    Store &s = self(user);
    if (s.fails() || !s.seekable || position > s.size) return 0;
    s.at_ = position;
    return 1;
  }

  std::uint64_t at_ = 0;
};

// Gives its octets one by one, knows no length and cannot seek.
class SlowSource {
 public:
  explicit SlowSource(const std::vector<std::uint8_t> &octets) : store_(octets) {
    store_.piece = 1;
    store_.goes_on_failing = true;
  }
  Stream stream() { return store_.stream(Store::Kind::read_only); }
  // The call after this many fails, as all later ones do.
  void fail_after(std::int64_t calls) { store_.fail_at = static_cast<std::uint64_t>(calls); }
  std::int64_t calls() const { return static_cast<std::int64_t>(store_.calls); }

 private:
  Store store_;
};

// Keeps what is written.
class SlowSink {
 public:
  SlowSink() { store_.goes_on_failing = true; }
  Stream stream() { return store_.stream(Store::Kind::write_only); }
  void fail_after(std::int64_t calls) { store_.fail_at = static_cast<std::uint64_t>(calls); }
  std::int64_t calls() const { return static_cast<std::int64_t>(store_.calls); }
  const std::vector<std::uint8_t> &octets() const { return store_.octets; }

 private:
  Store store_;
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
inline std::string rest_of(const Stream &s) {
  std::string rest;
  char piece[1000];
  std::uint64_t got = 1;
  while (got > 0 && quarn_stream_read(s.get(), piece, sizeof piece, &got, nullptr) == 1) {
    rest.append(piece, got);
  }
  return rest;
}

}  // namespace quarn::test

#endif
