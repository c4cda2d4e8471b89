// Decoding by schema.
//
// A mandatory component without a tag of its own in the schema is decoded whole, by its row. From a
// component that may be absent on, the next identifier is read first and offered to one component
// after another, until a mandatory one takes it:
//
//     30 0C  06 03 55 1D 13   04 05 ...      Extension
//            extnID           identifier in hand: not critical's, whose default it thus holds,
//            decoded whole    but extnValue's
#include "core/engine.h"
#include "types/any.h"
#include "types/list.h"
#include "util/memory.h"

namespace quarn::asn1 {

namespace {

Status fail(const Schema &schema, const Reader &in, int code, int line = __builtin_LINE()) {
  return schema.unit.fail(in.ctx(), code, in.offset(), line);
}

// Hands the result of a step up; a failure gets a record of code.
Status note(
    const Schema &schema, const Reader &in, Status status, int code, int line = __builtin_LINE()) {
  return status ? status : schema.unit.pass_on(status, in.ctx(), code, in.offset(), line);
}

bool is_end_of_contents(const Field &field, const void *value) {
  return field.type_id == QUARN_ASN1_ANY &&
         static_cast<const quarn_asn1_any *>(value)->end_of_contents;
}

bool field_matches(const Field &field, const Identifier &identifier) {
  if (field.tagging == Tagging::plain) return matches(type_of(field.type()), identifier);
  if (!identifier.is(kContext, field.tag)) return false;
  return field.tagging == Tagging::implicit || !identifier.primitive;
}

// A component whole, by its row. That no end-of-contents is taken for an open type is the caller's
// to see.
Status decode_whole(const Schema &schema, const Field &field, Reader &in, void **value) {
  const Type &type = type_of(field.type());
  return note(schema, in, decode(type, in, value), type.decode_error());
}

// What stands inside an explicit tag.
Status decode_inside_tag(
    const Schema &schema, const Field &field, Reader &in, std::int64_t length, void **value) {
  const std::uint64_t start = in.count();
  const Status status = decode_whole(schema, field, in, value);
  if (!status) return status;
  if (is_end_of_contents(field, *value)) return fail(schema, in, QUARN_ASN1_ERROR_ITEM);
  if (length == kIndefinite) {
    return note(schema, in, read_end_of_contents(in), QUARN_ASN1_ERROR_READ_END);
  }
  if (in.count() - start == static_cast<std::uint64_t>(length)) return status;
  return fail(schema, in, QUARN_ASN1_ERROR_ITEM_LENGTH);
}

// A field whose identifier has been read. code is that of a failure inside it.
Status decode_field_rest(const Schema &schema,
                         const Field &field,
                         Reader &in,
                         const Identifier &identifier,
                         int code,
                         void **value) {
  const Type &type = type_of(field.type());
  if (field.tagging == Tagging::plain && type.codec->decode_rest != nullptr) {
    return note(schema, in, decode_rest(type, in, identifier, value), code);
  }
  std::int64_t length = 0;
  const Status status = read_length(in, length);
  if (!status) return note(schema, in, status, QUARN_ASN1_ERROR_READ_LENGTH);
  if (field.tagging == Tagging::explicitly) {
    return decode_inside_tag(schema, field, in, length, value);
  }
  return note(schema, in, decode_content(type, in, value, identifier.primitive, length), code);
}

// Fills the components of one record.
class RecordDecoder {
 public:
  RecordDecoder(const Schema &schema, Reader &in, void *record, std::int64_t length)
      : schema_(schema),
        in_(in),
        components_(components(record)),
        length_(length),
        start_(in.count()) {}

  Status fields() {
    void **component = components_;
    for (const Field &field : schema_.fields) {
      const Status status = take(field, component++);
      if (!status) return status;
    }
    return finish();
  }

  // The open type ends the record: in the indefinite form, an end-of-contents in its place does.
  Status open_tail() {
    Status status = take_whole(schema_.fields[0], components_[0]);
    if (!status) return status;
    void *&tail = components_[1];
    if (length_ == kIndefinite || !at_end()) {
      status = decode_whole(schema_, schema_.fields[1], in_, &tail);
      if (!status) return status;
    }
    if (length_ != kIndefinite) return at_exact_end() ? status : fail_with_length();
    if (!is_end_of_contents(schema_.fields[1], tail)) return read_end();
    free_value(type_of(schema_.fields[1].type()), tail);
    tail = nullptr;
    return status;
  }

 private:
  std::uint64_t taken() const { return in_.count() - start_; }
  bool at_exact_end() const { return taken() == static_cast<std::uint64_t>(length_); }
  bool at_end() const {
    return ended_ || (length_ != kIndefinite && taken() >= static_cast<std::uint64_t>(length_));
  }

  Status fail_with_item() { return fail(schema_, in_, QUARN_ASN1_ERROR_ITEM); }
  Status fail_with_length() { return fail(schema_, in_, QUARN_ASN1_ERROR_ITEM_LENGTH); }

  Status read_end() {
    return note(schema_, in_, read_end_of_contents(in_), QUARN_ASN1_ERROR_READ_END);
  }

  // Components beyond the end of the record are found out before anything more is read.
  Status check_end() {
    const bool beyond = length_ != kIndefinite && at_end() && !at_exact_end();
    return beyond ? fail_with_length() : Status::success();
  }

  // Reads the next identifier, unless there is none or it is in hand.
  Status look() {
    if (in_hand_ || at_end()) return Status::success();
    Status status = read_identifier(in_, identifier_);
    if (!status) return note(schema_, in_, status, QUARN_ASN1_ERROR_READ_IDENTIFIER);
    in_hand_ = length_ != kIndefinite || !identifier_.is_end_of_contents();
    if (in_hand_) return status;
    ended_ = true;
    status = read_end_of_contents_length(in_);
    return note(schema_, in_, status, QUARN_ASN1_ERROR_READ_END);
  }

  Status take(const Field &field, void **component) {
    if (field.mandatory()) {
      const bool whole = field.tagging == Tagging::plain && !in_hand_;
      return whole ? take_whole(field, *component) : take_expected(field, component);
    }
    Status status = look();
    if (!status) return status;
    if (in_hand_ && field_matches(field, identifier_)) {
      status = take_rest(field, component);
      return status ? look() : status;
    }
    if (take_default(field, component)) return status;
    return fail(schema_, in_, QUARN_ERROR_NO_MEMORY);
  }

  Status take_whole(const Field &field, void *&component) {
    if (at_end()) return fail_with_item();
    const Status status = decode_whole(schema_, field, in_, &component);
    if (!status) return status;
    return is_end_of_contents(field, component) ? fail_with_item() : check_end();
  }

  // Here the form counts, too: there is nothing else that the identifier could be.
  Status take_expected(const Field &field, void **component) {
    const Status status = look();
    if (!status) return status;
    if (!in_hand_ || !field_matches(field, identifier_)) return fail_with_item();
    const Type &type = type_of(field.type());
    const bool any_form = type.form == -1 || field.tagging == Tagging::explicitly;
    if (!any_form && identifier_.primitive != (type.form != 0)) return fail_with_item();
    return take_rest(field, component);
  }

  Status take_rest(const Field &field, void **component) {
    in_hand_ = false;
    const int code = type_of(field.type()).decode_error();
    const Status status = decode_field_rest(schema_, field, in_, identifier_, code, component);
    return status ? check_end() : status;
  }

  Status finish() {
    const Status status = look();
    return status && in_hand_ ? fail_with_item() : status;
  }

  const Schema &schema_;
  Reader &in_;
  void **components_;
  std::int64_t length_;
  std::uint64_t start_;
  Identifier identifier_{};
  bool in_hand_ = false;  // identifier_ belongs to none of the components so far
  bool ended_ = false;    // the end-of-contents has been read
};

// What every decoder of structured content checks first. Stores null.
Status begin(const Type &type, Reader &in, void **value, bool primitive, std::int64_t length) {
  if (value != nullptr) *value = nullptr;
  if (in.is_null() || value == nullptr) return fail(*type.schema, in, QUARN_ERROR_ARGUMENT);
  if (primitive) return fail(*type.schema, in, QUARN_ASN1_ERROR_FORM);
  return length < kIndefinite ? fail(*type.schema, in, QUARN_ERROR_RANGE) : Status::success();
}

}  // namespace

Status decode_record_content(
    const Type &type, Reader &in, void **value, bool primitive, std::int64_t length) {
  const Schema &schema = *type.schema;
  Status status = begin(type, in, value, primitive, length);
  if (!status) return status;
  Value record(type, new_record(schema));
  if (record.get() == nullptr) return fail(schema, in, QUARN_ERROR_NO_MEMORY);
  RecordDecoder decoder(schema, in, record.get(), length);
  status = schema.kind == Kind::open_tail ? decoder.open_tail() : decoder.fields();
  if (status) *value = record.release();
  return status;
}

Status decode_list_value(
    const Type &type, Reader &in, void **value, bool primitive, std::int64_t length) {
  const Schema &schema = *type.schema;
  return decode_list(in, reinterpret_cast<quarn_asn1_list **>(value), type_of(schema.element()),
                     primitive, length, schema.least);
}

bool choice_matches(const Type &type, const Identifier &identifier) {
  for (const Field &field : type.schema->fields) {
    if (field_matches(field, identifier)) return true;
  }
  return false;
}

Status decode_choice_rest(const Type &type,
                          Reader &in,
                          const Identifier &identifier,
                          void **value) {
  const Schema &schema = *type.schema;
  std::uint32_t index = 0;
  while (index < schema.fields.size() && !field_matches(schema.fields[index], identifier)) index++;
  if (index == schema.fields.size()) return fail(schema, in, QUARN_ASN1_ERROR_ITEM);
  Value choice(type, util::allocate<Choice>());
  if (choice.get() == nullptr) return fail(schema, in, QUARN_ERROR_NO_MEMORY);
  auto &made = *static_cast<Choice *>(choice.get());
  made.index = index;
  // A CHOICE of strings does not tell its strings apart, neither do its failures.
  const Field &field = schema.fields[index];
  const Type &blamed = schema.kind == Kind::string_choice ? type : type_of(field.type());
  const Status status =
      decode_field_rest(schema, field, in, identifier, blamed.decode_error(), &made.value);
  if (status) *value = choice.release();
  return status;
}

Status decode_choice(const Type &type, Reader &in, void **value) {
  if (value != nullptr) *value = nullptr;
  if (in.is_null() || value == nullptr) return fail(*type.schema, in, QUARN_ERROR_ARGUMENT);
  Identifier identifier{};
  const Status status = read_identifier(in, identifier);
  if (!status) return note(*type.schema, in, status, QUARN_ASN1_ERROR_READ_IDENTIFIER);
  return decode_choice_rest(type, in, identifier, value);
}

}  // namespace quarn::asn1
