// JSON values: the tree, its limits, and the text printed from it.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <string>

#include "quarn_util.h"
#include "tests/support/allocation.h"
#include "tests/support/json.h"
#include "tests/support/streams.h"
#include "tests/support/thread.h"

namespace quarn::test {
namespace {

constexpr int kDeep = 1'000'000;

quarn_json *string(const std::string &text) {
  return quarn_json_newstring(text.data(), static_cast<uint32_t>(text.size()));
}

int add(quarn_json *object, const std::string &key, quarn_json *value) {
  return quarn_json_addobjectitem(object, key.data(), static_cast<uint32_t>(key.size()), value);
}

quarn_json *find(const quarn_json *object, const std::string &key) {
  return quarn_json_getobjectvalue(object, key.data(), static_cast<uint32_t>(key.size()));
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
  const Json object = parse("{}");
  EXPECT_EQ(add(object.get(), "\xff", parse("1").get()), 0);
}

// Around the sizes at which a key needs its own block and an object gets an index of its keys.
TEST(Json, members_keep_their_order_and_every_key_is_found_once) {
  const Json owner(quarn_json_newobject());
  const Json extra(quarn_json_newnull());
  quarn_json *object = owner.get();
  const auto key_of = [](uint32_t i) {
    return std::string(i % 24, '\0') + "k" + std::to_string(i);
  };
  for (uint32_t i = 0; i < 200; i++) {
    ASSERT_EQ(find(object, key_of(i)), nullptr);
    ASSERT_EQ(add(object, key_of(i), quarn_json_newnumber(i)), 1);
    for (const uint32_t old : {0u, i / 2, i}) {
      ASSERT_EQ(quarn_json_getnumber(find(object, key_of(old))), old);
      ASSERT_EQ(add(object, key_of(old), extra.get()), 0);
    }
  }
  for (uint32_t i = 0; i < 200; i++) {
    const char *key = nullptr;
    uint32_t length = 0;
    EXPECT_EQ(quarn_json_getnumber(quarn_json_getobjectitem(object, i, &key, &length)), i);
    EXPECT_EQ(std::string(key, length), key_of(i));
  }
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
TEST(Json, a_million_levels_are_built_printed_parsed_and_freed_on_a_small_stack) {
  on_small_stack([] {
    quarn_json *root = quarn_json_newarray();
    quarn_json *lowest = root;
    for (int i = 1; i < kDeep; i++) {
      quarn_json *next = quarn_json_newarray();
      EXPECT_EQ(quarn_json_addarrayitem(next, quarn_json_newnull()), 1);
      EXPECT_EQ(quarn_json_addarrayitem(lowest, next), 1);
      lowest = next;
    }
    EXPECT_EQ(quarn_json_addarrayitem(lowest, root), 0);
    for (int i = 0; i < kDeep; i++) {
      quarn_json *outer = quarn_json_newobject();
      EXPECT_EQ(add(outer, "a", root), 1);
      root = outer;
    }
    const std::string text = printed(root);
    EXPECT_EQ(text.size(), 6u * kDeep + 2 + 7u * (kDeep - 1) - 1);  // {"a":} [] [null,] [null]
    quarn_json_free(root);
    EXPECT_TRUE(printed(parse(text)) == text);
  });
}

// A thousand values in an array; 16 octets a block are reckoned for the allocator's own needs.
TEST(Json, small_values_cost_little_memory) {
  std::string text = "[0";
  for (int i = 0; i < 1000; i++) text += R"(,{"type":"INTEGER","value":5})";
  text += "]";
  const Allocation allocation;
  const Json j = parse(text);
  EXPECT_LE(allocation.live_octets() + 16 * static_cast<size_t>(allocation.live_blocks()), 176000u);
}

TEST(Json, lack_of_memory_leaves_values_with_their_owner) {
  fail_each_allocation([&](Allocation &allocation) {
    const Json object(quarn_json_newobject());
    for (uint32_t i = 0; i < 40; i++) {
      quarn_json *value = i % 2 == 0 ? string("text") : quarn_json_newnumber(i);
      const uint32_t before = quarn_json_getobjectsize(object.get());
      if (add(object.get(), std::string(40, 'k') + std::to_string(i), value) == 1) continue;
      EXPECT_TRUE(allocation.failed());
      EXPECT_EQ(quarn_json_getobjectsize(object.get()), before);
      quarn_json_free(value);
    }
    EXPECT_TRUE(printed(object.get(), 100).size() > 4000 || allocation.failed());
    const Stream stream(quarn_stream_new_mem(0, nullptr));
    EXPECT_TRUE(quarn_json_write(object.get(), 0, stream.get(), nullptr) == 1 ||
                allocation.failed());
  });
}

// The texts are those of Python's json.dumps(), with ensure_ascii=False.
TEST(JsonPrint, compact_and_indented_text_is_that_of_other_printers) {
  const std::string text =
      R"({"a":1,"empty":{},"none":[],"list":[true,{"b":"\"\\/\b\f\n\r\t\u0001 é€😀\u0000."}]})";
  const Json j = parse(text);
  EXPECT_EQ(printed(j), text);
  EXPECT_EQ(printed(j.get(), 2), R"({
  "a": 1,
  "empty": {},
  "none": [],
  "list": [
    true,
    {
      "b": "\"\\/\b\f\n\r\t\u0001 é€😀\u0000."
    }
  ]
})");
}

// Each octet at each place of the words in which text is scanned, and across the longest run.
TEST(JsonPrint, every_character_is_escaped_where_it_must_be) {
  for (int c = 0; c < 128; c++) {
    char escaped[8] = {static_cast<char>(c)};
    if (c < 0x20) std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(c));
    const size_t short_form = std::string("\b\t\n\f\r\"\\").find(static_cast<char>(c));
    if (short_form != std::string::npos) {
      std::snprintf(escaped, sizeof escaped, "\\%c", "btnfr\"\\"[short_form]);
    }
    for (const size_t before : {0u, 3u, 7u, 8u, 1023u, 1024u}) {
      const std::string run(before, 'x');
      const Json j(string(run + static_cast<char>(c) + "xxxxxxxx"));
      ASSERT_EQ(printed(j), '"' + run + escaped + "xxxxxxxx\"");
    }
  }
}

TEST(JsonPrint, whole_numbers_have_digits_only_and_others_read_back_the_same) {
  const std::pair<double, const char *> cases[] = {
      {0, "0"},
      {-0.0, "-0"},
      {-2147483649.0, "-2147483649"},
      {-9007199254740992, "-9007199254740992"},
      {0.1, "0.1"},
      {1e22, "1e+22"},
      {5e-324, "5e-324"},
      {1.7976931348623157e308, "1.7976931348623157e+308"},
  };
  for (const auto &[value, text] : cases) {
    EXPECT_EQ(printed(Json(quarn_json_newnumber(value))), text);
    const double parsed = quarn_json_getnumber(parse(text).get());
    EXPECT_EQ(parsed, value);
    EXPECT_EQ(std::signbit(parsed), std::signbit(value)) << text;
  }
}

TEST(JsonPrint, indentation_stops_growing_at_64_levels) {
  const Json j = parse(std::string(70, '[') + std::string(70, ']'));
  const std::string lines = printed(j.get(), 3);
  const std::string blanks(64 * 3, ' ');
  EXPECT_NE(lines.find("\n" + blanks + "[]\n"), std::string::npos);
  EXPECT_EQ(lines.find(blanks + " "), std::string::npos);
  EXPECT_EQ(printed(j.get(), -1), "null");
}

TEST(JsonWrite, text_goes_out_in_bounded_pieces_and_a_failure_is_recorded_once) {
  const Json j(quarn_json_newarray());
  for (int i = 0; i < 100; i++) quarn_json_addarrayitem(j.get(), string(std::string(5000, '\n')));
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

}  // namespace
}  // namespace quarn::test
