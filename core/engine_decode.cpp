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
#include "types/diversion.h"
#include "types/integer.h"
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

bool field_matches(const Field &field, const Identifier &identifier) {
  const Type &type = type_of(field.type());
  const bool form = !field.exact() || identifier.primitive == (type.form != 0);
  if (field.tagging == Tagging::plain) return matches(type, identifier) && form;
  if (!identifier.is(kContext, field.tag)) return false;
  return field.tagging == Tagging::explicitly ? !identifier.primitive : form;
}

// A component whole, by its row. That no end-of-contents is taken for an open type is the caller's
// to see.
Status decode_whole(const Schema &schema, const Field &field, Reader &in, void **value) {
  const Type &type = type_of(field.type());
  return note(schema, in, decode(type, in, value), type.decode_error());
}

// Where the content of a message goes, if the component is that and it goes elsewhere than into the
// value; else null.
Diversion *diversion_for(const Field &field, Reader &in) {
  return field.presence == Presence::content ? in.take_diversion() : nullptr;
}

// What stands inside an explicit tag.
Status decode_inside_tag(
    const Schema &schema, const Field &field, Reader &in, std::int64_t length, void **value) {
  const std::uint64_t start = in.count();
  Diversion *diversion = diversion_for(field, in);
  const Type &type = type_of(field.type());
  const Status status =
      diversion == nullptr
          ? decode_whole(schema, field, in, value)
          : note(schema, in, divert_element(type, in, *diversion), type.decode_error());
  if (!status) return status;
  const bool is_end = diversion == nullptr ? is_end_of_contents(field, *value)
                                           : diversion->identifier.is_end_of_contents();
  if (is_end) return fail(schema, in, QUARN_ASN1_ERROR_ITEM);
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
  const bool primitive = identifier.primitive && field.tagging != Tagging::implicit_primitive;
  if (Diversion *diversion = diversion_for(field, in); diversion != nullptr) {
    return note(schema, in, divert_content(in, *diversion, primitive, length), code);
  }
  return note(schema, in, decode_content(type, in, value, primitive, length), code);
}

// The components of a type down to the first that has no components, each the first one of the one
// before. The identifier of the outermost has been read.
class FirstComponents {
 public:
  FirstComponents(const Schema &schema, Reader &in, const Type &type, const Identifier &identifier)
      : schema_(schema), in_(in), type_(&type), identifier_(identifier) {}

  // Whether all of them are there.
  Status find(bool &found) {
    found_ = true;
    Status status = Status::success();
    while (status && found_ && type_ != nullptr) status = descend();
    found = found_;
    return status;
  }

 private:
  Status descend() {
    const Schema *schema = type_->schema;
    if (schema == nullptr || schema->is_list()) return stop();
    if (schema->is_choice()) return choose(*schema);
    return schema->fields[0].mandatory() ? enter(schema->fields[0]) : stop();
  }

  // Goes on with the alternative that is there.
  Status choose(const Schema &schema) {
    for (const Field &field : schema.fields) {
      if (!field_matches(field, identifier_)) continue;
      if (field.tagging == Tagging::explicitly) return enter(field);
      type_ = &type_of(field.type());
      return Status::success();
    }
    found_ = false;
    return Status::success();
  }

  Status stop() {
    type_ = nullptr;
    return Status::success();
  }

  Status enter(const Field &field) {
    std::int64_t length = 0;
    Status status = read_length(in_, length);
    if (!status) return note(schema_, in_, status, QUARN_ASN1_ERROR_READ_LENGTH);
    found_ = length != 0;
    if (!found_) return status;
    status = read_identifier(in_, identifier_);
    if (!status) return note(schema_, in_, status, QUARN_ASN1_ERROR_READ_IDENTIFIER);
    type_ = &type_of(field.type());
    found_ = matches(*type_, identifier_);
    return status;
  }

  const Schema &schema_;
  Reader &in_;
  const Type *type_;
  Identifier identifier_;
  bool found_ = true;
};

// Whether what follows an identifier begins as a type does, without moving on.
Status look_inside(
    const Schema &schema, Reader &in, const Type &type, const Identifier &identifier, bool &found) {
  Capture octets(in);
  const Status status = FirstComponents(schema, in, type, identifier).find(found);
  if (!status || octets.give_back()) return status;
  return fail(schema, in, QUARN_ERROR_NO_MEMORY);
}

// Reads one element as quarn_asn1_readoneobject() does, to be read again from the octets kept.
Status keep_element(const Schema &schema, Reader &in, Kept &out) {
  const Capture octets(in);
  Element element{};
  if (const Status status = find_element(in, element); !status) return status;
  if (in.block() != nullptr) {
    out.share(in.block(), octets.data(), octets.size());
    return Status::success();
  }
  SharedOctets *block = SharedOctets::make(octets.size());
  if (block == nullptr) return fail(schema, in, QUARN_ERROR_NO_MEMORY);
  std::memcpy(block->octets(), octets.data(), octets.size());
  out.take(block, block->octets(), octets.size());
  return Status::success();
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

  // positions, unless it is null, receives where each component is and the octets of the content.
  Status fields(std::int64_t *positions) {
    void **component = components_;
    for (const Field &field : schema_.fields) {
      if (positions != nullptr) *positions++ = position();
      Status status = take(field, component);
      if (status && !has_size(field, *component)) {
        status = named(field, fail(schema_, in_, QUARN_ASN1_ERROR_SIZE));
      }
      if (!status) return status;
      component++;
    }
    const Status status = finish();
    if (positions != nullptr) *positions = static_cast<std::int64_t>(taken());
    return status;
  }

  // The open type ends the record: in the indefinite form, an end-of-contents in its place does.
  Status open_tail() {
    Status status = take_named(schema_.fields[0], components_[0]);
    if (!status) return status;
    void *&tail = components_[1];
    if (length_ == kIndefinite || !at_end()) {
      status = decode_whole(schema_, schema_.fields[1], in_, &tail);
      if (!status) return named(schema_.fields[1], status);
    }
    if (length_ != kIndefinite) return at_exact_end() ? status : fail_with_length();
    if (!is_end_of_contents(schema_.fields[1], tail)) return read_end();
    free_value(type_of(schema_.fields[1].type()), tail);
    tail = nullptr;
    return status;
  }

  // A body, whose octets are kept, and what signs it.
  Status signed_object(Kept &kept_body) {
    Status status = take_body(schema_.fields[0], kept_body);
    for (std::size_t i = 1; status && i < schema_.fields.size(); i++) {
      status = take(schema_.fields[i], &components_[i]);
    }
    if (!status) return status;
    if (!schema_.fields.back().mandatory()) return finish();
    if (length_ == kIndefinite) return read_end();
    return at_exact_end() ? status : fail_with_length();
  }

 private:
  std::uint64_t taken() const { return in_.count() - start_; }
  // Where the next component begins, or what ends the record.
  std::int64_t position() const {
    return static_cast<std::int64_t>(in_hand_ || ended_ ? looked_at_ : taken());
  }
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
    looked_at_ = taken();
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
      return whole ? take_named(field, *component) : named(field, take_expected(field, component));
    }
    if (field.presence == Presence::selected) return take_selected(field, component);
    Status status = look();
    if (!status) return status;
    bool found = in_hand_ && field_matches(field, identifier_);
    if (found && field.told_inside()) {
      status = named(field, look_inside(schema_, in_, type_of(field.type()), identifier_, found));
      if (!status) return status;
    }
    if (found) {
      status = named(field, take_rest(field, component));
      return status ? look() : status;
    }
    if (take_default(field, component)) return status;
    return named(field, fail(schema_, in_, QUARN_ERROR_NO_MEMORY));
  }

  // The number before it says whether it is there. One that selects nothing is refused at once.
  Status take_selected(const Field &field, void **component) {
    if (!allowed(schema_, components_)) return refuse(schema_, in_.ctx(), in_.offset());
    const Field *selector = &field;
    while (selector->presence == Presence::selected) selector--;
    const bool selected = number_in(component[selector - &field]) == field.default_value;
    return selected ? take_named(field, *component) : Status::success();
  }

  // Says in which component a failure lies.
  Status named(const Field &field, Status status) {
    if (!status) in_.step(field.name);
    return status;
  }
  Status take_named(const Field &field, void *&component) {
    return named(field, take_whole(field, component));
  }

  Status take_body(const Field &field, Kept &kept) {
    return named(field, at_end() ? fail_with_item() : keep_and_decode(field, kept));
  }

  Status keep_and_decode(const Field &field, Kept &kept) {
    const Type &type = type_of(field.type());
    Status status = keep_element(schema_, in_, kept);
    if (!status) return note(schema_, in_, status, type.decode_error());
    Reader body(in_, kept);
    status = decode_whole(schema_, field, body, components_);
    if (!status) return status;
    return body.left() == 0 ? check_end() : fail_with_length();
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
    if (field.presence == Presence::content && in_.diversion() != nullptr) {
      in_.diversion()->offset = static_cast<std::int64_t>(start_ + looked_at_);
    }
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
  std::uint64_t looked_at_ = 0;  // where identifier_, or the end-of-contents, begins
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

Status decode_components(RecordDecoder &decoder, const Schema &schema, void *record) {
  if (schema.keeps_body()) return decoder.signed_object(kept_by(schema, record)[1]);
  if (schema.kind == Kind::open_tail) return decoder.open_tail();
  return decoder.fields(schema.keep == Keep::positions ? positions_in(schema, record) : nullptr);
}

// A whole element of a type that keeps its encoding, from the octets kept.
Status decode_from_kept(const Type &type, Reader &in, void **value) {
  const Schema &schema = *type.schema;
  Identifier identifier{};
  Status status = read_identifier(in, identifier);
  if (!status) return note(schema, in, status, QUARN_ASN1_ERROR_READ_IDENTIFIER);
  if (!identifier.is(type.tag_class, type.tag_number) || identifier.primitive) {
    return fail(schema, in, QUARN_ASN1_ERROR_ITEM);
  }
  std::int64_t length = 0;
  status = read_length(in, length);
  if (!status) return note(schema, in, status, QUARN_ASN1_ERROR_READ_LENGTH);
  status = type.codec->decode_content(type, in, value, false, length);
  if (!status || in.left() == 0) return status;
  return fail(schema, in, QUARN_ASN1_ERROR_ITEM_LENGTH);
}

}  // namespace

Status refuse(const Schema &schema, quarn_err_ctx *ctx, std::int64_t offset) {
  const Restriction &restriction = *schema.restriction;
  if (restriction.general_text) return schema.unit.fail_generally(ctx, restriction.code, offset);
  return schema.unit.fail(ctx, restriction.code, offset);
}

Status decode_structured(const Type &type, Reader &in, void **value) {
  const Schema &schema = *type.schema;
  if (!schema.keeps_octets()) return decode_around_content(type, in, value);
  if (value != nullptr) *value = nullptr;
  if (in.is_null() || value == nullptr) return fail(schema, in, QUARN_ERROR_ARGUMENT);
  Keeping encoding;
  Status status = keep_element(schema, in, encoding.get());
  if (!status) return status;
  Reader octets(in, encoding.get());
  Value made(type);
  status = decode_from_kept(type, octets, made.out());
  if (!status) return status;
  encoding.move_to(*kept_by(schema, made.get()));
  *value = made.release();
  return status;
}

Status decode_record_content(
    const Type &type, Reader &in, void **value, bool primitive, std::int64_t length) {
  const Schema &schema = *type.schema;
  Status status = begin(type, in, value, primitive, length);
  if (!status) return status;
  Value record(type, new_record(schema));
  if (record.get() == nullptr) return fail(schema, in, QUARN_ERROR_NO_MEMORY);
  RecordDecoder decoder(schema, in, record.get(), length);
  status = decode_components(decoder, schema, record.get());
  if (status && !allowed(schema, record.get())) status = refuse(schema, in.ctx(), in.offset());
  if (status) *value = record.release();
  return status;
}

namespace {

Status decode_plain_list(
    const Type &type, Reader &in, void **value, bool primitive, std::int64_t length) {
  const Schema &schema = *type.schema;
  if (schema.layout != nullptr) {
    const Type &elements = type_of(QUARN_ASN1_ANYLIST);
    return elements.codec->decode_content(elements, in, value, primitive, length);
  }
  return decode_list(in, reinterpret_cast<quarn_asn1_list **>(value), type_of(schema.element()),
                     primitive, length, schema.at_least);
}

}  // namespace

Status decode_list_value(
    const Type &type, Reader &in, void **value, bool primitive, std::int64_t length) {
  const Schema &schema = *type.schema;
  if (!schema.wraps_list() && schema.restriction == nullptr) {
    return decode_plain_list(type, in, value, primitive, length);
  }
  if (value != nullptr) *value = nullptr;
  if (in.is_null() || value == nullptr) return fail(schema, in, QUARN_ERROR_ARGUMENT);
  Value made(type, schema.wraps_list() ? new_record(schema) : nullptr);
  if (schema.wraps_list() && made.get() == nullptr) return fail(schema, in, QUARN_ERROR_NO_MEMORY);
  void **list = schema.wraps_list() ? components(made.get()) : made.out();
  Status status = decode_plain_list(type, in, list, primitive, length);
  if (status && schema.layout != nullptr) status = lay_out(type, in, made.get());
  if (status && !allowed(schema, made.get())) status = refuse(schema, in.ctx(), in.offset());
  if (status) *value = made.release();
  return status;
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
  Value choice(type, new_choice(schema, index));
  if (choice.get() == nullptr) return fail(schema, in, QUARN_ERROR_NO_MEMORY);
  auto &made = *static_cast<Choice *>(choice.get());
  // A CHOICE of strings does not tell its strings apart, neither do its failures.
  const Field &field = schema.fields[index];
  const Type &blamed = schema.kind == Kind::string_choice ? type : type_of(field.type());
  Status status =
      decode_field_rest(schema, field, in, identifier, blamed.decode_error(), &made.value);
  if (!status) {
    in.step(field.name);
    return status;
  }
  if (!allowed(schema, &made)) return refuse(schema, in.ctx(), in.offset());
  *value = choice.release();
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
