# The warnings that our own code is kept free of, as one target to link privately.
add_library(map_surround_warnings INTERFACE)
if(MSVC)
  target_compile_options(map_surround_warnings INTERFACE /W4 /utf-8 /permissive-
    $<$<BOOL:${MAP_SURROUND_WARNINGS_AS_ERRORS}>:/WX>)
else()
  target_compile_options(map_surround_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow
    $<$<BOOL:${MAP_SURROUND_WARNINGS_AS_ERRORS}>:-Werror>)
endif()
