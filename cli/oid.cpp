#include "cli/oid.h"

#include <algorithm>

namespace quarn::cli {

namespace {

#include "cli/gen/oid_names.inc"

// Takes one arc off the content; false when it is cut off, padded or too large.
bool next_arc(Octets &content, std::uint64_t &arc) {
  arc = 0;
  if (!content.empty() && content[0] == 0x80) return false;
  for (std::size_t i = 0; i < content.size(); i++) {
    if (arc > UINT64_MAX >> 7) return false;
    arc = arc << 7 | (content[i] & 0x7Fu);
    if ((content[i] & 0x80u) == 0) {
      content = content.subspan(i + 1);
      return true;
    }
  }
  return false;
}

}  // namespace

const OidName *find_oid(std::string_view dotted) {
  const OidName *end = std::end(kOidNames);
  const OidName *found =
      std::lower_bound(kOidNames, end, dotted,
                       [](const OidName &row, std::string_view key) { return row.dotted < key; });
  return found != end && dotted == found->dotted ? found : nullptr;
}

std::optional<std::string> dotted_relative_oid(Octets content) {
  std::string text;
  while (!content.empty()) {
    std::uint64_t arc = 0;
    if (!next_arc(content, arc)) return std::nullopt;
    text += (text.empty() ? "" : ".") + std::to_string(arc);
  }
  if (text.empty()) return std::nullopt;
  return text;
}

std::optional<std::string> dotted_oid(Octets content) {
  std::uint64_t first = 0;
  if (content.empty() || !next_arc(content, first)) return std::nullopt;
  const std::uint64_t root = std::min<std::uint64_t>(first / 40, 2);
  std::string text = std::to_string(root) + "." + std::to_string(first - 40 * root);
  if (content.empty()) return text;
  const std::optional<std::string> rest = dotted_relative_oid(content);
  if (!rest) return std::nullopt;
  return text + "." + *rest;
}

}  // namespace quarn::cli
