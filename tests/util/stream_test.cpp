// Memory, callback and file streams, and reading a whole file.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "quarn_util.h"
#include "tests/support/allocation.h"
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
  EXPECT_EQ(quarn_stream_read(s.get(), nullptr, 1, &got, ctx.get()), 0);
  EXPECT_EQ(quarn_stream_writen(s.get(), buffer, -1, ctx.get()), 0);
  EXPECT_EQ(control(s, 3, nullptr, ctx.get()), 0);
  EXPECT_EQ(seek(s, 6, ctx.get()), 0);
  EXPECT_EQ(codes_in(ctx.get()), (std::vector<int>{0x10103, 0x10103, 0x10104, 0x10001, 0x10002,
                                                   0x10002, 0x10001, 0x10105, 0x10106}));
  EXPECT_EQ(quarn_err_ctx_offset(ctx.get(), 0), 2);
  uint8_t octet = 0;
  uint8_t *octets = &octet;
  EXPECT_EQ(quarn_memstreamdeatch(s.get(), &octets, nullptr), 0);
  EXPECT_EQ(octets, nullptr);
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

TEST(MemoryStream, room_is_lent_and_what_stands_in_it_handed_out_when_it_is_not_shared) {
  const Allocation allocation;
  const Stream s(quarn_stream_new_mem(INT64_MAX, nullptr));
  uint8_t *octets = nullptr;
  uint64_t count = 1;
  EXPECT_EQ(quarn_memstreamdeatch(s.get(), &octets, &count), 1);
  EXPECT_EQ(octets, nullptr);
  EXPECT_EQ(count, 0u);
  uint8_t *room = nullptr;
  uint64_t size = 0;
  ASSERT_EQ(quarn_memstream_reserve(s.get(), 100, &room, &size, nullptr), 1);
  ASSERT_GE(size, 100u);
  std::memset(room, 'r', size);
  EXPECT_LT(allocation.live_octets(), 20000u);  // a hint is no promise of octets to come
  EXPECT_EQ(quarn_memstream_commit(s.get(), size + 1), 0);
  EXPECT_EQ(quarn_memstream_commit(s.get(), size), 1);
  EXPECT_EQ(quarn_memstream_commit(s.get(), 1), 0);
  EXPECT_EQ(quarn_memstream_reserve(s.get(), UINT64_MAX, &room, nullptr, nullptr), 0);
  EXPECT_EQ(quarn_memstreamdeatch(s.get(), &octets, &count), 1);
  const Memory<uint8_t> owner(octets);
  EXPECT_EQ(octets, room);
  EXPECT_EQ(count, size);
  EXPECT_EQ(allocation.count(), 2u);
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

TEST(CallbackStream, copies_until_a_call_fails_or_gives_what_cannot_be) {
  for (const int64_t wrong : {int64_t{-1}, INT64_MIN, INT64_MAX}) {
    for (uint64_t n = 0; n < 6; n++) {  // four pieces and the end, and then a write
      Store from(std::vector<uint8_t>(10, 'x'));
      Store to;
      from.piece = 3;
      from.fail_at = n;
      from.wrong_result = wrong;
      to.fail_at = n == 5 ? 2 : UINT64_MAX;
      const Context ctx(quarn_err_ctx_new());
      uint64_t copied = 0;
      EXPECT_EQ(
          quarn_stream_writefromstream(to.stream().get(), from.stream().get(), ctx.get(), &copied),
          0);
      EXPECT_EQ(quarn_err_ctx_count(ctx.get()), 1u) << n;
      EXPECT_EQ(copied, n == 5 ? 6 : std::min<uint64_t>(3 * n, 10));
      EXPECT_EQ(to.octets.size(), copied);
    }
  }
}

Stream open_stream(const std::string &path, const char *mode, quarn_err_ctx *ctx = nullptr) {
  return Stream(quarn_stream_new_file(path.c_str(), mode, ctx));
}

std::string pattern(std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; i++) text.push_back(static_cast<char>('a' + i * i % 23));
  return text;
}

class FileStream : public ::testing::Test {
 protected:
  ~FileStream() override { std::filesystem::remove_all(directory_); }

  std::string path(const char *name) const { return directory_ + "/" + name; }
  std::string file_with(const std::string &content) const {
    std::ofstream(path("in"), std::ios::binary) << content;
    return path("in");
  }
  static std::string content_of(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  const std::string directory_ = mkdtemp(std::string("/tmp/quarn-stream-XXXXXX").data());
};

// A descriptor in the place of the standard input.
class StandardInput {
 public:
  explicit StandardInput(int descriptor) : saved_(dup(STDIN_FILENO)) {
    dup2(descriptor, STDIN_FILENO);
    close(descriptor);
  }
  ~StandardInput() {
    EXPECT_NE(fcntl(STDIN_FILENO, F_GETFD), -1) << "the standard input was closed";
    dup2(saved_, STDIN_FILENO);
    close(saved_);
  }

 private:
  int saved_;
};

TEST_F(FileStream, reads_seeks_and_skips_across_its_buffer) {
  const std::string content = pattern(200000);
  const Stream s = open_stream(file_with(content), "r");
  ASSERT_TRUE(s);
  EXPECT_EQ(length_of(s), content.size());
  for (const uint64_t target : {5u, 70000u, 69990u, 199999u, 0u, 65535u, 65536u}) {
    ASSERT_EQ(seek(s, target), 1);
    char c = 0;
    ASSERT_EQ(quarn_stream_readn(s.get(), &c, 1, nullptr), 1);
    EXPECT_EQ(c, content[target]) << target;
  }
  uint64_t position = 65537;
  for (const uint64_t count : {10u, 1000u, 66000u}) {
    ASSERT_EQ(quarn_stream_skip(s.get(), count, nullptr), 1);
    position += count;
    EXPECT_EQ(quarn_stream_position(s.get()), position);
  }
  EXPECT_EQ(quarn_stream_skip(s.get(), 100000, nullptr), 0);
  EXPECT_EQ(seek(s, position), 1);
  EXPECT_EQ(rest_of(s), content.substr(position));
}

TEST_F(FileStream, writes_small_and_large_pieces_in_order) {
  const std::string content = pattern(70000);
  std::string expected;
  {
    const Stream s = open_stream(path("out"), "w");
    ASSERT_TRUE(s);
    for (const int size : {1, 65535, 3, 70000, 65536, 2}) {
      ASSERT_EQ(quarn_stream_writen(s.get(), content.data(), size, nullptr), 1);
      expected += content.substr(0, static_cast<std::size_t>(size));
      EXPECT_EQ(length_of(s), expected.size());
    }
  }
  EXPECT_EQ(content_of(path("out")), expected);
}

TEST_F(FileStream, what_cannot_be_done_leaves_one_record_and_errno_alone) {
  const Context ctx(quarn_err_ctx_new());
  errno = 77;
  EXPECT_FALSE(open_stream(path("missing"), "r", ctx.get()));
  EXPECT_FALSE(open_stream(path("."), "r", ctx.get()));
  EXPECT_FALSE(open_stream(path("x"), "a", ctx.get()));
  const Stream out = open_stream("/dev/full", "w");
  EXPECT_EQ(control(out, QUARN_STREAM_REWIND, nullptr, ctx.get()), 0);
  EXPECT_EQ(quarn_stream_writen(out.get(), "abc", 3, ctx.get()), 1);
  EXPECT_EQ(quarn_stream_flush(out.get(), ctx.get()), 0);
  EXPECT_EQ(quarn_stream_writen(out.get(), "x", 1, ctx.get()), 0) << "what was lost stays lost";
  EXPECT_EQ(codes_in(ctx.get()),
            (std::vector<int>{0x10100, 0x10100, 0x10105, 0x10109, 0x10102, 0x10102}));
  EXPECT_EQ(errno, 77);
}

// Feeds a pipe, one that does not block, from a thread while the standard input reads from it.
TEST_F(FileStream, a_pipe_has_no_length_and_cannot_seek) {
  const std::string content = pattern(150000);
  int ends[2];
  ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
  const StandardInput input(ends[0]);
  fcntl(STDIN_FILENO, F_SETFL, O_NONBLOCK);
  std::thread feeder([&] {
    for (std::size_t i = 0; i < content.size(); i += 50000) {
      usleep(2000);
      EXPECT_EQ(write(ends[1], content.data() + i, 50000), 50000);
    }
    close(ends[1]);
  });
  const Stream s = open_stream("-", "r");
  EXPECT_EQ(length_of(s), UINT64_MAX);
  EXPECT_EQ(seek(s, 1), 0);
  EXPECT_EQ(quarn_stream_skip(s.get(), 100000, nullptr), 1);
  EXPECT_EQ(rest_of(s), content.substr(100000));
  EXPECT_EQ(control(s, QUARN_STREAM_ATEND), 1);
  feeder.join();
}

TEST_F(FileStream, standard_input_counts_from_where_it_stands) {
  const std::string content = pattern(100000);  // more than the buffer: rewinding has to seek
  const StandardInput input(open(file_with(content).c_str(), O_RDONLY | O_CLOEXEC));
  lseek(STDIN_FILENO, 4, SEEK_SET);
  const Stream s = open_stream("-", "r");
  EXPECT_EQ(length_of(s), content.size() - 4);
  EXPECT_EQ(quarn_stream_skip(s.get(), 99996, nullptr), 1);
  EXPECT_EQ(control(s, QUARN_STREAM_REWIND), 1);
  EXPECT_EQ(rest_of(s), content.substr(4));
}

TEST_F(FileStream, a_blob_holds_the_whole_file_in_memory_of_its_size) {
  for (const std::size_t size : {0u, 1u, 65535u, 65536u, 300000u}) {
    const std::string content = pattern(size);
    const std::string name = file_with(content);
    const Allocation allocation;
    const Blob blob(quarn_data_blob_fromfile(name.c_str(), nullptr));
    ASSERT_NE(blob, nullptr);
    EXPECT_EQ(std::string(blob->data, blob->data + blob->length), content);
    EXPECT_LT(allocation.peak_octets(), size + 67000);
  }
  // Claims to be empty and is not.
  EXPECT_GT(Blob(quarn_data_blob_fromfile("/proc/self/status", nullptr))->length, 100);
}

TEST_F(FileStream, and_other_streams_survive_lack_of_memory) {
  const std::string in = file_with(pattern(100000));
  fail_each_allocation([&](Allocation &allocation) {
    const Blob blob(quarn_data_blob_fromfile(in.c_str(), nullptr));
    EXPECT_TRUE(blob != nullptr || allocation.failed());
    const Stream out = open_stream(path("out"), "w");
    const bool written = out && quarn_stream_writen(out.get(), "abc", 3, nullptr) == 1 &&
                         quarn_stream_flush(out.get(), nullptr) == 1;
    EXPECT_TRUE(!written || content_of(path("out")) == "abc");
    uint8_t lent = 'a';
    const Stream copy(quarn_stream_new_romem(&lent, 1, 1, nullptr));
    lent = 'x';
    EXPECT_TRUE(copy ? rest_of(copy) == "a" : allocation.failed());
    const Stream s(quarn_stream_new_mem(16, nullptr));
    const Stream file = open_stream(in, "r");
    if (!s || !file) return;
    quarn_stream_writen(s.get(), "abc", 3, nullptr);
    const Stream duplicate(quarn_memstream_dup_readonly(s.get(), nullptr));
    const uint64_t before = length_of(s);
    uint64_t copied = 0;
    const int result = quarn_stream_writefromstream(s.get(), file.get(), nullptr, &copied);
    EXPECT_TRUE(result == 1 || allocation.failed());
    EXPECT_EQ(length_of(s), before + copied);
    uint8_t *octets = nullptr;
    quarn_memstreamdeatch(s.get(), &octets, nullptr);
    quarn_free(octets);
  });
}

}  // namespace
}  // namespace quarn::test
