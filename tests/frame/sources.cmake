set(frame_test_sources
  draw_frame_test.cpp)
