# README.md and the pages of docs/ as a reader finds them:
# - the README, the front page, has at most 200 lines;
# - the README links every page of docs/;
# - every link to a file of the tree leads to one that is there;
# - docs/layout.md names every top-level folder of the tree ("`name/`");
# - docs/hosts.md shows each host of tests/api/consumer as the file holds it.
#   cmake -DSOURCE_DIR=... -P pages_check.cmake
cmake_minimum_required(VERSION 3.25)
set(failures "")

file(READ "${SOURCE_DIR}/README.md" readme)
string(REGEX MATCHALL "\n" line_ends "${readme}")
list(LENGTH line_ends lines)
if(lines GREATER 200)
    string(APPEND failures "README.md has ${lines} lines, more than 200\n")
endif()

file(GLOB pages RELATIVE "${SOURCE_DIR}" "${SOURCE_DIR}/docs/*.md")
foreach(page IN LISTS pages)
    string(FIND "${readme}" "](${page})" linked)
    if(linked EQUAL -1)
        string(APPEND failures "README.md does not link ${page}\n")
    endif()
endforeach()

foreach(page IN ITEMS README.md LISTS pages)
    file(READ "${SOURCE_DIR}/${page}" text)
    get_filename_component(folder "${SOURCE_DIR}/${page}" DIRECTORY)
    string(REGEX MATCHALL "\\]\\([^):# ]+(#[^) ]*)?\\)" links "${text}")
    foreach(link IN LISTS links)
        string(REGEX REPLACE "^\\]\\(([^)#]+).*$" "\\1" target "${link}")
        if(NOT EXISTS "${folder}/${target}")
            string(APPEND failures "${page} links ${target}, which is not there\n")
        endif()
    endforeach()
endforeach()

file(READ "${SOURCE_DIR}/docs/layout.md" layout)
file(GLOB entries RELATIVE "${SOURCE_DIR}" "${SOURCE_DIR}/*")
foreach(entry IN LISTS entries)
    # Build folders are no part of the tree.
    if(IS_DIRECTORY "${SOURCE_DIR}/${entry}" AND NOT entry MATCHES "^(\\.|build)")
        string(FIND "${layout}" "`${entry}/`" named)
        if(named EQUAL -1)
            string(APPEND failures "docs/layout.md does not name the folder ${entry}/\n")
        endif()
    endif()
endforeach()

file(READ "${SOURCE_DIR}/docs/hosts.md" hosts)
foreach(host consumer.c consumer.cpp consumer.cs consumer.py)
    file(READ "${SOURCE_DIR}/tests/api/consumer/${host}" code)
    string(FIND "${hosts}" "\n${code}```\n" shown)
    if(shown EQUAL -1)
        string(APPEND failures "docs/hosts.md does not show tests/api/consumer/${host} as it stands\n")
    endif()
endforeach()

if(failures)
    message(FATAL_ERROR "${failures}")
endif()
message(STATUS "the pages hold together")
