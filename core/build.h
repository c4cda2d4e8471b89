// What the constructors and getters of structured types are made of. Those are one line each, made
// from the notation:
//
//     quarn_x509validity *quarn_x509validity_new(const quarn_asn1_time *notBefore,
//                                                const quarn_asn1_time *notAfter) {
//       return build<quarn_x509validity>(QUARN_ASN1_X509VALIDITY, notBefore, notAfter);
//     }
//
// Constructors copy what they are given and make all or nothing. Getters lend. The templates give
// untyped functions the types that callers know.
#ifndef QUARN_CORE_BUILD_H
#define QUARN_CORE_BUILD_H

#include <cstddef>
#include <cstdint>
#include <span>

#include "quarn_asn1/ids.h"
#include "quarn_asn1/types.h"

namespace quarn::asn1 {

// A record of copies of its components. Null, with nothing allocated, when a mandatory one is null;
// null also for what decoding would refuse for a size or another check of the type. A null default
// becomes the default, a null optional one is absent.
void *build_record(quarn_asn1_type_id type, std::span<const void *const> parts);
// A CHOICE of the alternative with this number (of strings: this universal tag), of which the value
// is a copy. Null when there is no such alternative or value.
void *build_alternative(quarn_asn1_type_id type, std::uint64_t number, const void *value);
// The same of an alternative that is a NULL.
void *build_null_alternative(quarn_asn1_type_id type, std::uint64_t number);
void *alternative_of(quarn_asn1_type_id type, const void *value, std::uint64_t number);
void *part_of(const void *value, std::size_t index);
// Of a type whose layout is inferred: the record that the getters look into, null for what is laid
// out otherwise. CHOICEs find it themselves.
const void *inferred_layout(const void *value);

template <typename T, typename... Parts>
T *build(quarn_asn1_type_id type, const Parts *...parts) {
  const void *const all[] = {parts...};
  return static_cast<T *>(build_record(type, all));
}

template <typename T>
T *build_choice(quarn_asn1_type_id type, std::uint64_t number, const void *value) {
  return static_cast<T *>(build_alternative(type, number, value));
}

template <typename T>
T *build_choice(quarn_asn1_type_id type, std::uint64_t number) {
  return static_cast<T *>(build_null_alternative(type, number));
}

// Component number index of a record; null when it is absent and for null.
template <typename T>
T *part(const void *value, std::size_t index) {
  return static_cast<T *>(part_of(value, index));
}

inline int has_part(const void *value, std::size_t index) {
  return part_of(value, index) != nullptr ? 1 : 0;
}

// The number of the alternative of a CHOICE; all ones for null.
std::uint32_t choice_number(quarn_asn1_type_id type, const void *value);
// The universal tag of a CHOICE of strings; 0 for null.
std::uint64_t string_tag(quarn_asn1_type_id type, const void *value);

// The value of a CHOICE when it is the alternative with this number, else null.
template <typename T>
T *choice_part(quarn_asn1_type_id type, const void *value, std::uint32_t number) {
  return static_cast<T *>(alternative_of(type, value, number));
}

// The octets of a string of whatever tag.
quarn_asn1_octetstring *string_part(const void *value);

// The octets that a signed object's signature is over. Stores how many there are, and copies them
// when there is a buffer. 0 when the buffer, whose size length tells, is too small, for null, and
// when the body cannot be encoded.
int body_octets(quarn_asn1_type_id type, void *value, std::uint8_t *buffer, std::uint64_t *length);

}  // namespace quarn::asn1

#endif
