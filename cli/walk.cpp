#include "cli/walk.h"

#include <algorithm>
#include <array>

namespace quarn::cli {

namespace {

// Universal tags (X.680, 8.4); 15 is reserved, and 31 is where the long form starts.
constexpr const char *kUniversalNames[] = {"END-OF-CONTENTS",
                                           "BOOLEAN",
                                           "INTEGER",
                                           "BIT STRING",
                                           "OCTET STRING",
                                           "NULL",
                                           "OID",
                                           "ObjectDescriptor",
                                           "EXTERNAL",
                                           "REAL",
                                           "ENUMERATED",
                                           "EMBEDDED PDV",
                                           "UTF8String",
                                           "RELATIVE-OID",
                                           "TIME",
                                           nullptr,
                                           "SEQUENCE",
                                           "SET",
                                           "NumericString",
                                           "PrintableString",
                                           "TeletexString",
                                           "VideotexString",
                                           "IA5String",
                                           "UTCTime",
                                           "GeneralizedTime",
                                           "GraphicString",
                                           "VisibleString",
                                           "GeneralString",
                                           "UniversalString",
                                           "CHARACTER STRING",
                                           "BMPString",
                                           "DATE",
                                           "TIME-OF-DAY",
                                           "DATE-TIME",
                                           "DURATION",
                                           "OID-IRI",
                                           "RELATIVE-OID-IRI"};

constexpr std::size_t kPathHead = 6;
constexpr std::size_t kPathTail = 10;
constexpr std::size_t kMostLengthOctets = 127;

// Reads a header whose tag number is below 31 and in the long form, as if it were in the short one.
int small_tag_header(Octets octets, quarn_asn1_header &header) {
  if (octets.empty() || (octets[0] & 0x1Fu) != 0x1F) return 0;
  std::size_t at = 1;
  while (at < octets.size() && octets[at] == 0x80) at++;
  if (at == octets.size()) return QUARN_ASN1_MORE;
  if (octets[at] >= 0x1F) return 0;
  std::array<std::uint8_t, 1 + kMostLengthOctets> same{};
  same[0] = static_cast<std::uint8_t>((octets[0] & 0xE0u) | octets[at]);
  const Octets rest = octets.subspan(at + 1);
  const std::size_t count = std::min(rest.size(), kMostLengthOctets);
  std::copy_n(rest.begin(), count, same.begin() + 1);
  const int result =
      quarn_asn1_mem_header(same.data(), static_cast<std::int64_t>(1 + count), &header);
  if (result == 1) header.header_length += at;
  return result;
}

}  // namespace

std::string tag_name(const quarn_asn1_header &header) {
  const std::string number = std::to_string(header.tag_number);
  switch (header.tag_class) {
    case kApplication:
      return "[APPLICATION " + number + "]";
    case kContext:
      return "[" + number + "]";
    case 0xC0:
      return "[PRIVATE " + number + "]";
    default:
      break;
  }
  const char *name =
      header.tag_number < std::size(kUniversalNames) ? kUniversalNames[header.tag_number] : nullptr;
  return name == nullptr ? "[UNIVERSAL " + number + "]" : name;
}

Walk::Step Walk::fail(std::uint64_t offset, Rule rule, std::string found, std::string expected) {
  if (expected.empty()) expected = text_of(rule).text;
  fault_ = {offset, rule, std::move(found), std::move(expected)};
  return Step::fault;
}

int Walk::header_at(std::uint64_t offset, std::uint64_t left, quarn_asn1_header &header) const {
  const int result =
      quarn_asn1_mem_header(octets_.data() + offset, static_cast<std::int64_t>(left), &header);
  if (result != 0 || tags_ == Tags::strict) return result;
  return small_tag_header(octets_.subspan(offset, left), header);
}

Walk::Step Walk::next() {
  while (!frames_.empty() && !frames_.back().indefinite() && !frames_.back().cut_off &&
         position_ == frames_.back().end) {
    frames_.pop_back();
  }
  if (frames_.empty()) {
    const Step step = between_elements();
    if (step != Step::element) return step;
  }
  return read_element();
}

// At the top: whether another element is to come.
Walk::Step Walk::between_elements() {
  if (top_elements_ == 0 && octets_.empty()) {
    return fail(0, Rule::whole_header, "no octets at all", "an encoding");
  }
  if (position_ == octets_.size()) return Step::end;
  if (top_ == Top::one && top_elements_ != 0) {
    return fail(position_, Rule::nothing_after,
                counted(octets_.size() - position_, "octet") + " after the end of the encoding",
                "nothing");
  }
  top_elements_++;
  return Step::element;
}

Walk::Step Walk::read_element() {
  const std::uint64_t left = limit() - position_;
  element_ = {};
  element_.offset = position_;
  element_.depth = frames_.size();
  if (!frames_.empty()) frames_.back().children++;
  if (left == 0) return end_too_early();
  const int result = header_at(position_, left, element_.header);
  if (result != 1) return fail_header(result);
  if (element_.universal(0) && !element_.constructed()) return end_of_contents();
  return enter_element();
}

// The content of an open element has been walked and is not complete.
Walk::Step Walk::end_too_early() {
  const Frame &frame = frames_.back();
  const std::string which = tag_name(frame.header) + " at offset " + std::to_string(frame.offset);
  const std::string found = open() ? "the end of the input" : "the end of the element around it";
  if (!frame.cut_off) {
    return fail(position_, Rule::end_of_contents, found,
                "the end-of-contents octets 00 00 of the " + which);
  }
  const std::uint64_t missing = frame.offset + frame.header.header_length +
                                static_cast<std::uint64_t>(frame.header.content_length) -
                                octets_.size();
  return fail(position_, Rule::length_fits, found,
              counted(missing, "more octet") + " of the " + which);
}

// An element whose length passes the end of what is around it.
Walk::Step Walk::enter_overlong(std::uint64_t left) {
  if (element_.constructed() && open()) {
    enter(octets_.size(), true, true);
    return Step::element;
  }
  return fail(position_, Rule::length_fits,
              tag_name(element_.header) + " with " + counted(element_.content_length(), "octet") +
                  " of content",
              "at most " + counted(left, "octet") + ", which is what " +
                  (open() ? "the input" : "the element around it") + " has left");
}

Walk::Step Walk::end_of_contents() {
  if (element_.header.header_length != 2 || element_.header.content_length != 0) {
    return fail(position_, Rule::end_of_contents, "end-of-contents octets that are not 00 00",
                "00 00, or another element");
  }
  if (frames_.empty() || !frames_.back().indefinite()) {
    return fail(position_, Rule::no_end_of_contents,
                "end-of-contents octets where nothing of indefinite length is open",
                "another element");
  }
  element_.end_of_contents = true;
  element_.depth--;
  position_ += 2;
  frames_.pop_back();
  return Step::element;
}

// Makes the content of the current element, which ends at `end`, what is walked next.
void Walk::enter(std::uint64_t end, bool cut_off, bool open) {
  frames_.push_back({element_.header, element_.offset, end, 0, cut_off, open});
  position_ = element_.content_offset();
}

Walk::Step Walk::enter_element() {
  const std::uint64_t start = element_.content_offset();
  if (element_.indefinite()) {
    if (!element_.constructed()) {
      return fail(position_, Rule::primitive_length,
                  "a primitive " + tag_name(element_.header) + " of indefinite length");
    }
    enter(limit(), false, open());
    return Step::element;
  }
  const std::uint64_t left = limit() - start;
  if (element_.content_length() > left) return enter_overlong(left);
  const std::uint64_t end = start + element_.content_length();
  if (element_.constructed()) {
    enter(end, false, false);
  } else {
    position_ = end;
  }
  return Step::element;
}

// Says what quarn_asn1_mem_header() did not like, octet by octet as it reads them.
Walk::Step Walk::fail_header(int result) {
  if (result == QUARN_ASN1_MORE) {
    return fail(position_, Rule::whole_header,
                "an identifier and length that end after " + counted(limit() - position_, "octet"));
  }
  std::uint64_t at = position_ + 1;
  if ((octets_[position_] & 0x1Fu) == 0x1F) {
    std::uint64_t number = octets_[at] & 0x7Fu;
    while ((octets_[at] & 0x80u) != 0 && number <= 0xFFFFFFFFFFFFFF) {
      number = number << 7 | (octets_[++at] & 0x7Fu);
    }
    if ((octets_[at] & 0x80u) != 0) {
      return fail(position_, Rule::tag_limit, "a tag number of more than 64 bits",
                  "a number that fits 64 bits");
    }
    if (number < 0x1F && tags_ == Tags::strict) {
      return fail(position_, Rule::short_tag,
                  "tag number " + std::to_string(number) + " in the long form",
                  "the short form, one octet, for numbers below 31");
    }
    at++;
  }
  if (octets_[at] == 0xFF) {
    return fail(at, Rule::reserved_length, "the length octet FF, which is reserved");
  }
  return fail(at, Rule::length_fits, "a length that does not fit 63 bits",
              "a length of at most 63 bits");
}

void Walk::descend(std::uint64_t skip) {
  enter(position_, false, false);
  position_ += skip;
}

bool Walk::recover() {
  while (!frames_.empty()) {
    const Frame frame = frames_.back();
    frames_.pop_back();
    if (frame.indefinite() || frame.cut_off) continue;
    position_ = frame.end;
    return true;
  }
  return false;
}

std::string Walk::path() const {
  const std::string around = path_to(frames_.size());
  quarn_asn1_header header{};
  const bool there = header_at(position_, octets_.size() - position_, header) == 1;
  if (there) return around + tag_name(header);
  return around.substr(0, around.size() - (around.empty() ? 0 : 1));
}

std::string Walk::element_path() const {
  return path_to(element_.depth) + tag_name(element_.header);
}

// "SEQUENCE[0].[3][1]." for the elements around one at this depth.
std::string Walk::path_to(std::size_t depth) const {
  std::string path;
  for (std::size_t i = 0; i < depth; i++) {
    if (depth > kPathHead + kPathTail && i == kPathHead) {
      path += "(" + std::to_string(depth - kPathHead - kPathTail) + " more).";
      i = depth - kPathTail;
    }
    const std::uint64_t place = frames_[i].children == 0 ? 0 : frames_[i].children - 1;
    path += tag_name(frames_[i].header) + "[" + std::to_string(place) + "].";
  }
  return path;
}

std::optional<std::uint64_t> extent(Octets octets) {
  Walk walk(octets);
  if (walk.next() != Walk::Step::element) return std::nullopt;
  if (!walk.element().indefinite()) {
    const std::uint64_t start = walk.element().content_offset();
    if (walk.element().content_length() > octets.size() - start) return std::nullopt;
    return start + walk.element().content_length();
  }
  for (;;) {
    const Walk::Step step = walk.next();
    if (step == Walk::Step::fault) return std::nullopt;
    if (walk.element().end_of_contents && walk.element().depth == 0) return walk.position();
  }
}

bool well_formed(Octets octets) {
  Walk walk(octets, Walk::Top::several);
  Walk::Step step = Walk::Step::element;
  while (step == Walk::Step::element) step = walk.next();
  return step == Walk::Step::end;
}

}  // namespace quarn::cli
