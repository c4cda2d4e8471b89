// File streams, over POSIX descriptors, and reading a whole file.
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "util/memory.h"
#include "util/stream.h"

namespace {

using quarn::util::kStreamUnit;

struct File {
  int descriptor;
  bool keep_open;   // standard input and output are not ours to close
  off_t base;       // offset of the stream's first octet: standard input may stand anywhere
  int64_t written;  // octets handed to the system
};

// errno belongs to the caller of the library.
class KeepErrno {
 public:
  KeepErrno() = default;
  ~KeepErrno() { errno = saved_; }
  KeepErrno(const KeepErrno &) = delete;
  KeepErrno &operator=(const KeepErrno &) = delete;

 private:
  int saved_ = errno;
};

// The system refuses or cuts larger requests.
constexpr int64_t kMostAtOnce = 1 << 30;

// Whether a call that failed is to be tried again: after a signal, or once a descriptor that its
// maker set to not block is ready.
bool again(int descriptor, short events) {
  if (errno == EINTR) return true;
  if (errno != EAGAIN && errno != EWOULDBLOCK) return false;
  pollfd wait{descriptor, events, 0};
  return poll(&wait, 1, -1) >= 0 || errno == EINTR;
}

int64_t read_file(void *user, void *buffer, int64_t count) {
  const KeepErrno keep;
  const int descriptor = static_cast<File *>(user)->descriptor;
  const auto asked = static_cast<std::size_t>(std::min(count, kMostAtOnce));
  for (;;) {
    const ssize_t got = read(descriptor, buffer, asked);
    if (got >= 0) return got;
    if (!again(descriptor, POLLIN)) return -1;
  }
}

int write_file(void *user, const void *buffer, int64_t count) {
  const KeepErrno keep;
  auto *file = static_cast<File *>(user);
  const auto *octets = static_cast<const uint8_t *>(buffer);
  while (count > 0) {
    const auto asked = static_cast<std::size_t>(std::min(count, kMostAtOnce));
    const ssize_t done = write(file->descriptor, octets, asked);
    if (done == 0) return 0;
    if (done > 0) {
      octets += done;
      count -= done;
      file->written += done;
    } else if (!again(file->descriptor, POLLOUT)) {
      return 0;
    }
  }
  return 1;
}

int64_t length_for_reading(void *user) {
  const KeepErrno keep;
  const auto *file = static_cast<const File *>(user);
  struct stat status;
  if (fstat(file->descriptor, &status) != 0) return -1;
  return std::max<off_t>(status.st_size - file->base, 0);
}

int64_t length_for_writing(void *user) {
  return static_cast<const File *>(user)->written;
}

int seek_file(void *user, uint64_t position) {
  const KeepErrno keep;
  const auto *file = static_cast<const File *>(user);
  off_t target = 0;
  if (__builtin_add_overflow(file->base, position, &target)) return 0;
  return lseek(file->descriptor, target, SEEK_SET) == target ? 1 : 0;
}

void close_file(void *user) {
  const KeepErrno keep;
  auto *file = static_cast<File *>(user);
  if (!file->keep_open) close(file->descriptor);
  quarn_free(file);
}

int open_descriptor(const char *path, bool reading) {
  const int flags = reading ? O_RDONLY : O_WRONLY | O_CREAT | O_TRUNC;
  for (;;) {
    const int descriptor = open(path, flags | O_CLOEXEC, 0666);
    if (descriptor >= 0 || errno != EINTR) return descriptor;
  }
}

// Opens the file and learns what it can do; 0 when it cannot be used as a stream.
int open_file(const char *path, bool reading, File *file, quarn_stream_callbacks *callbacks) {
  const bool standard = std::strcmp(path, "-") == 0;
  file->keep_open = standard;
  if (standard) {
    file->descriptor = reading ? STDIN_FILENO : STDOUT_FILENO;
  } else {
    file->descriptor = open_descriptor(path, reading);
  }
  struct stat status;
  if (file->descriptor < 0 || fstat(file->descriptor, &status) != 0) return 0;
  if (S_ISDIR(status.st_mode)) return 0;
  callbacks->close = close_file;
  if (reading) {
    callbacks->read = read_file;
  } else {
    callbacks->write = write_file;
  }
  if (!S_ISREG(status.st_mode)) return 1;
  callbacks->length = reading ? length_for_reading : length_for_writing;
  file->base = lseek(file->descriptor, 0, SEEK_CUR);
  if (file->base < 0) return 0;
  // Writing appends; moving the descriptor would overwrite.
  if (reading) callbacks->seek = seek_file;
  return 1;
}

quarn_stream *fail_open(quarn_err_ctx *ctx, int code) {
  kStreamUnit.fail(ctx, code);
  return nullptr;
}

// Room for what a regular file holds and one octet more, so that its end is seen without growing;
// a file that cannot tell grows the stream as octets come.
int reserve_for(quarn_stream *memory, quarn_stream *file, quarn_err_ctx *ctx) {
  uint64_t length = 0;
  quarn_stream_ctrl(file, QUARN_STREAM_LENGTH, &length, nullptr);
  uint8_t *room = nullptr;
  return length >= INT64_MAX || quarn_memstream_reserve(memory, length + 1, &room, nullptr, ctx);
}

}  // namespace

quarn_stream *quarn_stream_new_file(const char *path, const char *mode, quarn_err_ctx *ctx) {
  if (path == nullptr || mode == nullptr) return fail_open(ctx, QUARN_ERROR_ARGUMENT);
  const bool reading = std::strcmp(mode, "r") == 0;
  if (!reading && std::strcmp(mode, "w") != 0) return fail_open(ctx, QUARN_STREAM_ERROR_OPERATION);
  const KeepErrno keep;
  auto *file = quarn::util::allocate<File>();
  if (file == nullptr) return fail_open(ctx, QUARN_ERROR_NO_MEMORY);
  quarn_stream_callbacks callbacks{};
  quarn_stream *s = nullptr;
  if (open_file(path, reading, file, &callbacks)) {
    s = quarn::util::external_new(QUARN_STREAM_FILE, callbacks, file,
                                  quarn::util::Buffering::buffered, ctx);
  } else {
    fail_open(ctx, QUARN_STREAM_ERROR_OPEN);
  }
  if (s == nullptr) {
    if (file->descriptor < 0) file->keep_open = true;
    close_file(file);
  }
  return s;
}

quarn_data_blob *quarn_data_blob_fromfile(const char *path, quarn_err_ctx *ctx) {
  quarn_stream *file = quarn_stream_new_file(path, "r", ctx);
  quarn_stream *memory = file == nullptr ? nullptr : quarn_stream_new_mem(0, ctx);
  quarn_data_blob *blob = nullptr;
  if (memory != nullptr && reserve_for(memory, file, ctx) &&
      quarn_stream_writefromstream(memory, file, ctx, nullptr)) {
    blob = quarn::util::allocate<quarn_data_blob>();
    if (blob == nullptr) kStreamUnit.fail(ctx, QUARN_ERROR_NO_MEMORY);
  }
  if (blob != nullptr) {
    uint64_t count = 0;
    quarn_memstreamdeatch(memory, &blob->data, &count);
    blob->length = static_cast<int64_t>(count);
  }
  quarn_stream_free(memory);
  quarn_stream_free(file);
  return blob;
}
