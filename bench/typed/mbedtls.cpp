// mbedTLS: structures that point into one copy of the octets. Of the extensions it decodes those
// that validation needs, and the public key always. It does not encode.
#include <mbedtls/x509_crl.h>
#include <mbedtls/x509_crt.h>
#include <mbedtls/x509_csr.h>

#include "bench/typed/typed.h"

namespace bench {

namespace {

template <typename T,
          void initialize(T *),
          int parse(T *, const unsigned char *, size_t),
          void release(T *)>
bool decode_and_free(const Octets &der) {
  T value;
  initialize(&value);
  const int result = parse(&value, der.data(), der.size());
  release(&value);
  return result == 0;
}

const bool kKnown =
    known_library({.name = "mbedTLS",
                   .certificate_and_extensions = decode_and_free<mbedtls_x509_crt,
                                                                 mbedtls_x509_crt_init,
                                                                 mbedtls_x509_crt_parse_der,
                                                                 mbedtls_x509_crt_free>,
                   .request = decode_and_free<mbedtls_x509_csr,
                                              mbedtls_x509_csr_init,
                                              mbedtls_x509_csr_parse_der,
                                              mbedtls_x509_csr_free>,
                   .list = decode_and_free<mbedtls_x509_crl,
                                           mbedtls_x509_crl_init,
                                           mbedtls_x509_crl_parse_der,
                                           mbedtls_x509_crl_free>});

}  // namespace

}  // namespace bench
