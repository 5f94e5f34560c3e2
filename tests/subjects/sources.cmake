set(subjects_test_sources
  stage.cpp
  subjects.cpp)
