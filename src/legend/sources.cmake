set(legend_sources
  legend_drawing.cpp
  legend_layout.cpp)
