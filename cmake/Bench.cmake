# Benchmarks against the peer libraries: one program, so that all is measured in one run. It uses the
# shared libraries as callers do; the code that looks inside is a shared object with the archives.

find_package(benchmark REQUIRED)
find_package(OpenSSL REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(TASN1 REQUIRED IMPORTED_TARGET libtasn1)
pkg_check_modules(BOTAN REQUIRED IMPORTED_TARGET botan-2)
find_library(MBEDCRYPTO_LIBRARY mbedcrypto REQUIRED)
find_library(HEIMDAL_ASN1_LIBRARY asn1 PATH_SUFFIXES heimdal REQUIRED)
find_path(HEIMDAL_INCLUDE_DIR heimdal/rfc2459_asn1.h REQUIRED)

add_library(quarn_bench_inside SHARED ${PROJECT_SOURCE_DIR}/bench/walk_inside.cpp)
target_include_directories(quarn_bench_inside PRIVATE ${PROJECT_SOURCE_DIR})
target_link_libraries(quarn_bench_inside PRIVATE quarn_container_flags quarn_asn1_static quarn_util_static)
target_link_options(quarn_bench_inside PRIVATE -Wl,--exclude-libs,ALL)

file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/bench/*.cpp)
list(REMOVE_ITEM sources ${PROJECT_SOURCE_DIR}/bench/walk_inside.cpp)
add_executable(quarn_bench ${sources})
target_include_directories(quarn_bench PRIVATE ${PROJECT_SOURCE_DIR})
target_include_directories(quarn_bench SYSTEM PRIVATE
  ${HEIMDAL_INCLUDE_DIR} ${HEIMDAL_INCLUDE_DIR}/heimdal)
target_link_libraries(quarn_bench PRIVATE quarn_container_flags quarn_bench_inside quarn_asn1 quarn_util
  benchmark::benchmark OpenSSL::Crypto PkgConfig::TASN1 PkgConfig::BOTAN ${MBEDCRYPTO_LIBRARY}
  ${HEIMDAL_ASN1_LIBRARY})
