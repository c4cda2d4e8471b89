// What an object identifier says about the octets beside it: the type of an extension's value, of
// an attribute's values, of a qualifier; and the names of bits and numbers.
#ifndef QUARN_CLI_OPEN_H
#define QUARN_CLI_OPEN_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "cli/diagnosis.h"
#include "cli/text.h"

namespace quarn::cli {

// Where the octets stand whose type an identifier tells, in the order of the alphabet.
enum class Place {
  attribute,
  bag,
  capability,
  content,
  extension,
  key,
  other_name,
  parameters,
  private_key,
  qualifier,
  response,
  revocation,
  statement,
  validation,
  want_back
};

// A record whose component number `value` has the type that the identifier in the first tells; a
// list of such values when `elements` is set.
struct OpenRecord {
  std::int64_t type_id;
  std::int64_t value;
  Place place;
  bool elements;
};
// Null for a record that is no such one.
const OpenRecord *open_record(std::int64_t type_id);

struct Opening {
  std::int64_t type_id;
  bool contained;  // in an OCTET STRING, in a place for any type
  const char
      *names;  // of bits or numbers, from 0 on, separated by commas; null when they have none
};
// Null when the type is not known.
const Opening *find_opening(Place place, std::string_view dotted);

// "extension 2.5.29.15" for each identifier that tells a type.
std::vector<std::string> identifiers_of(std::int64_t type_id);

// What a message of the type data contains where it is a component; null when it may be anything.
const Opening *data_opening(std::int64_t record_type, std::string_view component);

// The names of the bits or numbers of a component; null when they have none.
const char *component_names(std::int64_t record_type, std::string_view component);

// One name of such a list; empty when there is none.
std::string name_of(const char *names, std::uint64_t number);

// A value decoded from octets, freed with them.
class Decoded {
 public:
  Decoded() = default;
  // All octets as one value of the type. When they are none, get() is null, reason() says why, and
  // records() and path() are what the library left.
  Decoded(std::int64_t type_id, Octets octets);
  Decoded(Decoded &&other) noexcept;
  Decoded &operator=(Decoded &&other) noexcept;
  ~Decoded();

  std::int64_t type_id() const { return type_id_; }
  void *get() const { return value_; }
  const std::string &reason() const { return reason_; }
  // Whether it may be one, but has more inside one another than the library takes.
  bool too_deep() const { return too_deep_; }
  const std::vector<Record> &records() const { return records_; }
  // "tbsCertificate.extensions[3].extnID", or nothing.
  const std::string &path() const { return path_; }

 private:
  std::int64_t type_id_ = 0;
  void *value_ = nullptr;
  std::string reason_;
  bool too_deep_ = false;
  std::vector<Record> records_;
  std::string path_;
};

}  // namespace quarn::cli

#endif
