// What holds for every structured type, tried on the samples made from the notation.
#include <gtest/gtest.h>

#include <optional>

#include "core/build.h"
#include "tests/laws/use.h"
#include "tests/support/allocation.h"

namespace quarn::test {
namespace {

struct Element {
  Octets identifier;
  Octets content;              // of a primitive element
  std::vector<Element> parts;  // of a constructed one

  bool constructed() const { return (identifier[0] & 0x20) != 0; }
};

// The elements of some octets; none unless all are whole and of definite length.
std::optional<std::vector<Element>> elements_of(const Octets &octets) {
  std::vector<Element> elements;
  const auto size = static_cast<std::int64_t>(octets.size());
  for (std::int64_t at = 0; at < size;) {
    quarn_asn1_header header{};
    if (quarn_asn1_mem_header(octets.data() + at, size - at, &header) != 1) return std::nullopt;
    const std::int64_t start = at + static_cast<std::int64_t>(header.header_length);
    if (header.content_length < 0 || header.content_length > size - start) return std::nullopt;
    const std::int64_t end = start + header.content_length;
    const auto number = static_cast<std::int64_t>(header.tag_number);
    Element &element = elements.emplace_back();
    element.identifier =
        Octets(octets.begin() + at, octets.begin() + at + quarn_asn1_identifier_length(number));
    element.content = Octets(octets.begin() + start, octets.begin() + end);
    at = end;
    if (!element.constructed()) continue;
    auto parts = elements_of(element.content);
    if (!parts) return std::nullopt;
    element.parts = std::move(*parts);
  }
  return elements;
}

enum class Lengths { definite, indefinite };  // of constructed elements

Octets written(const std::vector<Element> &elements, Lengths lengths) {
  Octets octets;
  for (const Element &element : elements) {
    const Octets content =
        element.constructed() ? written(element.parts, lengths) : element.content;
    octets.insert(octets.end(), element.identifier.begin(), element.identifier.end());
    const bool indefinite = element.constructed() && lengths == Lengths::indefinite;
    if (indefinite) {
      octets.push_back(0x80);
    } else if (content.size() < 0x80) {
      octets.push_back(static_cast<std::uint8_t>(content.size()));
    } else {
      octets.insert(octets.end(), {0x82, static_cast<std::uint8_t>(content.size() >> 8),
                                   static_cast<std::uint8_t>(content.size())});
    }
    octets.insert(octets.end(), content.begin(), content.end());
    if (indefinite) octets.insert(octets.end(), {0, 0});
  }
  return octets;
}

// Calls visit for the parts of every constructed element, which it may change for a while.
void for_each_parts(std::vector<Element> &elements,
                    const std::function<void(std::vector<Element> &)> &visit) {
  for (Element &element : elements) {
    if (!element.constructed()) continue;
    visit(element.parts);
    for_each_parts(element.parts, visit);
  }
}

TEST(Structure, der_is_written_anew_and_indefinite_lengths_are_kept_with_the_octets) {
  for_each(structured_samples(), [](const Vector &sample) {
    const Held definite(sample.type, sample.in);
    EXPECT_TRUE(is_whole(sample.type, definite.get()));
    EXPECT_EQ(fresh_encoding_of(sample.type, definite.get()), *sample.out);
    const Octets indefinite = written(*elements_of(sample.in), Lengths::indefinite);
    use(sample.type, indefinite);
    const Held decoded(sample.type, indefinite);
    ASSERT_EQ(decoded.consumed(), static_cast<std::int64_t>(indefinite.size()));
    const asn1::Schema &schema = *asn1::find_type(sample.type)->schema;
    if (schema.keeps_octets()) {
      EXPECT_EQ(encoding_of(sample.type, decoded.get()), indefinite);
    }
    const bool as_it_came = schema.layout != nullptr;
    EXPECT_EQ(fresh_encoding_of(sample.type, decoded.get()), as_it_came ? indefinite : *sample.out);
  });
}

TEST(Structure, parts_missing_doubled_swapped_or_emptied_give_an_error_or_a_sound_value) {
  Allocation allocation;
  for_each_sample(600, [](const Vector &sample) {
    auto whole = elements_of(sample.in);
    if (!whole) return;
    for_each_parts(*whole, [&](std::vector<Element> &parts) {
      const std::vector<Element> original = parts;
      const auto use_changed = [&] {
        use(sample.type, written(*whole, Lengths::definite));
        parts = original;
      };
      for (std::size_t i = 0; i < original.size(); i++) {
        const auto at = static_cast<std::ptrdiff_t>(i);
        parts.erase(parts.begin() + at);
        use_changed();
        parts.insert(parts.begin() + at, original[i]);
        use_changed();
        std::swap(parts[i], parts[(i + 1) % parts.size()]);
        use_changed();
        parts[i].content.clear();
        parts[i].parts.clear();
        use_changed();
      }
    });
  });
  EXPECT_EQ(allocation.live_blocks(), 0);
}

// The components of a record, as its constructor is given them.
std::vector<const void *> parts_of(quarn_asn1_type_id id, void *value) {
  void **parts = asn1::components(value);
  return std::vector<const void *>(parts, parts + asn1::type_of(id).schema->fields.size());
}

// A value made of the components of another, as its constructor makes it. Lists have none.
void *build_from(quarn_asn1_type_id id, void *value) {
  if (!asn1::type_of(id).schema->is_choice()) return asn1::build_record(id, parts_of(id, value));
  const std::uint64_t number = asn1::alternative_number(asn1::type_of(id), value);
  return asn1::build_alternative(id, number, asn1::alternative_of(id, value, number));
}

TEST(Structure, values_are_built_from_components_or_not_at_all) {
  for_each(structured_samples(), [](const Vector &sample) {
    const auto id = static_cast<quarn_asn1_type_id>(sample.type);
    if (asn1::type_of(id).schema->is_list()) return;
    fail_each_allocation([&](Allocation &allocation) {
      const Held decoded(sample.type, sample.in);
      if (decoded.get() == nullptr) return;
      const Held built(sample.type, build_from(id, decoded.get()));
      EXPECT_TRUE(built.get() != nullptr || allocation.failed());
      allocation.never_fail();
      EXPECT_EQ(built.encoding(), built.get() == nullptr ? Octets{} : *sample.out);
      EXPECT_EQ(fresh_encoding_of(sample.type, decoded.get()), *sample.out) << "unharmed";
    });
  });
}

TEST(Structure, what_is_mandatory_must_be_given_and_nothing_else) {
  for_each(structured_samples(), [](const Vector &sample) {
    const auto id = static_cast<quarn_asn1_type_id>(sample.type);
    const asn1::Schema &schema = *asn1::type_of(id).schema;
    if (schema.is_list() || schema.is_choice()) return;
    const Held decoded(sample.type, sample.in);
    for (std::size_t i = 0; i < schema.fields.size(); i++) {
      std::vector<const void *> parts = parts_of(id, decoded.get());
      parts[i] = nullptr;
      const Held built(id, asn1::build_record(id, parts));
      const bool may_go = !schema.fields[i].mandatory() && asn1::allowed(schema, parts.data());
      EXPECT_EQ(built.get() != nullptr, may_go) << schema.fields[i].name;
      EXPECT_TRUE(is_whole(id, built.get()));
    }
  });
}

}  // namespace
}  // namespace quarn::test
