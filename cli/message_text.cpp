// A message as lines for people.
#include "cli/leaf.h"
#include "cli/message_show.h"
#include "cli/oid.h"
#include "cli/output.h"
#include "quarn_asn1.h"

namespace quarn::cli {

namespace {

constexpr std::size_t kAttributeColumn = 20;  // of characters, for the names of attributes

std::string range_text(const Range &range) {
  return std::to_string(range.offset) + " to " + std::to_string(range.end);
}

std::string name_or_number(const std::string &dotted) {
  const OidName *name = find_oid(dotted);
  return name == nullptr ? dotted : name->name;
}

std::string name_line(const Node &name, std::size_t width) {
  const std::string text = name_text(name);
  return text.empty() ? painted(Paint::dim, "(empty)") : painted(Paint::text, cut(text, width));
}

// An algorithm without parameters that would be worth a line.
bool is_plain_algorithm(const Node &node) {
  if (node.type_id != QUARN_ASN1_X509ALGORITHMID) return false;
  const Node parameters = part_of(node, "parameters");
  return parameters.value == nullptr || is_null(parameters);
}

bool is_attribute(const Node &node) {
  const OpenRecord *record = open_record(node.type_id);
  return record != nullptr && record->place == Place::attribute && record->elements;
}

}  // namespace

void MessageText::show() {
  walk_value(message_.type_id, message_.value.get(), *this);
}

// What stands behind the type on the first line.
std::string MessageText::top_remark() const {
  const bool wrapped = message_.type_id != QUARN_ASN1_PKCS7CONTENTINFO;
  return (message_.content_type.empty() || !wrapped
              ? ""
              : " in a ContentInfo, " + name_or_number(message_.content_type)) +
         ", " + counted(message_.length, "octet") + (message_.pem ? " of PEM" : "");
}

std::string MessageText::content_remark() const {
  if (!message_.content) return ", no content";
  return ", content of " + counted(message_.content_length, "octet") + " in the element at " +
         range_text(*message_.content);
}

// The number of the certificate that a signer names.
std::string MessageText::signer_remark(const Node &signer) const {
  const std::int64_t number = certificates_.of_signer(signer);
  return number < 0 ? "" : ", names certificate [" + std::to_string(number) + "]";
}

std::string MessageText::remark(const Node &node) const {
  std::string text;
  if (depth() == 0) text = top_remark();
  if (depth() == 1 && node.type_id == QUARN_ASN1_PKCS7CONTENTINFO && message_.content_info) {
    text += " at " + range_text(*message_.content_info);
  }
  if (depth() <= 1 && holds_content(node.type_id)) text += content_remark();
  if (depth() == 1 && node.type_id == QUARN_ASN1_CMSSIGNERINFOS && message_.signer_infos) {
    text += " at " + range_text(*message_.signer_infos);
  }
  if (depth() == 2 && node.type_id == QUARN_ASN1_CMSSIGNERINFO) text += signer_remark(node);
  return painted(Paint::dim, text);
}

// Shows on one line what has many components.
bool MessageText::brief(const Node &node) const {
  if (is_plain_algorithm(node)) {
    summary(node, leaf_text(part_of(node, "algorithm"), width()));
    return true;
  }
  if (node.type_id == QUARN_ASN1_X500NAME) {
    summary(node, name_line(node, width()));
    return true;
  }
  std::string text;
  for (const Brief &brief : briefs_of(node)) {
    const bool name = brief.node.type_id == QUARN_ASN1_X500NAME;
    text += (text.empty() ? "" : "; ") + painted(Paint::name, brief.name) + " " +
            (name ? name_line(brief.node, width()) : leaf_text(brief.node, width()));
  }
  if (text.empty()) return false;
  if (node.type_id == QUARN_ASN1_X509CRL)
    text += "; " + std::to_string(revoked_in(node)) + " revoked";
  summary(node, text);
  return true;
}

// Whether the walk stands so many levels below the components of an attribute.
bool MessageText::in_attribute(std::size_t levels) const {
  return !attributes_.empty() && depth() == attributes_.back().depth + levels;
}

Node MessageText::renamed(const Node &value) const {
  Node node = value;
  node.label = attributes_.back().name;
  node.label_width = kAttributeColumn;
  return node;
}

bool MessageText::enter_attribute(const Node &node) {
  if (is_attribute(node)) {
    enter_silently();
    attributes_.push_back({depth(), name_or_number(oid_text(part_of(node, "type").value))});
    return true;
  }
  if (!in_attribute(0) || node.label != "values") return false;
  enter_silently();
  return true;
}

bool MessageText::enter(const Node &node, std::int64_t count) {
  if (enter_attribute(node)) return true;
  const Node shown = in_attribute(1) ? renamed(node) : node;
  if (brief(shown)) return false;
  return TextShow::enter(shown, count);
}

void MessageText::leave() {
  TextShow::leave();
  if (!attributes_.empty() && depth() < attributes_.back().depth) attributes_.pop_back();
}

void MessageText::leaf(const Node &node) {
  if (in_attribute(0)) return;  // its type, which has named it
  TextShow::leaf(in_attribute(1) ? renamed(node) : node);
}

}  // namespace quarn::cli
