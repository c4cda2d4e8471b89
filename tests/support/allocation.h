// An allocator for tests: it counts what lives and fails the allocations that a test asks it to.
#ifndef QUARN_TESTS_SUPPORT_ALLOCATION_H
#define QUARN_TESTS_SUPPORT_ALLOCATION_H

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>

#include "quarn_util.h"

namespace quarn::test {

// Installed while it lives; one at a time. All counts are of the libraries' own allocations.
class Allocation {
 public:
  enum class Mode { once, from_then_on };

  Allocation() {
    current() = this;
    quarn_mem_set_functions(allocate, release);
  }
  ~Allocation() {
    quarn_mem_set_functions(nullptr, nullptr);
    current() = nullptr;
  }
  Allocation(const Allocation &) = delete;
  Allocation &operator=(const Allocation &) = delete;

  // Lets `successes` further allocations succeed and then fails one, or all that follow.
  void fail_after(std::uint64_t successes, Mode mode = Mode::once) {
    count_ = 0;
    fail_at_ = successes;
    mode_ = mode;
    failed_ = false;
  }
  void never_fail() { fail_at_ = std::numeric_limits<std::uint64_t>::max(); }

  bool failed() const { return failed_; }             // whether an allocation was refused
  std::uint64_t count() const { return count_; }      // allocations since the last fail_after()
  std::int64_t live_blocks() const { return live_; }  // blocks not yet released
  std::size_t live_octets() const { return octets_; }
  std::size_t peak_octets() const { return peak_; }
  void reset_count() { count_ = 0; }

 private:
  // In front of each block: its size, in a cell as wide as the strictest alignment.
  static constexpr std::size_t kHead = alignof(std::max_align_t);

  static Allocation *&current() {
    static Allocation *instance = nullptr;
    return instance;
  }

  bool refuse() {
    const std::uint64_t number = count_++;
    const bool hit = mode_ == Mode::once ? number == fail_at_ : number >= fail_at_;
    failed_ = failed_ || hit;
    return hit;
  }

  static void *allocate(std::size_t size) {
    Allocation &self = *current();
    if (self.refuse() || size > SIZE_MAX - kHead) return nullptr;
    auto *block = static_cast<unsigned char *>(std::malloc(size + kHead));
    if (block == nullptr) return nullptr;
    *reinterpret_cast<std::size_t *>(block) = size;
    self.live_++;
    self.octets_ += size;
    if (self.octets_ > self.peak_) self.peak_ = self.octets_;
    return block + kHead;
  }

  static void release(void *p) {
    Allocation &self = *current();
    auto *block = static_cast<unsigned char *>(p) - kHead;
    self.live_--;
    self.octets_ -= *reinterpret_cast<std::size_t *>(block);
    std::free(block);
  }

  std::uint64_t count_ = 0;
  std::uint64_t fail_at_ = std::numeric_limits<std::uint64_t>::max();
  Mode mode_ = Mode::once;
  bool failed_ = false;
  std::int64_t live_ = 0;
  std::size_t octets_ = 0;
  std::size_t peak_ = 0;
};

// Runs `attempt` with its first, second, third ... allocation failing, in both modes, until it runs
// through without a failure. attempt(Allocation &) is called with a freshly armed allocator and
// must release what it made; allocation.failed() tells whether an allocation was refused so far.
// Nothing may be left afterwards.
template <typename Attempt>
void fail_each_allocation(Attempt attempt) {
  for (const auto mode : {Allocation::Mode::once, Allocation::Mode::from_then_on}) {
    for (std::uint64_t n = 0;; n++) {
      ASSERT_LT(n, 100000u) << "the attempt never runs through";
      Allocation allocation;
      allocation.fail_after(n, mode);
      attempt(allocation);
      ASSERT_EQ(allocation.live_blocks(), 0) << "leak with allocation " << n << " failing";
      if (!allocation.failed() || ::testing::Test::HasFatalFailure()) break;
    }
  }
}

}  // namespace quarn::test

#endif
