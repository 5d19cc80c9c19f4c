# Checks that the shared library exports exactly the functions of the public
# header and nothing else.
#   cmake -DLIBRARY=... -DEXPECTED="a;b;c" -DNM=nm -P exported_symbols.cmake
execute_process(COMMAND ${NM} -D --defined-only ${LIBRARY}
    OUTPUT_VARIABLE listing RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "nm failed on ${LIBRARY}")
endif()
string(REPLACE "\n" ";" lines "${listing}")
set(actual "")
foreach(line IN LISTS lines)
    if(line MATCHES "^[0-9a-fA-F]+ [A-Za-z] (.+)$")
        list(APPEND actual "${CMAKE_MATCH_1}")
    endif()
endforeach()
list(SORT actual)
set(expected ${EXPECTED})
list(SORT expected)
if(NOT actual STREQUAL expected)
    message(FATAL_ERROR "exported symbols differ\n  expected: ${expected}\n  actual:   ${actual}")
endif()
list(LENGTH actual count)
message(STATUS "${count} exported symbols, as expected")
