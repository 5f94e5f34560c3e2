# What the tests themselves are compiled with, as one target to link privately: they are
# many, run for a moment and are quickest to build unoptimised, whatever they test is. For
# the few that compute much themselves there is busy_test_code().
add_library(map_surround_test_code INTERFACE)
if(NOT MSVC)
  target_compile_options(map_surround_test_code INTERFACE -O0
    $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endif()

# What most tests include, read once for all of them.
function(add_test_headers)
  file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/test_headers.cpp CONTENT "")
  add_library(map_surround_test_headers OBJECT ${PROJECT_BINARY_DIR}/test_headers.cpp)
  set_target_properties(map_surround_test_headers PROPERTIES CXX_EXTENSIONS OFF)
  target_compile_features(map_surround_test_headers PRIVATE cxx_std_17)
  target_link_libraries(map_surround_test_headers PRIVATE
    gdiplus GTest::gtest GTest::gmock map_surround_test_code map_surround_warnings)
  target_precompile_headers(map_surround_test_headers PRIVATE
    <gdiplus.h> <gmock/gmock.h> <gtest/gtest.h> <algorithm> <array> <filesystem> <fstream>
    <functional> <map> <memory> <optional> <sstream> <string> <vector>)
endfunction()
function(use_test_headers target)
  target_link_libraries(${target} PRIVATE map_surround_test_code)
  target_precompile_headers(${target} REUSE_FROM map_surround_test_headers)
  compile_several_at_once(${target})
endfunction()

# Source files of the calling folder whose tests take longer to run than to optimise.
function(busy_test_code)
  if(NOT MSVC)
    set_source_files_properties(${ARGN} PROPERTIES
      COMPILE_OPTIONS -O1 SKIP_PRECOMPILE_HEADERS ON)
  endif()
endfunction()
