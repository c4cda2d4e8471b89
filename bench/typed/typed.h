// What the questions on typed values ask of each library.
//
// Each library has a source of its own, which makes it known by known_library(). One that is not
// installed is not built; one that cannot do what a question asks has a null function. Both are
// said in the output.
#ifndef QUARN_BENCH_TYPED_TYPED_H
#define QUARN_BENCH_TYPED_TYPED_H

#include "bench/bench.h"

namespace bench {

struct Library {
  const char *name;

  // Decode to typed values and free: false when the library refuses the input.
  bool (*certificate)(const Octets &der);
  bool (*certificate_and_extensions)(const Octets &der);  // each extension that it has a type for
  bool (*request)(const Octets &der);
  bool (*list)(const Octets &der);  // of revoked certificates
  std::size_t most_entries = 0;     // of a list, where more take too long; 0: any number
  bool (*sorted_name)(const Octets &der);

  // A certificate that is kept.
  void *(*load)(const Octets &der);
  void (*release)(void *certificate);
  // Encode to memory that is freed again: the number of octets.
  std::size_t (*encode)(void *certificate);
  std::size_t (*encode_anew)(void *certificate);
  // Makes a certificate ready for encode_anew(), once. May be null.
  void (*change)(void *certificate);
  bool (*copy)(void *certificate);        // and frees the copy
  bool (*same_names)(void *certificate);  // whether issuer and subject are the same
};

// Returns true, so that a constant can be made of it.
bool known_library(const Library &library);

// A CRL of so many entries, every second of which has a reason and every fourth an invalidity date
// as well, or none.
Octets revocation_list(std::size_t entries, bool extensions);
// A name with one RDN of eight attributes in falling order.
Octets name_to_sort();

}  // namespace bench

#endif
