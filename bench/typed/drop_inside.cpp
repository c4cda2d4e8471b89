#include "bench/typed/drop.h"
#include "core/engine.h"

namespace bench {

void drop_kept_octets(quarn_asn1_type_id type, void *value) {
  quarn::asn1::drop_kept(quarn::asn1::type_of(type), value);
}

}  // namespace bench
