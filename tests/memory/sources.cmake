set(memory_test_sources
  allocations.cpp
  changes_test.cpp
  exhaustion_test.cpp)
