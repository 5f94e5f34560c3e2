set(title_picture_test_sources
  draw_picture_open_test.cpp
  draw_picture_test.cpp
  image_file.cpp
  map_title_test.cpp)
