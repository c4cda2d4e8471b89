// What is measured with: the certificates that every Debian system has, generated ones, and octets
// that are put together.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "bench/bench.h"
#include "quarn_util.h"

namespace bench {

namespace {

constexpr const char *kFolder = "/usr/share/ca-certificates/mozilla";

Octets contents(const std::string &path) {
  quarn_data_blob *file = quarn_data_blob_fromfile(path.c_str(), nullptr);
  require(file != nullptr, "read " + path);
  Octets all(file->data, file->data + file->length);
  quarn_data_blob_free(file);
  return all;
}

Octets certificate(const std::string &path) {
  const Octets file = contents(path);
  std::uint8_t *octets = nullptr;
  std::int64_t count = 0;
  const int result = quarn_pemdecode("CERTIFICATE", reinterpret_cast<const char *>(file.data()),
                                     static_cast<std::int64_t>(file.size()), &octets, &count);
  require(result == 1, "find a certificate in " + path);
  Octets der(octets, octets + count);
  quarn_free(octets);
  return der;
}

// The files of a folder whose names end in so, in the order of their names.
std::vector<std::string> files(const std::string &folder, const std::string &ending) {
  std::vector<std::string> paths;
  std::error_code error;
  for (const auto &entry : std::filesystem::directory_iterator(folder, error)) {
    if (entry.path().extension() == ending) paths.push_back(entry.path());
  }
  require(!paths.empty(), "find " + ending + " files in " + folder);
  std::sort(paths.begin(), paths.end());
  return paths;
}

std::vector<Octets> read_certificates() {
  std::vector<Octets> all;
  for (const std::string &path : files(kFolder, ".crt")) all.push_back(certificate(path));
  return all;
}

}  // namespace

const std::vector<Octets> &certificates() {
  static const std::vector<Octets> kAll = read_certificates();
  return kAll;
}

std::size_t octets_of_certificates() {
  std::size_t sum = 0;
  for (const Octets &der : certificates()) sum += der.size();
  return sum;
}

std::vector<Octets> generated(const std::string &kind) {
  std::vector<Octets> all;
  for (const std::string &path : files(QUARN_BENCH_CORPUS, "." + kind)) {
    all.push_back(contents(path));
  }
  return all;
}

Octets element(std::uint8_t identifier, const Octets &content) {
  Octets der{identifier};
  if (content.size() < 0x80) {
    der.push_back(static_cast<std::uint8_t>(content.size()));
  } else {
    der.push_back(0x84);
    for (int shift = 24; shift >= 0; shift -= 8) {
      der.push_back(static_cast<std::uint8_t>(content.size() >> shift));
    }
  }
  der.insert(der.end(), content.begin(), content.end());
  return der;
}

Octets repeated(const Octets &piece, std::size_t size) {
  Octets all;
  all.reserve(size + piece.size());
  while (all.size() < size) all.insert(all.end(), piece.begin(), piece.end());
  return all;
}

Octets random_octets(std::size_t size, std::uint64_t seed) {
  Octets all(size);
  for (std::uint8_t &octet : all) {
    seed = seed * 6364136223846793005U + 1442695040888963407U;
    octet = static_cast<std::uint8_t>(seed >> 56);
  }
  return all;
}

void require(bool good, const std::string &what) {
  if (good) return;
  std::fprintf(stderr, "quarn_bench: cannot %s\n", what.c_str());
  std::exit(2);
}

}  // namespace bench
