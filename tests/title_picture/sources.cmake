set(title_picture_test_sources
  map_title_test.cpp)
