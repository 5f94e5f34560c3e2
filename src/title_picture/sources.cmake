set(title_picture_sources
  draw_picture.cpp
  map_title.cpp)
