# GoogleTest: as installed, or from its sources where we build for another system.
include(GoogleTest)
if(MAP_SURROUND_GTEST_SOURCES)
  set(INSTALL_GTEST OFF)
  set(gtest_force_shared_crt ON)  # the C runtime that our own targets are built for
  add_subdirectory("${MAP_SURROUND_GTEST_SOURCES}" "${PROJECT_BINARY_DIR}/googletest"
    EXCLUDE_FROM_ALL)
  foreach(library gtest gmock)
    if(NOT TARGET GTest::${library})
      add_library(GTest::${library} ALIAS ${library})
    endif()
  endforeach()
else()
  find_package(GTest REQUIRED)
endif()

# The tests of a program, each by itself; or, where a process takes longer to start than
# most tests take, in twice as many parts as run at a time, since some take longer. EACH
# has them by themselves in any case.
option(MAP_SURROUND_WHOLE_PROGRAMS "Run the programs of tests whole" OFF)
cmake_host_system_information(RESULT processors QUERY NUMBER_OF_LOGICAL_CORES)
math(EXPR MAP_SURROUND_TEST_PARTS "2 * ${processors}")
function(add_program_tests target prefix)
  cmake_parse_arguments(PARSE_ARGV 2 arg "EACH" "FILTER" "PROPERTIES")
  if(NOT arg_FILTER)
    set(arg_FILTER "*")
  endif()
  if(arg_EACH OR NOT MAP_SURROUND_WHOLE_PROGRAMS)
    gtest_discover_tests(${target} TEST_PREFIX "${prefix}." TEST_FILTER "${arg_FILTER}"
      DISCOVERY_TIMEOUT 60 PROPERTIES ${arg_PROPERTIES})
    return()
  endif()
  math(EXPR last "${MAP_SURROUND_TEST_PARTS} - 1")
  foreach(part RANGE ${last})
    add_test(NAME ${prefix}.${part} COMMAND ${target} "--gtest_filter=${arg_FILTER}")
    set_tests_properties(${prefix}.${part} PROPERTIES ${arg_PROPERTIES} TIMEOUT 1500
      ENVIRONMENT "GTEST_BRIEF=1;GTEST_TOTAL_SHARDS=${MAP_SURROUND_TEST_PARTS};\
GTEST_SHARD_INDEX=${part}")
  endforeach()
endfunction()
