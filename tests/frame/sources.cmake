set(frame_test_sources
  draw_frame_test.cpp
  frame_test.cpp
  hit_test_test.cpp)
