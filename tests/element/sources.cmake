set(element_test_sources
  numbers_test.cpp)
