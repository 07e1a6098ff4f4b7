# Compiler settings shared by everything that is built here: target kz_options.
option(KZ_BUILD_TOOL "Build kzdic, the command-line tool" ON)
option(KZ_BUILD_BENCH "Build the benchmarks" OFF)
option(KZ_BUILD_FUZZ "Build the fuzz targets (clang)" OFF)
option(KZ_QUICK_BUILD "Precompile headers, and compile sources of the tool together" ON)
option(KZ_32BIT "Build for 32-bit x86" OFF)
set(KZ_WARNINGS -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
    CACHE STRING "Options of the compiler for warnings")
set(KZ_SANITIZE "" CACHE STRING "Sanitizers to build with: address, thread or nothing")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(kz_options INTERFACE)
target_compile_options(kz_options INTERFACE ${KZ_WARNINGS})
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # These releases take the inlined copying of std::string for overlapping copies.
  target_compile_options(kz_options INTERFACE -Wno-restrict)
endif()
if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
  # GCC's -Wconversion leaves changes of sign alone in C++; so does this.
  target_compile_options(kz_options INTERFACE -Wno-sign-conversion)
endif()
# 32-bit inodes, sizes and times of the operating system's own records must not limit a 32-bit build.
target_compile_definitions(kz_options INTERFACE _FILE_OFFSET_BITS=64 _TIME_BITS=64)

if(KZ_32BIT)
  add_compile_options(-m32 -msse2 -mfpmath=sse)
  add_link_options(-m32)
endif()
if(KZ_SANITIZE STREQUAL "address")
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
elseif(KZ_SANITIZE STREQUAL "thread")
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
elseif(KZ_SANITIZE)
  message(FATAL_ERROR "KZ_SANITIZE is '${KZ_SANITIZE}'; it takes address or thread")
endif()
if(KZ_BUILD_FUZZ)
  # The library tells the fuzzer which of its code an input reached.
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
