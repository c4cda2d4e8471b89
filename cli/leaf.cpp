#include "cli/leaf.h"

#include <arpa/inet.h>

#include <array>
#include <optional>

#include "cli/oid.h"
#include "cli/output.h"
#include "cli/value.h"

namespace quarn::cli {

namespace {

constexpr std::size_t kShortInteger = 8;              // octets that are shown in decimal
constexpr std::int64_t kMostExact = (1LL << 53) - 1;  // in the numbers of JSON

// An INTEGER of at most 64 bits.
std::optional<std::int64_t> short_integer(Octets content) {
  if (content.empty() || content.size() > kShortInteger) return std::nullopt;
  std::uint64_t bits = (content[0] & 0x80u) != 0 ? UINT64_MAX : 0;
  for (const std::uint8_t octet : content) bits = bits << 8 | octet;
  return static_cast<std::int64_t>(bits);
}

// "-0x80", without superfluous zeros in front: sign and magnitude of two's complement.
std::string signed_hex(Octets content) {
  std::vector<std::uint8_t> octets(content.begin(), content.end());
  const bool negative = !octets.empty() && (octets[0] & 0x80u) != 0;
  if (negative) {
    unsigned carry = 1;
    for (std::size_t i = octets.size(); i-- > 0;) {
      carry += static_cast<std::uint8_t>(~octets[i]);
      octets[i] = static_cast<std::uint8_t>(carry);
      carry >>= 8;
    }
  }
  std::string digits = plain_hex(octets);
  digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size() - 1));
  return (negative ? "-0x" : "0x") + digits;
}

std::string in_brackets(const std::string &name) {
  return name.empty() ? "" : " " + painted(Paint::name, "(" + name + ")");
}

std::string integer_text(const Node &node, Octets content, std::size_t width) {
  const std::optional<std::int64_t> number = short_integer(content);
  if (!number) {
    return painted(Paint::number, cut(signed_hex(content), width)) +
           painted(Paint::dim, " (" + counted(content.size(), "octet") + ")");
  }
  return painted(Paint::number, std::to_string(*number)) +
         in_brackets(*number < 0 ? "" : name_of(node.names, static_cast<std::uint64_t>(*number)));
}

// The names of the bits that are set, with their numbers where they have none.
std::vector<std::string> set_bits(const Node &node, Octets content) {
  std::vector<std::string> bits;
  const std::size_t count = content.empty() ? 0 : 8 * (content.size() - 1) - content[0];
  for (std::size_t i = 0; i < count; i++) {
    if ((content[1 + i / 8] & 0x80u >> i % 8) == 0) continue;
    const std::string name = name_of(node.names, i);
    bits.push_back(name.empty() ? "bit " + std::to_string(i) : name);
  }
  return bits;
}

std::string named_bits_text(const Node &node, Octets content, const std::string &bits) {
  const std::string list = joined(set_bits(node, content));
  return painted(Paint::name, list.empty() ? "none" : list) + " " + bits;
}

std::string iso_time(Octets content, bool short_year) {
  const std::optional<TimeText> time = read_time(content, short_year);
  if (!time) return std::string(as_text(content));
  std::string zone = time->zone;
  if (zone.size() == 5) zone.insert(3, ":");
  return time->date + "T" + time->time + time->fraction + zone;
}

// "192.0.2.1", "10.0.0.0/255.0.0.0"; empty for octets that are no address.
std::string address_text(Octets octets) {
  const auto one = [](Octets part) {
    std::array<char, INET6_ADDRSTRLEN> text{};
    const int family = part.size() == 4 ? AF_INET : AF_INET6;
    return std::string(inet_ntop(family, part.data(), text.data(), text.size()));
  };
  const std::size_t count = octets.size();
  if (count == 4 || count == 16) return one(octets);
  if (count != 8 && count != 32) return "";
  return one(octets.first(count / 2)) + "/" + one(octets.subspan(count / 2));
}

bool is_address(const Node &node) {
  return node.shape.base == QUARN_ASN1_OCTETSTRING && !node.alternatives.empty() &&
         std::string_view(node.alternatives.back()) == "iPAddress";
}

quarn_asn1_header header_of(const Node &node) {
  quarn_asn1_header header{};
  header.tag_number =
      node.shape.base == QUARN_ASN1_STRING ? 4 : description_of(node.shape.base).tag_number;
  header.form = 1;
  return header;
}

std::string quoted(const std::string &text) {
  return "\"" + text + "\"";
}

std::string integer_json(Octets content) {
  const std::optional<std::int64_t> number = short_integer(content);
  const bool exact = number && *number <= kMostExact && *number >= -kMostExact;
  return exact ? std::to_string(*number) : quoted(signed_hex(content));
}

std::string enumerated_json(const Node &node, Octets content) {
  const std::optional<std::int64_t> number = short_integer(content);
  const std::string name =
      !number || *number < 0 ? "" : name_of(node.names, static_cast<std::uint64_t>(*number));
  return "{\"number\":" + integer_json(content) +
         (name.empty() ? "" : ",\"name\":" + json_string(name)) + "}";
}

std::string bits_json(const Node &node, Octets content) {
  if (content.empty()) return "null";
  const std::size_t count = 8 * (content.size() - 1) - content[0];
  std::string text =
      "{\"bits\":" + std::to_string(count) + ",\"hex\":" + quoted(plain_hex(content.subspan(1)));
  if (node.names != nullptr) text += ",\"names\":" + json_list(set_bits(node, content));
  return text + "}";
}

// Text where the octets are text beyond doubt, else the octets.
std::string string_json(const Node &node, Octets content) {
  const std::optional<std::string> text = utf8_text(header_of(node).tag_number, content);
  return text ? json_string(*text) : "{\"hex\":" + quoted(plain_hex(content)) + "}";
}

std::string octets_json(const Node &node, Octets content) {
  const std::string address = is_address(node) ? address_text(content) : "";
  return quoted(address.empty() ? plain_hex(content) : address);
}

}  // namespace

std::string oid_json(const std::string &dotted) {
  const OidName *name = find_oid(dotted);
  return "{\"oid\":" + json_string(dotted) +
         (name == nullptr ? "" : ",\"name\":" + json_string(name->name)) + "}";
}

std::string plain_hex(Octets octets) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  text.reserve(2 * octets.size());
  for (const std::uint8_t octet : octets) {
    text.push_back(kDigits[octet >> 4]);
    text.push_back(kDigits[octet & 0xF]);
  }
  return text;
}

std::string leaf_text(const Node &node, std::size_t width) {
  const std::vector<std::uint8_t> content = octets_of(node);
  std::string plain = value_text(header_of(node), content, width);
  switch (node.shape.base) {
    case QUARN_ASN1_INTEGER:
    case QUARN_ASN1_ENUMERATED:
      return integer_text(node, content, width);
    case QUARN_ASN1_BITSTRING:
      return node.names == nullptr ? plain : named_bits_text(node, content, plain);
    case QUARN_ASN1_OCTETSTRING: {
      const std::string address = is_address(node) ? address_text(content) : "";
      return address.empty() ? plain : painted(Paint::text, address);
    }
    case QUARN_ASN1_UTCTIME:
    case QUARN_ASN1_GENTIME:
      return painted(Paint::text,
                     printable(iso_time(content, node.shape.base == QUARN_ASN1_UTCTIME)));
    default:
      return plain;
  }
}

std::string leaf_json(const Node &node) {
  const std::vector<std::uint8_t> content = octets_of(node);
  switch (node.shape.base) {
    case QUARN_ASN1_BOOLEAN:
      return !content.empty() && content[0] != 0 ? "true" : "false";
    case QUARN_ASN1_NULL:
    case QUARN_ASN1_EOC:
      return "null";
    case QUARN_ASN1_INTEGER:
      return integer_json(content);
    case QUARN_ASN1_ENUMERATED:
      return enumerated_json(node, content);
    case QUARN_ASN1_BITSTRING:
      return bits_json(node, content);
    case QUARN_ASN1_OCTETSTRING:
    case QUARN_ASN1_STRING:
      return octets_json(node, content);
    case QUARN_ASN1_OID:
      return oid_json(oid_text(node.value));
    case QUARN_ASN1_RELATIVE_OID:
      return json_string(dotted_relative_oid(content).value_or(""));
    case QUARN_ASN1_UTCTIME:
    case QUARN_ASN1_GENTIME:
      return json_string(iso_time(content, node.shape.base == QUARN_ASN1_UTCTIME));
    default:
      return string_json(node, content);
  }
}

}  // namespace quarn::cli
