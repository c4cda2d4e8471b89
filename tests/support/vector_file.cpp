#include "tests/support/vector_file.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
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
  const bool number =
      std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c); });
  const std::int64_t id = number ? std::stoll(text) : quarn_asn1_type_find(text.c_str());
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
  if (key == "in") {
    vector.in = OctetText(value).read();
  } else if (key == "out") {
    vector.out = value == "same" ? vector.in : OctetText(value).read();
  } else if (key == "code") {
    vector.codes = codes_of(value);
  } else if (key == "result") {
    vector.result = std::stoi(value, nullptr, 16);
  } else if (key == "consumed") {
    vector.consumed = std::stoull(value);
  } else {
    throw std::runtime_error("no such key: " + key);
  }
}

// A row: octets in | octets out, or a key and its value, or both | name.
void set_row(Vector &vector, const std::string &row) {
  std::istringstream cells(row);
  std::string cell;
  std::getline(cells, cell, '|');
  set(vector, "in", trim(cell));
  std::getline(cells, cell, '|');
  std::getline(cells, vector.name);
  vector.name = trim(vector.name);
  std::string value;
  std::string key = "out";
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
}

void check(const Vector &vector) {
  if (vector.type < 0) throw std::runtime_error("a case before any type");
  if (!vector.out && vector.codes.empty() && vector.result == 0) {
    throw std::runtime_error("case '" + vector.name + "' expects nothing");
  }
}

}  // namespace

std::vector<Vector> read_vectors(const std::string &path) {
  std::ifstream file(path);
  std::vector<Vector> vectors;
  std::int64_t type = -1;
  std::string text;
  int number = 0;
  try {
    while (std::getline(file, text)) {
      number++;
      const std::string line = trim(text.substr(0, text.find('#')));
      const std::string key = trim(line.substr(0, line.find('=')));
      const std::string value = trim(line.substr(line.find('=') + 1));
      const bool row = line.find('|') != std::string::npos;
      if (line.empty()) continue;
      if (key == "type") {
        type = type_named(value);
        continue;
      }
      if (row || key == "case") vectors.push_back({path, number, type, value, {}, {}, {}, 0, {}});
      if (row) set_row(vectors.back(), line);
      if (!row && key != "case" && !vectors.empty()) set(vectors.back(), key, value);
    }
    for (const Vector &vector : vectors) {
      number = vector.line;
      check(vector);
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
