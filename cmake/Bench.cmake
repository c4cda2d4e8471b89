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
# These are compared with in the questions on typed values and messages alone, and left out when they are missing.
pkg_check_modules(GNUTLS IMPORTED_TARGET gnutls)
find_library(MBEDX509_LIBRARY mbedx509)
pkg_check_modules(KSBA IMPORTED_TARGET ksba)
find_program(OPENSSL_COMMAND openssl REQUIRED)

set(walk_inside ${PROJECT_SOURCE_DIR}/bench/walk_inside.cpp)
add_library(quarn_bench_inside SHARED ${walk_inside})
target_include_directories(quarn_bench_inside PRIVATE ${PROJECT_SOURCE_DIR})
target_link_libraries(quarn_bench_inside PRIVATE quarn_container_flags quarn_asn1_static quarn_util_static)
target_link_options(quarn_bench_inside PRIVATE -Wl,--exclude-libs,ALL)

# Made once: certificates and requests.
set(corpus ${CMAKE_CURRENT_BINARY_DIR}/bench-corpus)
set(corpus_script ${PROJECT_SOURCE_DIR}/bench/typed/certificates.sh)
add_custom_command(OUTPUT ${corpus}/199.crt
  COMMAND ${corpus_script} ${corpus} DEPENDS ${corpus_script} VERBATIM)

file(GLOB sources CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/bench/*.cpp ${PROJECT_SOURCE_DIR}/bench/typed/*.cpp
  ${PROJECT_SOURCE_DIR}/bench/messages/*.cpp)
list(REMOVE_ITEM sources ${walk_inside})
set(optional_peers)
if(GNUTLS_FOUND)
  list(APPEND optional_peers PkgConfig::GNUTLS)
else()
  list(REMOVE_ITEM sources ${PROJECT_SOURCE_DIR}/bench/typed/gnutls.cpp
    ${PROJECT_SOURCE_DIR}/bench/messages/gnutls.cpp)
endif()
if(KSBA_FOUND)
  list(APPEND optional_peers PkgConfig::KSBA)
else()
  list(REMOVE_ITEM sources ${PROJECT_SOURCE_DIR}/bench/messages/ksba.cpp)
endif()
if(MBEDX509_LIBRARY)
  list(APPEND optional_peers ${MBEDX509_LIBRARY})
else()
  list(REMOVE_ITEM sources ${PROJECT_SOURCE_DIR}/bench/typed/mbedtls.cpp)
endif()
add_executable(quarn_bench ${sources} ${corpus}/199.crt)
target_compile_definitions(quarn_bench PRIVATE QUARN_BENCH_CORPUS="${corpus}")
target_include_directories(quarn_bench PRIVATE ${PROJECT_SOURCE_DIR})
target_include_directories(quarn_bench SYSTEM PRIVATE
  ${HEIMDAL_INCLUDE_DIR} ${HEIMDAL_INCLUDE_DIR}/heimdal)
target_link_libraries(quarn_bench PRIVATE quarn_container_flags quarn_bench_inside quarn_asn1 quarn_util
  benchmark::benchmark OpenSSL::Crypto PkgConfig::TASN1 PkgConfig::BOTAN
  ${optional_peers} ${MBEDCRYPTO_LIBRARY}
  ${HEIMDAL_ASN1_LIBRARY})
