// JSON values: the tree, its limits, the text printed from it, and which text is read.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

#include "quarn_util.h"
#include "tests/support/allocation.h"
#include "tests/support/json.h"
#include "tests/support/streams.h"
#include "tests/support/thread.h"

namespace quarn::test {
namespace {

int add(quarn_json *object, const std::string &key, quarn_json *value) {
  return quarn_json_addobjectitem(object, key.data(), static_cast<uint32_t>(key.size()), value);
}

quarn_json *find(const quarn_json *object, const std::string &key) {
  return quarn_json_getobjectvalue(object, key.data(), static_cast<uint32_t>(key.size()));
}

// The text printed again, or where it is refused.
std::string reprinted(const std::string &text) {
  const Context ctx(quarn_err_ctx_new());
  // A copy without a NUL behind it, so that the sanitizer sees reading past the end.
  const std::vector<char> exact(text.begin(), text.end());
  const Json j(quarn_json_parse(exact.empty() ? "" : exact.data(), exact.size(), ctx.get()));
  if (j != nullptr) return printed(j);
  EXPECT_EQ(codes_in(ctx.get()), std::vector<int>{QUARN_ERROR_FORMAT});
  return "refused at " + std::to_string(quarn_err_ctx_offset(ctx.get(), 0));
}

TEST(Json, values_of_one_kind_are_nothing_to_the_getters_of_another) {
  for (const char *text : {"null", "true", "2.5", "\"abc\"", "[]", "{}"}) {
    SCOPED_TRACE(text);
    const Json value = parse(text);
    quarn_json *j = value.get();
    const int kind = quarn_json_gettype(j);
    EXPECT_EQ(quarn_json_istrue(j), kind == QUARN_JSON_BOOLEAN);
    EXPECT_EQ(quarn_json_getnumber(j), kind == QUARN_JSON_NUMBER ? 2.5 : 0);
    EXPECT_EQ(quarn_json_getstringlength(j), kind == QUARN_JSON_STRING ? 3u : 0u);
    EXPECT_EQ(quarn_json_getarrayitem(j, 0), nullptr);
    EXPECT_EQ(quarn_json_getobjectitem(j, 0, nullptr, nullptr), nullptr);
    EXPECT_EQ(find(j, "a"), nullptr);
    quarn_json *item = quarn_json_newnull();
    EXPECT_EQ(quarn_json_addarrayitem(j, item), kind == QUARN_JSON_ARRAY);
    EXPECT_EQ(add(j, "a", item), kind == QUARN_JSON_OBJECT);
    quarn_json_free(item);  // left alone where it was added
  }
}

TEST(Json, refuses_what_json_text_cannot_hold) {
  EXPECT_EQ(quarn_json_newstring("\xc0\x80", 2), nullptr);
  for (const double value : {HUGE_VAL, -HUGE_VAL, std::nan("")}) {
    EXPECT_EQ(quarn_json_newnumber(value), nullptr);
  }
  const Json object = parse(R"({"a":2})");
  for (const char *key : {"\xff", "a"}) EXPECT_EQ(add(object.get(), key, parse("1").get()), 0);
}

TEST(Json, a_value_has_one_parent_and_never_lies_below_itself) {
  const Json owner(quarn_json_newobject());
  quarn_json *top = owner.get();
  quarn_json *middle = quarn_json_newarray();
  quarn_json *low = quarn_json_newobject();
  ASSERT_EQ(add(low, "leaf", quarn_json_newnull()), 1);
  ASSERT_EQ(quarn_json_addarrayitem(middle, low), 1);
  ASSERT_EQ(add(top, "middle", middle), 1);
  for (quarn_json *j : {top, middle, low}) {
    EXPECT_EQ(add(top, "again", j), 0);
    EXPECT_EQ(add(low, "again", j), 0);
    EXPECT_EQ(quarn_json_addarrayitem(middle, j), 0);
  }
  quarn_json_free(low);  // has a parent: left alone
  EXPECT_EQ(printed(top), R"({"middle":[{"leaf":null}]})");
}

// Containers that are not empty go into the deepest one, the dearest order for the cycle test.
TEST(Json, a_million_levels_are_built_printed_and_freed_on_a_small_stack) {
  on_small_stack([] {
    quarn_json *root = quarn_json_newarray();
    quarn_json *lowest = root;
    for (int i = 1; i < 1'000'000; i++) {
      quarn_json *next = quarn_json_newarray();
      EXPECT_EQ(quarn_json_addarrayitem(next, quarn_json_newnull()), 1);
      EXPECT_EQ(quarn_json_addarrayitem(lowest, next), 1);
      lowest = next;
    }
    EXPECT_EQ(quarn_json_addarrayitem(lowest, root), 0);
    EXPECT_GT(printed(root).size(), 6'000'000u);
    quarn_json_free(root);
  });
}

TEST(Json, lack_of_memory_leaves_values_with_their_owner) {
  const std::string text = R"([{"a long key of a member":[[]]},")" + std::string(5000, 'x') + "\"]";
  fail_each_allocation([&](Allocation &allocation) {
    const Context ctx(quarn_err_ctx_new());
    const Json parsed(quarn_json_parse(text.data(), text.size(), ctx.get()));
    EXPECT_TRUE(parsed != nullptr || allocation.failed());
    for (const int code : codes_in(ctx.get())) EXPECT_EQ(code, QUARN_ERROR_NO_MEMORY);
    const Json object(quarn_json_newobject());
    for (uint32_t i = 0; i < 40; i++) {
      quarn_json *value = quarn_json_newnumber(i);
      const uint32_t before = quarn_json_getobjectsize(object.get());
      if (add(object.get(), std::string(40, 'k') + std::to_string(i), value) == 1) continue;
      EXPECT_TRUE(allocation.failed());
      EXPECT_EQ(quarn_json_getobjectsize(object.get()), before);
      quarn_json_free(value);
    }
    EXPECT_TRUE(printed(object.get(), 100).size() > 4000 || allocation.failed());
    SlowSink sink;
    const Stream stream = sink.stream();
    const int result = quarn_json_write(object.get(), 0, stream.get(), nullptr);
    EXPECT_TRUE(result == 1 || allocation.failed());
  });
}

// The texts are those of Python's json.dumps(), with ensure_ascii=False.
TEST(JsonPrint, compact_and_indented_text_is_that_of_other_printers) {
  const char *text = R"({"a":1,"empty":{},"none":[],"list":[true,{"b":"\"\\/\b\u0000."}]})";
  const Json j = parse(text);
  EXPECT_EQ(printed(j), text);
  EXPECT_EQ(printed(j.get(), 2),
            "{\n  \"a\": 1,\n  \"empty\": {},\n  \"none\": [],\n  \"list\": [\n    true,\n    {\n"
            "      \"b\": \"\\\"\\\\/\\b\\u0000.\"\n    }\n  ]\n}");
  EXPECT_EQ(printed(j.get(), -1), "null");
}

// Each octet at each place of the words in which text is scanned, and across the longest run.
TEST(JsonPrint, every_character_is_escaped_where_it_must_be) {
  for (int c = 0; c < 128; c++) {
    char escaped[8] = {static_cast<char>(c)};
    const size_t short_form = std::string("\b\t\n\f\r\"\\").find(static_cast<char>(c));
    if (short_form != std::string::npos) {
      std::snprintf(escaped, sizeof escaped, "\\%c", "btnfr\"\\"[short_form]);
    } else if (c < 0x20) {
      std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(c));
    }
    for (const size_t before : {0u, 3u, 7u, 8u, 1023u, 1024u}) {
      const std::string run(before, 'x');
      const std::string text = run + static_cast<char>(c) + "xxxxxxxx";
      const Json j(quarn_json_newstring(text.data(), static_cast<uint32_t>(text.size())));
      ASSERT_EQ(printed(j), '"' + run + escaped + "xxxxxxxx\"");
    }
  }
}

TEST(JsonWrite, text_goes_out_in_bounded_pieces_and_a_failure_is_recorded_once) {
  std::string text = "[0";
  for (int i = 0; i < 50; i++) text += ",\"" + std::string(9000, 'x') + R"(","\n\n")";
  const Json j = parse(text + "]");
  for (const int pieces : {0, 1, 5, 1'000'000}) {
    SlowSink sink;
    sink.fail_after(pieces);
    const Stream stream = sink.stream();
    const Context ctx(quarn_err_ctx_new());
    const bool fails = pieces < 1'000'000;
    EXPECT_EQ(quarn_json_write(j.get(), 4, stream.get(), ctx.get()), fails ? 0 : 1);
    EXPECT_EQ(quarn_err_ctx_count(ctx.get()), fails ? 1u : 0u);
    EXPECT_LE(static_cast<int64_t>(sink.octets().size()), 8192 * sink.calls());
    const std::string written(sink.octets().begin(), sink.octets().end());
    EXPECT_EQ(written == printed(j.get(), 4), !fails);
  }
}

TEST(JsonParse, text_that_is_json_is_accepted) {
  const std::pair<const char *, const char *> cases[] = {
      {" \t\r\n[ 1 , true ]\n", "[1,true]"},
      {"\"\\u00e9\\ud83d\\ude00\\/\"", "\"é😀/\""},
      {"\"\\u0000\\ud7ff\\ue000\"", "\"\\u0000\xed\x9f\xbf\xee\x80\x80\""},
      {"\"\xf4\x8f\xbf\xbf\"", "\"\xf4\x8f\xbf\xbf\""}};
  for (const auto &[text, expected] : cases) EXPECT_EQ(reprinted(text), expected) << text;
  std::istringstream numbers(
      "0 0  -0.0 -0  4294967296 4294967296  -2147483649 -2147483649  1e22 1e+22  1e-400 0 "
      "-9007199254740993 -9007199254740992  5e-324 5e-324  -1e-99999999999999999999 -0 "
      "0.1000000000000000055511151231257827021181583404541015625 0.1 "
      "2.2250738585072011e-308 2.225073858507201e-308 "
      "1.7976931348623157e308 1.7976931348623157e+308");
  for (std::string text, expected; numbers >> text >> expected;) {
    EXPECT_EQ(reprinted(text), expected);
  }
  EXPECT_EQ(reprinted("0." + std::string(400, '0') + "1e401"), "1");
  EXPECT_EQ(reprinted("0." + std::string(400, '0') + "1e50"), "0");
}

TEST(JsonParse, anything_else_is_refused_where_it_goes_wrong) {
  std::istringstream cases(
      R"(3 [1,]  1 [  7 {"a":1,}  6 {"a":1  4 {"a"1}  3 tru  0 'a'  1 01  0 .5  2 1e  1 [1e400]
         1 [-17976931348623159e292]  4 "abc  2 "a\x"  1 "\u12g4"  3 "ab\ud800"  3 "ab\ud800\u0041"
         3 "ab\udc00"  13 {"a":1,"b":2,"\u0061":3}
         24 [{"aaaaaaaaaaaaaaaa":{},"aaaaaaaaaaaaaaaa":{}}])");
  std::string text;
  for (std::size_t offset = 0; cases >> offset >> text;) {
    EXPECT_EQ(reprinted(text), "refused at " + std::to_string(offset)) << text;
  }
  EXPECT_EQ(reprinted(""), "refused at 0");
  EXPECT_EQ(reprinted("\xef\xbb\xbf[]"), "refused at 0");
  EXPECT_EQ(reprinted("[] []"), "refused at 3");
  EXPECT_EQ(reprinted(std::string("[]\0", 3)), "refused at 2");
  EXPECT_EQ(reprinted(std::string("[1\0]", 4)), "refused at 2");
  EXPECT_EQ(reprinted("\"a\xe2\x82"), "refused at 2");
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
      EXPECT_EQ(reprinted('"' + plain + bad + "after it\""),
                "refused at " + std::to_string(before + 1));
    }
    EXPECT_EQ(reprinted('"' + plain), "refused at " + std::to_string(before + 1));
  }
}

// Long keys have blocks of their own.
TEST(JsonParse, a_million_members_keep_their_order_and_the_last_duplicate_is_found) {
  constexpr uint32_t kMany = 1'000'000;
  const auto key_of = [](uint32_t i) { return std::string(i % 24, 'k') + std::to_string(i); };
  std::string text = "{";
  for (uint32_t i = 0; i < kMany; i++) text += '"' + key_of(i) + "\":" + std::to_string(i) + ',';
  const size_t end = text.size();
  const Allocation allocation;
  const Json j = parse(text + "\"last\":0}");
  // With 16 octets a block for the allocator's own needs.
  const auto blocks = static_cast<size_t>(allocation.live_blocks());
  EXPECT_LE(allocation.live_octets() + 16 * blocks, 96u * kMany);
  EXPECT_EQ(quarn_json_getobjectsize(j.get()), kMany + 1);
  for (uint32_t i = 0; i < kMany; i += 997) {
    const char *key = nullptr;
    uint32_t length = 0;
    EXPECT_EQ(quarn_json_getnumber(quarn_json_getobjectitem(j.get(), i, &key, &length)), i);
    EXPECT_EQ(std::string(key, length), key_of(i));
    EXPECT_EQ(quarn_json_getnumber(find(j.get(), key_of(i))), i);
  }
  EXPECT_EQ(reprinted(text + '"' + key_of(kMany / 2) + "\":0}"),
            "refused at " + std::to_string(end));
}

}  // namespace
}  // namespace quarn::test
