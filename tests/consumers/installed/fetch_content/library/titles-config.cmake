include(CMakeFindDependencyMacro)
find_dependency(map_surround)
include("${CMAKE_CURRENT_LIST_DIR}/titles-targets.cmake")
