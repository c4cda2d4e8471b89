// Messages: what their notation cannot say.
#include "core/build.h"
#include "modules/own.h"
#include "modules/signed_data.h"
#include "quarn_asn1/cms.h"
#include "types/any.h"
#include "types/diversion.h"

namespace quarn::asn1 {

namespace {

constexpr std::size_t kContent = 1;        // of a ContentInfo
constexpr std::uint64_t kOctetString = 4;  // universal tag

std::int64_t position_of(const quarn_pkcs7signeddata *message, SignedDataPosition position) {
  return message == nullptr ? -1 : positions_in_message(message)[position];
}

// PKCS #7 signs content of any type, CMS the octets of an OCTET STRING.
bool signs_octets(const void *value) {
  const auto *content =
      static_cast<const quarn_asn1_any *>(component(component(value, kContentInfo), kContent));
  return content == nullptr ||
         (content->tag_class == kUniversal && content->tag_number == kOctetString);
}

bool lay_in_octets(const Diversion &content) {
  return content.offset < 0 || content.is_octets();
}

// Of a message of size octets: its positions, which count from the content on, count from its first
// octet. Callers go back to their stream with them.
void count_from_identifier(void *value, std::uint64_t size) {
  std::int64_t *positions = positions_in_message(value);
  const std::int64_t header = static_cast<std::int64_t>(size) - positions[kContentEnd];
  for (const auto position : {kContentInfo, kContentInfoEnd, kSignerInfos}) {
    positions[position] += header;
  }
}

Status encode_signed_data(const Type &type, Writer &out, void *value) {
  const std::uint64_t start = out.count();
  const Status status = encode_structured(type, out, value);
  if (status) count_from_identifier(value, out.count() - start);
  return status;
}

Status decode_signed_data(const Type &type, Reader &in, void **value) {
  const std::uint64_t start = in.count();
  const Status status = decode_structured(type, in, value);
  if (status) count_from_identifier(*value, in.count() - start);
  return status;
}

}  // namespace

const Restriction kCmsSignedData{
    .allows = signs_octets, .code = 0x10355, .decode_only = true, .allows_apart = lay_in_octets};

const Codec kSignedDataCodec = [] {
  Codec codec = record_codec();
  codec.encode = encode_signed_data;
  codec.decode = decode_signed_data;
  return codec;
}();

}  // namespace quarn::asn1

using namespace quarn::asn1;

#include "modules/gen/ASN1_CMS_api.inc"

quarn_pkcs7signeddata *quarn_pkcs7signeddata_new0(quarn_asn1_integer *version,
                                                  quarn_asn1_list *digest_algorithms,
                                                  quarn_pkcs7contentinfo *content_info,
                                                  quarn_asn1_list *certificates,
                                                  quarn_asn1_list *crls,
                                                  quarn_asn1_list *signer_infos) {
  if (version == nullptr || digest_algorithms == nullptr || content_info == nullptr ||
      signer_infos == nullptr) {
    return nullptr;
  }
  void *message = new_record(signed_data_schema());
  if (message == nullptr) return nullptr;
  void **component = components(message);
  for (void *part : std::initializer_list<void *>{version, digest_algorithms, content_info,
                                                  certificates, crls, signer_infos}) {
    *component++ = part;
  }
  return static_cast<quarn_pkcs7signeddata *>(message);
}

int32_t quarn_pkcs7signeddata_gettype(const quarn_pkcs7signeddata *message) {
  if (message == nullptr) return -1;
  const std::int64_t form = positions_in_message(message)[kForm];
  return static_cast<std::int32_t>(form < 0 ? kStandsAlone : form);
}

int64_t quarn_pkcs7signeddata_getcontentinfooffset(const quarn_pkcs7signeddata *message) {
  return position_of(message, kContentInfo);
}

int64_t quarn_pkcs7signeddata_getcontentinfoendoffset(const quarn_pkcs7signeddata *message) {
  return position_of(message, kContentInfoEnd);
}

int64_t quarn_pkcs7signeddata_getsignerinfosoffset(const quarn_pkcs7signeddata *message) {
  return position_of(message, kSignerInfos);
}

quarn_cmsalgorithmprotection *quarn_cmsalgorithmprotection_newsign(
    const quarn_x509algoid *digest, const quarn_x509algoid *signature) {
  const quarn_x509algoid *absent = nullptr;
  if (signature == nullptr) return nullptr;
  return build<quarn_cmsalgorithmprotection>(QUARN_ASN1_CMSALGORITHMPROTECTION, digest, signature,
                                             absent);
}

quarn_cmsalgorithmprotection *quarn_cmsalgorithmprotection_newmac(const quarn_x509algoid *digest,
                                                                  const quarn_x509algoid *mac) {
  const quarn_x509algoid *absent = nullptr;
  if (mac == nullptr) return nullptr;
  return build<quarn_cmsalgorithmprotection>(QUARN_ASN1_CMSALGORITHMPROTECTION, digest, absent,
                                             mac);
}
