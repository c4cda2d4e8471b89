// Hexadecimal and base64. Expected texts of base64 are python3's.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "quarn_util.h"
#include "tests/support/allocation.h"
#include "tests/support/streams.h"

namespace quarn::test {
namespace {

constexpr int kStrict = 1;
constexpr int kLenient = 2;

// bytes((i * i + 7 * i) % 256 for i in range(100))
std::string sample() {
  std::string octets;
  for (int i = 0; i < 100; i++) octets.push_back(static_cast<char>((i * i + 7 * i) % 256));
  return octets;
}

const std::string kEncodedSample =
    "AAgSHiw8TmJ4kKrG5AQmSnCYwu4cTH6y6CBaltQUVprgKHK+DFyuAliwCmbEJIbqULgi"
    "jvxs3lLIQLo2tDS2OsBI0l7sfA6iONBqBqRE5oow2IIu3Iw+8qhgGtaUVBbaoGgy/g==";

std::string encode(const std::string &octets, std::size_t line_length = 0) {
  char *text = nullptr;
  int64_t length = 0;
  EXPECT_EQ(quarn_base64encode(static_cast<int>(line_length), octets_of(octets.data()),
                               static_cast<int64_t>(octets.size()), &text, &length),
            1);
  const Memory<char> owner(text);
  return std::string(text, static_cast<std::size_t>(length));
}

// The decoded octets, or "!" and the offset that the one record tells.
std::string decode(int mode, const std::string &text) {
  const Context ctx(quarn_err_ctx_new());
  uint8_t *octets = nullptr;
  int64_t count = 7;
  const auto length = static_cast<int64_t>(text.size());
  const int result = quarn_base64decode(mode, text.data(), length, &octets, &count, ctx.get());
  const Memory<uint8_t> owner(octets);
  if (result == 1) return std::string(octets, octets + count);
  EXPECT_EQ(octets, nullptr);
  EXPECT_EQ(codes_in(ctx.get()), std::vector<int>{0x10003});
  return '!' + std::to_string(quarn_err_ctx_offset(ctx.get(), 0));
}

TEST(Base64, agrees_with_the_examples_of_the_standard_and_python) {
  const std::string examples[][2] = {{"", ""},
                                     {"f", "Zg=="},
                                     {"fo", "Zm8="},
                                     {"foo", "Zm9v"},
                                     {"foob", "Zm9vYg=="},
                                     {"\xFB\xFF\xBF", "+/+/"},
                                     {sample(), kEncodedSample}};
  for (const auto &[octets, text] : examples) {
    EXPECT_EQ(encode(octets), text);
    EXPECT_EQ(decode(kStrict, text), octets);
  }
  for (const std::size_t line_length : {1u, 63u, 68u, 135u, 136u}) {
    std::string lines;
    for (std::size_t at = 0; at < 136; at += line_length) {
      lines += (at > 0 ? "\n" : "") + kEncodedSample.substr(at, line_length);
    }
    EXPECT_EQ(encode(sample(), line_length), lines);
    EXPECT_EQ(decode(kLenient, lines), sample()) << line_length;
  }
}

TEST(Base64, strict_mode_is_the_standard_to_the_letter_and_lenient_mode_misses_no_garbage) {
  const char *const strict[][2] = {
      {"Zm9v\n", "!4"}, {"Zg", "!2"},        {"Zg=", "!3"},  {"Zg===", "!4"}, {"Zm8==", "!4"},
      {"Z===", "!1"},   {"=", "!0"},         {"Zh==", "!1"}, {"Zm9=", "!2"},  {"Zg==Zg==", "!4"},
      {"Zm9-", "!3"},   {"Zm9v Zm9v", "!4"}, {"Z", "!1"},    {"Zm9vZ", "!5"}, {"Z=g=", "!1"}};
  for (const auto &[text, expected] : strict) EXPECT_EQ(decode(kStrict, text), expected);
  const char *const lenient[][2] = {
      {" Z m\t9\r\nv\n", "foo"}, {"Zg", "f"},          {"Zg=", "f"},
      {"Zg= =\n", "f"},          {"Zh", "f"},          {"Zg===", "!4"},
      {"Zg==\nZg", "!5"},        {"Zm9v\vZm9v", "!4"}, {"Zm9vZ\n", "!6"},
      {"Zm9v=", "!4"},           {"Zm9vZm9\x80", "!7"}};
  for (const auto &[text, expected] : lenient) EXPECT_EQ(decode(kLenient, text), expected);
  EXPECT_EQ(decode(kLenient, std::string("Zm\0v", 4)), "!2");
}

TEST(TextEncodings, bad_arguments_leave_null) {
  uint8_t octet = 0;
  uint8_t *octets = &octet;
  EXPECT_EQ(quarn_base64decode(0, "Zg==", 4, &octets, nullptr, nullptr), 0);
  EXPECT_EQ(octets, nullptr);
  EXPECT_EQ(quarn_base64decode(1, "Zg==", -4, &octets, nullptr, nullptr), 0);
  EXPECT_EQ(quarn_base64decode(1, nullptr, 4, &octets, nullptr, nullptr), 0);
  char *text = nullptr;
  EXPECT_EQ(quarn_base64encode(-1, &octet, 1, &text, nullptr), 0);
  EXPECT_EQ(quarn_base64encode(1, &octet, INT64_MAX / 3, &text, nullptr), 0);
  EXPECT_EQ(quarn_hexencode(1, &octet, INT64_MAX / 2 + 1, &text, nullptr), 0);
  EXPECT_EQ(quarn_hexencode(2, &octet, 1, &text, nullptr), 0);
  EXPECT_EQ(text, nullptr);
}

TEST(Hex, writes_either_case_and_reads_both) {
  const std::string octets("\x00\x9A\xBC\xFF", 4);
  for (const int mode : {0, 1}) {
    char *text = nullptr;
    ASSERT_EQ(quarn_hexencode(mode, octets_of(octets.data()), 4, &text, nullptr), 1);
    const Memory<char> owner(text);
    EXPECT_STREQ(text, mode == 1 ? "009ABCFF" : "009abcff");
  }
  uint8_t *decoded = nullptr;
  int64_t count = 0;
  ASSERT_EQ(quarn_hexdecode("009aBcfF", 8, &decoded, &count), 1);
  const Memory<uint8_t> owner(decoded);
  EXPECT_EQ(std::string(decoded, decoded + count), octets);
  for (const std::string bad : {"0", "0g", " 0", "00 ", "\xFF\xFF"}) {
    EXPECT_EQ(quarn_hexdecode(bad.data(), static_cast<int64_t>(bad.size()), &decoded, &count), 0);
    EXPECT_EQ(decoded, nullptr) << bad;
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
    const int result = quarn_pemnext(pem, sizeof pem - 1, &offset, &block, nullptr);
    EXPECT_EQ(result == 1, block.octets != nullptr);
    EXPECT_EQ(offset, static_cast<int64_t>(sizeof pem) - 1);
    quarn_free(block.octets);
  });
}

}  // namespace
}  // namespace quarn::test
