// 4. JSON: how do printing the documents of certificates, and the way from their text back to DER,
// compare with a library that does nothing but JSON?
#include "quarn_asn1/json.h"

#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <memory>

#include "bench/bench.h"

namespace bench {

namespace {

struct Free {
  void operator()(quarn_json *json) const { quarn_json_free(json); }
};
using Json = std::unique_ptr<quarn_json, Free>;

// The documents of all certificates, and their text.
struct Documents {
  std::vector<Json> trees;
  std::vector<std::string> texts;
  std::vector<rapidjson::Document> rapidjson_trees;
};

const Documents &documents() {
  static const Documents documents = [] {
    Documents all;
    for (const Octets &der : certificates()) {
      Json tree(quarn_asn1_tojson(der.data(), static_cast<std::int64_t>(der.size())));
      char *text = nullptr;
      std::size_t length = 0;
      require(quarn_json_print(tree.get(), 0, &text, &length) == 1, "make a JSON document");
      all.trees.push_back(std::move(tree));
      all.texts.emplace_back(text, length);
      quarn_free(text);
      all.rapidjson_trees.emplace_back().Parse(all.texts.back().c_str());
    }
    return all;
  }();
  return documents;
}

// The result of all printing: octets of text.
std::uint64_t print_quarn() {
  std::uint64_t octets = 0;
  for (const Json &tree : documents().trees) {
    char *text = nullptr;
    std::size_t length = 0;
    quarn_json_print(tree.get(), 0, &text, &length);
    quarn_free(text);
    octets += length;
  }
  return octets;
}

std::uint64_t print_rapidjson() {
  std::uint64_t octets = 0;
  for (const rapidjson::Document &tree : documents().rapidjson_trees) {
    rapidjson::StringBuffer text;
    rapidjson::Writer<rapidjson::StringBuffer> writer(text);
    tree.Accept(writer);
    octets += text.GetSize();
  }
  return octets;
}

bool to_der(const std::string &text) {
  const Json tree(quarn_json_parse(text.data(), text.size(), nullptr));
  quarn_data_blob *der = quarn_asn1_encodejson(tree.get());
  const bool good = der != nullptr;
  quarn_data_blob_free(der);
  return good;
}

bool parse_quarn(const std::string &text) {
  return Json(quarn_json_parse(text.data(), text.size(), nullptr)) != nullptr;
}

// Takes the text apart and keeps nothing of it.
template <unsigned flags>
bool parse_rapidjson(const std::string &text) {
  rapidjson::StringStream stream(text.c_str());
  rapidjson::BaseReaderHandler<> handler;
  rapidjson::Reader reader;
  return !reader.Parse<flags>(stream, handler).IsError();
}

bool parse_rapidjson_tree(const std::string &text) {
  rapidjson::Document tree;
  return !tree.Parse(text.c_str()).HasParseError();
}

std::function<std::uint64_t()> all(bool (*work)(const std::string &)) {
  return uncounted([work] {
    for (const std::string &text : documents().texts) require(work(text), "parse a JSON document");
  });
}

}  // namespace

Question json_printing() {
  return {"4a. JSON printing",
          "certificate",
          certificates().size(),
          {
              {.name = "RapidJSON Writer", .work = print_rapidjson},
              {.name = "quarn_json_print", .work = print_quarn, .at_most = 1.5},
          }};
}

Question json_to_der() {
  constexpr unsigned kCareful =
      rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag;
  return {"4b. JSON text to DER",
          "certificate",
          certificates().size(),
          {
              {.name = "RapidJSON SAX", .work = all(parse_rapidjson<0>)},
              {.name = "parsed, encoded, freed", .work = all(to_der), .at_most = 4.0},
              {.name = "of which parsed and freed", .work = all(parse_quarn)},
              {.name = "RapidJSON SAX, iterative, UTF-8 validated",
               .work = all(parse_rapidjson<kCareful>)},
              {.name = "RapidJSON Document", .work = all(parse_rapidjson_tree)},
          }};
}

}  // namespace bench
