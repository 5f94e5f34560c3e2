set(scale_bar_test_sources
  bar_row.cpp
  call_order_test.cpp
  every_style_test.cpp
  expected_drawing.cpp
  extremes_test.cpp
  scale_bar_base_test.cpp
  styles_by_hand_test.cpp)
