set(north_arrow_sources
  arrow_parts.cpp
  north_arrow_base.cpp
  north_arrow_eight_angle.cpp
  north_arrow_four_angle.cpp
  north_arrow_one_angle.cpp
  north_arrow_two_angle.cpp)
