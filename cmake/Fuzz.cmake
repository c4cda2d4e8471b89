# Fuzz targets: one program for each source in fuzz/, under libFuzzer. tools/fuzz.sh runs them.

if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  message(FATAL_ERROR "fuzz targets need clang: use the preset 'fuzz'")
endif()

file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/fuzz/*.cpp)
foreach(source ${sources})
  get_filename_component(name ${source} NAME_WE)
  add_executable(fuzz_${name} ${source})
  target_include_directories(fuzz_${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(fuzz_${name} PRIVATE quarn_flags quarn_asn1_static quarn_util_static)
  target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
endforeach()
