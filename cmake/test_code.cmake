# What the tests themselves are compiled with, as one target to link privately: they are
# many, run for a moment and are quickest to build unoptimised, whatever they test is.
add_library(map_surround_test_code INTERFACE)
if(NOT MSVC)
  target_compile_options(map_surround_test_code INTERFACE -O0)
endif()
