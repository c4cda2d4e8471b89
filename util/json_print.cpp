// JSON text from a tree, into memory or piece by piece into a stream.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "util/json.h"

namespace quarn::util {
namespace {

constexpr std::size_t kPiece = 8192;     // octets of room that can be asked for at once
constexpr std::size_t kRunLimit = 1024;  // octets of a string handled at once
constexpr std::size_t kMostEscaped = 6;  // octets that one octet of a string can become
constexpr std::size_t kMostIndentLevels = 64;
static_assert(kRunLimit * kMostEscaped <= kPiece);

// Where text goes: a buffer with a place to write at, and a way to get more room.
class Sink {
 public:
  Sink() = default;
  Sink(const Sink &) = delete;
  Sink &operator=(const Sink &) = delete;
  virtual ~Sink() { quarn_free(buffer_); }

  // A place for at least count octets (at most kPiece), or null; written up to what done() is
  // given.
  char *room(std::size_t count) {
    return static_cast<std::size_t>(end_ - at_) >= count || more(count) ? at_ : nullptr;
  }
  void done(char *at) { at_ = at; }

  bool put(char c) { return put({&c, 1}); }
  // At most kPiece octets.
  bool put(std::string_view text) {
    char *to = room(text.size());
    if (to == nullptr) return false;
    std::memcpy(to, text.data(), text.size());
    done(to + text.size());
    return true;
  }

 protected:
  // Makes room for count octets at at_; false when that cannot be.
  virtual bool more(std::size_t count) = 0;

  std::size_t used() const { return static_cast<std::size_t>(at_ - buffer_); }

  char *buffer_ = nullptr;
  char *at_ = nullptr;
  char *end_ = nullptr;
};

class MemorySink final : public Sink {
 public:
  // Hands the text over, NUL-terminated; null when memory is short.
  char *release(std::size_t *length) {
    if (!put('\0')) return nullptr;
    if (length != nullptr) *length = used() - 1;
    return std::exchange(buffer_, nullptr);
  }

 private:
  bool more(std::size_t count) override {
    const std::size_t size = used();
    if (size > SIZE_MAX / 2 - kPiece) return false;
    const std::size_t capacity = std::max<std::size_t>(256, 2 * size + count);
    char *larger = allocate_array<char>(capacity);
    if (larger == nullptr) return false;
    if (size > 0) std::memcpy(larger, buffer_, size);
    quarn_free(buffer_);
    buffer_ = larger;
    at_ = larger + size;
    end_ = larger + capacity;
    return true;
  }
};

class StreamSink final : public Sink {
 public:
  StreamSink(quarn_stream *stream, quarn_err_ctx *ctx) : stream_(stream), ctx_(ctx) {}

  // Writes out what the buffer holds.
  bool flush() {
    const auto count = static_cast<int64_t>(used());
    at_ = buffer_;
    return count == 0 || quarn_stream_writen(stream_, buffer_, count, ctx_) == 1;
  }

 private:
  bool more(std::size_t /*count*/) override {
    if (buffer_ != nullptr) return flush();
    buffer_ = allocate_array<char>(kPiece);
    if (buffer_ == nullptr) return kJsonUnit.fail(ctx_, QUARN_ERROR_NO_MEMORY) == 1;
    at_ = buffer_;
    end_ = buffer_ + kPiece;
    return true;
  }

  quarn_stream *stream_;
  quarn_err_ctx *ctx_;
};

// What follows the backslash of each octet that must be escaped; 'u' stands for a number, 0 for an
// octet that stands for itself.
struct Escapes {
  char of[256] = {};
  constexpr Escapes() {
    for (int c = 0; c < 0x20; c++) of[c] = 'u';
    of[0x08] = 'b';
    of[0x09] = 't';
    of[0x0A] = 'n';
    of[0x0C] = 'f';
    of[0x0D] = 'r';
    of[0x22] = '"';
    of[0x5C] = '\\';
  }
};
constexpr Escapes kEscapes;

// Whether one of eight octets must be escaped: it is below 0x20, '"' or '\\'. Each line leaves the
// top bit of an octet set when the octet is what it looks for (or, above such an octet, by a
// borrow).
bool needs_escape(const char *octets) {
  constexpr uint64_t kOnes = 0x0101010101010101;
  uint64_t word;
  std::memcpy(&word, octets, sizeof word);
  const uint64_t quote = word ^ kOnes * '"';
  const uint64_t backslash = word ^ kOnes * '\\';
  const uint64_t control = (word - kOnes * 0x20) & ~word;
  const uint64_t either = ((quote - kOnes) & ~quote) | ((backslash - kOnes) & ~backslash);
  return ((control | either) & kOnes * 0x80) != 0;
}

char *escape(char *to, unsigned char octet) {
  const char kind = kEscapes.of[octet];
  if (kind == 0) {
    *to++ = static_cast<char>(octet);
    return to;
  }
  *to++ = '\\';
  *to++ = kind;
  if (kind != 'u') return to;
  constexpr char kDigits[] = "0123456789abcdef";
  for (const char digit : {'0', '0', kDigits[octet >> 4], kDigits[octet & 15]}) *to++ = digit;
  return to;
}

// Writes the octets, at most kRunLimit of them, where there is room for the worst case.
char *escape_run(char *to, std::string_view run) {
  while (!run.empty()) {
    std::size_t count = std::min<std::size_t>(run.size(), 8);
    if (count == 8 && !needs_escape(run.data())) {
      std::memcpy(to, run.data(), 8);
      to += 8;
    } else {
      for (const char c : run.substr(0, count)) to = escape(to, static_cast<unsigned char>(c));
    }
    run.remove_prefix(count);
  }
  return to;
}

bool print_string(Sink &sink, std::string_view text) {
  if (!sink.put('"')) return false;
  while (!text.empty()) {
    const std::string_view run = text.substr(0, kRunLimit);
    char *to = sink.room(run.size() * kMostEscaped);
    if (to == nullptr) return false;
    sink.done(escape_run(to, run));
    text.remove_prefix(run.size());
  }
  return sink.put('"');
}

// Whole numbers up to 2^53, where a double knows each of them, as digits only; the others as the
// shortest text that reads back as the same number.
bool print_number(Sink &sink, double value) {
  constexpr double kMostExact = 9007199254740992;
  constexpr std::size_t kRoom = 32;
  char *to = sink.room(kRoom);
  if (to == nullptr) return false;
  if (value == 0) return sink.put(std::signbit(value) ? "-0" : "0");
  if (std::fabs(value) <= kMostExact && value == std::trunc(value)) {
    sink.done(std::to_chars(to, to + kRoom, static_cast<int64_t>(value)).ptr);
  } else {
    sink.done(std::to_chars(to, to + kRoom, value).ptr);
  }
  return true;
}

class Printer {
 public:
  Printer(Sink &sink, int indent) : sink_(sink), indent_(static_cast<std::size_t>(indent)) {}

  bool print(const quarn_json *root) {
    const quarn_json *j = root;
    while (j != nullptr) {
      if (!begin(j)) return false;
      if (j->has_children()) {
        j = j->children()[0];
        if (!line(++depth_) || !key(j)) return false;
      } else if (!follow(root, &j)) {
        return false;
      }
    }
    return true;
  }

 private:
  // Prints a value without children, or how one with children begins.
  bool begin(const quarn_json *j) {
    switch (j->kind) {
      case QUARN_JSON_BOOLEAN:
        return sink_.put(j->size != 0 ? "true" : "false");
      case QUARN_JSON_NUMBER:
        return print_number(sink_, j->number());
      case QUARN_JSON_STRING:
        return print_string(sink_, {j->text(), j->size});
      case QUARN_JSON_ARRAY:
        return sink_.put(j->size > 0 ? "[" : "[]");
      case QUARN_JSON_OBJECT:
        return sink_.put(j->size > 0 ? "{" : "{}");
      default:
        return sink_.put("null");
    }
  }

  // Prints what stands between the value just printed and the next one, which it moves to; null
  // after the last.
  bool follow(const quarn_json *root, const quarn_json **j) {
    for (; *j != root; *j = (*j)->parent) {
      if (const quarn_json *next = (*j)->next()) {
        *j = next;
        return sink_.put(',') && line(depth_) && key(next);
      }
      const char end = (*j)->parent->kind == QUARN_JSON_ARRAY ? ']' : '}';
      if (!line(--depth_) || !sink_.put(end)) return false;
    }
    *j = nullptr;
    return true;
  }

  bool key(const quarn_json *j) {
    if (j->parent->kind != QUARN_JSON_OBJECT) return true;
    return print_string(sink_, j->key.view()) && sink_.put(indent_ > 0 ? ": " : ":");
  }

  bool line(std::size_t depth) {
    if (indent_ == 0) return true;
    if (!sink_.put('\n')) return false;
    for (std::size_t left = std::min(depth, kMostIndentLevels) * indent_; left > 0;) {
      const std::size_t count = std::min(left, kPiece);
      char *to = sink_.room(count);
      if (to == nullptr) return false;
      std::memset(to, ' ', count);
      sink_.done(to + count);
      left -= count;
    }
    return true;
  }

  Sink &sink_;
  std::size_t indent_;
  std::size_t depth_ = 0;
};

}  // namespace
}  // namespace quarn::util

int quarn_json_print(const quarn_json *json, int indent, char **text, size_t *length) {
  if (length != nullptr) *length = 0;
  if (text == nullptr) return 0;
  *text = nullptr;
  if (json == nullptr || indent < 0) return 0;
  quarn::util::MemorySink sink;
  if (!quarn::util::Printer(sink, indent).print(json)) return 0;
  *text = sink.release(length);
  return *text != nullptr ? 1 : 0;
}

int quarn_json_write(const quarn_json *json, int indent, quarn_stream *stream, quarn_err_ctx *ctx) {
  if (json == nullptr || indent < 0 || stream == nullptr) {
    return quarn::util::kJsonUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
  }
  quarn::util::StreamSink sink(stream, ctx);
  return quarn::util::Printer(sink, indent).print(json) && sink.flush() ? 1 : 0;
}
