#include <gtest/gtest.h>

#include <string_view>

#include "types/string.h"

namespace {

using quarn::asn1::Buffer;
using quarn::asn1::gather_octets;
using quarn::asn1::kIndefinite;
using quarn::asn1::Reader;

TEST(OctetString, segments_are_gathered_behind_what_a_buffer_holds) {
  const std::uint8_t octets[] = {0x04, 1, 'b', 0x24, 3, 0x04, 1, 'c', 0x24, 0x80, 0, 0, 0, 0};
  Reader in(octets, sizeof octets, nullptr);
  Buffer out;
  ASSERT_TRUE(out.append("a", 1));
  ASSERT_TRUE(gather_octets(in, false, kIndefinite, out));
  EXPECT_EQ(std::string_view(reinterpret_cast<const char *>(out.data()), out.size()), "abc");
  EXPECT_EQ(in.count(), sizeof octets);
}

}  // namespace
