# The one place for the language level, warnings, sanitizers and the other switches of a build.

include(CMakeDependentOption)

option(QV_APPS "Build the sample host and qvdisc" ${PROJECT_IS_TOP_LEVEL})
cmake_dependent_option(QV_TESTS "Build the tests and benchmarks, of the programs too"
                       ${PROJECT_IS_TOP_LEVEL} QV_APPS OFF)
option(QV_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(QV_COVERAGE "Build for line coverage" OFF)
option(QV_TIDY "Run clang-tidy on every file that is compiled" OFF)
option(QV_FUZZ "Build the libFuzzer targets (needs clang)" OFF)

# A host finds the pictures where its programs are made, unless it names another place.
if(PROJECT_IS_TOP_LEVEL)
  set(program_dir "${PROJECT_BINARY_DIR}")
elseif(CMAKE_RUNTIME_OUTPUT_DIRECTORY)
  set(program_dir "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
else()
  set(program_dir "${CMAKE_BINARY_DIR}")
endif()
set(QV_IMAGE_DIRECTORY "${program_dir}/images" CACHE PATH "Where the pictures of the dialogs are made")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)

# The cache is told to see paths relative to the project, so that a fresh clone and every preset profit
# from what another one has compiled.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      "${CMAKE_COMMAND}" -E env "CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}" CCACHE_NOHASHDIR=true
      "${CCACHE_PROGRAM}")
endif()

if(QV_TIDY)
  find_program(CLANG_TIDY_PROGRAM clang-tidy REQUIRED)
  set(CMAKE_CXX_CLANG_TIDY "${CLANG_TIDY_PROGRAM};--quiet")
endif()

add_library(qv_options INTERFACE)
target_include_directories(qv_options INTERFACE "${PROJECT_SOURCE_DIR}"
                                                "${PROJECT_BINARY_DIR}/generated")
if(MSVC)
  target_compile_options(qv_options INTERFACE /W4 /utf-8 /permissive-)
else()
  target_compile_options(
    qv_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
                         -Wold-style-cast -Woverloaded-virtual)
endif()
set(CMAKE_COMPILE_WARNING_AS_ERROR ${PROJECT_IS_TOP_LEVEL})

if(QV_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(QV_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()
if(QV_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# Gives `target` the project's options and lists its public headers, so that each of them is
# compiled alone as a proof that it includes what it uses.
function(qv_target target)
  cmake_parse_arguments(ARG "" "" "HEADERS;SOURCES" ${ARGN})
  target_link_libraries(${target} PRIVATE qv_options)
  target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>"
                                              "$<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/generated>")
  target_sources(${target} PRIVATE ${ARG_SOURCES})
  if(ARG_HEADERS)
    target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}"
                                                    FILES ${ARG_HEADERS})
  endif()
endfunction()

# Offers `target` to hosts as QVDiscriminator::`target`.
function(qv_offer target)
  add_library(QVDiscriminator::${target} ALIAS ${target})
  get_target_property(type ${target} TYPE)
  if(NOT type STREQUAL INTERFACE_LIBRARY)
    target_compile_features(${target} PUBLIC cxx_std_20)
  endif()
endfunction()

# Makes the header generated/<folder>/Export.h with the macro <NAME>_EXPORT for a shared library
# that hides what isn't marked.
function(qv_export_header target folder)
  include(GenerateExportHeader)
  set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden
                                             VISIBILITY_INLINES_HIDDEN ON)
  generate_export_header(${target} EXPORT_FILE_NAME
                         "${PROJECT_BINARY_DIR}/generated/${folder}/Export.h")
endfunction()
