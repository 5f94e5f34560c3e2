set(element_test_sources
  element_test.cpp
  host_types_test.cpp
  number_text_test.cpp
  numbers_test.cpp)
