// Typed values as JSON, written as the walk goes.
#include <algorithm>

#include "cli/handles.h"
#include "cli/leaf.h"
#include "cli/output.h"
#include "cli/show.h"
#include "cli/value.h"
#include "quarn_asn1/json.h"

namespace quarn::cli {

namespace {

constexpr std::size_t kMostIndent = 64;  // levels

// Any encoding as a JSON value: the document that `quarn json` writes.
std::string element_json(Octets octets) {
  const Json document(quarn_asn1_tojson(octets.data(), static_cast<std::int64_t>(octets.size())));
  char *text = nullptr;
  std::size_t length = 0;
  if (document == nullptr || quarn_json_print(document.get(), 0, &text, &length) != 1) {
    return "{\"hex\":\"" + plain_hex(octets) + "\"}";
  }
  const OwnedText owned(text);
  return JsonText().escaped({text, length});
}

std::string holder_json(const Node &node) {
  std::string text = "{";
  if (node.holder != QUARN_ASN1_ANY) text += "\"hex\":\"" + plain_hex(node.held) + "\",";
  return text + "\"type\":" + json_string(node.shape.name) + ",\"value\":";
}

// Octets that were to be opened and are not: in hexadecimal, with what they hold or the reason.
std::string unopened_json(const Node &node) {
  const std::vector<std::uint8_t> content = octets_of(node);
  const bool bits = node.shape.base == QUARN_ASN1_BITSTRING;
  Octets inside(content);
  std::string text = "{";
  if (bits && !inside.empty()) {
    text += "\"bits\":" + std::to_string(8 * (inside.size() - 1) - inside[0]) + ",";
    inside = inside.subspan(1);
  }
  text += "\"hex\":\"" + plain_hex(inside) + "\"";
  if (!node.trouble.empty()) text += ",\"error\":" + json_string(node.trouble);
  const bool whole = !bits || (!content.empty() && content[0] == 0);
  if (whole && sensible_encodings(inside) && extent(inside) == inside.size()) {
    text += ",\"element\":" + element_json(inside);
  }
  return text + "}";
}

std::string any_json(const Node &node) {
  const std::vector<std::uint8_t> octets = octets_of(node);
  if (node.trouble.empty()) return element_json(octets);
  return "{\"error\":" + json_string(node.trouble) + ",\"element\":" + element_json(octets) + "}";
}

}  // namespace

void JsonShow::new_line() const {
  if (indent_ == 0) return;
  standard_output().write("\n" + std::string(std::min(levels_.size(), kMostIndent) * indent_, ' '));
}

void JsonShow::next_member(const std::string &name) {
  Level &level = levels_.back();
  if (!level.empty) standard_output().write(",");
  level.empty = false;
  new_line();
  if (level.object) standard_output().write(json_string(name) + (indent_ == 0 ? ":" : ": "));
}

void JsonShow::member(const char *name, const std::string &json) {
  next_member(name);
  standard_output().write(json);
}

void JsonShow::open(const char *name) {
  if (!levels_.empty()) next_member(name);
  standard_output().write("{");
  levels_.push_back({true, true, "}"});
}

void JsonShow::whole(const Node &node, const std::string &json) {
  const std::string end = begin(node);
  standard_output().write(json + end);
}

std::string JsonShow::begin(const Node &node) {
  if (!levels_.empty()) next_member(node.label);
  std::string text;
  std::string end;
  for (const char *alternative : node.alternatives) {
    text += "{" + json_string(alternative) + ":";
    end += "}";
  }
  if (node.holder >= 0) {
    text += holder_json(node);
    end += "}";
  }
  standard_output().write(text);
  return end;
}

bool JsonShow::enter(const Node &node, std::int64_t /*count*/) {
  std::string end = begin(node);
  if (node.type_id == QUARN_ASN1_X500NAME) {
    standard_output().write("{\"rfc4514\":" + json_string(name_text(node)) + ",\"rdnSequence\":");
    end = "}" + end;
  }
  const bool object = !node.list();
  standard_output().write(object ? "{" : "[");
  levels_.push_back({object, true, (object ? "}" : "]") + end});
  return true;
}

void JsonShow::leave() {
  const Level level = std::move(levels_.back());
  levels_.pop_back();
  if (!level.empty) new_line();
  standard_output().write(level.end);
}

void JsonShow::leaf(const Node &node) {
  const std::string end = begin(node);
  if (node.shape.base == QUARN_ASN1_ANY) {
    standard_output().write(any_json(node));
  } else if (node.place && node.holder < 0) {
    standard_output().write(unopened_json(node));
  } else {
    standard_output().write(leaf_json(node));
  }
  standard_output().write(end);
}

}  // namespace quarn::cli
