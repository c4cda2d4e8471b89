// The JSON mapping: what each element renders as, what each document writes, and what both refuse.
// Expected octets and documents are worked out by hand from X.690.
#include <fstream>
#include <sstream>

#include "tests/support/allocation.h"
#include "tests/support/json.h"
#include "tests/support/streams.h"

namespace quarn::test {
namespace {

std::string repeat(std::size_t count, std::string_view text) {
  std::string result;
  result.reserve(count * text.size());
  for (std::size_t i = 0; i < count; i++) result += text;
  return result;
}

// Octets, a document, and what it writes if that is not the same.
struct Row {
  std::string octets;
  std::string json;
  std::string again;
};

std::vector<Row> rows_of(const char *text) {
  std::vector<Row> rows;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.empty() || line[0] == '#') continue;
    const std::size_t json = line.find(" | ") + 3;
    const std::size_t end = std::min(line.find(" | ", json), line.size());
    Row row{from_hex(line.substr(0, json - 3)), line.substr(json, end - json), ""};
    row.again = end == line.size() ? to_hex(row.octets) : line.substr(end + 3);
    rows.push_back(row);
  }
  return rows;
}

constexpr char kBothWays[] = R"(
31 80 0500 0000 | {"type":"SETOF","indefinite":true,"value":[{"type":"NULL"}]}
0A 04 80000000 | {"type":"ENUM","value":-2147483648}
02 05 0080000000 | {"type":"INTEGER","value":"0X80000000"}
02 05 FF00000000 | {"type":"INTEGER","value":"-0X0100000000"}
06 03 883703 | {"type":"OID","value":"2.999.3"}
0D 03 813403 | {"type":"ROID","value":"180.3"}
0C 05 E282AC 00 1F | {"type":"UTF8STRING","value":"€\u0000\u001f"}
13 02 61FF | {"type":"PRINTABLESTRING","user defined":{"content":"61FF","length":2}}
14 02 C1E9 | {"type":"TELETEXSTRING","value":"C1E9"}
17 0B 323030313031313230305A | {"type":"UTCTIME","value":"2001011200Z"}
18 11 32303136313233313233353936302C305A | {"type":"GENTIME","value":"20161231235960,0Z"}
1C 08 0001F600 00000041 | {"type":"UNIVERSALSTRING","value":"😀A"}
1C 04 0000D800 | {"type":"UNIVERSALSTRING","user defined":{"content":"0000D800","length":4}}
1E 03 004100 | {"type":"BMPSTRING","user defined":{"content":"004100","length":3}}
37 80 04 01 32 0000 | {"type":"UTCTIME","constructed":true,"indefinite":true,"value":[{"type":"OCTETSTRING","value":"32"}]}
A0 00 | {"type":"TAGGEDTYPE","class":"CONTEXT","implicit":true,"number":0,"value":{"type":"SEQUENCE","value":[]}}
A0 80 0500 0000 | {"type":"TAGGEDTYPE","class":"CONTEXT","implicit":false,"indefinite":true,"number":0,"value":{"type":"NULL"}}
DF 87FFFFFF7F 00 | {"type":"TAGGEDTYPE","class":"PRIVATE","implicit":true,"number":2147483647,"value":{"type":"OCTETSTRING","value":""}}
# The document has no place for what makes these encodings special.
30 8100 | {"type":"SEQUENCE","value":[]} | 3000
06 02 2A86 | {"type":"OID","value":"1.2"} | 06012A
06 01 86 | {"type":"OID","value":""} | null
# The constructed form of a type without a name, and its primitive form of indefinite length.
28 02 0500 | {"type":"UNKNOWN","user defined":{"identifier":"28"},"constructed":true,"value":[{"type":"NULL"}]} | null
1F1F 80 0000 | {"type":"UNKNOWN","user defined":{"identifier":"3F1F"},"constructed":true,"indefinite":true,"value":[]} | null)";

TEST(Json, elements_render_and_come_back) {
  for (const auto &[octets, json, again] : rows_of(kBothWays)) {
    EXPECT_EQ(rendered(octets), json);
    EXPECT_EQ(encoded(to_json(octets)), again) << json;
  }
}

TEST(Json, octets_that_are_no_encoding_have_no_document) {
  const char *const kHex[] = {
      // Octets too many or too few, and ends that are out of place.
      "05 00 00", "05", "05 01", "9F", "00 00", "30 02 0000", "30 80 0500", "30 80 00 01",
      "A0 02 0000", "A0 04 0500 0000", "30 05 30 80 0500 00", "30 04 04 03 0000 00",
      "30 02 05 8100", "30 01 05 00",
      // Content that a type cannot have.
      "01 00", "01 02 FFFF", "02 00", "05 01 00", "03 00", "03 01 01", "03 02 08 00", "06 00",
      "06 02 8001", "17 00", "17 03 323030", "18 0F 3230303031303131323030303058",
      // Forms that tags do not have, primitives of indefinite length, and the tag number 2^31.
      "22 03 020105", "2F 00", "0F 00", "1D 00", "10 00", "08 00", "3F23 00", "1F23 00", "20 00",
      "04 80 0000", "80 80 0000", "1E 80 0000", "DF 8880808000 00"};
  for (const char *hex : kHex) EXPECT_EQ(rendered(from_hex(hex)), "null") << hex;
  EXPECT_EQ(quarn_asn1_tojson(nullptr, 1), nullptr);
  EXPECT_EQ(quarn_asn1_tojson(octets_of("\x05"), 0), nullptr);
}

// Only layers that follow each other directly count: definite content starts afresh, and the last
// layer may be empty.
TEST(Json, indefinite_lengths_nest_to_the_limit) {
  const auto reads = [](int count, const std::string &header, const std::string &inner) {
    const std::string times = ")*" + std::to_string(count) + " ";
    return rendered(from_hex("(" + header + times + inner + "(00 00" + times)) != "null";
  };
  const int limit = quarn_get_recursive_level();
  for (const std::string header : {"30 80", "A0 80", "07 80"}) {
    EXPECT_TRUE(reads(limit - 1, header, "05 00"));
    EXPECT_TRUE(reads(limit, header, ""));
    EXPECT_FALSE(reads(limit, header, "05 00"));
    EXPECT_FALSE(reads(limit + 1, header, ""));
  }
  EXPECT_TRUE(reads(limit - 1, "30 80", "31 82 0200 (30 80)*128 (00 00)*128"));
}

constexpr char kOneWay[] = R"(
# Numbers.
02 02 FF00 | {"type":"INTEGER","value":"-0X0100"}
02 01 00 | {"type":"INTEGER","value":"-0"}
02 03 FF7FFF | {"type":"INTEGER","value":"-0x8001"}
02 02 00FF | {"type":"INTEGER","value":"0xfF"}
02 09 FF0000000000000000 | {"type":"INTEGER","value":"-18446744073709551616"}
02 08 8000000000000000 | {"type":"INTEGER","value":-9223372036854775808}
02 01 05 | {"type":"INTEGER","value":5.0}
# Strings.
03 03 00 8001 | {"type":"BITSTRING","value":[true,false,false,false,false,false,false,false,false,false,false,false,false,false,false,true,false]}
17 01 3F | {"type":"UTCTIME","value":"?"}
# Forms and lengths.
04 80 0500 0000 | {"type":"OCTETSTRING","indefinite":true,"value":[{"type":"NULL"}]}
24 02 0500 | {"type":"OCTETSTRING","constructed":true,"value":[{"type":"NULL"}]}
05 00 | {"type":"NULL","indefinite":true,"constructed":1,"value":7}
30 00 | {"type":"SEQUENCEOF","indefinite":"true","value":[]}
# Tags.
3F 8100 00 | {"type":"TAGGEDTYPE","class":"UNIVERSAL","number":128,"implicit":true,"value":{"type":"SEQUENCE","value":[]}}
81 01 FF | {"type":"TAGGEDTYPE","number":1,"implicit":true,"indefinite":true,"constructed":true,"value":{"type":"TAGGEDTYPE","implicit":true,"value":{"type":"BOOLEAN","value":true,"user defined":{"identifier":"05","content":"00"}}}}
A1 80 0500 0000 | {"type":"TAGGEDTYPE","number":1,"implicit":true,"value":{"type":"TAGGEDTYPE","indefinite":true,"value":{"type":"NULL"}}}
A1 02 0500 | {"type":"TAGGEDTYPE","number":1,"implicit":true,"user defined":{"length":2,"content":"0500"}}
# Overrides.
30 04 AA | {"type":"SEQUENCE","value":[{"type":"NULL"},{"type":"NULL"}],"user defined":{"content":"AA"}}
30 80 AA 0000 | {"type":"SEQUENCE","indefinite":true,"user defined":{"content":"AA"}}
30 81FF 0500 0F | {"type":"SEQUENCE","indefinite":true,"value":[{"type":"NULL"}],"user defined":{"length":255,"end of contents":"0F"}}
 | {"user defined":{"identifier":"","length":"","content":""}}
05 00 | {"type":"NULL","user defined":["identifier"]})";

TEST(Json, documents_write_octets) {
  for (const auto &[octets, json, again] : rows_of(kOneWay)) {
    EXPECT_EQ(encoded(parse(json)), again) << json;
  }
}

TEST(Json, documents_that_describe_nothing_are_refused) {
  // A type, and its values or, after a comma, what else follows it in the object.
  const std::pair<std::string, std::vector<std::string>> cases[] = {
      {"Integer", {"5"}},
      {"UNKNOWN", {","}},
      {"BOOLEAN", {"1", ","}},
      {"INTEGER",
       {"2.5", "1e19", "true", R"("")", R"("-")", R"("0X")", R"("0X123")", R"("0X1G")", R"("--5")",
        R"("5\u0000")", R"("1234567890123456789\u0000")", ",",
        R"("x","user defined":{"content":"00"})"}},
      {"OCTETSTRING", {R"("ABC")", R"("A ")", "[]", R"(,"constructed":true,"value":"AA")"}},
      {"BITSTRING",
       {R"("AA")", "[true,0]", R"({"value":"AA"})", R"({"unused bits":8,"value":"AA"})",
        R"({"unused bits":0.5,"value":"AA"})", R"({"unused bits":1,"value":""})"}},
      {"OID", {R"("3.1")", ","}},
      {"ROID", {R"("")"}},
      {"UTF8STRING", {"5"}},
      {"BMPSTRING", {R"("😀")"}},
      {"SEQUENCE", {"{}", "[null]", ",", R"(,"indefinite":true)"}},
      {"REAL", {",", R"(,"user defined":{"length":1})", R"(,"user defined":{"content":"40"})"}},
      {"TAGGEDTYPE",
       {R"({"type":"NULL"})", R"(,"number":0)", R"({"type":"NULL"},"number":-1)",
        R"({"type":"NULL"},"number":2.5)", R"({"type":"NULL"},"number":1,"class":"context")",
        R"({"type":"NULL"},"number":1,"class":null)", R"(,"number":1,"implicit":true)"}},
      {"NULL",
       {R"(,"user defined":{"identifier":5})", R"(,"user defined":{"identifier":"05"})",
        R"(,"user defined":{"identifier":"05","length":0})", R"(,"user defined":{"length":-1})",
        R"(,"user defined":{"length":true})", R"(,"user defined":{"content":0})",
        R"(,"user defined":{"end of contents":null})"}},
  };
  std::vector<std::string> documents{"null", "[]", "5", "{}", R"({"type":5})"};
  for (const auto &[type, endings] : cases) {
    for (const std::string &ending : endings) {
      std::string document = R"({"type":")" + type + '"';
      if (ending[0] != ',') document += R"(,"value":)";
      documents.push_back(document + (ending == "," ? "" : ending) + "}");
    }
  }
  for (const std::string &text : documents) {
    const Json document = parse(text);
    ASSERT_NE(document, nullptr) << text;
    EXPECT_EQ(encoded(document), "null") << text;
  }
  EXPECT_EQ(quarn_asn1_encodejson(nullptr), nullptr);
}

// A node that stands for the octets as they are.
std::string raw(const std::string &hex) {
  std::string node = R"({"user defined":{"identifier":")";
  return node.append(hex).append(R"(","length":"","content":""}})");
}

// A sorted set of such nodes, and of nodes given as they are. more are further members of the set.
std::string sorted_set(const std::string &type,
                       std::initializer_list<std::string> elements,
                       const std::string &more = "") {
  std::string node = R"({"sort":true,"type":")";
  node.append(type).append("\"").append(more).append(R"(,"value":[)");
  const char *comma = "";
  for (const std::string &element : elements) {
    node.append(comma).append(element.starts_with('{') ? element : raw(element));
    comma = ",";
  }
  return node.append("]}");
}

TEST(Json, sets_are_sorted_on_request) {
  const std::string inner = sorted_set("SETOF", {"02", "01"});
  const std::string replaced =
      sorted_set("SETOF", {"02", "01"}, R"(,"user defined":{"content":"00"})");
  const std::pair<std::string, const char *> rows[] = {
      // By class, then by number; form and the rest do not count.
      {sorted_set("SET", {"DF21", "8000", "61", "A1", "0501", "25", "80FF"}),
       "310B05012561800080FFA1DF21"},
      {sorted_set("SET", {"", "05"}), "null"},
      {sorted_set("SET", {"1F01", "05"}), "null"},
      {sorted_set("SET", {""}), "3100"},
      // By octets, as if zeros followed the shorter: equal ones keep their order.
      {sorted_set("SETOF", {"0500", "", "FF", "05", "0401", "050000", "050001"}),
       "310C0401050005050000050001FF"},
      // An inner set is in order before the outer one compares it; what is replaced is gone.
      {sorted_set("SETOF", {"31020102FF", inner, "31020101"}), "310D310201013102010231020102FF"},
      {sorted_set("SETOF", {"0502", replaced, "04"}), "3106040502310200"},
      {sorted_set("SETOF", {"02", "01"}, R"(,"indefinite":true)"), "318002010000"},
  };
  for (const auto &[json, octets] : rows) EXPECT_EQ(encoded(parse(json)), octets) << json;
}

TEST(Json, streams_receive_what_blobs_do) {
  const Stream s(quarn_stream_new_mem(0, nullptr));
  const Json document = parse(sorted_set("SETOF", {"02", "01", "03"}));
  EXPECT_EQ(quarn_asn1_encodejsoninstream(s.get(), document.get()), 1);
  EXPECT_EQ(quarn_asn1_encodejsoninstream(s.get(), parse(R"({"type":"NULL"})").get()), 1);
  EXPECT_EQ(to_hex(rest_of(s)), "31030102030500");
  const Stream full(quarn_stream_new_romem(nullptr, 0, 0, nullptr));
  EXPECT_NE(quarn_asn1_encodejsoninstream(full.get(), document.get()), 1);
}

// Octets are not moved once for each level, nor runs of zeros read once for each comparison: either
// would take minutes here.
TEST(Json, sorting_hostile_sets_takes_no_time) {
  constexpr std::size_t kMany = 200000;
  const std::string chain = repeat(kMany, R"({"type":"SETOF","sort":true,"value":[)")
                                .append(raw("00"))
                                .append(repeat(kMany, R"(,{"type":"NULL"}]})"));
  EXPECT_TRUE(encoded(parse(chain)).ends_with("05003103000500"));

  // The long one is compared with all others, which in turn end before one run of zeros and before
  // the other.
  const std::string others = repeat(kMany / 4, raw("00") + "," + raw("0000FF") + ",");
  const std::string runs = R"({"type":"SETOF","sort":true,"value":[)" + others +
                           raw("0000FF" + repeat(kMany, "00") + "01") + "," + others + raw("FF");
  EXPECT_TRUE(encoded(parse(runs + "]}")).ends_with("000001FF"));
}

TEST(Json, every_failed_allocation_ends_without_a_leak) {
  const std::string octets = from_hex(
      "30 80 A0 80 0101FF 010101 0000 A1 00 810102 0206010203040506 02020001 0302040F 0603883703"
      "0D0105 0C0141 1301FF 1E0220AC 1C04000000E9 170B323030313031313230305A 0701 41 2800 0000");
  const std::string text =
      sorted_set("SET", {"05", R"({"type":"INTEGER","value":"-18446744073709551616"})",
                         R"({"type":"OID","value":"1.2.840.113549"})",
                         sorted_set("SETOF", {"02", "01"}, R"(,"user defined":{"content":"AA"})")});
  ASSERT_NE(rendered(octets), "null");
  fail_each_allocation([&](Allocation &allocation) {
    const Json document = to_json(octets);
    EXPECT_EQ(document == nullptr, allocation.failed());
  });
  fail_each_allocation([&](Allocation &allocation) {
    const Json document = parse(text);
    const std::string hex = document == nullptr ? "null" : encoded(document);
    EXPECT_EQ(hex == "null", allocation.failed());
  });
}

// Each example is a fenced block whose first line says which octets the document stands for.
TEST(Json, examples_of_the_documentation_hold) {
  const std::string one_way = "reads as ";
  std::ifstream page(QUARN_SOURCE_DIR "/docs/json.md");
  int examples = 0;
  for (std::string line; std::getline(page, line);) {
    if (line != "```json") continue;
    ASSERT_TRUE(std::getline(page, line) && line.starts_with("// "));
    SCOPED_TRACE(line);
    std::string head = line.substr(3);
    std::string body;
    while (std::getline(page, line) && line != "```") body += line + "\n";
    const bool reads = head.starts_with(one_way);
    if (reads) head.erase(0, one_way.size());
    const std::string octets = head == "refused" ? "" : from_hex(head);
    const Json document = parse(body);
    EXPECT_EQ(encoded(document), octets.empty() ? "null" : to_hex(octets));
    EXPECT_EQ(rendered(octets) == printed(document), !reads && !octets.empty());
    examples++;
  }
  EXPECT_GE(examples, 15);
}

}  // namespace
}  // namespace quarn::test
