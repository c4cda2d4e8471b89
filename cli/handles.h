// The libraries' objects as owned C++ objects.
#ifndef QUARN_CLI_HANDLES_H
#define QUARN_CLI_HANDLES_H

#include <memory>
#include <new>

#include "quarn_util.h"

namespace quarn::cli {

template <auto kFunction>
struct FreedBy {
  template <class T>
  void operator()(T *object) const {
    kFunction(object);
  }
};

using Records = std::unique_ptr<quarn_err_ctx, FreedBy<quarn_err_ctx_free>>;
using Stream = std::unique_ptr<quarn_stream, FreedBy<quarn_stream_free>>;
using Blob = std::unique_ptr<quarn_data_blob, FreedBy<quarn_data_blob_free>>;
using Json = std::unique_ptr<quarn_json, FreedBy<quarn_json_free>>;
using OwnedText = std::unique_ptr<char, FreedBy<quarn_free>>;
using OwnedOctets = std::unique_ptr<std::uint8_t, FreedBy<quarn_free>>;

inline Records new_records() {
  Records records(quarn_err_ctx_new());
  if (records == nullptr) throw std::bad_alloc();
  return records;
}

}  // namespace quarn::cli

#endif
