# Makes the Windows .zip with cpack and looks inside: the DLL (the one built,
# byte for byte), its import library and module definition file, the header,
# the CMake and pkg-config files, the bindings with a copy of the DLL in the
# Python package, and the README; and no program of the tests.
#   cmake -DBUILD_DIR=... -DWORK_DIR=... -DDLL=... -P package_check.cmake
cmake_minimum_required(VERSION 3.25)
foreach(var BUILD_DIR WORK_DIR DLL)
    if(NOT DEFINED ${var} OR "${${var}}" STREQUAL "")
        message(FATAL_ERROR "package_check: ${var} is not given")
    endif()
endforeach()
file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_CPACK_COMMAND} -G ZIP --config ${BUILD_DIR}/CPackConfig.cmake -B ${WORK_DIR}
    WORKING_DIRECTORY ${BUILD_DIR} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "cpack failed:\n${out}${err}")
endif()
file(GLOB zips ${WORK_DIR}/*.zip)
list(LENGTH zips count)
if(NOT count EQUAL 1)
    message(FATAL_ERROR "expected one .zip, found: ${zips}")
endif()
file(MAKE_DIRECTORY ${WORK_DIR}/unpacked)
execute_process(COMMAND ${CMAKE_COMMAND} -E tar xf ${zips} WORKING_DIRECTORY ${WORK_DIR}/unpacked
    RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "the .zip does not unpack")
endif()
file(GLOB top ${WORK_DIR}/unpacked/*)
list(LENGTH top count)
if(NOT count EQUAL 1 OR NOT IS_DIRECTORY ${top})
    message(FATAL_ERROR "the .zip holds more than one folder at the top: ${top}")
endif()

set(failures "")
foreach(path
        bin/itunitechnik.dll
        bin/itunitechnik_reading.dll
        lib/libitunitechnik.dll.a
        lib/itunitechnik.def
        include/itunitechnik.h
        include/itunitechnik_types.h
        include/itunitechnik_version.h
        include/itunitechnik_reading.h
        lib/cmake/ItUnitechnik/ItUnitechnikConfig.cmake
        lib/pkgconfig/itunitechnik.pc
        bindings/dotnet/NativeMethods.cs
        bindings/dotnet/Document.cs
        bindings/dotnet/DocumentValues.cs
        bindings/dotnet/UnitechnikFile.cs
        bindings/python/pyproject.toml
        bindings/python/unitechnik/__init__.py
        bindings/python/unitechnik/_writing.py
        bindings/python/unitechnik/_version.py
        bindings/python/unitechnik/itunitechnik.dll
        bindings/python/unitechnik/itunitechnik_reading.dll
        README.md)
    if(NOT EXISTS ${top}/${path})
        string(APPEND failures "  missing: ${path}\n")
    endif()
endforeach()
foreach(copy bin/itunitechnik.dll bindings/python/unitechnik/itunitechnik.dll)
    if(EXISTS ${top}/${copy})
        file(SHA256 ${top}/${copy} packed)
        file(SHA256 ${DLL} built)
        if(NOT packed STREQUAL built)
            string(APPEND failures "  ${copy} is not the DLL that was built\n")
        endif()
    endif()
endforeach()
# The one program that belongs is the command-line tool, beside the DLL.
file(GLOB_RECURSE programs ${top}/*.exe)
list(REMOVE_ITEM programs ${top}/bin/unitechnik.exe)
if(programs)
    string(APPEND failures "  programs that do not belong: ${programs}\n")
endif()
if(failures)
    message(FATAL_ERROR "the Windows package:\n${failures}")
endif()
get_filename_component(name ${zips} NAME)
message(STATUS "${name} holds what it should")
