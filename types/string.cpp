#include "types/string.h"

#include <algorithm>

namespace quarn::asn1 {

namespace {

// Octets go from stream to stream in pieces of this size.
constexpr std::uint64_t kPiece = 8192;

constexpr std::uint32_t kMostUnusedBits = 7;

Status note(const SegmentRules &rules, Status status, const Reader &in, int code) {
  return code == 0 ? status : rules.unit.pass_on(status, in.ctx(), code, in.offset());
}

// Walks the segments of one string. It recurses once for each level of segments in segments, up to
// quarn_get_recursive_level(); nothing large may stand in its frames.
class Segments {
 public:
  Segments(const SegmentRules &rules, Reader &in, Sink &sink)
      : rules_(rules), in_(in), sink_(sink) {}

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
    if (rules_.counts_unused_bits) {
      if (count == 0) return fail(QUARN_ASN1_ERROR_LENGTH);
      std::uint8_t unused = 0;
      if (const Status status = in_.octet(unused); !status) return status;
      const bool has_octets = --count > 0;
      if (unused > (has_octets ? kMostUnusedBits : 0)) return fail(QUARN_ASN1_ERROR_UNUSED_BITS);
      unused_bits_ = unused;
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
      if (status) status = content(level + 1, segment.primitive, segment.length);
      if (status && unused_before != 0) status = fail(QUARN_ASN1_ERROR_UNUSED_BITS);
      if (!status) return note(rules_, status, in_, rules_.indefinite_code);
    }
  }

  Status definite(int level, std::uint64_t length) {
    if (length == 0 && !rules_.empty_is_a_level) return Status::success();
    if (at_limit(level)) return Status::too_deep();
    const std::uint64_t start = in_.count();
    while (in_.count() - start < length) {
      if (unused_bits_ != 0) return fail(QUARN_ASN1_ERROR_UNUSED_BITS);
      Segment segment{};
      Status status = read_segment(rules_, in_, segment);
      if (status && segment.is_end) status = Status::failure();
      if (status) status = content(level + 1, segment.primitive, segment.length);
      if (!status) return note(rules_, status, in_, rules_.definite_code);
    }
    return in_.count() - start == length ? Status::success() : fail(QUARN_ASN1_ERROR_LENGTH);
  }

  const SegmentRules &rules_;
  Reader &in_;
  Sink &sink_;
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

Status Sink::take(Reader &in, std::uint64_t count, const Unit &unit) {
  if (buffer_ != nullptr) return in.octets(*buffer_, count, unit);
  while (count > 0) {
    const std::uint64_t step = std::min(count, kPiece);
    if (!piece_.reserve(step)) return unit.fail(in.ctx(), QUARN_ERROR_NO_MEMORY, in.offset());
    if (const Status status = in.octets(piece_.data(), step); !status) return status;
    if (const Status status = writer_->octets(piece_.data(), step); !status) return status;
    count -= step;
  }
  return Status::success();
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

Status move_string(const SegmentRules &rules,
                   Reader &in,
                   bool primitive,
                   std::int64_t length,
                   Sink &sink,
                   std::uint32_t &unused_bits) {
  Segments segments(rules, in, sink);
  const Status status = segments.content(0, primitive, length);
  unused_bits = segments.unused_bits();
  return status;
}

Status gather_octets(Reader &in, bool primitive, std::int64_t length, Buffer &out) {
  Sink sink(out);
  std::uint32_t unused_bits = 0;
  return move_string(kOctetRules, in, primitive, length, sink, unused_bits);
}

}  // namespace quarn::asn1
