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
