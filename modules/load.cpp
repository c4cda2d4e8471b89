// Signed objects from files and from parts.
#include "modules/load.h"

#include "core/build.h"
#include "core/type.h"
#include "util/memory.h"

namespace quarn::asn1 {

namespace {

void *decode_all(quarn_asn1_type_id id,
                 const std::uint8_t *octets,
                 std::int64_t count,
                 quarn_err_ctx *ctx) {
  if (count < 1) return nullptr;
  const Type &type = type_of(id);
  Reader in(octets, static_cast<std::size_t>(count), ctx);
  Value value(type);
  if (!decode(type, in, value.out()) || in.left() != 0) return nullptr;
  return value.release();
}

}  // namespace

void *load(quarn_asn1_type_id type,
           std::initializer_list<const char *> labels,
           const std::uint8_t *data,
           std::int64_t length,
           quarn_err_ctx *ctx) {
  if (data == nullptr || length < 1) return nullptr;
  if (data[0] == 0x30) return decode_all(type, data, length, ctx);
  const char *text = reinterpret_cast<const char *>(data);
  std::uint8_t *octets = nullptr;
  std::int64_t count = 0;
  bool opened = false;
  if (text[0] == 'M') {
    opened = quarn_base64decode(2, text, length, &octets, &count, nullptr) == 1;
  } else if (text[0] == '-') {
    for (const char *label : labels) {
      opened = quarn_pemdecode(label, text, length, &octets, &count) == 1;
      if (opened) break;
    }
  }
  const util::Block<std::uint8_t> owned(octets);
  return opened ? decode_all(type, octets, count, ctx) : nullptr;
}

void *create_signed(quarn_asn1_type_id id,
                    const void *body,
                    const void *algorithm,
                    const void *signature) {
  const Type &type = type_of(id);
  Value made(type, build<void>(id, body, algorithm, signature));
  if (made.get() == nullptr) return nullptr;
  // Encoding keeps the octets, so that the work is not done twice.
  quarn_data_blob *octets = quarn_asn1_mem_encode(id, made.get());
  const bool sound = octets != nullptr;
  quarn_data_blob_free(octets);
  return sound ? made.release() : nullptr;
}

}  // namespace quarn::asn1
