// The value of a UTCTime or GeneralizedTime.
#ifndef QUARN_TYPES_TIME_H
#define QUARN_TYPES_TIME_H

#include <cstddef>
#include <cstdint>

#include "quarn_asn1/types.h"

// The content text, as it stands in the encoding, and a NUL follow in the same block. The text may
// hold NULs only while it is being checked: no grammar accepts them.
struct quarn_asn1_time {
  std::uint64_t kind;  // tag number of the alternative; see TimeKind
  std::int64_t text_length;
  quarn_time_fields fields;  // the instant in UTC

  char *text() { return reinterpret_cast<char *>(this + 1); }
  const char *text() const { return reinterpret_cast<const char *>(this + 1); }
};

namespace quarn::asn1 {

// Universal tag numbers of the two alternatives of Time.
enum TimeKind : std::uint64_t { kUtctime = 23, kGentime = 24 };

// Reads the text of a UTCTime or GeneralizedTime as the instant in UTC that it names. False when it
// breaks a rule of its form; out is then unspecified.
bool read_time_text(std::uint64_t kind,
                    const char *text,
                    std::size_t length,
                    quarn_time_fields &out);

}  // namespace quarn::asn1

#endif
