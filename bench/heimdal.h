// Heimdal: its headers, which are written for C and for other warnings than ours, and what is done
// with them in several questions.
#ifndef QUARN_BENCH_HEIMDAL_H
#define QUARN_BENCH_HEIMDAL_H

#include <cstddef>
#include <cstdint>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpedantic"
extern "C" {
#include <heimdal/asn1_err.h>
// The rest after what it needs.
#include <heimdal/cms_asn1.h>
#include <heimdal/rfc2459_asn1.h>
// And this last.
#include <heimdal/der.h>
}
#pragma GCC diagnostic pop

namespace bench {

template <typename T>
using DecodeHeimdal = int(const unsigned char *, size_t, T *, size_t *);

// False when it refuses the octets.
template <typename T, DecodeHeimdal<T> decode, void release(T *)>
bool decode_and_free(const void *octets, std::size_t count) {
  T value;
  std::size_t size = 0;
  if (decode(static_cast<const unsigned char *>(octets), count, &value, &size) != 0) return false;
  release(&value);
  return true;
}

inline bool decode_certificate(const void *octets, std::size_t count) {
  return decode_and_free<Certificate, decode_Certificate, free_Certificate>(octets, count);
}

}  // namespace bench

#endif
