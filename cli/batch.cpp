// Many inputs in one run: one bad file never hides the rest, and the exit code tells.
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <new>

#include "cli/diagnosis.h"
#include "cli/input.h"
#include "cli/output.h"
#include "cli/progress.h"

namespace quarn::cli {

namespace {

namespace fs = std::filesystem;

// A run over all inputs.
class Batch {
 public:
  Batch(Visitor &visitor, Form form) : visitor_(visitor), form_(form) {}

  void add(const std::string &operand, bool recursive);
  int run();

 private:
  void add_directory(const std::string &directory);
  void visit_file(const std::string &path);
  void visit_object(const Source &source, const Object &object);
  void failed(const std::string &path, const Object *object, const Failure &failure);

  Visitor &visitor_;
  Form form_;
  std::vector<std::string> files_;
  std::size_t objects_ = 0;
  std::size_t failures_ = 0;
  Exit first_ = kGood;
};

void Batch::failed(const std::string &path, const Object *object, const Failure &failure) {
  if (failures_++ == 0) first_ = failure.code();
  visitor_.failure(path, object, failure);
}

void Batch::add(const std::string &operand, bool recursive) {
  std::error_code error;
  if (recursive && operand != "-" && fs::is_directory(operand, error)) {
    add_directory(operand);
  } else {
    files_.push_back(operand);
  }
}

// Links to directories are not followed, so that no loop can be entered; links to files are. A
// directory that cannot be searched hides no other.
void Batch::add_directory(const std::string &directory) {
  const std::size_t before = files_.size();
  std::vector<std::string> left{directory};
  while (!left.empty()) {
    const std::string next = std::move(left.back());
    left.pop_back();
    std::error_code error;
    for (fs::directory_iterator it(next, error); !error && it != fs::directory_iterator();
         it.increment(error)) {
      std::error_code ignored;
      if (it->is_regular_file(ignored)) files_.push_back(it->path().string());
      const bool below = it->is_directory(ignored) && !it->is_symlink(ignored);
      if (below) left.push_back(it->path().string());
    }
    if (!error) continue;
    objects_++;
    failed(next, nullptr, {kFile, "cannot be searched: " + error.message()});
  }
  std::sort(files_.begin() + static_cast<std::ptrdiff_t>(before), files_.end());
}

void Batch::visit_object(const Source &source, const Object &object) {
  objects_++;
  try {
    if (object.unreadable) throw Failure(*object.unreadable);
    visitor_.object(source, object, files_.size() > 1 || source.objects().size() > 1);
  } catch (const Failure &failure) {
    failed(source.path(), &object, failure);
  } catch (const std::bad_alloc &) {
    failed(source.path(), &object, {kLimit, "not enough memory"});
  }
}

void Batch::visit_file(const std::string &path) {
  std::optional<Source> source;
  try {
    source.emplace(path, form_);
  } catch (const Failure &failure) {
    objects_++;
    return failed(path, nullptr, failure);
  } catch (const std::bad_alloc &) {
    objects_++;
    return failed(path, nullptr, {kLimit, "not enough memory"});
  }
  for (const Object &object : source->objects()) visit_object(*source, object);
}

int Batch::run() {
  Progress progress(isatty(STDOUT_FILENO) == 0);
  for (std::size_t i = 0; i < files_.size(); i++) {
    if (progress.due()) {
      progress.show(std::to_string(i) + " of " + std::to_string(files_.size()) + " files");
    }
    visit_file(files_[i]);
  }
  if (failures_ == 0) return kGood;
  return failures_ < objects_ ? kSomeFailed : first_;
}

}  // namespace

Form form_named(std::string_view name) {
  if (name == "der") return Form::der;
  if (name == "pem") return Form::pem;
  if (name == "base64") return Form::base64;
  return name == "hex" ? Form::hex : Form::automatic;
}

std::vector<std::string> inputs_of(const Arguments &arguments) {
  if (!arguments.operands.empty()) return arguments.operands;
  if (isatty(STDIN_FILENO) == 1) say("quarn: reading from the terminal; end with Ctrl-D");
  return {"-"};
}

int visit_inputs(const Arguments &arguments, Visitor &visitor) {
  Batch batch(visitor, form_named(arguments.value(Opt::in_form, "auto")));
  for (const std::string &input : inputs_of(arguments)) {
    batch.add(input, arguments.has(Opt::recursive));
  }
  return batch.run();
}

std::string object_heading(const Source &source, const Object &object) {
  std::string text = source.name() + ": object " + std::to_string(object.index);
  if (!object.label.empty()) text += " (" + printable(object.label) + ")";
  text +=
      " at offset " + std::to_string(object.offset) + ", " + counted(object.octets.size(), "octet");
  return painted(Paint::tag, text) + "\n";
}

std::string json_head(const std::string &path, const Object *object) {
  std::string text = "{\"source\":" + json_string(path);
  if (object == nullptr) return text;
  text += ",\"index\":" + std::to_string(object->index) +
          ",\"offset\":" + std::to_string(object->offset) +
          ",\"length\":" + std::to_string(object->octets.size());
  if (!object->label.empty()) text += ",\"label\":" + json_string(object->label);
  return text;
}

void write_json_failure(const std::string &path, const Object *object, const Failure &failure) {
  std::string text = json_head(path, object) +
                     ",\"error\":{\"exit\":" + std::to_string(failure.code()) +
                     ",\"message\":" + json_string(failure.what());
  if (failure.report() != nullptr) text += "," + json_members(*failure.report());
  standard_output().write(text + "}}\n");
}

std::string object_prefix(const Object *object) {
  if (object == nullptr || (object->index == 0 && object->label.empty())) return "";
  const std::string label = object->label.empty() ? "" : " (" + printable(object->label) + ")";
  return "object " + std::to_string(object->index) + " at " + std::to_string(object->offset) +
         label + ": ";
}

void say_failure(const std::string &command,
                 const std::string &path,
                 const Object *object,
                 const Failure &failure) {
  std::string line =
      "quarn " + command + ": " + input_name(path) + ": " + object_prefix(object) + failure.what();
  if (failure.report() != nullptr) line += "\n" + details(*failure.report());
  say(line);
}

}  // namespace quarn::cli
