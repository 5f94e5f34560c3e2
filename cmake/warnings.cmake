# The warnings that our own code is kept free of, as one target to link privately.
add_library(map_surround_warnings INTERFACE)
if(MSVC)
  # Exported classes hold standard strings and lists, which C4251 would have exported too:
  # the DLL and its host share one standard library, as everywhere in C++.
  target_compile_options(map_surround_warnings INTERFACE /W4 /utf-8 /permissive- /wd4251
    $<$<BOOL:${MAP_SURROUND_WARNINGS_AS_ERRORS}>:/WX>)
else()
  target_compile_options(map_surround_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow
    $<$<BOOL:${MAP_SURROUND_WARNINGS_AS_ERRORS}>:-Werror>)
endif()
