// Reading a file and finding the objects in it.
//
// In automatic form the octets are taken for what they plainly are: whole encodings to the last
// octet are DER, unless they are text that stands for whole encodings; a BEGIN line makes PEM;
// nothing but hexadecimal digits makes hexadecimal text; nothing but base64 characters makes base64
// text when an encoding starts there. What remains is taken for DER, so that the fault in it can be
// shown.
#include "cli/input.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>

#include "cli/diagnosis.h"
#include "cli/walk.h"

namespace quarn::cli {

namespace {

int hex_value(std::uint8_t c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// The digits' values of hexadecimal text with blanks, colons and 0x before octets; or the offset of
// the first character that is none of these.
struct HexText {
  std::vector<std::uint8_t> octets;
  std::optional<std::uint64_t> bad;
};

HexText read_hex(Octets text) {
  HexText result;
  int high = -1;
  for (std::size_t i = 0; i < text.size(); i++) {
    if (is_blank(text[i]) || text[i] == ':') continue;
    const bool prefix = high < 0 && text[i] == '0' && i + 1 < text.size() &&
                        (text[i + 1] == 'x' || text[i + 1] == 'X');
    if (prefix) {
      i++;
      continue;
    }
    const int value = hex_value(text[i]);
    if (value < 0) {
      result.bad = i;
      return result;
    }
    if (high < 0) {
      high = value;
      continue;
    }
    result.octets.push_back(static_cast<std::uint8_t>(high << 4 | value));
    high = -1;
  }
  if (high >= 0) result.bad = text.size();
  return result;
}

// Text of hexadecimal digits only, an octet of them at least. Digits alone are many a number too,
// so that a file of base64 may pass: it then has no even count, or other characters soon.
bool hex_text(Octets text) {
  const bool only = std::all_of(text.begin(), text.end(), [](std::uint8_t c) {
    return hex_value(c) >= 0 || is_blank(c) || c == ':' || c == 'x' || c == 'X';
  });
  return only && !read_hex(text).octets.empty();
}

// The octets of text that is nothing but base64 characters and blanks; nothing when they are none.
struct Base64Text {
  bool only = false;
  OwnedOctets owned;
  Octets octets;
};

Base64Text read_base64(Octets text) {
  Base64Text result;
  result.only = std::all_of(text.begin(), text.end(),
                            [](std::uint8_t c) { return is_base64(c) || is_blank(c); });
  if (!result.only) return result;
  std::uint8_t *octets = nullptr;
  std::int64_t count = 0;
  const auto length = static_cast<std::int64_t>(text.size());
  const int good = quarn_base64decode(2, as_text(text).data(), length, &octets, &count, nullptr);
  result.owned.reset(octets);
  if (good == 1) result.octets = {octets, static_cast<std::size_t>(count)};
  return result;
}

// Base64 of an encoding starts with the identifier of a SEQUENCE or SET, of anything that is whole,
// or, when it cannot be decoded, looks like a SEQUENCE.
bool base64_text(Octets text) {
  const Base64Text decoded = read_base64(text);
  if (!decoded.only) return false;
  if (decoded.octets.empty()) {
    return text.size() >= 2 && text[0] == 'M' && text[1] >= 'A' && text[1] <= 'S';
  }
  return decoded.octets[0] == 0x30 || decoded.octets[0] == 0x31 ||
         extent(decoded.octets).has_value();
}

// Whether hexadecimal or base64 text stands for encodings from the first octet to the last.
bool text_of_encodings(Octets text) {
  return (hex_text(text) && well_formed(read_hex(text).octets)) ||
         well_formed(read_base64(text).octets);
}

// Letters and digits are identifiers and lengths too, so that one text of base64 in a hundred is
// well-formed itself; that an encoding reads as the text of another one does not happen.
Form recognise(Octets text) {
  if (text.empty()) return Form::der;
  if (text[0] != '-' && well_formed(text) && !text_of_encodings(text)) return Form::der;
  if (has_begin_line(as_text(text))) return Form::pem;
  if (hex_text(text)) return Form::hex;
  if (base64_text(text)) return Form::base64;
  return Form::der;
}

// Gives the reason why a file cannot be opened, which the library's code does not tell. It is not
// opened here: that would be the reader which somebody who writes to a FIFO waits for.
void check_readable(const std::string &path, const char *of_directory) {
  if (path == "-") return;
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) throw system_failure("cannot be opened");
  if (S_ISDIR(status.st_mode)) throw Failure(kFile, of_directory);
  if (::access(path.c_str(), R_OK) != 0) throw system_failure("cannot be opened");
}

std::string first_record(const quarn_err_ctx *ctx) {
  const quarn_err_record *record = quarn_err_ctx_get(ctx, 0);
  return record == nullptr ? "unknown reason" : printable(record->message);
}

}  // namespace

bool is_blank(int c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool is_base64(int c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '+' ||
         c == '/' || c == '=';
}

bool has_begin_line(std::string_view text) {
  for (std::size_t at = text.find(kPemBegin); at != std::string_view::npos;
       at = text.find(kPemBegin, at + 1)) {
    if (at == 0 || text[at - 1] == '\n' || text[at - 1] == '\r') return true;
  }
  return false;
}

bool ordinary_text(Octets text) {
  const Octets start = text.first(std::min<std::size_t>(text.size(), 512));
  const bool blanks = std::all_of(start.begin(), start.end(), [](std::uint8_t c) {
    return (c >= 0x20 && c != 0x7F) || is_blank(c);
  });
  std::size_t whole = start.size();  // without a character that is cut off
  while (whole > 0 && start.size() - whole < 4 && start[whole - 1] >= 0x80) whole--;
  return blanks && quarn_utf8_valid(start.data(), static_cast<std::int64_t>(whole)) == 1;
}

std::string input_name(const std::string &path) {
  return path == "-" ? "standard input" : printable(path);
}

Blob read_file(const std::string &path, const char *of_directory) {
  check_readable(path, of_directory);
  const Records ctx = new_records();
  Blob blob(quarn_data_blob_fromfile(path.c_str(), ctx.get()));
  if (blob != nullptr) return blob;
  const quarn_err_record *record = quarn_err_ctx_get(ctx.get(), 0);
  if (record == nullptr || record->code == QUARN_ERROR_NO_MEMORY) throw std::bad_alloc();
  throw Failure(kFile, "cannot be read: " + first_record(ctx.get()));
}

Source::Source(std::string path, Form form)
    : path_(std::move(path)),
      blob_(read_file(path_, "is a directory; --recursive takes the files below it")),
      form_(form) {
  text_ = {blob_->data, static_cast<std::size_t>(blob_->length)};
  if (text_.empty()) throw Failure(kBadInput, "the input is empty");
  if (form_ == Form::automatic) {
    form_ = recognise(text_);
    if (form_ == Form::der && ordinary_text(text_) && !well_formed(text_)) {
      throw Failure(kBadInput,
                    "is text, but neither PEM nor hexadecimal nor base64; --in-form der reads it "
                    "as an encoding all the same");
    }
  }
  find_objects();
}

void Source::find_objects() {
  switch (form_) {
    case Form::pem:
      return find_pem_blocks();
    case Form::hex:
      return decode_hex();
    case Form::base64:
      return decode_base64();
    default:
      return split_encodings(text_);
  }
}

// A block holds one encoding, or several whole ones: a trusted certificate has its trust behind it.
void Source::add_block(const quarn_pem_block &block) {
  Octets rest(block.octets, static_cast<std::size_t>(block.count));
  const auto begin = static_cast<std::size_t>(block.begin);
  const auto length = static_cast<std::size_t>(block.end - block.begin);
  const bool encrypted =
      as_text(text_).substr(begin, length).find("Proc-Type: 4,ENCRYPTED") != std::string_view::npos;
  const bool whole = !encrypted && well_formed(rest);
  do {
    Object object;
    object.index = objects_.size();
    object.offset = begin;
    object.octets = whole ? rest.first(extent(rest).value_or(rest.size())) : rest;
    object.label.assign(block.label, static_cast<std::size_t>(block.label_length));
    if (encrypted) {
      object.unreadable = Failure(kBadInput, "the PEM block at offset " + std::to_string(begin) +
                                                 " of the text is encrypted");
    }
    rest = rest.subspan(object.octets.size());
    objects_.push_back(std::move(object));
  } while (!rest.empty());
}

void Source::find_pem_blocks() {
  std::int64_t offset = 0;
  const auto length = static_cast<std::int64_t>(text_.size());
  const Records ctx = new_records();
  for (;;) {
    quarn_err_ctx_clear(ctx.get());
    quarn_pem_block block{};
    const int result = quarn_pemnext(as_text(text_).data(), length, &offset, &block, ctx.get());
    if (result < 0) break;
    if (result == 1) {
      blocks_.emplace_back(block.octets);
      add_block(block);
      continue;
    }
    const std::int64_t at = quarn_err_ctx_offset(ctx.get(), 0);
    Object object;
    object.index = objects_.size();
    object.offset = static_cast<std::uint64_t>(at >= 0 ? at : block.begin);
    object.unreadable =
        Failure(kBadInput, "the PEM block is broken at offset " + std::to_string(object.offset) +
                               " of the text: " + first_record(ctx.get()));
    objects_.push_back(std::move(object));
  }
  if (objects_.empty()) throw Failure(kBadInput, "holds no PEM block");
}

// Encodings one after another. Where none can be delimited, the rest is an object that is bad.
void Source::split_encodings(Octets octets) {
  std::uint64_t at = 0;
  while (at < octets.size()) {
    const Octets rest = octets.subspan(at);
    const std::uint64_t size = extent(rest).value_or(rest.size());
    Object object;
    object.index = objects_.size();
    object.offset = at;
    object.octets = rest.first(size);
    objects_.push_back(std::move(object));
    at += size;
  }
}

void Source::decode_hex() {
  HexText text = read_hex(text_);
  if (text.bad == text_.size()) {
    throw Failure(kBadInput, "holds an odd number of hexadecimal digits");
  }
  if (text.bad) {
    throw Failure(kBadInput, "offset " + std::to_string(*text.bad) + ": " +
                                 in_quotes(as_text(text_).substr(*text.bad, 1)) +
                                 " is no hexadecimal digit");
  }
  decoded_ = std::move(text.octets);
  if (decoded_.empty()) throw Failure(kBadInput, "holds no octets");
  split_encodings(decoded_);
}

void Source::decode_base64() {
  const Records ctx = new_records();
  std::uint8_t *octets = nullptr;
  std::int64_t count = 0;
  const auto length = static_cast<std::int64_t>(text_.size());
  const int result =
      quarn_base64decode(2, as_text(text_).data(), length, &octets, &count, ctx.get());
  if (result != 1) {
    const std::int64_t at = quarn_err_ctx_offset(ctx.get(), 0);
    const std::string where = at < 0 ? "" : "offset " + std::to_string(at) + ": ";
    throw Failure(kBadInput, where + "this is no base64 text");
  }
  blocks_.emplace_back(octets);
  if (count == 0) throw Failure(kBadInput, "holds no octets");
  split_encodings({octets, static_cast<std::size_t>(count)});
}

}  // namespace quarn::cli
