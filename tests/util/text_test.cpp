// Hexadecimal and base64. Expected texts of base64 are python3's.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "quarn_util.h"
#include "tests/support/allocation.h"
#include "tests/support/handles.h"

namespace {

using quarn::test::Allocation;
using quarn::test::fail_each_allocation;
using quarn::test::Memory;
using quarn::test::octets_of;
using quarn::test::Records;

constexpr int kStrict = 1;
constexpr int kLenient = 2;

// bytes((i * i + 7 * i) % 256 for i in range(count))
std::string sample(int count) {
  std::string octets;
  for (int i = 0; i < count; i++) octets.push_back(static_cast<char>((i * i + 7 * i) % 256));
  return octets;
}

const char *const kSample100 =
    "AAgSHiw8TmJ4kKrG5AQmSnCYwu4cTH6y6CBaltQUVprgKHK+DFyuAliwCmbEJIbqULgi"
    "jvxs3lLIQLo2tDS2OsBI0l7sfA6iONBqBqRE5oow2IIu3Iw+8qhgGtaUVBbaoGgy/g==";

std::string encode(const std::string &octets, int line_length = 0) {
  char *text = nullptr;
  int64_t length = 0;
  const auto count = static_cast<int64_t>(octets.size());
  EXPECT_EQ(quarn_base64encode(line_length, octets_of(octets.data()), count, &text, &length), 1);
  const Memory<char> owner(text);
  EXPECT_EQ(text[length], '\0');
  return std::string(text, static_cast<std::size_t>(length));
}

// The decoded octets, or "!" and the offset that the one record tells.
std::string decode(int mode, const std::string &text) {
  Records ctx;
  uint8_t *octets = nullptr;
  int64_t count = 7;
  const auto length = static_cast<int64_t>(text.size());
  const int result = quarn_base64decode(mode, text.data(), length, &octets, &count, ctx.get());
  const Memory<uint8_t> owner(octets);
  if (result == 1) return std::string(octets, octets + count);
  EXPECT_EQ(octets, nullptr);
  EXPECT_EQ(ctx.codes(), std::vector<int>{0x10003});
  EXPECT_STREQ(quarn_err_ctx_get(ctx.get(), 0)->file, "QUARN_Text");
  return '!' + std::to_string(quarn_err_ctx_offset(ctx.get(), 0));
}

TEST(Base64, agrees_with_the_examples_of_the_standard_and_python) {
  const char *const examples[][2] = {{"", ""},
                                     {"f", "Zg=="},
                                     {"fo", "Zm8="},
                                     {"foo", "Zm9v"},
                                     {"foob", "Zm9vYg=="},
                                     {"fooba", "Zm9vYmE="},
                                     {"foobar", "Zm9vYmFy"},
                                     {"\xFB\xFF\xBF", "+/+/"}};
  for (const auto &example : examples) {
    EXPECT_EQ(encode(example[0]), example[1]);
    EXPECT_EQ(decode(kStrict, example[1]), example[0]);
    EXPECT_EQ(decode(kLenient, example[1]), example[0]);
  }
  EXPECT_EQ(encode(sample(100)), kSample100);
  EXPECT_EQ(decode(kStrict, kSample100), sample(100));
}

TEST(Base64, breaks_lines_of_any_length) {
  for (const std::size_t line_length : {1u, 3u, 63u, 64u, 68u, 135u, 136u, 200u}) {
    std::string expected;
    for (std::size_t at = 0; at < 136; at += line_length) {
      if (at > 0) expected.push_back('\n');
      expected += std::string(kSample100).substr(at, line_length);
    }
    EXPECT_EQ(encode(sample(100), static_cast<int>(line_length)), expected);
    EXPECT_EQ(decode(kLenient, expected), sample(100)) << line_length;
  }
}

TEST(Base64, strict_mode_is_the_standard_to_the_letter) {
  const char *const refused[][2] = {
      {"Zm9v\n", "!4"}, {"Zg", "!2"},        {"Zg=", "!3"},  {"Zg===", "!4"}, {"Zm8==", "!4"},
      {"Z===", "!1"},   {"=", "!0"},         {"Zh==", "!1"}, {"Zm9=", "!2"},  {"Zg==Zg==", "!4"},
      {"Zm9-", "!3"},   {"Zm9v Zm9v", "!4"}, {"Z", "!1"},    {"Zm9vZ", "!5"}, {"Z=g=", "!1"}};
  for (const auto &example : refused) EXPECT_EQ(decode(kStrict, example[0]), example[1]);
}

TEST(Base64, lenient_mode_skips_blanks_and_misses_no_garbage) {
  for (const char *text : {" Z m\t9\r\nv\n", "Zm9v\n\n", "Zm\n9v"}) {
    EXPECT_EQ(decode(kLenient, text), "foo");
  }
  for (const char *text : {"Zg", "Zg=", "Zg==", "Zg= =\n", "Zh"}) {
    EXPECT_EQ(decode(kLenient, text), "f");
  }
  const char *const refused[][2] = {{"Zg===", "!4"},   {"Zg==\nZg", "!5"}, {"Zm9v\vZm9v", "!4"},
                                    {"Zm9vZ\n", "!6"}, {"Zm9v=", "!4"},    {"Zm9vZm9\x80", "!7"}};
  for (const auto &example : refused) EXPECT_EQ(decode(kLenient, example[0]), example[1]);
  EXPECT_EQ(decode(kLenient, std::string("Zm\0v", 4)), "!2");
}

TEST(Base64, bad_arguments_leave_null) {
  Records ctx;
  uint8_t octet = 0;
  uint8_t *octets = &octet;
  EXPECT_EQ(quarn_base64decode(0, "Zg==", 4, &octets, nullptr, ctx.get()), 0);
  EXPECT_EQ(octets, nullptr);
  EXPECT_EQ(quarn_base64decode(1, "Zg==", -4, &octets, nullptr, ctx.get()), 0);
  EXPECT_EQ(quarn_base64decode(1, nullptr, 4, &octets, nullptr, ctx.get()), 0);
  EXPECT_EQ(quarn_base64decode(1, "Zg==", 4, nullptr, nullptr, ctx.get()), 0);
  EXPECT_EQ(ctx.codes(), (std::vector<int>{0x10002, 0x10001, 0x10002, 0x10002}));
  char *text = nullptr;
  EXPECT_EQ(quarn_base64encode(-1, &octet, 1, &text, nullptr), 0);
  EXPECT_EQ(quarn_base64encode(0, &octet, INT64_MAX, &text, nullptr), 0);
  EXPECT_EQ(quarn_base64encode(1, &octet, INT64_MAX / 3, &text, nullptr), 0);
  EXPECT_EQ(quarn_hexencode(1, &octet, INT64_MAX / 2 + 1, &text, nullptr), 0);
  EXPECT_EQ(quarn_hexencode(2, &octet, 1, &text, nullptr), 0);
  EXPECT_EQ(quarn_hexencode(1, &octet, -1, &text, nullptr), 0);
  EXPECT_EQ(quarn_hexencode(1, nullptr, 1, &text, nullptr), 0);
  EXPECT_EQ(text, nullptr);
}

TEST(Hex, writes_either_case_and_reads_both) {
  const uint8_t octets[] = {0x00, 0x9A, 0xBC, 0xFF};
  for (const int mode : {0, 1}) {
    char *text = nullptr;
    int64_t length = 0;
    ASSERT_EQ(quarn_hexencode(mode, octets, 4, &text, &length), 1);
    const Memory<char> owner(text);
    EXPECT_STREQ(text, mode == 1 ? "009ABCFF" : "009abcff");
    EXPECT_EQ(length, 8);
  }
  uint8_t *decoded = nullptr;
  int64_t count = 0;
  ASSERT_EQ(quarn_hexdecode("009aBcfF", 8, &decoded, &count), 1);
  const Memory<uint8_t> owner(decoded);
  EXPECT_TRUE(std::equal(octets, octets + 4, decoded, decoded + count));
  for (const char *bad : {"0", "0g", "0x", " 0", "00 ", "-1", "\xFF\xFF"}) {
    const auto length = static_cast<int64_t>(std::string(bad).size());
    EXPECT_EQ(quarn_hexdecode(bad, length, &decoded, &count), 0) << bad;
    EXPECT_EQ(decoded, nullptr);
  }
}

TEST(TextEncodings, survive_lack_of_memory) {
  fail_each_allocation([](Allocation &) {
    char *text = nullptr;
    uint8_t *octets = nullptr;
    quarn_hexencode(1, octets_of("abc"), 3, &text, nullptr);
    quarn_free(text);
    quarn_hexdecode("00", 2, &octets, nullptr);
    quarn_free(octets);
    quarn_base64encode(2, octets_of("abc"), 3, &text, nullptr);
    quarn_free(text);
    quarn_base64decode(2, "Zg==", 4, &octets, nullptr, nullptr);
    quarn_free(octets);
    quarn_pemencode("A", octets_of("abc"), 3, &text, nullptr);
    quarn_free(text);
    const char pem[] = "-----BEGIN A-----\nZg==\n-----END A-----\n";
    int64_t offset = 0;
    quarn_pem_block block;
    Records ctx;
    const int result = quarn_pemnext(pem, sizeof pem - 1, &offset, &block, ctx.get());
    EXPECT_EQ(result == 1, block.octets != nullptr);
    EXPECT_EQ(offset, static_cast<int64_t>(sizeof pem) - 1);
    quarn_free(block.octets);
  });
}

}  // namespace
