#include "bench/walk.h"

#include "core/header.h"

namespace bench {

Seen walk_inside(const std::uint8_t *octets, std::size_t count, Seen seen) {
  using namespace quarn::asn1;
  Reader in(octets, count, nullptr);
  while (in.left() > 0) {
    Identifier identifier{};
    std::int64_t length = 0;
    if (!read_identifier(in, identifier) || !read_length(in, length)) return {};
    seen.add(identifier.number, static_cast<std::uint64_t>(length));
    const std::uint64_t step = identifier.primitive ? static_cast<std::uint64_t>(length) : 0;
    if (step > in.left()) return {};
    in.advance(step);
  }
  return seen;
}

}  // namespace bench
