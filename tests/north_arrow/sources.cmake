set(north_arrow_test_sources
  arrow_models.cpp
  call_order_test.cpp
  north_arrow_test.cpp)
