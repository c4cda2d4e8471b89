// JSON text into values: what is accepted, and where what is not is refused.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "quarn_util.h"
#include "tests/support/allocation.h"

namespace {

using quarn::test::Allocation;
using quarn::test::fail_each_allocation;

// The text printed again, or "0xCODE at OFFSET" for the one record of a refusal.
std::string reprinted(const std::string &text) {
  quarn_err_ctx *ctx = quarn_err_ctx_new();
  // A copy without a NUL behind it, so that the sanitizer sees reading past the end.
  quarn_data_blob *exact = quarn_data_blob_new(reinterpret_cast<const uint8_t *>(text.data()),
                                               static_cast<int64_t>(text.size()));
  const char *octets = text.empty() ? "" : reinterpret_cast<const char *>(exact->data);
  quarn_json *j = quarn_json_parse(octets, text.size(), ctx);
  std::string result;
  if (char *out = nullptr; quarn_json_print(j, 0, &out, nullptr) == 1) {
    result = out;
    quarn_free(out);
    EXPECT_EQ(quarn_err_ctx_count(ctx), 0u);
  } else if (quarn_err_ctx_count(ctx) == 1) {
    char line[64];
    std::snprintf(line, sizeof line, "0x%x at %d",
                  static_cast<unsigned>(quarn_err_ctx_get(ctx, 0)->code),
                  static_cast<int>(quarn_err_ctx_offset(ctx, 0)));
    EXPECT_STREQ(quarn_err_ctx_get(ctx, 0)->file, "QUARN_JSON");
    result = line;
  }
  quarn_json_free(j);
  quarn_data_blob_free(exact);
  quarn_err_ctx_free(ctx);
  return result;
}

TEST(JsonParse, text_that_is_json_is_accepted) {
  const std::pair<const char *, const char *> cases[] = {
      {" \t\r\n[ 1 , true ]\n", "[1,true]"},
      {"\"\\u00e9\\ud83d\\ude00\\/\"", "\"é😀/\""},
      {"\"\\u0000\\ud7ff\\ue000\"", "\"\\u0000\xed\x9f\xbf\xee\x80\x80\""},
      {"\"\xf4\x8f\xbf\xbf\"", "\"\xf4\x8f\xbf\xbf\""},
      {"{\"\":{\"\":0}}", "{\"\":{\"\":0}}"},
      {"-0", "-0"},
      {"1E+2", "100"},
      {"4294967296", "4294967296"},
      {"-9007199254740993", "-9007199254740992"},
      {"0.1000000000000000055511151231257827021181583404541015625", "0.1"},
      {"2.2250738585072011e-308", "2.225073858507201e-308"},
      {"1e-400", "0"},
      {"-1e-99999999999999999999", "-0"},
      {"0e-9", "0"},
      {"1.7976931348623157e308", "1.7976931348623157e+308"},
  };
  for (const auto &[text, expected] : cases) EXPECT_EQ(reprinted(text), expected) << text;
  EXPECT_EQ(reprinted("0." + std::string(400, '0') + "1e401"), "1");
  EXPECT_EQ(reprinted("0." + std::string(400, '0') + "1e50"), "0");
}

TEST(JsonParse, anything_else_is_refused_where_it_goes_wrong) {
  const std::pair<std::string, int> cases[] = {
      {"", 0},
      {"  ", 2},
      {"\xef\xbb\xbf[]", 0},            // byte order mark
      {"[] []", 3},                     // two values
      {std::string("[]\0", 3), 2},      // NUL after the value
      {std::string("\"a\0b\"", 5), 2},  // and within it
      {std::string("[1\0]", 4), 2},
      {"[1,]", 3},
      {"[1 2]", 3},
      {"[", 1},
      {"[1}", 2},
      {"{\"a\" 1}", 5},
      {"{\"a\":1,}", 7},
      {"{a:1}", 1},
      {"{\"a\":1", 6},
      {"tru", 3},
      {"nul1", 3},
      {"NaN", 0},
      {"'a'", 0},
      {"// c\n1", 0},
      {"01", 1},
      {"+1", 0},
      {".5", 0},
      {"1.", 2},
      {"1e", 2},
      {"-", 1},
      {"[1e400]", 1},
      {"[1.8e308]", 1},
      {"[-17976931348623159e292]", 1},
      {"\"abc", 4},
      {"\"a\nb\"", 2},  // control character
      {"\"a\\x\"", 2},
      {"\"\\u12g4\"", 1},
      {"\"ab\\ud800\"", 3},  // high surrogate alone
      {"\"ab\\ud800\\u0041\"", 3},
      {"\"ab\\udc00\"", 3},                     // low surrogate alone
      {"\"a\xc0\x80\"", 2},                     // overlong
      {"\"a\xed\xa0\x80\"", 2},                 // surrogate
      {"\"a\xf4\x90\x80\x80\"", 2},             // above U+10FFFF
      {"\"a\xe2\x82", 2},                       // cut off
      {"{\"a\":1,\"b\":2,\"\\u0061\":3}", 13},  // key there already
      {"[{\"aaaaaaaaaaaaaaaa\":{},\"aaaaaaaaaaaaaaaa\":{}}]", 24},
  };
  for (const auto &[text, offset] : cases) {
    EXPECT_EQ(reprinted(text), "0x10003 at " + std::to_string(offset)) << text;
  }
  EXPECT_EQ(quarn_json_parse(nullptr, 0, nullptr), nullptr);
}

// Strings are read in runs of plain octets: what ends a run is found wherever it stands in one.
TEST(JsonParse, octets_that_are_not_plain_are_found_wherever_they_stand) {
  for (const std::size_t before : {0u, 1u, 6u, 7u, 8u, 9u, 15u, 16u, 4095u, 4096u, 4097u}) {
    const std::string plain(before, 'x');
    const std::string offset = std::to_string(before + 1);
    for (const char *special : {"\\\"", "\\\\", "\\n", "é", "\x7f", "~", " ", "!", "#", "[", "]"}) {
      const std::string text = '"' + plain + special + "after it\"";
      EXPECT_EQ(reprinted(text), text);
    }
    for (const char *bad : {"\x1f", "\x80", "\xff", "\xc0\x80"}) {
      EXPECT_EQ(reprinted('"' + plain + bad + "after it\""), "0x10003 at " + offset);
    }
    EXPECT_EQ(reprinted('"' + plain), "0x10003 at " + offset);
  }
}

TEST(JsonParse, a_million_members_are_read_and_the_last_duplicate_is_found) {
  std::string text = "{";
  for (int i = 0; i < 1'000'000; i++) text += "\"key" + std::to_string(i) + "\":0,";
  const size_t end = text.size();
  text += "\"last\":true}";
  quarn_json *j = quarn_json_parse(text.data(), text.size(), nullptr);
  EXPECT_EQ(quarn_json_getobjectsize(j), 1'000'001u);
  EXPECT_EQ(quarn_json_istrue(quarn_json_getobjectvalue(j, "last", 4)), 1);
  quarn_json_free(j);
  text.replace(end, std::string::npos, "\"key500000\":0}");
  EXPECT_EQ(reprinted(text), "0x10003 at " + std::to_string(end));
}

TEST(JsonParse, lack_of_memory_is_reported_and_leaves_nothing) {
  std::string text = R"([1,-2.5e3,"text",{"a long key of a member":[[[null,true]]],"b":{}},{)";
  for (int i = 0; i < 20; i++) text += "\"key" + std::to_string(i) + "\":[],";
  text += "\"x\":\"" + std::string(5000, 'x') + "\"}]";
  fail_each_allocation([&](Allocation &allocation) {
    quarn_err_ctx *ctx = quarn_err_ctx_new();
    quarn_json *j = quarn_json_parse(text.data(), text.size(), ctx);
    EXPECT_TRUE(j != nullptr || allocation.failed());
    if (quarn_err_ctx_count(ctx) > 0) {
      EXPECT_EQ(quarn_err_ctx_get(ctx, 0)->code, QUARN_ERROR_NO_MEMORY);
    }
    quarn_json_free(j);
    quarn_err_ctx_free(ctx);
  });
}

}  // namespace
