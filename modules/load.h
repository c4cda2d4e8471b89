// Signed objects from octets in one of the forms that files have.
#ifndef QUARN_MODULES_LOAD_H
#define QUARN_MODULES_LOAD_H

#include <cstdint>
#include <initializer_list>

#include "quarn_asn1/core.h"

namespace quarn::asn1 {

// A value of a type that the octets hold and nothing behind it, as DER or BER ("0"), base64 text
// ("M") or PEM with one of the labels ("-"): the first octet tells. Null for anything else. ctx
// receives what the decoder records.
void *load(quarn_asn1_type_id type,
           std::initializer_list<const char *> labels,
           const std::uint8_t *data,
           std::int64_t length,
           quarn_err_ctx *ctx);

// A signed object from parts that are copied, encoded once to see that it can be. Null when
// something is missing or fails.
void *create_signed(quarn_asn1_type_id type,
                    const void *body,
                    const void *algorithm,
                    const void *signature);

}  // namespace quarn::asn1

#endif
