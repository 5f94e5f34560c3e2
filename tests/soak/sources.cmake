set(soak_test_sources
  soak_test.cpp)
