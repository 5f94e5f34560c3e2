set(recording_test_sources
  expect.cpp
  flat_calls.cpp
  lines.cpp
  main.cpp
  recorded_functions.cpp
  recording.cpp
  recording_test.cpp)
