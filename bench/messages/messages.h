// What the questions on messages ask of each library.
//
// Each library makes itself known by known_messages(); see bench/libraries.h.
#ifndef QUARN_BENCH_MESSAGES_MESSAGES_H
#define QUARN_BENCH_MESSAGES_MESSAGES_H

#include "bench/bench.h"

namespace bench {

// Decodes, frees, and returns how many octets of content there were: 0 when the library does not
// tell. It ends the program when the library refuses.
using DecodeMessage = std::uint64_t (*)(const Octets &der);
using DecodeFile = std::uint64_t (*)(const std::string &path);

struct MessageLibrary {
  const char *name;
  DecodeMessage signed_message = nullptr;
  DecodeFile signed_file = nullptr;
  DecodeMessage enveloped = nullptr;
  void *(*load_enveloped)(const Octets &der) = nullptr;  // kept until the program ends
  std::size_t (*encode_enveloped)(void *message) = nullptr;
};

bool known_messages(const MessageLibrary &library);

// This library's other ways with signed messages.
std::uint64_t decode_rows(const Octets &der);           // a ContentInfo, then what it holds
std::uint64_t decode_apart(const Octets &der);          // the content stays in the source
std::uint64_t decode_content_aside(const Octets &der);  // it goes to a stream
std::uint64_t decode_content_kept(const Octets &der);   // it goes to memory, in one piece
std::uint64_t decode_file_apart(const std::string &path);
// And with enveloped ones: what a ContentInfo holds decoded from the source, not from a copy.
std::uint64_t decode_enveloped_in_place(const Octets &der);
std::uint64_t decode_enveloped_apart(const Octets &der);

// Signed messages written to nowhere, around content in memory. With a digest libcrypto computes
// SHA-256 of it meanwhile, and OpenSSL signs.
void write_signed(const Octets &content, std::size_t piece, bool digest);
void write_openssl(const Octets &content, bool digest);

// Messages that libcrypto makes. Each is made once.
enum class Key { kRsa, kEc };
enum class Lengths { kDefinite, kIndefinite };  // the latter as `openssl cms -stream` writes
const Octets &content_of(std::size_t size);
const Octets &signed_message(std::size_t size,
                             Lengths lengths = Lengths::kDefinite,
                             Key key = Key::kRsa);
const std::string &signed_file(std::size_t size);  // removed when the program ends
const Octets &enveloped_message(std::size_t size);

Question push_decoding();

}  // namespace bench

#endif
