# Installs the built library into a fresh prefix and builds the consumer
# project against it with find_package, then runs it.
#   cmake -DBUILD_DIR=... -DSOURCE_DIR=... -DWORK_DIR=... -P consumer_test.cmake
file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix
    RESULT_VARIABLE status OUTPUT_QUIET)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "install failed")
endif()
# A sanitized library needs a sanitized host.
set(flags "")
if(SANITIZE)
    set(flags "-DCMAKE_C_FLAGS=-fsanitize=${SANITIZE}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${WORK_DIR}/build
    -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix ${flags} RESULT_VARIABLE status OUTPUT_QUIET)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "configuring the consumer failed")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}/build RESULT_VARIABLE status OUTPUT_QUIET)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "building the consumer failed")
endif()
execute_process(COMMAND ${WORK_DIR}/build/consumer ${WORK_DIR}/out.txt RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR NOT EXISTS ${WORK_DIR}/out.txt)
    message(FATAL_ERROR "the consumer did not write its document")
endif()
file(READ ${WORK_DIR}/out.txt content LIMIT 10 HEX)
# "HEADER__" and CR LF
if(NOT content STREQUAL "4845414445525f5f0d0a")
    message(FATAL_ERROR "unexpected document start: ${content}")
endif()
message(STATUS "consumer built against the installed package and wrote its document")
