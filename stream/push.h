// The machine behind the push decoders: it takes the octets of one element in slices of any size
// and finds where the element ends.
//
//     level 0 |     1     |    2    |      octets
//     --------+-----------+---------+-------------------------------------------------------
//     30 80   |           |         |      header; indefinite length opens level 1
//             | 30 03     |         |      header; level 2 ends three octets on
//             |           | 02 01 07|      an item; its last octet completes level 2 as well
//             | 00 00     |         |      end-of-contents: level 1 is complete, and so is 0
//
// Levels lie in one array, so that work for an octet does not grow with its depth and the stack
// does not either. The element itself is the only item of level 0. An item is complete with the
// last octet of its content; a level with its last item, when its length is definite, or with an
// end-of-contents. Where that departs from X.690 is told in quarn_asn1/stream.h.
#ifndef QUARN_STREAM_PUSH_H
#define QUARN_STREAM_PUSH_H

#include <cstdint>

#include "quarn_util.h"

namespace quarn::asn1 {

// What is left of a slice.
struct Slice {
  const std::uint8_t *next;
  std::uint64_t left;
};

class PushMachine {
 public:
  // Constructed content, and what is around the element (level 0).
  struct Level {
    std::uint64_t end;    // position at which its length ends; none when indefinite
    std::uint64_t limit;  // the nearest end of all levels around, itself included
    bool until_eoc;       // an end-of-contents may stand in place of an item
  };

  enum class Accepts : std::uint8_t { any_element, octet_strings };

  struct Header {
    std::uint32_t tag_class;
    bool primitive;
    std::uint64_t tag_number;
    std::int64_t length;  // kIndefinite for 80
  };

  // levels has room for deepest + 1 levels and lives as long as the machine.
  void start(Accepts accepts, Level *levels, int deepest);

  // Takes identifier and length as read. False, with nothing changed, when there is no such content
  // or octets were taken before.
  [[nodiscard]] bool start_in_content(bool primitive, std::int64_t length);

  // Takes octets of the slice to the end of the element, if it ends there. The content of OCTET
  // STRINGs goes to out. False: this is no element, or writing failed; so will later slices.
  [[nodiscard]] bool feed(Slice &slice, quarn_stream *out) { return feed(slice, out, false); }
  // The same, but no further than the length octets of the element.
  [[nodiscard]] bool feed_header(Slice &slice) { return feed(slice, nullptr, true); }

  // For failures of those who feed it.
  void fail() { state_ = State::error; }

  bool is_new() const { return in_header() && state_ == State::tag; }
  bool in_header() const { return depth_ == 0 && state_ < State::content; }
  bool in_content() const { return !in_header() && !is_complete() && !has_failed(); }
  bool is_complete() const { return state_ == State::end; }
  bool has_failed() const { return state_ == State::error; }
  // Of the element: to be asked between the end of its header and the next octet.
  const Header &header() const { return header_; }

 private:
  // What the next octet is. The order counts: all before content is header.
  enum class State : std::uint8_t {
    tag,
    tag_number,
    length,
    more_length,
    end_of_contents,
    content,
    end,
    error
  };

  bool feed(Slice &slice, quarn_stream *out, bool header_only);
  bool step(Slice &slice, quarn_stream *out);
  bool take_tag(Slice &slice);
  bool take_tag_number(Slice &slice);
  bool take_length(Slice &slice);
  bool take_more_length(Slice &slice);
  bool take_end_of_contents(Slice &slice);
  bool take_content(Slice &slice, quarn_stream *out);
  bool enter_content(std::int64_t length);
  void end_item();
  void end_level();

  std::uint8_t octet(Slice &slice);
  void advance(Slice &slice, std::uint64_t count);

  std::uint64_t position_ = 0;   // octets taken
  Header header_{};              // of the latest item
  std::uint64_t remaining_ = 0;  // of the content of the latest item
  Level *levels_ = nullptr;
  int depth_ = 0;
  int deepest_ = 0;
  int length_octets_ = 0;  // still to come
  State state_ = State::tag;
  Accepts accepts_ = Accepts::any_element;
};

}  // namespace quarn::asn1

#endif
