# What `cmake --install` puts where: headers, libraries, the CMake package, pkg-config.
# Component `runtime` is what a program needs to run, `development` what builds one.
include(CMakePackageConfigHelpers)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/map_surround)

install(
  DIRECTORY ${PROJECT_SOURCE_DIR}/include/map_surround ${PROJECT_BINARY_DIR}/include/map_surround
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development FILES_MATCHING PATTERN "*.h")
if(MAP_SURROUND_HOST_INCLUDE_DIR)
  set(interfaces ${MAP_SURROUND_HOST_INCLUDE_DIR})
else()
  set(interfaces ${PROJECT_SOURCE_DIR}/include)
endif()
install(DIRECTORY ${interfaces}/host
  DESTINATION ${MAP_SURROUND_INSTALL_INTERFACES} COMPONENT development
  FILES_MATCHING PATTERN "*.h")

foreach(kind shared static)
  if(TARGET map_surround_${kind})
    install(TARGETS map_surround_${kind} EXPORT map_surround_${kind}
      RUNTIME COMPONENT runtime
      LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
      ARCHIVE COMPONENT development)
    install(EXPORT map_surround_${kind} NAMESPACE map_surround::
      FILE ${kind}-targets.cmake DESTINATION ${package_dir} COMPONENT development)
  endif()
endforeach()

configure_package_config_file(
  ${CMAKE_CURRENT_LIST_DIR}/map_surround-config.cmake.in
  ${PROJECT_BINARY_DIR}/map_surround-config.cmake
  INSTALL_DESTINATION ${package_dir})
# One major version is one binary interface, also while it is 0.
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/map_surround-config-version.cmake COMPATIBILITY SameMajorVersion)
install(
  FILES
    ${PROJECT_BINARY_DIR}/map_surround-config.cmake
    ${PROJECT_BINARY_DIR}/map_surround-config-version.cmake
  DESTINATION ${package_dir} COMPONENT development)

if(WIN32)
  install(FILES ${PROJECT_SOURCE_DIR}/LICENSE
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
else()
  # As Debian has it: a copyright file for each package.
  set(runtime_package libmap-surround${PROJECT_VERSION_MAJOR})
  set(development_package libmap-surround-dev)
  foreach(component runtime development)
    install(FILES ${PROJECT_SOURCE_DIR}/LICENSE RENAME copyright
      DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${${component}_package}
      COMPONENT ${component})
  endforeach()
endif()

# pkg-config's file says where things are from where it lies itself, so that the whole
# tree can be moved. A host's own sibling libraries are not for it to name.
if(NOT MAP_SURROUND_HOST_INCLUDE_DIR)
  set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
  file(RELATIVE_PATH prefix_from_pkgconfig "/${pkgconfig_dir}" "/")
  string(REGEX REPLACE "/$" "" prefix_from_pkgconfig "${prefix_from_pkgconfig}")
  foreach(kind shared static)
    if(TARGET map_surround_${kind})
      set(pc_name map_surround)
      if(kind STREQUAL "static" AND TARGET map_surround_shared)
        set(pc_name map_surround_static)
      endif()
      set(pc_flags)
      set(pc_library "-L\${libdir} -lmap_surround")
      if(kind STREQUAL "static")
        set(pc_flags " -DMAP_SURROUND_STATIC_DEFINE")
        # By its file, for beside the shared library its name means that.
        set(pc_library
          "\${libdir}/$<TARGET_LINKER_FILE_NAME:map_surround_static> -L\${libdir}")
      endif()
      set(gdiplus_library gdiplus)
      if(TARGET gdiplus_cairo)
        set(gdiplus_library map_surround_gdiplus)
      endif()
      configure_file(${CMAKE_CURRENT_LIST_DIR}/map_surround.pc.in
        ${PROJECT_BINARY_DIR}/${pc_name}.pc.in @ONLY)
      file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/${pc_name}.pc
        INPUT ${PROJECT_BINARY_DIR}/${pc_name}.pc.in)
      install(FILES ${PROJECT_BINARY_DIR}/${pc_name}.pc
        DESTINATION ${pkgconfig_dir} COMPONENT development)
    endif()
  endforeach()
endif()

if(PROJECT_IS_TOP_LEVEL)
  include(packages)
endif()
