// Runs every vector: from memory and from a slow stream, with the same value, count and records.
#include <gtest/gtest.h>

#include <sstream>

#include "quarn_asn1.h"
#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

struct Outcome {
  int result;
  std::uint64_t consumed;
  void *value;
  std::vector<int> codes;
};

Outcome decode_from(quarn_stream *stream, std::int64_t type) {
  const Context ctx(quarn_err_ctx_new());
  // A poisoned pointer shows a decoder that leaves its output alone.
  Outcome outcome{0, 0, &outcome, {}};
  outcome.result = quarn_asn1_decode(stream, type, &outcome.value, &outcome.consumed, ctx.get());
  outcome.codes = codes_in(ctx.get());
  return outcome;
}

void expect_success(const Vector &vector, const Outcome &outcome) {
  EXPECT_EQ(outcome.result, 1);
  EXPECT_EQ(outcome.consumed, vector.consumed.value_or(vector.in.size()));
  if (outcome.result != 1) return;
  if (vector.type == QUARN_ASN1_EOC) return;  // has no value
  EXPECT_EQ(encoding_of(vector.type, outcome.value), *vector.out);
  EXPECT_EQ(encoding_of(vector.type, outcome.value), *vector.out) << "when encoded once more";
  const std::int64_t length = quarn_asn1_length(vector.type, outcome.value);
  if (length >= 0) {
    EXPECT_EQ(static_cast<std::size_t>(length), vector.out->size());
  }
  quarn_asn1_value_free(vector.type, outcome.value);
}

void expect_failure(const Vector &vector, const Outcome &outcome) {
  EXPECT_EQ(outcome.result, vector.result);
  if (vector.type != QUARN_ASN1_EOC) {
    EXPECT_EQ(outcome.value, nullptr);
  }
  if (outcome.result == 1) quarn_asn1_value_free(vector.type, outcome.value);
}

void run(const Vector &vector, quarn_stream *stream) {
  const Outcome outcome = decode_from(stream, vector.type);
  EXPECT_EQ(outcome.codes, vector.codes);
  vector.out ? expect_success(vector, outcome) : expect_failure(vector, outcome);
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

std::string test_name(const ::testing::TestParamInfo<Vector> &info) {
  const std::string &path = info.param.file;
  const std::size_t from = path.rfind('/') + 1;
  std::string name = path.substr(from, path.rfind('.') - from) + "_" + info.param.name;
  for (char &c : name) {
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  }
  return name + "_" + std::to_string(info.param.line);
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
