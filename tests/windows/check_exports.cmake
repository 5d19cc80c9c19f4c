# Looks at the built DLL from the outside, as a host and its linker see it:
#   - its export table holds exactly the names of the library's export list,
#     undecorated, each of them declared for export in the public header;
#   - its import library offers exactly the same names;
#   - it imports from system DLLs only, so it needs nothing beside it.
# Run as: cmake -DOBJDUMP=... -DNM=... -DDLL=... -DIMPORT_LIB=... -DEXPORT_LIST=...
#               -DHEADER=... -P check_exports.cmake
cmake_minimum_required(VERSION 3.25)
foreach(var OBJDUMP NM DLL IMPORT_LIB EXPORT_LIST HEADER)
    if(NOT DEFINED ${var} OR "${${var}}" STREQUAL "")
        message(FATAL_ERROR "check_exports: ${var} is not given")
    endif()
endforeach()

set(failures "")
macro(fail text)
    string(APPEND failures "  ${text}\n")
endmacro()

# The names the public header declares for export; the lines of the
# preprocessor that define the marker itself are not declarations.
file(STRINGS "${HEADER}" header_lines)
set(declared "")
foreach(line IN LISTS header_lines)
    if(line MATCHES "^[ \t]*#")
        continue()
    endif()
    if(line MATCHES "ITUNITECHNIK_API[^(]*[ *]([A-Za-z_][A-Za-z0-9_]*)[ \t]*\\(")
        list(APPEND declared "${CMAKE_MATCH_1}")
    endif()
endforeach()
list(LENGTH declared declared_count)
if(declared_count LESS 16)
    message(FATAL_ERROR "check_exports: only ${declared_count} declarations found in ${HEADER}")
endif()

# The names the library defines so far, one a line.
file(STRINGS "${EXPORT_LIST}" expected REGEX "^[A-Za-z_][A-Za-z0-9_]*$")
if(NOT expected)
    message(FATAL_ERROR "check_exports: no names in ${EXPORT_LIST}")
endif()
foreach(name IN LISTS expected)
    if(NOT name IN_LIST declared)
        fail("in the export list but not declared for export in the header: ${name}")
    endif()
endforeach()

# The export table.
include(${CMAKE_CURRENT_LIST_DIR}/dll_tables.cmake)
itunitechnik_dll_tables("${OBJDUMP}" "${DLL}" exported imported saw_export_table)
if(NOT saw_export_table)
    fail("no export table in ${DLL}")
endif()

set(seen "")
foreach(name IN LISTS exported)
    if(name IN_LIST seen)
        fail("exported twice: ${name}")
    endif()
    list(APPEND seen "${name}")
    if(NOT name IN_LIST expected)
        fail("exported but not in the export list: ${name}")
    endif()
endforeach()
foreach(name IN LISTS expected)
    if(NOT name IN_LIST exported)
        fail("in the export list but not exported: ${name}")
    endif()
endforeach()

# The import library offers what the DLL exports, no more and no less.
execute_process(COMMAND "${NM}" "${IMPORT_LIB}" OUTPUT_VARIABLE import_symbols RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
    fail("${NM} ${IMPORT_LIB} failed (${rc})")
endif()
string(REGEX MATCHALL "__imp_[A-Za-z_][A-Za-z0-9_]*" import_names "${import_symbols}")
list(TRANSFORM import_names REPLACE "^__imp_" "")
list(REMOVE_DUPLICATES import_names)
foreach(name IN LISTS exported)
    if(NOT name IN_LIST import_names)
        fail("exported but missing from the import library: ${name}")
    endif()
endforeach()
foreach(name IN LISTS import_names)
    if(NOT name IN_LIST exported)
        fail("in the import library but not exported: ${name}")
    endif()
endforeach()

# Only what every Windows has.
foreach(dll IN LISTS imported)
    string(TOLOWER "${dll}" lower)
    if(NOT lower MATCHES "^(kernel32|msvcrt|ole32|ucrtbase|api-ms-win-[a-z0-9-]+)\\.dll$")
        fail("imports from a DLL that Windows does not ship: ${dll}")
    endif()
endforeach()
if(NOT imported)
    fail("no imports found in ${DLL}")
endif()

list(JOIN exported " " exported_text)
list(JOIN imported " " imported_text)
message(STATUS "exports: ${exported_text}")
message(STATUS "imports: ${imported_text}")
if(failures)
    message(FATAL_ERROR "the DLL's interface is wrong:\n${failures}")
endif()
