# check, diff and convert run as a user runs them, each on inputs made for one
# thing it must find, with what it must print under expected/check,
# expected/diff and expected/convert. Included from CMakeLists.txt.
if(CMAKE_CROSSCOMPILING)
    return()
endif()

set(UNITECHNIK_GOLDEN ${PROJECT_SOURCE_DIR}/tests/functional/expected)
set(UNITECHNIK_CHECK_INPUTS ${CMAKE_CURRENT_LIST_DIR}/check/inputs)
set(UNITECHNIK_CONVERT_DIR ${CMAKE_CURRENT_BINARY_DIR}/convert)
file(MAKE_DIRECTORY ${UNITECHNIK_CONVERT_DIR})

# unitechnik_case(NAME WORK_DIR ARGUMENTS EXIT [OUT file] [ERR file]
#                 [WRITTEN file WRITTEN_EXPECTED file] [SETUP fixture] [REQUIRES fixture])
# ARGUMENTS are separated by '|'; OUT and ERR name files below expected/.
function(unitechnik_case name work_dir arguments exit)
    cmake_parse_arguments(CASE "" "OUT;ERR;WRITTEN;WRITTEN_EXPECTED;SETUP;REQUIRES" "" ${ARGN})
    set(definitions -DTOOL=$<TARGET_FILE:unitechnik> -DWORK_DIR=${work_dir} "-DARGUMENTS=${arguments}"
                    -DEXIT=${exit} -DGOLDEN_DIR=${UNITECHNIK_GOLDEN})
    if(CASE_OUT)
        list(APPEND definitions -DEXPECTED_OUT=${CMAKE_CURRENT_LIST_DIR}/expected/${CASE_OUT})
    endif()
    if(CASE_ERR)
        list(APPEND definitions -DEXPECTED_ERR=${CMAKE_CURRENT_LIST_DIR}/expected/${CASE_ERR})
    endif()
    if(CASE_WRITTEN)
        list(APPEND definitions -DWRITTEN=${CASE_WRITTEN} -DWRITTEN_EXPECTED=${CASE_WRITTEN_EXPECTED})
    endif()
    add_test(NAME tools.${name}
        COMMAND ${CMAKE_COMMAND} ${definitions} -P ${CMAKE_CURRENT_LIST_DIR}/run_tool_case.cmake)
    if(CASE_SETUP)
        set_tests_properties(tools.${name} PROPERTIES FIXTURES_SETUP ${CASE_SETUP})
    endif()
    if(CASE_REQUIRES)
        set_tests_properties(tools.${name} PROPERTIES FIXTURES_REQUIRED ${CASE_REQUIRES})
    endif()
endfunction()

# check of call scripts: one script for each code found in scripts, a clean
# one, several at once, and the exit codes of a bad script, a bad code and a
# file that is not there.
unitechnik_case(check.script.clean ${UNITECHNIK_CHECK_INPUTS} "check|clean.json" 0)
foreach(code IN ITEMS text-cut number-too-wide unwritable-character negative-coordinate count-beyond-data
                      no-element-content bar-without-size bars-stacked outside-element outside-mat)
    unitechnik_case(check.script.${code} ${UNITECHNIK_CHECK_INPUTS} "check|${code}.json" 1
        OUT check/${code}.txt)
endforeach()
# Bar sets, a bent bar, one at 45 degrees that ends within half a millimetre
# of the edge, a girder group, a part and a mat with its wires, all in place.
unitechnik_case(check.script.reinforced-clean ${UNITECHNIK_CHECK_INPUTS} "check|reinforced-clean.json" 0)
# A finding of a whole record names the record, and no member or key.
unitechnik_case(check.script.whole_record_json ${UNITECHNIK_CHECK_INPUTS} "check|outside-mat.json|--json" 1
    OUT check/outside-mat.json)
unitechnik_case(check.script.json ${UNITECHNIK_CHECK_INPUTS} "check|text-cut.json|--json" 1
    OUT check/text-cut.json)
unitechnik_case(check.several ${UNITECHNIK_CHECK_INPUTS}
    "check|clean.json|text-cut.json|count-beyond-data.json|--ignore|UT101" 1 OUT check/several.txt)
unitechnik_case(check.bad_script ${UNITECHNIK_CHECK_INPUTS} "check|bad-call.json" 2 ERR check/bad-call.err)
unitechnik_case(check.bad_code ${UNITECHNIK_CHECK_INPUTS} "check|clean.json|--ignore|UT999" 2
    ERR check/bad-code.err)
unitechnik_case(check.unreadable ${UNITECHNIK_CHECK_INPUTS} "check|missing.uni" 3 ERR check/missing.err)

# check of Unitechnik files: the golden ones as they are, and files made
# from them for each code found only in files.
unitechnik_case(check.file.clean ${UNITECHNIK_GOLDEN} "check|slab/slab-600.txt|slab/slab-502.txt" 0)
unitechnik_case(check.file.number-too-wide ${UNITECHNIK_GOLDEN}
    "check|reinforced/reinforced-600.txt|--ignore|UT104|--ignore|no-element-content|--ignore|UT401|--ignore|UT404" 1
    OUT check/file-number-too-wide.txt)
unitechnik_case(check.file.negative-coordinate ${UNITECHNIK_GOLDEN}
    "check|reinforced/reinforced-600.txt|--ignore|UT102|--ignore|UT106|--ignore|UT401|--ignore|UT404" 1
    OUT check/file-negative-coordinate.txt)
unitechnik_case(check.file.no-element-content ${UNITECHNIK_GOLDEN} "check|versions/v600.txt" 1
    OUT check/file-no-element-content.txt)
unitechnik_case(check.file.json ${UNITECHNIK_GOLDEN} "check|reinforced/reinforced-600.txt|--json" 1
    OUT check/file.json)
foreach(code IN ITEMS unreadable-line line-end cut-off trailing-data)
    unitechnik_case(check.file.${code} ${UNITECHNIK_CHECK_INPUTS} "check|${code}.txt" 1 OUT check/${code}.txt)
endforeach()
# A file of other hands: every line ended by a bare line feed is one finding
# with the count, and a last line without its end reads whole and is found.
foreach(variant IN ITEMS bare-line-feeds no-last-line-end)
    unitechnik_case(check.file.${variant} ${UNITECHNIK_CHECK_INPUTS} "check|${variant}.txt|--ignore|UT106" 1
        OUT check/${variant}.txt)
endforeach()
# Files that build writes from the scripts above: a finding of a whole
# record stands at the record's first line.
set(UNITECHNIK_CHECK_BUILT ${CMAKE_CURRENT_BINARY_DIR}/check)
file(MAKE_DIRECTORY ${UNITECHNIK_CHECK_BUILT})
foreach(name IN ITEMS reinforced-clean outside-element)
    unitechnik_case(check.build.${name} ${UNITECHNIK_CHECK_BUILT}
        "build|${UNITECHNIK_CHECK_INPUTS}/${name}.json|-o|${name}.uni|--trace|${name}.trace.jsonl" 0
        SETUP unitechnik_check_${name})
endforeach()
unitechnik_case(check.file.reinforced-clean ${UNITECHNIK_CHECK_BUILT} "check|reinforced-clean.uni" 0
    REQUIRES unitechnik_check_reinforced-clean)
unitechnik_case(check.file.outside-element ${UNITECHNIK_CHECK_BUILT} "check|outside-element.uni" 1
    OUT check/file-outside-element.txt REQUIRES unitechnik_check_outside-element)

# diff: a file with itself, and one change of each kind.
set(slab600 functional/expected/slab/slab-600.txt)
set(reinforced600 functional/expected/reinforced/reinforced-600.txt)
unitechnik_case(diff.same ${PROJECT_SOURCE_DIR}/tests "diff|${slab600}|${slab600}" 0)
unitechnik_case(diff.added_bar ${PROJECT_SOURCE_DIR}/tests
    "diff|${reinforced600}|tools/diff/inputs/reinforced-600-bar.txt" 1 OUT diff/added-bar.txt)
unitechnik_case(diff.removed_cutout ${PROJECT_SOURCE_DIR}/tests
    "diff|${slab600}|tools/diff/inputs/slab-600-cutout.txt" 1 OUT diff/removed-cutout.txt)
unitechnik_case(diff.changed_text ${PROJECT_SOURCE_DIR}/tests "diff|${slab600}|tools/diff/inputs/slab-600-text.txt" 1
    OUT diff/changed-text.txt)
unitechnik_case(diff.changed_version ${PROJECT_SOURCE_DIR}/tests
    "diff|functional/expected/versions/v600.txt|functional/expected/versions/v601.txt" 1
    OUT diff/changed-version.txt)
unitechnik_case(diff.json ${PROJECT_SOURCE_DIR}/tests "diff|${slab600}|tools/diff/inputs/slab-600-cutout.txt|--json" 1
    OUT diff/removed-cutout.json)
unitechnik_case(diff.unreadable ${PROJECT_SOURCE_DIR}/tests "diff|${slab600}|missing.uni" 3 ERR diff/missing.err)

# convert: 600 to 502 gives the golden 502 file, cutting the designations
# and leaving out the element's own bars, girders and irons (its mats stay);
# back to 600 it reads and checks, and the diff with the first file is what
# 502 cannot hold; to 5 it reads and checks too.
unitechnik_case(convert.600_to_502 ${UNITECHNIK_CONVERT_DIR}
    "convert|${UNITECHNIK_GOLDEN}/reinforced/reinforced-600.txt|--version|502|-o|reinforced-502.txt" 1
    OUT convert/600-to-502.txt
    WRITTEN reinforced-502.txt WRITTEN_EXPECTED ${UNITECHNIK_GOLDEN}/reinforced/reinforced-502.txt
    SETUP unitechnik_convert_502)
unitechnik_case(convert.502_to_600 ${UNITECHNIK_CONVERT_DIR}
    "convert|reinforced-502.txt|--version|600|-o|reinforced-600.txt" 0
    REQUIRES unitechnik_convert_502 SETUP unitechnik_convert_600)
unitechnik_case(convert.600_again_checks ${UNITECHNIK_CONVERT_DIR} "check|reinforced-600.txt" 1
    OUT convert/600-again.check.txt REQUIRES unitechnik_convert_600)
unitechnik_case(convert.600_again_differs ${UNITECHNIK_CONVERT_DIR}
    "diff|${UNITECHNIK_GOLDEN}/reinforced/reinforced-600.txt|reinforced-600.txt" 1
    OUT convert/600-again.diff.txt REQUIRES unitechnik_convert_600)
unitechnik_case(convert.600_to_5 ${UNITECHNIK_CONVERT_DIR}
    "convert|${UNITECHNIK_GOLDEN}/reinforced/reinforced-600.txt|--version|5|-o|reinforced-5.txt" 1
    OUT convert/600-to-5.txt SETUP unitechnik_convert_5)
unitechnik_case(convert.5_checks ${UNITECHNIK_CONVERT_DIR} "check|reinforced-5.txt" 1
    OUT convert/5.check.txt REQUIRES unitechnik_convert_5)
unitechnik_case(convert.slab_600_to_502 ${UNITECHNIK_CONVERT_DIR}
    "convert|${UNITECHNIK_GOLDEN}/slab/slab-600.txt|--version|502|-o|slab-502.txt" 1
    OUT convert/slab-600-to-502.txt
    WRITTEN slab-502.txt WRITTEN_EXPECTED ${UNITECHNIK_GOLDEN}/slab/slab-502.txt)
# At the version the file has, convert leaves out nothing and writes the same bytes.
unitechnik_case(convert.slab_600_to_600 ${UNITECHNIK_CONVERT_DIR}
    "convert|${UNITECHNIK_GOLDEN}/slab/slab-600.txt|--version|600|-o|slab-600.txt" 0
    WRITTEN slab-600.txt WRITTEN_EXPECTED ${UNITECHNIK_GOLDEN}/slab/slab-600.txt)
unitechnik_case(convert.reinforced_502_to_502 ${UNITECHNIK_CONVERT_DIR}
    "convert|${UNITECHNIK_GOLDEN}/reinforced/reinforced-502.txt|--version|502|-o|reinforced-502-again.txt" 0
    WRITTEN reinforced-502-again.txt WRITTEN_EXPECTED ${UNITECHNIK_GOLDEN}/reinforced/reinforced-502.txt)
unitechnik_case(convert.bad_version ${UNITECHNIK_CONVERT_DIR}
    "convert|${UNITECHNIK_GOLDEN}/slab/slab-600.txt|--version|70000|-o|x.txt" 2)
unitechnik_case(convert.unreadable ${UNITECHNIK_CONVERT_DIR} "convert|missing.uni|--version|502|-o|x.txt" 3
    ERR convert/missing.err)
