// Octets that names and signed objects keep: where they lie, what drops them, what a failure
// leaves.
#include <thread>

#include "core/build.h"
#include "core/engine.h"
#include "tests/support/allocation.h"
#include "tests/unit/values.h"
#include "types/list.h"

namespace quarn::asn1 {
namespace {

using test::Allocation;
using test::encoding_of;
using test::Held;
using test::hex;
using test::Octets;

// A certification request, which has the smallest body, with a name in BER.
const std::string kEnd = "30 09 30 03 06 01 2A 03 02 00 AA A0 00 ";  // a key and no attributes
const std::string kSigned = "30 03 06 01 2A 03 02 00 AA ";
const std::string kSteps = "31 08 30 06 06 01 55 13 01 41 ";
const std::string kNameInBer = "30 80 " + kSteps + "00 00 ";
const std::string kBodyInBer = "30 80 02 01 00 " + kNameInBer + kEnd + "00 00 ";
const Octets kRequest = hex("30 80 " + kBodyInBer + kSigned + "00 00");
const std::string kBodyInDer = "30 1C 02 01 00 30 0A " + kSteps + kEnd;
const Octets kRequestInDer = hex("30 27 " + kBodyInDer + kSigned);

constexpr auto kRequestId = QUARN_ASN1_PKCS10CERTREQ;

const Kept *kept_of(quarn_asn1_type_id id, void *value) {
  return kept_by(*type_of(id).schema, value);
}

void drop(const Held &value) {
  quarn_asn1_forget_octets(value.type(), value.get());
}

void *subject_of(const Held &request) {
  return component(component(request.get(), 0), 1);
}

void *body_taken_from(const Held &request) {
  return std::exchange(components(request.get())[0], nullptr);
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
  quarn_x500name *name = quarn_x500name_new();
  quarn_asn1_list_put(quarn_x500name_getdn(name), rdn);
  return name;
}

TEST(Keep, one_block_holds_what_an_object_and_its_parts_keep) {
  const Held request(kRequestId, kRequest);
  const Kept *kept = kept_of(kRequestId, request.get());
  const Kept *name = kept_of(QUARN_ASN1_X500NAME, subject_of(request));
  EXPECT_EQ(kept[0].count, kRequest.size());
  EXPECT_EQ(kept[1].octets, kept[0].octets + 2);
  EXPECT_EQ(name->octets, kept[1].octets + 5);
  EXPECT_EQ(body_octets_of(request.get()), hex(kBodyInBer));
  drop(request);
  EXPECT_EQ(request.encoding(), kRequestInDer) << "anew";
  for (const Kept *part : {&kept[1], name}) EXPECT_EQ(part->block, kept[0].block);
  EXPECT_EQ(body_octets_of(request.get()), hex(kBodyInDer));
  EXPECT_EQ(encoding_of(QUARN_ASN1_X500NAME, subject_of(request)), hex("30 0A " + kSteps));
  drop_encoding(*type_of(kRequestId).schema, request.get());
  EXPECT_EQ(request.encoding(), kRequestInDer) << "around the body that is still kept";
  drop(request);
  EXPECT_EQ(body_octets_of(request.get()), hex(kBodyInDer)) << "before anything is encoded";
}

TEST(Keep, what_has_nothing_to_forget_forgets_what_lies_in_it) {
  const Held names(QUARN_ASN1_X509GENERALNAMES, hex("30 10 A4 0E " + kNameInBer));
  drop(names);
  EXPECT_EQ(names.encoding(), hex("30 0E A4 0C 30 0A " + kSteps));
  const Held number(QUARN_ASN1_INTEGER, "02 02 00 05");
  drop(number);
  EXPECT_EQ(number.encoding(), hex("02 02 00 05")) << "content, not what is kept besides";
  quarn_asn1_forget_octets(kRequestId, nullptr);
  quarn_asn1_forget_octets(QUARN_ASN1_TYPE_COUNT, number.get());
}

TEST(Keep, octets_outlive_the_object_a_part_was_taken_from) {
  void *body = nullptr;
  {
    const Held request(kRequestId, kRequest);
    drop_encoding(*type_of(kRequestId).schema, request.get());
    EXPECT_EQ(request.encoding(), hex("30 2B " + kBodyInBer + kSigned)) << "those inside are left";
    body = body_taken_from(request);
    drop(request);
  }
  const Held kept(QUARN_ASN1_PKCS10CERTREQINFO, body);
  const Held name(QUARN_ASN1_X500NAME, std::exchange(components(body)[1], nullptr));
  EXPECT_EQ(name.encoding(), hex(kNameInBer));
}

TEST(Keep, parts_of_one_object_may_go_on_different_threads) {
  for (int i = 0; i < 100; i++) {
    const auto request = std::make_unique<Held>(kRequestId, kRequest);
    std::thread other(quarn_asn1_value_free, QUARN_ASN1_PKCS10CERTREQINFO,
                      body_taken_from(*request));
    drop(*request);
    other.join();
  }
}

TEST(Keep, an_indefinite_length_inside_makes_those_around_it_indefinite) {
  void *any = nullptr;
  ASSERT_GT(quarn_asn1_mem_decode(hex("30 80 05 00 00 00").data(), 6, QUARN_ASN1_ANY, &any), 0);
  const Held name(QUARN_ASN1_X500NAME, name_around(static_cast<quarn_asn1_any *>(any)));
  EXPECT_EQ(quarn_asn1_length(QUARN_ASN1_X500NAME, name.get()), -1);
  const std::string encoding = "30 80 31 80 30 80 06 01 55 30 80 05 00 (00 00)*4 ";
  EXPECT_EQ(name.encoding(), hex(encoding));
  EXPECT_EQ(name.encoding(), hex(encoding));
  EXPECT_EQ(quarn_asn1_length(QUARN_ASN1_X500NAME, name.get()), 21) << "of what is kept now";

  // Inside an object: the name is definite there, since its octets are kept; without them nothing
  // is.
  const Held request(kRequestId, kRequest);
  quarn_asn1_value_free(QUARN_ASN1_X500NAME, subject_of(request));
  components(component(request.get(), 0))[1] =
      quarn_asn1_dupobject(QUARN_ASN1_X500NAME, name.get(), nullptr);
  drop(request);
  const std::string body = "30 80 02 01 00 " + encoding + kEnd + "00 00 ";
  EXPECT_EQ(request.encoding(), hex("30 80 " + body + kSigned + "00 00"));
  EXPECT_EQ(body_octets_of(request.get()), hex(body));
}

TEST(Keep, nothing_is_kept_when_encoding_fails) {
  const Held name(QUARN_ASN1_X500NAME,
                  name_around(quarn_asn1_any_new(0, 1, 19, 3, test::octets_of("abcd"), 4)));
  const test::Context ctx(quarn_err_ctx_new());
  const test::Stream out = test::growable();
  EXPECT_EQ(quarn_asn1_encode(out.get(), QUARN_ASN1_X500NAME, name.get(), nullptr, ctx.get()), 0);
  EXPECT_EQ(test::codes_in(ctx.get()), (test::Codes{0x10235, 0x10235, 0x10246, 0x10248}));
  EXPECT_STREQ(quarn_err_ctx_path(ctx.get()), "[0][0].value");
  EXPECT_FALSE(kept_of(QUARN_ASN1_X500NAME, name.get())->valid());
  EXPECT_EQ(test::held_by(out), Octets{}) << "nothing reaches the output";
}

TEST(Keep, every_failed_allocation_leaves_sound_values) {
  test::fail_each_allocation([](Allocation &allocation) {
    const Held request(kRequestId, kRequest);
    if (request.get() == nullptr) return;
    drop(request);
    const Octets encoding = request.encoding();
    EXPECT_TRUE(encoding == kRequestInDer || (encoding.empty() && allocation.failed()));
    drop(request);
    std::uint64_t size = 0;
    const int result = body_octets(kRequestId, request.get(), nullptr, &size);
    EXPECT_TRUE(allocation.failed() || result == 1);
    allocation.never_fail();
    EXPECT_EQ(request.encoding(), kRequestInDer);
  });
}

}  // namespace
}  // namespace quarn::asn1
