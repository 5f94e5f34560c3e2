# Compares the classes that a shared library exports with a list of them, one a line.
#   cmake -DLIBRARY=file -DCLASSES=list -DNM=nm -P compare.cmake
#   cmake -DLIBRARY=file -DCLASSES=list -DOBJDUMP=objdump -DCXXFILT=c++filt -P compare.cmake
# The second is for a DLL, whose table of exports nm does not show.
cmake_policy(VERSION 3.22)
if(OBJDUMP)
  execute_process(COMMAND ${OBJDUMP} --private-headers ${LIBRARY} COMMAND ${CXXFILT}
    OUTPUT_VARIABLE names RESULTS_VARIABLE results)
  set(before_name "^\t,[ 0-9]+, ")
else()
  execute_process(COMMAND ${NM} --dynamic --demangle --defined-only ${LIBRARY}
    OUTPUT_VARIABLE names RESULTS_VARIABLE results)
  set(before_name "^[0-9a-f]+ [A-Za-z] ")
endif()
if(NOT results MATCHES "^0(;0)?$")
  message(FATAL_ERROR "the names of ${LIBRARY} cannot be read")
endif()
string(REGEX REPLACE "[];\\[]" "," names "${names}")
string(REPLACE "\n" ";" names "${names}")
list(FILTER names INCLUDE REGEX "${before_name}")
list(FILTER names EXCLUDE REGEX "Export RVA$")  # the same exports by address

set(exported)
foreach(name IN LISTS names)
  string(REGEX REPLACE "${before_name}" "" name "${name}")
  if(name MATCHES "^([A-Za-z0-9_]+)::" OR
      name MATCHES "^[a-z ]+ for ([A-Za-z0-9_]+)$")
    list(APPEND exported ${CMAKE_MATCH_1})
  elseif(name)
    message(SEND_ERROR "exported, but of no class: ${name}")
  endif()
endforeach()
list(REMOVE_DUPLICATES exported)
list(SORT exported)

file(STRINGS ${CLASSES} expected)
list(SORT expected)
foreach(class IN LISTS exported)
  if(NOT class IN_LIST expected)
    message(SEND_ERROR "exported, but not in the list: ${class}")
  endif()
endforeach()
foreach(class IN LISTS expected)
  if(NOT class IN_LIST exported)
    message(SEND_ERROR "in the list, but not exported: ${class}")
  endif()
endforeach()
