// JSON text into values: what is accepted, and where what is not is refused.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "quarn_util.h"
#include "tests/support/allocation.h"
#include "tests/support/json.h"
#include "tests/support/streams.h"

namespace quarn::test {
namespace {

// The text printed again, or "0xCODE at OFFSET" for the one record of a refusal.
std::string reprinted(const std::string &text) {
  const Context ctx(quarn_err_ctx_new());
  // A copy without a NUL behind it, so that the sanitizer sees reading past the end.
  const std::vector<char> exact(text.begin(), text.end());
  const Json j(quarn_json_parse(exact.empty() ? "" : exact.data(), exact.size(), ctx.get()));
  if (j != nullptr) return printed(j);
  char line[64];
  std::snprintf(line, sizeof line, "%zu: 0x%x at %d", quarn_err_ctx_count(ctx.get()),
                static_cast<unsigned>(codes_in(ctx.get()).at(0)),
                static_cast<int>(quarn_err_ctx_offset(ctx.get(), 0)));
  return line;
}

std::string refused_at(std::size_t offset) {
  return "1: 0x10003 at " + std::to_string(offset);
}

TEST(JsonParse, text_that_is_json_is_accepted) {
  const std::pair<const char *, const char *> cases[] = {
      {" \t\r\n[ 1 , true ]\n", "[1,true]"},
      {"\"\\u00e9\\ud83d\\ude00\\/\"", "\"é😀/\""},
      {"\"\\u0000\\ud7ff\\ue000\"", "\"\\u0000\xed\x9f\xbf\xee\x80\x80\""},
      {"\"\xf4\x8f\xbf\xbf\"", "\"\xf4\x8f\xbf\xbf\""},
      {"{\"\":{\"\":0}}", "{\"\":{\"\":0}}"},
      {"4294967296", "4294967296"},
      {"-9007199254740993", "-9007199254740992"},
      {"0.1000000000000000055511151231257827021181583404541015625", "0.1"},
      {"2.2250738585072011e-308", "2.225073858507201e-308"},
      {"1e-400", "0"},
      {"-1e-99999999999999999999", "-0"},
      {"1.7976931348623157e308", "1.7976931348623157e+308"},
  };
  for (const auto &[text, expected] : cases) EXPECT_EQ(reprinted(text), expected) << text;
  EXPECT_EQ(reprinted("0." + std::string(400, '0') + "1e401"), "1");
  EXPECT_EQ(reprinted("0." + std::string(400, '0') + "1e50"), "0");
}

TEST(JsonParse, anything_else_is_refused_where_it_goes_wrong) {
  const std::pair<std::string, std::size_t> cases[] = {
      {"", 0},
      {"\xef\xbb\xbf[]", 0},
      {"[] []", 3},
      {std::string("[]\0", 3), 2},
      {std::string("[1\0]", 4), 2},
      {"[1,]", 3},
      {"[", 1},
      {"{\"a\" 1}", 5},
      {"{\"a\":1,}", 7},
      {"{\"a\":1", 6},
      {"tru", 3},
      {"'a'", 0},
      {"01", 1},
      {".5", 0},
      {"1e", 2},
      {"[1e400]", 1},
      {"[-17976931348623159e292]", 1},
      {"\"abc", 4},
      {"\"a\nb\"", 2},
      {"\"a\\x\"", 2},
      {"\"\\u12g4\"", 1},
      {"\"ab\\ud800\"", 3},
      {"\"ab\\ud800\\u0041\"", 3},
      {"\"ab\\udc00\"", 3},
      {"\"a\xe2\x82", 2},
      {"{\"a\":1,\"b\":2,\"\\u0061\":3}", 13},
      {"[{\"aaaaaaaaaaaaaaaa\":{},\"aaaaaaaaaaaaaaaa\":{}}]", 24}};
  for (const auto &[text, offset] : cases) {
    EXPECT_EQ(reprinted(text), refused_at(offset)) << text;
  }
}

// Strings are read in runs of plain octets: what ends a run is found wherever it stands in one.
TEST(JsonParse, octets_that_are_not_plain_are_found_wherever_they_stand) {
  for (const std::size_t before : {0u, 1u, 7u, 8u, 9u, 4095u, 4096u}) {
    const std::string plain(before, 'x');
    for (const char *special : {"\\\"", "\\\\", "\\n", "é", "\x7f", "~", " ", "!", "#", "[", "]"}) {
      const std::string text = '"' + plain + special + "after it\"";
      EXPECT_EQ(reprinted(text), text);
    }
    for (const char *bad : {"\x1f", "\x80", "\xff", "\xc0\x80"}) {
      EXPECT_EQ(reprinted('"' + plain + bad + "after it\""), refused_at(before + 1));
    }
    EXPECT_EQ(reprinted('"' + plain), refused_at(before + 1));
  }
}

TEST(JsonParse, a_million_members_are_read_and_the_last_duplicate_is_found) {
  std::string text = "{";
  for (int i = 0; i < 1'000'000; i++) text += "\"key" + std::to_string(i) + "\":0,";
  const size_t end = text.size();
  text += "\"last\":true}";
  const Json j = parse(text);
  EXPECT_EQ(quarn_json_getobjectsize(j.get()), 1'000'001u);
  EXPECT_EQ(quarn_json_istrue(quarn_json_getobjectvalue(j.get(), "last", 4)), 1);
  text.replace(end, std::string::npos, "\"key500000\":0}");
  EXPECT_EQ(reprinted(text), refused_at(end));
}

TEST(JsonParse, lack_of_memory_is_reported_and_leaves_nothing) {
  std::string text = R"([1,-2.5e3,"text",{"a long key of a member":[[[null,true]]],"b":{}},{)";
  for (int i = 0; i < 20; i++) text += "\"key" + std::to_string(i) + "\":[],";
  text += "\"x\":\"" + std::string(5000, 'x') + "\"}]";
  fail_each_allocation([&](Allocation &allocation) {
    const Context ctx(quarn_err_ctx_new());
    const Json j(quarn_json_parse(text.data(), text.size(), ctx.get()));
    EXPECT_TRUE(j != nullptr || allocation.failed());
    for (const int code : codes_in(ctx.get())) EXPECT_EQ(code, QUARN_ERROR_NO_MEMORY);
  });
}

}  // namespace
}  // namespace quarn::test
