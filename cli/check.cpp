// `quarn check`: every departure from DER, as it is met.
//
//     a.der: offset 4, SEQUENCE[0].BOOLEAN: found 01; expected FF for TRUE, 00 for FALSE
//     (X.690 11.1, boolean-true)
//
// One walk judges identifiers and lengths, content (content.h), strings in pieces and the order of
// sets. A fault that hides where elements start ends the search in the element around it only, when
// the end of that one is known. Nothing but the open sets and strings is remembered. What only the
// type tells is judged besides, where it is known (typed_check.h).
#include <algorithm>
#include <cstring>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "cli/commands.h"
#include "cli/content.h"
#include "cli/failure.h"
#include "cli/finding.h"
#include "cli/guess.h"
#include "cli/input.h"
#include "cli/output.h"
#include "cli/typed_check.h"
#include "cli/value.h"
#include "cli/walk.h"

namespace quarn::cli {

namespace {

class Findings {
 public:
  virtual ~Findings() = default;
  virtual void add(const Finding &finding) = 0;
};

enum class Encoded { primitive, constructed, string, unknown };

struct UniversalType {
  Encoded form;
  const char *clause;  // that says so
};

constexpr UniversalType kFree = {Encoded::unknown, ""};
constexpr UniversalType kString = {Encoded::string, ""};
constexpr UniversalType kTypes[] = {
    kFree,                             // end-of-contents
    {Encoded::primitive, "8.2.1"},     // BOOLEAN
    {Encoded::primitive, "8.3.1"},     // INTEGER
    kString,                           // BIT STRING
    kString,                           // OCTET STRING
    {Encoded::primitive, "8.8.1"},     // NULL
    {Encoded::primitive, "8.19.1"},    // OBJECT IDENTIFIER
    kString,                           // ObjectDescriptor
    {Encoded::constructed, "8.18.1"},  // EXTERNAL
    {Encoded::primitive, "8.5.1"},     // REAL
    {Encoded::primitive, "8.4"},       // ENUMERATED
    {Encoded::constructed, "8.17"},    // EMBEDDED PDV
    kString,                           // UTF8String
    {Encoded::primitive, "8.20.1"},    // RELATIVE-OID
    {Encoded::primitive, "8.26"},      // TIME
    kFree,                             // reserved
    {Encoded::constructed, "8.9.1"},   // SEQUENCE
    {Encoded::constructed, "8.11.1"},  // SET
    kString,                           // NumericString
    kString,                           // PrintableString
    kString,                           // TeletexString
    kString,                           // VideotexString
    kString,                           // IA5String
    kString,                           // UTCTime
    kString,                           // GeneralizedTime
    kString,                           // GraphicString
    kString,                           // VisibleString
    kString,                           // GeneralString
    kString,                           // UniversalString
    {Encoded::constructed, "8.24"},    // CHARACTER STRING
    kString,                           // BMPString
    {Encoded::primitive, "8.26"},      // DATE
    {Encoded::primitive, "8.26"},      // TIME-OF-DAY
    {Encoded::primitive, "8.26"},      // DATE-TIME
    {Encoded::primitive, "8.26"},      // DURATION
    {Encoded::primitive, "8.21"},      // OID-IRI
    {Encoded::primitive, "8.22"},      // RELATIVE-OID-IRI
};

UniversalType type_of(const Element &element) {
  const bool known =
      element.header.tag_class == kUniversal && element.header.tag_number < std::size(kTypes);
  return known ? kTypes[element.header.tag_number] : kFree;
}

// One object, judged from its first octet to its last.
class Judge {
 public:
  // Strings in `opened` are known to hold encodings; see cli/typed_check.h.
  using Opened = std::map<std::uint64_t, std::uint64_t>;

  Judge(Octets octets, bool dig, const Opened &opened, Findings &findings)
      : octets_(octets),
        dig_(dig),
        opened_(opened),
        walk_(octets, Walk::Top::one, Walk::Tags::lenient),
        findings_(findings) {}

  void run();

 private:
  // A SET, or a string in pieces, whose components are being walked.
  struct Open {
    quarn_asn1_header header;
    std::size_t depth;
    // Of a SET: its last component so far, and which orders its components may still be in.
    std::optional<Element> last = std::nullopt;
    bool same_tags = true;
    bool by_tag = true;
    bool by_encoding = true;
  };

  void add(Rule rule, std::uint64_t offset, std::string found) {
    findings_.add({rule, offset, walk_.element_path(), std::move(found)});
  }
  void fault();
  void element();
  // Where the encodings inside a primitive element start in its content, if it holds any.
  std::optional<std::uint64_t> inside() const;
  void check_identifier();
  void check_length();
  void check_form();
  void check_component();
  void check_segment(const Open &string);
  void check_order(Open &set);

  Octets octets_;
  bool dig_;
  const Opened &opened_;
  Walk walk_;
  Findings &findings_;
  std::vector<Open> open_;  // outermost first
};

void Judge::run() {
  for (;;) {
    const Walk::Step step = walk_.next();
    if (step == Walk::Step::end) return;
    if (step == Walk::Step::element) {
      element();
      continue;
    }
    fault();
    if (!walk_.recover()) return;
  }
}

void Judge::fault() {
  const Fault &fault = walk_.fault();
  findings_.add({fault.rule, fault.offset, walk_.path(), fault.found, fault.expected});
}

void Judge::element() {
  const Element &element = walk_.element();
  while (!open_.empty() && open_.back().depth >= element.depth) open_.pop_back();
  if (element.end_of_contents) return;
  check_identifier();
  check_length();
  check_component();
  check_form();
  if (element.constructed()) return;
  if (element.header.tag_class == kUniversal) {
    check_content(element.header.tag_number, walk_.content(),
                  [this, start = element.content_offset()](Rule rule, std::uint64_t at,
                                                           const std::string &found) {
                    add(rule, start + at, found);
                  });
  }
  const std::optional<std::uint64_t> encodings = inside();
  if (encodings) walk_.descend(*encodings);
}

std::optional<std::uint64_t> Judge::inside() const {
  if (!dig_) return std::nullopt;
  const auto known = opened_.find(walk_.element().offset);
  return known == opened_.end() ? encapsulated(walk_) : std::optional(known->second);
}

void Judge::check_identifier() {
  const Element &element = walk_.element();
  const std::uint64_t number = element.header.tag_number;
  if (element.universal(0)) {
    add(Rule::reserved_tag, element.offset,
        "a constructed element with the tag of end-of-contents");
  }
  if ((octets_[element.offset] & 0x1Fu) != 0x1F) return;
  if (number < 0x1F) {
    add(Rule::short_tag, element.offset,
        "tag number " + std::to_string(number) + " in the long form");
  } else if (octets_[element.offset + 1] == 0x80) {
    add(Rule::minimal_tag, element.offset + 1,
        "tag number " + std::to_string(number) + " that starts with 80");
  }
}

// The length octets are what the header has besides the identifier octets.
void Judge::check_length() {
  const Element &element = walk_.element();
  std::uint64_t start = element.offset + 1;
  if ((octets_[element.offset] & 0x1Fu) == 0x1F) {
    while ((octets_[start] & 0x80u) != 0) start++;
    start++;
  }
  if (element.indefinite()) return add(Rule::definite_length, start, "the indefinite form");
  const std::uint64_t count = element.content_offset() - start;
  const auto least =
      static_cast<std::uint64_t>(quarn_asn1_length_length(element.header.content_length));
  if (count == least) return;
  add(Rule::minimal_length, start,
      counted(count, "octet") + " for the length " + std::to_string(element.content_length()) +
          ", which needs " + std::to_string(least));
}

void Judge::check_form() {
  const Element &element = walk_.element();
  const UniversalType type = type_of(element);
  const bool constructed = element.constructed();
  if (type.form == Encoded::string && constructed) {
    add(Rule::primitive_string, element.offset, "a constructed " + tag_name(element.header));
  }
  if (type.form == (constructed ? Encoded::primitive : Encoded::constructed)) {
    const std::string found = constructed ? "a constructed " : "a primitive ";
    const char *right = constructed ? "the primitive form" : "the constructed form";
    findings_.add({Rule::form, element.offset, walk_.element_path(),
                   found + tag_name(element.header), right, type.clause});
  }
  const bool with_components = type.form == Encoded::string || element.universal(17);
  if (constructed && with_components) open_.push_back({element.header, element.depth});
}

// What the element is to the SET or string that it is a component of.
void Judge::check_component() {
  if (open_.empty() || open_.back().depth + 1 != walk_.element().depth) return;
  Open &around = open_.back();
  if (around.header.tag_number == 17) {
    check_order(around);
  } else {
    check_segment(around);
  }
}

void Judge::check_segment(const Open &string) {
  const Element &element = walk_.element();
  const std::uint64_t wanted = string.header.tag_number == 3 ? 3 : 4;
  if (element.universal(wanted)) return;
  add(Rule::segment, element.offset,
      tag_name(element.header) + " in a constructed " + tag_name(string.header));
}

// Only a schema tells a SET, whose components stand in the order of their tags, from a SET OF,
// whose components stand in the order of their encodings. Components of one tag are those of a SET
// OF; for others either order will do, and one finding tells that neither is kept any more.
//
// The component may be compared before its end is known: of two encodings none is the start of the
// other. This costs the shorter of the two at most, so that sets in sets cost n log n, not n
// squared.
void Judge::check_order(Open &set) {
  const Element element = walk_.element();
  const std::optional<Element> last = std::exchange(set.last, element);
  if (!last || (!set.by_tag && !set.by_encoding)) return;
  const auto tag = [](const Element &of) {
    return std::pair(of.header.tag_class, of.header.tag_number);
  };
  const Octets before = octets_.subspan(last->offset, element.offset - last->offset);
  const Octets after = octets_.subspan(element.offset);
  const std::size_t count = std::min(before.size(), after.size());
  const bool equal_tags = tag(*last) == tag(element);
  set.same_tags = set.same_tags && equal_tags;
  set.by_tag = set.by_tag && tag(*last) < tag(element);
  set.by_encoding = set.by_encoding && std::memcmp(before.data(), after.data(), count) <= 0;
  if (set.by_encoding || set.by_tag) return;
  add(set.same_tags ? Rule::set_of_order : Rule::set_order, element.offset,
      "a component that should stand before that at offset " + std::to_string(last->offset));
}

// Reports what is found, for people or for programs.
class Check : public Visitor {
 public:
  explicit Check(const Arguments &arguments)
      : dig_(!arguments.has(Opt::no_dig)), json_(arguments.has(Opt::json)) {
    if (arguments.has(Opt::type)) type_id_ = type_named("check", arguments.value(Opt::type));
  }

  void object(const Source &source, const Object &object, bool several) override;
  void failure(const std::string &path, const Object *object, const Failure &failure) override;
  bool found() const { return found_; }

 private:
  class Reporter;

  bool dig_;
  bool json_;
  std::int64_t type_id_ = -1;
  bool found_ = false;
};

class Check::Reporter : public Findings {
 public:
  Reporter(Check &check, const Source &source, const Object &object)
      : check_(check),
        head_(check.json_ ? json_head(source.path(), &object)
                          : source.name() + ": " + object_prefix(&object)) {}

  void add(const Finding &finding) override {
    check_.found_ = true;
    standard_output().write(check_.json_ ? json_line(finding) : line(finding));
  }

 private:
  std::string line(const Finding &finding) const {
    return head_ + painted(Paint::number, "offset " + std::to_string(finding.offset)) +
           (finding.path.empty() ? "" : ", " + painted(Paint::tag, finding.path)) + ": found " +
           painted(Paint::fault, finding.found) + "; expected " + finding.expected +
           painted(Paint::dim,
                   " (X.690 " + finding.clause + ", " + text_of(finding.rule).name + ")") +
           "\n";
  }
  std::string json_line(const Finding &finding) const {
    return head_ + ",\"finding\":{\"offset\":" + std::to_string(finding.offset) +
           ",\"path\":" + json_string(finding.path) + ",\"rule\":\"" + text_of(finding.rule).name +
           "\",\"clause\":\"X.690 " + finding.clause +
           "\",\"found\":" + json_string(finding.found) +
           ",\"expected\":" + json_string(finding.expected) + "}}\n";
  }

  Check &check_;
  std::string head_;
};

// Where encodings stand one after another, what follows the last whole one is an object too.
void Check::object(const Source &source, const Object &object, bool /*several*/) {
  Reporter reporter(*this, source, object);
  const bool follows = object.index > 0 && source.form() != Form::pem;
  if (follows && !extent(object.octets)) {
    return reporter.add(
        {Rule::nothing_after, 0, "",
         counted(object.octets.size(), "octet") + " after an encoding that make none"});
  }
  const Decoded value =
      type_id_ >= 0 ? Decoded(type_id_, object.octets) : recognise(object.octets, object.label);
  TypedFindings typed;
  if (value.get() != nullptr) typed = judge_typed(value, object.octets, dig_);
  Judge(object.octets, dig_, typed.opened, reporter).run();
  for (const Finding &finding : typed.findings) reporter.add(finding);
  const bool wrong_type = type_id_ >= 0 && value.get() == nullptr;
  if (wrong_type && well_formed(object.octets)) decode_as(type_id_, object.octets);
}

void Check::failure(const std::string &path, const Object *object, const Failure &failure) {
  if (json_) return write_json_failure(path, object, failure);
  say_failure("check", path, object, failure);
}

}  // namespace

int run_check(const Arguments &arguments) {
  Check check(arguments);
  const int code = visit_inputs(arguments, check);
  return code == kGood && check.found() ? kBadInput : code;
}

}  // namespace quarn::cli
