// PEM text (RFC 7468), in the forms that real files have:
//
//     text before, after and between blocks
//     -----BEGIN PRIVACY-ENHANCED MESSAGE-----
//     Proc-Type: 4,ENCRYPTED                      headers (RFC 1421), up to an empty line; skipped
//
//     MIIBIjANBgkqhkiG9w0BAQEFAAOCAQ8A...
//     -----END PRIVACY-ENHANCED MESSAGE-----
//
// A block ends at the next line that starts with five hyphens, whatever it is. So each octet of the
// text is looked at a fixed number of times, however many BEGIN lines lack their END.
#include <algorithm>
#include <cstring>
#include <string_view>

#include "util/error.h"
#include "util/memory.h"
#include "util/text.h"

namespace {

using std::string_view;

constexpr quarn::util::Unit kUnit{"QUARN_Pem"};

constexpr string_view kDashes = "-----";
constexpr string_view kBegin = "-----BEGIN ";
constexpr string_view kEnd = "-----END ";
constexpr string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t kLineLength = 64;

bool is_line_end(char c) {
  return c == '\n' || c == '\r';
}
bool is_blank(char c) {
  return c == ' ' || c == '\t';
}

// Whether nothing but blanks stands between the start of the line and the offset.
bool starts_line(string_view text, std::size_t at) {
  while (at > 0 && is_blank(text[at - 1])) at--;
  return at == 0 || is_line_end(text[at - 1]) || text.substr(0, at) == kByteOrderMark;
}

// Offset of the next hyphens with this beginning at the start of a line, or right at from, where an
// END line without a line end may be followed by the next block; npos when there are none.
std::size_t find_boundary(string_view text, std::size_t from, string_view beginning) {
  std::size_t at = text.find('-', from);
  while (at != string_view::npos) {
    if (text.substr(at).starts_with(beginning) && (at == from || starts_line(text, at))) break;
    at = text.find('-', at + 1);
  }
  return at;
}

// Offset of the line end that closes the line, or of the end of the text.
std::size_t line_end(string_view text, std::size_t at) {
  while (at < text.size() && !is_line_end(text[at])) at++;
  return at;
}

std::size_t after_line_end(string_view text, std::size_t at) {
  if (text.substr(at).starts_with("\r\n")) return at + 2;
  return at < text.size() ? at + 1 : at;
}

bool is_label(string_view label) {
  if (label.find(kDashes) != string_view::npos) return false;
  for (const char c : label) {
    if (c < 0x20 || c > 0x7E) return false;
  }
  return true;
}

// Where a block stands, and what is wrong with it.
struct Frame {
  bool broken;
  std::size_t fault;  // offset of what is wrong
  std::size_t next;   // where to look for the next block
  std::size_t begin;  // offset of the BEGIN line
  string_view label;
  std::size_t body;  // offset of the lines between
  std::size_t body_end;
};

Frame broken(Frame frame, std::size_t fault, std::size_t next) {
  frame.broken = true;
  frame.fault = fault;
  frame.next = next;
  return frame;
}

// Reads the END line at the offset; after it, a line end or the next BEGIN line.
Frame close_frame(string_view text, Frame frame, std::size_t at) {
  frame.body_end = at;
  std::size_t here = at + kEnd.size();
  const string_view rest = text.substr(at);
  const bool same = rest.starts_with(kEnd) && text.substr(here).starts_with(frame.label) &&
                    text.substr(here + frame.label.size()).starts_with(kDashes);
  if (!same) return broken(frame, at, after_line_end(text, line_end(text, at)));
  here += frame.label.size() + kDashes.size();
  if (text.substr(here).starts_with(kBegin)) {
    frame.next = here;
    return frame;
  }
  const std::size_t end = line_end(text, here);
  while (here < end && is_blank(text[here])) here++;
  frame.next = after_line_end(text, end);
  return here == end ? frame : broken(frame, here, frame.next);
}

// The block whose BEGIN line stands at the offset.
Frame read_frame(string_view text, std::size_t begin) {
  Frame frame{};
  frame.begin = begin;
  const std::size_t end = line_end(text, begin);
  std::size_t label_end = end;
  while (is_blank(text[label_end - 1])) label_end--;
  string_view line = text.substr(begin, label_end - begin);
  if (line.size() < kBegin.size() + kDashes.size() || !line.ends_with(kDashes)) {
    return broken(frame, begin, end);
  }
  line.remove_prefix(kBegin.size());
  line.remove_suffix(kDashes.size());
  if (!is_label(line)) return broken(frame, begin, end);
  frame.label = line;
  frame.body = after_line_end(text, end);
  const std::size_t boundary = find_boundary(text, frame.body, kDashes);
  if (boundary == string_view::npos) return broken(frame, begin, text.size());
  if (text.substr(boundary).starts_with(kBegin)) return broken(frame, begin, boundary);
  return close_frame(text, frame, boundary);
}

// The first block with the label, which may be broken; a broken one when there is none.
Frame find_label(string_view text, string_view label) {
  std::size_t at = find_boundary(text, 0, kBegin);
  while (at != string_view::npos) {
    const Frame frame = read_frame(text, at);
    if (frame.label.data() != nullptr && frame.label == label) return frame;
    at = find_boundary(text, frame.next, kBegin);
  }
  return broken({}, text.size(), text.size());
}

// Offset of the content of the body: behind the headers and the empty line that ends them; npos
// when that line is missing.
std::size_t skip_headers(string_view body) {
  std::size_t at = 0;
  std::size_t end = line_end(body, 0);
  if (body.substr(0, end).find(':') == string_view::npos) return 0;
  while (at < body.size()) {
    while (at < end && is_blank(body[at])) at++;
    const bool empty = at == end;
    at = after_line_end(body, end);
    if (empty) return at;
    end = line_end(body, at);
  }
  return string_view::npos;
}

// The content of a frame that is not broken; the offset is one of the text.
quarn::util::Base64Result decode_frame(string_view text, const Frame &frame) {
  string_view body = text.substr(frame.body, frame.body_end - frame.body);
  const std::size_t skipped = skip_headers(body);
  if (skipped == string_view::npos) {
    return {QUARN_ERROR_FORMAT, static_cast<int64_t>(frame.body), nullptr, 0};
  }
  body.remove_prefix(skipped);
  auto result = quarn::util::base64_decode(quarn::util::Base64Rule::lenient, body.data(),
                                           static_cast<int64_t>(body.size()));
  if (result.offset >= 0) result.offset += static_cast<int64_t>(frame.body + skipped);
  return result;
}

void append(char **out, string_view text) {
  std::memcpy(*out, text.data(), text.size());
  *out += text.size();
}

}  // namespace

int quarn_pemnext(
    const char *text, int64_t length, int64_t *offset, quarn_pem_block *block, quarn_err_ctx *ctx) {
  if (block != nullptr) *block = quarn_pem_block{};
  if (block == nullptr || offset == nullptr || (text == nullptr && length > 0)) {
    kUnit.fail(ctx, QUARN_ERROR_ARGUMENT);
    return -1;
  }
  if (length < 0 || *offset < 0 || *offset > length) {
    kUnit.fail(ctx, QUARN_ERROR_RANGE);
    return -1;
  }
  const string_view all(text, static_cast<std::size_t>(length));
  const std::size_t begin = find_boundary(all, static_cast<std::size_t>(*offset), kBegin);
  if (begin == string_view::npos) {
    *offset = length;
    return -1;
  }
  const Frame frame = read_frame(all, begin);
  *offset = static_cast<int64_t>(frame.next);
  if (frame.broken) return kUnit.fail(ctx, QUARN_ERROR_FORMAT, static_cast<int64_t>(frame.fault));
  const quarn::util::Base64Result result = decode_frame(all, frame);
  if (result.code != 0) return kUnit.fail(ctx, result.code, result.offset);
  block->label = frame.label.data();
  block->label_length = static_cast<int64_t>(frame.label.size());
  block->begin = static_cast<int64_t>(frame.begin);
  block->end = *offset;
  block->octets = result.octets;
  block->count = result.count;
  return 1;
}

int quarn_pemdecode(
    const char *label, const char *text, int64_t length, uint8_t **octets, int64_t *count) {
  if (count != nullptr) *count = 0;
  if (octets != nullptr) *octets = nullptr;
  if (label == nullptr || octets == nullptr || length < 0) return 0;
  if (text == nullptr && length > 0) return 0;
  const string_view all(text, static_cast<std::size_t>(length));
  const Frame frame = find_label(all, label);
  if (frame.broken) return 0;
  const quarn::util::Base64Result result = decode_frame(all, frame);
  *octets = result.octets;
  if (count != nullptr) *count = result.count;
  return result.code == 0 ? 1 : 0;
}

int quarn_pemencode(
    const char *label, const uint8_t *octets, int64_t count, char **text, int64_t *text_length) {
  if (text_length != nullptr) *text_length = 0;
  if (text != nullptr) *text = nullptr;
  if (label == nullptr || text == nullptr || count < 0 || count > quarn::util::kMostBase64Octets) {
    return 0;
  }
  const string_view name = label;
  if ((octets == nullptr && count > 0) || !is_label(name)) return 0;
  const auto length = static_cast<std::size_t>(quarn::util::base64_length(count));
  const std::size_t lines = (length + kLineLength - 1) / kLineLength;
  const std::size_t frame = kBegin.size() + kEnd.size() + 2 * (name.size() + kDashes.size() + 1);
  auto *out = quarn::util::allocate_array<char>(length + lines + frame + 1);
  if (out == nullptr) return 0;
  char *end = out;
  const auto boundary = [&](string_view beginning) {
    for (const string_view part : {beginning, name, kDashes, string_view("\n")}) append(&end, part);
  };
  constexpr int64_t kLineOctets = kLineLength / 4 * 3;
  boundary(kBegin);
  for (int64_t at = 0; at < count; at += kLineOctets) {
    end = quarn::util::base64_encode(octets + at, std::min(kLineOctets, count - at), end);
    *end++ = '\n';
  }
  boundary(kEnd);
  *end = '\0';
  *text = out;
  if (text_length != nullptr) *text_length = end - out;
  return 1;
}
