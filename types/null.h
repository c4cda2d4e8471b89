// NULL, for the callers inside the library that treat it apart.
#ifndef QUARN_TYPES_NULL_H
#define QUARN_TYPES_NULL_H

#include "core/type.h"

namespace quarn::asn1 {

Status encode_null_content(const Type &type, Writer &out, void *value, std::int64_t length);

// The value of every decoded NULL: shared, never written, never freed.
void *null_value();

}  // namespace quarn::asn1

#endif
