set(threads_test_sources threads_test.cpp)
