#include "cli/message.h"

#include <algorithm>
#include <vector>

#include "cli/catalogue.h"
#include "cli/diagnosis.h"
#include "cli/failure.h"
#include "cli/guess.h"
#include "cli/oid.h"
#include "cli/open.h"
#include "cli/walk.h"
#include "quarn_asn1.h"

namespace quarn::cli {

namespace {

constexpr std::uint64_t kEndOfContents = 2;  // octets

class Reading {
 public:
  explicit Reading(MessageInput &input)
      : input_(input), start_(input.start().begin(), input.start().end()) {}

  Message read(quarn_stream *content);

 private:
  Element element_at(std::uint64_t offset);
  std::string content_type_in(const Element &identifier);
  void read_type();
  void decode(quarn_stream *content);
  void note_places(const quarn_asn1_content_place &place);
  void close(const Element &around);
  [[noreturn]] void fail(int result, const quarn_err_ctx *ctx);
  [[noreturn]] void refuse(const Element &found, const std::string &expected);
  [[noreturn]] void refuse(Report report);

  MessageInput &input_;
  std::vector<std::uint8_t> start_;
  quarn_stream *stream_ = nullptr;
  std::vector<Element> around_;  // the value, outermost first
  std::uint64_t base_ = 0;       // octets before the value
  std::uint64_t tail_ = 0;       // octets that end it and are in none of its components
  Message message_;
};

std::uint64_t at(std::int64_t offset) {
  return static_cast<std::uint64_t>(std::max<std::int64_t>(offset, 0));
}

void Reading::refuse(Report report) {
  const MessageInput::Held held = input_.held();
  add_window(report, held.octets, held.offset);
  throw failure_of(std::move(report));
}

void Reading::refuse(const Element &found, const std::string &expected) {
  Report report;
  report.offset = found.offset;
  report.found = tag_name(found.header);
  report.expected = expected;
  refuse(std::move(report));
}

// The header there, which is among the octets that have been read ahead.
Element Reading::element_at(std::uint64_t offset) {
  Element element;
  element.offset = offset;
  const Octets rest = Octets(start_).subspan(std::min<std::uint64_t>(offset, start_.size()));
  const auto count = static_cast<std::int64_t>(rest.size());
  if (quarn_asn1_mem_header(rest.data(), count, &element.header) == 1) return element;
  throw diagnose(input_.held().octets, "no message");
}

// Whether it is the [0] around the content of a ContentInfo.
bool holds_value(const Element &element) {
  const quarn_asn1_header &header = element.header;
  return header.tag_class == kContext && header.tag_number == 0 && element.constructed();
}

// Whether values of a type are messages: of the types that may stand in a ContentInfo, those with a
// component that holds content in turn.
bool is_message(std::int64_t type_id) {
  const Definition *definition = definition_of(type_id);
  return definition != nullptr &&
         std::any_of(definition->components.begin(), definition->components.end(),
                     [](const Component &each) { return holds_content(each.type_id); });
}

// The dotted text of the identifier that a ContentInfo begins with.
std::string Reading::content_type_in(const Element &identifier) {
  const Octets rest = Octets(start_).subspan(identifier.content_offset());
  if (identifier.indefinite() || identifier.content_length() > rest.size()) {
    throw diagnose(input_.held().octets, "no message");
  }
  const auto dotted = dotted_oid(rest.first(identifier.content_length()));
  if (!dotted)
    refuse(identifier, "the type of a ContentInfo, in arcs that are complete and fit 64 bits");
  return *dotted;
}

// What the first elements tell: the type of the value, and what is around it.
void Reading::read_type() {
  const Element outer = element_at(0);
  if (!outer.universal(16) || !outer.constructed()) {
    refuse(outer, "SEQUENCE, which every message in DER begins with; mail (S/MIME) is not read");
  }
  const Element first = element_at(outer.content_offset());
  message_.type_id = QUARN_ASN1_PKCS7SIGNEDDATA;
  if (first.universal(2) && !first.constructed()) return;
  if (!first.universal(6) || first.constructed()) {
    refuse(first, "the type of a ContentInfo, or the version of a SignedData");
  }
  message_.content_type = content_type_in(first);
  const Opening *opening = find_opening(Place::content, message_.content_type);
  if (opening != nullptr && opening->type_id == QUARN_ASN1_OCTETSTRING) {
    message_.type_id = QUARN_ASN1_PKCS7CONTENTINFO;
    return;
  }
  if (opening == nullptr || !is_message(opening->type_id)) {
    const OidName *name = find_oid(message_.content_type);
    throw Failure(kBadInput, "is a message of the type " + message_.content_type +
                                 (name == nullptr ? "" : std::string(" ") + name->name) +
                                 ", which this command does not know");
  }
  message_.type_id = opening->type_id;
  const Element tag = element_at(first.content_offset() + first.content_length());
  if (!holds_value(tag)) refuse(tag, "[0], the content of the ContentInfo");
  around_ = {outer, tag};
  base_ = tag.content_offset();
}

void Reading::note_places(const quarn_asn1_content_place &place) {
  if (place.offset >= 0) {
    message_.content = {base_ + at(place.offset), base_ + at(place.end)};
    message_.content_length = at(place.length);
  }
  if (message_.type_id != QUARN_ASN1_PKCS7SIGNEDDATA) return;
  const auto *data = static_cast<const quarn_pkcs7signeddata *>(message_.value.get());
  message_.content_info = {base_ + at(quarn_pkcs7signeddata_getcontentinfooffset(data)),
                           base_ + at(quarn_pkcs7signeddata_getcontentinfoendoffset(data))};
  message_.signer_infos = {base_ + at(quarn_pkcs7signeddata_getsignerinfosoffset(data)),
                           base_ + message_.length - tail_};
}

void Reading::decode(quarn_stream *content) {
  const Records ctx = new_records();
  void *value = nullptr;
  quarn_asn1_content_place place{-1, -1, -1};
  const auto type_id = static_cast<std::uint32_t>(message_.type_id);
  const int result = quarn_asn1_decode_message(stream_, type_id, content, &value, &place,
                                               &message_.length, ctx.get());
  message_.value = std::unique_ptr<void, FreeValue>(value, FreeValue{message_.type_id});
  if (result != 1) fail(result, ctx.get());
  note_places(place);
}

// Why the value could not be decoded.
void Reading::fail(int result, const quarn_err_ctx *ctx) {
  input_.rethrow();
  const MessageInput::Held held = input_.held();
  if (held.whole && !well_formed(held.octets)) throw diagnose(held.octets, "no message");
  Report report;
  report.records = records_of(ctx);
  report.expected = expected_of(message_.type_id, report.records);
  report.offset = base_;
  report.found = "no " + notation_of(message_.type_id);
  for (Record &record : report.records) {
    if (record.code == QUARN_ERROR_NO_MEMORY) throw std::bad_alloc();
    if (record.offset >= 0) record.offset += static_cast<std::int64_t>(base_);
  }
  if (!report.records.empty()) {
    const Record &failure = innermost(report.records);
    report.offset = std::max(base_, at(failure.offset));
    report.found = printable(failure.message);
  }
  if (held.offset == 0) place_at(report, held.octets, report.offset);
  const std::string path = quarn_err_ctx_path(ctx);
  if (!path.empty()) report.path = path;
  if (result == QUARN_ERROR_RECURSION) blame_depth(report);
  refuse(std::move(report));
}

// Goes behind the end of an element around the message.
void Reading::close(const Element &around) {
  Report report;
  report.offset = base_ + quarn_stream_position(stream_);
  const std::string element =
      tag_name(around.header) + " at offset " + std::to_string(around.offset);
  if (!around.indefinite()) {
    const std::uint64_t end = around.content_offset() + around.content_length();
    if (report.offset == end) return;
    report.found = "the end of the " + notation_of(message_.type_id);
    report.expected = "it at " + std::to_string(end) + ", where the " + element + " ends";
    refuse(std::move(report));
  }
  std::uint8_t octets[kEndOfContents] = {1, 1};
  const int result = quarn_stream_readn(stream_, octets, kEndOfContents, nullptr);
  if (result == 1 && octets[0] == 0 && octets[1] == 0) return;
  input_.rethrow();
  report.found = result == 1 ? "another element" : "the end of the input";
  report.expected = "the end-of-contents octets 00 00 of the " + element;
  refuse(std::move(report));
}

Message Reading::read(quarn_stream *content) {
  message_.pem = input_.pem();
  read_type();
  stream_ = input_.open(base_);
  tail_ = element_at(base_).indefinite() ? kEndOfContents : 0;
  decode(content);
  for (auto each = around_.rbegin(); each != around_.rend(); ++each) close(*each);
  message_.length = base_ + quarn_stream_position(stream_);
  input_.expect_end();
  return std::move(message_);
}

}  // namespace

bool holds_content(std::int64_t type_id) {
  return type_id == QUARN_ASN1_PKCS7CONTENTINFO ||
         type_id == QUARN_ASN1_CMSENCAPSULATEDCONTENTINFO ||
         type_id == QUARN_ASN1_CMSENCRYPTEDCONTENTINFO;
}

void FreeValue::operator()(void *value) const {
  quarn_asn1_value_free(type_id, value);
}

Message read_message(MessageInput &input, quarn_stream *content) {
  return Reading(input).read(content);
}

}  // namespace quarn::cli
