// Arguments for constructors, and what they make, for the tests of structured types.
#ifndef QUARN_TESTS_UNIT_GIVEN_H
#define QUARN_TESTS_UNIT_GIVEN_H

#include <deque>
#include <string>

#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {

// A pointer to whatever type is asked for.
struct Lent {
  void *value;
  template <typename T>
  operator T *() const {  // NOLINT(google-explicit-constructor)
    return static_cast<T *>(value);
  }
};

// Arguments, which live until the end of a test.
class Given {
 public:
  explicit Given(const Allocation *allocation = nullptr) : allocation_(allocation) {}

  // The value that some octets encode; null when they do not decode.
  Lent operator()(std::int64_t type, const Octets &octets) {
    return {owned_.emplace_back(type, octets).get()};
  }
  Lent operator()(std::int64_t type, const std::string &octets) {
    return (*this)(type, hex(octets));
  }
  Lent own(std::int64_t type, void *value) { return {owned_.emplace_back(type, value).get()}; }

  // A constructor has made a value of some encoding, or none of "", unless memory was short.
  void makes(const char *what, std::int64_t type, void *value, const std::string &encoding) {
    const Octets made = owned_.emplace_back(type, value).encoding();
    if (allocation_ != nullptr && allocation_->failed()) return;
    EXPECT_EQ(made, hex(encoding)) << what;
  }

  Lent oid() { return (*this)(QUARN_ASN1_OID, "06 01 2A"); }
  Lent integer() { return (*this)(QUARN_ASN1_INTEGER, "02 01 05"); }
  Lent yes() { return (*this)(QUARN_ASN1_BOOLEAN, "01 01 01"); }
  Lent no() { return (*this)(QUARN_ASN1_BOOLEAN, "01 01 00"); }
  Lent bits() { return (*this)(QUARN_ASN1_BITSTRING, "03 02 06 40"); }
  Lent octets(const std::string &encoding = "04 01 41") {
    return (*this)(QUARN_ASN1_OCTETSTRING, encoding);
  }
  Lent any() { return (*this)(QUARN_ASN1_ANY, "05 00"); }
  Lent names() { return (*this)(QUARN_ASN1_X509GENERALNAMES, "30 00"); }
  Lent name() { return (*this)(QUARN_ASN1_X500NAME, "30 00"); }
  Lent algorithm() { return (*this)(QUARN_ASN1_X509ALGORITHMID, "30 03 06 01 2A"); }

 private:
  const Allocation *allocation_;
  std::deque<Held> owned_;
};

}  // namespace quarn::test

#endif
