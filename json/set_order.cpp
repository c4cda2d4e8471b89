#include "json/set_order.h"

#include <algorithm>
#include <numeric>

#include "core/header.h"

namespace quarn::asn1::json {

// Goes through the pieces of one encoding.
class SetOrder::Cursor {
 public:
  Cursor(const BackWriter &out, const BackWriter::Run &run)
      : out_(out), slice_(out.slice(run.first)), next_(out.next_piece(run.first)) {}

  const std::uint8_t *octets() const { return slice_.octets; }
  std::size_t left() const { return slice_.count; }  // in this piece; 0 at the end of all

  // Moves on by at most left() octets.
  void advance(std::size_t count) {
    slice_.octets += count;
    slice_.count -= count;
    if (slice_.count > 0 || next_ == BackWriter::kNone) return;
    slice_ = out_.slice(next_);
    next_ = out_.next_piece(next_);
  }

 private:
  const BackWriter &out_;
  BackWriter::Slice slice_;
  std::size_t next_;
};

bool SetOrder::begin(bool by_tag) {
  Set set{{}, elements_.size(), by_tag};
  return out_.set_apart(set.apart) && sets_.push(set);
}

bool SetOrder::read_tag(Element &element) const {
  if (element.run.empty()) return false;
  // An identifier is never divided: only elements are taken out.
  const BackWriter::Slice slice = out_.slice(element.run.first);
  Reader in(slice.octets, slice.count, nullptr);
  Identifier identifier{};
  if (!read_identifier(in, identifier)) return false;
  element.tag_class = identifier.tag_class;
  element.number = identifier.number;
  return true;
}

bool SetOrder::add() {
  Element element{};
  if (!out_.take(element.run)) return false;
  if (sets_.top().by_tag && !read_tag(element)) return false;
  return element.run.empty() || elements_.push(element);
}

// Elements were added from the last to the first, and equal ones keep their order: the later added
// goes first.
bool SetOrder::by_tag(std::size_t a, std::size_t b) const {
  const Element &left = elements_[a];
  const Element &right = elements_[b];
  if (left.tag_class != right.tag_class) return left.tag_class < right.tag_class;
  return left.number != right.number ? left.number < right.number : a > b;
}

// The order of X.690, 11.6: the shorter of two encodings counts as if zeros followed it.
bool SetOrder::by_octets(std::size_t a, std::size_t b) {
  if (a == b) return false;
  Cursor left(out_, elements_[a].run);
  Cursor right(out_, elements_[b].run);
  std::size_t offset = 0;
  for (;;) {
    const std::size_t count = std::min(left.left(), right.left());
    if (count == 0) break;
    const int order = std::memcmp(left.octets(), right.octets(), count);
    if (order != 0) return order < 0;
    left.advance(count);
    right.advance(count);
    offset += count;
  }
  if (right.left() > 0 && !rest_is_zero(right, offset, elements_[b].zeros)) return true;
  if (left.left() > 0 && !rest_is_zero(left, offset, elements_[a].zeros)) return false;
  return a > b;
}

bool SetOrder::rest_is_zero(Cursor &rest, std::size_t offset, Zeros &known) {
  if (offset < known.none_before) return false;
  for (std::size_t at = offset; at < known.all_from && rest.left() > 0; rest.advance(1), at++) {
    if (rest.octets()[0] == 0) continue;
    known.none_before = at + 1;
    return false;
  }
  known.all_from = std::min(known.all_from, offset);
  return true;
}

bool SetOrder::end() {
  const Set set = sets_.pop();
  const std::size_t count = elements_.size() - set.first;
  const util::Block<std::size_t> order(util::allocate_array<std::size_t>(count));
  if (order == nullptr) return false;
  std::size_t *begin = order.get();
  std::iota(begin, begin + count, set.first);
  if (set.by_tag) {
    std::sort(begin, begin + count, [this](std::size_t a, std::size_t b) { return by_tag(a, b); });
  } else {
    std::sort(begin, begin + count,
              [this](std::size_t a, std::size_t b) { return by_octets(a, b); });
  }
  out_.resume(set.apart);
  for (std::size_t i = count; i > 0; i--) out_.put_back(elements_[begin[i - 1]].run);
  elements_.truncate(set.first);
  return true;
}

}  // namespace quarn::asn1::json
