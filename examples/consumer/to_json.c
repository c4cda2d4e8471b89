/* Prints a DER or BER file as a JSON document: to_json FILE */
#include <quarn_asn1.h>
#include <stdio.h>

static void complain(const quarn_err_ctx *ctx) {
  char *text = NULL;
  if (quarn_err_ctx_print(ctx, &text, NULL) == 1) fputs(text, stderr);
  quarn_free(text);
}

int main(int argc, char **argv) {
  if (argc != 2) {
    fprintf(stderr, "usage: %s FILE\n", argv[0]);
    return 2;
  }
  quarn_err_ctx *ctx = quarn_err_ctx_new();
  quarn_data_blob *octets = quarn_data_blob_fromfile(argv[1], ctx);
  quarn_json *document = octets == NULL ? NULL : quarn_asn1_tojson(octets->data, octets->length);
  char *text = NULL;
  const int good = document != NULL && quarn_json_print(document, 2, &text, NULL) == 1;
  if (good) {
    puts(text);
  } else {
    fprintf(stderr, "%s: not an encoding\n", argv[1]);
    complain(ctx);
  }
  quarn_free(text);
  quarn_json_free(document);
  quarn_data_blob_free(octets);
  quarn_err_ctx_free(ctx);
  return good ? 0 : 1;
}
