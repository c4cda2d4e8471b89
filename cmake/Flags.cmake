# Flags that every target of this project is built with.

add_library(quarn_flags INTERFACE)
target_compile_options(quarn_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wcast-qual -Wformat=2
  -Wundef -Wvla -Walloca -fstack-protector-strong -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.
  $<$<COMPILE_LANGUAGE:CXX>:-Wold-style-cast -Wnon-virtual-dtor>)
if(QUARN_WERROR)
  target_compile_options(quarn_flags INTERFACE -Werror)
endif()

# Code that runs inside other people's processes: small stack frames, every function declared.
add_library(quarn_library_flags INTERFACE)
target_link_libraries(quarn_library_flags INTERFACE quarn_flags)
target_compile_options(quarn_library_flags INTERFACE -Wmissing-declarations)
if(NOT QUARN_SANITIZE AND NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
  target_compile_options(quarn_library_flags INTERFACE -Wframe-larger-than=4096)
endif()

if(QUARN_SANITIZE)
  add_compile_options(-fsanitize=${QUARN_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${QUARN_SANITIZE})
else()
  add_link_options(-Wl,--no-undefined -Wl,-z,relro -Wl,-z,now)
endif()

# Code that uses the standard containers: GCC 12 raises false alarms about them in optimised builds
# (GCC bugs 105651 and 105329).
add_library(quarn_container_flags INTERFACE)
target_link_libraries(quarn_container_flags INTERFACE quarn_flags)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(quarn_container_flags INTERFACE
    $<$<NOT:$<CONFIG:Debug>>:-Wno-restrict -Wno-array-bounds -Wno-stringop-overread -Wno-maybe-uninitialized
      -Wno-free-nonheap-object>)
endif()
