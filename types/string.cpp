// The octets of string values: where they are and how they are read.
#include "types/string.h"

#include <algorithm>

namespace quarn::asn1 {

StringValue *new_string(std::size_t count) {
  auto *value = util::allocate<StringValue>(count);
  if (value != nullptr) value->length = count;
  return value;
}

StringValue *new_string(const std::uint8_t *octets, std::size_t count) {
  StringValue *value = new_string(count);
  if (value != nullptr && count > 0) std::memcpy(value->octets(), octets, count);
  return value;
}

void free_string(const Type & /*type*/, void *value) {
  quarn_free(value);
}

bool measure_string(const StringValue &value, std::uint64_t &count) {
  count = value.length;
  if (value.stream == nullptr) return true;
  return quarn_stream_ctrl(value.stream, QUARN_STREAM_LENGTH, &count, nullptr) == 1;
}

Status Source::open(StringValue &value, const Unit &unit, quarn_err_ctx *ctx) {
  if (value.stream == nullptr) {
    own_ = quarn_stream_new_romem(value.octets(), static_cast<std::int64_t>(value.length), 0, ctx);
    return own_ == nullptr ? Status::failure() : Status::success();
  }
  own_ = quarn_memstream_dup_readonly(value.stream, ctx);
  if (own_ != nullptr) return Status::success();
  // Short of memory. A memory stream is not rewound: it may be the one that is being written.
  if (quarn_stream_gettype(value.stream) == QUARN_STREAM_MEMORY) return Status::failure();
  lent_ = value.stream;
  if (quarn_stream_ctrl(lent_, QUARN_STREAM_REWIND, nullptr, nullptr) == 1) {
    return Status::success();
  }
  return unit.fail(ctx, QUARN_STREAM_ERROR_REWIND);
}

bool Source::at_end() const {
  return quarn_stream_ctrl(stream(), QUARN_STREAM_ATEND, nullptr, nullptr) == 1;
}

Status copy_string(StringValue *value, std::int64_t count, std::uint8_t *out, const Unit &unit) {
  if (count < 0 || (out == nullptr && count > 0)) return Status::failure();
  if (value->stream == nullptr) {
    if (count > 0) std::memcpy(out, value->octets(), static_cast<std::size_t>(count));
    return Status::success();
  }
  Source source;
  if (const Status status = source.open(*value, unit, nullptr); !status) return status;
  return Status::from(quarn_stream_readn(source.stream(), out, count, nullptr));
}

Status view_string(StringValue &value,
                   std::uint64_t count,
                   Buffer &storage,
                   const std::uint8_t *&octets,
                   const Unit &unit) {
  octets = value.octets();
  if (value.stream == nullptr) return Status::success();
  Source source;
  if (const Status status = source.open(value, unit, nullptr); !status) return status;
  Reader in(source.stream(), nullptr);
  const Status status = in.octets(storage, count, unit);
  octets = storage.data();
  return status;
}

Status read_string(StringValue *value,
                   int mode,
                   std::uint8_t *out,
                   std::int64_t size,
                   std::uint64_t *count,
                   const Unit &unit,
                   quarn_err_ctx *ctx) {
  constexpr int kFromStart = 1;
  constexpr int kGoOn = 2;
  if (count != nullptr) *count = 0;
  if (value == nullptr || (out == nullptr && size > 0)) return unit.fail(ctx, QUARN_ERROR_ARGUMENT);
  if (mode != kFromStart && mode != kGoOn) return unit.fail(ctx, QUARN_STREAM_ERROR_OPERATION);
  if (size < 0) return unit.fail(ctx, QUARN_ERROR_RANGE);
  if (value->stream != nullptr) {
    if (mode == kFromStart &&
        quarn_stream_ctrl(value->stream, QUARN_STREAM_REWIND, nullptr, nullptr) != 1) {
      return unit.fail(ctx, QUARN_STREAM_ERROR_REWIND);
    }
    return Status::from(quarn_stream_read(value->stream, out, size, count, ctx));
  }
  if (mode == kFromStart) value->position = 0;
  const std::size_t step =
      std::min(static_cast<std::size_t>(size), value->length - value->position);
  if (step > 0) std::memcpy(out, value->octets() + value->position, step);
  value->position += step;
  if (count != nullptr) *count = step;
  return Status::success();
}

Status decode_inside(
    StringValue *value, std::int64_t type_id, void **object, const Unit &unit, quarn_err_ctx *ctx) {
  if (object != nullptr) *object = nullptr;
  if (value == nullptr || object == nullptr) return unit.fail(ctx, QUARN_ERROR_ARGUMENT);
  const Type *type = find_type(type_id);
  if (type == nullptr) {
    // Twice: as the failure of the decoder, and in place of the code of the type it was asked for.
    return unit.pass_on(unit.fail(ctx, QUARN_ASN1_ERROR_TYPE), ctx, QUARN_ASN1_ERROR_TYPE);
  }
  const auto decode_from = [&](Reader &in) {
    const Status status = decode(*type, in, object);
    return status ? status : unit.pass_on(status, ctx, type->decode_error(), in.offset());
  };
  if (value->stream == nullptr) {
    Reader in(value->octets(), value->length, ctx);
    const Status status = decode_from(in);
    if (!status || in.left() == 0) return status;
    return unit.fail(ctx, QUARN_ASN1_ERROR_TRAILING, in.offset());
  }
  Source source;
  Status status = source.open(*value, unit, ctx);
  if (!status) return status;
  Reader in(source.stream(), ctx);
  status = decode_from(in);
  in.settle();
  if (!status || source.at_end()) return status;
  return unit.fail(ctx, QUARN_ASN1_ERROR_TRAILING, in.offset());
}

}  // namespace quarn::asn1
