# Keeps everything but our classes out of an ELF shared library's exported names. Hidden
# visibility does not reach what the standard library's templates leave in it. Which of
# our classes are exported is still MAP_SURROUND_API's to say: what is hidden stays so.
function(limit_exported_names target)
  if(NOT CMAKE_EXECUTABLE_FORMAT STREQUAL "ELF")
    return()
  endif()
  set(script "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/exported_names.map")
  target_link_options(${target} PRIVATE "LINKER:--version-script=${script}")
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${script}")
endfunction()
