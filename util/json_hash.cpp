// The hash of the key index: SipHash-1-3 (Aumasson, Bernstein) under a random key, so that no text
// can be made whose keys collide.
#include <sys/random.h>

#include <bit>
#include <cerrno>

#include "util/json.h"

namespace quarn::util {
namespace {

struct Secret {
  uint64_t first;
  uint64_t second;
};

// Drawn once in a process. Without a random source addresses must do, which are hard to guess too.
Secret make_secret() {
  const int caller_errno = errno;
  Secret secret{};
  if (getentropy(&secret, sizeof secret) != 0) {
    secret = {reinterpret_cast<uintptr_t>(&make_secret), reinterpret_cast<uintptr_t>(&errno)};
  }
  errno = caller_errno;
  return secret;
}

class SipHash {
 public:
  explicit SipHash(const Secret &secret)
      : v0_(secret.first ^ 0x736f6d6570736575),
        v1_(secret.second ^ 0x646f72616e646f6d),
        v2_(secret.first ^ 0x6c7967656e657261),
        v3_(secret.second ^ 0x7465646279746573) {}

  void add(uint64_t word) {
    v3_ ^= word;
    round();
    v0_ ^= word;
  }

  uint64_t finish() {
    v2_ ^= 0xff;
    for (int i = 0; i < 3; i++) round();
    return v0_ ^ v1_ ^ v2_ ^ v3_;
  }

 private:
  void round() {
    v0_ += v1_;
    v1_ = std::rotl(v1_, 13) ^ v0_;
    v0_ = std::rotl(v0_, 32);
    v2_ += v3_;
    v3_ = std::rotl(v3_, 16) ^ v2_;
    v0_ += v3_;
    v3_ = std::rotl(v3_, 21) ^ v0_;
    v2_ += v1_;
    v1_ = std::rotl(v1_, 17) ^ v2_;
    v2_ = std::rotl(v2_, 32);
  }

  uint64_t v0_, v1_, v2_, v3_;
};

}  // namespace

uint64_t keyed_hash(std::string_view octets) {
  static const Secret secret = make_secret();
  SipHash hash(secret);
  uint64_t word;
  std::size_t at = 0;
  for (; octets.size() - at >= sizeof word; at += sizeof word) {
    std::memcpy(&word, octets.data() + at, sizeof word);
    hash.add(word);
  }
  word = 0;
  if (at < octets.size()) std::memcpy(&word, octets.data() + at, octets.size() - at);
  hash.add(word | uint64_t{octets.size()} << 56);
  return hash.finish();
}

}  // namespace quarn::util
