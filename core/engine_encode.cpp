// Measuring and encoding by schema.
//
// Lengths come before contents, so that a naive encoder measures what lies n levels deep n times.
// Here one walk measures a value and notes the content length of each structured value in it, in
// the order in which it comes to them; writing comes to them in the same order and takes one note
// for each.
//
// Octets that a value keeps are noted and written as they are. A value that is to keep its octets
// and does not is written into a block of exactly the measured size, which those inside it share.
#include <climits>

#include "core/engine.h"
#include "core/lengths.h"
#include "types/list.h"
#include "types/scratch.h"

namespace quarn::asn1 {

namespace {

// What concerns a whole element is recorded as by the dispatch, which does it for other types.
constexpr Unit kUnit{"QUARN_ASN1"};

// The tag number that a value is written with.
std::uint64_t tag_number_of(const Type &type, const void *value) {
  if (value == nullptr || type.schema == nullptr || !type.schema->is_choice()) {
    return type.tag_number;
  }
  const Field &field = told_by_identifier(*type.schema, value);
  return field.tagging == Tagging::plain && field.tag == 0 ? type_of(field.type()).tag_number
                                                           : field.tag;
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
// Values inside values are counted as by a decoder, so that no more is encoded than can be decoded:
// callers can put lists into one another as deep as they like.
class Measure {
 public:
  explicit Measure(Lengths *lengths)
      : lengths_(lengths), levels_left_(quarn_get_recursive_level()) {}

  // Whether what was measured can be written.
  Status status(const Writer &out) const {
    if (levels_left_ < 0) return Status::too_deep();
    if (!lengths_->out_of_memory()) return Status::success();
    return kUnit.fail(out.ctx(), QUARN_ERROR_NO_MEMORY, out.offset());
  }

  std::int64_t content(const Type &type, void *value) {
    if (at_depth_limit()) return kNoLength;
    if (type.schema == nullptr) return content_length_of(type, value);
    const std::size_t place = lengths_ == nullptr ? 0 : lengths_->reserve();
    levels_left_--;
    const std::int64_t length = value == nullptr ? kNoLength : structured(*type.schema, value);
    levels_left_++;
    if (lengths_ != nullptr) lengths_->set(place, length);
    return length;
  }

  std::int64_t element(const Type &type, void *value) {
    if (at_depth_limit()) return kNoLength;
    if (type.schema == nullptr) return length_of(type, value);
    if (is_kept(*type.schema, value)) return as_kept(*kept_by(*type.schema, value));
    if (is_one_element(type)) return content(type, value);
    return element_length(tag_number_of(type, value), content(type, value));
  }

 private:
  // Once it has been passed, nothing is looked into any more.
  bool at_depth_limit() {
    if (levels_left_ > 0) [[likely]]
      return false;
    levels_left_ = kPassed;
    return true;
  }

  std::int64_t as_kept(const Kept &kept) {
    if (lengths_ != nullptr) lengths_->add(kAsKept);
    return static_cast<std::int64_t>(kept.count);
  }

  std::int64_t structured(const Schema &schema, void *value) {
    const Restriction *restriction = schema.restriction;
    const bool counts = restriction == nullptr || !restriction->in_length || allowed(schema, value);
    if (!counts) return kNoLength;
    if (schema.is_choice())
      return inside(chosen(schema, value), static_cast<Choice *>(value)->value);
    return schema.is_list() ? list(schema, list_in(schema, value)) : record(schema, value);
  }

  std::int64_t record(const Schema &schema, void *value) {
    Sum sum;
    std::size_t i = 0;
    if (schema.keeps_body()) {
      const Kept &body = kept_by(schema, value)[1];
      sum.add(body.valid() ? as_kept(body) : field_length(schema.fields[0], component(value, 0)));
      i = 1;
    }
    for (; i < schema.fields.size(); i++) {
      const Field &field = schema.fields[i];
      void *part = component(value, i);
      if (!left_out(field, part)) sum.add(field_length(field, part));
    }
    return sum.get();
  }

  std::int64_t list(const Schema &schema, const quarn_asn1_list *list) {
    if (list == nullptr) return kNoLength;
    const Type &type = type_of(schema.element());
    Sum sum;
    for (std::int32_t i = 0; i < list->count; i++) sum.add(element(type, list->items[i]));
    return sum.get();
  }

  std::int64_t field_length(const Field &field, void *value) {
    if (field.tagging == Tagging::plain) return element(type_of(field.type()), value);
    return element_length(field.tag, inside(field, value));
  }

  // What follows identifier and length of a field.
  std::int64_t inside(const Field &field, void *value) {
    const Type &type = type_of(field.type());
    return field.tagging == Tagging::explicitly ? element(type, value) : content(type, value);
  }

  // Stays negative on the way up.
  static constexpr int kPassed = INT_MIN;

  Lengths *lengths_;
  int levels_left_;
};

class Encoder {
 public:
  // block: what out writes to, if that is to be kept; else null.
  Encoder(Writer &out, Lengths &lengths, SharedOctets *block = nullptr)
      : out_(out), lengths_(lengths), block_(block) {}

  Status element(const Type &type, void *value) {
    if (type.schema == nullptr) return encode(type, out_, value);
    const std::int64_t length = lengths_.next();
    if (value == nullptr) return kUnit.fail(out_.ctx(), QUARN_ERROR_ARGUMENT, out_.offset());
    if (is_one_element(type)) return structured(type, value, 0);
    if (!type.schema->keeps_octets()) return whole(type, value, length);
    return keeping(type, value, length, *kept_by(*type.schema, value));
  }

  // An element whose octets are kept: made first, if the note says so. The note decides, so that
  // measuring and writing go the same way.
  Status keeping(const Type &type, void *value, std::int64_t length, Kept &kept) {
    if (length == kAsKept) return out_.octets(kept.octets, kept.count);
    if (length < kIndefinite) return whole(type, value, length);
    if (block_ != nullptr) return keep_in_place(type, value, length, kept);
    const std::int64_t size = element_length(type.tag_number, length);
    const Status status = size < 0 ? keep_unmeasured(type, value, length, kept)
                                   : keep_in_block(type, value, length, kept, size);
    return status ? out_.octets(kept.octets, kept.count) : status;
  }

  // The content of a structured value whose note has been taken.
  Status structured(const Type &type, void *value, std::int64_t length) {
    const Schema &schema = *type.schema;
    const Restriction *restriction = schema.restriction;
    if (restriction != nullptr && !restriction->decode_only && !allowed(schema, value)) {
      return refuse(schema, out_.ctx(), out_.offset());
    }
    if (schema.is_choice()) return choice(type, *static_cast<Choice *>(value), length);
    const std::uint64_t start = out_.count();
    Status status = schema.is_list() ? list(schema, list_in(schema, value)) : record(schema, value);
    if (status && length == kIndefinite) status = end(schema);
    if (schema.keep == Keep::positions) note_position(schema, value, schema.fields.size(), start);
    return status;
  }

 private:
  void note_position(const Schema &schema, void *value, std::size_t index, std::uint64_t start) {
    positions_in(schema, value)[index] = static_cast<std::int64_t>(out_.count() - start);
  }

  // Identifier, length and content.
  Status whole(const Type &type, void *value, std::int64_t length) {
    const Status status =
        type.schema->is_choice()
            ? field_header(*type.schema, told_by_identifier(*type.schema, value), length)
            : write_header(type, out_, length);
    return status ? structured(type, value, length) : status;
  }

  // Into the block that holds what surrounds it.
  Status keep_in_place(const Type &type, void *value, std::int64_t length, Kept &kept) {
    const std::uint8_t *start = out_.next();
    const Status status = whole(type, value, length);
    const std::int64_t size = out_.next() - start;
    if (status && size == element_length(type.tag_number, length)) {
      kept.share(block_, start, static_cast<std::uint64_t>(size));
    }
    return status;
  }

  // Into a block of its own.
  Status keep_in_block(
      const Type &type, void *value, std::int64_t length, Kept &kept, std::int64_t size) {
    SharedOctets *block = SharedOctets::make(static_cast<std::size_t>(size));
    if (block == nullptr) return fail(*type.schema, QUARN_ERROR_NO_MEMORY);
    Keeping encoding;
    encoding.get().take(block, block->octets(), static_cast<std::uint64_t>(size));
    Writer room({block->octets(), static_cast<std::size_t>(size)}, &out_);
    Status status = Encoder(room, lengths_, block).whole(type, value, length);
    if (status && room.offset() != size) status = fail(*type.schema, QUARN_ERROR_COUNT);
    if (status) encoding.move_to(kept);
    return status;
  }

  // The same for what has no definite length, whose size shows when it has been written.
  Status keep_unmeasured(const Type &type, void *value, std::int64_t length, Kept &kept) {
    const Scratch scratch(out_.ctx());
    if (scratch.stream() == nullptr) return Status::failure();
    Status status = Status::success();
    {
      Writer room(scratch.stream(), out_);
      status = Encoder(room, lengths_).whole(type, value, length);
    }
    if (!status) return status;
    SharedOctets *block = SharedOctets::make(scratch.size());
    if (block == nullptr) return fail(*type.schema, QUARN_ERROR_NO_MEMORY);
    std::memcpy(block->octets(), scratch.data(), scratch.size());
    kept.take(block, block->octets(), scratch.size());
    return status;
  }

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
    const std::uint64_t start = out_.count();
    for (std::size_t i = 0; i < schema.fields.size(); i++) {
      const Field &field = schema.fields[i];
      if (schema.keep == Keep::positions) note_position(schema, value, i, start);
      void *part = component(value, i);
      Status status = Status::success();
      if (i == 0 && schema.keeps_body()) {
        status = body(schema, part, kept_by(schema, value)[1]);
      } else if (!left_out(field, part)) {
        status = field.tagging == Tagging::plain ? plain(schema, field, part)
                                                 : tagged(schema, field, part);
      }
      if (!status) {
        out_.step(field.name);
        return status;
      }
    }
    return Status::success();
  }

  Status list(const Schema &schema, const quarn_asn1_list *list) {
    if (list == nullptr) return fail(schema, QUARN_ERROR_ARGUMENT);
    for (std::int32_t i = 0; i < list->count; i++) {
      const Status status = plain(schema, schema.fields[0], list->items[i]);
      if (!status) {
        out_.step(i);
        return status;
      }
    }
    return Status::success();
  }

  // A CHOICE of strings does not tell its strings apart, neither do its failures.
  Status choice(const Type &type, const Choice &value, std::int64_t length) {
    const Schema &schema = *type.schema;
    const Field &field = chosen(schema, &value);
    const Type &blamed = schema.kind == Kind::string_choice ? type : type_of(field.type());
    const Status status = inside(schema, field, value.value, length, blamed.encode_error());
    if (!status) out_.step(field.name);
    return status;
  }

  // The first component of a signed object.
  Status body(const Schema &schema, void *value, Kept &kept) {
    const Type &type = type_of(schema.fields[0].type());
    return note(schema, keeping(type, value, lengths_.next(), kept), type.encode_error());
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

  std::int64_t length_inside(const Field &field, const Type &type, void *value) const {
    const bool whole = field.tagging == Tagging::explicitly;
    if (type.schema == nullptr) {
      return whole ? length_of(type, value) : content_length_of(type, value);
    }
    const std::int64_t content = lengths_.peek();
    if (content == kAsKept) {
      return static_cast<std::int64_t>(kept_by(*type.schema, value)->count);
    }
    return whole ? element_length(tag_number_of(type, value), content) : content;
  }

  Status field_header(const Schema &schema, const Field &field, std::int64_t length) {
    if (length < kIndefinite) return fail(schema, QUARN_ASN1_ERROR_MEASURE);
    const Type &type = type_of(field.type());
    const bool own = field.tagging == Tagging::plain;
    const bool wraps = field.tagging == Tagging::explicitly;
    const bool primitive = field.tagging == Tagging::implicit_primitive ||
                           (!wraps && (type.form == -1 ? length != kIndefinite : type.form != 0));
    const std::uint32_t tag_class = own ? type.tag_class : kContext;
    const std::uint64_t number = own && field.tag == 0 ? type.tag_number : field.tag;
    return write_header(out_, schema.unit, tag_class, primitive, number, length);
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
  SharedOctets *block_;
};

}  // namespace

std::int64_t structured_content_length(const Type &type, const void *value) {
  return Measure(nullptr).content(type, const_cast<void *>(value));
}

std::int64_t structured_length(const Type &type, const void *value) {
  return Measure(nullptr).element(type, const_cast<void *>(value));
}

Status encode_structured(const Type &type, Writer &out, void *value) {
  if (out.is_null() || value == nullptr) return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  if (is_kept(*type.schema, value)) {
    const Kept &kept = *kept_by(*type.schema, value);
    return out.octets(kept.octets, kept.count);
  }
  Lengths lengths;
  Measure measure(&lengths);
  measure.element(type, value);
  const Status status = measure.status(out);
  return status ? Encoder(out, lengths).element(type, value) : status;
}

Status encode_structured_content(const Type &type, Writer &out, void *value, std::int64_t length) {
  if (out.is_null() || value == nullptr) return kUnit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  if (length < kIndefinite) return kUnit.fail(out.ctx(), QUARN_ERROR_RANGE, out.offset());
  Lengths lengths;
  Measure measure(&lengths);
  measure.content(type, value);
  if (const Status status = measure.status(out); !status) return status;
  static_cast<void>(lengths.next());  // the caller's stands in its place
  return Encoder(out, lengths).structured(type, value, length);
}

const Kept *body_of(const Type &type, void *value) {
  Kept &body = kept_by(*type.schema, value)[1];
  if (body.valid()) return &body;
  const Type &body_type = type_of(type.schema->fields[0].type());
  void *first = component(value, 0);
  Lengths lengths;
  Measure measure(&lengths);
  measure.element(body_type, first);
  Writer nowhere(std::span<std::uint8_t>{});
  if (!measure.status(nowhere)) return nullptr;
  Encoder encoder(nowhere, lengths);
  return encoder.keeping(body_type, first, lengths.next(), body) ? &body : nullptr;
}

}  // namespace quarn::asn1
