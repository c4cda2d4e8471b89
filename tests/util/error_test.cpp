#include <gtest/gtest.h>

#include <string>

#include "quarn_util.h"
#include "tests/support/allocation.h"
#include "tests/support/streams.h"

namespace quarn::test {
namespace {

TEST(ErrorContext, keeps_records_in_order_up_to_its_limit_and_counts_the_rest) {
  quarn_err_ctx *ctx = quarn_err_ctx_new();
  for (int i = 0; i < 1100; i++) ASSERT_EQ(quarn_err_ctx_put(ctx, "UNIT", i, 0x10002, "text"), 1);
  EXPECT_EQ(quarn_err_ctx_count(ctx), 1024u);
  EXPECT_EQ(quarn_err_ctx_dropped(ctx), 76u);
  EXPECT_EQ(quarn_err_ctx_get(ctx, 1023)->line, 1023);
  EXPECT_EQ(quarn_err_ctx_get(ctx, 1024), nullptr);
  quarn_err_ctx_clear(ctx);
  EXPECT_EQ(quarn_err_ctx_count(ctx), 0u);
  EXPECT_EQ(quarn_err_ctx_put_at(ctx, "UNIT", 7, 0x10103, "end", 14), 1);
  EXPECT_EQ(quarn_err_ctx_offset(ctx, 0), 14);
  quarn_err_ctx_free(ctx);
}

TEST(ErrorContext, prints_the_chain_with_offsets_where_known) {
  const Context ctx(quarn_err_ctx_new());
  quarn_err_ctx_put(ctx.get(), "INNER", 5, 0x10002, quarn_igetGeneralError(0x10002));
  quarn_err_ctx_put_at(ctx.get(), "OUTER", 6, 0x10103, quarn_igetStreamError(0x10103), 9);
  char *text = nullptr;
  ASSERT_EQ(quarn_err_ctx_print(ctx.get(), &text, nullptr), 1);
  EXPECT_STREQ(Memory<char>(text).get(),
               "INNER:5: 0x10002 null or bad argument\n"
               "OUTER:6: 0x10103 unexpected end of stream (offset 9)\n");
  EXPECT_STREQ(quarn_igetStreamError(0x10002), "");
  EXPECT_EQ(quarn_err_ctx_put(nullptr, "UNIT", 1, 2, "text"), 1);
}

TEST(ErrorContext, survives_lack_of_memory) {
  fail_each_allocation([](Allocation &) {
    quarn_err_ctx *ctx = quarn_err_ctx_new();
    for (int i = 0; ctx != nullptr && i < 40; i++) quarn_err_ctx_put(ctx, "UNIT", i, 1, "text");
    char *text = nullptr;
    EXPECT_TRUE(quarn_err_ctx_print(ctx, &text, nullptr) == 1 || text == nullptr);
    quarn_free(text);
    quarn_err_ctx_free(ctx);
  });
}

TEST(Blob, copies_its_octets_and_refuses_bad_counts) {
  uint8_t octets[] = {1, 2, 3};
  quarn_data_blob *blob = quarn_data_blob_new(octets, 3);
  octets[0] = 9;
  ASSERT_NE(blob, nullptr);
  EXPECT_EQ(blob->length, 3);
  EXPECT_EQ(blob->data[0], 1);
  quarn_data_blob_free(blob);
  EXPECT_EQ(quarn_data_blob_new(octets, -1), nullptr);
  EXPECT_EQ(quarn_data_blob_new(octets, INT64_MAX), nullptr);
}

TEST(ErrorContext, a_path_grows_at_its_front) {
  const Context ctx(quarn_err_ctx_new());
  EXPECT_STREQ(quarn_err_ctx_path(ctx.get()), "");
  const auto step = [&ctx](const char *name, int64_t index, int first) {
    EXPECT_EQ(quarn_err_ctx_put_step(ctx.get(), name, index, first), 1);
    return std::string(quarn_err_ctx_path(ctx.get()));
  };
  EXPECT_EQ(step("extnValue", 0, 1), "extnValue");
  EXPECT_EQ(step(nullptr, 3, 0), "[3].extnValue");
  EXPECT_EQ(step(nullptr, 0, 0), "[0][3].extnValue");
  EXPECT_EQ(step("extensions", 0, 0), "extensions[0][3].extnValue");
  EXPECT_EQ(step("version", 0, 1), "version") << "of a later failure";
  quarn_err_ctx_clear(ctx.get());
  EXPECT_STREQ(quarn_err_ctx_path(ctx.get()), "");
  EXPECT_EQ(quarn_err_ctx_put_step(nullptr, "version", 0, 1), 1);
  EXPECT_STREQ(quarn_err_ctx_path(nullptr), "");
}

TEST(ErrorContext, a_path_that_is_too_long_is_cut_at_its_front) {
  const Context ctx(quarn_err_ctx_new());
  for (int i = 0; i < 100; i++) quarn_err_ctx_put_step(ctx.get(), "name", 0, i == 0);
  const std::string path = quarn_err_ctx_path(ctx.get());
  EXPECT_LE(path.size(), 256u);
  EXPECT_EQ(path.substr(0, 8), "...name.");
  EXPECT_EQ(path.substr(path.size() - 10), ".name.name");
  quarn_err_ctx_put_step(ctx.get(), "name", 0, 0);
  EXPECT_EQ(quarn_err_ctx_path(ctx.get()), path) << "nothing comes before the sign";
  quarn_err_ctx_put_step(ctx.get(), std::string(300, 'n').c_str(), 0, 1);
  EXPECT_STREQ(quarn_err_ctx_path(ctx.get()), "...");
}

}  // namespace
}  // namespace quarn::test
