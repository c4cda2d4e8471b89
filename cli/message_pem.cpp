// PEM text, decoded a block at a time.
#include <algorithm>
#include <array>

#include "cli/failure.h"
#include "cli/input.h"
#include "cli/message_input.h"

namespace quarn::cli {

namespace {

constexpr std::string_view kEnd = "----END ";  // without the first dash, which ends the text
constexpr std::string_view kDashes = "-----";
constexpr std::array<std::string_view, 3> kLabels = {"CMS", "PKCS7", "PKCS #7 SIGNED DATA"};
constexpr std::size_t kMostLine = 80;                 // characters of a line that are looked at
constexpr std::size_t kPiece = std::size_t{1} << 16;  // characters that are decoded at once

constexpr std::size_t kGroup = 4;  // characters that stand for three octets

// "CMS" of the line "-----BEGIN CMS-----"; empty for another line.
std::string label_in(std::string_view line) {
  while (!line.empty() && is_blank(line.back())) line.remove_suffix(1);
  const bool whole = line.starts_with(kPemBegin) && line.ends_with(kDashes) &&
                     line.size() > kPemBegin.size() + kDashes.size();
  if (!whole) return "";
  line.remove_prefix(kPemBegin.size());
  line.remove_suffix(kDashes.size());
  return std::string(line);
}

}  // namespace

bool PemText::more() {
  if (at_ < text_.size()) return true;
  before_ += at_;
  at_ = 0;
  text_.clear();
  return raw_.read(text_);
}

// The next character; -1 at the end.
int PemText::next() {
  return more() ? text_[at_++] : -1;
}

// The start of the line that begins here; goes behind the line end.
std::string PemText::line() {
  std::string start;
  for (int c = next(); c >= 0 && c != '\n'; c = next()) {
    if (start.size() < kMostLine) start.push_back(static_cast<char>(c));
  }
  return start;
}

bool PemText::find() {
  while (!inside_ && more()) {
    label_ = label_in(line());
    inside_ = std::find(kLabels.begin(), kLabels.end(), label_) != kLabels.end();
  }
  return inside_;
}

void PemText::broken(const std::string &why) const {
  throw Failure(kBadInput, "the PEM block is broken at offset " + std::to_string(before_ + at_) +
                               " of the text: " + why);
}

void PemText::decode(std::vector<std::uint8_t> &to) {
  std::uint8_t *octets = nullptr;
  std::int64_t count = 0;
  const auto length = static_cast<std::int64_t>(base64_.size());
  const int good = quarn_base64decode(2, base64_.data(), length, &octets, &count, nullptr);
  const OwnedOctets owned(octets);
  if (good != 1) broken("this is no base64 text");
  to.insert(to.end(), octets, octets + count);
  base64_.clear();
}

// The END line, behind its first dash.
void PemText::end() {
  const std::string text = line();
  const std::string wanted = std::string(kEnd) + label_ + std::string(kDashes);
  if (!text.starts_with(wanted)) broken("this is no END line of " + label_);
  inside_ = false;
}

// Padding ends the text: a piece that ends in it takes what else there is along.
bool PemText::read(std::vector<std::uint8_t> &to) {
  while (inside_ &&
         (base64_.size() < kPiece || (base64_.back() == '=' && base64_.size() < kPiece + kGroup))) {
    const int c = next();
    if (is_base64(c)) {
      base64_.push_back(static_cast<char>(c));
    } else if (c == '-') {
      end();
    } else if (c < 0) {
      broken("the END line is missing");
    } else if (!is_blank(c)) {
      at_--;
      broken("this is no character of base64");
    }
  }
  const std::size_t before = to.size();
  decode(to);
  return to.size() > before;
}

}  // namespace quarn::cli
