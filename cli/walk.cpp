#include "cli/walk.h"

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

}  // namespace

std::string tag_name(const quarn_asn1_header &header) {
  const std::string number = std::to_string(header.tag_number);
  switch (header.tag_class) {
    case 0x40:
      return "[APPLICATION " + number + "]";
    case 0x80:
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

Walk::Step Walk::fail(std::uint64_t offset,
                      std::string found,
                      std::string expected,
                      bool truncated) {
  fault_ = {offset, std::move(found), std::move(expected), truncated};
  return Step::fault;
}

Walk::Step Walk::next() {
  while (!frames_.empty() && !frames_.back().indefinite && !frames_.back().cut_off &&
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
    return fail(0, "no octets at all", "an encoding", true);
  }
  if (position_ == octets_.size()) return Step::end;
  if (top_ == Top::one && top_elements_ != 0) {
    return fail(position_,
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
  const int result = quarn_asn1_mem_header(octets_.data() + position_,
                                           static_cast<std::int64_t>(left), &element_.header);
  if (result != 1) return fail_header(result);
  if (element_.universal(0) && !element_.constructed()) return end_of_contents();
  return enter_element();
}

// The content of an open element has been walked and is not complete.
Walk::Step Walk::end_too_early() {
  const Frame &frame = frames_.back();
  const std::string which = name_at(frame.offset) + " at offset " + std::to_string(frame.offset);
  const std::string found = open() ? "the end of the input" : "the end of the element around it";
  if (!frame.cut_off) {
    return fail(position_, found, "the end-of-contents octets 00 00 of the " + which, open());
  }
  quarn_asn1_header header{};
  const Octets element = octets_.subspan(frame.offset);
  static_cast<void>(
      quarn_asn1_mem_header(element.data(), static_cast<std::int64_t>(element.size()), &header));
  const std::uint64_t missing =
      header.header_length + static_cast<std::uint64_t>(header.content_length) - element.size();
  return fail(position_, found, counted(missing, "more octet") + " of the " + which, true);
}

// An element whose length passes the end of what is around it.
Walk::Step Walk::enter_overlong(std::uint64_t left) {
  if (element_.constructed() && open()) {
    frames_.push_back({position_, octets_.size(), 0, false, true, true});
    position_ = element_.content_offset();
    return Step::element;
  }
  return fail(position_,
              tag_name(element_.header) + " with " + counted(element_.content_length(), "octet") +
                  " of content",
              "at most " + counted(left, "octet") + ", which is what " +
                  (open() ? "the input" : "the element around it") + " has left",
              open());
}

Walk::Step Walk::end_of_contents() {
  if (element_.header.header_length != 2 || element_.header.content_length != 0) {
    return fail(position_, "end-of-contents octets that are not 00 00",
                "00 00, or another element");
  }
  if (frames_.empty() || !frames_.back().indefinite) {
    return fail(position_, "end-of-contents octets where nothing of indefinite length is open",
                "another element");
  }
  element_.end_of_contents = true;
  element_.depth--;
  position_ += 2;
  frames_.pop_back();
  return Step::element;
}

Walk::Step Walk::enter_element() {
  const std::uint64_t start = element_.content_offset();
  if (element_.indefinite()) {
    if (!element_.constructed()) {
      return fail(position_, "a primitive " + tag_name(element_.header) + " of indefinite length",
                  "a definite length; only constructed elements may leave it open");
    }
    frames_.push_back({position_, limit(), 0, true, false, open()});
    position_ = start;
    return Step::element;
  }
  const std::uint64_t left = limit() - start;
  if (element_.content_length() > left) return enter_overlong(left);
  if (element_.constructed())
    frames_.push_back({position_, start + element_.content_length(), 0, false, false, false});
  position_ = element_.constructed() ? start : start + element_.content_length();
  return Step::element;
}

// Says what quarn_asn1_mem_header() did not like, octet by octet as it reads them.
Walk::Step Walk::fail_header(int result) {
  if (result == QUARN_ASN1_MORE) {
    return fail(position_,
                "an identifier and length that end after " + counted(limit() - position_, "octet"),
                "all octets of an identifier and length", open());
  }
  std::uint64_t at = position_ + 1;
  if ((octets_[position_] & 0x1Fu) == 0x1F) {
    std::uint64_t number = octets_[at] & 0x7Fu;
    while ((octets_[at] & 0x80u) != 0 && number <= 0xFFFFFFFFFFFFFF) {
      number = number << 7 | (octets_[++at] & 0x7Fu);
    }
    if ((octets_[at] & 0x80u) != 0) {
      return fail(position_, "a tag number of more than 64 bits", "a number that fits 64 bits");
    }
    if (number < 0x1F) {
      return fail(position_, "tag number " + std::to_string(number) + " in the long form",
                  "the short form, one octet, for numbers below 31");
    }
    at++;
  }
  if (octets_[at] == 0xFF) {
    return fail(at, "the length octet FF, which is reserved", "00 to 7F, 80, or 81 to FE");
  }
  return fail(at, "a length that does not fit 63 bits", "a length of at most 63 bits");
}

void Walk::descend(std::uint64_t skip) {
  const std::uint64_t start = element_.content_offset();
  frames_.push_back({element_.offset, start + element_.content_length(), 0, false, false, false});
  position_ = start + skip;
}

std::string Walk::name_at(std::uint64_t offset) const {
  quarn_asn1_header header{};
  const auto left = static_cast<std::int64_t>(octets_.size() - offset);
  if (quarn_asn1_mem_header(octets_.data() + offset, left, &header) != 1) return "?";
  return tag_name(header);
}

std::string Walk::path() const {
  return path_to(frames_.size(), position_);
}

std::string Walk::element_path() const {
  return path_to(element_.depth, element_.offset);
}

std::string Walk::path_to(std::size_t depth, std::uint64_t offset) const {
  std::string path;
  for (std::size_t i = 0; i < depth; i++) {
    if (depth > kPathHead + kPathTail && i == kPathHead) {
      path += "(" + std::to_string(depth - kPathHead - kPathTail) + " more).";
      i = depth - kPathTail;
    }
    const std::uint64_t place = frames_[i].children == 0 ? 0 : frames_[i].children - 1;
    path += name_at(frames_[i].offset) + "[" + std::to_string(place) + "].";
  }
  const std::string last = name_at(offset);
  if (last != "?") return path + last;
  if (!path.empty()) path.pop_back();
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
