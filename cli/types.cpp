// `quarn types`: the registry as a table.
#include <fnmatch.h>

#include <cstring>

#include "cli/commands.h"
#include "cli/failure.h"
#include "cli/output.h"
#include "cli/text.h"
#include "quarn_asn1/core.h"

namespace quarn::cli {

namespace {

std::string column(std::string text, std::size_t width) {
  if (text.size() < width) text.resize(width, ' ');
  return text + "  ";
}

std::string tag_text(const quarn_asn1_type_description &type) {
  if (type.tag_class == 0x40) return "APPLICATION " + std::to_string(type.tag_number);
  return type.tag_number == 0 ? "-" : std::to_string(type.tag_number);
}

std::string code_text(int code) {
  return hex_number(static_cast<std::uint64_t>(code));
}

const char *form_text(const quarn_asn1_type_description &type) {
  if (type.form < 0) return "either";
  return type.form == 1 ? "primitive" : "constructed";
}

bool matches(const char *name, const std::string &pattern) {
  if (pattern.empty()) return true;
  if (pattern.find_first_of("*?[") != std::string::npos) {
    return fnmatch(pattern.c_str(), name, FNM_CASEFOLD) == 0;
  }
  return strcasestr(name, pattern.c_str()) != nullptr;
}

std::string table_line(std::int64_t id, const quarn_asn1_type_description &type) {
  return column(std::to_string(id), 3) + column(type.name, 34) + column(tag_text(type), 14) +
         column(form_text(type), 11) + column(code_text(type.error_code), 7) +
         code_text(type.error_code + 1) + (type.supported == 1 ? "" : "  *") + "\n";
}

std::string json_line(std::int64_t id, const quarn_asn1_type_description &type) {
  return "{\"id\":" + std::to_string(id) + ",\"name\":" + json_string(type.name) +
         ",\"class\":" + (type.tag_class == 0x40 ? "\"APPLICATION\"" : "\"UNIVERSAL\"") +
         ",\"tag\":" + std::to_string(type.tag_number) + ",\"form\":\"" + form_text(type) +
         "\",\"encode_code\":\"" + code_text(type.error_code) + "\",\"decode_code\":\"" +
         code_text(type.error_code + 1) +
         "\",\"supported\":" + (type.supported == 1 ? "true" : "false") + "}";
}

}  // namespace

int run_types(const Arguments &arguments) {
  const std::string pattern = arguments.operands.empty() ? "" : arguments.operands[0];
  const bool json = arguments.has(Opt::json);
  std::string body;
  for (std::int64_t id = 0; id < QUARN_ASN1_TYPE_COUNT; id++) {
    quarn_asn1_type_description type{};
    if (quarn_asn1_type_describe(id, &type) != 1 || !matches(type.name, pattern)) continue;
    if (json) {
      body += (body.empty() ? "" : ",\n") + json_line(id, type);
    } else {
      body += table_line(id, type);
    }
  }
  if (json) {
    standard_output().write("[" + body + "]\n");
  } else if (!body.empty()) {
    standard_output().write(painted(Paint::tag, column("id", 3) + column("name", 34) +
                                                    column("tag", 14) + column("form", 11) +
                                                    column("encode", 7) + "decode") +
                            "\n" + body);
  }
  if (!body.empty()) return kGood;
  say("quarn types: no type's name matches " + in_quotes(pattern));
  return kBadInput;
}

}  // namespace quarn::cli
