// `quarn cms`: messages of any size, in one pass.
#include "cli/commands.h"
#include "cli/input.h"
#include "cli/message_show.h"
#include "cli/output.h"
#include "cli/output_file.h"

namespace quarn::cli {

namespace {

int write_octets(void *user, const void *octets, std::int64_t count) {
  const std::string_view text(static_cast<const char *>(octets), static_cast<std::size_t>(count));
  return static_cast<Output *>(user)->try_write(text) ? 1 : 0;
}

// Where --content puts the content, or nowhere.
class Cut {
 public:
  explicit Cut(const Arguments &arguments) {
    if (!arguments.has(Opt::content)) return;
    const std::string path = arguments.value(Opt::content);
    if (path != "-") file_ = std::make_unique<OutputFile>(path);
    output_ = file_ ? &file_->output() : &standard_output();
    quarn_stream_callbacks callbacks{};
    callbacks.write = write_octets;
    stream_.reset(quarn_stream_new_callback(&callbacks, output_, nullptr));
    if (stream_ == nullptr) throw std::bad_alloc();
  }

  quarn_stream *stream() { return stream_.get(); }
  // Throws what kept the content from being written.
  void flush() {
    if (output_ != nullptr) output_->flush();
  }
  void commit(const Message &message) {
    if (output_ == nullptr) return;
    if (!message.content) throw Failure(kBadInput, "carries no content");
    if (file_) file_->commit();
  }

 private:
  std::unique_ptr<OutputFile> file_;
  Output *output_ = nullptr;
  Stream stream_;
};

Message read_from(MessageInput &input, Cut &cut) {
  try {
    Message message = read_message(input, cut.stream());
    input.quiet();
    return message;
  } catch (const Failure &) {
    input.quiet();
    cut.flush();
    throw;
  }
}

void show(const Message &message, const Arguments &arguments) {
  if (arguments.value(Opt::content) == "-") return;
  if (arguments.has(Opt::json) || arguments.has(Opt::compact)) {
    MessageJson(message, arguments.json_indent()).show();
    return standard_output().write("\n");
  }
  MessageText(message, arguments.width()).show();
}

}  // namespace

int run_cms(const Arguments &arguments) {
  const bool to_output = arguments.value(Opt::content) == "-";
  if (to_output && (arguments.has(Opt::json) || arguments.has(Opt::compact))) {
    throw UsageError("cms", "--content - writes nothing but the content, and no JSON");
  }
  const std::string path = inputs_of(arguments).front();
  const auto failed = [&path](const Failure &failure) {
    say_failure("cms", path, nullptr, failure);
    return failure.code();
  };
  try {
    Cut cut(arguments);
    MessageInput input(path, !to_output);
    const Message message = read_from(input, cut);
    cut.commit(message);
    show(message, arguments);
  } catch (const Failure &failure) {
    return failed(failure);
  } catch (const std::bad_alloc &) {
    return failed({kLimit, "not enough memory"});
  }
  return kGood;
}

}  // namespace quarn::cli
