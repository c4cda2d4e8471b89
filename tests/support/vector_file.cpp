#include "tests/support/vector_file.h"

#include <algorithm>
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

std::uint8_t octet_of(const std::string &digits) {
  std::size_t used = 0;
  const int value = std::stoi(digits, &used, 16);
  if (used != 2) throw std::runtime_error("not an octet: " + digits);
  return static_cast<std::uint8_t>(value);
}

// Octets of the form 30 80 (04 01 41)*3 "text", until a character or the end.
Octets octets_until(char end, std::istream &in) {
  Octets octets;
  char c = 0;
  while (in >> c && c != end) {
    Octets piece;
    std::size_t times = 1;
    if (c == '"') {
      std::string text;
      if (std::getline(in, text, '"').eof()) throw std::runtime_error("unbalanced quote");
      piece.assign(text.begin(), text.end());
    } else if (c == '(') {
      piece = octets_until(')', in);
      if (!in) throw std::runtime_error("unbalanced parenthesis");
      if (in.peek() == '*') in.ignore() >> times;
    } else {
      piece = {octet_of({c, static_cast<char>(in.get())})};
    }
    for (; times > 0; times--) octets.insert(octets.end(), piece.begin(), piece.end());
  }
  return octets;
}

std::int64_t type_named(const std::string &text) {
  const std::int64_t id = quarn_asn1_type_find(text.c_str());
  if (id < 0) throw std::runtime_error("no type " + text);
  return id;
}

std::vector<int> codes_of(const std::string &text) {
  std::istringstream words(text);
  std::vector<int> codes;
  for (std::string word; std::getline(words, word, ',');) {
    codes.push_back(std::stoi(word, nullptr, 16));
  }
  return codes;
}

// What is expected: octets out, or a key and its value, or both.
void expect(Vector &vector, const std::string &cell) {
  std::istringstream words(cell);
  std::string out;
  for (std::string word; words >> word;) {
    if (word == "code") {
      words >> word;
      vector.codes = codes_of(word);
    } else if (word == "result") {
      words >> std::hex >> vector.result >> std::dec;
    } else if (word == "consumed") {
      words >> vector.consumed.emplace();
    } else {
      out += word + " ";
    }
  }
  if (!out.empty()) vector.out = out == "same " ? vector.in : read_octets(out);
  if (!vector.out && vector.codes.empty() && vector.result == 0) {
    throw std::runtime_error("the row expects nothing");
  }
}

// A row of a type; one that begins with "name:" is of that type instead.
Vector row(std::string line, Vector vector) {
  const std::size_t colon = line.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_");
  if (colon != std::string::npos && line[colon] == ':') {
    vector.type = type_named(line.substr(0, colon));
    line.erase(0, colon + 1);
  }
  if (vector.type < 0) throw std::runtime_error("a row before any type");
  std::istringstream cells(line);
  std::string cell;
  std::getline(cells, cell, '|');
  vector.in = read_octets(cell);
  std::getline(cells, cell, '|');
  expect(vector, cell);
  std::getline(cells, vector.name);
  vector.name = trim(vector.name);
  return vector;
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
  std::istringstream in(text);
  return octets_until('\0', in);
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
        vectors.push_back(row(line, {path, number, type, {}, {}, {}, {}, 0, {}}));
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
