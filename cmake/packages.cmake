# What `cpack` makes of an installation: two Debian packages, one to run with and one to
# build with, or one zip for Windows.
set(CPACK_PACKAGE_VENDOR "map_surround")
set(CPACK_PACKAGE_CONTACT "map_surround developers <developers@map-surround.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_STRIP_FILES ON)

if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_FILE_NAME "map_surround-${PROJECT_VERSION}-windows-x86_64")
  set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
  set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
  set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
else()
  set(CPACK_GENERATOR DEB)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  set(CPACK_DEB_COMPONENT_INSTALL ON)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

  set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "This package has the shared library.")
  set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
  set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${development_package})
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${runtime_package} (= ${PROJECT_VERSION})")
  if(MAP_SURROUND_GDIPLUS STREQUAL "libgdiplus")
    # libgdiplus has the name that programs are linked with, too.
    string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS ", libgdiplus")
  else()
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "libcairo2-dev")  # for <gdiplus/cairo.h>
  endif()
  set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "This package has the headers, the static library, the GDI+ binding, and what CMake and
pkg-config need to find them.")
endif()
include(CPack)
