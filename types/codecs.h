// The codecs that rows of the registry name. Each is defined with its type.
#ifndef QUARN_TYPES_CODECS_H
#define QUARN_TYPES_CODECS_H

#include "core/type.h"

namespace quarn::asn1 {

extern const Codec kEocCodec;              // core/ASN1_Lib.cpp
extern const Codec kBooleanCodec;          // ASN1_Boolean.cpp
extern const Codec kIntegerCodec;          // ASN1_Integer.cpp; ENUMERATED too
extern const Codec kNullCodec;             // ASN1_Null.cpp; writes 05 00 whatever the row's tag
extern const Codec kNullContentCodec;      // the same content under the row's own tag
extern const Codec kOidCodec;              // ASN1_Oid.cpp
extern const Codec kRelativeOidCodec;      // ASN1_Oid.cpp
extern const Codec kTimeCodec;             // ASN1_Time.cpp; the CHOICE
extern const Codec kUtctimeCodec;          // ASN1_Time.cpp
extern const Codec kGentimeCodec;          // ASN1_Time.cpp
extern const Codec kBitstringCodec;        // ASN1_BitString.cpp
extern const Codec kOctetstringCodec;      // ASN1_OctetString.cpp
extern const Codec kCharacterstringCodec;  // the same content under the row's tag
extern const Codec kStringCodec;  // the same content, no tag: neither read nor written whole
extern const Codec
    kOctetstringContentCodec;       // the same content inside identifier and length of the row
extern const Codec kAnyCodec;       // ASN1_Any.cpp
extern const Codec kAnylistCodec;   // ASN1_List.cpp
extern const Codec kAnylist1Codec;  // ASN1_List.cpp; at least one element

// core/engine_value.cpp: types that have a schema.
extern const Codec kRecordCodec;
extern const Codec kListCodec;
extern const Codec kElementCodec;
extern const Codec kChoiceCodec;

}  // namespace quarn::asn1

#endif
