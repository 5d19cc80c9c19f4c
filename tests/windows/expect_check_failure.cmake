# Runs the interface check on a DLL that is wrong on purpose and makes sure
# that the check fails and names every fault.
#   cmake -DCHECK=check_exports.cmake -DOBJDUMP=... -DNM=... -DDLL=... -DIMPORT_LIB=...
#         -DEXPORT_LIST=... -DHEADER=... -P expect_check_failure.cmake
cmake_minimum_required(VERSION 3.25)
execute_process(
    COMMAND "${CMAKE_COMMAND}" "-DOBJDUMP=${OBJDUMP}" "-DNM=${NM}" "-DDLL=${DLL}"
            "-DIMPORT_LIB=${IMPORT_LIB}" "-DEXPORT_LIST=${EXPORT_LIST}" "-DHEADER=${HEADER}"
            -P "${CHECK}"
    RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
set(all "${out}${err}")
message(STATUS "the check said:\n${all}")
if(rc EQUAL 0)
    message(FATAL_ERROR "the check passed a DLL with a wrong interface")
endif()
foreach(fault
        "exported but not in the export list: notInTheHeader"
        "in the export list but not exported: endDocument"
        "imports from a DLL that Windows does not ship: libstdc\\+\\+-6.dll")
    if(NOT all MATCHES "${fault}")
        message(FATAL_ERROR "the check did not report: ${fault}")
    endif()
endforeach()
