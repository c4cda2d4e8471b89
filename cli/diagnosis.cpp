#include "cli/diagnosis.h"
#include "cli/handles.h"

#include <algorithm>

#include "quarn_asn1.h"

namespace quarn::cli {

namespace {

constexpr std::uint64_t kWindowBefore = 8;
constexpr std::uint64_t kWindowSize = 24;
constexpr std::uint64_t kMostJsonTag = 0x7FFFFFFF;

void cut_window(Report &report, Octets octets) {
  report.window_offset = report.offset < kWindowBefore ? 0 : report.offset - kWindowBefore;
  report.window_offset = std::min<std::uint64_t>(report.window_offset, octets.size());
  const std::uint64_t count =
      std::min<std::uint64_t>(kWindowSize, octets.size() - report.window_offset);
  const Octets window = octets.subspan(report.window_offset, count);
  report.window.assign(window.begin(), window.end());
}

// Type ids by universal tag number; 0 where there is none, or where no content can be refused.
constexpr std::int64_t kTypeOfTag[] = {0,
                                       QUARN_ASN1_BOOLEAN,
                                       QUARN_ASN1_INTEGER,
                                       QUARN_ASN1_BITSTRING,
                                       0,
                                       QUARN_ASN1_NULL,
                                       QUARN_ASN1_OID,
                                       0,
                                       0,
                                       0,
                                       QUARN_ASN1_ENUMERATED,
                                       0,
                                       0,
                                       0,
                                       0,
                                       0,
                                       0,
                                       0,
                                       0,
                                       0,
                                       0,
                                       0,
                                       0,
                                       QUARN_ASN1_UTCTIME,
                                       QUARN_ASN1_GENTIME};

// What content a primitive element of the type must have.
std::string rule_of(std::uint64_t tag) {
  switch (tag) {
    case 1:
      return "one octet of content";
    case 2:
    case 10:
      return "at least one octet of content";
    case 3:
      return "0 to 7 unused bits in the first octet of content, and none in an empty string";
    case 5:
      return "no content";
    case 6:
      return "arcs that are complete, as short as can be, and fit 64 bits";
    case 23:
      return "YYMMDDhhmm, then perhaps seconds, then Z or a difference from UTC";
    case 24:
      return "YYYYMMDDhh, then perhaps minutes, seconds, a fraction, Z or a difference";
    default:
      return "the constructed form, or a tag number of X.680";
  }
}

// Whether the library decodes the octets as one value of the type; the records when it does not.
bool decodes(Octets octets, std::int64_t type_id, std::vector<Record> &records) {
  const Records ctx = new_records();
  const Stream stream(quarn_stream_new_romem(
      octets.data(), static_cast<std::int64_t>(octets.size()), 0, ctx.get()));
  if (stream == nullptr) throw std::bad_alloc();
  void *value = nullptr;
  const int result = quarn_asn1_decode(stream.get(), type_id, &value, nullptr, ctx.get());
  quarn_asn1_value_free(type_id, value);
  if (result != 1) records = records_of(ctx.get());
  return result == 1;
}

// Whether a document can hold the element; fills the report when it cannot.
bool acceptable(const Walk &walk, Octets octets, Report &report) {
  const Element &element = walk.element();
  const quarn_asn1_header &header = element.header;
  report.offset = element.offset;
  if (header.tag_class != kUniversal) {
    report.found = "tag number " + std::to_string(header.tag_number);
    report.expected = "at most 2147483647, the greatest that a document can hold";
    return header.tag_number <= kMostJsonTag;
  }
  if (element.constructed() || element.end_of_contents) return true;
  const Octets whole = octets.subspan(element.offset, walk.position() - element.offset);
  const std::int64_t type_id =
      header.tag_number < std::size(kTypeOfTag) ? kTypeOfTag[header.tag_number] : 0;
  report.found = "a primitive " + tag_name(header) + " with " +
                 counted(element.content_length(), "octet") + " of content";
  report.expected = rule_of(header.tag_number);
  return decodes(whole, QUARN_ASN1_ANY, report.records) &&
         (type_id == 0 || decodes(whole, type_id, report.records));
}

// Counts elements of indefinite length directly inside one another, of which the library takes only
// so many; one of definite length between them starts the count anew.
class Layers {
 public:
  // Whether there are too many around the element.
  bool passed(const Element &element) {
    const std::uint32_t around = element.depth == 0 ? 0 : layers_[element.depth - 1];
    layers_.resize(element.depth);
    layers_.push_back(element.indefinite() ? around + 1 : 0);
    return around >= static_cast<std::uint32_t>(quarn_get_recursive_level());
  }

 private:
  std::vector<std::uint32_t> layers_;
};

// Octets that a walk accepts and the library refuses: the reason that can be told from them.
Report refused(Octets octets, const std::string &otherwise) {
  Walk walk(octets);
  Layers layers;
  while (walk.next() == Walk::Step::element) {
    Report report;
    if (!walk.element().end_of_contents && layers.passed(walk.element())) {
      const std::string most = std::to_string(quarn_get_recursive_level());
      report.code = kLimit;
      report.offset = walk.element().offset;
      report.found = most + " elements of indefinite length around this one";
      report.expected = "fewer than " + most + ", a limit of the library";
    } else if (acceptable(walk, octets, report)) {
      continue;
    }
    report.path = walk.element_path();
    return report;
  }
  Report report;
  report.found = otherwise;
  return report;
}

}  // namespace

void add_window(Report &report, Octets octets, std::uint64_t before) {
  if (report.offset < before || report.offset - before > octets.size()) return;
  report.offset -= before;
  cut_window(report, octets);
  report.offset += before;
  report.window_offset += before;
}

Failure failure_of(Report report, Octets octets, const std::string &message) {
  cut_window(report, octets);
  if (report.records.empty() && report.tried.empty()) {
    static_cast<void>(decodes(octets, QUARN_ASN1_ANY, report.records));
  }
  return failure_of(std::move(report), message);
}

Failure failure_of(Report report, const std::string &message) {
  const std::string text =
      !message.empty() ? message : offset_text(report.offset) + ": found " + report.found;
  const Exit code = report.code;
  return {code, text, std::make_shared<const Report>(std::move(report))};
}

std::vector<Record> records_of(const quarn_err_ctx *ctx) {
  std::vector<Record> records;
  for (std::size_t i = 0; i < quarn_err_ctx_count(ctx); i++) {
    const quarn_err_record *record = quarn_err_ctx_get(ctx, i);
    records.push_back(
        {record->code, record->message, record->file, record->line, quarn_err_ctx_offset(ctx, i)});
  }
  return records;
}

const Record &innermost(const std::vector<Record> &records) {
  return *std::max_element(records.begin(), records.end(),
                           [](const Record &a, const Record &b) { return a.offset < b.offset; });
}

void blame_depth(Report &report) {
  const std::string most = std::to_string(quarn_get_recursive_level());
  report.code = kLimit;
  report.found = "values nested too deep";
  report.expected = "at most " + most + " inside one another, a limit of the library";
  report.records.clear();
}

void place_at(Report &report, Octets octets, std::uint64_t offset) {
  Walk walk(octets);
  while (walk.next() == Walk::Step::element) {
    // A decoder that fails at an element has read its identifier.
    if (walk.element().offset >= offset && walk.element().offset != 0) return;
    report.offset = walk.element().offset;
    report.found = tag_name(walk.element().header);
    report.path = walk.element_path();
  }
}

Failure failure_at(const Walk &walk, Octets octets) {
  Report report;
  report.offset = walk.fault().offset;
  report.path = walk.path();
  report.found = walk.fault().found;
  report.expected = walk.fault().expected;
  return failure_of(std::move(report), octets);
}

Failure diagnose(Octets octets, const std::string &otherwise) {
  Walk walk(octets);
  Walk::Step step = Walk::Step::element;
  while (step == Walk::Step::element) step = walk.next();
  if (step == Walk::Step::fault) return failure_at(walk, octets);
  return failure_of(refused(octets, otherwise), octets);
}

std::string details(const Report &report) {
  std::string text;
  const auto line = [&text](const char *name, const std::string &value) {
    if (value.empty()) return;
    if (!text.empty()) text += "\n";
    text += std::string("  ") + name + value;
  };
  line("path      ", report.path);
  line("expected  ", report.expected);
  std::string window;
  for (std::size_t i = 0; i < report.window.size(); i++) {
    const std::string octet = hex_octets(Octets(report.window).subspan(i, 1));
    const bool marked = report.window_offset + i == report.offset;
    window += marked ? " [" + octet + "]" : " " + octet;
  }
  if (report.offset == report.window_offset + report.window.size()) window += " [end]";
  if (!window.empty()) line("octets    ", hex_number(report.window_offset) + ":" + window);
  for (const Tried &tried : report.tried) {
    line("tried     ", tried.type + ": offset " + std::to_string(tried.offset) + ": " +
                           (tried.path.empty() ? "" : tried.path + ": ") + tried.reason);
  }
  for (const Record &record : report.records) {
    const std::string place = record.offset < 0 ? "" : ", offset " + std::to_string(record.offset);
    line("library   ", code_text(record.code) + " " + printable(record.message) + " (" +
                           record.unit + ":" + std::to_string(record.line) + place + ")");
  }
  return text;
}

std::string json_members(const Report &report) {
  std::string text =
      "\"offset\":" + std::to_string(report.offset) + ",\"path\":" + json_string(report.path) +
      ",\"found\":" + json_string(report.found) + ",\"expected\":" + json_string(report.expected) +
      ",\"octets\":{\"offset\":" + std::to_string(report.window_offset) +
      ",\"hex\":" + json_string(hex_octets(report.window)) + "},\"records\":[";
  for (std::size_t i = 0; i < report.records.size(); i++) {
    const Record &record = report.records[i];
    text += i == 0 ? "{" : ",{";
    text += "\"code\":" + json_string(code_text(record.code)) +
            ",\"message\":" + json_string(record.message) +
            ",\"unit\":" + json_string(record.unit) + ",\"line\":" + std::to_string(record.line);
    if (record.offset >= 0) text += ",\"offset\":" + std::to_string(record.offset);
    text += "}";
  }
  text += "]";
  if (report.tried.empty()) return text;
  text += ",\"tried\":[";
  for (std::size_t i = 0; i < report.tried.size(); i++) {
    const Tried &tried = report.tried[i];
    text += std::string(i == 0 ? "" : ",") + "{\"type\":" + json_string(tried.type) +
            ",\"offset\":" + std::to_string(tried.offset) + ",\"path\":" + json_string(tried.path) +
            ",\"reason\":" + json_string(tried.reason) + "}";
  }
  return text + "]";
}

}  // namespace quarn::cli
