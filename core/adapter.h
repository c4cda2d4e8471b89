// Between the C interface and the cursors: make the cursor, call, hand out count and result.
#ifndef QUARN_CORE_ADAPTER_H
#define QUARN_CORE_ADAPTER_H

#include <cstdint>

#include "core/reader.h"
#include "core/writer.h"

namespace quarn::asn1 {

// read(Reader &) returns Status. consumed, which may be null, receives the octets read on success.
template <typename Read>
int reading(quarn_stream *stream, std::uint64_t *consumed, quarn_err_ctx *ctx, Read read) {
  Reader in(stream, ctx);
  const Status status = read(in);
  if (status && consumed != nullptr) *consumed = in.count();
  return status.raw();
}

// write(Writer &) returns Status. written, which may be null, receives the octets on success.
template <typename Write>
int writing(quarn_stream *stream, std::uint64_t *written, quarn_err_ctx *ctx, Write write) {
  Writer out(stream, ctx);
  const Status status = write(out);
  if (status && written != nullptr) *written = out.count();
  return status.raw();
}

// A typed out pointer as the untyped one that codecs take. Null stays null.
template <typename T>
void **untyped(T **value) {
  return reinterpret_cast<void **>(value);
}

}  // namespace quarn::asn1

#endif
