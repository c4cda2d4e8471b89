// Whatever containers.py made: each file comes back octet for octet, of the type its folder names.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "quarn_asn1.h"
#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

constexpr int kLeastTypes = 30;
constexpr int kLeastFiles = 140;

TEST(Containers, come_back_octet_for_octet) {
  const char *folder = std::getenv("QUARN_CONTAINERS");
  if (folder == nullptr) GTEST_SKIP() << "QUARN_CONTAINERS names no folder";
  Allocation allocation;
  int types = 0;
  int files = 0;
  for (std::int64_t type = 0; type < QUARN_ASN1_TYPE_COUNT; type++) {
    quarn_asn1_type_description description{};
    ASSERT_EQ(quarn_asn1_type_describe(type, &description), 1);
    const std::filesystem::path of_type = std::filesystem::path(folder) / description.name;
    if (!std::filesystem::exists(of_type)) continue;
    types++;
    for (const auto &entry : std::filesystem::directory_iterator(of_type)) {
      SCOPED_TRACE(entry.path().string());
      std::ifstream file(entry.path(), std::ios::binary);
      const Octets octets(std::istreambuf_iterator<char>(file), {});
      const Held value(type, octets);
      EXPECT_EQ(value.encoding(), octets);
      quarn_asn1_forget_octets(type, value.get());
      EXPECT_EQ(value.encoding(), octets) << "with nothing kept";
      files++;
    }
  }
  EXPECT_GE(types, kLeastTypes);
  EXPECT_GE(files, kLeastFiles);
  EXPECT_EQ(allocation.live_blocks(), 0);
}

}  // namespace
}  // namespace quarn::test
