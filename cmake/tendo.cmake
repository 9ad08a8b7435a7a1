# One place for how a room of the house becomes a library, and how its tests are built.

add_library(tendo_options INTERFACE)
target_compile_features(tendo_options INTERFACE cxx_std_20)
target_include_directories(tendo_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(tendo_options INTERFACE -Wall -Wextra -Wconversion -Wshadow -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # g++ 12 reports false positives of these two from inlined standard containers.
  target_compile_options(tendo_options INTERFACE -Wno-restrict -Wno-maybe-uninitialized)
endif()
if(TENDO_SANITIZE)
  target_compile_options(tendo_options INTERFACE -fsanitize=address,undefined
                         -fno-sanitize-recover=undefined -fno-omit-frame-pointer -O1)
  target_link_options(tendo_options INTERFACE -fsanitize=address,undefined)
  if(TENDO_FUZZ)
    target_compile_options(tendo_options INTERFACE -fsanitize=fuzzer-no-link)
  endif()
endif()

# tendo_library(NAME [QT] LINK libraries...): a library of all .cpp files in the calling folder.
# Without QT the library must not see Qt; the linker then holds the line between logic and widgets.
function(tendo_library name)
  cmake_parse_arguments(ARG "QT" "" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp
       ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  if(NOT sources)
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE tendo_options ${ARG_LINK})
    return()
  endif()
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(${name} PUBLIC tendo_options ${ARG_LINK})
  if(ARG_QT)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_compile_definitions(${name} PRIVATE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
    target_link_libraries(${name} PUBLIC Qt6::Core Qt6::Gui Qt6::Widgets Qt6::PrintSupport Qt6::Svg)
    target_precompile_headers(${name} PRIVATE <QtWidgets>)
  endif()
endfunction()

# tendo_test(NAME LINK libraries...): one GoogleTest program of all .cpp files in the calling folder.
function(tendo_test name)
  cmake_parse_arguments(ARG "QT" "" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE ${ARG_LINK} GTest::gtest GTest::gmock GTest::gtest_main)
  target_compile_definitions(${name} PRIVATE
    TENDO_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data"
    TENDO_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
    TENDO_BINARY_DIR="${PROJECT_BINARY_DIR}")
  if(ARG_QT)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
  endif()
  include(GoogleTest)
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()

# tendo_fuzzer(NAME LINK libraries...): a libFuzzer target of fuzz_NAME.cpp in the calling folder.
function(tendo_fuzzer name)
  cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
  if(NOT TENDO_FUZZ)
    return()
  endif()
  add_executable(fuzz_${name} fuzz_${name}.cpp)
  target_link_libraries(fuzz_${name} PRIVATE ${ARG_LINK})
  target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
endfunction()
