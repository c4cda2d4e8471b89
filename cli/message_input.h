// A message that is read once, forwards, a block at a time: DER as it is, or out of a PEM block,
// whose text is decoded as it goes. So a message of any size comes through a pipe.
#ifndef QUARN_CLI_MESSAGE_INPUT_H
#define QUARN_CLI_MESSAGE_INPUT_H

#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <vector>

#include "cli/handles.h"
#include "cli/progress.h"
#include "cli/text.h"

namespace quarn::cli {

// The octets of a file or of the standard input, in blocks.
class RawInput {
 public:
  // "-" is the standard input. Throws Failure.
  explicit RawInput(const std::string &path);
  ~RawInput();
  RawInput(const RawInput &) = delete;
  RawInput &operator=(const RawInput &) = delete;

  // Appends a block of octets; false at the end. Throws Failure.
  bool read(std::vector<std::uint8_t> &to);
  // Octets in all; -1 for what is no regular file.
  std::int64_t length() const { return length_; }
  void seek(std::uint64_t position);

 private:
  int descriptor_;
  std::int64_t base_ = 0;
  std::int64_t length_ = -1;
};

// The octets in the first PEM block of a message.
class PemText {
 public:
  PemText(RawInput &raw, std::vector<std::uint8_t> text) : raw_(raw), text_(std::move(text)) {}

  // Goes behind the BEGIN line of the next message; false when there is none.
  bool find();
  // Appends octets; false at the end of the block. Throws Failure.
  bool read(std::vector<std::uint8_t> &to);

 private:
  bool more();
  int next();
  std::string line();
  void end();
  void decode(std::vector<std::uint8_t> &to);
  [[noreturn]] void broken(const std::string &why) const;

  RawInput &raw_;
  std::vector<std::uint8_t> text_;
  std::size_t at_ = 0;
  std::uint64_t before_ = 0;  // characters of the file before text_
  std::string label_;
  std::string base64_;  // characters that are not decoded yet
  bool inside_ = false;
};

class MessageInput {
 public:
  // Reads the start, and tells DER from PEM by it. Throws Failure.
  MessageInput(const std::string &path, bool progress);

  bool pem() const { return pem_ != nullptr; }
  // The octets of the message that have been read before anything else: 128 of them or more,
  // unless the input is shorter.
  Octets start() const { return block_; }
  // A stream whose first octet is the one at `base`, which is among those at the start. What its
  // functions throw is thrown by rethrow().
  quarn_stream *open(std::size_t base);
  void rethrow() const {
    if (thrown_) std::rethrow_exception(thrown_);
  }
  // Octets of the message before the next one.
  std::uint64_t position() const { return block_offset_ + next_; }
  // The octets around the position that are held; `whole` tells that they are all of the input.
  struct Held {
    Octets octets;
    std::uint64_t offset;
    bool whole;
  };
  Held held();
  // Throws Failure unless the input ends here.
  void expect_end();
  // Takes the line of progress away.
  void quiet() { progress_.clear(); }

 private:
  static std::int64_t read_some(void *user, void *buffer, std::int64_t count);
  static std::int64_t length_of(void *user);
  static int seek_to(void *user, std::uint64_t offset);

  bool fill(std::vector<std::uint8_t> &to);
  void read_start();
  void refill();
  Octets ahead() const { return Octets(block_).subspan(next_); }

  Progress progress_;
  RawInput raw_;
  std::unique_ptr<PemText> pem_;
  std::vector<std::uint8_t> block_;
  std::vector<std::uint8_t> more_;  // takes the next block
  std::size_t next_ = 0;
  std::uint64_t block_offset_ = 0;
  std::uint64_t base_ = 0;  // octets before the stream
  bool ended_ = false;
  std::exception_ptr thrown_;
  Stream stream_;
};

}  // namespace quarn::cli

#endif
