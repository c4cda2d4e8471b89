// `quarn types`: the registry as a table, and what one type is made of.
#include <fnmatch.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <sstream>

#include "cli/catalogue.h"
#include "cli/commands.h"
#include "cli/failure.h"
#include "cli/guess.h"
#include "cli/open.h"
#include "cli/output.h"
#include "cli/text.h"
#include "cli/walk.h"
#include "quarn_asn1/inspect.h"

namespace quarn::cli {

namespace {

std::string column(std::string text, std::size_t width) {
  if (text.size() < width) text.resize(width, ' ');
  return text + "  ";
}

std::string tag_text(const quarn_asn1_type_description &type) {
  if (type.tag_class == kApplication) return "APPLICATION " + std::to_string(type.tag_number);
  return type.tag_number == 0 ? "-" : std::to_string(type.tag_number);
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

std::string table_head() {
  return painted(Paint::tag, column("id", 3) + column("name", 34) + column("tag", 14) +
                                 column("form", 11) + column("encode", 7) + "decode") +
         "\n";
}

std::string table_line(std::int64_t id, const quarn_asn1_type_description &type) {
  return column(std::to_string(id), 3) + column(type.name, 34) + column(tag_text(type), 14) +
         column(form_text(type), 11) + column(code_text(type.error_code), 7) +
         code_text(type.error_code + 1) + "\n";
}

// Of the ids that callers know; empty for none.
std::string table(const std::vector<std::int64_t> &ids) {
  std::string text;
  for (const std::int64_t id : ids) {
    if (id < QUARN_ASN1_TYPE_COUNT) text += table_line(id, description_of(id));
  }
  return text.empty() ? text : table_head() + text;
}

// The members of an object, without its braces.
std::string json_line(std::int64_t id, const quarn_asn1_type_description &type) {
  return "\"id\":" + std::to_string(id) + ",\"name\":" + json_string(type.name) +
         ",\"class\":" + (type.tag_class == kApplication ? "\"APPLICATION\"" : "\"UNIVERSAL\"") +
         ",\"tag\":" + std::to_string(type.tag_number) + ",\"form\":\"" + form_text(type) +
         "\",\"encode_code\":\"" + code_text(type.error_code) + "\",\"decode_code\":\"" +
         code_text(type.error_code + 1) + "\"";
}

// Words in lines of at most 100 columns, behind a title unless that is empty.
std::string wrapped(const std::string &title, const std::vector<std::string> &words) {
  constexpr std::size_t kWidth = 100;
  const std::string indent(title.empty() ? 0 : 12, ' ');
  std::string text;
  std::string line = title + indent.substr(std::min(title.size(), indent.size()));
  for (const std::string &word : words) {
    if (line.size() > indent.size() && line.size() + 1 + word.size() > kWidth) {
      text += line + "\n";
      line = indent;
    }
    line += (line.size() > indent.size() ? " " : "") + word;
  }
  return words.empty() ? "" : text + line + "\n";
}

std::vector<std::string> words_of(const char *text) {
  std::istringstream in(text);
  return {std::istream_iterator<std::string>(in), {}};
}

std::string indented(const char *text) {
  std::istringstream in(text);
  std::string all;
  for (std::string line; std::getline(in, line);) all += "    " + line + "\n";
  return all;
}

std::string list_text(const std::string &title, std::vector<std::string> words) {
  for (std::size_t i = 0; i + 1 < words.size(); i++) words[i] += ",";
  return wrapped(title, words);
}

// Where types stand, and what identifies them there.
std::string uses_text(const std::vector<std::int64_t> &ids) {
  std::vector<std::string> names;
  for (const std::int64_t id : ids)
    std::ranges::copy(identifiers_of(id), std::back_inserter(names));
  return list_text("stands in", places_of(ids)) + list_text("named by", names);
}

std::string paragraphs_text(const char *text) {
  std::istringstream in(text);
  std::string all;
  for (std::string line; std::getline(in, line);)
    all += line.empty() ? "\n" : wrapped("", words_of(line.c_str()));
  return all;
}

// A definition, whole: its rows, what it is, its ASN.1, where it stands and its functions.
std::string description_text(const Definition &definition) {
  const std::vector<std::int64_t> ids = ids_of(definition);
  std::string text = table(ids);
  text += (text.empty() ? "" : "\n") + paragraphs_text(definition.text) + "\n";
  text += indented(definition.asn1) + "\n";
  text += wrapped("standard", words_of(definition.standard));
  text += uses_text(ids);
  text += wrapped("header", {definition.header});
  return text + wrapped("functions", words_of(definition.functions));
}

// The same of a type, which need not have a definition.
std::string description_text(std::int64_t id) {
  if (const Definition *definition = definition_of(id); definition != nullptr) {
    return description_text(*definition);
  }
  quarn_asn1_shape shape{};
  static_cast<void>(quarn_asn1_type_shape(id, &shape));
  const quarn_asn1_type_description type = description_of(id);
  const std::string asn1 = shape.base == id
                               ? shape.name
                               : "[" + tag_text(type) + "] IMPLICIT " + notation_of(shape.base);
  return table({id}) + "\n" + indented(asn1.c_str()) + "\n" + uses_text({id}) +
         wrapped("header", {"quarn_asn1/types.h"});
}

std::string json_components(const Definition &definition) {
  std::string text;
  for (const Component &component : definition.components) {
    text += std::string(text.empty() ? "" : ",") + "{\"name\":" + json_string(component.name) +
            ",\"type_id\":" + std::to_string(component.type_id) +
            ",\"type\":" + json_string(notation_of(component.type_id)) +
            ",\"tag\":" + json_string(component.tag) +
            ",\"presence\":" + json_string(component.presence) + "}";
  }
  return "[" + text + "]";
}

std::string description_json(std::int64_t id) {
  std::string text = json_line(id, description_of(id));
  if (const Definition *definition = definition_of(id); definition != nullptr) {
    text += ",\"text\":" + json_string(definition->text) +
            ",\"standard\":" + json_string(definition->standard) +
            ",\"asn1\":" + json_string(definition->asn1) +
            ",\"components\":" + json_components(*definition) +
            ",\"header\":" + json_string(definition->header) +
            ",\"functions\":" + json_list(words_of(definition->functions));
  }
  return text + ",\"stands_in\":" + json_list(places_of({id})) +
         ",\"named_by\":" + json_list(identifiers_of(id));
}

std::vector<std::int64_t> matching(const std::string &pattern) {
  std::vector<std::int64_t> ids;
  for (std::int64_t id = 0; id < QUARN_ASN1_TYPE_COUNT; id++) {
    if (matches(description_of(id).name, pattern)) ids.push_back(id);
  }
  return ids;
}

std::string json_table(const std::vector<std::int64_t> &ids) {
  std::string text;
  for (const std::int64_t id : ids) {
    text += (text.empty() ? "{" : ",\n{") + json_line(id, description_of(id)) + "}";
  }
  return "[" + text + "]\n";
}

}  // namespace

int run_types(const Arguments &arguments) {
  const std::string name = arguments.operands.empty() ? "" : arguments.operands[0];
  const bool json = arguments.has(Opt::json);
  if (const std::int64_t id = name.empty() ? -1 : find_type(name); id >= 0) {
    standard_output().write(json ? "[{" + description_json(id) + "}]\n" : description_text(id));
    return kGood;
  }
  const std::vector<std::int64_t> ids = matching(name);
  if (const Definition *inner = definition_named(name); inner != nullptr && !json) {
    standard_output().write(description_text(*inner));
    return kGood;
  }
  if (json || !ids.empty()) standard_output().write(json ? json_table(ids) : table(ids));
  if (!ids.empty()) return kGood;
  say("quarn types: no type's name matches " + in_quotes(name));
  return kBadInput;
}

}  // namespace quarn::cli
