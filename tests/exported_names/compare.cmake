# Compares what a shared library exports with a list of names, one a line.
#   cmake -DLIBRARY=file -DNAMES=list -DNM=nm -P compare.cmake
#   cmake -DLIBRARY=file -DNAMES=list -DOBJDUMP=objdump -DCXXFILT=c++filt -P compare.cmake
# The second is for a DLL, whose table of exports nm does not show: only the classes of
# the names are compared.
cmake_policy(VERSION 3.22)
if(OBJDUMP)
  execute_process(COMMAND ${OBJDUMP} --private-headers ${LIBRARY} COMMAND ${CXXFILT}
    OUTPUT_VARIABLE exported RESULTS_VARIABLE results)
  set(before_name "^\t,[ 0-9]+, ")
else()
  execute_process(COMMAND ${NM} --dynamic --demangle --defined-only ${LIBRARY}
    OUTPUT_VARIABLE exported RESULTS_VARIABLE results)
  set(before_name "^[0-9a-f]+ [A-Za-z] ")
endif()
if(NOT results MATCHES "^0(;0)?$")
  message(FATAL_ERROR "the names of ${LIBRARY} cannot be read")
endif()
string(REGEX REPLACE "[];\\[]" "," exported "${exported}")
string(REPLACE "\n" ";" exported "${exported}")
list(FILTER exported INCLUDE REGEX "${before_name}")
list(FILTER exported EXCLUDE REGEX "Export RVA$")  # the same exports by address
list(TRANSFORM exported REPLACE "${before_name}" "")

function(keep_classes names)
  set(classes)
  foreach(name IN LISTS ${names})
    if(name MATCHES "^([A-Za-z0-9_]+)::" OR
        name MATCHES "^[a-z ]+ for ([A-Za-z0-9_]+)$")
      list(APPEND classes ${CMAKE_MATCH_1})
    elseif(name)
      message(SEND_ERROR "exported, but of no class: ${name}")
    endif()
  endforeach()
  set(${names} ${classes} PARENT_SCOPE)
endfunction()

file(STRINGS ${NAMES} expected)
# With a table of functions comes what tells its class at run time.
foreach(name IN LISTS expected)
  if(name MATCHES "^vtable for (.*)$")
    list(APPEND expected "typeinfo for ${CMAKE_MATCH_1}" "typeinfo name for ${CMAKE_MATCH_1}")
  endif()
endforeach()
if(OBJDUMP)
  keep_classes(exported)
  keep_classes(expected)
endif()
list(REMOVE_DUPLICATES exported)
list(REMOVE_DUPLICATES expected)

# Plain lines, which can be copied into the list.
function(complain_of names not_in what)
  set(others ${${names}})
  list(REMOVE_ITEM others ${${not_in}})
  if(others)
    list(JOIN others "\n" lines)
    message(NOTICE "${what}:\n${lines}")
    message(SEND_ERROR "The exported names have changed.")
  endif()
endfunction()
complain_of(exported expected "exported, but not in the list")
complain_of(expected exported "in the list, but not exported")
