# `unitechnik --version` prints the tool's version and the library's, which
# are both the project's, and exits 0; a command's own --version (convert's)
# stays the command's.
#   cmake -DTOOL=... -DVERSION=0.1.0 -P version_check.cmake
cmake_minimum_required(VERSION 3.25)
execute_process(COMMAND "${TOOL}" --version OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE rc)
set(expected "unitechnik ${VERSION}\nItUnitechnik library ${VERSION}\n")
if(NOT rc EQUAL 0 OR NOT out STREQUAL expected OR NOT err STREQUAL "")
    message(FATAL_ERROR "unitechnik --version exited ${rc} and printed\n${out}${err}\nnot\n${expected}")
endif()

execute_process(COMMAND "${TOOL}" convert --version 502 OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE rc)
if(NOT rc EQUAL 2 OR NOT err MATCHES "FILE is required")
    message(FATAL_ERROR "unitechnik convert --version 502 exited ${rc} and printed\n${out}${err}\n"
                        "not convert's complaint of its missing FILE")
endif()
message(STATUS "unitechnik --version: ${out}")
