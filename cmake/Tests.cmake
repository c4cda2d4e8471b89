# Tests. One program for each folder below tests/; `ctest` runs them all.

find_package(GTest REQUIRED)

add_library(quarn_test_support STATIC ${PROJECT_SOURCE_DIR}/tests/support/vector_file.cpp)
target_include_directories(quarn_test_support PRIVATE ${PROJECT_SOURCE_DIR})
target_link_libraries(quarn_test_support PRIVATE quarn_container_flags PUBLIC quarn_asn1_static)

# quarn_add_test_program(NAME): tests/NAME/*.cpp, linked to the archives so that internals can be tested
function(quarn_add_test_program folder)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${folder}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(quarn_test_${folder} ${sources})
  target_include_directories(quarn_test_${folder} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(quarn_test_${folder} PRIVATE quarn_container_flags quarn_test_support quarn_asn1_static quarn_util_static
                        GTest::gtest GTest::gtest_main)
  target_compile_definitions(quarn_test_${folder} PRIVATE QUARN_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  add_test(NAME ${folder} COMMAND quarn_test_${folder} --gtest_brief=1)
  set_tests_properties(${folder} PROPERTIES
    ENVIRONMENT "TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/thread_sanitizer.supp")
endfunction()

foreach(folder util unit vectors laws corpus)
  quarn_add_test_program(${folder})
endforeach()

# What is generated: that it is up to date, and the generator itself.
find_package(Python3 COMPONENTS Interpreter)
if(Python3_FOUND)
  add_test(NAME generated COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/generate.py --check)
  add_test(NAME notation COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tests/tools/test_notation.py)
endif()

# The command as a person runs it.
if(TARGET quarn_cli AND Python3_FOUND)
  add_test(NAME cli COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tests/cli/test_quarn.py)
  set_tests_properties(cli PROPERTIES ENVIRONMENT
    "QUARN=$<TARGET_FILE:quarn_cli>;QUARN_COMPLETION=${QUARN_COMPLETION_bash};QUARN_MAN=${QUARN_MAN_PAGE}")
  foreach(name decode files check cms)
    add_test(NAME ${name} COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tests/cli/test_${name}.py)
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "QUARN=$<TARGET_FILE:quarn_cli>")
  endforeach()
  add_test(NAME decoding COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/decoding.py $<TARGET_FILE:quarn_cli> --check)
endif()

# Real files, made once for each build directory: for the program of that name and for the command.
find_program(QUARN_OPENSSL openssl)
if(Python3_FOUND AND QUARN_OPENSSL)
  set(corpus ${PROJECT_BINARY_DIR}/corpus)
  add_test(NAME corpus_files COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tests/corpus/make_corpus.py ${corpus}
           /usr/share/ca-certificates/mozilla)
  set_tests_properties(corpus_files PROPERTIES FIXTURES_SETUP corpus)
  set_tests_properties(corpus PROPERTIES FIXTURES_REQUIRED corpus ENVIRONMENT "QUARN_CORPUS=${corpus}")
  if(TARGET quarn_cli)
    add_test(NAME corpus_fields COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tests/corpus/test_corpus.py)
    add_test(NAME corpus_messages COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tests/corpus/test_messages.py)
    set_tests_properties(corpus_fields corpus_messages files PROPERTIES FIXTURES_REQUIRED corpus
      ENVIRONMENT "QUARN=$<TARGET_FILE:quarn_cli>;QUARN_CORPUS=${corpus}")
  endif()
endif()
