set(frame_sources
  frame_base.cpp
  surround_frame.cpp)
