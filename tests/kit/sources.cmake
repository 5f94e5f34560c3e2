set(kit_test_sources
  division_test.cpp
  handles_test.cpp
  image_file_test.cpp
  ink_test.cpp
  session_and_classes_test.cpp)
