// Hexadecimal, base64, PEM and Unicode. Expected texts of base64 are python3's.
#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>
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

const std::string kNothing = "\xff";

// What a function hands out, octets or a text with a NUL behind it.
template <typename T, typename Function, typename... Given>
std::string made(Function function, Given... given) {
  T *out = nullptr;
  int64_t count = 0;
  const int result = function(given..., &out, &count);
  const Memory<T> owner(out);
  EXPECT_EQ(result == 1, out != nullptr);
  if (result != 1) return kNothing;
  EXPECT_TRUE((std::is_same_v<T, uint8_t> || out[count] == 0));
  return std::string(out, out + count);
}

int64_t size_of(const std::string &text) {
  return static_cast<int64_t>(text.size());
}

std::string encode(const std::string &octets, std::size_t line_length = 0) {
  return made<char>(quarn_base64encode, static_cast<int>(line_length), octets_of(octets.data()),
                    size_of(octets));
}

// The decoded octets, or "!" and the offset that the one record tells.
std::string decode(int mode, const std::string &text) {
  const Context ctx(quarn_err_ctx_new());
  uint8_t *octets = nullptr;
  int64_t count = 7;
  const int result =
      quarn_base64decode(mode, text.data(), size_of(text), &octets, &count, ctx.get());
  const Memory<uint8_t> owner(octets);
  if (result == 1) return std::string(octets, octets + count);
  EXPECT_EQ(octets, nullptr);
  EXPECT_EQ(codes_in(ctx.get()), std::vector<int>{0x10003});
  return '!' + std::to_string(quarn_err_ctx_offset(ctx.get(), 0));
}

TEST(Base64, agrees_with_the_examples_of_the_standard_and_python) {
  const std::string examples[][2] = {
      {"", ""}, {"f", "Zg=="}, {"fo", "Zm8="}, {sample(), kEncodedSample}};
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

TEST(Hex, writes_either_case_and_reads_both) {
  const std::string octets("\x00\x9A\xBC\xFF", 4);
  for (const auto &[mode, text] : {std::pair{0, "009abcff"}, {1, "009ABCFF"}}) {
    EXPECT_EQ(made<char>(quarn_hexencode, mode, octets_of(octets.data()), 4), text);
  }
  EXPECT_EQ(made<uint8_t>(quarn_hexdecode, "009aBcfF", 8), octets);
  for (const std::string bad : {"0", "0g", " 0", "00 ", "\xFF\xFF"}) {
    EXPECT_EQ(made<uint8_t>(quarn_hexdecode, bad.data(), size_of(bad)), kNothing) << bad;
  }
}

// All that quarn_pemnext() finds: "label=octets" for a block, "!offset" for a broken one.
std::vector<std::string> blocks_of(const std::string &text) {
  std::vector<std::string> found;
  const auto length = static_cast<int64_t>(text.size());
  for (int64_t offset = 0; found.size() <= text.size();) {
    const Context ctx(quarn_err_ctx_new());
    quarn_pem_block block;
    const int result = quarn_pemnext(text.data(), length, &offset, &block, ctx.get());
    const Memory<uint8_t> owner(block.octets);
    if (result < 0) {
      EXPECT_EQ(quarn_err_ctx_count(ctx.get()), 0u);
      EXPECT_EQ(offset, length);
      break;
    }
    if (result == 1) {
      EXPECT_EQ(block.end, offset);
      EXPECT_EQ(text.compare(static_cast<std::size_t>(block.begin), 11, "-----BEGIN "), 0);
      std::string entry(block.label, static_cast<std::size_t>(block.label_length));
      entry.append(1, '=').append(block.octets, block.octets + block.count);
      found.push_back(entry);
    } else {
      EXPECT_EQ(codes_in(ctx.get()), std::vector<int>{0x10003});
      found.push_back('!' + std::to_string(quarn_err_ctx_offset(ctx.get(), 0)));
    }
  }
  return found;
}

using Found = std::vector<std::string>;

TEST(Pem, reads_what_real_files_contain) {
  for (const std::string end : {"\n", "\r\n", "\r"}) {
    const std::string text = "\xEF\xBB\xBF-----BEGIN A-----" + end + "Zm9v" + end +
                             "-----END A-----" + end + "subject=/CN=x -----BEGIN no line" + end +
                             end + "  -----BEGIN B C----- \t" + end + "Zm 9v \t" + end + "  YmF y" +
                             end + end + "-----END B C-----  " + end + "-----BEGIN KEY-----" + end +
                             "Proc-Type: 4,ENCRYPTED" + end + "DEK-Info: AES-128-CBC," + end +
                             " 0123" + end + " \t" + end + "Zg==" + end + "-----END KEY-----";
    EXPECT_EQ(blocks_of(text), (Found{"A=foo", "B C=foobar", "KEY=f"})) << end.size();
  }
  EXPECT_EQ(
      blocks_of("-----BEGIN A-----\nZm9v\n-----END A----------BEGIN B-----\nZg\n-----END B-----"),
      (Found{"A=foo", "B=f"}))
      << "files put together without a line end";
  EXPECT_EQ(blocks_of("-----BEGIN -----\n-----END -----\n"), Found{"="});
  EXPECT_EQ(blocks_of("no block\n-----END A-----\n----BEGIN A-----\n-----BEGIN\n"), Found{});
}

TEST(Pem, a_broken_block_does_not_hide_the_rest) {
  const std::string good = "-----BEGIN G-----\nZm9v\n-----END G-----\n";
  const char *const cases[][2] = {
      {"-----BEGIN A-----\nZm9v\n", "!0"},                           // END is missing
      {"-----BEGIN A-----\nZm9v\n-----END B-----\n", "!23"},         // END of another label
      {"-----BEGIN A-----\nZm9v\n-----END A-----x\n", "!38"},        // text behind END
      {"-----BEGIN A----\nZm9v\n-----END A-----\n", "!0"},           // BEGIN a hyphen short
      {"-----BEGIN A-----\nZm*v\n-----END A-----\n", "!20"},         // not base64
      {"-----BEGIN A-----\nZm9v=\n-----END A-----\n", "!22"},        // padding out of place
      {"-----BEGIN A-----\nH: v\nZm9v\n-----END A-----\n", "!18"},   // headers do not end
      {"-----BEGIN A\x01-----\nZm9v\n-----END A\x01-----\n", "!0"},  // control character
  };
  for (const auto &[text, found] : cases) {
    EXPECT_EQ(blocks_of(text + good + good), (Found{found, "G=foo", "G=foo"})) << text;
    EXPECT_EQ(blocks_of(text), Found{found}) << text;
  }
}

std::string decode(const char *label, const std::string &text) {
  return made<uint8_t>(quarn_pemdecode, label, text.data(), size_of(text));
}

TEST(Pem, decodes_the_first_block_whose_label_is_exactly_the_one_asked_for) {
  const std::string text =
      "-----BEGIN X509 CRL 2-----\nYQ==\n-----END X509 CRL 2-----\n"
      "-----BEGIN OTHER-----\n*\n-----END OTHER-----\n"
      "-----BEGIN X509 CRL-----\nYg==\n-----END X509 CRL-----\n"
      "-----BEGIN X509 CRL-----\nYw==\n-----END X509 CRL-----\n";
  EXPECT_EQ(decode("X509 CRL", text), "b");
  EXPECT_EQ(decode("X509 CR", text), kNothing);
  EXPECT_EQ(decode("OTHER", text + "-----BEGIN OTHER-----\nYg==\n-----END OTHER-----\n"), kNothing);
}

// A last line that is not full is compared with openssl's by the tests of the command.
TEST(Pem, writes_no_empty_line_behind_a_full_one) {
  const std::string full = "YWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFh\n";
  EXPECT_EQ(made<char>(quarn_pemencode, "X", octets_of(std::string(48, 'a').data()), 48),
            "-----BEGIN X-----\n" + full + "-----END X-----\n");
}

// Text that starts a block, or seems to, again and again. A scanner that looks for each missing END
// to the end of the text would need hours.
TEST(Pem, hostile_repetition_takes_linear_time) {
  for (const char *piece : {"-----BEGIN ", "-----BEGIN A-----\n", "-", "\n-----END A-----", "\r",
                            "-----BEGIN A-----\nA:\n", "-----BEGIN A-----\n-----END B-----\n"}) {
    std::string text;
    for (int i = 0; i < 200000; i++) text += piece;
    const auto start = std::chrono::steady_clock::now();
    blocks_of(text);
    EXPECT_EQ(decode("Z", text), kNothing);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20)) << piece;
  }
}

TEST(TextEncodings, bad_arguments_leave_null_and_end_a_loop) {
  uint8_t octet = 0;
  uint8_t *octets = &octet;
  EXPECT_EQ(quarn_base64decode(0, "Zg==", 4, &octets, nullptr, nullptr), 0);
  EXPECT_EQ(octets, nullptr);
  EXPECT_EQ(quarn_base64decode(1, "Zg==", -4, &octets, nullptr, nullptr), 0);
  char *text = nullptr;
  EXPECT_EQ(quarn_base64encode(-1, &octet, 1, &text, nullptr), 0);
  EXPECT_EQ(quarn_base64encode(1, &octet, INT64_MAX / 3, &text, nullptr), 0);
  EXPECT_EQ(quarn_hexencode(1, &octet, INT64_MAX / 2 + 1, &text, nullptr), 0);
  for (const char *label : {"A-----", "A\nB", "\x80"}) {
    EXPECT_EQ(quarn_pemencode(label, &octet, 1, &text, nullptr), 0);
  }
  EXPECT_EQ(quarn_pemencode("A", &octet, -1, &text, nullptr), 0);
  EXPECT_EQ(quarn_base64encode(0, &octet, -1, &text, nullptr), 0);
  EXPECT_EQ(quarn_hexencode(1, &octet, -1, &text, nullptr), 0);
  EXPECT_EQ(text, nullptr);
  EXPECT_EQ(quarn_ustring_newutf8(nullptr, 1), nullptr);
  EXPECT_EQ(quarn_utf8_valid(&octet, -1), 0);
  quarn_pem_block block;
  for (int64_t offset : {-1, 5}) {
    EXPECT_EQ(quarn_pemnext("text", 4, &offset, &block, nullptr), -1);
  }
}

TEST(TextEncodings, survive_lack_of_memory) {
  fail_each_allocation([](Allocation &) {
    made<char>(quarn_hexencode, 1, octets_of("abc"), 3);
    made<char>(quarn_pemencode, "A", octets_of("abc"), 3);
    encode("abc", 2);
    made<uint8_t>(quarn_hexdecode, "00", 2);
    const char pem[] = "-----BEGIN A-----\nZg==\n-----END A-----\n";
    int64_t offset = 0;
    quarn_pem_block block;
    quarn_pemnext(pem, sizeof pem - 1, &offset, &block, nullptr);
    EXPECT_EQ(offset, static_cast<int64_t>(sizeof pem) - 1);
    quarn_free(block.octets);
  });
}

using Octets = std::vector<uint8_t>;
using UString = std::unique_ptr<quarn_ustring, decltype(&quarn_ustring_free)>;

template <typename Make>
UString make(Make function, const Octets &octets) {
  return {function(octets.data(), static_cast<int64_t>(octets.size())), quarn_ustring_free};
}

// The octets that a conversion gives; {0xff} when it fails.
template <typename Convert>
Octets convert(Convert function, const UString &u) {
  const std::string octets = made<uint8_t>(function, u.get());
  return Octets(octets.begin(), octets.end());
}

// UTF-8 by arithmetic, as a definition of it: bits to octets, no tables of ranges.
Octets utf8_of(uint32_t c) {
  auto tail = [c](int shift) { return static_cast<uint8_t>(128 + (c >> shift) % 64); };
  if (c < 128) return {static_cast<uint8_t>(c)};
  if (c < 2048) return {static_cast<uint8_t>(192 + c / 64), tail(0)};
  if (c < 65536) return {static_cast<uint8_t>(224 + c / 4096), tail(6), tail(0)};
  return {static_cast<uint8_t>(240 + c / 262144), tail(12), tail(6), tail(0)};
}

TEST(Unicode, every_scalar_value_passes_through_all_encodings_and_nothing_else_does) {
  for (uint32_t c = 0; c < 0x110800; c++) {
    const Octets utf8 = utf8_of(c);
    const Octets ucs4{0, static_cast<uint8_t>(c >> 16), static_cast<uint8_t>(c >> 8 & 0xff),
                      static_cast<uint8_t>(c & 0xff)};
    const UString from_utf8 = make(quarn_ustring_newutf8, utf8);
    const UString from_ucs4 = make(quarn_ustring_newutf32be, ucs4);
    const bool scalar = c < 0x110000 && (c < 0xd800 || c > 0xdfff);
    ASSERT_EQ(from_utf8 != nullptr, scalar) << c;
    ASSERT_EQ(from_ucs4 != nullptr, scalar) << c;
    if (c < 0x10000) {
      const UString from_bmp = make(quarn_ustring_newbmp, {ucs4[2], ucs4[3]});
      ASSERT_EQ(from_bmp != nullptr, scalar) << c;
      ASSERT_EQ(convert(quarn_ustring_toutf8, from_bmp), scalar ? utf8 : Octets{0xff});
    }
    if (!scalar) continue;
    ASSERT_EQ(convert(quarn_ustring_toutf8, from_ucs4), utf8);
    ASSERT_EQ(convert(quarn_ustring_toutf32be, from_utf8), ucs4);
    const Octets bmp = c < 0x10000 ? Octets{ucs4[2], ucs4[3]} : Octets{0xff};
    ASSERT_EQ(convert(quarn_ustring_tobmp, from_utf8), bmp);
  }
  EXPECT_EQ(convert(quarn_ustring_tobmp, make(quarn_ustring_newutf8, {})), Octets{});
}

TEST(Unicode, what_no_scalar_value_encodes_to_is_found_at_every_place_of_long_text) {
  // Out of place, overlong, cut off, beyond the last.
  std::istringstream bad(
      "\x80 \xC0\x80 \xC1\xBF \xE0\x9F\xBF \xF0\x8F\xBF\xBF \xC2 \xC2\xC0 \xC2\x7F \xE1\x80 "
      "\xE1\x80\x40 \xF1\x80\x80 \xF1\x80\x80\xC0 \xF8\x88\x80\x80\x80 \xFE \xFF");
  const auto valid = [](const std::string &text) {
    return quarn_utf8_valid(octets_of(text.data()), static_cast<int64_t>(text.size()));
  };
  for (std::string text; bad >> text;) {
    for (size_t before = 0; before < 80; before++) {
      const std::string plain(before, 'a');
      ASSERT_EQ(valid(plain), 1);
      ASSERT_EQ(valid(plain + text), 0) << text;
      ASSERT_EQ(valid(plain + text + std::string(40, 'a')), 0) << text;
    }
  }
  EXPECT_EQ(make(quarn_ustring_newbmp, Octets(3)), nullptr);
  EXPECT_EQ(make(quarn_ustring_newutf32be, Octets(6)), nullptr);
}

// python: "aé😀\0z".encode()
TEST(Unicode, mixed_text_keeps_its_order_and_its_nul_whatever_allocation_fails) {
  const Octets utf8{'a', 0xc3, 0xa9, 0xf0, 0x9f, 0x98, 0x80, 0, 'z'};
  const Octets ucs4{0, 0, 0, 'a', 0, 0, 0, 0xe9, 0, 1, 0xf6, 0, 0, 0, 0, 0, 0, 0, 0, 'z'};
  fail_each_allocation([&](Allocation &allocation) {
    const UString u = make(quarn_ustring_newutf32be, ucs4);
    EXPECT_LE(allocation.live_blocks(), 1);
    EXPECT_TRUE(convert(quarn_ustring_toutf8, u) == utf8 || allocation.failed());
    EXPECT_TRUE(convert(quarn_ustring_toutf32be, u) == ucs4 || allocation.failed());
  });
}

}  // namespace
}  // namespace quarn::test
