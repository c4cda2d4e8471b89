// `quarn convert`: the same octets in another form of text.
#include <algorithm>
#include <regex>

#include "cli/commands.h"
#include "cli/diagnosis.h"
#include "cli/failure.h"
#include "cli/input.h"
#include "cli/output_file.h"
#include "cli/walk.h"

namespace quarn::cli {

namespace {

constexpr std::size_t kLineOctets = 48;  // of base64 text of 64 characters a line
constexpr std::size_t kMostShape = 80;   // elements of which the shape of an object is made
constexpr std::size_t kDeepestShape = 2;

// The letter of an element in a shape.
char letter_of(const quarn_asn1_header &header) {
  constexpr std::string_view kLetters = ".bIBOno..r....r.ST.....tt........";
  if (header.tag_class == kUniversal && header.tag_number < kLetters.size()) {
    return kLetters[header.tag_number];
  }
  const bool digit = header.tag_class == kContext && header.tag_number < 10;
  return digit ? static_cast<char>('0' + header.tag_number) : '.';
}

// What the outer levels of an object look like: a letter for each element, with its components in
// brackets. A certificate is S(S(0ISSSSS3)SB), with less or more between the brackets inside.
std::string shape_of(Octets octets) {
  std::string shape;
  Walk walk(octets);
  std::size_t depth = 0;
  for (std::size_t count = 0; count < kMostShape && walk.next() == Walk::Step::element;) {
    const Element &element = walk.element();
    if (element.depth > kDeepestShape || element.end_of_contents) continue;
    count++;
    shape.append(depth - element.depth, ')');
    shape.push_back(letter_of(element.header));
    const bool opens = element.constructed() && element.depth < kDeepestShape;
    if (opens) shape.push_back('(');
    depth = element.depth + (opens ? 1 : 0);
  }
  shape.append(depth, ')');
  return shape;
}

struct Look {
  const char *label;  // as RFC 7468 and RFC 5915 name it
  const char *shape;  // a regular expression
};

constexpr Look kLooks[] = {
    {"CERTIFICATE", R"(S\(S\(0?ISSSSS1?2?3?\)S\(.*\)B\))"},
    {"X509 CRL", R"(S\(S\(I?SStt?S?0?\)S\(.*\)B\))"},
    {"CERTIFICATE REQUEST", R"(S\(S\(ISS0?\)S\(.*\)B\))"},
    {"ATTRIBUTE CERTIFICATE", R"(S\(S\(IS0SISSB?S?\)S\(.*\)B\))"},
    {"PUBLIC KEY", R"(S\(S\(o.?\)B\))"},
    {"PRIVATE KEY", R"(S\(IS\(o.?\)O(0\(.*\))?1?(\(.*\))?\))"},
    {"ENCRYPTED PRIVATE KEY", R"(S\(S\(oS\)O\))"},
    {"RSA PRIVATE KEY", R"(S\(IIIIIIIII\))"},
    {"EC PRIVATE KEY", R"(S\(IO(0\(.\))?(1\(B\))?\))"},
};

// ContentInfo of a kind that RFC 5652 or its kin name.
bool message_syntax(Octets octets) {
  constexpr std::uint8_t kPkcs[] = {0x2A, 0x86, 0x48, 0x86, 0xF7, 0x0D, 0x01};
  Walk walk(octets);
  if (walk.next() != Walk::Step::element || walk.next() != Walk::Step::element) return false;
  if (!walk.element().universal(6) || walk.element().constructed()) return false;
  const Octets oid = walk.content();
  return oid.size() > std::size(kPkcs) &&
         std::equal(std::begin(kPkcs), std::end(kPkcs), oid.begin()) &&
         (oid[std::size(kPkcs)] == 7 || oid[std::size(kPkcs)] == 9);
}

// The label that the structure tells; empty when it tells none.
std::string label_of(Octets octets) {
  const std::string shape = shape_of(octets);
  for (const Look &look : kLooks) {
    if (std::regex_match(shape, std::regex(look.shape))) return look.label;
  }
  const bool content_info = std::regex_match(shape, std::regex(R"(S\(o0\(.\)\))"));
  return content_info && message_syntax(octets) ? "PKCS7" : "";
}

Form form_of(const Arguments &arguments) {
  const std::string name = arguments.value(Opt::to);
  if (name.empty()) throw UsageError("convert", "it needs --to der, pem, hex or base64");
  const Form form = form_named(name);
  if (!arguments.has(Opt::label)) return form;
  if (form != Form::pem) throw UsageError("convert", "--label is for --to pem only");
  check_label("convert", arguments.value(Opt::label));
  return form;
}

class Convert : public Visitor {
 public:
  Convert(Form form, std::string label, Output &output)
      : form_(form), label_(std::move(label)), output_(output) {}

  void object(const Source &source, const Object &object, bool several) override;
  void failure(const std::string &path, const Object *object, const Failure &failure) override {
    say_failure("convert", path, object, failure);
  }
  // Writes what has been kept back.
  void finish();

 private:
  std::string label_for(const Object &object, Octets octets) const;
  void write_base64(Octets octets);
  void write_lines(const std::uint8_t *octets, std::size_t count);

  Form form_;
  std::string label_;  // empty: one for each object
  Output &output_;
  std::vector<std::uint8_t> line_;  // of base64, octets that do not fill a line yet
};

// A PEM block that holds several encodings, as a trusted certificate does, stays one.
Octets block_at(const Source &source, const Object &object) {
  const std::vector<Object> &objects = source.objects();
  std::size_t size = object.octets.size();
  if (source.form() != Form::pem) return object.octets;
  for (std::size_t i = object.index + 1; i < objects.size(); i++) {
    if (objects[i].offset != object.offset) break;
    size += objects[i].octets.size();
  }
  return {object.octets.data(), size};
}

void Convert::object(const Source &source, const Object &object, bool /*several*/) {
  const bool part = source.form() == Form::pem && object.index > 0 &&
                    source.objects()[object.index - 1].offset == object.offset;
  if (part) return;
  if (!well_formed(object.octets)) throw diagnose(object.octets, "no encoding");
  const Octets octets = block_at(source, object);
  if (form_ == Form::base64) return write_base64(octets);
  const std::string label = form_ == Form::pem ? label_for(object, octets) : "";
  write_encoding(output_, form_, label, octets);
}

std::string Convert::label_for(const Object &object, Octets octets) const {
  if (!label_.empty()) return label_;
  std::string label = object.label.empty() ? label_of(octets) : object.label;
  if (!label.empty()) return label;
  throw Failure(kUsage,
                "its structure does not tell what it is; name it with --label, for example "
                "--label PARAMETERS");
}

// One text for all objects: padding between them would end it for whoever reads it.
void Convert::write_base64(Octets octets) {
  const std::size_t missing =
      line_.empty() ? 0 : std::min(kLineOctets - line_.size(), octets.size());
  line_.insert(line_.end(), octets.begin(), octets.begin() + static_cast<std::ptrdiff_t>(missing));
  octets = octets.subspan(missing);
  if (line_.size() == kLineOctets) finish();
  const std::size_t whole = octets.size() - octets.size() % kLineOctets;
  write_lines(octets.data(), whole);
  octets = octets.subspan(whole);
  line_.insert(line_.end(), octets.begin(), octets.end());
}

void Convert::finish() {
  write_lines(line_.data(), line_.size());
  line_.clear();
}

void Convert::write_lines(const std::uint8_t *octets, std::size_t count) {
  if (count == 0) return;
  char *text = nullptr;
  std::int64_t length = 0;
  static_cast<void>(quarn_base64encode(4 * kLineOctets / 3, octets,
                                       static_cast<std::int64_t>(count), &text, &length));
  write_text(output_, text, length);
}

}  // namespace

int run_convert(const Arguments &arguments) {
  const Form form = form_of(arguments);
  Target target("convert", arguments, form);
  Convert convert(form, arguments.value(Opt::label), target.output());
  const int code = visit_inputs(arguments, convert);
  convert.finish();
  if (code == kGood) target.commit();
  return code;
}

}  // namespace quarn::cli
