// JSON values: the tree, its limits, and the text printed from it.
#include <gtest/gtest.h>
#include <pthread.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

#include "quarn_util.h"
#include "tests/support/allocation.h"

namespace {

using quarn::test::Allocation;
using quarn::test::fail_each_allocation;

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

std::string printed(const quarn_json *j, int indent = 0) {
  char *text = nullptr;
  size_t length = 0;
  if (quarn_json_print(j, indent, &text, &length) != 1) return "failed";
  EXPECT_EQ(text[length], '\0');
  const std::string result(text, length);
  quarn_free(text);
  return result;
}

std::string printed_and_freed(quarn_json *j) {
  const std::string text = printed(j);
  quarn_json_free(j);
  return text;
}

void on_small_stack(void *(*run)(void *)) {
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, 256 * 1024), 0);
  pthread_t thread;
  ASSERT_EQ(pthread_create(&thread, &attributes, run, nullptr), 0);
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
}

TEST(Json, values_of_one_kind_are_nothing_to_the_getters_of_another) {
  quarn_json *values[] = {nullptr,
                          quarn_json_newnull(),
                          quarn_json_newboolean(7),
                          quarn_json_newnumber(2.5),
                          string(std::string("a\0b", 3)),
                          quarn_json_newarray(),
                          quarn_json_newobject()};
  for (int kind = 0; kind <= QUARN_JSON_OBJECT; kind++) {
    quarn_json *j = values[kind];
    quarn_json *item = quarn_json_newnull();
    EXPECT_EQ(quarn_json_gettype(j), kind);
    EXPECT_EQ(quarn_json_istrue(j), kind == QUARN_JSON_BOOLEAN);
    EXPECT_EQ(quarn_json_getnumber(j), kind == QUARN_JSON_NUMBER ? 2.5 : 0);
    EXPECT_EQ(quarn_json_getstringlength(j), kind == QUARN_JSON_STRING ? 3u : 0u);
    EXPECT_EQ(quarn_json_getstring(j) != nullptr, kind == QUARN_JSON_STRING);
    EXPECT_EQ(quarn_json_getarrayitem(j, 0), nullptr);
    EXPECT_EQ(quarn_json_getobjectitem(j, 0, nullptr, nullptr), nullptr);
    EXPECT_EQ(find(j, "a"), nullptr);
    const bool added = quarn_json_addarrayitem(j, item) == 1 || add(j, "a", item) == 1;
    EXPECT_EQ(added, kind >= QUARN_JSON_ARRAY);
    EXPECT_EQ(quarn_json_getarraysize(j), kind == QUARN_JSON_ARRAY ? 1u : 0u);
    EXPECT_EQ(quarn_json_getobjectsize(j), kind == QUARN_JSON_OBJECT ? 1u : 0u);
    quarn_json_free(item);  // left alone where it was added
    quarn_json_free(j);
  }
}

TEST(Json, refuses_what_json_text_cannot_hold) {
  EXPECT_EQ(quarn_json_newstring(nullptr, 0), nullptr);
  EXPECT_EQ(quarn_json_newstring("\xc0\x80", 2), nullptr);
  for (const double value : {INFINITY, -INFINITY, NAN}) {
    EXPECT_EQ(quarn_json_newnumber(value), nullptr);
  }
  quarn_json *object = quarn_json_newobject();
  quarn_json *value = quarn_json_newnull();
  EXPECT_EQ(add(object, "\xff", value), 0);
  EXPECT_EQ(quarn_json_addobjectitem(object, nullptr, 0, value), 0);
  EXPECT_EQ(add(object, "a", nullptr), 0);
  quarn_json_free(value);
  EXPECT_EQ(printed_and_freed(object), "{}");
}

// Around the sizes at which a key needs its own block and an object gets an index of its keys.
TEST(Json, members_keep_their_order_and_every_key_is_found_once) {
  quarn_json *object = quarn_json_newobject();
  quarn_json *extra = quarn_json_newnull();
  const auto key_of = [](int i) {
    return std::string(static_cast<size_t>(i % 24), '\0') + "k" + std::to_string(i);
  };
  for (int i = 0; i < 200; i++) {
    ASSERT_EQ(find(object, key_of(i)), nullptr);
    ASSERT_EQ(add(object, key_of(i), quarn_json_newnumber(i)), 1);
    for (const int old : {0, i / 2, i}) {
      ASSERT_EQ(quarn_json_getnumber(find(object, key_of(old))), old);
      ASSERT_EQ(add(object, key_of(old), extra), 0);
    }
  }
  ASSERT_EQ(quarn_json_getobjectsize(object), 200u);
  for (uint32_t i = 0; i < 200; i++) {
    const char *key = nullptr;
    uint32_t length = 0;
    EXPECT_EQ(quarn_json_getnumber(quarn_json_getobjectitem(object, i, &key, &length)), i);
    EXPECT_EQ(std::string(key, length), key_of(static_cast<int>(i)));
  }
  quarn_json_free(extra);
  quarn_json_free(object);
}

TEST(Json, a_value_has_one_parent_and_never_lies_below_itself) {
  quarn_json *top = quarn_json_newobject();
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
  EXPECT_EQ(printed_and_freed(top), R"({"middle":[{"leaf":null}]})");
}

// Containers that are not empty go into the deepest one, the dearest order for the cycle test.
TEST(Json, a_million_levels_are_built_printed_parsed_and_freed_on_a_small_stack) {
  on_small_stack([](void *) -> void * {
    quarn_json *root = quarn_json_newarray();
    quarn_json *lowest = root;
    for (int i = 1; i < kDeep; i++) {
      quarn_json *next = quarn_json_newarray();
      EXPECT_EQ(quarn_json_addarrayitem(next, quarn_json_newnull()), 1);
      EXPECT_EQ(quarn_json_addarrayitem(lowest, next), 1);
      lowest = next;
    }
    EXPECT_EQ(quarn_json_addarrayitem(lowest, root), 0);
    quarn_json *upper = root;
    for (int i = 0; i < kDeep; i++) {
      quarn_json *outer = quarn_json_newobject();
      EXPECT_EQ(add(outer, "a", upper), 1);
      upper = outer;
    }
    const std::string text = printed(upper);
    EXPECT_EQ(text.size(), 6u * kDeep + 2 + 7u * (kDeep - 1) - 1);  // {"a":} [] [null,] [null]
    quarn_json_free(upper);
    quarn_json *parsed = quarn_json_parse(text.data(), text.size(), nullptr);
    EXPECT_NE(parsed, nullptr);
    EXPECT_TRUE(printed(parsed) == text);
    quarn_json_free(parsed);
    return nullptr;
  });
}

// A thousand values in an array; 16 octets a block are reckoned for the allocator's own needs.
TEST(Json, small_values_cost_little_memory) {
  const auto cost = [](const std::string &value) {
    std::string text = "[" + value;
    for (int i = 1; i < 1000; i++) text += "," + value;
    text += "]";
    Allocation allocation;
    quarn_json *j = quarn_json_parse(text.data(), text.size(), nullptr);
    const size_t octets =
        allocation.live_octets() + 16 * static_cast<size_t>(allocation.live_blocks());
    quarn_json_free(j);
    return octets / 1000;
  };
  EXPECT_LE(cost(R"({"type":"NULL"})"), 128u);
  EXPECT_LE(cost(R"({"type":"INTEGER","value":5})"), 176u);
}

TEST(Json, lack_of_memory_leaves_values_with_their_owner) {
  const std::string long_key(40, 'k');
  fail_each_allocation([&](Allocation &allocation) {
    quarn_json *object = quarn_json_newobject();
    for (int i = 0; i < 40; i++) {
      quarn_json *value = i % 2 == 0 ? string("text") : quarn_json_newnumber(i);
      const uint32_t before = quarn_json_getobjectsize(object);
      if (add(object, long_key + std::to_string(i), value) != 1) {
        EXPECT_TRUE(allocation.failed());
        EXPECT_EQ(quarn_json_getobjectsize(object), before);
        quarn_json_free(value);
      }
    }
    const std::string text = printed(object, 100);
    EXPECT_TRUE(allocation.failed() || text.size() > 4000);
    quarn_json_free(object);
  });
}

// The texts are those of Python's json.dumps(), with ensure_ascii=False.
TEST(JsonPrint, compact_and_indented_text_is_that_of_other_printers) {
  const std::string member = R"("\"\\/\b\f\n\r\t\u0001\u001f)"
                             "\x7f é€😀"
                             R"(\u0000.")";
  const std::string text =
      R"({"a":1,"empty":{},"none":[],"list":[true,false,null,{"b":"c"}],"text":)" + member + "}";
  quarn_json *j = quarn_json_parse(text.data(), text.size(), nullptr);
  EXPECT_EQ(printed(j), text);
  const std::string lines =
      R"({
  "a": 1,
  "empty": {},
  "none": [],
  "list": [
    true,
    false,
    null,
    {
      "b": "c"
    }
  ],
  "text": )" +
      member + "\n}";
  EXPECT_EQ(printed(j, 2), lines);
  EXPECT_EQ(printed(find(j, "list")), R"([true,false,null,{"b":"c"}])");
  quarn_json_free(j);
}

// Each octet at each place of the words in which text is scanned, and across the longest run.
TEST(JsonPrint, every_character_is_escaped_where_it_must_be) {
  for (int c = 0; c < 128; c++) {
    for (const size_t before : {0u, 3u, 7u, 8u, 1023u, 1024u}) {
      const std::string text = std::string(before, 'x') + static_cast<char>(c) + "xxxxxxxx";
      char escaped[8] = {static_cast<char>(c)};
      if (c < 0x20) std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(c));
      if (c == '"' || c == '\\') std::snprintf(escaped, sizeof escaped, "\\%c", c);
      const size_t short_form = std::string("\b\t\n\f\r").find(static_cast<char>(c));
      if (short_form != std::string::npos) {
        std::snprintf(escaped, sizeof escaped, "\\%c", "btnfr"[short_form]);
      }
      std::string expected(1, '"');
      expected.append(before, 'x').append(escaped).append("xxxxxxxx\"");
      ASSERT_EQ(printed_and_freed(string(text)), expected);
    }
  }
}

TEST(JsonPrint, whole_numbers_have_digits_only_and_others_read_back_the_same) {
  const std::pair<double, const char *> cases[] = {
      {0, "0"},
      {-0.0, "-0"},
      {100000, "100000"},
      {-2147483649.0, "-2147483649"},
      {9007199254740992, "9007199254740992"},
      {-9007199254740992, "-9007199254740992"},
      {0.1, "0.1"},
      {-2.5, "-2.5"},
      {1e22, "1e+22"},
      {5e-324, "5e-324"},
      {1.7976931348623157e308, "1.7976931348623157e+308"},
  };
  for (const auto &[value, text] : cases) {
    EXPECT_EQ(printed_and_freed(quarn_json_newnumber(value)), text);
    quarn_json *parsed = quarn_json_parse(text, std::string(text).size(), nullptr);
    EXPECT_EQ(quarn_json_getnumber(parsed), value) << text;
    EXPECT_EQ(std::signbit(quarn_json_getnumber(parsed)), std::signbit(value)) << text;
    quarn_json_free(parsed);
  }
}

TEST(JsonPrint, indentation_stops_growing_at_64_levels) {
  const std::string text = std::string(70, '[') + std::string(70, ']');
  quarn_json *j = quarn_json_parse(text.data(), text.size(), nullptr);
  const std::string lines = printed(j, 3);
  const std::string blanks(64 * 3, ' ');
  EXPECT_NE(lines.find("\n" + blanks + "[]\n"), std::string::npos);
  EXPECT_EQ(lines.find(blanks + " "), std::string::npos);
  EXPECT_EQ(printed(j, -1), "failed");
  quarn_json_free(j);
}

// A stream that keeps what is written and fails after a number of pieces.
struct Target {
  std::string text;
  int64_t largest = 0;
  int left;
};

quarn_stream *stream_to(Target *target) {
  quarn_stream_callbacks callbacks{};
  callbacks.write = [](void *user, const void *buffer, int64_t count) {
    auto *to = static_cast<Target *>(user);
    if (to->left-- == 0) return 0;
    to->text.append(static_cast<const char *>(buffer), static_cast<size_t>(count));
    to->largest = std::max(to->largest, count);
    return 1;
  };
  return quarn_stream_new_callback(&callbacks, target, nullptr);
}

TEST(JsonWrite, text_goes_out_in_bounded_pieces_and_a_failure_is_recorded_once) {
  quarn_json *j = quarn_json_newarray();
  for (int i = 0; i < 100; i++) quarn_json_addarrayitem(j, string(std::string(5000, '\n')));
  for (const int pieces : {0, 1, 5, 1'000'000}) {
    Target target{"", 0, pieces};
    quarn_stream *stream = stream_to(&target);
    quarn_err_ctx *ctx = quarn_err_ctx_new();
    const bool fails = pieces < 1'000'000;
    EXPECT_EQ(quarn_json_write(j, 4, stream, ctx) == 1, !fails);
    EXPECT_EQ(quarn_err_ctx_count(ctx), fails ? 1u : 0u);
    EXPECT_LE(target.largest, 8192);
    if (!fails) {
      EXPECT_EQ(target.text, printed(j, 4));
    }
    quarn_err_ctx_free(ctx);
    quarn_stream_free(stream);
  }
  EXPECT_EQ(quarn_json_write(j, 0, nullptr, nullptr), 0);
  quarn_json_free(j);
}

TEST(JsonWrite, survives_lack_of_memory) {
  fail_each_allocation([](Allocation &allocation) {
    quarn_err_ctx *ctx = quarn_err_ctx_new();
    quarn_json *j = quarn_json_parse("[1,2]", 5, nullptr);
    quarn_stream *stream = quarn_stream_new_mem(0, nullptr);
    EXPECT_TRUE(quarn_json_write(j, 0, stream, ctx) == 1 || allocation.failed());
    quarn_stream_free(stream);
    quarn_json_free(j);
    quarn_err_ctx_free(ctx);
  });
}

}  // namespace
