// Runs every vector: from memory and from a slow stream, with the same value, count and records.
#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>

#include "quarn_asn1.h"
#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

void run(const Vector &vector, quarn_stream *stream) {
  const Context ctx(quarn_err_ctx_new());
  void *value = &value;  // shows a decoder that leaves its output alone
  std::uint64_t consumed = 0;
  const int result = quarn_asn1_decode(stream, vector.type, &value, &consumed, ctx.get());
  EXPECT_EQ(codes_in(ctx.get()), vector.codes);
  EXPECT_EQ(result, vector.out ? 1 : vector.result);
  if (vector.out) {
    EXPECT_EQ(consumed, vector.consumed.value_or(vector.in.size()));
  }
  if (vector.type == QUARN_ASN1_EOC) return;  // has no value
  const Held held(vector.type, result == 1 ? value : nullptr);
  if (!vector.out) {
    EXPECT_EQ(value, nullptr);
    return;
  }
  EXPECT_EQ(held.encoding(), *vector.out);
  EXPECT_EQ(held.encoding(), *vector.out) << "when encoded once more";
  const std::int64_t length = quarn_asn1_length(vector.type, held.get());
  if (length >= 0) {
    EXPECT_EQ(static_cast<std::size_t>(length), vector.out->size());
  }
}

class Vectors : public ::testing::TestWithParam<Vector> {};

TEST_P(Vectors, hold) {
  const Vector &vector = GetParam();
  Allocation allocation;
  {
    SCOPED_TRACE("from memory");
    run(vector, memory_stream(vector.in).get());
  }
  {
    SCOPED_TRACE("octet by octet");
    SlowSource source(vector.in);
    run(vector, source.stream().get());
  }
  EXPECT_EQ(allocation.live_blocks(), 0) << "leak";
}

// File and line.
std::string test_name(const ::testing::TestParamInfo<Vector> &info) {
  const std::string file = std::filesystem::path(info.param.file).stem();
  return file + "_" + std::to_string(info.param.line);
}

INSTANTIATE_TEST_SUITE_P(All,
                         Vectors,
                         ::testing::ValuesIn(read_vector_folder(QUARN_SOURCE_DIR "/tests/vectors")),
                         test_name);

}  // namespace

void PrintTo(const Vector &vector, std::ostream *out) {
  *out << vector.file << ":" << vector.line << ": " << vector.name;
}

}  // namespace quarn::test
