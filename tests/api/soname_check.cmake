# The shared library's SONAME is libitunitechnik.so.<major>, read from its
# dynamic section, and the file the linker finds under that name exists.
#   cmake -DOBJDUMP=... -DLIBRARY=... -DMAJOR=... -P soname_check.cmake
execute_process(COMMAND ${OBJDUMP} -p ${LIBRARY} OUTPUT_VARIABLE listing RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "objdump failed on ${LIBRARY}")
endif()
if(NOT listing MATCHES "\n[ \t]*SONAME[ \t]+([^ \t\n]+)")
    message(FATAL_ERROR "${LIBRARY} has no SONAME")
endif()
set(soname ${CMAKE_MATCH_1})
if(NOT soname STREQUAL "libitunitechnik.so.${MAJOR}")
    message(FATAL_ERROR "SONAME ${soname}, expected libitunitechnik.so.${MAJOR}")
endif()
get_filename_component(directory ${LIBRARY} DIRECTORY)
if(NOT EXISTS ${directory}/${soname})
    message(FATAL_ERROR "no file ${soname} beside ${LIBRARY}")
endif()
message(STATUS "SONAME ${soname}")
