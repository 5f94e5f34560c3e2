set(memory_test_sources
  allocations.cpp
  allocations_test.cpp
  changes_test.cpp
  exhaustion_test.cpp)
