# The example of docs/reading-dotnet.md as the page shows it: its first
# ```csharp block is compiled with the binding's sources, and run as the "$ "
# line of the ```text block after it says, on a copy of FILE in WORK_DIR; it
# must print the lines under that line.
# RUN_ENV: more NAME=VALUE for the run (a sanitized library's runtime).
#   cmake -DMCS=... -DMONO=... -DPAGE=... -DBINDING_DIR=... -DFILE=...
#         -DLIBRARY_PATH=... [-DRUN_ENV=...] -DWORK_DIR=... -P doc_example.cmake
cmake_minimum_required(VERSION 3.25)

file(READ "${PAGE}" page)
string(FIND "${page}" "\n```csharp\n" code_start)
if(code_start EQUAL -1)
    message(FATAL_ERROR "${PAGE} has no ```csharp block")
endif()
math(EXPR code_start "${code_start} + 11")
string(SUBSTRING "${page}" ${code_start} -1 rest)
string(FIND "${rest}" "\n```\n" code_end)
math(EXPR code_end "${code_end} + 1")
string(SUBSTRING "${rest}" 0 ${code_end} code)
string(SUBSTRING "${rest}" ${code_end} -1 rest)

string(FIND "${rest}" "\n```text\n$ " text_start)
if(text_start EQUAL -1)
    message(FATAL_ERROR "${PAGE} has no ```text block with a \"$ \" line after its example")
endif()
math(EXPR text_start "${text_start} + 11")
string(SUBSTRING "${rest}" ${text_start} -1 rest)
string(FIND "${rest}" "\n```\n" text_end)
math(EXPR text_end "${text_end} + 1")
string(SUBSTRING "${rest}" 0 ${text_end} transcript)
string(FIND "${transcript}" "\n" line_end)
string(SUBSTRING "${transcript}" 0 ${line_end} command_line)
math(EXPR line_end "${line_end} + 1")
string(SUBSTRING "${transcript}" ${line_end} -1 expected)

# "mono PROGRAM.exe FILE-NAME": the program compiled from the block.
separate_arguments(command UNIX_COMMAND "${command_line}")
list(LENGTH command words)
list(GET command 0 runner)
if(NOT words EQUAL 3 OR NOT runner STREQUAL "mono")
    message(FATAL_ERROR "the example runs as \"mono PROGRAM.exe FILE\", not \"${command_line}\"")
endif()
list(GET command 1 program)
list(GET command 2 input)

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
get_filename_component(source "${program}" NAME_WE)
file(WRITE "${WORK_DIR}/${source}.cs" "${code}")
file(COPY_FILE "${FILE}" "${WORK_DIR}/${input}")
file(GLOB binding "${BINDING_DIR}/*.cs")
execute_process(COMMAND "${MCS}" -nologo -warnaserror+ -target:exe "-out:${WORK_DIR}/${program}"
                        "${WORK_DIR}/${source}.cs" ${binding}
    RESULT_VARIABLE rc OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "mcs failed (${rc}):\n${output}")
endif()
# In the C locale: the page shows numbers with a decimal point.
execute_process(COMMAND "${CMAKE_COMMAND}" -E env "LD_LIBRARY_PATH=${LIBRARY_PATH}" ${RUN_ENV} LC_ALL=C LANG=C
                        "${MONO}" "${program}" "${input}"
    WORKING_DIRECTORY "${WORK_DIR}" RESULT_VARIABLE rc OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "${command_line} failed (${rc}):\n${output}${errors}")
endif()
if(NOT output STREQUAL expected)
    message(FATAL_ERROR "${command_line} printed\n${output}\nand the page shows\n${expected}")
endif()
message(STATUS "the example of ${PAGE} prints what the page shows")
