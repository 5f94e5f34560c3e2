# The manual's table has every option of the build, and no other.
#   cmake -DSOURCE=FOLDER -P documented_options.cmake
set(name "MAP_SURROUND_[A-Z_]+")
set(page ${SOURCE}/docs/getting_started.md)
file(READ ${SOURCE}/CMakeLists.txt lists)
file(READ ${SOURCE}/platform/gdiplus/CMakeLists.txt binding_lists)
string(REGEX MATCHALL "(option\\(${name}|set\\(${name} [^ )]+ CACHE)" options
  "${lists}${binding_lists}")
list(TRANSFORM options REPLACE ".*(${name}).*" "\\1")
file(READ ${page} text)
string(REGEX MATCHALL "\n\\| `${name}`" documented "${text}")
list(TRANSFORM documented REPLACE ".*(${name}).*" "\\1")
list(SORT options)
list(SORT documented)
if(NOT options OR NOT options STREQUAL documented)
  message(FATAL_ERROR "the build has ${options},\nbut ${page} ${documented}")
endif()
