// Octets that names and signed objects keep: where they lie, what drops them, what a failure
// leaves.
#include <gtest/gtest.h>

#include <thread>

#include "core/build.h"
#include "core/engine.h"
#include "tests/support/allocation.h"
#include "tests/unit/values.h"
#include "types/list.h"

namespace quarn::asn1 {
namespace {

using test::Allocation;
using test::Codes;
using test::Context;
using test::encoding_of;
using test::fail_each_allocation;
using test::growable;
using test::held_by;
using test::Octets;

Octets operator+(Octets a, const Octets &b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

// An element of less than 128 octets of content, and one of indefinite length.
Octets der(std::uint8_t identifier, const Octets &content) {
  return Octets{identifier, static_cast<std::uint8_t>(content.size())} + content;
}
Octets ber(std::uint8_t identifier, const Octets &content) {
  return Octets{identifier, 0x80} + content + Octets{0, 0};
}

const Octets kAlgorithm{0x30, 3, 6, 1, 0x2A};
const Octets kSignature{0x03, 2, 0, 0xAA};
const Octets kNameContent{0x31, 8, 0x30, 6, 6, 1, 0x55, 0x13, 1, 'A'};
const Octets kKey = der(0x30, kAlgorithm + kSignature);

// A certification request, which has the smallest body, with a name in BER.
const Octets kRequestBody =
    ber(0x30, Octets{2, 1, 0} + ber(0x30, kNameContent) + kKey + Octets{0xA0, 0});
const Octets kRequest = ber(0x30, kRequestBody + kAlgorithm + kSignature);
const Octets kRequestBodyInDer =
    der(0x30, Octets{2, 1, 0} + der(0x30, kNameContent) + kKey + Octets{0xA0, 0});
const Octets kRequestInDer = der(0x30, kRequestBodyInDer + kAlgorithm + kSignature);

constexpr auto kRequestId = QUARN_ASN1_PKCS10CERTREQ;

class Held {
 public:
  Held(quarn_asn1_type_id id, void *value) : id_(id), value_(value) {}
  Held(quarn_asn1_type_id id, const Octets &octets) : id_(id) {
    quarn_asn1_mem_decode(octets.data(), static_cast<std::int64_t>(octets.size()), id, &value_);
  }
  Held(const Held &) = delete;
  Held &operator=(const Held &) = delete;
  ~Held() { quarn_asn1_value_free(id_, value_); }

  void *get() const { return value_; }
  Octets encoding() const { return encoding_of(id_, value_); }
  const Kept *kept() const { return kept_by(*type_of(id_).schema, value_); }
  void drop() { quarn_asn1_forget_octets(id_, value_); }

 private:
  quarn_asn1_type_id id_;
  void *value_ = nullptr;
};

void *subject_of(const Held &request) {
  return component(component(request.get(), 0), 1);
}

Octets body_octets_of(void *request) {
  std::uint64_t size = 0;
  EXPECT_EQ(body_octets(kRequestId, request, nullptr, &size), 1);
  Octets octets(size);
  EXPECT_EQ(body_octets(kRequestId, request, octets.data(), &size), 1);
  return octets;
}

// A name with one value, which it takes over.
void *name_around(quarn_asn1_any *value) {
  void *pair = new_record(*type_of(QUARN_ASN1_X500ATTRTYPEDISTVAL).schema);
  components(pair)[0] = quarn_asn1_oid_new("2.5");
  components(pair)[1] = value;
  components(pair)[2] = quarn_asn1_boolean_true();
  quarn_asn1_list *rdn = quarn_asn1_list_new();
  quarn_asn1_list_put(rdn, pair);
  void *name = build_empty_list(QUARN_ASN1_X500NAME);
  quarn_asn1_list_put(static_cast<quarn_asn1_list *>(component(name, 0)), rdn);
  return name;
}

TEST(Keep, one_block_holds_what_an_object_and_its_parts_keep) {
  Held request(kRequestId, kRequest);
  ASSERT_NE(request.get(), nullptr);
  const Kept *kept = request.kept();
  const Kept *name = kept_by(*type_of(QUARN_ASN1_X500NAME).schema, subject_of(request));
  EXPECT_EQ(kept[0].count, kRequest.size());
  EXPECT_EQ(kept[1].block, kept[0].block);
  EXPECT_EQ(kept[1].octets, kept[0].octets + 2);
  EXPECT_EQ(name->block, kept[0].block);
  EXPECT_EQ(name->octets, kept[1].octets + 5);
  EXPECT_EQ(body_octets_of(request.get()), kRequestBody);
  EXPECT_EQ(quarn_asn1_length(kRequestId, request.get()),
            static_cast<std::int64_t>(kRequest.size()));
}

TEST(Keep, what_is_dropped_is_encoded_anew_into_one_block) {
  Held request(kRequestId, kRequest);
  request.drop();
  EXPECT_EQ(request.encoding(), kRequestInDer);
  const Kept *kept = request.kept();
  const Kept *name = kept_by(*type_of(QUARN_ASN1_X500NAME).schema, subject_of(request));
  EXPECT_EQ(kept[1].block, kept[0].block);
  EXPECT_EQ(name->block, kept[0].block);
  EXPECT_EQ(body_octets_of(request.get()), kRequestBodyInDer);
  EXPECT_EQ(encoding_of(QUARN_ASN1_X500NAME, subject_of(request)), der(0x30, kNameContent));

  drop_encoding(*type_of(kRequestId).schema, request.get());
  EXPECT_EQ(request.encoding(), kRequestInDer) << "around the body that is still kept";
  request.drop();
  EXPECT_EQ(body_octets_of(request.get()), kRequestBodyInDer) << "before anything is encoded";
}

TEST(Keep, what_has_nothing_to_forget_forgets_what_lies_in_it) {
  Held names(QUARN_ASN1_X509GENERALNAMES, der(0x30, ber(0xA4, ber(0x30, kNameContent))));
  EXPECT_EQ(names.encoding(), der(0x30, der(0xA4, ber(0x30, kNameContent))));
  names.drop();
  EXPECT_EQ(names.encoding(), der(0x30, der(0xA4, der(0x30, kNameContent))));

  Held number(QUARN_ASN1_INTEGER, {2, 2, 0, 5});
  number.drop();
  EXPECT_EQ(number.encoding(), (Octets{2, 2, 0, 5})) << "content, not what is kept besides";
  quarn_asn1_forget_octets(kRequestId, nullptr);
  quarn_asn1_forget_octets(-1, number.get());
  quarn_asn1_forget_octets(QUARN_ASN1_TYPE_COUNT, number.get());
}

TEST(Keep, dropping_an_outer_encoding_leaves_those_inside) {
  Held request(kRequestId, kRequest);
  drop_encoding(*type_of(kRequestId).schema, request.get());
  EXPECT_EQ(request.encoding(), der(0x30, kRequestBody + kAlgorithm + kSignature));
  EXPECT_EQ(encoding_of(QUARN_ASN1_X500NAME, subject_of(request)), ber(0x30, kNameContent));
}

TEST(Keep, octets_outlive_the_object_a_part_was_taken_from) {
  const Octets general = der(0xA4, ber(0x30, kNameContent));
  const Octets times =
      der(0x18, Octets{'2', '0', '5', '0', '0', '1', '0', '1', '0', '0', '0', '0', '0', '0', 'Z'});
  const Octets info = der(0x30, Octets{2, 1, 1} + der(0x30, der(0xA1, general)) +
                                    Octets{0xA0, 4, 0x30, 2, 0x82, 0} + kAlgorithm +
                                    Octets{2, 1, 1} + der(0x30, times + times) + Octets{0x30, 0});
  void *taken = nullptr;
  {
    Held certificate(QUARN_ASN1_ATTRIBUTECERTIFICATE, der(0x30, info + kAlgorithm + kSignature));
    ASSERT_NE(certificate.get(), nullptr);
    const void *holder = component(component(certificate.get(), 0), 1);
    taken = quarn_asn1_list_delete(static_cast<quarn_asn1_list *>(component(holder, 1)), 0);
  }
  const Held name(QUARN_ASN1_X509GENERALNAME, taken);
  EXPECT_EQ(name.encoding(), general);

  Held request(kRequestId, kRequest);
  void *body = component(request.get(), 0);
  components(request.get())[0] = nullptr;
  request.drop();
  const Held kept(QUARN_ASN1_PKCS10CERTREQINFO, body);
  EXPECT_EQ(encoding_of(QUARN_ASN1_X500NAME, component(body, 1)), ber(0x30, kNameContent));
}

TEST(Keep, parts_of_one_object_may_go_on_different_threads) {
  for (int i = 0; i < 100; i++) {
    const auto request = std::make_unique<Held>(kRequestId, kRequest);
    void *body = component(request->get(), 0);
    components(request->get())[0] = nullptr;
    std::thread other([body] { quarn_asn1_value_free(QUARN_ASN1_PKCS10CERTREQINFO, body); });
    request->drop();
    other.join();
  }
}

TEST(Keep, an_indefinite_length_inside_makes_those_around_it_indefinite) {
  const Octets value = ber(0x30, {5, 0});
  void *any = nullptr;
  ASSERT_GT(quarn_asn1_mem_decode(value.data(), static_cast<std::int64_t>(value.size()),
                                  QUARN_ASN1_ANY, &any),
            0);
  Held name(QUARN_ASN1_X500NAME, name_around(static_cast<quarn_asn1_any *>(any)));
  EXPECT_EQ(quarn_asn1_length(QUARN_ASN1_X500NAME, name.get()), -1);
  const Octets octets = ber(0x30, ber(0x31, ber(0x30, Octets{6, 1, 0x55} + value)));
  EXPECT_EQ(name.encoding(), octets);
  EXPECT_EQ(name.encoding(), octets);
  EXPECT_EQ(quarn_asn1_length(QUARN_ASN1_X500NAME, name.get()),
            static_cast<std::int64_t>(octets.size()));

  // Inside an object: the name is definite there, since its octets are kept; without them nothing
  // is.
  Held request(kRequestId, kRequest);
  quarn_asn1_value_free(QUARN_ASN1_X500NAME, subject_of(request));
  components(component(request.get(), 0))[1] = copy_of(QUARN_ASN1_X500NAME, name.get());
  drop_encoding(*type_of(kRequestId).schema, request.get());
  request.drop();
  const Octets body = ber(0x30, Octets{2, 1, 0} + octets + kKey + Octets{0xA0, 0});
  EXPECT_EQ(request.encoding(), ber(0x30, body + kAlgorithm + kSignature));
  EXPECT_EQ(body_octets_of(request.get()), body);
}

TEST(Keep, nothing_is_kept_when_encoding_fails) {
  const std::uint8_t octets[] = {'a', 'b', 'c', 'd'};
  for (const std::int64_t claimed : {2, 3, 5}) {
    Held name(QUARN_ASN1_X500NAME, name_around(quarn_asn1_any_new(0, 1, 19, claimed, octets, 4)));
    const Context ctx(quarn_err_ctx_new());
    const test::Stream out = growable();
    EXPECT_EQ(quarn_asn1_encode(out.get(), QUARN_ASN1_X500NAME, name.get(), nullptr, ctx.get()), 0);
    EXPECT_EQ(test::codes_in(ctx.get()), (Codes{0x10235, 0x10235, 0x10246, 0x10248}));
    EXPECT_STREQ(quarn_err_ctx_path(ctx.get()), "[0][0].value");
    EXPECT_FALSE(name.kept()->valid());
    EXPECT_EQ(held_by(out), Octets{}) << "nothing reaches the output";
  }
}

TEST(Keep, a_body_goes_to_a_buffer_that_is_large_enough) {
  Held request(kRequestId, kRequest);
  std::uint64_t size = kRequestBody.size() - 1;
  std::uint8_t buffer[100] = {};
  EXPECT_EQ(body_octets(kRequestId, request.get(), buffer, &size), 0);
  EXPECT_EQ(size, kRequestBody.size());
  EXPECT_EQ(buffer[0], 0);
  EXPECT_EQ(body_octets(kRequestId, request.get(), buffer, &size), 1);
  EXPECT_EQ(Octets(buffer, buffer + size), kRequestBody);
  EXPECT_EQ(body_octets(kRequestId, nullptr, buffer, &size), 0);
  EXPECT_EQ(body_octets(kRequestId, request.get(), buffer, nullptr), 0);
}

TEST(Keep, every_failed_allocation_leaves_sound_values) {
  fail_each_allocation([](Allocation &allocation) {
    Held request(kRequestId, kRequest);
    if (request.get() == nullptr) return;
    request.drop();
    const Octets encoding = request.encoding();
    EXPECT_TRUE(encoding == kRequestInDer || (encoding.empty() && allocation.failed()));
    request.drop();
    std::uint64_t size = 0;
    const int result = body_octets(kRequestId, request.get(), nullptr, &size);
    EXPECT_TRUE(allocation.failed() || result == 1);
    drop_encoding(*type_of(kRequestId).schema, request.get());
    const Held copy(kRequestId, copy_of(kRequestId, request.get()));
    const Held built(kRequestId,
                     build<void>(kRequestId, component(request.get(), 0),
                                 component(request.get(), 1), component(request.get(), 2)));
    const Held name(QUARN_ASN1_X500NAME, build_empty_list(QUARN_ASN1_X500NAME));
    const bool all = copy.get() != nullptr && built.get() != nullptr && name.get() != nullptr;
    EXPECT_TRUE(all || allocation.failed());
    allocation.never_fail();
    EXPECT_EQ(request.encoding(), kRequestInDer);
    EXPECT_EQ(built.encoding(), built.get() == nullptr ? Octets{} : kRequestInDer);
  });
}

}  // namespace
}  // namespace quarn::asn1
