// Memory and callback streams.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "quarn_util.h"
#include "tests/support/allocation.h"
#include "tests/support/store.h"
#include "tests/support/streams.h"

namespace quarn::test {
namespace {

TEST(MemoryStream, each_refusal_leaves_one_record_and_the_position) {
  const Context ctx(quarn_err_ctx_new());
  const Stream s(quarn_stream_new_romem(octets_of("abcde"), 5, 0, ctx.get()));
  char buffer[8] = {};
  uint64_t got = 9;
  ASSERT_EQ(quarn_stream_skip(s.get(), 2, ctx.get()), 1);
  EXPECT_EQ(quarn_stream_readn(s.get(), buffer, 4, ctx.get()), 0);
  EXPECT_EQ(quarn_stream_skip(s.get(), UINT64_MAX, ctx.get()), 0);
  EXPECT_EQ(quarn_stream_writen(s.get(), "x", 1, ctx.get()), 0);
  EXPECT_EQ(quarn_stream_readn(s.get(), buffer, -1, ctx.get()), 0);
  EXPECT_EQ(quarn_stream_readn(nullptr, buffer, 1, ctx.get()), 0);
  EXPECT_EQ(control(s, 3, nullptr, ctx.get()), 0);
  EXPECT_EQ(seek(s, 6, ctx.get()), 0);
  EXPECT_EQ(codes_in(ctx.get()),
            (std::vector<int>{0x10103, 0x10103, 0x10104, 0x10001, 0x10002, 0x10105, 0x10106}));
  EXPECT_EQ(quarn_err_ctx_offset(ctx.get(), 0), 2);
  EXPECT_EQ(quarn_stream_read(s.get(), buffer, 8, &got, nullptr), 1);
  EXPECT_EQ(std::string(buffer, got), "cde");
}

TEST(MemoryStream, duplicates_are_snapshots_that_outlive_growth_detaching_and_the_original) {
  Stream s(quarn_stream_new_mem(0, nullptr));
  std::vector<Stream> duplicates;
  std::string content;
  for (int i = 0; i < 200; i++) {
    ASSERT_EQ(quarn_stream_writen(s.get(), "0123456789", i % 10, nullptr), 1);
    content.append("0123456789", static_cast<size_t>(i % 10));
    duplicates.emplace_back(quarn_memstream_dup_readonly(s.get(), nullptr));
    ASSERT_EQ(length_of(duplicates.back()), content.size());
  }
  uint8_t *octets = nullptr;
  uint64_t count = 0;
  ASSERT_EQ(quarn_memstreamdeatch(s.get(), &octets, &count), 1);
  const Memory<uint8_t> owner(octets);
  EXPECT_EQ(std::string(octets, octets + count), content);
  octets[0] = '#';  // shared with duplicates: what is handed out is a copy
  ASSERT_EQ(quarn_stream_writen(s.get(), "new", 3, nullptr), 1);
  s.reset();
  for (const Stream &d : duplicates) {
    EXPECT_EQ(rest_of(d), content.substr(0, length_of(d)));
    EXPECT_EQ(quarn_stream_writen(d.get(), "x", 1, nullptr), 0);
  }
}

TEST(MemoryStream, detaching_hands_out_the_buffer_itself_when_it_is_not_shared) {
  const Allocation allocation;
  const Stream s(quarn_stream_new_mem(INT64_MAX, nullptr));
  uint8_t *octets = nullptr;
  uint64_t count = 1;
  EXPECT_EQ(quarn_memstreamdeatch(s.get(), &octets, &count), 1);
  EXPECT_EQ(octets, nullptr);
  EXPECT_EQ(count, 0u);
  quarn_stream_writen(s.get(), "abc", 3, nullptr);
  EXPECT_LT(allocation.live_octets(), 20000u);  // a hint is no promise of octets to come
  const uint8_t *lent = nullptr;
  quarn_memstream_peek(s.get(), &lent, nullptr);
  EXPECT_EQ(quarn_memstreamdeatch(s.get(), &octets, &count), 1);
  const Memory<uint8_t> owner(octets);
  EXPECT_EQ(octets, lent);
  EXPECT_EQ(allocation.count(), 2u);
}

TEST(MemoryStream, read_only_streams_read_in_place_or_from_a_copy) {
  uint8_t octets[] = {'a', 'b'};
  const Stream in_place(quarn_stream_new_romem(octets, 2, 0, nullptr));
  const Stream copy(quarn_stream_new_romem(octets, 2, 1, nullptr));
  octets[0] = 'x';
  EXPECT_EQ(rest_of(in_place), "xb");
  EXPECT_EQ(rest_of(copy), "ab");
}

TEST(MemoryStream, lends_room_and_takes_no_more_than_was_lent) {
  const Stream s(quarn_stream_new_mem(0, nullptr));
  uint8_t *room = nullptr;
  uint64_t size = 0;
  ASSERT_EQ(quarn_memstream_reserve(s.get(), 100, &room, &size, nullptr), 1);
  ASSERT_GE(size, 100u);
  std::memset(room, 'r', size);
  EXPECT_EQ(quarn_memstream_commit(s.get(), size + 1), 0);
  EXPECT_EQ(quarn_memstream_commit(s.get(), size), 1);
  EXPECT_EQ(quarn_memstream_commit(s.get(), 1), 0);
  EXPECT_EQ(quarn_memstream_reserve(s.get(), UINT64_MAX, &room, &size, nullptr), 0);
  EXPECT_EQ(rest_of(s), std::string(size, 'r'));
}

TEST(MemoryStream, appends_itself_and_its_own_octets_as_they_were) {
  const Stream s(quarn_stream_new_mem(0, nullptr));
  std::string expected = "0123456789";
  quarn_stream_writen(s.get(), expected.data(), 10, nullptr);
  for (int i = 0; i < 6; i++) {
    const uint64_t position = quarn_stream_position(s.get());
    ASSERT_EQ(quarn_stream_writefromstream(s.get(), s.get(), nullptr, nullptr), 1);
    expected += expected.substr(position);
    const uint8_t *own = nullptr;
    uint64_t count = 0;
    quarn_memstream_peek(s.get(), &own, &count);
    ASSERT_EQ(quarn_stream_writen(s.get(), own, static_cast<int64_t>(count), nullptr), 1);
    expected += expected.substr(expected.size() - count);
  }
  EXPECT_EQ(control(s, QUARN_STREAM_REWIND), 1);
  EXPECT_EQ(rest_of(s), expected);
}

TEST(CallbackStream, skips_by_seeking_or_else_by_reading_and_notices_the_end) {
  for (const bool seekable : {true, false}) {
    for (const bool knows_length : {true, false}) {
      Store source(std::vector<uint8_t>(5000, 'x'));
      source.knows_length = knows_length;
      source.octets[4500] = 'y';
      source.piece = 1000;
      const Stream s = source.stream(seekable ? Store::Kind::all : Store::Kind::read_only);
      const bool known = seekable && knows_length;
      EXPECT_EQ(length_of(s), known ? 5000 : UINT64_MAX);
      EXPECT_EQ(control(s, QUARN_STREAM_ATEND), 0);  // may hold an octet back
      EXPECT_EQ(quarn_stream_position(s.get()), 0u);
      ASSERT_EQ(quarn_stream_skip(s.get(), 4500, nullptr), 1);
      EXPECT_LE(source.calls, seekable ? 3u : 8u);
      char c = 0;
      ASSERT_EQ(quarn_stream_readn(s.get(), &c, 1, nullptr), 1);
      EXPECT_EQ(c, 'y');
      EXPECT_EQ(quarn_stream_skip(s.get(), 500, nullptr), 0);
      EXPECT_EQ(control(s, QUARN_STREAM_ATEND), known ? 0 : 1);
      EXPECT_EQ(quarn_stream_skip(s.get(), UINT64_MAX, nullptr), 0);
    }
  }
}

TEST(CallbackStream, missing_functions_are_reported) {
  const quarn_stream_callbacks none{};
  const Stream s(quarn_stream_new_callback(&none, nullptr, nullptr));
  const Context ctx(quarn_err_ctx_new());
  char c = 0;
  EXPECT_EQ(quarn_stream_readn(s.get(), &c, 1, ctx.get()), 0);
  EXPECT_EQ(quarn_stream_writen(s.get(), "x", 1, ctx.get()), 0);
  EXPECT_EQ(seek(s, 0, ctx.get()), 0);
  EXPECT_EQ(control(s, QUARN_STREAM_REWIND, nullptr, ctx.get()), 0);
  EXPECT_EQ(codes_in(ctx.get()), (std::vector<int>{0x10101, 0x10104, 0x10107, 0x10109}));
  EXPECT_EQ(quarn_memstream_dup_readonly(s.get(), nullptr), nullptr);
}

// Uses every function of a source and a destination once; counts the failures reported.
int exercise(Store &from, Store &to, quarn_err_ctx *ctx) {
  from.piece = 3;
  from.knows_length = false;
  const Stream source = from.stream();
  const Stream destination = to.stream();
  char buffer[4];
  int successes = quarn_stream_readn(source.get(), buffer, 4, ctx);
  successes += seek(source, 1, ctx);
  successes += quarn_stream_skip(source.get(), 1, ctx);
  successes += control(source, QUARN_STREAM_REWIND, nullptr, ctx);
  successes += quarn_stream_writefromstream(destination.get(), source.get(), ctx, nullptr);
  return 6 - successes - quarn_stream_flush(destination.get(), ctx);
}

TEST(CallbackStream, each_failing_call_is_one_failure_with_one_record) {
  const std::vector<uint8_t> octets(10, 'x');
  Store whole(octets);
  Store copy;
  EXPECT_EQ(exercise(whole, copy, nullptr), 0);
  EXPECT_EQ(copy.octets, whole.octets);
  for (std::uint64_t i = 0; i < 2 * whole.calls; i++) {
    Store from(octets);
    Store to;
    from.fail_at = i / 2;
    from.wrong_result = i % 2 == 0 ? -1 : INT64_MAX;  // of a read
    to.fail_at = i < 2 ? 0 : UINT64_MAX;
    const Context ctx(quarn_err_ctx_new());
    const int failures = exercise(from, to, ctx.get());
    EXPECT_EQ(failures, i < 2 ? 2 : 1) << "call " << i;
    EXPECT_EQ(quarn_err_ctx_count(ctx.get()), static_cast<std::size_t>(failures)) << "call " << i;
  }
}

TEST(Stream, survives_lack_of_memory) {
  fail_each_allocation([](Allocation &allocation) {
    Store source(std::vector<uint8_t>(20000, 'x'));
    const Stream s(quarn_stream_new_mem(16, nullptr));
    const Stream copy(quarn_stream_new_romem(octets_of("abc"), 3, 1, nullptr));
    const Stream callback = source.stream(Store::Kind::read_only);
    if (!s || !callback) return;
    quarn_stream_writen(s.get(), "abc", 3, nullptr);
    const Stream duplicate(quarn_memstream_dup_readonly(s.get(), nullptr));
    const uint64_t before = length_of(s);
    uint64_t copied = 0;
    const int result = quarn_stream_writefromstream(s.get(), callback.get(), nullptr, &copied);
    EXPECT_TRUE(result == 1 || allocation.failed());
    EXPECT_EQ(length_of(s), before + copied);
    uint8_t *octets = nullptr;
    quarn_memstreamdeatch(s.get(), &octets, nullptr);
    quarn_free(octets);
  });
}

}  // namespace
}  // namespace quarn::test
