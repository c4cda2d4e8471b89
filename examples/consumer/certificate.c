/* Prints what a certificate says about a web server: certificate FILE (DER, PEM or base64) */
#include <quarn_asn1.h>
#include <stdio.h>
#include <string.h>

static void complain(const quarn_err_ctx *ctx) {
  char *text = NULL;
  if (quarn_err_ctx_print(ctx, &text, NULL) == 1) fputs(text, stderr);
  quarn_free(text);
}

static void print_serial(const quarn_asn1_integer *serial) {
  uint8_t octets[64];
  const int64_t count = quarn_asn1_integer_getlength(serial);
  if (count < 0 || count > (int64_t)sizeof octets) return;
  if (quarn_asn1_integer_get(serial, octets) != 1) return;
  printf("serial number ");
  for (int64_t i = 0; i < count; i++) printf("%02x", octets[i]);
  printf("\n");
}

static void print_time(const char *what, const quarn_asn1_time *time) {
  quarn_time *utc = quarn_asn1_time_getutctime(time);
  if (utc == NULL) return;
  printf("%s %04d-%02d-%02dT%02d:%02d:%02dZ\n", what, quarn_time_getyear(utc),
         quarn_time_getmonth(utc), quarn_time_getday(utc), quarn_time_gethour(utc),
         quarn_time_getminute(utc), quarn_time_getsecond(utc));
  quarn_time_free(utc);
}

/* Names may hold any octets: what is not plain text is not sent to the terminal. */
static void print_dns_name(const quarn_x509generalname *name) {
  quarn_asn1_octetstring *text = quarn_x509generalname_getdnsname(name);
  uint8_t octets[256];
  const int64_t count = text == NULL ? -1 : quarn_asn1_octetstring_getlength(text);
  if (count < 0 || count > (int64_t)sizeof octets) return;
  if (quarn_asn1_octetstring_getall(text, octets) != 1) return;
  printf("DNS name ");
  for (int64_t i = 0; i < count; i++) putchar(octets[i] > 32 && octets[i] < 127 ? octets[i] : '?');
  printf("\n");
}

/* An extension holds the encoding of a type that its OBJECT IDENTIFIER names. */
static void print_alternative_names(quarn_x509extension *extension) {
  void *names = NULL;
  if (quarn_asn1_octetstring_getobject(quarn_x509extension_getextnvalue(extension),
                                       QUARN_ASN1_X509GENERALNAMES, &names, NULL) != 1) {
    return;
  }
  for (int i = 0; i < quarn_asn1_list_getsize(names); i++) {
    void *name = NULL;
    if (quarn_asn1_list_get(names, i, &name) == 1) print_dns_name(name);
  }
  quarn_asn1_value_free(QUARN_ASN1_X509GENERALNAMES, names);
}

static void print_extensions(const quarn_asn1_list *extensions) {
  for (int i = 0; i < quarn_asn1_list_getsize(extensions); i++) {
    void *extension = NULL;
    if (quarn_asn1_list_get(extensions, i, &extension) != 1) continue;
    const char *oid = quarn_asn1_oid_getstring(quarn_x509extension_getextnid(extension));
    if (oid != NULL && strcmp(oid, "2.5.29.17") == 0) print_alternative_names(extension);
  }
}

int main(int argc, char **argv) {
  if (argc != 2) {
    fprintf(stderr, "usage: %s FILE\n", argv[0]);
    return 2;
  }
  quarn_err_ctx *ctx = quarn_err_ctx_new();
  quarn_data_blob *octets = quarn_data_blob_fromfile(argv[1], ctx);
  quarn_x509pubkeycert *certificate =
      octets == NULL ? NULL : quarn_x509pubkeycert_new(octets->data, octets->length, ctx);
  if (certificate != NULL) {
    const quarn_x509validity *validity = quarn_x509pubkeycert_getvalidity(certificate);
    print_serial(quarn_x509pubkeycert_getserialno(certificate));
    print_time("not before", quarn_x509validity_getnotbefore(validity));
    print_time("not after", quarn_x509validity_getnotafter(validity));
    if (quarn_x509pubkeycert_hasexts(certificate)) {
      print_extensions(quarn_x509pubkeycert_getexts(certificate));
    }
  } else {
    fprintf(stderr, "%s: no certificate %s\n", argv[1], quarn_err_ctx_path(ctx));
    complain(ctx);
  }
  const int good = certificate != NULL;
  quarn_x509PubKeyCert_free(certificate);
  quarn_data_blob_free(octets);
  quarn_err_ctx_free(ctx);
  return good ? 0 : 1;
}
