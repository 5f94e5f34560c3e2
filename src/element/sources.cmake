set(element_sources
  map_surround_element.cpp
  text_outline.cpp)
