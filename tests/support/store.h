// A stream for tests that can do everything and can be made to do less: lie about its length,
// refuse to seek, fail at any call. Octets that were never written, up to `size`, read as zeros, so
// that large content costs nothing.
#ifndef QUARN_TESTS_SUPPORT_STORE_H
#define QUARN_TESTS_SUPPORT_STORE_H

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

#include "tests/support/allocation.h"
#include "tests/support/streams.h"

namespace quarn::test {

class Store {
 public:
  static constexpr std::int64_t kUnknownLength = -1;

  enum class Kind { all, read_only };

  explicit Store(std::vector<std::uint8_t> content = {})
      : octets(std::move(content)), size(octets.size()) {}

  Stream stream(Kind kind = Kind::all) {
    quarn_stream_callbacks callbacks{read, write, length, seek, close};
    if (kind == Kind::read_only) callbacks = {read, nullptr, nullptr, nullptr, nullptr};
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

 private:
  bool fails() { return calls++ == fail_at; }
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

// Runs attempt(from, to), which reads `octets` from one store and works on another, with every call
// on either and every allocation failing in turn. It returns whether all went well.
template <typename Attempt>
void fail_each_call(const std::vector<std::uint8_t> &octets, bool knows_length, Attempt attempt) {
  Store whole(octets);
  Store content;
  content.knows_length = knows_length;
  ASSERT_TRUE(attempt(whole, content));
  for (std::uint64_t n = 0; n < whole.calls + content.calls; n++) {
    Store from(octets);
    Store to;
    to.knows_length = knows_length;
    (n < whole.calls ? from : to).fail_at = n < whole.calls ? n : n - whole.calls;
    EXPECT_FALSE(attempt(from, to)) << "call " << n << " failing";
  }
  fail_each_allocation([&](Allocation &allocation) {
    Store from(octets);
    Store to;
    to.knows_length = knows_length;
    const bool good = attempt(from, to);
    EXPECT_TRUE(good || allocation.failed());
  });
}

}  // namespace quarn::test

#endif
