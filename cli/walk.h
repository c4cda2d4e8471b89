// A walk over the elements of an encoding, as deep as it goes: what is there, in the order of the
// octets, and the first fault with its reason. Memory grows with the depth, time with the octets.
// Of an encoding that was cut off, everything up to the end of the input is walked; the fault is
// then where the input ends.
//
//     Walk walk(octets);
//     while (walk.next() == Walk::Step::element) use(walk.element());
#ifndef QUARN_CLI_WALK_H
#define QUARN_CLI_WALK_H

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/rules.h"
#include "cli/text.h"
#include "quarn_asn1/core.h"

namespace quarn::cli {

// Classes of tags, as in identifier octets.
constexpr std::uint32_t kUniversal = 0x00;
constexpr std::uint32_t kApplication = 0x40;
constexpr std::uint32_t kContext = 0x80;

struct Element {
  std::uint64_t offset = 0;  // of its first identifier octet
  std::size_t depth = 0;     // elements around it
  quarn_asn1_header header{};
  bool end_of_contents = false;

  bool constructed() const { return header.form == 0; }
  bool indefinite() const { return header.content_length == QUARN_ASN1_INDEFINITE; }
  bool universal(std::uint64_t number) const {
    return header.tag_class == kUniversal && header.tag_number == number;
  }
  std::uint64_t content_offset() const { return offset + header.header_length; }
  // Octets of content; 0 for the indefinite form.
  std::uint64_t content_length() const {
    return indefinite() ? 0 : static_cast<std::uint64_t>(header.content_length);
  }
};

struct Fault {
  std::uint64_t offset = 0;
  Rule rule = Rule::whole_header;
  std::string found;
  std::string expected;
};

class Walk {
 public:
  enum class Step { element, end, fault };
  // How many elements there should be side by side at the top.
  enum class Top { one, several };
  // Whether tag numbers below 31 may be in the long form, which the library refuses.
  enum class Tags { strict, lenient };

  explicit Walk(Octets octets, Top top = Top::one, Tags tags = Tags::strict)
      : octets_(octets), top_(top), tags_(tags) {}

  // Goes to the next element: the first one inside the current, when that is constructed.
  Step next();
  // Makes the content of the current element, which is primitive and holds `skip` octets before
  // them, the next elements.
  void descend(std::uint64_t skip);
  // After a fault: goes on behind the innermost element around it that has a known end. False when
  // there is none.
  bool recover();

  const Element &element() const { return element_; }
  const Fault &fault() const { return fault_; }
  // The octets after those walked so far.
  std::uint64_t position() const { return position_; }
  Octets content() const {
    return octets_.subspan(element_.content_offset(), element_.content_length());
  }
  // Where the walk stands, from the outermost element inwards: "SEQUENCE[0].[3][1].INTEGER", each
  // number the place among the components of the element before it.
  std::string path() const;
  // The same of the current element.
  std::string element_path() const;

 private:
  struct Frame {
    quarn_asn1_header header;
    std::uint64_t offset;  // of the element itself
    std::uint64_t end;     // its content ends here at the latest
    std::uint64_t children;
    bool cut_off;  // its length passes the end of the input
    bool open;     // what is around it may go on after the end of the input

    bool indefinite() const { return header.content_length == QUARN_ASN1_INDEFINITE; }
  };

  std::uint64_t limit() const { return frames_.empty() ? octets_.size() : frames_.back().end; }
  bool open() const { return frames_.empty() || frames_.back().open; }
  Step end_too_early();
  Step enter_overlong(std::uint64_t left);
  Step between_elements();
  Step read_element();
  Step enter_element();
  Step end_of_contents();
  Step fail(std::uint64_t offset, Rule rule, std::string found, std::string expected = "");
  int header_at(std::uint64_t offset, std::uint64_t left, quarn_asn1_header &header) const;
  Step fail_header(int result);
  void enter(std::uint64_t end, bool cut_off, bool open);
  std::string path_to(std::size_t depth) const;

  Octets octets_;
  Top top_;
  Tags tags_;
  std::uint64_t position_ = 0;
  std::uint64_t top_elements_ = 0;
  std::vector<Frame> frames_;
  Element element_;
  Fault fault_;
};

// "SEQUENCE", "[3]", "[APPLICATION 3]"
std::string tag_name(const quarn_asn1_header &header);

// Octets of the first encoding; nothing when there is none.
std::optional<std::uint64_t> extent(Octets octets);
// Whether the octets are encodings from the first to the last, and at least one.
bool well_formed(Octets octets);

}  // namespace quarn::cli

#endif
