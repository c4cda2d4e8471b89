// What the questions on typed values ask of each library.
//
// Each library makes itself known by known_library(); see bench/libraries.h.
#ifndef QUARN_BENCH_TYPED_TYPED_H
#define QUARN_BENCH_TYPED_TYPED_H

#include "bench/bench.h"

namespace bench {

struct Library {
  const char *name;

  // Decode to typed values and free: false when the library refuses the input.
  bool (*certificate)(const Octets &der) = nullptr;
  bool (*certificate_from_stream)(const Octets &der) = nullptr;
  bool (*certificate_and_extensions)(const Octets &der) =
      nullptr;  // each extension that it has a type for
  bool (*request)(const Octets &der) = nullptr;
  bool (*list)(const Octets &der) = nullptr;  // of revoked certificates
  std::size_t most_entries = 0;  // of a list with extensions, where more take minutes; 0: any
  bool (*sorted_name)(const Octets &der) = nullptr;

  // A certificate that is kept.
  void *(*load)(const Octets &der) = nullptr;
  void (*release)(void *certificate) = nullptr;
  // Encode to memory that is freed again: the number of octets.
  std::size_t (*encode)(void *certificate) = nullptr;
  std::size_t (*encode_anew)(void *certificate) = nullptr;
  // Makes a certificate ready for encode_anew(), once. May be null.
  void (*change)(void *certificate) = nullptr;
  bool (*copy)(void *certificate) = nullptr;        // and frees the copy
  bool (*same_names)(void *certificate) = nullptr;  // whether issuer and subject are the same
};

bool known_library(const Library &library);

// A CRL of so many entries, every second of which has a reason and every fourth an invalidity date
// as well, or none.
Octets revocation_list(std::size_t entries, bool extensions);
// A name with one RDN of eight attributes in falling order.
Octets name_to_sort();

}  // namespace bench

#endif
