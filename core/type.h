// The registry: what the library knows of each type id, and the operations that go through it.
#ifndef QUARN_CORE_TYPE_H
#define QUARN_CORE_TYPE_H

#include <cstdint>

#include "core/header.h"
#include "quarn_asn1/ids.h"

namespace quarn::asn1 {

struct Schema;
struct Type;

// How the values of a type are freed, measured, written and read. Rows of the registry that differ
// only in tag and codes share one. The codec of a type that writes its own identifier (a CHOICE, an
// open type, a string of either form) has encode and decode; the others leave them null and get
// identifier and length from their row.
//
// A content length handed to encode_content is what content_length gave. decode_content stores null
// first and a new value on success; with kIndefinite it consumes the end-of-contents too.
//
// Types without a tag of their own, whose values begin with one of several, also say which these
// are and decode a value whose identifier has been read; for the others the row and decode_content
// serve.
struct Codec {
  void (*free)(const Type &type, void *value);
  std::int64_t (*content_length)(const Type &type, const void *value);
  std::int64_t (*length)(const Type &type, const void *value);
  Status (*encode_content)(const Type &type, Writer &out, void *value, std::int64_t length);
  Status (*decode_content)(
      const Type &type, Reader &in, void **value, bool primitive, std::int64_t length);
  Status (*encode)(const Type &type, Writer &out, void *value);
  Status (*decode)(const Type &type, Reader &in, void **value);
  bool (*matches)(const Type &type, const Identifier &identifier) = nullptr;
  Status (*decode_rest)(const Type &type,
                        Reader &in,
                        const Identifier &identifier,
                        void **value) = nullptr;
};

// One row of the registry. form: 1 primitive, 0 constructed, -1 decided by each value.
struct Type {
  const char *name;
  const Codec *codec;
  const Schema *schema;  // what the codec goes by, of a structured type; else null
  std::uint64_t tag_number;
  int error_code;
  std::uint32_t tag_class;
  std::int32_t form;
  bool tag_untold = false;  // callers are told of no tag, and of either form

  int encode_error() const { return error_code; }
  int decode_error() const { return error_code + 1; }
};

// The rows, by id, and behind them those of types that only stand inside others and that callers
// have no id for. Defined on the top floor, in modules/.
extern const Type kTypes[];

// The row of an id, or null when there is none.
inline const Type *find_type(std::int64_t id) {
  return id < 0 || id >= QUARN_ASN1_TYPE_COUNT ? nullptr : &kTypes[id];
}
// The row of an id that is known to be good.
inline const Type &type_of(quarn_asn1_type_id id) {
  return kTypes[id];
}

// Whole elements. The row's own codec, or identifier and length around its content codec.
Status encode(const Type &type, Writer &out, void *value);
Status decode(const Type &type, Reader &in, void **value);
Status decode_around_content(const Type &type, Reader &in, void **value);
// Octets of the whole element; kIndefinite, kNoLength.
std::int64_t length_of(const Type &type, const void *value);
std::int64_t content_length_of(const Type &type, const void *value);
// Content alone, for components under a tag of their own. Nested values count towards the limit.
Status encode_content(const Type &type, Writer &out, void *value, std::int64_t length);
Status decode_content(
    const Type &type, Reader &in, void **value, bool primitive, std::int64_t length);
void free_value(const Type &type, void *value);

// A copy of a value: what its encoding decodes to.
// around: values that the copy is to stand inside, which count towards the limit.
Status duplicate(const Type &type, void *value, void **copy, quarn_err_ctx *ctx, int around = 0);

// Whether a value can begin with an identifier.
bool matches(const Type &type, const Identifier &identifier);
// A value whose identifier has been read, of a type whose codec can do this.
Status decode_rest(const Type &type, Reader &in, const Identifier &identifier, void **value);
// Identifier and length of a row for content of a length.
Status write_header(const Type &type, Writer &out, std::int64_t length);

// Codecs of rows that cannot do something.
Status cannot_encode(const Type &type, Writer &out, void *value);
Status cannot_decode(const Type &type, Reader &in, void **value);
Status cannot_decode_content(
    const Type &type, Reader &in, void **value, bool primitive, std::int64_t length);
void free_nothing(const Type &type, void *value);

// Owns a value of any type until it is released.
class Value {
 public:
  explicit Value(const Type &type, void *value = nullptr) : type_(type), value_(value) {}
  Value(const Value &) = delete;
  Value &operator=(const Value &) = delete;
  ~Value() { free_value(type_, value_); }

  void *get() const { return value_; }
  void **out() { return &value_; }
  void *release() {
    void *value = value_;
    value_ = nullptr;
    return value;
  }

 private:
  const Type &type_;
  void *value_;
};

}  // namespace quarn::asn1

#endif
