// Measuring and encoding by schema.
//
// Lengths come before contents, so that a naive encoder measures what lies n levels deep n times.
// Here one walk measures a value and notes the content length of each structured value in it, in
// the order in which it comes to them; writing comes to them in the same order and takes one note
// for each.
#include "core/engine.h"
#include "core/lengths.h"
#include "types/list.h"

namespace quarn::asn1 {

namespace {

// What concerns a whole element is recorded as by the dispatch, which does it for other types.
constexpr Unit kUnit{"QUARN_ASN1"};

// The tag number that a value is written with.
std::uint64_t tag_number_of(const Type &type, const void *value) {
  if (value == nullptr || type.schema == nullptr || !type.schema->is_choice()) {
    return type.tag_number;
  }
  const Field &field = chosen(*type.schema, value);
  return field.tagging == Tagging::plain ? type_of(field.type()).tag_number : field.tag;
}

// The sum of lengths, or the first of them that is no count.
class Sum {
 public:
  void add(std::int64_t length) {
    if (sum_ < 0) return;
    if (length < 0) {
      sum_ = length;
    } else if (!add_to(sum_, length)) {
      sum_ = kNoLength;
    }
  }
  std::int64_t get() const { return sum_; }

 private:
  std::int64_t sum_ = 0;
};

// Walks a whole value, also when an early part has no definite length: each note has its place.
class Measure {
 public:
  explicit Measure(Lengths *lengths) : lengths_(lengths) {}

  std::int64_t content(const Type &type, const void *value) {
    if (type.schema == nullptr) return content_length_of(type, value);
    const std::size_t place = lengths_ == nullptr ? 0 : lengths_->reserve();
    const std::int64_t length = value == nullptr ? kNoLength : structured(*type.schema, value);
    if (lengths_ != nullptr) lengths_->set(place, length);
    return length;
  }

  std::int64_t element(const Type &type, const void *value) {
    if (type.schema == nullptr) return length_of(type, value);
    return element_length(tag_number_of(type, value), content(type, value));
  }

 private:
  std::int64_t structured(const Schema &schema, const void *value) {
    if (schema.is_choice()) {
      return inside(chosen(schema, value), static_cast<const Choice *>(value)->value);
    }
    return schema.is_list() ? list(schema, *static_cast<const quarn_asn1_list *>(value))
                            : record(schema, value);
  }

  std::int64_t record(const Schema &schema, const void *value) {
    Sum sum;
    for (std::size_t i = 0; i < schema.fields.size(); i++) {
      const Field &field = schema.fields[i];
      const void *part = component(value, i);
      if (left_out(field, part)) continue;
      sum.add(field.tagging == Tagging::plain ? element(type_of(field.type()), part)
                                              : element_length(field.tag, inside(field, part)));
    }
    return sum.get();
  }

  std::int64_t list(const Schema &schema, const quarn_asn1_list &value) {
    const Type &type = type_of(schema.element());
    Sum sum;
    for (std::int32_t i = 0; i < value.count; i++) sum.add(element(type, value.items[i]));
    return sum.get();
  }

  // What follows identifier and length of a field.
  std::int64_t inside(const Field &field, const void *value) {
    const Type &type = type_of(field.type());
    return field.tagging == Tagging::explicitly ? element(type, value) : content(type, value);
  }

  Lengths *lengths_;
};

class Encoder {
 public:
  Encoder(Writer &out, Lengths &lengths) : out_(out), lengths_(lengths) {}

  Status element(const Type &type, void *value) {
    if (type.schema == nullptr) return encode(type, out_, value);
    const std::int64_t length = lengths_.next();
    if (value == nullptr) return kUnit.fail(out_.ctx(), QUARN_ERROR_ARGUMENT, out_.offset());
    const Status status = type.schema->is_choice()
                              ? field_header(*type.schema, chosen(*type.schema, value), length)
                              : write_header(type, out_, length);
    return status ? structured(type, value, length) : status;
  }

  // The content of a structured value whose note has been taken.
  Status structured(const Type &type, void *value, std::int64_t length) {
    const Schema &schema = *type.schema;
    if (schema.is_choice()) return choice(type, *static_cast<Choice *>(value), length);
    const Status status = schema.is_list() ? list(schema, *static_cast<quarn_asn1_list *>(value))
                                           : record(schema, value);
    return status && length == kIndefinite ? end(schema) : status;
  }

 private:
  Status fail(const Schema &schema, int code, int line = __builtin_LINE()) {
    return schema.unit.fail(out_.ctx(), code, out_.offset(), line);
  }
  Status note(const Schema &schema, Status status, int code, int line = __builtin_LINE()) {
    return status ? status : schema.unit.pass_on(status, out_.ctx(), code, out_.offset(), line);
  }
  Status end(const Schema &schema) {
    return note(schema, write_end_of_contents(out_), QUARN_ASN1_ERROR_WRITE_END);
  }

  Status record(const Schema &schema, void *value) {
    for (std::size_t i = 0; i < schema.fields.size(); i++) {
      const Field &field = schema.fields[i];
      void *part = component(value, i);
      if (left_out(field, part)) continue;
      const Status status = field.tagging == Tagging::plain ? plain(schema, field, part)
                                                            : tagged(schema, field, part);
      if (!status) return status;
    }
    return Status::success();
  }

  Status list(const Schema &schema, const quarn_asn1_list &value) {
    for (std::int32_t i = 0; i < value.count; i++) {
      const Status status = plain(schema, schema.fields[0], value.items[i]);
      if (!status) return status;
    }
    return Status::success();
  }

  // A CHOICE of strings does not tell its strings apart, neither do its failures.
  Status choice(const Type &type, const Choice &value, std::int64_t length) {
    const Schema &schema = *type.schema;
    const Field &field = schema.fields[value.index];
    const Type &blamed = schema.kind == Kind::string_choice ? type : type_of(field.type());
    return inside(schema, field, value.value, length, blamed.encode_error());
  }

  Status plain(const Schema &schema, const Field &field, void *value) {
    const Type &type = type_of(field.type());
    return note(schema, element(type, value), type.encode_error());
  }

  Status tagged(const Schema &schema, const Field &field, void *value) {
    const Type &type = type_of(field.type());
    const std::int64_t length = length_inside(field, type, value);
    const Status status = field_header(schema, field, length);
    return status ? inside(schema, field, value, length, type.encode_error()) : status;
  }

  std::int64_t length_inside(const Field &field, const Type &type, const void *value) const {
    const bool whole = field.tagging == Tagging::explicitly;
    if (type.schema == nullptr) {
      return whole ? length_of(type, value) : content_length_of(type, value);
    }
    const std::int64_t content = lengths_.peek();
    return whole ? element_length(tag_number_of(type, value), content) : content;
  }

  Status field_header(const Schema &schema, const Field &field, std::int64_t length) {
    if (length < kIndefinite) return fail(schema, QUARN_ASN1_ERROR_MEASURE);
    const Type &type = type_of(field.type());
    const bool own = field.tagging == Tagging::plain;
    const bool wraps = field.tagging == Tagging::explicitly;
    const bool either = type.form == -1;
    const bool primitive = !wraps && (either ? length != kIndefinite : type.form != 0);
    const std::uint32_t tag_class = own ? type.tag_class : kContext;
    const std::uint64_t number = own ? type.tag_number : field.tag;
    if (write_short_header(out_, tag_class, primitive, number, length)) return Status::success();
    Status status = write_identifier(out_, tag_class, primitive, static_cast<std::int64_t>(number));
    if (!status) return note(schema, status, QUARN_ASN1_ERROR_WRITE_IDENTIFIER);
    status = write_length(out_, length);
    return note(schema, status, QUARN_ASN1_ERROR_WRITE_LENGTH);
  }

  // What follows identifier and length of a field. code is that of a failure inside it.
  Status inside(
      const Schema &schema, const Field &field, void *value, std::int64_t length, int code) {
    const Type &type = type_of(field.type());
    if (field.tagging == Tagging::explicitly) {
      const Status status = note(schema, element(type, value), code);
      return status && length == kIndefinite ? end(schema) : status;
    }
    if (type.schema == nullptr) {
      return note(schema, encode_content(type, out_, value, length), code);
    }
    return note(schema, structured(type, value, lengths_.next()), code);
  }

  Writer &out_;
  Lengths &lengths_;
};

// Measures a value for writing. write(Encoder &) returns Status.
template <typename Write>
Status measure_and_write(const Type &type, Writer &out, void *value, Write write) {
  if (out.is_null() || value == nullptr) return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  Lengths lengths;
  Measure(&lengths).content(type, value);
  if (lengths.out_of_memory()) {
    return kUnit.fail(out.ctx(), QUARN_ERROR_NO_MEMORY, out.offset());
  }
  Encoder encoder(out, lengths);
  return write(encoder, lengths);
}

}  // namespace

std::int64_t structured_content_length(const Type &type, const void *value) {
  return Measure(nullptr).content(type, value);
}

std::int64_t structured_length(const Type &type, const void *value) {
  return Measure(nullptr).element(type, value);
}

Status encode_structured(const Type &type, Writer &out, void *value) {
  return measure_and_write(type, out, value, [&](Encoder &encoder, Lengths & /*lengths*/) {
    return encoder.element(type, value);
  });
}

Status encode_structured_content(const Type &type, Writer &out, void *value, std::int64_t length) {
  return measure_and_write(type, out, value, [&](Encoder &encoder, Lengths &lengths) {
    if (length < kIndefinite) return kUnit.fail(out.ctx(), QUARN_ERROR_RANGE, out.offset());
    static_cast<void>(lengths.next());  // the caller's stands in its place
    return encoder.structured(type, value, length);
  });
}

}  // namespace quarn::asn1
