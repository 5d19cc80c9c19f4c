# One run of the built tool, as a test: its exit code, what it prints on
# standard output (and, when given, on standard error) and, when given, a
# file it writes, each compared with what is expected.
#
#   cmake -DTOOL=unitechnik -DWORK_DIR=DIR -DARGUMENTS="check|a.json|--json"
#         -DEXIT=1 [-DEXPECTED_OUT=FILE] [-DEXPECTED_ERR=FILE]
#         [-DWRITTEN=FILE -DWRITTEN_EXPECTED=FILE] -P run_tool_case.cmake
#
# The arguments are separated by '|'. Without EXPECTED_OUT nothing may be
# printed on standard output. With -DGOLDEN_DIR=DIR that folder stands as
# GOLDEN in what is printed, so that the expected files hold no path of a
# machine.
cmake_minimum_required(VERSION 3.25)

string(REPLACE "|" ";" arguments "${ARGUMENTS}")
if(DEFINED WRITTEN)
    file(REMOVE "${WORK_DIR}/${WRITTEN}")
endif()
execute_process(COMMAND "${TOOL}" ${arguments}
    WORKING_DIRECTORY "${WORK_DIR}"
    RESULT_VARIABLE code
    OUTPUT_VARIABLE out
    ERROR_VARIABLE err)

if(DEFINED GOLDEN_DIR)
    string(REPLACE "${GOLDEN_DIR}" "GOLDEN" out "${out}")
    string(REPLACE "${GOLDEN_DIR}" "GOLDEN" err "${err}")
endif()

set(failures "")
if(NOT code STREQUAL "${EXIT}")
    string(APPEND failures "exit code ${code}, expected ${EXIT}\n")
endif()
set(expected "")
if(DEFINED EXPECTED_OUT)
    file(READ "${EXPECTED_OUT}" expected)
endif()
if(NOT out STREQUAL expected)
    string(APPEND failures "standard output:\n${out}\nexpected:\n${expected}\n")
endif()
if(DEFINED EXPECTED_ERR)
    file(READ "${EXPECTED_ERR}" expected)
    if(NOT err STREQUAL expected)
        string(APPEND failures "standard error:\n${err}\nexpected:\n${expected}\n")
    endif()
endif()
if(DEFINED WRITTEN)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files "${WORK_DIR}/${WRITTEN}" "${WRITTEN_EXPECTED}"
        RESULT_VARIABLE same)
    if(NOT same EQUAL 0)
        string(APPEND failures "${WRITTEN} is not the bytes of ${WRITTEN_EXPECTED}\n")
    endif()
endif()

if(NOT failures STREQUAL "")
    string(REPLACE "|" " " shown "${ARGUMENTS}")
    message(FATAL_ERROR "unitechnik ${shown} (in ${WORK_DIR}):\n${failures}standard error was:\n${err}")
endif()
