// A message as JSON; docs/quarn.md describes it.
#include "cli/leaf.h"
#include "cli/message_show.h"
#include "quarn_asn1.h"

namespace quarn::cli {

namespace {

std::string range_json(const Range &range) {
  return "{\"offset\":" + std::to_string(range.offset) + ",\"end\":" + std::to_string(range.end);
}

std::string places_json(const Message &message) {
  std::string text;
  const auto add = [&text](const char *name, const std::string &range) {
    text += std::string(text.empty() ? "" : ",") + "\"" + name + "\":" + range + "}";
  };
  if (message.content) {
    add("content",
        range_json(*message.content) + ",\"length\":" + std::to_string(message.content_length));
  }
  if (message.content_info) add("contentInfo", range_json(*message.content_info));
  if (message.signer_infos) add("signerInfos", range_json(*message.signer_infos));
  return "{" + text + "}";
}

std::string name_json(const Node &name) {
  return "{\"rfc4514\":" + json_string(name_text(name)) + "}";
}

// What has many components, in short; empty for anything else.
std::string brief_json(const Node &node) {
  if (node.type_id == QUARN_ASN1_X500NAME) return name_json(node);
  std::string text;
  for (const Brief &brief : briefs_of(node)) {
    const bool name = brief.node.type_id == QUARN_ASN1_X500NAME;
    text += (text.empty() ? "{\"" : ",\"") + std::string(brief.name) +
            "\":" + (name ? name_json(brief.node) : leaf_json(brief.node));
  }
  if (text.empty()) return "";
  if (node.type_id == QUARN_ASN1_X509CRL) {
    text += ",\"revoked\":" + std::to_string(revoked_in(node));
  }
  return text + "}";
}

}  // namespace

void MessageJson::show() {
  open("");
  member("type", json_string(notation_of(message_.type_id)));
  if (!message_.content_type.empty()) member("contentType", oid_json(message_.content_type));
  member("form", message_.pem ? "\"pem\"" : "\"der\"");
  member("length", std::to_string(message_.length));
  member("places", places_json(message_));
  walk_value(message_.type_id, message_.value.get(), *this);
  leave();
}

bool MessageJson::enter(const Node &node, std::int64_t count) {
  const std::string brief = brief_json(node);
  if (!brief.empty()) {
    whole(node, brief);
    return false;
  }
  Node shown = node;
  if (depth() == 1) shown.label = "value";
  const bool signer = depth() == 3 && node.type_id == QUARN_ASN1_CMSSIGNERINFO;
  const bool entered = JsonShow::enter(shown, count);
  const std::int64_t number = signer ? certificates_.of_signer(node) : -1;
  if (number >= 0) member("certificate", std::to_string(number));
  return entered;
}

}  // namespace quarn::cli
