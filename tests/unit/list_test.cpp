// Lists: elements in and out, elements treated by functions of a caller, and the order of a SET OF.
#include <gtest/gtest.h>

#include <sstream>
#include <tuple>

#include "tests/support/allocation.h"
#include "tests/unit/values.h"

namespace quarn::test {
namespace {

using AnyList = std::unique_ptr<quarn_asn1_list,
                                decltype([](quarn_asn1_list *l) { quarn_asn1_anylist_free(l); })>;

// An OCTET STRING of one octet, as ANY.
quarn_asn1_any *element(int number) {
  const auto octet = static_cast<std::uint8_t>(number);
  return quarn_asn1_any_new(0, 1, 4, 1, &octet, 1);
}

AnyList list_of(int count) {
  AnyList list(quarn_asn1_list_new());
  for (int i = 0; i < count; i++) EXPECT_EQ(quarn_asn1_list_put(list.get(), element(i)), 1);
  return list;
}

std::vector<void *> elements_of(quarn_asn1_list *list) {
  std::vector<void *> elements;
  void *value = nullptr;
  for (int i = 0; quarn_asn1_list_get(list, i, &value) == 1; i++) elements.push_back(value);
  return elements;
}

TEST(List, refuses_what_is_not_there_and_hands_over_what_is_deleted) {
  const AnyList list = list_of(3);
  void *value = nullptr;
  for (const int index : {-1, 3, INT_MAX, INT_MIN}) {
    EXPECT_EQ(quarn_asn1_list_get(list.get(), index, &value), 0);
    EXPECT_EQ(quarn_asn1_list_delete(list.get(), index), nullptr);
  }
  EXPECT_EQ(quarn_asn1_list_put(list.get(), nullptr), 0);
  std::vector<void *> before = elements_of(list.get());
  const Held middle(QUARN_ASN1_ANY, quarn_asn1_list_delete(list.get(), 1));
  EXPECT_EQ(middle.get(), before[1]);
  before.erase(before.begin() + 1);
  EXPECT_EQ(elements_of(list.get()), before);
}

// Lists of elements that the standards want at least one of.
TEST(List, those_that_cannot_be_empty_are_refused) {
  std::istringstream names(
      "anylist_1 anyset_1 ers_attributes ers_attributeset ldapfilters ldapreferral ldapsubstrings "
      "ldapsearchresultreference pkcs1otherprimeinfos pkifreetext scvpacreferences scvpcertbundle "
      "scvpcertbundles scvpcertchecks scvppkcreferences scvpreplyobjects scvprevocationinfos "
      "scvpseqofoidnoempty scvptrustanchors scvpuserpolicyset scvpvalidationerrors scvpwantback");
  for (std::string name; names >> name;) {
    quarn_asn1_type_description type{};
    const std::int64_t id = quarn_asn1_type_find(name.c_str());
    ASSERT_EQ(quarn_asn1_type_describe(id, &type), 1) << name;
    const Octets empty{static_cast<std::uint8_t>(type.tag_class | 0x20 | type.tag_number), 0};
    EXPECT_EQ(Held(id, empty).consumed(), -1) << name;
  }
}

// Moving the others down each time would take minutes.
TEST(List, is_emptied_from_the_front_in_no_time_and_fills_again) {
  quarn_asn1_list *list = quarn_asn1_list_new();
  std::vector<char> elements(1'000'000);
  for (int round = 0; round < 2; round++) {
    for (char &element : elements) ASSERT_EQ(quarn_asn1_list_put(list, &element), 1);
    for (char &element : elements) ASSERT_EQ(quarn_asn1_list_delete(list, 0), &element);
    EXPECT_EQ(quarn_asn1_list_getsize(list), 0);
  }
  quarn_asn1_list_free_ex(list, nullptr);
}

TEST(List, lengths_that_are_no_count_are_handed_on) {
  const auto sum = [](std::vector<std::int64_t> lengths) {
    quarn_asn1_list *list = quarn_asn1_list_new();
    for (auto &length : lengths) EXPECT_EQ(quarn_asn1_list_put(list, &length), 1);
    const auto total = quarn_asn1_list_content_length_ex(
        list, [](const void *value) { return *static_cast<const std::int64_t *>(value); });
    quarn_asn1_list_free_ex(list, nullptr);
    return total;
  };
  EXPECT_EQ(sum({1, -1, -2}), -1);
  EXPECT_EQ(sum({1, -2, -1}), -2);
  EXPECT_EQ(sum({INT64_MAX - 1, 1}), INT64_MAX);
  EXPECT_EQ(sum({INT64_MAX, 1}), -2) << "too large for a count";
}

TEST(List, elements_of_a_type_are_decoded) {
  const auto decode = [](quarn_stream *s, void **value, std::int32_t form, std::int64_t count,
                         std::uint64_t *consumed, quarn_err_ctx *ctx) {
    return quarn_asn1_decode_content(s, QUARN_ASN1_INTEGER, value, form, count, consumed, ctx);
  };
  const auto release = [](void *value) { quarn_asn1_value_free(QUARN_ASN1_INTEGER, value); };
  // Codes by type id; functions do not record the element type's code.
  const std::tuple<const char *, std::int64_t, Codes> cases[] = {
      {"020105 020106", 6, {}},
      {"020105 020106 0000", -1, {}},
      {"020105", 2, {0x1020b}},
      {"020105", -2, {0x10001}},
      {"020105", -1, {0x10103, 0x102e5}},
      {"0001", -1, {0x10205, 0x102e9}},
      {"020105 0200", 5, {0x10203, 0x10210}},
  };
  for (const auto &[content, length, codes] : cases) {
    SCOPED_TRACE(content);
    for (const bool by_functions : {false, true}) {
      const Octets octets = hex(content);
      const Stream s = memory_stream(octets);
      const Context ctx(quarn_err_ctx_new());
      quarn_asn1_list *list = nullptr;
      std::uint64_t consumed = 0;
      const int result =
          by_functions ? quarn_asn1_decode_list_content_ex(s.get(), &list, decode, release, 0,
                                                           length, 0, 1, 2, &consumed, ctx.get())
                       : quarn_asn1_decode_list_content(s.get(), &list, QUARN_ASN1_INTEGER, 0,
                                                        length, 0, 1, 2, &consumed, ctx.get());
      Codes expected = codes;
      if (by_functions) std::erase(expected, 0x10210);
      EXPECT_EQ(codes_in(ctx.get()), expected);
      EXPECT_EQ(result, codes.empty() ? 1 : 0);
      EXPECT_EQ(list == nullptr ? 0 : quarn_asn1_list_getsize(list), codes.empty() ? 2 : 0);
      EXPECT_EQ(consumed, codes.empty() ? octets.size() : 0);
      quarn_asn1_list_free(list, QUARN_ASN1_INTEGER);
    }
  }
  quarn_asn1_list *list = nullptr;
  const Stream s = growable(hex("020105"));
  EXPECT_EQ(quarn_asn1_decode_list_content_ex(s.get(), &list, nullptr, release, 0, 3, 0, 1, 2,
                                              nullptr, nullptr),
            0);
  EXPECT_EQ(quarn_asn1_decode_list_content_ex(s.get(), &list, decode, nullptr, 0, 3, 0, 1, 2,
                                              nullptr, nullptr),
            0);
}

int encode_element(quarn_stream *s, void *value, std::uint64_t *written, quarn_err_ctx *ctx) {
  return quarn_asn1_encode_any(s, static_cast<quarn_asn1_any *>(value), written, ctx);
}

TEST(List, elements_are_encoded_in_order) {
  const AnyList list = list_of(2);
  EXPECT_EQ(quarn_asn1_anylist_length(list.get()), 6);
  const Stream s = growable();
  std::uint64_t written = 0;
  EXPECT_EQ(
      quarn_asn1_encode_list_content_ex(s.get(), list.get(), encode_element, -1, &written, nullptr),
      1);
  EXPECT_EQ(written, 8u);
  EXPECT_EQ(quarn_asn1_encode_anylist_content(s.get(), list.get(), 6, &written, nullptr), 1);
  EXPECT_EQ(written, 6u);
  EXPECT_EQ(held_by(s), hex("040100 040101 0000 040100 040101"));
  EXPECT_EQ(quarn_asn1_encode_anylist_content(s.get(), list.get(), -2, nullptr, nullptr), 0);
  const auto claim = [](quarn_stream *, void *, std::uint64_t *octets, quarn_err_ctx *) {
    *octets = UINT64_MAX;
    return 1;
  };
  EXPECT_EQ(
      quarn_asn1_encode_list_content_ex(s.get(), list_of(1).get(), claim, -1, &written, nullptr),
      0);
}

int write_octets(quarn_stream *s, void *value, std::uint64_t * /*written*/, quarn_err_ctx *ctx) {
  const auto *octets = static_cast<const Octets *>(value);
  return quarn_stream_writen(s, octets->data(), static_cast<std::int64_t>(octets->size()), ctx);
}

// X.690, 11.6: by octets, as if zeros followed the shorter.
TEST(SetOf, any_octets_sort_as_if_padded_with_zeros) {
  std::vector<Octets> sorted{{}, {0}, {4, 1}, {5}, {5, 0}, {5, 0, 0, 1}, {5, 1}, {0x80}, {0xFF}};
  quarn_asn1_list *list = quarn_asn1_list_new();
  for (std::size_t i = 0; i < 9; i++) quarn_asn1_list_put(list, &sorted[(i * 7 + 4) % 9]);
  EXPECT_EQ(quarn_asn1_list_sort_setof_ex(list, write_octets), 1);
  const std::vector<void *> after = elements_of(list);
  for (std::size_t i = 0; i < 9; i++) EXPECT_EQ(after[i], &sorted[i]) << i;
  quarn_asn1_list_free_ex(list, nullptr);
}

TEST(SetOf, a_failure_leaves_the_list_alone) {
  EXPECT_EQ(quarn_asn1_list_sort_setof(list_of(2).get(), -1), 0);
  fail_each_allocation([](Allocation &allocation) {
    const AnyList list(quarn_asn1_list_new());
    for (int i = 0; i < 9; i++) {
      quarn_asn1_any *v = element(9 - i);
      if (quarn_asn1_list_put(list.get(), v) == 1) continue;
      EXPECT_TRUE(allocation.failed());
      quarn_asn1_any_free(v);
    }
    const std::vector<void *> before = elements_of(list.get());
    if (quarn_asn1_list_sort_setof(list.get(), QUARN_ASN1_ANY) == 1) return;
    EXPECT_TRUE(allocation.failed());
    EXPECT_EQ(elements_of(list.get()), before);
  });
}

}  // namespace
}  // namespace quarn::test
