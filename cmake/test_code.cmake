# What the tests themselves are compiled with, as one target to link privately: they are
# many, run for a moment and are quickest to build unoptimised, whatever they test is. For
# the few that compute much themselves there is busy_test_code().
add_library(map_surround_test_code INTERFACE)
if(NOT MSVC)
  target_compile_options(map_surround_test_code INTERFACE -O0)
endif()

# Source files of the calling folder whose tests take longer to run than to optimise.
function(busy_test_code)
  if(NOT MSVC)
    set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS -O1)
  endif()
endfunction()
