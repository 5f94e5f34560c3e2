set(legend_test_sources
  legend_columns_test.cpp
  legend_changing_sources_test.cpp
  legend_drawing_test.cpp
  legend_properties_test.cpp
  legend_layout_test.cpp
  legend_lines_test.cpp
  legend_room_test.cpp)
