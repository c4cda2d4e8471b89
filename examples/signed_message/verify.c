/* Verifies a signed message of any size, in one pass and little memory:
 *
 *     verify [-d DIGEST] [-c CERTIFICATE] MESSAGE [CONTENT]
 *
 * MESSAGE is a file in DER or BER, "-" the standard input. The content is digested while it goes by
 * and written to the file CONTENT, if that is given. Whoever reads once must know beforehand what
 * to digest with: -d, sha256 otherwise. The key is that of the signer's certificate: out of the
 * message, when the signer names it by issuer and serial number, or from -c. Whether to trust the
 * certificate is a question that this program does not ask.
 *
 * Exit status: 0 every signature is right, 1 one is not, 2 there is nothing to verify.
 */
#include <openssl/evp.h>
#include <openssl/objects.h>
#include <openssl/x509.h>
#include <quarn_asn1.h>
#include <stdio.h>
#include <string.h>

struct sink {
  EVP_MD_CTX *digest;
  quarn_stream *file; /* null: the content is not kept */
};

struct digest {
  const EVP_MD *algorithm;
  unsigned char octets[EVP_MAX_MD_SIZE];
  unsigned int length;
};

static int take_content(void *user, const void *octets, int64_t count) {
  const struct sink *sink = user;
  if (EVP_DigestUpdate(sink->digest, octets, (size_t)count) != 1) return 0;
  return sink->file == NULL ? 1 : quarn_stream_writen(sink->file, octets, count, NULL);
}

static void complain(const quarn_err_ctx *ctx) {
  char *text = NULL;
  if (quarn_err_ctx_print(ctx, &text, NULL) == 1) fputs(text, stderr);
  quarn_free(text);
}

/* ---- Values */

static int same(int64_t type, void *a, void *b) {
  quarn_data_blob *first = quarn_asn1_mem_encode(type, a);
  quarn_data_blob *second = quarn_asn1_mem_encode(type, b);
  const int equal = first != NULL && second != NULL && first->length == second->length &&
                    memcmp(first->data, second->data, (size_t)first->length) == 0;
  quarn_data_blob_free(first);
  quarn_data_blob_free(second);
  return equal;
}

static void *element(const quarn_asn1_list *list, int index) {
  void *value = NULL;
  return quarn_asn1_list_get(list, index, &value) == 1 ? value : NULL;
}

static const EVP_MD *digest_of(const quarn_x509algoid *algorithm) {
  const char *oid = quarn_asn1_oid_getstring(quarn_x509algoid_getalgorithm(algorithm));
  ASN1_OBJECT *object = oid == NULL ? NULL : OBJ_txt2obj(oid, 1);
  const EVP_MD *digest = object == NULL ? NULL : EVP_get_digestbyobj(object);
  ASN1_OBJECT_free(object);
  return digest;
}

/* ---- Keys */

static int is_certificate_of(const quarn_x509pubkeycert *certificate, const quarn_cmssignerid *id) {
  const quarn_cmsissuerandsn *named = quarn_cmssignerid_getissuersn(id);
  return named != NULL && certificate != NULL &&
         same(QUARN_ASN1_X500NAME, quarn_x509pubkeycert_getissuer(certificate),
              quarn_cmsissuerandsn_getissuer(named)) &&
         same(QUARN_ASN1_INTEGER, quarn_x509pubkeycert_getserialno(certificate),
              quarn_cmsissuerandsn_getserialno(named));
}

static EVP_PKEY *key_in(const quarn_x509pubkeycert *certificate) {
  quarn_data_blob *octets = quarn_asn1_mem_encode(QUARN_ASN1_X509PUBLICKEYINFO,
                                                  quarn_x509pubkeycert_getpubkey(certificate));
  if (octets == NULL) return NULL;
  const unsigned char *next = octets->data;
  EVP_PKEY *key = d2i_PUBKEY(NULL, &next, (long)octets->length);
  quarn_data_blob_free(octets);
  return key;
}

static EVP_PKEY *key_of(const quarn_pkcs7signeddata *message, const quarn_cmssignerid *id) {
  const quarn_asn1_list *certificates = quarn_pkcs7signeddata_getcerts(message);
  for (int i = 0; i < quarn_asn1_list_getsize(certificates); i++) {
    const quarn_x509pubkeycert *each =
        quarn_cmscertchoice_getx509pubkeycert(element(certificates, i));
    if (is_certificate_of(each, id)) return key_in(each);
  }
  return NULL;
}

static EVP_PKEY *key_in_file(const char *path) {
  quarn_data_blob *octets = quarn_data_blob_fromfile(path, NULL);
  quarn_x509pubkeycert *certificate =
      octets == NULL ? NULL : quarn_x509pubkeycert_new(octets->data, octets->length, NULL);
  EVP_PKEY *key = certificate == NULL ? NULL : key_in(certificate);
  quarn_x509PubKeyCert_free(certificate);
  quarn_data_blob_free(octets);
  return key;
}

/* ---- Signatures */

/* The single value of an attribute as a value of a type, to be freed by the caller. */
static void *attribute(const quarn_asn1_list *attributes, const char *wanted, int64_t type) {
  void *value = NULL;
  for (int i = 0; i < quarn_asn1_list_getsize(attributes); i++) {
    const quarn_x500attribute *each = element(attributes, i);
    const quarn_asn1_list *values = quarn_x500attribute_getvalue(each);
    const char *oid = quarn_asn1_oid_getstring(quarn_x500attribute_gettype(each));
    if (oid == NULL || strcmp(oid, wanted) != 0 || quarn_asn1_list_getsize(values) != 1) continue;
    quarn_asn1_any_toobject(element(values, 0), type, &value, NULL);
    break;
  }
  return value;
}

/* Signed attributes name the digest and the type of the content; both must be what was found. */
static int attributes_fit(const quarn_asn1_list *attributes,
                          const quarn_pkcs7signeddata *message,
                          const struct digest *content) {
  quarn_asn1_octetstring *expected =
      quarn_asn1_octetstring_new(content->octets, (int64_t)content->length);
  quarn_asn1_octetstring *digest =
      attribute(attributes, "1.2.840.113549.1.9.4", QUARN_ASN1_OCTETSTRING);
  quarn_asn1_oid *type = attribute(attributes, "1.2.840.113549.1.9.3", QUARN_ASN1_OID);
  const quarn_pkcs7contentinfo *info = quarn_pkcs7signeddata_getcontentinfo(message);
  const int fit = digest != NULL && type != NULL &&
                  same(QUARN_ASN1_OCTETSTRING, digest, expected) &&
                  same(QUARN_ASN1_OID, type, quarn_pkcs7contentinfo_gettype(info));
  quarn_asn1_value_free(QUARN_ASN1_OCTETSTRING, expected);
  quarn_asn1_value_free(QUARN_ASN1_OCTETSTRING, digest);
  quarn_asn1_value_free(QUARN_ASN1_OID, type);
  return fit;
}

/* What is signed are the attributes as a SET OF in DER, whatever they came as. */
static int digest_attributes(quarn_asn1_list *attributes, struct digest *digest) {
  if (quarn_asn1_list_sort_setof(attributes, QUARN_ASN1_X500ATTRIBUTE) != 1) return 0;
  quarn_data_blob *octets = quarn_asn1_mem_encode(QUARN_ASN1_PKCS10ATTRIBUTES, attributes);
  const int done =
      octets != NULL && EVP_Digest(octets->data, (size_t)octets->length, digest->octets,
                                   &digest->length, digest->algorithm, NULL) == 1;
  quarn_data_blob_free(octets);
  return done;
}

static int signature_fits(const quarn_cmssignerinfo *signer,
                          EVP_PKEY *key,
                          const struct digest *digest) {
  quarn_data_blob *signature =
      quarn_asn1_octetstring_getblob(quarn_cmssignerinfo_getsignature(signer));
  EVP_PKEY_CTX *ctx = EVP_PKEY_CTX_new(key, NULL);
  const int fits = signature != NULL && ctx != NULL && EVP_PKEY_verify_init(ctx) == 1 &&
                   EVP_PKEY_CTX_set_signature_md(ctx, digest->algorithm) == 1 &&
                   EVP_PKEY_verify(ctx, signature->data, (size_t)signature->length, digest->octets,
                                   digest->length) == 1;
  EVP_PKEY_CTX_free(ctx);
  quarn_data_blob_free(signature);
  return fits;
}

/* Null when the signature is right, else what is wrong. */
static const char *fault(const quarn_pkcs7signeddata *message,
                         const quarn_cmssignerinfo *signer,
                         const struct digest *content,
                         EVP_PKEY *key) {
  const EVP_MD *algorithm = digest_of(quarn_cmssignerinfo_getdigestalgo(signer));
  struct digest signed_digest = *content;
  if (key == NULL) return "no certificate of the signer";
  if (algorithm == NULL || EVP_MD_get_type(algorithm) != EVP_MD_get_type(content->algorithm)) {
    return "the signer took another digest; choose it with -d";
  }
  if (quarn_cmssignerinfo_hassignattrs(signer)) {
    quarn_asn1_list *attributes = quarn_cmssignerinfo_getsignattrs(signer);
    if (!attributes_fit(attributes, message, content)) return "the content is not what was signed";
    if (!digest_attributes(attributes, &signed_digest)) return "the attributes cannot be encoded";
  }
  return signature_fits(signer, key, &signed_digest) ? NULL : "the signature is wrong";
}

static int verify_signers(const quarn_pkcs7signeddata *message,
                          const struct digest *content,
                          const char *certificate) {
  const quarn_asn1_list *signers = quarn_pkcs7signeddata_getsignerinfos(message);
  const int count = quarn_asn1_list_getsize(signers);
  int status = count > 0 ? 0 : 2;
  for (int i = 0; i < count; i++) {
    const quarn_cmssignerinfo *signer = element(signers, i);
    EVP_PKEY *key = certificate != NULL ? key_in_file(certificate)
                                        : key_of(message, quarn_cmssignerinfo_getsid(signer));
    const char *wrong = fault(message, signer, content, key);
    printf("signer %d: %s%s\n", i + 1,
           wrong == NULL ? "signature verified" : "not verified: ", wrong == NULL ? "" : wrong);
    if (wrong != NULL) status = 1;
    EVP_PKEY_free(key);
  }
  if (count == 0) printf("nobody signed this\n");
  return status;
}

/* ---- The message */

static quarn_pkcs7signeddata *read_message(const char *path, struct sink *sink) {
  const quarn_stream_callbacks callbacks = {NULL, take_content, NULL, NULL, NULL};
  quarn_err_ctx *ctx = quarn_err_ctx_new();
  quarn_stream *in = quarn_stream_new_file(path, "r", ctx);
  quarn_stream *out = quarn_stream_new_callback(&callbacks, sink, ctx);
  quarn_pkcs7signeddata *message = NULL;
  quarn_asn1_content_place place = {-1, -1, -1};
  uint64_t consumed = 0;
  if (in != NULL && out != NULL &&
      quarn_asn1_decode_pkcs7signeddata_ex(in, out, &message, &place, &consumed, ctx) != 1) {
    complain(ctx);
  }
  if (message != NULL && place.offset < 0) {
    fprintf(stderr, "%s: the content is somewhere else\n", path);
    quarn_pkcs7signeddata_free(message);
    message = NULL;
  } else if (message != NULL) {
    printf("message of %llu octets\n", (unsigned long long)consumed);
    printf("content of %lld octets, from %lld to %lld\n", (long long)place.length,
           (long long)place.offset, (long long)place.end);
    printf("signers from %lld\n", (long long)quarn_pkcs7signeddata_getsignerinfosoffset(message));
  } else {
    fprintf(stderr, "%s: no signed message\n", path);
  }
  quarn_stream_free(out);
  quarn_stream_free(in);
  quarn_err_ctx_free(ctx);
  return message;
}

static int verify(const char *path,
                  const char *content_path,
                  struct digest *digest,
                  const char *certificate) {
  struct sink sink = {EVP_MD_CTX_new(), NULL};
  int status = 2;
  if (content_path != NULL) sink.file = quarn_stream_new_file(content_path, "w", NULL);
  quarn_pkcs7signeddata *message = NULL;
  if (content_path != NULL && sink.file == NULL) {
    fprintf(stderr, "%s: cannot be written\n", content_path);
  } else if (sink.digest != NULL && EVP_DigestInit_ex(sink.digest, digest->algorithm, NULL) == 1) {
    message = read_message(path, &sink);
  }
  if (message != NULL && EVP_DigestFinal_ex(sink.digest, digest->octets, &digest->length) == 1) {
    status = verify_signers(message, digest, certificate);
  }
  if (sink.file != NULL && quarn_stream_flush(sink.file, NULL) != 1) status = 2;
  quarn_stream_free(sink.file);
  quarn_pkcs7signeddata_free(message);
  EVP_MD_CTX_free(sink.digest);
  return status;
}

int main(int argc, char **argv) {
  struct digest digest = {EVP_sha256(), {0}, 0};
  const char *certificate = NULL;
  int known = 1;
  int i = 1;
  for (; i + 1 < argc && argv[i][0] == '-' && argv[i][1] != '\0'; i += 2) {
    if (strcmp(argv[i], "-d") == 0) {
      digest.algorithm = EVP_get_digestbyname(argv[i + 1]);
    } else if (strcmp(argv[i], "-c") == 0) {
      certificate = argv[i + 1];
    } else {
      known = 0;
    }
  }
  if (!known || i >= argc || argc > i + 2 || digest.algorithm == NULL) {
    fprintf(stderr, "usage: %s [-d DIGEST] [-c CERTIFICATE] MESSAGE [CONTENT]\n", argv[0]);
    return 2;
  }
  return verify(argv[i], i + 1 < argc ? argv[i + 1] : NULL, &digest, certificate);
}
