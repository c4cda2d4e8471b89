#include "cli/message_input.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "cli/failure.h"
#include "cli/input.h"

namespace quarn::cli {

namespace {

constexpr std::size_t kBlock = 65536;
constexpr std::size_t kAhead = 128;  // octets that tell what a message is

// Text never has a control where a message has the tag of its first component.
bool begins_as_der(Octets start) {
  if (start[0] != 0x30) return false;
  return start.size() < 2 || start[1] >= 0x80 || (start.size() > 2 && start[2] < '\t');
}

}  // namespace

RawInput::RawInput(const std::string &path)
    : descriptor_(path == "-" ? STDIN_FILENO : ::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
  if (descriptor_ < 0) throw system_failure("cannot be opened");
  struct stat status {};
  if (::fstat(descriptor_, &status) != 0 || !S_ISREG(status.st_mode)) return;
  base_ = std::max<std::int64_t>(::lseek(descriptor_, 0, SEEK_CUR), 0);
  length_ = std::max<std::int64_t>(status.st_size - base_, 0);
}

RawInput::~RawInput() {
  if (descriptor_ != STDIN_FILENO) ::close(descriptor_);
}

bool RawInput::read(std::vector<std::uint8_t> &to) {
  const std::size_t before = to.size();
  to.resize(before + kBlock);
  ssize_t count = -1;
  do {
    count = ::read(descriptor_, to.data() + before, kBlock);
  } while (count < 0 && errno == EINTR);
  if (count < 0) throw system_failure("cannot be read");
  to.resize(before + static_cast<std::size_t>(count));
  return count > 0;
}

void RawInput::seek(std::uint64_t position) {
  const off_t target = base_ + static_cast<off_t>(position);
  if (::lseek(descriptor_, target, SEEK_SET) != target) throw system_failure("cannot be read");
}

MessageInput::MessageInput(const std::string &path, bool progress)
    : progress_(progress), raw_(path) {
  read_start();
  if (block_.empty()) throw Failure(kBadInput, "the input is empty");
  if (begins_as_der(block_)) return;
  if (!has_begin_line(as_text(block_)) && !ordinary_text(block_)) return;
  pem_ = std::make_unique<PemText>(raw_, std::exchange(block_, {}));
  if (!pem_->find()) {
    throw Failure(kBadInput,
                  "is neither DER nor PEM with the label CMS or PKCS7; other forms, S/MIME among "
                  "them, are not read");
  }
  ended_ = false;
  read_start();
}

// Adds octets; false at the end of the input.
bool MessageInput::fill(std::vector<std::uint8_t> &to) {
  if (!ended_) ended_ = !(pem_ ? pem_->read(to) : raw_.read(to));
  return !ended_;
}

void MessageInput::read_start() {
  while (block_.size() < kAhead && fill(block_)) {
  }
}

quarn_stream *MessageInput::open(std::size_t base) {
  base_ = base;
  next_ = base;
  quarn_stream_callbacks callbacks{};
  callbacks.read = read_some;
  if (raw_.length() >= 0 && !pem()) {
    callbacks.length = length_of;
    callbacks.seek = seek_to;
  }
  stream_.reset(quarn_stream_new_callback(&callbacks, this, nullptr));
  if (stream_ == nullptr) throw std::bad_alloc();
  return stream_.get();
}

// The next octets behind those that have been read, which are kept when they are few or the last.
void MessageInput::refill() {
  if (progress_.due()) progress_.show(std::to_string(position() >> 20) + " MiB");
  if (block_.size() < kBlock) {
    static_cast<void>(fill(block_));
    return;
  }
  more_.clear();
  if (!fill(more_)) return;
  block_offset_ += block_.size();
  block_.swap(more_);
  next_ = 0;
}

std::int64_t MessageInput::read_some(void *user, void *buffer, std::int64_t count) {
  auto &input = *static_cast<MessageInput *>(user);
  try {
    if (input.ahead().empty()) input.refill();
  } catch (...) {
    input.thrown_ = std::current_exception();
    return -1;
  }
  const std::size_t most = std::min(static_cast<std::size_t>(count), input.ahead().size());
  std::copy_n(input.ahead().begin(), most, static_cast<std::uint8_t *>(buffer));
  input.next_ += most;
  return static_cast<std::int64_t>(most);
}

std::int64_t MessageInput::length_of(void *user) {
  const auto &input = *static_cast<const MessageInput *>(user);
  return std::max<std::int64_t>(input.raw_.length() - static_cast<std::int64_t>(input.base_), 0);
}

int MessageInput::seek_to(void *user, std::uint64_t offset) {
  auto &input = *static_cast<MessageInput *>(user);
  const std::uint64_t position = input.base_ + offset;
  try {
    if (position < input.block_offset_ || position > input.block_offset_ + input.block_.size()) {
      input.raw_.seek(position);
      input.block_.clear();
      input.block_offset_ = position;
      input.ended_ = false;
    }
    input.next_ = static_cast<std::size_t>(position - input.block_offset_);
    return 1;
  } catch (...) {
    input.thrown_ = std::current_exception();
    return 0;
  }
}

MessageInput::Held MessageInput::held() {
  while (block_offset_ == 0 && block_.size() < kBlock && fill(block_)) {
  }
  return {block_, block_offset_, block_offset_ == 0 && ended_};
}

void MessageInput::expect_end() {
  if (ahead().empty()) refill();
  if (!ahead().empty()) {
    throw Failure(kBadInput, offset_text(position()) + ": octets follow the message");
  }
  if (pem_ && pem_->find()) {
    throw Failure(kBadInput, "another message follows; one at a time can be shown");
  }
}

}  // namespace quarn::cli
