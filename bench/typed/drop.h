// What encoding anew needs and callers do not see: in a shared object of its own, because the rest
// of the benchmark uses the libraries as they are installed.
#ifndef QUARN_BENCH_TYPED_DROP_H
#define QUARN_BENCH_TYPED_DROP_H

#include "quarn_asn1/ids.h"

namespace bench {

// A value and what is in it forget the octets that they were decoded from or encoded to.
__attribute__((visibility("default"))) void drop_kept_octets(quarn_asn1_type_id type, void *value);

}  // namespace bench

#endif
