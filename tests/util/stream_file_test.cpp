// File streams, and reading a whole file.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>

#include "quarn_util.h"
#include "tests/support/allocation.h"
#include "tests/support/handles.h"

namespace {

using quarn::test::Allocation;
using quarn::test::fail_each_allocation;
using quarn::test::Records;
using quarn::test::rest_of;
using quarn::test::Stream;
using quarn::test::write_text;

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
  FileStream() {
    char name[] = "/tmp/quarn-stream-XXXXXX";
    directory_ = mkdtemp(name);
  }
  ~FileStream() override { std::filesystem::remove_all(directory_); }

  std::string path(const char *name) const { return directory_ + "/" + name; }
  std::string file_with(const std::string &content) const {
    std::ofstream(path("in"), std::ios::binary) << content;
    return path("in");
  }
  static std::string content_of(const std::string &path) {
    std::stringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
  }

 private:
  std::string directory_;
};

TEST_F(FileStream, reads_seeks_and_skips_across_its_buffer) {
  const std::string content = pattern(200000);
  Stream s = open_stream(file_with(content), "r");
  ASSERT_TRUE(s);
  EXPECT_EQ(quarn_stream_gettype(s.get()), 0x20002u);
  uint64_t length = 0;
  EXPECT_EQ(quarn_stream_ctrl(s.get(), QUARN_STREAM_LENGTH, &length, nullptr), 1);
  EXPECT_EQ(length, content.size());
  for (const uint64_t target : {5u, 70000u, 69990u, 199999u, 0u, 65535u, 65536u}) {
    uint64_t position = target;
    ASSERT_EQ(quarn_stream_ctrl(s.get(), QUARN_STREAM_SEEK, &position, nullptr), 1);
    char c = 0;
    ASSERT_EQ(quarn_stream_readn(s.get(), &c, 1, nullptr), 1);
    EXPECT_EQ(c, content[target]) << target;
    EXPECT_EQ(quarn_stream_position(s.get()), target + 1);
  }
  for (const uint64_t count : {10u, 1000u, 66000u}) {
    const uint64_t position = quarn_stream_position(s.get());
    ASSERT_EQ(quarn_stream_skip(s.get(), count, nullptr), 1);
    char pair[2];
    ASSERT_EQ(quarn_stream_readn(s.get(), pair, 2, nullptr), 1);
    EXPECT_EQ(std::string(pair, 2), content.substr(position + count, 2));
  }
  Records ctx;
  EXPECT_EQ(quarn_stream_skip(s.get(), 100000, ctx.get()), 0);
  EXPECT_EQ(quarn_stream_writen(s.get(), "x", 1, ctx.get()), 0);
  EXPECT_EQ(ctx.codes(), (std::vector<int>{0x10103, 0x10104}));
  EXPECT_EQ(quarn_stream_ctrl(s.get(), QUARN_STREAM_REWIND, nullptr, nullptr), 1);
  EXPECT_EQ(rest_of(s), content);
  EXPECT_EQ(quarn_stream_ctrl(s.get(), QUARN_STREAM_ATEND, nullptr, nullptr), 1);
}

TEST_F(FileStream, writes_small_and_large_pieces_in_order) {
  const std::string content = pattern(70000);
  Stream s = open_stream(path("out"), "w");
  ASSERT_TRUE(s);
  std::string expected;
  for (const std::size_t size : {1u, 65535u, 3u, 70000u, 65536u, 2u}) {
    ASSERT_EQ(quarn_stream_writen(s.get(), content.data(), static_cast<int64_t>(size), nullptr), 1);
    expected += content.substr(0, size);
    uint64_t length = 0;
    quarn_stream_ctrl(s.get(), QUARN_STREAM_LENGTH, &length, nullptr);
    EXPECT_EQ(length, expected.size());
  }
  EXPECT_LT(content_of(path("out")).size(), expected.size());
  EXPECT_EQ(quarn_stream_flush(s.get(), nullptr), 1);
  EXPECT_EQ(content_of(path("out")), expected);
  Records ctx;
  char c = 0;
  EXPECT_EQ(quarn_stream_readn(s.get(), &c, 1, ctx.get()), 0);
  EXPECT_EQ(quarn_stream_ctrl(s.get(), QUARN_STREAM_REWIND, nullptr, ctx.get()), 0);
  EXPECT_EQ(ctx.codes(), (std::vector<int>{0x10101, 0x10109}));
  write_text(s, "last");
  s.reset();
  EXPECT_EQ(content_of(path("out")), expected + "last");
}

TEST_F(FileStream, what_cannot_be_opened_leaves_one_record_and_errno_alone) {
  Records ctx;
  errno = 77;
  EXPECT_FALSE(open_stream(path("missing"), "r", ctx.get()));
  EXPECT_FALSE(open_stream(path("."), "r", ctx.get()));
  EXPECT_FALSE(open_stream(path("."), "w", ctx.get()));
  EXPECT_FALSE(open_stream(path("x"), "a", ctx.get()));
  EXPECT_EQ(quarn_stream_new_file(nullptr, "r", ctx.get()), nullptr);
  EXPECT_EQ(quarn_data_blob_fromfile(path("missing").c_str(), ctx.get()), nullptr);
  EXPECT_EQ(ctx.codes(), (std::vector<int>{0x10100, 0x10100, 0x10100, 0x10105, 0x10002, 0x10100}));
  EXPECT_EQ(errno, 77);
}

TEST_F(FileStream, a_full_device_is_reported_by_each_later_call) {
  Stream s = open_stream("/dev/full", "w");
  ASSERT_TRUE(s);
  EXPECT_EQ(write_text(s, "abc"), 1);
  Records ctx;
  EXPECT_EQ(quarn_stream_flush(s.get(), ctx.get()), 0);
  EXPECT_EQ(quarn_stream_writen(s.get(), "x", 1, ctx.get()), 0);
  EXPECT_EQ(quarn_stream_flush(s.get(), ctx.get()), 0);
  EXPECT_EQ(ctx.codes(), (std::vector<int>{0x10102, 0x10102, 0x10102}));
}

// Feeds a pipe, one that does not block, from a thread while the standard input reads from it.
TEST_F(FileStream, a_pipe_has_no_length_and_cannot_seek) {
  const std::string content = pattern(150000);
  int ends[2];
  ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
  const int saved = dup(STDIN_FILENO);
  dup2(ends[0], STDIN_FILENO);
  fcntl(STDIN_FILENO, F_SETFL, O_NONBLOCK);
  close(ends[0]);
  std::thread feeder([&] {
    for (std::size_t i = 0; i < content.size(); i += 50000) {
      usleep(2000);
      EXPECT_EQ(write(ends[1], content.data() + i, 50000), 50000);
    }
    close(ends[1]);
  });
  Stream s = open_stream("-", "r");
  ASSERT_TRUE(s);
  uint64_t number = 0;
  Records ctx;
  EXPECT_EQ(quarn_stream_ctrl(s.get(), QUARN_STREAM_LENGTH, &number, nullptr), 1);
  EXPECT_EQ(number, UINT64_MAX);
  number = 1;
  EXPECT_EQ(quarn_stream_ctrl(s.get(), QUARN_STREAM_SEEK, &number, ctx.get()), 0);
  EXPECT_EQ(ctx.codes(), std::vector<int>{0x10107});
  EXPECT_EQ(quarn_stream_skip(s.get(), 100, nullptr), 1);
  EXPECT_EQ(quarn_stream_skip(s.get(), 99900, nullptr), 1);
  EXPECT_EQ(rest_of(s), content.substr(100000));
  EXPECT_EQ(quarn_stream_ctrl(s.get(), QUARN_STREAM_ATEND, nullptr, nullptr), 1);
  s.reset();
  feeder.join();
  EXPECT_NE(fcntl(STDIN_FILENO, F_GETFD), -1) << "the standard input was closed";
  dup2(saved, STDIN_FILENO);
  close(saved);
}

TEST_F(FileStream, standard_input_counts_from_where_it_stands) {
  const std::string content = pattern(100000);  // more than the buffer: rewinding has to seek
  const int saved = dup(STDIN_FILENO);
  const int descriptor = open(file_with(content).c_str(), O_RDONLY | O_CLOEXEC);
  dup2(descriptor, STDIN_FILENO);
  close(descriptor);
  lseek(STDIN_FILENO, 4, SEEK_SET);
  Stream s = open_stream("-", "r");
  uint64_t length = 0;
  EXPECT_EQ(quarn_stream_ctrl(s.get(), QUARN_STREAM_LENGTH, &length, nullptr), 1);
  EXPECT_EQ(length, content.size() - 4);
  EXPECT_EQ(rest_of(s), content.substr(4));
  EXPECT_EQ(quarn_stream_ctrl(s.get(), QUARN_STREAM_REWIND, nullptr, nullptr), 1);
  EXPECT_EQ(rest_of(s), content.substr(4));
  dup2(saved, STDIN_FILENO);
  close(saved);
}

TEST_F(FileStream, a_blob_holds_the_whole_file_in_memory_of_its_size) {
  for (const std::size_t size : {0u, 1u, 65535u, 65536u, 300000u}) {
    const std::string content = pattern(size);
    const std::string name = file_with(content);
    Allocation allocation;
    quarn_data_blob *blob = quarn_data_blob_fromfile(name.c_str(), nullptr);
    ASSERT_NE(blob, nullptr);
    EXPECT_EQ(std::string(blob->data, blob->data + blob->length), content);
    EXPECT_LT(allocation.peak_octets(), size + 67000);
    quarn_data_blob_free(blob);
    EXPECT_EQ(allocation.live_blocks(), 0);
  }
  // Claims to be empty and is not.
  quarn_data_blob *blob = quarn_data_blob_fromfile("/proc/self/status", nullptr);
  ASSERT_NE(blob, nullptr);
  EXPECT_GT(blob->length, 100);
  quarn_data_blob_free(blob);
}

TEST_F(FileStream, survives_lack_of_memory) {
  const std::string in = file_with(pattern(100000));
  fail_each_allocation([&](Allocation &allocation) {
    Records ctx;
    quarn_data_blob *blob = quarn_data_blob_fromfile(in.c_str(), ctx.get());
    EXPECT_TRUE(blob != nullptr || allocation.failed());
    quarn_data_blob_free(blob);
    Stream s = open_stream(path("out"), "w", ctx.get());
    if (s) {
      const bool written = write_text(s, "abc") == 1 && quarn_stream_flush(s.get(), nullptr) == 1;
      EXPECT_EQ(content_of(path("out")), written ? "abc" : "");
    }
  });
}

}  // namespace
