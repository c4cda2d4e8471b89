// Peers whose headers do not go together with those of the others: each has a source of its own.
#ifndef QUARN_BENCH_PEERS_H
#define QUARN_BENCH_PEERS_H

#include "bench/bench.h"

namespace bench {

// What a peer found at the start of an element.
struct Found {
  std::uint64_t number;
  std::size_t length;
  std::size_t header;
  bool constructed;
};

bool header_libtasn1(const std::uint8_t *octets, std::size_t count, Found &found);
bool header_heimdal(const std::uint8_t *octets, std::size_t count, Found &found);
// Heimdal decodes a certificate into its typed structure, and frees it.
bool decode_heimdal(const Octets &der);

}  // namespace bench

#endif
