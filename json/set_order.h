// The order of elements in a sorted SET or SET OF.
//
// The encoding of each element is taken out of what is written as soon as it is complete; at the
// end of the set all are put back in their order. Sets may be nested: the inner ones are complete
// first.
#ifndef QUARN_JSON_SET_ORDER_H
#define QUARN_JSON_SET_ORDER_H

#include "json/back_writer.h"

namespace quarn::asn1::json {

class SetOrder {
 public:
  explicit SetOrder(BackWriter &out) : out_(out) {}

  // Begins a set before its last element is written: in the order of tags (SET), or of encodings
  // (SET OF). All three are false when memory is short.
  [[nodiscard]] bool begin(bool by_tag);
  // Notes that an element, the one in front of those added before, is written. False also when it
  // is to be put in the order of tags and has none.
  [[nodiscard]] bool add();
  // Ends the innermost set: puts its elements in order.
  [[nodiscard]] bool end();

 private:
  struct Set {
    BackWriter::Mark apart;
    std::size_t first;  // of its elements
    bool by_tag;
  };

  // From where on an encoding has nothing but zeros, as far as that is known: at none of the
  // offsets before none_before, at each from all_from on. What has been looked at once is not
  // looked at again, whatever comparisons follow.
  struct Zeros {
    std::size_t none_before = 0;
    std::size_t all_from = SIZE_MAX;
  };

  struct Element {
    BackWriter::Run run;
    std::uint32_t tag_class;
    std::uint64_t number;
    Zeros zeros;
  };

  class Cursor;

  bool read_tag(Element &element) const;
  bool by_tag(std::size_t a, std::size_t b) const;
  bool by_octets(std::size_t a, std::size_t b);
  static bool rest_is_zero(Cursor &rest, std::size_t offset, Zeros &known);

  BackWriter &out_;
  Stack<Set> sets_;
  Stack<Element> elements_;
};

}  // namespace quarn::asn1::json

#endif
