// libksba: one pass over a reader; the content goes to a writer, here to nowhere. Certificates and
// signer infos become trees.
#include <ksba.h>

#include <cstdio>

#include "bench/messages/messages.h"

namespace bench {

namespace {

int count_content(void *size, const void * /*octets*/, std::size_t count) {
  *static_cast<std::uint64_t *>(size) += count;
  return 0;
}

// A signed message is refused without a hash function.
void hash_nothing(void * /*user*/, const void * /*octets*/, std::size_t /*count*/) {}

std::uint64_t parse(ksba_reader_t reader) {
  std::uint64_t size = 0;
  ksba_writer_t writer = nullptr;
  ksba_writer_new(&writer);
  ksba_writer_set_cb(writer, count_content, &size);
  ksba_cms_t cms = nullptr;
  ksba_cms_new(&cms);
  ksba_cms_set_reader_writer(cms, reader, writer);
  ksba_cms_set_hash_function(cms, hash_nothing, nullptr);
  ksba_stop_reason_t reason = KSBA_SR_NONE;
  gpg_error_t error = 0;
  while (error == 0 && reason != KSBA_SR_READY) error = ksba_cms_parse(cms, &reason);
  ksba_cms_release(cms);
  ksba_writer_release(writer);
  ksba_reader_release(reader);
  require(error == 0, "decode a message with libksba");
  return size;
}

std::uint64_t message(const Octets &der) {
  ksba_reader_t reader = nullptr;
  ksba_reader_new(&reader);
  ksba_reader_set_mem(reader, der.data(), der.size());
  return parse(reader);
}

std::uint64_t file(const std::string &path) {
  std::FILE *in = std::fopen(path.c_str(), "rb");
  require(in != nullptr, "open " + path);
  ksba_reader_t reader = nullptr;
  ksba_reader_new(&reader);
  ksba_reader_set_file(reader, in);
  const std::uint64_t size = parse(reader);
  std::fclose(in);
  return size;
}

const bool kKnown = known_messages(
    {.name = "libksba", .signed_message = message, .signed_file = file, .enveloped = message});

}  // namespace

}  // namespace bench
