# The command `quarn`, and what is made from its table of options: the man page and the completions.

find_package(CLI11 2.1 REQUIRED)

file(GLOB QUARN_CLI_SOURCES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/cli/*.cpp)
add_executable(quarn_cli ${QUARN_CLI_SOURCES})
set_target_properties(quarn_cli PROPERTIES OUTPUT_NAME quarn)
target_include_directories(quarn_cli PRIVATE ${PROJECT_SOURCE_DIR})
target_compile_definitions(quarn_cli PRIVATE QUARN_CLI_VERSION="${PROJECT_VERSION}")
target_link_libraries(quarn_cli PRIVATE quarn_container_flags quarn_asn1 quarn_util CLI11::CLI11)

# Installed by Install.cmake: QUARN_MAN_PAGE and QUARN_COMPLETION_<shell> are the files.
set(QUARN_SHARE_DIR ${PROJECT_BINARY_DIR}/share)
set(QUARN_MAN_PAGE ${QUARN_SHARE_DIR}/man/man1/quarn.1)
set(QUARN_COMPLETION_bash ${QUARN_SHARE_DIR}/completions/quarn)
set(QUARN_COMPLETION_zsh ${QUARN_SHARE_DIR}/completions/_quarn)
set(QUARN_COMPLETION_fish ${QUARN_SHARE_DIR}/completions/quarn.fish)
set(QUARN_CLI_GENERATED)
foreach(kind man bash zsh fish)
  set(output ${QUARN_MAN_PAGE})
  if(NOT kind STREQUAL "man")
    set(output ${QUARN_COMPLETION_${kind}})
  endif()
  get_filename_component(folder ${output} DIRECTORY)
  add_custom_command(OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND quarn_cli --generate ${kind} > ${output}
    DEPENDS quarn_cli VERBATIM)
  list(APPEND QUARN_CLI_GENERATED ${output})
endforeach()
add_custom_target(quarn_cli_share ALL DEPENDS ${QUARN_CLI_GENERATED})
