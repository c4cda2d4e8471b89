// Reads .vec files, in which a line is a case:
//
//     def zero = 01 01 00
//     type = boolean
//     <zero>   | same       | false
//     01 01 01 | 01 01 FF   | any octet but zero is true and is written as FF
//     01 00    | code 10203 | empty content
//     null: 05 00 | same
//
// type holds until the next type line, a type in front of a row for that row; `#` begins a comment.
// Octets are hexadecimal or "text"; a group in parentheses can be repeated: (30 80)*3. <zero>
// stands for what was defined.
#ifndef QUARN_TESTS_SUPPORT_VECTOR_FILE_H
#define QUARN_TESTS_SUPPORT_VECTOR_FILE_H

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quarn::test {

using Octets = std::vector<std::uint8_t>;

struct Vector {
  std::string file;
  int line = 0;
  std::int64_t type = -1;
  std::string name;
  Octets in;
  std::optional<Octets> out;              // present: decoding succeeds and re-encodes to this
  std::vector<int> codes;                 // codes of all records, innermost first
  int result = 0;                         // of a decode that fails
  std::optional<std::uint64_t> consumed;  // of one that succeeds; default: all of in
};

// Octets as a .vec file writes them.
Octets read_octets(const std::string &text);

// All vectors of a file. Throws std::runtime_error with file and line for a line it cannot read.
std::vector<Vector> read_vectors(const std::string &path);

// All vectors of the .vec files in a folder and below, in the order of file names.
std::vector<Vector> read_vector_folder(const std::string &folder);

}  // namespace quarn::test

#endif
