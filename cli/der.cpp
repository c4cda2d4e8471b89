// `quarn der`: JSON documents back to octets.
#include <algorithm>

#include "cli/commands.h"
#include "cli/diagnosis.h"
#include "cli/failure.h"
#include "cli/handles.h"
#include "cli/input.h"
#include "cli/output_file.h"
#include "cli/text.h"
#include "quarn_asn1/json.h"

namespace quarn::cli {

namespace {

constexpr std::size_t kMostSearched = 64;  // levels that the search for a bad element goes down
constexpr std::size_t kShownBefore = 60;   // characters of a line of JSON around an error
constexpr std::size_t kShownAfter = 40;
constexpr std::size_t kShownOfElement = 160;

// The offset after the string that starts at `at`, or the end of the text.
std::size_t string_end(std::string_view text, std::size_t at) {
  for (at++; at < text.size() && text[at] != '"'; at++) {
    if (text[at] == '\\') at++;
  }
  return std::min(at + 1, text.size());
}

// Where JSON values end: finds the end of the object or array that starts the text, by its brackets
// alone; what is wrong within is for the parser to tell.
std::size_t value_end(std::string_view text) {
  std::size_t depth = 0;
  std::size_t at = 0;
  while ((at = text.find_first_of("\"{}[]", at)) != std::string_view::npos) {
    if (text[at] == '"') {
      at = string_end(text, at);
      continue;
    }
    const bool opens = text[at] == '{' || text[at] == '[';
    at++;
    if (opens) {
      depth++;
    } else if (depth <= 1) {
      return at;
    } else {
      depth--;
    }
  }
  return text.size();
}

struct Position {
  std::size_t line = 1;
  std::size_t column = 1;      // characters, from 1
  std::size_t line_start = 0;  // offset
};

Position position_of(std::string_view text, std::size_t offset) {
  Position position;
  const std::string_view before = text.substr(0, offset);
  position.line += static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
  const std::size_t newline = before.rfind('\n');
  position.line_start = newline == std::string_view::npos ? 0 : newline + 1;
  for (std::size_t i = position.line_start; i < before.size(); i++) {
    if ((static_cast<std::uint8_t>(before[i]) & 0xC0u) != 0x80) position.column++;
  }
  return position;
}

// The line around an offset, and a caret below the place.
std::string excerpt(std::string_view text, std::size_t offset) {
  const std::size_t line_start = position_of(text, offset).line_start;
  const std::size_t start = offset - std::min(offset - line_start, kShownBefore);
  std::size_t end = std::min(text.find('\n', offset), text.size());
  end = std::min(end, offset + kShownAfter);
  const std::string before = printable(text.substr(start, offset - start));
  const auto width =
      static_cast<std::size_t>(std::count_if(before.begin(), before.end(), [](char c) {
        return (static_cast<std::uint8_t>(c) & 0xC0u) != 0x80;
      }));
  return "  " + before + printable(text.substr(offset, end - offset)) + "\n  " +
         std::string(width, ' ') + "^";
}

Failure parse_failure(std::string_view text, std::size_t offset, const std::string &why) {
  const Position position = position_of(text, offset);
  return {kBadInput, "line " + std::to_string(position.line) + ", column " +
                         std::to_string(position.column) + ", offset " + std::to_string(offset) +
                         ": " + why + "\n" + excerpt(text, offset)};
}

// What a text that is no JSON looks like.
std::string no_json(std::string_view text, std::size_t offset) {
  if (offset <= 1 && text.starts_with(kPemBegin)) {
    return "this is PEM, not JSON; `quarn json` makes JSON of it";
  }
  if (offset <= 1 && (text.substr(0, 1) == "0" || text.substr(0, 1) == "1")) {
    return "this is not JSON; if it is an encoding, `quarn json` makes JSON of it";
  }
  return "this is not JSON";
}

Json parse_document(std::string_view text, std::size_t start, std::size_t end) {
  const Records records = new_records();
  Json json(quarn_json_parse(text.data() + start, end - start, records.get()));
  if (json != nullptr) return json;
  const quarn_err_record *record = quarn_err_ctx_get(records.get(), 0);
  if (record == nullptr || record->code == QUARN_ERROR_NO_MEMORY) throw std::bad_alloc();
  const std::int64_t at = quarn_err_ctx_offset(records.get(), 0);
  const std::size_t offset =
      std::min(start + static_cast<std::size_t>(std::max<std::int64_t>(at, 0)), text.size());
  const bool ended = text.find_first_not_of(" \t\r\n", offset) == std::string_view::npos;
  const std::string why = ended ? "the JSON text ends in the middle of a value"
                          : text.substr(offset, 1) == "\""
                              ? "unexpected string, or a key that is there already"
                              : no_json(text, offset);
  throw parse_failure(text, offset, why);
}

Blob encoding_of(quarn_json *json) {
  return Blob(quarn_asn1_encodejson(json));
}

// A part of a document and its place, as a JSON pointer (RFC 6901).
struct Place {
  quarn_json *json;
  std::string pointer;
};

// The first element inside the value of a document that describes no encoding of its own; null when
// they all do.
Place bad_part(quarn_json *json) {
  quarn_json *value = quarn_json_getobjectvalue(json, "value", 5);
  if (quarn_json_gettype(value) == QUARN_JSON_OBJECT &&
      quarn_json_getobjectvalue(value, "type", 4) != nullptr) {
    return encoding_of(value) == nullptr ? Place{value, "/value"} : Place{nullptr, ""};
  }
  for (std::uint32_t i = 0; i < quarn_json_getarraysize(value); i++) {
    quarn_json *item = quarn_json_getarrayitem(value, i);
    if (encoding_of(item) == nullptr) return {item, "/value/" + std::to_string(i)};
  }
  return {nullptr, ""};
}

std::string shown(const quarn_json *json) {
  char *text = nullptr;
  std::size_t length = 0;
  if (quarn_json_print(json, 0, &text, &length) != 1) return "?";
  const OwnedText owned(text);
  const std::size_t most = std::min(length, 4 * kShownOfElement);
  return cut(printable({text, most}), kShownOfElement);
}

// Goes down to the innermost element that cannot be encoded, as far as is worth the time.
Failure encode_failure(quarn_json *json) {
  Place place{json, ""};
  for (std::size_t level = 0; level < kMostSearched; level++) {
    const Place inner = bad_part(place.json);
    if (inner.json == nullptr) break;
    place = {inner.json, place.pointer + inner.pointer};
  }
  return {kBadInput, "this element describes no encoding\n  path      " +
                         (place.pointer.empty() ? "/" : place.pointer) + "\n  element   " +
                         shown(place.json)};
}

// The document in a line of `quarn json --lines`, or the value itself.
quarn_json *document_in(quarn_json *json) {
  quarn_json *document = quarn_json_getobjectvalue(json, "document", 8);
  if (document != nullptr) return document;
  if (quarn_json_getobjectvalue(json, "type", 4) == nullptr &&
      quarn_json_getobjectvalue(json, "error", 5) != nullptr) {
    throw Failure(kBadInput, "this line reports an error and holds no document");
  }
  return json;
}

Form form_of(const Arguments &arguments) {
  if (!arguments.has(Opt::pem)) return arguments.has(Opt::hex) ? Form::hex : Form::der;
  if (arguments.has(Opt::hex)) throw UsageError("der", "--pem and --hex exclude each other");
  check_label("der", arguments.value(Opt::pem));
  return Form::pem;
}

// Writes the encodings of all documents of the text.
void convert(std::string_view text, Form form, const std::string &label, Output &output) {
  std::size_t at = text.find_first_not_of(" \t\r\n");
  if (at == std::string_view::npos) throw Failure(kBadInput, "holds no JSON document");
  while (at != std::string_view::npos) {
    const bool opens = text[at] == '{' || text[at] == '[';
    const std::size_t end = opens ? at + value_end(text.substr(at)) : text.size();
    const Json json = parse_document(text, at, end);
    quarn_json *document = document_in(json.get());
    const Blob blob = encoding_of(document);
    if (blob == nullptr) throw encode_failure(document);
    const Octets octets(blob->data, static_cast<std::size_t>(blob->length));
    write_encoding(output, form, label, octets);
    at = text.find_first_not_of(" \t\r\n", end);
  }
}

}  // namespace

int run_der(const Arguments &arguments) {
  const Form form = form_of(arguments);
  Target target("der", arguments, form);
  const std::string path = inputs_of(arguments).front();
  try {
    const Blob blob = read_file(path);
    const std::string_view text(reinterpret_cast<const char *>(blob->data),
                                static_cast<std::size_t>(blob->length));
    convert(text, form, arguments.value(Opt::pem), target.output());
    target.commit();
    return kGood;
  } catch (const Failure &failure) {
    say_failure("der", path, nullptr, failure);
    return failure.code();
  }
}

}  // namespace quarn::cli
