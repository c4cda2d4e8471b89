// File streams, and reading a whole file.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>

#include "quarn_util.h"
#include "tests/support/allocation.h"
#include "tests/support/streams.h"

namespace quarn::test {
namespace {

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

TEST_F(FileStream, survives_lack_of_memory) {
  const std::string in = file_with(pattern(100000));
  fail_each_allocation([&](Allocation &allocation) {
    const Blob blob(quarn_data_blob_fromfile(in.c_str(), nullptr));
    EXPECT_TRUE(blob != nullptr || allocation.failed());
    const Stream s = open_stream(path("out"), "w");
    if (!s) return;
    const bool written = quarn_stream_writen(s.get(), "abc", 3, nullptr) == 1 &&
                         quarn_stream_flush(s.get(), nullptr) == 1;
    EXPECT_EQ(content_of(path("out")), written ? "abc" : "");
  });
}

}  // namespace
}  // namespace quarn::test
