set(faults_test_sources
  disturbance.cpp
  disturbance_test.cpp
  fault_sweep_test.cpp)
