// `quarn json`: encodings as JSON documents.
#include <memory>

#include "cli/commands.h"
#include "cli/diagnosis.h"
#include "cli/handles.h"
#include "cli/input.h"
#include "cli/output.h"
#include "cli/text.h"
#include "quarn_asn1/json.h"

namespace quarn::cli {

namespace {

Json document_of(const Object &object) {
  const auto length = static_cast<std::int64_t>(object.octets.size());
  Json json(quarn_asn1_tojson(object.octets.data(), length));
  if (json == nullptr) {
    throw diagnose(object.octets, "an encoding that the library cannot show as a document");
  }
  return json;
}

// Where the pieces of a document's text go.
struct Destination {
  Output &output;
  JsonText text;
};

int write_piece(void *user, const void *buffer, std::int64_t count) noexcept {
  auto &to = *static_cast<Destination *>(user);
  const std::string_view piece(static_cast<const char *>(buffer), static_cast<std::size_t>(count));
  try {
    return to.output.try_write(to.text.escaped(piece)) ? 1 : 0;
  } catch (...) {
    return 0;
  }
}

// The document on standard output, piece by piece.
void write(const quarn_json *json, int indent) {
  Destination to{standard_output(), {}};
  quarn_stream_callbacks callbacks{};
  callbacks.write = write_piece;
  const Stream stream(quarn_stream_new_callback(&callbacks, &to, nullptr));
  if (stream == nullptr) throw std::bad_alloc();
  if (quarn_json_write(json, indent, stream.get(), nullptr) == 1) return;
  standard_output().flush();  // throws when it was the writing that failed
  throw std::bad_alloc();
}

// Documents as they are, one after another.
class Documents : public Visitor {
 public:
  explicit Documents(int indent) : indent_(indent) {}

  void object(const Source & /*source*/, const Object &object, bool /*several*/) override {
    write(document_of(object).get(), indent_);
    standard_output().write("\n");
  }
  void failure(const std::string &path, const Object *object, const Failure &failure) override {
    say_failure("json", path, object, failure);
  }

 private:
  int indent_;
};

// One line an object, whether it is good or bad.
class Lines : public Visitor {
 public:
  void object(const Source &source, const Object &object, bool /*several*/) override {
    const Json json = document_of(object);
    standard_output().write(json_head(source.path(), &object) + ",\"document\":");
    write(json.get(), 0);
    standard_output().write("}\n");
  }
  void failure(const std::string &path, const Object *object, const Failure &failure) override {
    write_json_failure(path, object, failure);
  }
};

}  // namespace

int run_json(const Arguments &arguments) {
  if (arguments.has(Opt::lines)) {
    Lines lines;
    return visit_inputs(arguments, lines);
  }
  Documents documents(arguments.json_indent());
  return visit_inputs(arguments, documents);
}

}  // namespace quarn::cli
