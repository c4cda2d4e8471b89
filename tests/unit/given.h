// Arguments for constructors, and what they make, for the tests of structured types.
#ifndef QUARN_TESTS_UNIT_GIVEN_H
#define QUARN_TESTS_UNIT_GIVEN_H

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "quarn_asn1.h"
#include "tests/support/allocation.h"
#include "tests/support/json.h"

namespace quarn::test {

inline std::string hex(const std::string &with_blanks) {
  return to_hex(from_hex(with_blanks));
}

inline std::string encoding_of(std::int64_t type, const void *value) {
  const Blob blob(quarn_asn1_mem_encode(type, const_cast<void *>(value)));
  if (blob == nullptr) return "null";
  return to_hex({reinterpret_cast<const char *>(blob->data), static_cast<size_t>(blob->length)});
}

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
  Given(const Given &) = delete;
  Given &operator=(const Given &) = delete;
  ~Given() {
    for (const auto &[type, value] : owned_) quarn_asn1_value_free(type, value);
  }

  // The value that some hex encodes; null when it does not decode.
  Lent operator()(std::int64_t type, const std::string &encoding) {
    const std::string octets = from_hex(encoding);
    void *value = nullptr;
    quarn_asn1_mem_decode(reinterpret_cast<const std::uint8_t *>(octets.data()),
                          static_cast<std::int64_t>(octets.size()), type, &value);
    return own(type, value);
  }
  Lent own(std::int64_t type, void *value) {
    owned_.emplace_back(type, value);
    return {value};
  }

  // A constructor has made a value of some encoding, or "null", unless memory was short.
  void makes(const char *what, std::int64_t type, void *value, const std::string &encoding) {
    own(type, value);
    const std::string made = encoding_of(type, value);
    if (allocation_ != nullptr && allocation_->failed()) return;
    EXPECT_EQ(made, encoding == "null" ? "null" : hex(encoding)) << what;
  }

  Lent oid() { return (*this)(QUARN_ASN1_OID, "06 01 2A"); }
  Lent integer() { return (*this)(QUARN_ASN1_INTEGER, "02 01 05"); }
  Lent yes() { return (*this)(QUARN_ASN1_BOOLEAN, "01 01 01"); }
  Lent no() { return (*this)(QUARN_ASN1_BOOLEAN, "01 01 00"); }
  Lent bits() { return (*this)(QUARN_ASN1_BITSTRING, "03 02 06 40"); }
  Lent octets(const std::string &encoding = "04 01 41") {
    return (*this)(QUARN_ASN1_OCTETSTRING, encoding);
  }
  Lent any(const std::string &encoding = "05 00") { return (*this)(QUARN_ASN1_ANY, encoding); }
  Lent nothing() { return any("00 00"); }
  Lent list(std::int64_t type, const std::string &encoding = "30 00") {
    return (*this)(type, encoding);
  }
  Lent contexts() { return list(QUARN_ASN1_X500CONTEXTLIST, "31 00"); }
  Lent names() { return list(QUARN_ASN1_X509GENERALNAMES); }
  Lent name() { return (*this)(QUARN_ASN1_X500NAME, "30 00"); }
  Lent general_name() { return (*this)(QUARN_ASN1_X509GENERALNAME, "82 01 61"); }
  Lent algorithm() { return (*this)(QUARN_ASN1_X509ALGORITHMID, "30 03 06 01 2A"); }

 private:
  const Allocation *allocation_;
  std::vector<std::pair<std::int64_t, void *>> owned_;
};

}  // namespace quarn::test

#endif
