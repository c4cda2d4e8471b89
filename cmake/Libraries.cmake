# The two shared libraries, and static archives of the same objects. Tests, benchmarks and fuzz
# targets link the archives, which also show what the shared libraries hide.

# Header-only, behind the support library's own functions.
find_path(QUARN_RAPIDJSON_INCLUDE_DIR rapidjson/reader.h REQUIRED)
find_path(QUARN_BOOST_INCLUDE_DIR boost/multiprecision/cpp_int.hpp REQUIRED)

file(GLOB QUARN_UTIL_SOURCES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/util/*.cpp)
file(GLOB QUARN_ASN1_SOURCES CONFIGURE_DEPENDS
     ${PROJECT_SOURCE_DIR}/core/*.cpp ${PROJECT_SOURCE_DIR}/types/*.cpp
     ${PROJECT_SOURCE_DIR}/json/*.cpp ${PROJECT_SOURCE_DIR}/stream/*.cpp
     ${PROJECT_SOURCE_DIR}/modules/*.cpp)

# quarn_add_library(name SOURCES ... VERSION full SOVERSION n MAP version-script OPTIONS ...)
function(quarn_add_library name)
  cmake_parse_arguments(ARG "" "VERSION;SOVERSION;MAP" "SOURCES;OPTIONS" ${ARGN})
  add_library(${name}_objects OBJECT ${ARG_SOURCES})
  target_include_directories(${name}_objects PUBLIC ${PROJECT_SOURCE_DIR}/include
                             PRIVATE ${PROJECT_SOURCE_DIR})
  target_compile_options(${name}_objects PRIVATE ${ARG_OPTIONS})
  target_link_libraries(${name}_objects PRIVATE quarn_library_flags)

  add_library(${name} SHARED $<TARGET_OBJECTS:${name}_objects>)
  set_target_properties(${name} PROPERTIES VERSION ${ARG_VERSION} SOVERSION ${ARG_SOVERSION}
                        LINK_DEPENDS ${ARG_MAP} LINKER_LANGUAGE CXX)
  target_link_options(${name} PRIVATE -Wl,--version-script=${ARG_MAP} -Wl,-Bsymbolic-functions)
  add_library(${name}_static STATIC $<TARGET_OBJECTS:${name}_objects>)
  set_target_properties(${name}_static PROPERTIES OUTPUT_NAME ${name} LINKER_LANGUAGE CXX)
  foreach(target ${name} ${name}_static)
    target_include_directories(${target} INTERFACE
      $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  endforeach()
endfunction()

quarn_add_library(quarn_util SOURCES ${QUARN_UTIL_SOURCES} VERSION ${QUARN_UTIL_VERSION} SOVERSION 2
                  MAP ${PROJECT_SOURCE_DIR}/abi/quarn_util.map)

if(QUARN_SANITIZE MATCHES "undefined")
  # RapidJSON's stack adds to its null pointer while it is empty, which no compiler minds.
  set_source_files_properties(${PROJECT_SOURCE_DIR}/util/json_parse.cpp PROPERTIES
                              COMPILE_OPTIONS -fno-sanitize=pointer-overflow)
endif()

# No exceptions and no run-time type information: nothing in this library can throw.
quarn_add_library(quarn_asn1 SOURCES ${QUARN_ASN1_SOURCES} VERSION ${PROJECT_VERSION} SOVERSION 1
                  MAP ${PROJECT_SOURCE_DIR}/abi/quarn_asn1.map OPTIONS -fno-exceptions -fno-rtti)
target_link_libraries(quarn_asn1 PUBLIC quarn_util)
target_link_libraries(quarn_asn1_static PUBLIC quarn_util_static)

foreach(component util asn1)
  add_library(Quarn::${component} ALIAS quarn_${component})
  add_library(Quarn::${component}_static ALIAS quarn_${component}_static)
endforeach()
