// 2. Generic tree: how long does it take to build a tree of all elements of a certificate, each
// with a copy of its octets, knowing nothing of certificates, and to free it?
#include <openssl/asn1.h>
#include <openssl/asn1t.h>

#include "bench/bench.h"
#include "bench/peers.h"
#include "quarn_asn1/types.h"

namespace bench {

namespace {

// The lists that make up a tree: the elements of the certificate and of each constructed element.
// Kept from tree to tree, so that it adds nothing to what is measured.
template <typename List>
using Lists = std::vector<List *>;

std::uint64_t tree_quarn(const Octets &der, Lists<quarn_asn1_list> &lists) {
  void *value = nullptr;
  quarn_asn1_mem_decode(der.data(), static_cast<std::int64_t>(der.size()), QUARN_ASN1_ANYLIST,
                        &value);
  lists.push_back(static_cast<quarn_asn1_list *>(value));
  std::uint64_t elements = 0;
  for (std::size_t i = 0; i < lists.size(); i++) {
    const int size = quarn_asn1_list_getsize(lists[i]);
    for (int j = 0; j < size; j++) {
      elements++;
      quarn_asn1_list_get(lists[i], j, &value);
      auto *any = static_cast<quarn_asn1_any *>(value);
      std::uint32_t primitive = 1;
      quarn_asn1_any_isprimitive(any, &primitive);
      if (primitive != 0) continue;
      void *list = nullptr;
      quarn_asn1_any_contenttoobject(any, QUARN_ASN1_ANYLIST, &list, nullptr);
      lists.push_back(static_cast<quarn_asn1_list *>(list));
    }
  }
  for (quarn_asn1_list *list : lists) quarn_asn1_anylist_free(list);
  lists.clear();
  return elements;
}

// The elements inside one of another tag than SEQUENCE and SET; null when it is primitive.
ASN1_SEQUENCE_ANY *inside_openssl(const ASN1_STRING *whole) {
  const std::uint8_t *next = whole->data;
  long length = 0;
  int number = 0;
  int tag_class = 0;
  const int result = ASN1_get_object(&next, &length, &number, &tag_class, whole->length);
  if ((result & V_ASN1_CONSTRUCTED) == 0) return nullptr;
  ASN1_SEQUENCE_ANY *list = sk_ASN1_TYPE_new_null();
  for (const std::uint8_t *end = next + length; next < end;) {
    sk_ASN1_TYPE_push(list, d2i_ASN1_TYPE(nullptr, &next, end - next));
  }
  return list;
}

ASN1_SEQUENCE_ANY *below_openssl(const ASN1_TYPE *element) {
  const ASN1_STRING *whole = element->value.asn1_string;
  switch (element->type) {
    case V_ASN1_SEQUENCE: {
      const std::uint8_t *next = whole->data;
      return d2i_ASN1_SEQUENCE_ANY(nullptr, &next, whole->length);
    }
    case V_ASN1_SET: {
      const std::uint8_t *next = whole->data;
      return d2i_ASN1_SET_ANY(nullptr, &next, whole->length);
    }
    case V_ASN1_OTHER:
      return inside_openssl(whole);
    default:
      return nullptr;
  }
}

std::uint64_t tree_openssl(const Octets &der, Lists<ASN1_SEQUENCE_ANY> &lists) {
  const std::uint8_t *next = der.data();
  lists.push_back(d2i_ASN1_SEQUENCE_ANY(nullptr, &next, static_cast<long>(der.size())));
  std::uint64_t elements = 0;
  for (std::size_t i = 0; i < lists.size(); i++) {
    const int size = sk_ASN1_TYPE_num(lists[i]);
    for (int j = 0; j < size; j++) {
      elements++;
      ASN1_SEQUENCE_ANY *below = below_openssl(sk_ASN1_TYPE_value(lists[i], j));
      if (below != nullptr) lists.push_back(below);
    }
  }
  for (ASN1_SEQUENCE_ANY *list : lists) sk_ASN1_TYPE_pop_free(list, ASN1_TYPE_free);
  lists.clear();
  return elements;
}

// Its whole work on all certificates.
template <typename List>
std::function<std::uint64_t()> all(std::uint64_t (*tree)(const Octets &, Lists<List> &)) {
  return [tree, lists = Lists<List>()]() mutable {
    std::uint64_t elements = 0;
    for (const Octets &der : certificates()) elements += tree(der, lists);
    return elements;
  };
}

std::uint64_t decode_all_heimdal() {
  for (const Octets &der : certificates()) {
    require(decode_heimdal(der), "decode a certificate with Heimdal");
  }
  return 0;
}

}  // namespace

Question generic_tree() {
  return {"2. Generic tree, built and freed",
          "certificate",
          certificates().size(),
          {
              {.name = "OpenSSL SEQUENCE_ANY", .work = all(tree_openssl)},
              {.name = "lists of ANY", .work = all(tree_quarn), .at_most = 0.35},
              {.name = "Heimdal decode_Certificate (typed)", .work = decode_all_heimdal},
          }};
}

}  // namespace bench
