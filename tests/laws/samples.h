// Encodings to try the laws on: the vectors that decode.
#ifndef QUARN_TESTS_LAWS_SAMPLES_H
#define QUARN_TESTS_LAWS_SAMPLES_H

#include <algorithm>
#include <string>
#include <vector>

#include "quarn_asn1.h"
#include "tests/support/vector_file.h"

namespace quarn::test {

// Vectors that decode and whose input is not larger than most octets. End-of-contents has no value
// and is left out.
inline std::vector<Vector> samples(std::size_t most) {
  std::vector<Vector> all = read_vector_folder(QUARN_SOURCE_DIR "/tests/vectors");
  std::erase_if(all, [most](const Vector &vector) {
    return !vector.out || vector.type == QUARN_ASN1_EOC || vector.in.size() > most;
  });
  return all;
}

// The DER encodings that tools/notation/samples.py makes of every structured type, by an encoder of
// its own.
inline std::vector<Vector> structured_samples() {
  return read_vectors(QUARN_SOURCE_DIR "/tests/vectors/gen/samples.vec");
}

}  // namespace quarn::test

#endif
