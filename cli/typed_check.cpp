#include "cli/typed_check.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "cli/content.h"
#include "cli/typed.h"
#include "cli/walk.h"

namespace quarn::cli {

namespace {

struct Placed {
  Element element;
  std::uint64_t end;    // of its content
  std::uint64_t after;  // where the next element starts

  std::uint64_t start() const { return element.content_offset(); }
};

// Elements by their offsets. Where those of indefinite length end is learnt in one walk, so that
// passing over them costs nothing however deep they are nested.
class Elements {
 public:
  explicit Elements(Octets octets) : octets_(octets) { learn(0, octets.size()); }

  Octets octets(std::uint64_t from, std::uint64_t to) const {
    return octets_.subspan(from, to - from);
  }
  void learn(std::uint64_t from, std::uint64_t to);
  // The element that starts at an offset and does not pass the end.
  std::optional<Placed> at(std::uint64_t from, std::uint64_t end) const;

 private:
  Octets octets_;
  std::map<std::uint64_t, std::uint64_t> ends_;
};

void Elements::learn(std::uint64_t from, std::uint64_t to) {
  Walk walk(octets(from, to), Walk::Top::several);
  std::vector<std::uint64_t> open;
  while (walk.next() == Walk::Step::element) {
    const Element &element = walk.element();
    if (element.end_of_contents) {
      ends_[open.back()] = from + walk.position();
      open.pop_back();
    } else if (element.indefinite()) {
      open.push_back(from + element.offset);
    }
  }
}

std::optional<Placed> Elements::at(std::uint64_t from, std::uint64_t end) const {
  Placed placed{};
  Element &element = placed.element;
  element.offset = from;
  const Octets rest = octets(from, end);
  const auto count = static_cast<std::int64_t>(rest.size());
  if (quarn_asn1_mem_header(rest.data(), count, &element.header) != 1) return std::nullopt;
  if (element.indefinite()) {
    const auto known = ends_.find(from);
    if (known == ends_.end()) return std::nullopt;
    placed.after = known->second;
    placed.end = placed.after - 2;
  } else {
    if (element.content_length() > end - placed.start()) return std::nullopt;
    placed.after = placed.end = placed.start() + element.content_length();
  }
  return placed;
}

enum class Match { no, yes, any };

// Whether an element can be a value of a type under its own tag; any: the type has none.
Match match_own(const Element &element, std::int64_t type_id) {
  const quarn_asn1_type_description type = description_of(type_id);
  if (type.tag_class == kUniversal && type.tag_number == 0) return Match::any;
  const quarn_asn1_header &header = element.header;
  const bool same = header.tag_class == type.tag_class && header.tag_number == type.tag_number;
  return same ? Match::yes : Match::no;
}

bool has_tag(const Element &element, const ContextTag &tag) {
  const quarn_asn1_header &header = element.header;
  return header.tag_class == kContext && header.tag_number == tag.number &&
         (!tag.is_explicit || element.constructed());
}

Match match(const Element &element, const std::vector<ContextTag> &tags, std::int64_t type_id) {
  if (tags.empty()) return match_own(element, type_id);
  return has_tag(element, tags.front()) ? Match::yes : Match::no;
}

class TypedJudge : public TypedVisitor {
 public:
  TypedJudge(std::int64_t type_id, Octets octets, bool dig)
      : elements_(octets), dig_(dig), path_(notation_of(type_id)) {
    frames_.push_back({0, octets.size(), path_.size(), false, std::nullopt});
  }

  bool enter(const Node &node, std::int64_t count) override;
  void leave() override;
  void leaf(const Node &node) override;

  TypedFindings take() { return std::move(result_); }

 private:
  // An element whose components are being walked.
  struct Frame {
    std::uint64_t position;  // of the next of them
    std::uint64_t end;
    std::size_t path_length;
    bool is_set_of;  // under a tag of its own
    std::optional<Placed> last;
  };

  std::optional<Placed> place_of(const Node &node);
  bool is_written(const Placed &placed, const Node &node) const;
  std::optional<Placed> next_element(const Node &node, std::int64_t own_type);
  std::optional<Placed> behind_tags(Placed placed,
                                    const std::vector<ContextTag> &tags,
                                    std::int64_t own_type) const;
  std::optional<Placed> in_string(const Placed &string, const Node &node);
  void check_order(const Placed &placed, const Node &node);
  void check_content_of(const Placed &placed, const Node &node, std::uint64_t number);
  void check_named_bits(const Placed &placed, const Node &node);
  std::string path_to(const Node &node) const;
  void add(Rule rule, std::uint64_t offset, const Node &node, std::string found) {
    result_.findings.push_back({rule, offset, path_to(node), std::move(found)});
  }

  Elements elements_;
  bool dig_;
  std::string path_;  // of the innermost frame
  std::vector<Frame> frames_;
  TypedFindings result_;
};

std::string TypedJudge::path_to(const Node &node) const {
  const bool dot = !node.label.empty() && node.label[0] != '[';
  std::string path = path_ + (dot ? "." : "") + node.label;
  if (node.holder >= 0 && node.composed()) path += std::string(".") + node.shape.name;
  for (const char *name : node.alternatives) path += std::string(".") + name;
  return path;
}

// Whether an element with the tag of a default is that, and not the next component, which has the
// same tag in ATSHashIndex.
bool TypedJudge::is_written(const Placed &placed, const Node &node) const {
  if (!node.tags.empty()) return true;
  const Octets element = elements_.octets(placed.element.offset, placed.after);
  return Decoded(node.type_id, element).get() != nullptr;
}

// The element of a component, which is then done with. Nothing for a default that was left out.
std::optional<Placed> TypedJudge::next_element(const Node &node, std::int64_t own_type) {
  Frame &around = frames_.back();
  const std::optional<Placed> placed = elements_.at(around.position, around.end);
  const Match matched = placed ? match(placed->element, node.tags, own_type) : Match::no;
  const bool found =
      node.is_default ? matched == Match::yes && is_written(*placed, node) : matched != Match::no;
  if (!found) {
    if (!node.is_default) around.position = around.end;  // what follows cannot be told either
    return std::nullopt;
  }
  around.position = placed->after;
  return placed;
}

// The element with the content, inside those of explicit tags.
std::optional<Placed> TypedJudge::behind_tags(Placed placed,
                                              const std::vector<ContextTag> &tags,
                                              std::int64_t own_type) const {
  for (const ContextTag &tag : tags) {
    if (!has_tag(placed.element, tag)) return std::nullopt;
    if (!tag.is_explicit) {
      return &tag == &tags.back() ? std::optional(placed) : std::nullopt;
    }
    const std::optional<Placed> inner = elements_.at(placed.start(), placed.end);
    if (!inner) return std::nullopt;
    placed = *inner;
  }
  return match_own(placed.element, own_type) == Match::no ? std::nullopt : std::optional(placed);
}

// The encoding that a string holds. One in pieces has it in pieces, and is a finding by itself.
std::optional<Placed> TypedJudge::in_string(const Placed &string, const Node &node) {
  if (!dig_ || string.element.constructed()) return std::nullopt;
  const std::uint64_t skip = node.holder == QUARN_ASN1_BITSTRING ? 1 : 0;
  const std::uint64_t start = string.start() + skip;
  if (start > string.end) return std::nullopt;
  result_.opened[string.element.offset] = skip;
  elements_.learn(start, string.end);
  return elements_.at(start, string.end);
}

std::optional<Placed> TypedJudge::place_of(const Node &node) {
  const bool opened = node.holder >= 0;
  const std::int64_t own_type = opened ? node.holder : node.type_id;
  std::optional<Placed> placed = next_element(node, own_type);
  if (!placed) return placed;
  if (node.is_default) {
    add(Rule::default_value, placed->element.offset, node, "a component that holds its default");
    return std::nullopt;
  }
  check_order(*placed, node);
  placed = behind_tags(*placed, node.tags, own_type);
  if (!opened || !placed) return placed;
  if (node.holder != QUARN_ASN1_ANY) placed = in_string(*placed, node);
  return placed ? behind_tags(*placed, node.held_tags, node.type_id) : placed;
}

// Of the elements of a SET OF whose own tag does not show it to be a SET.
void TypedJudge::check_order(const Placed &placed, const Node &node) {
  Frame &around = frames_.back();
  if (!around.is_set_of) return;
  const std::optional<Placed> last = std::exchange(around.last, placed);
  if (!last) return;
  const Octets before = elements_.octets(last->element.offset, last->after);
  const Octets after = elements_.octets(placed.element.offset, placed.after);
  if (std::lexicographical_compare(after.begin(), after.end(), before.begin(), before.end())) {
    add(Rule::set_of_order, placed.element.offset, node,
        "a component that should stand before that at offset " +
            std::to_string(last->element.offset));
  }
}

bool TypedJudge::enter(const Node &node, std::int64_t /*count*/) {
  const std::optional<Placed> placed = place_of(node);
  if (!placed || !placed->element.constructed()) return false;
  const bool own_tag = placed->element.header.tag_class != kUniversal;
  const bool is_set_of = own_tag && node.list() && description_of(node.type_id).tag_number == 17;
  path_ = path_to(node);
  frames_.push_back({placed->start(), placed->end, path_.size(), is_set_of, std::nullopt});
  return true;
}

void TypedJudge::leave() {
  frames_.pop_back();
  path_.resize(frames_.back().path_length);
}

void TypedJudge::leaf(const Node &node) {
  const std::optional<Placed> placed = place_of(node);
  if (!placed) return;
  const std::uint64_t number = description_of(node.shape.base).tag_number;
  if (placed->element.header.tag_class != kUniversal) check_content_of(*placed, node, number);
  if (number == 3 && node.names != nullptr) check_named_bits(*placed, node);
}

void TypedJudge::check_content_of(const Placed &placed, const Node &node, std::uint64_t number) {
  if (number == 0) return;
  if (placed.element.constructed()) {
    add(Rule::primitive_string, placed.element.offset, node,
        "a constructed " + tag_name(placed.element.header));
    return;
  }
  check_content(number, elements_.octets(placed.start(), placed.end),
                [&](Rule rule, std::uint64_t at, const std::string &found) {
                  add(rule, placed.start() + at, node, found);
                });
}

void TypedJudge::check_named_bits(const Placed &placed, const Node &node) {
  const Octets content = elements_.octets(placed.start(), placed.end);
  if (placed.element.constructed() || content.size() < 2 || content[0] > 7) return;
  if ((content.back() >> content[0] & 1) == 0) {
    add(Rule::named_bits, placed.end - 1, node,
        "a last octet " + hex_octets(content.last(1)) + " with " +
            counted(content[0], "unused bit"));
  }
}

}  // namespace

TypedFindings judge_typed(const Decoded &value, Octets octets, bool dig) {
  TypedJudge judge(value.type_id(), octets, dig);
  walk_value(value.type_id(), value.get(), judge);
  return judge.take();
}

}  // namespace quarn::cli
