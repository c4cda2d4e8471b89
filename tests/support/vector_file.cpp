#include "tests/support/vector_file.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

#include "quarn_asn1.h"

namespace quarn::test {

namespace {

std::string trim(const std::string &text) {
  const auto first = text.find_first_not_of(" \t\r");
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

// Reads octets of the form 30 80 (04 01 41)*3 "text".
class OctetText {
 public:
  explicit OctetText(const std::string &text) : text_(text) {}

  Octets read() {
    Octets octets = group();
    if (at_ != text_.size()) throw std::runtime_error("unbalanced parenthesis");
    return octets;
  }

 private:
  char peek() {
    while (at_ < text_.size() && std::isspace(static_cast<unsigned char>(text_[at_]))) at_++;
    return at_ < text_.size() ? text_[at_] : ')';
  }

  Octets group() {
    Octets octets;
    while (peek() != ')') {
      if (text_[at_] == '"') {
        const std::size_t end = text_.find('"', ++at_);
        if (end == std::string::npos) throw std::runtime_error("unbalanced quote");
        octets.insert(octets.end(), &text_[at_], &text_[end]);
        at_ = end + 1;
        continue;
      }
      if (text_[at_] != '(') {
        octets.push_back(octet());
        continue;
      }
      at_++;
      const Octets inner = group();
      at_++;
      for (std::size_t times = repetitions(); times > 0; times--) {
        octets.insert(octets.end(), inner.begin(), inner.end());
      }
    }
    return octets;
  }

  std::uint8_t octet() {
    const std::string digits = text_.substr(at_, 2);
    std::size_t used = 0;
    const int value = std::stoi(digits, &used, 16);
    if (used != 2) throw std::runtime_error("not an octet: " + digits);
    at_ += 2;
    return static_cast<std::uint8_t>(value);
  }

  std::size_t repetitions() {
    if (at_ > text_.size()) throw std::runtime_error("unbalanced parenthesis");
    if (at_ == text_.size() || text_[at_] != '*') return 1;
    std::size_t used = 0;
    const unsigned long times = std::stoul(text_.substr(at_ + 1), &used);
    at_ += used + 1;
    return times;
  }

  const std::string &text_;
  std::size_t at_ = 0;
};

std::int64_t type_named(const std::string &text) {
  const std::int64_t id = quarn_asn1_type_find(text.c_str());
  if (id < 0) throw std::runtime_error("no type " + text);
  return id;
}

std::vector<int> codes_of(const std::string &text) {
  std::vector<int> codes;
  for (std::size_t from = 0; from <= text.size();) {
    const std::size_t comma = std::min(text.find(',', from), text.size());
    codes.push_back(std::stoi(text.substr(from, comma - from), nullptr, 16));
    from = comma + 1;
  }
  return codes;
}

void set(Vector &vector, const std::string &key, const std::string &value) {
  if (key == "code") {
    vector.codes = codes_of(value);
  } else if (key == "result") {
    vector.result = std::stoi(value, nullptr, 16);
  } else if (key == "consumed") {
    vector.consumed = std::stoull(value);
  } else {
    vector.out = value == "same" ? vector.in : read_octets(value);
  }
}

// A row: octets in | octets out, or a key and its value, or both | name.
Vector row(const std::string &line, Vector vector) {
  std::istringstream cells(line);
  std::string cell;
  std::getline(cells, cell, '|');
  vector.in = read_octets(cell);
  std::getline(cells, cell, '|');
  std::getline(cells, vector.name);
  vector.name = trim(vector.name);
  std::string value;
  std::string key;
  std::istringstream words(cell + " end");
  for (std::string word; words >> word;) {
    if (word != "end" && word != "code" && word != "result" && word != "consumed") {
      value += word + " ";
      continue;
    }
    if (!value.empty()) set(vector, key, trim(value));
    value.clear();
    key = word;
  }
  if (vector.type < 0) throw std::runtime_error("a row before any type");
  if (!vector.out && vector.codes.empty() && vector.result == 0) {
    throw std::runtime_error("the row expects nothing");
  }
  return vector;
}

// A row of a type; one that begins with "name:" is of that type instead.
Vector row_of(std::string line, Vector vector) {
  const std::size_t colon = line.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_");
  if (colon != std::string::npos && line[colon] == ':') {
    vector.type = type_named(line.substr(0, colon));
    line.erase(0, colon + 1);
  }
  return row(line, vector);
}

// The line with what its <names> stand for.
std::string expanded(std::string line, const std::map<std::string, std::string> &defined) {
  for (const auto &[name, octets] : defined) {
    for (auto at = line.find(name); at != std::string::npos; at = line.find(name)) {
      line.replace(at, name.size(), octets);
    }
  }
  return line;
}

}  // namespace

Octets read_octets(const std::string &text) {
  return OctetText(text).read();
}

std::vector<Vector> read_vectors(const std::string &path) {
  std::ifstream file(path);
  std::vector<Vector> vectors;
  std::map<std::string, std::string> defined;
  std::int64_t type = -1;
  std::string text;
  int number = 0;
  try {
    while (std::getline(file, text)) {
      number++;
      const std::string line = expanded(trim(text.substr(0, text.find('#'))), defined);
      const std::string key = trim(line.substr(0, line.find('=')));
      const std::string value = trim(line.substr(line.find('=') + 1));
      if (line.empty()) continue;
      if (key == "type") {
        type = type_named(value);
      } else if (key.starts_with("def ")) {
        defined["<" + key.substr(4) + ">"] = value;
      } else {
        vectors.push_back(row_of(line, {path, number, type, {}, {}, {}, {}, 0, {}}));
      }
    }
  } catch (const std::exception &error) {
    throw std::runtime_error(path + ":" + std::to_string(number) + ": " + error.what());
  }
  return vectors;
}

std::vector<Vector> read_vector_folder(const std::string &folder) {
  std::vector<std::string> paths;
  for (const auto &entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (entry.path().extension() == ".vec") paths.push_back(entry.path());
  }
  std::sort(paths.begin(), paths.end());
  std::vector<Vector> all;
  for (const auto &path : paths) {
    const auto vectors = read_vectors(path);
    all.insert(all.end(), vectors.begin(), vectors.end());
  }
  return all;
}

}  // namespace quarn::test
