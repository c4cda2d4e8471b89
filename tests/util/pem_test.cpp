#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "quarn_util.h"
#include "tests/support/streams.h"

namespace quarn::test {
namespace {

// All that quarn_pemnext() finds: "label=octets" for a block, "!offset" for a broken one.
std::vector<std::string> blocks_of(const std::string &text) {
  std::vector<std::string> found;
  int64_t offset = 0;
  for (;;) {
    const Context ctx(quarn_err_ctx_new());
    quarn_pem_block block;
    const int64_t before = offset;
    const auto length = static_cast<int64_t>(text.size());
    const int result = quarn_pemnext(text.data(), length, &offset, &block, ctx.get());
    const Memory<uint8_t> owner(block.octets);
    if (result < 0) {
      EXPECT_EQ(quarn_err_ctx_count(ctx.get()), 0u);
      EXPECT_EQ(offset, length);
      return found;
    }
    EXPECT_GT(offset, before);
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
  const struct {
    const char *text;
    const char *found;
  } cases[] = {
      {"-----BEGIN A-----\nZm9v\n", "!0"},                           // END is missing
      {"-----BEGIN A-----\nZm9v\n-----END B-----\n", "!23"},         // END of another label
      {"-----BEGIN A-----\nZm9v\n-----END A-----x\n", "!38"},        // text behind END
      {"-----BEGIN A----\nZm9v\n-----END A-----\n", "!0"},           // BEGIN a hyphen short
      {"-----BEGIN A-----\nZm*v\n-----END A-----\n", "!20"},         // not base64
      {"-----BEGIN A-----\nZm9v=\n-----END A-----\n", "!22"},        // padding out of place
      {"-----BEGIN A-----\nH: v\nZm9v\n-----END A-----\n", "!18"},   // headers do not end
      {"-----BEGIN A\x01-----\nZm9v\n-----END A\x01-----\n", "!0"},  // control character
  };
  for (const auto &c : cases) {
    EXPECT_EQ(blocks_of(c.text + good + good), (Found{c.found, "G=foo", "G=foo"})) << c.text;
    EXPECT_EQ(blocks_of(c.text), Found{c.found}) << c.text;
  }
}

std::string decode(const char *label, const std::string &text) {
  uint8_t *octets = nullptr;
  int64_t count = 0;
  const auto length = static_cast<int64_t>(text.size());
  const int result = quarn_pemdecode(label, text.data(), length, &octets, &count);
  const Memory<uint8_t> owner(octets);
  EXPECT_EQ(result == 1, octets != nullptr);
  return result == 1 ? std::string(octets, octets + count) : "!";
}

TEST(Pem, decodes_the_first_block_whose_label_is_exactly_the_one_asked_for) {
  const std::string text =
      "-----BEGIN X509 CRL 2-----\nYQ==\n-----END X509 CRL 2-----\n"
      "-----BEGIN OTHER-----\n*\n-----END OTHER-----\n"
      "-----BEGIN X509 CRL-----\nYg==\n-----END X509 CRL-----\n"
      "-----BEGIN X509 CRL-----\nYw==\n-----END X509 CRL-----\n";
  EXPECT_EQ(decode("X509 CRL", text), "b");
  EXPECT_EQ(decode("X509 CR", text), "!");
  EXPECT_EQ(decode("OTHER", text + "-----BEGIN OTHER-----\nYg==\n-----END OTHER-----\n"), "!");
}

TEST(Pem, writes_lines_of_64_characters) {
  const std::string a(49, 'a');
  char *text = nullptr;
  ASSERT_EQ(quarn_pemencode("NEW X", octets_of(a.data()), 49, &text, nullptr), 1);
  Memory<char> owner(text);
  const std::string expected =
      "-----BEGIN NEW X-----\n"
      "YWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFh\n"
      "YQ==\n"
      "-----END NEW X-----\n";
  EXPECT_EQ(text, expected);
  EXPECT_EQ(decode("NEW X", expected), a);
  ASSERT_EQ(quarn_pemencode("A", octets_of(a.data()), 48, &text, nullptr), 1);
  owner.reset(text);
  EXPECT_EQ(std::string(text).find("\n\n"), std::string::npos);
  for (const char *label : {"A-----", "A\nB", "\x80"}) {
    EXPECT_EQ(quarn_pemencode(label, octets_of("a"), 1, &text, nullptr), 0);
    EXPECT_EQ(text, nullptr);
  }
}

TEST(Pem, bad_arguments_end_a_loop) {
  quarn_pem_block block;
  for (int64_t offset : {-1, 5}) {
    EXPECT_EQ(quarn_pemnext("text", 4, &offset, &block, nullptr), -1);
  }
}

// Text that starts a block, or seems to, again and again. A scanner that looks for each missing END
// to the end of the text would need hours.
TEST(Pem, hostile_repetition_takes_linear_time) {
  for (const char *piece : {"-----BEGIN ", "-----BEGIN A-----\n", "-", "\n-----END A-----", "\r",
                            "-----BEGIN A-----\nA:\n", "-----BEGIN A-----\n-----END B-----\n"}) {
    std::string text;
    for (int i = 0; i < 200000; i++) text += piece;
    const auto start = std::chrono::steady_clock::now();
    int64_t offset = 0;
    quarn_pem_block block;
    int result = 0;
    while (result >= 0) {
      result =
          quarn_pemnext(text.data(), static_cast<int64_t>(text.size()), &offset, &block, nullptr);
      quarn_free(block.octets);
    }
    EXPECT_EQ(decode("Z", text), "!");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20)) << piece;
  }
}

}  // namespace
}  // namespace quarn::test
