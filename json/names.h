// The words of a document: the values of "type" and "class", and what each stands for.
#ifndef QUARN_JSON_NAMES_H
#define QUARN_JSON_NAMES_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "core/header.h"

namespace quarn::asn1::json {

// How the value of an element is written in a document.
enum class Kind : std::uint8_t {
  none,          // no type that can be named
  boolean,       // true or false
  integer,       // a number, or text of a big one
  bit_string,    // an object of unused bits and hex, or an array of booleans
  octet_string,  // hex
  null,          // nothing
  oid,           // dotted text
  relative_oid,  // dotted text
  real,          // nothing: only overrides can write one
  text,          // the text
  universal,     // the text, four octets a character in the encoding
  bmp,           // the text, two octets a character in the encoding
  sequence,      // an array of elements
  set,           // an array of elements, which "sort" puts into the order of their tags
  set_of,        // an array of elements, which "sort" puts into the order of their octets
  tagged         // an element, or its content
};

// Kinds that the constructed form cuts into segments.
constexpr bool is_string(Kind kind) {
  return kind == Kind::bit_string || kind == Kind::octet_string || kind == Kind::text ||
         kind == Kind::universal || kind == Kind::bmp;
}

// Kinds that are made of elements, whatever else the document says.
constexpr bool is_container(Kind kind) {
  return kind == Kind::sequence || kind == Kind::set || kind == Kind::set_of ||
         kind == Kind::tagged;
}

struct TypeName {
  std::string_view text;
  std::uint8_t tag;
  Kind kind;
  bool read_only = false;  // accepted in documents and never written
};

inline constexpr std::string_view kTaggedType = "TAGGEDTYPE";
inline constexpr std::string_view kUnknown = "UNKNOWN";

inline constexpr TypeName kTypeNames[] = {
    {"BOOLEAN", 1, Kind::boolean},
    {"INTEGER", 2, Kind::integer},
    {"BITSTRING", 3, Kind::bit_string},
    {"OCTETSTRING", 4, Kind::octet_string},
    {"NULL", 5, Kind::null},
    {"OID", 6, Kind::oid},
    {"REAL", 9, Kind::real, true},
    {"ENUM", 10, Kind::integer},
    {"UTF8STRING", 12, Kind::text},
    {"ROID", 13, Kind::relative_oid},
    {"SEQUENCE", 16, Kind::sequence},
    {"SEQUENCEOF", 16, Kind::sequence, true},
    {"SET", 17, Kind::set, true},
    {"SETOF", 17, Kind::set_of},
    {"NUMERICSTRING", 18, Kind::text},
    {"PRINTABLESTRING", 19, Kind::text},
    {"TELETEXSTRING", 20, Kind::octet_string},
    {"T61STRING", 20, Kind::octet_string, true},
    {"VIDEOTEXSTRING", 21, Kind::octet_string},
    {"IA5STRING", 22, Kind::text},
    {"UTCTIME", 23, Kind::text},
    {"GENTIME", 24, Kind::text},
    {"GRAPHICSTRING", 25, Kind::octet_string},
    {"VISIBLESTRING", 26, Kind::text},
    {"ISO636STRING", 26, Kind::text, true},
    {"GENERALSTRING", 27, Kind::octet_string},
    {"UNIVERSALSTRING", 28, Kind::universal},
    {"BMPSTRING", 30, Kind::bmp},
    {kTaggedType, 0, Kind::tagged, true},
};

// The rows by name: cells of a hash table with linear probing, which hold a row's number plus 1.
constexpr std::size_t kNameCells = 128;
constexpr std::size_t name_cell(std::string_view text) {
  const auto octet = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  return (text.size() * 9 + octet(0) * 5u + octet(text.size() / 2)) % kNameCells;
}
inline constexpr auto kNameTable = [] {
  std::array<std::uint8_t, kNameCells> cells{};
  for (std::uint8_t row = 0; row < std::size(kTypeNames); row++) {
    std::size_t cell = name_cell(kTypeNames[row].text);
    while (cells[cell] != 0) cell = (cell + 1) % kNameCells;
    cells[cell] = static_cast<std::uint8_t>(row + 1);
  }
  return cells;
}();

// The row that a document names, or null.
constexpr const TypeName *find_type_name(std::string_view text) {
  if (text.empty()) return nullptr;
  for (std::size_t cell = name_cell(text); kNameTable[cell] != 0; cell = (cell + 1) % kNameCells) {
    const TypeName &name = kTypeNames[kNameTable[cell] - 1];
    if (name.text == text) return &name;
  }
  return nullptr;
}

// The name under which elements with a universal tag are rendered; empty where there is none.
constexpr std::string_view type_name_of(std::uint64_t tag) {
  constexpr auto kByTag = [] {
    std::array<std::string_view, 31> names{};
    for (const TypeName &name : kTypeNames) {
      if (!name.read_only) names[name.tag] = name.text;
    }
    return names;
  }();
  return tag < kByTag.size() ? kByTag[tag] : std::string_view();
}

struct ClassName {
  std::string_view text;
  std::uint32_t tag_class;
};

// In the order of their bits.
inline constexpr ClassName kClassNames[] = {{"UNIVERSAL", kUniversal},
                                            {"APPLICATION", kApplication},
                                            {"CONTEXT", kContext},
                                            {"PRIVATE", kPrivate}};

constexpr std::string_view class_name_of(std::uint32_t tag_class) {
  return kClassNames[tag_class >> 6].text;
}

}  // namespace quarn::asn1::json

#endif
