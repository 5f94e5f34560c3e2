set(scale_bar_test_sources
  bar_row.cpp
  box_rows_test.cpp
  call_order_test.cpp
  every_style_test.cpp
  expected_drawing.cpp
  extremes_test.cpp
  scale_bar_base_test.cpp)
