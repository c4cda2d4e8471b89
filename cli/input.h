// Where encodings come from: files, directories and the standard input, in any of the forms in
// which people keep them.
#ifndef QUARN_CLI_INPUT_H
#define QUARN_CLI_INPUT_H

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/failure.h"
#include "cli/handles.h"
#include "cli/options.h"
#include "cli/text.h"
#include "quarn_util.h"

namespace quarn::cli {

enum class Form { automatic, der, pem, base64, hex };
Form form_named(std::string_view name);

// A path, fit to be printed.
std::string input_name(const std::string &path);

// All octets of a file; "-" is the standard input. Throws Failure, of a directory with that text.
Blob read_file(const std::string &path, const char *of_directory = "is a directory");

// One encoding, or what should have been one.
struct Object {
  std::size_t index = 0;
  // Where it starts: in the decoded octets of the file, or, for PEM, in its text.
  std::uint64_t offset = 0;
  Octets octets;
  std::string label;                  // of its PEM block
  std::optional<Failure> unreadable;  // a PEM block that cannot be decoded
};

// A file in memory, and the objects in it.
class Source {
 public:
  // Reads it whole. "-" is the standard input. Throws Failure.
  Source(std::string path, Form form);

  const std::string &path() const { return path_; }
  std::string name() const { return input_name(path_); }
  Form form() const { return form_; }
  const std::vector<Object> &objects() const { return objects_; }
  // The octets of the file as they are.
  Octets text() const { return text_; }

 private:
  void find_objects();
  void find_pem_blocks();
  void add_block(const quarn_pem_block &block);
  void split_encodings(Octets octets);
  void decode_hex();
  void decode_base64();

  std::string path_;
  Blob blob_;
  Form form_;
  Octets text_;
  std::vector<std::uint8_t> decoded_;
  std::vector<OwnedOctets> blocks_;
  std::vector<Object> objects_;
};

// What a sub-command does with each object.
class Visitor {
 public:
  virtual ~Visitor() = default;
  // Throws Failure when the object is bad. `several` tells that there are other objects too.
  virtual void object(const Source &source, const Object &object, bool several) = 0;
  // Reports what went wrong; object is null when the file itself could not be used.
  virtual void failure(const std::string &path, const Object *object, const Failure &failure) = 0;
};

// Shows every object of the operands to the visitor, and returns the exit code.
int visit_inputs(const Arguments &arguments, Visitor &visitor);

// The operands, or "-" when there are none: then somebody at a terminal is told to type.
std::vector<std::string> inputs_of(const Arguments &arguments);

// Characters in the forms of text.
constexpr std::string_view kPemBegin = "-----BEGIN ";
bool is_blank(int c);
bool is_base64(int c);
// Whether a line of the text begins a PEM block.
bool has_begin_line(std::string_view text);
// UTF-8 with no controls but blanks, at the start at least.
bool ordinary_text(Octets text);

// A line about an object, for people who look at several.
std::string object_heading(const Source &source, const Object &object);
// The JSON object of a line about an object, as far as it is the same whatever is said of it:
// {"source":"a.der","index":0,"offset":0,"length":5 - without what follows and its closing brace.
std::string json_head(const std::string &path, const Object *object);
// The same with the failure, whole, on standard output.
void write_json_failure(const std::string &path, const Object *object, const Failure &failure);

// "object 1 at 5 (CERTIFICATE): ", or nothing for the only object of a file without labels.
std::string object_prefix(const Object *object);
// The message of a failure on standard error, with the details of its report.
void say_failure(const std::string &command,
                 const std::string &path,
                 const Object *object,
                 const Failure &failure);

}  // namespace quarn::cli

#endif
