#include <gtest/gtest.h>

#include <string>

#include "quarn_util.h"
#include "tests/support/allocation.h"
#include "tests/support/streams.h"

namespace quarn::test {
namespace {

TEST(ErrorContext, keeps_records_in_order_up_to_its_limit_and_counts_the_rest) {
  const Context ctx(quarn_err_ctx_new());
  for (int i = 0; i < 1100; i++) quarn_err_ctx_put(ctx.get(), "UNIT", i, 0x10002, "text");
  EXPECT_EQ(quarn_err_ctx_count(ctx.get()), 1024u);
  EXPECT_EQ(quarn_err_ctx_dropped(ctx.get()), 76u);
  EXPECT_EQ(quarn_err_ctx_get(ctx.get(), 1023)->line, 1023);
  EXPECT_EQ(quarn_err_ctx_get(ctx.get(), 1024), nullptr);
  quarn_err_ctx_clear(ctx.get());
  EXPECT_EQ(quarn_err_ctx_count(ctx.get()), 0u);
}

TEST(ErrorContext, prints_the_chain_with_offsets_where_known_whatever_allocation_fails) {
  fail_each_allocation([](Allocation &allocation) {
    const Context ctx(quarn_err_ctx_new());
    std::string expected;
    for (int i = 0; i < 20; i++) {
      quarn_err_ctx_put(ctx.get(), "INNER", 5, 0x10002, quarn_igetGeneralError(0x10002));
      quarn_err_ctx_put_at(ctx.get(), "OUTER", 6, 0x10103, quarn_igetStreamError(0x10103), 9);
      expected +=
          "INNER:5: 0x10002 null or bad argument\n"
          "OUTER:6: 0x10103 unexpected end of stream (offset 9)\n";
    }
    char *text = nullptr;
    const int result = quarn_err_ctx_print(ctx.get(), &text, nullptr);
    const Memory<char> owner(text);
    EXPECT_EQ(result == 1, text != nullptr);
    EXPECT_TRUE(allocation.failed() || text == expected);
  });
  EXPECT_STREQ(quarn_igetStreamError(0x10002), "");
}

TEST(ErrorContext, a_path_grows_at_its_front_and_is_cut_there) {
  const Context ctx(quarn_err_ctx_new());
  const auto step = [&ctx](const char *name, int64_t index, int first) {
    EXPECT_EQ(quarn_err_ctx_put_step(ctx.get(), name, index, first), 1);
    return std::string(quarn_err_ctx_path(ctx.get()));
  };
  EXPECT_EQ(step("extnValue", 0, 1), "extnValue");
  EXPECT_EQ(step(nullptr, 3, 0), "[3].extnValue");
  EXPECT_EQ(step(nullptr, 0, 0), "[0][3].extnValue");
  EXPECT_EQ(step("extensions", 0, 0), "extensions[0][3].extnValue");
  for (int i = 0; i < 100; i++) step("name", 0, i == 0);
  const std::string path = step("name", 0, 0);
  EXPECT_LE(path.size(), 256u);
  EXPECT_EQ(path.substr(0, 8), "...name.");
  EXPECT_EQ(path.substr(path.size() - 10), ".name.name");
  EXPECT_EQ(step("a", 0, 0), path) << "nothing comes before the sign";
  EXPECT_EQ(step(std::string(300, 'n').c_str(), 0, 1), "...");
  quarn_err_ctx_clear(ctx.get());
  EXPECT_STREQ(quarn_err_ctx_path(ctx.get()), "");
}

}  // namespace
}  // namespace quarn::test
