set(element_sources
  map_surround_element.cpp
  text.cpp)
