# Runs a host that writes the document named by its last argument, and
# compares that document byte for byte with the one another host wrote.
#   cmake "-DCOMMAND=program;arguments..." -DOUTPUT=... -DEXPECTED=... -P host_check.cmake
cmake_minimum_required(VERSION 3.25)
foreach(var COMMAND OUTPUT EXPECTED)
    if(NOT DEFINED ${var} OR "${${var}}" STREQUAL "")
        message(FATAL_ERROR "host_check: ${var} is not given")
    endif()
endforeach()
file(REMOVE ${OUTPUT})
execute_process(COMMAND ${COMMAND} ${OUTPUT} RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "the host failed (${status})")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${OUTPUT} ${EXPECTED} RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${OUTPUT} differs from ${EXPECTED}")
endif()
message(STATUS "${OUTPUT} equals ${EXPECTED}")
