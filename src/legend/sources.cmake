set(legend_sources
  columns.cpp
  legend_drawing.cpp
  legend_layout.cpp
  ramp_values.cpp
  text_cut.cpp
  text_lines.cpp)
