// JSON text into a tree: a SAX reader takes the text apart, its handler builds the tree.
//
// The reader neither checks its allocations nor offers a way to fail in all places where a failure
// can occur, so two exceptions leave it; they end in quarn_json_parse().
#include <rapidjson/reader.h>

#include <algorithm>
#include <bit>
#include <charconv>
#include <new>
#include <optional>
#include <utility>

#include "util/json.h"

namespace quarn::util {
namespace {

// How many of eight octets stand for themselves in a string and are ASCII, before the first that is
// not so.
std::size_t plain_of_eight(const char *octets) {
  constexpr uint64_t kOnes = 0x0101010101010101;
  uint64_t word;
  std::memcpy(&word, octets, sizeof word);
  if constexpr (std::endian::native == std::endian::big) word = __builtin_bswap64(word);
  const uint64_t quote = word ^ kOnes * '"';
  const uint64_t backslash = word ^ kOnes * '\\';
  // The top bit of a difference tells whether an ASCII octet borrowed, and so is what is looked
  // for. Octets after it may be marked wrongly.
  const uint64_t low = (word - kOnes * 0x20) | (quote - kOnes) | (backslash - kOnes);
  const uint64_t marks = (word | low) & kOnes * 0x80;
  return static_cast<std::size_t>(std::countr_zero(marks)) / 8;
}

// NOLINTBEGIN(readability-identifier-naming): the names that the reader asks for

// The text as the reader's input, ended by a NUL that it does not have. A NUL inside the text ends
// the reading too, which the caller notices by the position.
class TextStream {
 public:
  using Ch = char;

  explicit TextStream(std::string_view text)
      : begin_(text.data()), at_(text.data()), end_(text.data() + text.size()) {}

  char Peek() const { return at_ < end_ ? *at_ : '\0'; }
  char Take() { return at_ < end_ ? *at_++ : '\0'; }
  std::size_t Tell() const { return static_cast<std::size_t>(at_ - begin_); }

  // The octets ahead that stand for themselves in a string, not too many at once: ASCII without
  // '"',
  // '\\' and control characters.
  std::string_view plain() const {
    constexpr std::ptrdiff_t kMost = 4096;
    const char *to = at_;
    for (const char *last = at_ + std::min(end_ - at_, kMost); last - to >= 8; to += 8) {
      const std::size_t count = plain_of_eight(to);
      if (count < 8) return {at_, to + count};
    }
    return {at_, to};
  }
  void Skip(std::size_t count) { at_ += count; }

  // Only reading in place would write; the reader asks for these to exist.
  void Put(char /*c*/) {}
  char *PutBegin() { return nullptr; }
  char *Push(unsigned /*count*/) { return const_cast<char *>(begin_); }
  std::size_t PutEnd(const char * /*begin*/) { return 0; }

 private:
  const char *begin_;
  const char *at_;
  const char *end_;
};

}  // namespace
}  // namespace quarn::util

// The reader works on a copy of the stream within a string or number and puts it back afterwards.
template <>
struct rapidjson::StreamTraits<quarn::util::TextStream> {
  enum { copyOptimization = 1 };
};

namespace quarn::util {
namespace {

// Memory of the reader's stack, which holds 8 octets a level and the string or number at hand: one
// block, at first this object itself. The reader counts it in 32 bits, so that it must stay below
// that.
class StackMemory {
 public:
  [[maybe_unused]] static constexpr bool kNeedFree = false;

  StackMemory() = default;
  StackMemory(const StackMemory &) = delete;
  StackMemory &operator=(const StackMemory &) = delete;
  ~StackMemory() { quarn_free(block_); }

  void *Realloc(void *old, std::size_t old_size, std::size_t new_size) {
    if (block_ == nullptr && new_size <= sizeof near_) return near_;
    void *block = new_size <= INT32_MAX ? allocate_array<char>(new_size) : nullptr;
    if (block == nullptr) throw std::bad_alloc();
    if (old != nullptr) std::memcpy(block, old, std::min(old_size, new_size));
    quarn_free(block_);
    block_ = block;
    return block;
  }
  // The reader has only one block, which goes with this object.
  static void Free(void * /*block*/) {}

 private:
  void *block_ = nullptr;
  alignas(std::max_align_t) char near_[2048];
};

struct LoneSurrogate {};

// UTF-8 as the reader knows it, with two differences: plain text goes in runs rather than character
// by character, and an escaped low surrogate without its high one is not encoded.
struct StrictUtf8 : rapidjson::UTF8<> {
  template <typename Output>
  static bool Validate(TextStream &input, Output &output) {
    const std::string_view run = input.plain();
    if (run.empty()) return rapidjson::UTF8<>::Validate(input, output);
    std::memcpy(output.Push(static_cast<unsigned>(run.size())), run.data(), run.size());
    input.Skip(run.size());
    return true;
  }
  template <typename Output>
  static void Encode(Output &output, unsigned code_point) {
    if (code_point >= 0xD800 && code_point <= 0xDFFF) throw LoneSurrogate();
    rapidjson::UTF8<>::Encode(output, code_point);
  }
};

using Reader = rapidjson::GenericReader<StrictUtf8, StrictUtf8, StackMemory>;

// Numbers come as text: the reader's own conversion loses the sign of zero, and its exponents
// overflow.
constexpr unsigned kReaderFlags = rapidjson::kParseIterativeFlag |
                                  rapidjson::kParseValidateEncodingFlag |
                                  rapidjson::kParseNumbersAsStringsFlag;

// Whether a number out of the range of double is too small rather than too great, which is a matter
// of where its first digit other than 0 stands.
bool is_tiny(std::string_view number) {
  const std::size_t mantissa = std::min(number.find_first_of("eE"), number.size());
  const std::size_t point = std::min(number.find('.'), mantissa);
  const std::size_t first = number.find_first_of("123456789");
  int64_t exponent = 0;
  if (mantissa < number.size()) {
    const char *digits = number.data() + mantissa + (number[mantissa + 1] == '+' ? 2 : 1);
    const auto result = std::from_chars(digits, number.data() + number.size(), exponent);
    if (result.ec != std::errc()) return *digits == '-';
  }
  return static_cast<int64_t>(point) - static_cast<int64_t>(first) + exponent < 0;
}

// The number nearest to a text that the reader found to be one; nothing when it is too great.
std::optional<double> number_of(std::string_view text) {
  const char *end = text.data() + text.size();
  if (text.size() <= 9) {
    int32_t whole = 0;
    if (std::from_chars(text.data(), end, whole).ptr == end && whole != 0) return whole;
  }
  double value;
  if (std::from_chars(text.data(), end, value).ec == std::errc()) return value;
  if (!is_tiny(text)) return std::nullopt;
  return text.front() == '-' ? -0.0 : 0.0;
}

// Builds the tree from the reader's events, all of it in one pool. Owns the tree and the key at
// hand until release().
class Builder : public rapidjson::BaseReaderHandler<StrictUtf8, Builder> {
 public:
  // length: octets of the text. Its values take about twice as many.
  Builder(const TextStream &stream, std::size_t length) : stream_(stream), pool_(2 * length) {}
  Builder(const Builder &) = delete;
  Builder &operator=(const Builder &) = delete;
  ~Builder() {
    key_.clear();
    quarn_json_free(root_);
  }

  quarn_json *release() { return std::exchange(root_, nullptr); }
  // Where an event was refused, and why; 0 when none was.
  int code() const { return code_; }
  std::size_t offset() const { return offset_; }

  bool Null() { return add(pool_.make(QUARN_JSON_NULL, 0)); }
  bool Bool(bool value) {
    quarn_json *boolean = pool_.make(QUARN_JSON_BOOLEAN, 0);
    if (boolean != nullptr) boolean->size = value;
    return add(boolean);
  }
  bool String(const char *text, unsigned length, bool /*copy*/) {
    return add(pool_.make_text({text, length}));
  }
  bool RawNumber(const char *text, unsigned length, bool /*copy*/) {
    const std::optional<double> value = number_of({text, length});
    if (!value) return refuse(QUARN_ERROR_FORMAT);
    quarn_json *number = pool_.make(QUARN_JSON_NUMBER, sizeof(double));
    if (number != nullptr) new (number + 1) double(*value);
    return add(number);
  }
  bool Key(const char *text, unsigned length, bool /*copy*/) {
    const std::string_view key(text, length);
    if (json_find(container_, key) != nullptr) return refuse(QUARN_ERROR_FORMAT);
    return key_.assign(key) || refuse(QUARN_ERROR_NO_MEMORY);
  }
  bool StartObject() { return open(pool_.make(QUARN_JSON_OBJECT, quarn_json::kNearRoom)); }
  bool EndObject(unsigned /*count*/) { return close(); }
  bool StartArray() { return open(pool_.make(QUARN_JSON_ARRAY, quarn_json::kNearRoom)); }
  bool EndArray(unsigned /*count*/) { return close(); }

 private:
  // The stream still stands at the first octet of a key, string or number.
  bool refuse(int code) {
    code_ = code;
    offset_ = stream_.Tell();
    return false;
  }

  bool add(quarn_json *value) {
    if (value == nullptr) return refuse(QUARN_ERROR_NO_MEMORY);
    if (container_ == nullptr) {
      root_ = value;
      return true;
    }
    if (!json_append(container_, value, key_)) return refuse(QUARN_ERROR_NO_MEMORY);
    key_ = {};
    return true;
  }

  bool open(quarn_json *container) {
    if (!add(container)) return false;
    container_ = container;
    return true;
  }

  bool close() {
    container_ = container_->parent;
    return true;
  }

  const TextStream &stream_;
  JsonPool pool_;
  quarn_json *root_ = nullptr;
  quarn_json *container_ = nullptr;
  JsonKey key_;
  int code_ = 0;
  std::size_t offset_ = 0;
};

// NOLINTEND(readability-identifier-naming)

// Reads the whole text; 0, or the code of a failure and where it is.
int read(Reader &reader, TextStream &stream, Builder &builder, std::size_t *offset) {
  constexpr std::size_t kEscapeLength = 6;
  try {
    const rapidjson::ParseResult result = reader.Parse<kReaderFlags>(stream, builder);
    if (builder.code() != 0) {
      *offset = builder.offset();
      return builder.code();
    }
    *offset = result.IsError() ? result.Offset() : stream.Tell();
    return result.IsError() ? QUARN_ERROR_FORMAT : 0;
  } catch (const std::bad_alloc &) {
    *offset = stream.Tell();
    return QUARN_ERROR_NO_MEMORY;
  } catch (const LoneSurrogate &) {
    *offset = stream.Tell() - kEscapeLength;
    return QUARN_ERROR_FORMAT;
  }
}

}  // namespace
}  // namespace quarn::util

quarn_json *quarn_json_parse(const char *text, size_t length, quarn_err_ctx *ctx) {
  using quarn::util::kJsonUnit;
  if (text == nullptr) {
    kJsonUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
    return nullptr;
  }
  quarn::util::TextStream stream({text, length});
  quarn::util::Builder builder(stream, length);
  quarn::util::StackMemory memory;
  quarn::util::Reader reader(&memory);
  std::size_t offset = 0;
  int code = quarn::util::read(reader, stream, builder, &offset);
  if (code == 0 && offset < length) code = QUARN_ERROR_FORMAT;
  if (code == 0) return builder.release();
  kJsonUnit.fail(ctx, code, static_cast<int64_t>(offset));
  return nullptr;
}
