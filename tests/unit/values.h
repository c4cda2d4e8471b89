// Octets in and out of values and streams, for the tests of single types.
#ifndef QUARN_TESTS_UNIT_VALUES_H
#define QUARN_TESTS_UNIT_VALUES_H

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "quarn_asn1.h"
#include "tests/support/streams.h"
#include "tests/support/vector_file.h"

namespace quarn::test {

using Codes = std::vector<int>;

template <std::int64_t kType>
struct FreeValue {
  void operator()(void *value) const { quarn_asn1_value_free(kType, value); }
};
template <typename T, std::int64_t kType>
using Value = std::unique_ptr<T, FreeValue<kType>>;

inline Octets hex(const std::string &text) {
  return read_octets(text);
}

// A stream in memory that already holds some octets.
inline Stream growable(const Octets &octets = {}) {
  Stream s(quarn_stream_new_mem(0, nullptr));
  quarn_stream_writen(s.get(), octets.data(), static_cast<std::int64_t>(octets.size()), nullptr);
  return s;
}

inline Octets held_by(const Stream &s) {
  const std::uint8_t *octets = nullptr;
  std::uint64_t count = 0;
  EXPECT_EQ(quarn_memstream_peek(s.get(), &octets, &count), 1);
  return {octets, octets + count};
}

// Nothing for a value that cannot be encoded.
inline Octets encoding_of(std::int64_t type, void *value) {
  const Blob blob(quarn_asn1_mem_encode(type, value));
  return blob == nullptr ? Octets() : Octets(blob->data, blob->data + blob->length);
}

// The value that some octets are decoded to, which are all read.
template <typename T, std::int64_t kType>
Value<T, kType> decoded(const Octets &octets) {
  void *value = nullptr;
  const auto count = static_cast<std::int64_t>(octets.size());
  EXPECT_EQ(quarn_asn1_mem_decode(octets.data(), count, kType, &value), count);
  return Value<T, kType>(static_cast<T *>(value));
}

// A value of any type, which frees itself; null when the octets do not decode.
class Held {
 public:
  Held(std::int64_t type, void *value) : type_(type), value_(value) {}
  Held(std::int64_t type, const Octets &octets) : type_(type) {
    const auto count = static_cast<std::int64_t>(octets.size());
    consumed_ = quarn_asn1_mem_decode(octets.data(), count, type, &value_);
  }
  Held(std::int64_t type, const char *octets) : Held(type, hex(octets)) {}
  Held(const Held &) = delete;
  Held &operator=(const Held &) = delete;
  ~Held() { quarn_asn1_value_free(type_, value_); }

  std::int64_t type() const { return type_; }
  std::int64_t consumed() const { return consumed_; }  // octets, or -1 when they do not decode
  void *get() const { return value_; }
  template <typename T>
  T *as() const {
    return static_cast<T *>(value_);
  }
  Octets encoding() const { return encoding_of(type_, value_); }

 private:
  std::int64_t type_;
  void *value_ = nullptr;
  std::int64_t consumed_ = -1;
};

// What a string does over a store: it is decoded into it and written, and the OCTET STRING in it is
// decoded. True when that and what else is asked for, given a stream in memory, all succeeded.
template <typename T, typename Decode, typename GetObject, typename Also>
bool use_over(
    Store &from, Store &to, std::int64_t type, Decode decode, GetObject get_object, Also also) {
  const Stream source = from.stream();
  const Stream held = to.stream();
  const Stream memory(quarn_stream_new_mem(0, nullptr));
  if (source == nullptr || held == nullptr || memory == nullptr) return false;
  T *string = nullptr;
  decode(source.get(), held.get(), &string, nullptr, nullptr);
  const Held owned(type, string);
  const auto write = quarn_asn1_encode;
  if (string == nullptr || write(memory.get(), type, string, nullptr, nullptr) != 1) return false;
  void *object = nullptr;
  const int got = get_object(string, QUARN_ASN1_OCTETSTRING, &object, nullptr);
  quarn_asn1_value_free(QUARN_ASN1_OCTETSTRING, object);  // the caller's after a failure, too
  return got == 1 && also(string, memory);
}

}  // namespace quarn::test

#endif
