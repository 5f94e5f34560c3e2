# The manual's table has every option of the build, and no other.
#   cmake -DLISTS=CMakeLists.txt -DPAGE=getting_started.md -P documented_options.cmake
set(name "MAP_SURROUND_[A-Z_]+")
file(READ "${LISTS}" lists)
string(REGEX MATCHALL "(option\\(${name}|set\\(${name} \"\" CACHE)" options "${lists}")
list(TRANSFORM options REPLACE ".*(${name}).*" "\\1")
file(READ "${PAGE}" page)
string(REGEX MATCHALL "\n\\| `${name}`" documented "${page}")
list(TRANSFORM documented REPLACE ".*(${name}).*" "\\1")
list(SORT options)
list(SORT documented)
if(NOT options OR NOT options STREQUAL documented)
  message(FATAL_ERROR "${LISTS} has ${options},\nbut ${PAGE} ${documented}")
endif()
