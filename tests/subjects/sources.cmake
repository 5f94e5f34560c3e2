set(subjects_test_sources
  hostile_numbers_test.cpp
  stage.cpp
  subjects.cpp)
