/* Writes a signed message again as those write it who do not know how long the content will be: in
 * segments and indefinite lengths. Signatures stay valid. Whatever its size, little memory is used.
 *
 *     restream MESSAGE COPY
 *
 * The message is read twice, first without its content and then that alone, so it must be a file.
 */
#include <quarn_asn1.h>
#include <stdio.h>

static int copy_content(quarn_stream *out, quarn_stream *content, quarn_err_ctx *ctx) {
  uint8_t piece[65536];
  uint64_t count = 0;
  for (;;) {
    if (quarn_stream_read(content, piece, sizeof piece, &count, ctx) != 1) return 0;
    if (count == 0) return 1;
    if (quarn_asn1_encode_octetstring_update(out, piece, (int64_t)count) != 1) return 0;
  }
}

static int restream(quarn_stream *in, quarn_stream *out, quarn_err_ctx *ctx) {
  quarn_pkcs7signeddata *message = NULL;
  quarn_asn1_content_place place;
  int done = quarn_asn1_decode_pkcs7signeddata_ex(in, NULL, &message, &place, NULL, ctx) == 1 &&
             message != NULL && place.offset >= 0;
  quarn_stream *content =
      done ? quarn_asn1_contentstream_new(in, (uint64_t)place.offset, ctx) : NULL;
  const int32_t form = quarn_pkcs7signeddata_gettype(message);
  done = content != NULL && quarn_asn1_encode_signeddata_init(out, message, form, ctx) == 1 &&
         copy_content(out, content, ctx) &&
         quarn_asn1_encode_signeddata_end(out, message, form, ctx) == 1 &&
         quarn_stream_flush(out, ctx) == 1;
  quarn_stream_free(content);
  quarn_pkcs7signeddata_free(message);
  return done;
}

int main(int argc, char **argv) {
  if (argc != 3) {
    fprintf(stderr, "usage: %s MESSAGE COPY\n", argv[0]);
    return 2;
  }
  quarn_err_ctx *ctx = quarn_err_ctx_new();
  quarn_stream *in = quarn_stream_new_file(argv[1], "r", ctx);
  quarn_stream *out = quarn_stream_new_file(argv[2], "w", ctx);
  const int done = in != NULL && out != NULL && restream(in, out, ctx);
  if (!done) {
    char *text = NULL;
    fprintf(stderr, "%s: no signed message with its content, or it cannot be copied\n", argv[1]);
    if (quarn_err_ctx_print(ctx, &text, NULL) == 1) fputs(text, stderr);
    quarn_free(text);
  }
  quarn_stream_free(out);
  quarn_stream_free(in);
  quarn_err_ctx_free(ctx);
  return done ? 0 : 1;
}
