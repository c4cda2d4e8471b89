// 3. Text of certificates: how long does it take from DER to text that shows all of it?
#include <botan/asn1_print.h>
#include <openssl/bio.h>
#include <openssl/x509.h>

#include "bench/bench.h"
#include "quarn_asn1/json.h"

namespace bench {

namespace {

template <typename Work>
std::function<std::uint64_t()> all(Work work) {
  return uncounted([work] {
    for (const Octets &der : certificates()) require(work(der), "show a certificate as text");
  });
}

bool as_json(const Octets &der, int indent) {
  quarn_json *json = quarn_asn1_tojson(der.data(), static_cast<std::int64_t>(der.size()));
  char *text = nullptr;
  const bool good = quarn_json_print(json, indent, &text, nullptr) == 1;
  quarn_free(text);
  quarn_json_free(json);
  return good;
}

bool as_x509_text(const Octets &der) {
  const std::uint8_t *next = der.data();
  X509 *certificate = d2i_X509(nullptr, &next, static_cast<long>(der.size()));
  BIO *out = BIO_new(BIO_s_mem());
  const bool good = X509_print_ex(out, certificate, XN_FLAG_ONELINE, 0) == 1;
  BIO_free(out);
  X509_free(certificate);
  return good;
}

bool as_asn1parse(const Octets &der) {
  BIO *out = BIO_new(BIO_s_mem());
  const bool good = ASN1_parse_dump(out, der.data(), static_cast<long>(der.size()), 1, -1) == 1;
  BIO_free(out);
  return good;
}

bool as_botan(const Octets &der) {
  return !Botan::ASN1_Pretty_Printer().print(der.data(), der.size()).empty();
}

}  // namespace

Question text_of_certificates() {
  return {"3. DER to text",
          "certificate",
          certificates().size(),
          {
              {.name = "OpenSSL d2i_X509, X509_print_ex", .work = all(as_x509_text)},
              {.name = "JSON on one line",
               .work = all([](const Octets &der) { return as_json(der, 0); }),
               .at_most = 0.10},
              {.name = "JSON indented",
               .work = all([](const Octets &der) { return as_json(der, 2); }),
               .at_most = 0.10},
              {.name = "OpenSSL ASN1_parse_dump (octets in hex only)", .work = all(as_asn1parse)},
              {.name = "Botan ASN1_Pretty_Printer", .work = all(as_botan)},
          }};
}

}  // namespace bench
