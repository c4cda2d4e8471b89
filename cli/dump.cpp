// `quarn dump`: one line for each element.
//
//       offset head   length  form  element
//            0   4      893  cons  SEQUENCE
//            4   2        3  prim    OID 2.5.4.3 commonName
//
// Elements are written as they are met, so that the tree is never in memory and a fault leaves
// everything before it on the screen. Indentation stops at a depth where nobody can count it any
// more; the depth is then written as a number, which keeps the output linear in the input.
#include <cstdio>

#include "cli/commands.h"
#include "cli/diagnosis.h"
#include "cli/input.h"
#include "cli/output.h"
#include "cli/value.h"
#include "cli/walk.h"

namespace quarn::cli {

namespace {

constexpr std::size_t kMostIndent = 32;
constexpr const char *kTitle = "  offset head   length  form  element";

std::string column(const std::string &text, std::size_t width) {
  return text.size() < width ? std::string(width - text.size(), ' ') + text : text;
}

class Dump : public Visitor {
 public:
  explicit Dump(const Arguments &arguments)
      : dig_(!arguments.has(Opt::no_dig)),
        depth_(arguments.number(Opt::depth, UINT64_MAX)),
        width_(arguments.width()) {}

  void object(const Source &source, const Object &object, bool several) override;
  void failure(const std::string &path, const Object *object, const Failure &failure) override {
    say_failure("dump", path, object, failure);
  }

 private:
  void line(Walk &walk);
  void write(const Walk &walk, bool encapsulates) const;

  bool dig_;
  std::uint64_t depth_;
  std::size_t width_;
  bool first_ = true;
  bool titled_ = false;
};

void Dump::write(const Walk &walk, bool encapsulates) const {
  const Element &element = walk.element();
  const std::size_t indent = std::min(element.depth, kMostIndent);
  const std::string length =
      element.indefinite() ? "indef" : std::to_string(element.content_length());
  std::string text =
      painted(Paint::dim, column(std::to_string(element.offset), 8) +
                              column(std::to_string(element.header.header_length), 4) +
                              column(length, 9)) +
      (element.constructed() ? "  cons  " : "  prim  ") + std::string(2 * indent, ' ');
  if (indent < element.depth) {
    text += painted(Paint::dim, "(depth " + std::to_string(element.depth) + ") ");
  }
  text += painted(element.end_of_contents ? Paint::dim : Paint::tag, tag_name(element.header));
  if (encapsulates) {
    text += painted(Paint::dim, " encapsulates");
  } else if (!element.constructed() && !element.end_of_contents) {
    const std::string value = value_text(element.header, walk.content(), width_);
    text += (value.empty() ? "" : " ") + value;
  }
  standard_output().write(text + "\n");
}

void Dump::line(Walk &walk) {
  const std::optional<std::uint64_t> inside = dig_ ? encapsulated(walk) : std::nullopt;
  if (walk.element().depth <= depth_) write(walk, inside.has_value());
  if (inside) walk.descend(*inside);
}

void Dump::object(const Source &source, const Object &object, bool several) {
  if (several) standard_output().write((first_ ? "" : "\n") + object_heading(source, object));
  first_ = false;
  if (!titled_) standard_output().write(painted(Paint::dim, kTitle) + "\n");
  titled_ = true;
  Walk walk(object.octets);
  Walk::Step step = walk.next();
  for (; step == Walk::Step::element; step = walk.next()) line(walk);
  if (step == Walk::Step::fault) throw failure_at(walk, object.octets);
}

}  // namespace

int run_dump(const Arguments &arguments) {
  Dump dump(arguments);
  return visit_inputs(arguments, dump);
}

}  // namespace quarn::cli
