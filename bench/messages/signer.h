// Who signs the messages, as libcrypto has it.
#ifndef QUARN_BENCH_MESSAGES_SIGNER_H
#define QUARN_BENCH_MESSAGES_SIGNER_H

#include <openssl/x509.h>

#include "bench/messages/messages.h"

namespace bench {

struct Signer {
  X509 *certificate;
  EVP_PKEY *key;
};
const Signer &signer(Key key);

}  // namespace bench

#endif
