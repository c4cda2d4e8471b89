// GnuTLS: the tree of libtasn1, from which each getter reads what it wants. Extensions stay octets.
#include <gnutls/x509.h>

#include "bench/typed/typed.h"

namespace bench {

namespace {

gnutls_datum_t datum(const Octets &der) {
  return {const_cast<unsigned char *>(der.data()), static_cast<unsigned>(der.size())};
}

gnutls_x509_crt_t certificate_of(void *certificate) {
  return static_cast<gnutls_x509_crt_t>(certificate);
}

void *load(const Octets &der) {
  const gnutls_datum_t data = datum(der);
  gnutls_x509_crt_t value = nullptr;
  gnutls_x509_crt_init(&value);
  if (gnutls_x509_crt_import(value, &data, GNUTLS_X509_FMT_DER) == GNUTLS_E_SUCCESS) return value;
  gnutls_x509_crt_deinit(value);
  return nullptr;
}

void release(void *certificate) {
  if (certificate != nullptr) gnutls_x509_crt_deinit(certificate_of(certificate));
}

bool certificate(const Octets &der) {
  void *value = load(der);
  release(value);
  return value != nullptr;
}

bool request(const Octets &der) {
  const gnutls_datum_t data = datum(der);
  gnutls_x509_crq_t value = nullptr;
  gnutls_x509_crq_init(&value);
  const int result = gnutls_x509_crq_import(value, &data, GNUTLS_X509_FMT_DER);
  gnutls_x509_crq_deinit(value);
  return result == GNUTLS_E_SUCCESS;
}

bool list(const Octets &der) {
  const gnutls_datum_t data = datum(der);
  gnutls_x509_crl_t value = nullptr;
  gnutls_x509_crl_init(&value);
  const int result = gnutls_x509_crl_import(value, &data, GNUTLS_X509_FMT_DER);
  gnutls_x509_crl_deinit(value);
  return result == GNUTLS_E_SUCCESS;
}

std::size_t encode(void *certificate) {
  gnutls_datum_t out{};
  if (gnutls_x509_crt_export2(certificate_of(certificate), GNUTLS_X509_FMT_DER, &out) !=
      GNUTLS_E_SUCCESS) {
    return 0;
  }
  gnutls_free(out.data);
  return out.size;
}

// A certificate that was changed is never encoded from its kept octets again.
void change(void *certificate) {
  const int version = gnutls_x509_crt_get_version(certificate_of(certificate));
  gnutls_x509_crt_set_version(certificate_of(certificate), static_cast<unsigned>(version));
}

const bool kKnown = known_library({.name = "GnuTLS",
                                   .certificate = certificate,
                                   .request = request,
                                   .list = list,
                                   // The time grows with the square of their number.
                                   .most_entries = 10000,
                                   .load = load,
                                   .release = release,
                                   .encode = encode,
                                   .encode_anew = encode,
                                   .change = change});

}  // namespace

}  // namespace bench
