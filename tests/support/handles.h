// Owners and short forms for tests that work with streams and error records.
#ifndef QUARN_TESTS_SUPPORT_HANDLES_H
#define QUARN_TESTS_SUPPORT_HANDLES_H

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

struct FreeMemory {
  void operator()(void *p) const { quarn_free(p); }
};
template <typename T>
using Memory = std::unique_ptr<T, FreeMemory>;

// An error context and what it holds.
class Records {
 public:
  Records() : ctx_(quarn_err_ctx_new()) {}
  ~Records() { quarn_err_ctx_free(ctx_); }
  Records(const Records &) = delete;
  Records &operator=(const Records &) = delete;

  quarn_err_ctx *get() const { return ctx_; }
  std::size_t count() const { return quarn_err_ctx_count(ctx_); }
  std::vector<int> codes() const {
    std::vector<int> codes;
    for (std::size_t i = 0; i < count(); i++) codes.push_back(quarn_err_ctx_get(ctx_, i)->code);
    return codes;
  }

 private:
  quarn_err_ctx *ctx_;
};

inline const uint8_t *octets_of(const char *text) {
  return reinterpret_cast<const uint8_t *>(text);
}

inline int write_text(const Stream &s, const char *text) {
  return quarn_stream_writen(s.get(), text, static_cast<int64_t>(std::strlen(text)), nullptr);
}

// What a stream gives from its read position on.
inline std::string rest_of(quarn_stream *s) {
  std::string rest;
  char piece[1000];
  uint64_t got = 1;
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
