# Runs the tool with ARGUMENTS (separated by |) in WORK_DIR, through EMULATOR
# when there is one, and compares what it prints with the file EXPECTED, byte
# for byte. What it printed is kept beside the work as <name>.actual.
string(REPLACE "|" ";" arguments "${ARGUMENTS}")
execute_process(COMMAND ${EMULATOR} ${TOOL} ${arguments}
    WORKING_DIRECTORY ${WORK_DIR}
    OUTPUT_VARIABLE actual
    ERROR_VARIABLE errors
    RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "unitechnik ${arguments} exited with ${result}:\n${errors}")
endif()
file(READ ${EXPECTED} expected)
if(NOT actual STREQUAL expected)
    get_filename_component(name ${EXPECTED} NAME)
    file(WRITE ${WORK_DIR}/${name}.actual "${actual}")
    message(FATAL_ERROR "unitechnik ${arguments} printed other than ${EXPECTED}; "
                        "what it printed is in ${WORK_DIR}/${name}.actual:\n${actual}")
endif()
message(STATUS "unitechnik ${arguments} printed ${EXPECTED} exactly")
