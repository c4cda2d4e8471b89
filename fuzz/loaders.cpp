// Signed objects from files: the first octet chooses the kind, the rest is DER, base64 or PEM. What
// loads encodes to octets that load and encode to the same, DER to the very octets of the input;
// the octets that were signed are a part of them.
#include <algorithm>
#include <vector>

#include "fuzz/fuzz.h"

using namespace quarn::fuzz;

namespace {

using Octets = std::vector<std::uint8_t>;

template <std::int64_t kType, auto kLoad, auto kBody>
struct Kind {
  static auto *load(const std::uint8_t *data, std::int64_t size) {
    const Context ctx(quarn_err_ctx_new());
    return kLoad(data, size, ctx.get());
  }

  static Octets body_of(decltype(load(nullptr, 0)) value) {
    std::uint64_t length = 0;
    must(kBody(value, nullptr, &length) == 1);
    Octets body(length);
    must(kBody(value, body.data(), &length) == 1 && length == body.size());
    return body;
  }

  static void check(const Exact &input) {
    auto *value = load(input.data(), input.size());
    if (value == nullptr) return;
    const Blob encoding(quarn_asn1_mem_encode(kType, value));
    must(encoding != nullptr);
    if (*input.data() == 0x30) must(equal(*encoding, input.data(), input.size()));
    const Octets body = body_of(value);
    const std::uint8_t *start = encoding->data;
    const std::uint8_t *end = start + encoding->length;
    must(std::search(start, end, body.begin(), body.end()) != end);
    auto *again = load(encoding->data, encoding->length);
    must(again != nullptr && body_of(again) == body);
    quarn_asn1_value_free(kType, again);
    quarn_asn1_value_free(kType, value);
  }
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  if (size < 2) return 0;
  const Exact input(data + 1, size - 1);
  switch (data[0] % 3) {
    case 0:
      Kind<QUARN_ASN1_X509PUBKEYCERT, quarn_x509pubkeycert_new,
           quarn_x509pubkeycert_gettbsocts>::check(input);
      break;
    case 1:
      Kind<QUARN_ASN1_X509CRL, quarn_x509crl_new, quarn_x509crl_gettbsocts>::check(input);
      break;
    default:
      Kind<QUARN_ASN1_PKCS10CERTREQ, quarn_pkcs10certreq_new,
           quarn_pkcs10certreq_gettbsocts>::check(input);
  }
  return 0;
}
