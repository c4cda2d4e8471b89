// `quarn error`: what a code means.
#include <algorithm>
#include <charconv>
#include <optional>

#include "cli/commands.h"
#include "cli/failure.h"
#include "cli/output.h"
#include "cli/text.h"
#include "quarn_asn1/core.h"

namespace quarn::cli {

namespace {

struct CodeUse {
  int code;
  const char *name;
  const char *use;
};

#include "cli/gen/error_uses.inc"

struct Explanation {
  int code = 0;
  std::string kind;
  std::string message;
  std::string name;
  std::string use;
  std::vector<std::string> encode_of;  // types that record it
  std::vector<std::string> decode_of;
};

std::optional<int> number_of(const std::string &text) {
  const bool hex = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
  const char *start = text.data() + (hex ? 2 : 0);
  const char *end = text.data() + text.size();
  int code = 0;
  const auto [stop, error] = std::from_chars(start, end, code, hex ? 16 : 10);
  if (error != std::errc() || stop != end || code < 0) return std::nullopt;
  return code;
}

void add_types(Explanation &explanation) {
  for (std::int64_t id = 0; id < QUARN_ASN1_TYPE_COUNT; id++) {
    quarn_asn1_type_description type{};
    if (quarn_asn1_type_describe(id, &type) != 1 || type.error_code == 0) continue;
    if (type.error_code == explanation.code) explanation.encode_of.emplace_back(type.name);
    if (type.error_code + 1 == explanation.code) explanation.decode_of.emplace_back(type.name);
  }
}

// Nothing when no library has such a code.
std::optional<Explanation> explain(int code) {
  Explanation explanation;
  explanation.code = code;
  explanation.kind = "ASN.1";
  explanation.message = quarn_igetASN1Error(code);
  if (explanation.message.empty()) {
    explanation.kind = "stream";
    explanation.message = quarn_igetStreamError(code);
  }
  if (explanation.message.empty()) {
    explanation.kind = "general";
    explanation.message = quarn_igetGeneralError(code);
  }
  if (explanation.message.empty()) return std::nullopt;
  const CodeUse *found = std::find_if(std::begin(kCodeUses), std::end(kCodeUses),
                                      [code](const CodeUse &row) { return row.code == code; });
  if (found != std::end(kCodeUses)) {
    explanation.name = found->name;
    explanation.use = found->use;
  }
  add_types(explanation);
  return explanation;
}

std::string as_lines(const Explanation &explanation) {
  std::string text = painted(Paint::tag, code_text(explanation.code)) + " (" +
                     std::to_string(explanation.code) + ", " + explanation.kind +
                     "): " + painted(Paint::text, explanation.message) + "\n";
  if (!explanation.name.empty()) text += "  constant  " + explanation.name + "\n";
  if (!explanation.use.empty()) text += "  reports   " + explanation.use + "\n";
  if (!explanation.encode_of.empty()) {
    text += "  encoding  " + joined(explanation.encode_of) + "\n";
  }
  if (!explanation.decode_of.empty()) {
    text += "  decoding  " + joined(explanation.decode_of) + "\n";
  }
  return text;
}

std::string as_json(const Explanation &explanation) {
  return "{\"code\":" + json_string(code_text(explanation.code)) +
         ",\"number\":" + std::to_string(explanation.code) +
         ",\"kind\":" + json_string(explanation.kind) +
         ",\"message\":" + json_string(explanation.message) +
         ",\"constant\":" + json_string(explanation.name) +
         ",\"reports\":" + json_string(explanation.use) +
         ",\"encoding\":" + json_list(explanation.encode_of) +
         ",\"decoding\":" + json_list(explanation.decode_of) + "}\n";
}

}  // namespace

int run_error(const Arguments &arguments) {
  std::size_t unknown = 0;
  for (const std::string &operand : arguments.operands) {
    const std::optional<int> code = number_of(operand);
    if (!code)
      throw UsageError("error", in_quotes(operand) + " is no code such as 0x10203 or 66051");
    const std::optional<Explanation> explanation = explain(*code);
    if (!explanation) {
      say("quarn error: no library has a code " + code_text(*code));
      unknown++;
      continue;
    }
    standard_output().write(arguments.has(Opt::json) ? as_json(*explanation)
                                                     : as_lines(*explanation));
  }
  if (unknown == 0) return kGood;
  return unknown < arguments.operands.size() ? kSomeFailed : kBadInput;
}

}  // namespace quarn::cli
