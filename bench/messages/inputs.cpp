// The messages that are decoded: signed and enveloped by libcrypto as the openssl command does,
// when a question first asks for them.
#include <openssl/cms.h>
#include <openssl/pem.h>

#include <cstdio>
#include <map>
#include <memory>
#include <tuple>

#include "bench/messages/signer.h"

namespace bench {

namespace {

template <typename T, void (*release)(T *)>
struct Release {
  void operator()(T *value) const { release(value); }
};
using Bio = std::unique_ptr<BIO, Release<BIO, BIO_free_all>>;
using Message = std::unique_ptr<CMS_ContentInfo, Release<CMS_ContentInfo, CMS_ContentInfo_free>>;

Bio open_file(const std::string &path) {
  Bio file(BIO_new_file(path.c_str(), "rb"));
  require(file != nullptr, "open " + path);
  return file;
}

Bio memory_of(const Octets &octets) {
  return Bio(BIO_new_mem_buf(octets.data(), static_cast<int>(octets.size())));
}

Octets encoded(CMS_ContentInfo *message) {
  Octets der(static_cast<std::size_t>(std::max(i2d_CMS_ContentInfo(message, nullptr), 0)));
  std::uint8_t *next = der.data();
  require(i2d_CMS_ContentInfo(message, &next) > 0, "encode a message");
  return der;
}

Octets encoded_in_pieces(CMS_ContentInfo *message, BIO *content, unsigned flags) {
  const Bio out(BIO_new(BIO_s_mem()));
  require(i2d_CMS_bio_stream(out.get(), message, content, static_cast<int>(flags)) == 1,
          "write a message in pieces");
  char *octets = nullptr;
  const long count = BIO_get_mem_data(out.get(), &octets);
  return {octets, octets + count};
}

Octets make_signed(std::size_t size, Lengths lengths, Key key) {
  const unsigned flags = lengths == Lengths::kDefinite ? CMS_BINARY : CMS_BINARY | CMS_STREAM;
  const Bio content = memory_of(content_of(size));
  const Message message(
      CMS_sign(signer(key).certificate, signer(key).key, nullptr, content.get(), flags));
  require(message != nullptr, "sign a message");
  return lengths == Lengths::kDefinite ? encoded(message.get())
                                       : encoded_in_pieces(message.get(), content.get(), flags);
}

Octets make_enveloped(std::size_t size) {
  STACK_OF(X509) *recipients = sk_X509_new_null();
  sk_X509_push(recipients, signer(Key::kRsa).certificate);
  const Message message(
      CMS_encrypt(recipients, memory_of(content_of(size)).get(), EVP_aes_128_cbc(), CMS_BINARY));
  sk_X509_free(recipients);
  require(message != nullptr, "encrypt a message");
  return encoded(message.get());
}

class TemporaryFile {
 public:
  explicit TemporaryFile(const Octets &octets) : path_("/tmp/quarn-bench-XXXXXX") {
    const int descriptor = mkstemp(path_.data());
    std::FILE *file = descriptor < 0 ? nullptr : fdopen(descriptor, "wb");
    require(file != nullptr && std::fwrite(octets.data(), octets.size(), 1, file) == 1 &&
                std::fclose(file) == 0,
            "write " + path_);
  }
  TemporaryFile(const TemporaryFile &) = delete;
  TemporaryFile &operator=(const TemporaryFile &) = delete;
  ~TemporaryFile() { std::remove(path_.c_str()); }

  const std::string &path() const { return path_; }

 private:
  std::string path_;
};

// What is kept under a key, made when it is missing.
template <typename Kept, typename Make>
const typename Kept::mapped_type &kept(Kept &all, const typename Kept::key_type &key, Make make) {
  const auto at = all.find(key);
  return at != all.end() ? at->second : all.try_emplace(key, make()).first->second;
}

}  // namespace

const Signer &signer(Key key) {
  const auto read = [](const std::string &name) {
    const std::string path = std::string(QUARN_BENCH_CORPUS) + "/" + name;
    const Signer one{
        PEM_read_bio_X509(open_file(path + ".pem").get(), nullptr, nullptr, nullptr),
        PEM_read_bio_PrivateKey(open_file(path + ".key").get(), nullptr, nullptr, nullptr)};
    require(one.certificate != nullptr && one.key != nullptr, "read the signer " + path);
    return one;
  };
  static const Signer rsa = read("signer-rsa");
  static const Signer ec = read("signer-ec");
  return key == Key::kRsa ? rsa : ec;
}

const Octets &content_of(std::size_t size) {
  static std::map<std::size_t, Octets> all;
  return kept(all, size, [=] { return random_octets(size, size); });
}

const Octets &signed_message(std::size_t size, Lengths lengths, Key key) {
  static std::map<std::tuple<std::size_t, Lengths, Key>, Octets> all;
  return kept(all, {size, lengths, key}, [=] { return make_signed(size, lengths, key); });
}

const std::string &signed_file(std::size_t size) {
  static std::map<std::size_t, TemporaryFile> all;
  const auto at = all.find(size);
  if (at != all.end()) return at->second.path();
  return all.try_emplace(size, signed_message(size)).first->second.path();
}

const Octets &enveloped_message(std::size_t size) {
  static std::map<std::size_t, Octets> all;
  return kept(all, size, [=] { return make_enveloped(size); });
}

}  // namespace bench
