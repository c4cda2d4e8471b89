// `quarn decode`: values of known types, with the names of their components.
#include <algorithm>

#include "cli/commands.h"
#include "cli/guess.h"
#include "cli/input.h"
#include "cli/output.h"
#include "cli/show.h"
#include "cli/value.h"

namespace quarn::cli {

namespace {

// What the three forms of output have in common: from an object to a value of a type.
class Decode : public Visitor {
 public:
  explicit Decode(const Arguments &arguments) {
    if (arguments.has(Opt::type)) type_id_ = type_named("decode", arguments.value(Opt::type));
  }

  void object(const Source &source, const Object &object, bool several) override {
    if (type_id_ >= 0) return show(source, object, decode_as(type_id_, object.octets), several);
    if (!well_formed(object.octets)) throw diagnose(object.octets, "no encoding");
    Guess found = guess(object.octets, object.label);
    if (found.value.get() == nullptr) return unknown(source, object, found, several);
    if (!found.others.empty()) say_ambiguous(source, object, found);
    show(source, object, found.value, several);
  }
  void failure(const std::string &path, const Object *object, const Failure &failure) override {
    say_failure("decode", path, object, failure);
  }

 protected:
  virtual void show(const Source &source,
                    const Object &object,
                    const Decoded &value,
                    bool several) = 0;
  // Called for an encoding that is of no type tried; throws the failure.
  virtual void unknown(const Source &source,
                       const Object &object,
                       const Guess &found,
                       bool several);

 private:
  static void say_ambiguous(const Source &source, const Object &object, const Guess &found);

  std::int64_t type_id_ = -1;
};

void Decode::say_ambiguous(const Source &source, const Object &object, const Guess &found) {
  std::string line = "quarn decode: " + source.name() + ": ";
  if (object.index > 0) line += "object " + std::to_string(object.index) + ": ";
  line += "shown as " + notation_of(found.value.type_id()) + "; --type could also be";
  const char *before = " ";
  for (const std::int64_t type_id : found.others) {
    line += before + notation_of(type_id);
    before = ", ";
  }
  say(line);
}

void Decode::unknown(const Source & /*source*/,
                     const Object &object,
                     const Guess &found,
                     bool /*several*/) {
  throw no_type(found, object.octets);
}

// For people.
class Text : public Decode {
 public:
  explicit Text(const Arguments &arguments) : Decode(arguments), width_(arguments.width()) {}

 protected:
  void show(const Source &source,
            const Object &object,
            const Decoded &value,
            bool several) override {
    heading(source, object, several);
    TextShow show(width_);
    walk_value(value.type_id(), value.get(), show);
  }
  void unknown(const Source &source,
               const Object &object,
               const Guess &found,
               bool several) override {
    heading(source, object, several);
    TextShow(width_).tree(object.octets);
    Decode::unknown(source, object, found, several);
  }

 private:
  void heading(const Source &source, const Object &object, bool several) {
    if (several) standard_output().write((first_ ? "" : "\n") + object_heading(source, object));
    first_ = false;
  }

  std::size_t width_;
  bool first_ = true;
};

// One document an object, one after another.
class Documents : public Decode {
 public:
  explicit Documents(const Arguments &arguments)
      : Decode(arguments), indent_(arguments.json_indent()) {}

 protected:
  void show(const Source & /*source*/,
            const Object & /*object*/,
            const Decoded &value,
            bool /*several*/) override {
    JsonShow show(indent_);
    walk_value(value.type_id(), value.get(), show);
    standard_output().write("\n");
  }

 private:
  int indent_;
};

// One line an object, whether it is good or bad.
class Lines : public Decode {
 public:
  using Decode::Decode;

  void failure(const std::string &path, const Object *object, const Failure &failure) override {
    write_json_failure(path, object, failure);
  }

 protected:
  void show(const Source &source,
            const Object &object,
            const Decoded &value,
            bool /*several*/) override {
    standard_output().write(json_head(source.path(), &object) + ",\"type\":" +
                            json_string(notation_of(value.type_id())) + ",\"value\":");
    JsonShow show(0);
    walk_value(value.type_id(), value.get(), show);
    standard_output().write("}\n");
  }
};

}  // namespace

int run_decode(const Arguments &arguments) {
  if (arguments.has(Opt::lines)) {
    Lines lines(arguments);
    return visit_inputs(arguments, lines);
  }
  if (arguments.has(Opt::json) || arguments.has(Opt::compact)) {
    Documents documents(arguments);
    return visit_inputs(arguments, documents);
  }
  Text text(arguments);
  return visit_inputs(arguments, text);
}

}  // namespace quarn::cli
