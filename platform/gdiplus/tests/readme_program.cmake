# The program that the README shows is the one that is built.
#   cmake -DREADME=README.md -DPROGRAM=ten_lines.cpp -P readme_program.cmake
file(READ "${README}" readme)
file(READ "${PROGRAM}" program)
string(FIND "${readme}" "```cpp\n${program}```" place)
if(place EQUAL -1)
  message(FATAL_ERROR "${README} does not show ${PROGRAM} as it is")
endif()
