# Runs two programs and fails unless their standard outputs are the same
# bytes: the native build of tests/web/float_chars_forms.cpp against its
# WebAssembly build under node.
#   cmake -DNATIVE=... -DNODE=... -DMODULE=... -DWORK_DIR=... -P same_output.cmake
cmake_minimum_required(VERSION 3.25)
file(MAKE_DIRECTORY "${WORK_DIR}")
execute_process(COMMAND "${NATIVE}" OUTPUT_FILE "${WORK_DIR}/native.txt" RESULT_VARIABLE native_rc)
execute_process(COMMAND "${NODE}" "${MODULE}" OUTPUT_FILE "${WORK_DIR}/wasm.txt" RESULT_VARIABLE wasm_rc)
if(NOT native_rc EQUAL 0 OR NOT wasm_rc EQUAL 0)
    message(FATAL_ERROR "the native program gave ${native_rc}, the module ${wasm_rc}")
endif()
file(SIZE "${WORK_DIR}/native.txt" size)
if(size EQUAL 0)
    message(FATAL_ERROR "the native program printed nothing")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${WORK_DIR}/native.txt" "${WORK_DIR}/wasm.txt"
    RESULT_VARIABLE different)
if(different)
    message(FATAL_ERROR "the WebAssembly build writes doubles differently: diff ${WORK_DIR}/native.txt ${WORK_DIR}/wasm.txt")
endif()
message(STATUS "${size} bytes of doubles written alike")
