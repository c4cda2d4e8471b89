// The encodings of strings: decoding with and without segments, and both ways of writing.
#include "types/string.h"

#include <utility>

#include "types/sink.h"

namespace quarn::asn1 {

namespace {

// Octets of a stream are written in segments of this size.
constexpr std::uint64_t kPiece = 8192;

constexpr std::uint32_t kMostUnusedBits = 7;

// Reads the octet that counts unused bits, if the content begins with one. count, the octets of the
// content, becomes those of the string.
Status read_unused_bits(const SegmentRules &rules,
                        Reader &in,
                        std::uint64_t &count,
                        std::uint32_t &unused_bits) {
  if (!rules.counts_unused_bits) return Status::success();
  if (count == 0) return rules.unit.fail(in.ctx(), QUARN_ASN1_ERROR_LENGTH, in.offset());
  std::uint8_t unused = 0;
  if (const Status status = in.octet(unused); !status) return status;
  count--;
  if (unused > (count > 0 ? kMostUnusedBits : 0)) {
    return rules.unit.fail(in.ctx(), QUARN_ASN1_ERROR_UNUSED_BITS, in.offset());
  }
  unused_bits = unused;
  return Status::success();
}

// Walks the segments of one string. It recurses once for each level of segments in segments, up to
// quarn_get_recursive_level(); nothing large may stand in its frames.
class Segments {
 public:
  Segments(const SegmentRules &rules, Reader &in, Sink &sink, bool in_open_type = false)
      : rules_(rules), in_(in), sink_(sink), in_open_type_(in_open_type) {}

  Status content(int level, bool primitive, std::int64_t length) {
    unused_bits_ = 0;
    if (length == kIndefinite) {
      return primitive ? fail(QUARN_ASN1_ERROR_INDEFINITE) : indefinite(level);
    }
    if (length < 0) return fail(QUARN_ASN1_ERROR_LENGTH);
    const auto count = static_cast<std::uint64_t>(length);
    return primitive ? octets(count) : definite(level, count);
  }

  // Those of the segment read last.
  std::uint32_t unused_bits() const { return unused_bits_; }

 private:
  Status fail(int code) { return rules_.unit.fail(in_.ctx(), code, in_.offset()); }

  static bool at_limit(int level) { return level >= quarn_get_recursive_level(); }

  Status octets(std::uint64_t count) {
    if (const Status status = read_unused_bits(rules_, in_, count, unused_bits_); !status) {
      return status;
    }
    return sink_.take(in_, count, rules_.unit);
  }

  Status indefinite(int level) {
    if (at_limit(level)) return note(rules_, Status::too_deep(), in_, rules_.indefinite_code);
    for (;;) {
      const std::uint32_t unused_before = unused_bits_;
      Segment segment{};
      Status status = read_segment(rules_, in_, segment);
      if (status && segment.is_end) return status;
      if (status) status = inside_indefinite(level, segment);
      if (status && unused_before != 0) status = fail(QUARN_ASN1_ERROR_UNUSED_BITS);
      if (!status) return note(rules_, status, in_, rules_.indefinite_code);
    }
  }

  // An open type has nothing in its innermost level; see pass_content().
  Status inside_indefinite(int level, const Segment &segment) {
    if (in_open_type_ && at_limit(level + 1)) return Status::too_deep();
    return content(level + 1, segment.primitive, segment.length);
  }

  Status definite(int level, std::uint64_t length) {
    if (length == 0 && !rules_.empty_is_a_level) return Status::success();
    if (at_limit(level)) return Status::too_deep();
    const std::uint64_t start = in_.count();
    while (in_.count() - start < length) {
      if (unused_bits_ != 0) return fail(QUARN_ASN1_ERROR_UNUSED_BITS);
      const Status status = read_strict_segment(
          rules_, in_, [this, level](bool primitive, std::int64_t segment_length) {
            return content(level + 1, primitive, segment_length);
          });
      if (!status) return status;
    }
    return in_.count() - start == length ? Status::success() : fail(QUARN_ASN1_ERROR_LENGTH);
  }

  const SegmentRules &rules_;
  Reader &in_;
  Sink &sink_;
  bool in_open_type_;
  std::uint32_t unused_bits_ = 0;
};

// Reads the second octet of an end-of-contents.
Status read_end(const SegmentRules &rules, Reader &in) {
  std::uint8_t octet = 0;
  if (const Status status = in.octet(octet); !status) {
    return rules.cut_end_code == 0 ? Status::failure()
                                   : note(rules, status, in, rules.cut_end_code);
  }
  return octet == 0 ? Status::success() : note(rules, Status::failure(), in, rules.bad_end_code);
}

}  // namespace

Status note(const SegmentRules &rules, Status status, const Reader &in, int code) {
  return code == 0 ? status : rules.unit.pass_on(status, in.ctx(), code, in.offset());
}

Status read_segment(const SegmentRules &rules, Reader &in, Segment &out) {
  const Unit &unit = rules.unit;
  Identifier identifier{};
  Status status = read_identifier(in, identifier);
  if (!status) return unit.pass_on(status, in.ctx(), QUARN_ASN1_ERROR_READ_IDENTIFIER, in.offset());
  out.is_end = identifier.is_end_of_contents();
  if (out.is_end) return read_end(rules, in);
  if (!identifier.is(kUniversal, static_cast<std::uint64_t>(rules.tag_number))) {
    return unit.fail(in.ctx(), QUARN_ASN1_ERROR_ITEM, in.offset());
  }
  out.primitive = identifier.primitive;
  status = read_length(in, out.length);
  if (!status) return unit.pass_on(status, in.ctx(), QUARN_ASN1_ERROR_READ_LENGTH, in.offset());
  return status;
}

namespace {

// One run of octets in memory, as nearly every string is: the value is made at once.
Status decode_run(const SegmentRules &rules, Reader &in, void **value, std::uint64_t count) {
  std::uint32_t unused_bits = 0;
  const Status status = read_unused_bits(rules, in, count, unused_bits);
  if (!status) return status;
  if (count > in.left()) return in.short_read();
  StringValue *made = new_string(in.next(), count);
  if (made == nullptr) return rules.unit.fail(in.ctx(), QUARN_ERROR_NO_MEMORY, in.offset());
  in.advance(count);
  made->unused_bits = unused_bits;
  *value = made;
  return status;
}

}  // namespace

Status decode_string_content(
    const SegmentRules &rules, Reader &in, void **value, bool primitive, std::int64_t length) {
  if (value != nullptr) *value = nullptr;
  if (in.is_null() || value == nullptr) return rules.unit.fail(in.ctx(), QUARN_ERROR_ARGUMENT);
  if (primitive && length >= 0 && in.in_memory()) {
    return decode_run(rules, in, value, static_cast<std::uint64_t>(length));
  }
  // The octets are collected behind the room of the value, and so become a part of it in place.
  Buffer block;
  if (!block.start(sizeof(StringValue))) {
    return rules.unit.fail(in.ctx(), QUARN_ERROR_NO_MEMORY, in.offset());
  }
  block.extend(sizeof(StringValue));
  Sink sink(block);
  Segments segments(rules, in, sink);
  const Status status = segments.content(0, primitive, length);
  if (!status) return status;
  const std::size_t count = block.size() - sizeof(StringValue);
  auto *made = new (block.release()) StringValue;
  made->length = count;
  made->unused_bits = segments.unused_bits();
  *value = made;
  return status;
}

Status decode_string_content_into(const SegmentRules &rules,
                                  Reader &in,
                                  quarn_stream *destination,
                                  void **value,
                                  bool primitive,
                                  std::int64_t length) {
  if (value != nullptr) *value = nullptr;
  // A stream that was written to the end that it is read from would never end.
  if (in.is_null() || destination == nullptr || value == nullptr || destination == in.stream()) {
    return rules.unit.fail(in.ctx(), QUARN_ERROR_ARGUMENT);
  }
  util::Block<StringValue> made(new_string(0));
  if (made == nullptr) return rules.unit.fail(in.ctx(), QUARN_ERROR_NO_MEMORY, in.offset());
  Writer out(destination, in.ctx());
  Sink sink(&out);
  Segments segments(rules, in, sink);
  const Status status = segments.content(0, primitive, length);
  if (!status) return status;
  made->stream = destination;
  made->unused_bits = segments.unused_bits();
  *value = made.release();
  return status;
}

Status pass_octetstring_content(Reader &in,
                                Writer *copy,
                                bool in_open_type,
                                bool primitive,
                                std::int64_t length,
                                std::uint64_t &count) {
  Sink sink(copy);
  Segments segments(kOctetRules, in, sink, in_open_type);
  const Status status = segments.content(0, primitive, length);
  count = sink.count();
  return status;
}

Status decode_string(const SegmentRules &rules, Reader &in, void **value) {
  if (value != nullptr) *value = nullptr;
  return read_strict_segment(rules, in, [&](bool primitive, std::int64_t length) {
    return decode_string_content(rules, in, value, primitive, length);
  });
}

Status decode_string_into(const SegmentRules &rules,
                          Reader &in,
                          quarn_stream *destination,
                          void **value) {
  if (value != nullptr) *value = nullptr;
  return read_strict_segment(rules, in, [&](bool primitive, std::int64_t length) {
    return decode_string_content_into(rules, in, destination, value, primitive, length);
  });
}

Status gather_octets(Reader &in, bool primitive, std::int64_t length, Buffer &out) {
  Sink sink(out);
  return Segments(kOctetRules, in, sink).content(0, primitive, length);
}

Status encode_string(const SegmentRules &rules,
                     const Type &type,
                     Writer &out,
                     void *value,
                     int measure_code,
                     int identifier_code) {
  const std::int64_t length = content_length_of(type, value);
  if (length == kNoLength) return rules.unit.fail(out.ctx(), measure_code, out.offset());
  if (out.is_null()) return rules.unit.fail(out.ctx(), QUARN_ERROR_ARGUMENT);
  Status status = write_identifier(out, type.tag_class, length != kIndefinite,
                                   static_cast<std::int64_t>(type.tag_number));
  if (!status && identifier_code == 0) return status;
  if (!status) return rules.unit.pass_on(status, out.ctx(), identifier_code);
  status = write_length(out, length);
  if (!status) return rules.unit.pass_on(status, out.ctx(), QUARN_ASN1_ERROR_WRITE_LENGTH);
  return encode_content(type, out, value, length);
}

Status write_string(const SegmentRules &rules,
                    Writer &out,
                    StringValue &value,
                    std::uint64_t count) {
  if (value.stream == nullptr) {
    if (count != value.length) return rules.unit.fail(out.ctx(), QUARN_ERROR_COUNT, out.offset());
    return out.octets(value.octets(), count);
  }
  Source source;
  Status status = source.open(value, rules.unit, out.ctx());
  if (!status) return status;
  std::uint64_t copied = 0;
  status = out.from_stream(source.stream(), count, copied);
  if (!status) return status;
  // A string that is written to the stream which holds it has octets behind it now.
  const bool is_all = value.stream == out.stream() || source.at_end();
  if (copied == count && is_all) return status;
  return rules.unit.fail(out.ctx(), QUARN_ERROR_COUNT, out.offset());
}

Status write_segment(const SegmentRules &rules,
                     Writer &out,
                     const std::uint8_t *octets,
                     std::uint64_t count,
                     std::uint32_t unused_bits) {
  Status status = write_identifier(out, kUniversal, true, rules.tag_number);
  if (!status) return rules.unit.pass_on(status, out.ctx(), QUARN_ASN1_ERROR_WRITE_IDENTIFIER);
  const std::int64_t before = rules.counts_unused_bits ? 1 : 0;
  status = write_length(out, static_cast<std::int64_t>(count) + before);
  if (!status) return rules.unit.pass_on(status, out.ctx(), rules.write_length_code);
  const auto unused = static_cast<std::uint8_t>(unused_bits);
  if (rules.counts_unused_bits) status = out.octets(&unused, 1);
  return status ? out.octets(octets, count) : status;
}

namespace {

struct Piece {
  std::uint8_t *octets;
  std::uint64_t count = 0;
};

// Writes what the source gives as segments. Only the last segment of a BIT STRING may have unused
// bits, so that one is held back until it is known whether another follows.
Status write_pieces(
    const SegmentRules &rules, Writer &out, const Source &source, Piece next, Piece &held) {
  for (;;) {
    Status status = Status::from(quarn_stream_read(
        source.stream(), next.octets, static_cast<std::int64_t>(kPiece), &next.count, out.ctx()));
    if (!status || next.count == 0) return status;
    if (rules.counts_unused_bits) std::swap(next, held);
    if (next.count > 0) status = write_segment(rules, out, next.octets, next.count, 0);
    if (!status) return status;
  }
}

}  // namespace

Status write_segments(const SegmentRules &rules, Writer &out, StringValue &value) {
  quarn_err_ctx *ctx = out.ctx();
  // Without a length nothing would end the copying of a stream to itself.
  if (value.stream != nullptr && value.stream == out.stream()) {
    return rules.unit.fail(ctx, QUARN_ERROR_ARGUMENT, out.offset());
  }
  const util::Block<std::uint8_t> room(util::allocate_array<std::uint8_t>(2 * kPiece));
  if (room == nullptr) return rules.unit.fail(ctx, QUARN_ERROR_NO_MEMORY, out.offset());
  Source source;
  Status status = source.open(value, rules.unit, ctx);
  if (!status) return status;
  Piece held{room.get()};
  status = write_pieces(rules, out, source, Piece{room.get() + kPiece}, held);
  if (!status) return status;
  if (!source.at_end()) return rules.unit.fail(ctx, QUARN_STREAM_ERROR_NOTATEND, out.offset());
  if (held.count > 0) {
    status = write_segment(rules, out, held.octets, held.count, value.unused_bits);
    if (!status) return status;
  }
  status = write_end_of_contents(out);
  return status ? status : rules.unit.pass_on(status, ctx, QUARN_ASN1_ERROR_WRITE_END);
}

}  // namespace quarn::asn1
