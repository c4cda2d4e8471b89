// The examples of docs/json.md hold. Each is a fenced block whose first line says which octets the
// document stands for.
#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "tests/support/json.h"

namespace quarn::test {
namespace {

constexpr char kReads[] = "reads as ";

void check_example(const std::string &head, const std::string &body) {
  SCOPED_TRACE(head);
  const Json document = parse(body);
  ASSERT_NE(document, nullptr) << body;
  if (head == "refused") {
    EXPECT_EQ(encoded(document), "null");
    return;
  }
  const bool one_way = head.starts_with(kReads);
  const std::string octets = from_hex(one_way ? head.substr(sizeof kReads - 1) : head);
  ASSERT_FALSE(octets.empty());
  EXPECT_EQ(encoded(document), to_hex(octets));
  EXPECT_EQ(rendered(octets) == printed(document), !one_way);
}

TEST(JsonDocument, examples_of_the_documentation_hold) {
  std::ifstream page(QUARN_SOURCE_DIR "/docs/json.md");
  int examples = 0;
  for (std::string line; std::getline(page, line);) {
    if (line != "```json") continue;
    ASSERT_TRUE(std::getline(page, line) && line.starts_with("// "));
    const std::string head = line.substr(3);
    std::string body;
    while (std::getline(page, line) && line != "```") body += line + "\n";
    check_example(head, body);
    examples++;
  }
  EXPECT_GE(examples, 15);
}

}  // namespace
}  // namespace quarn::test
