# Puts the library where a user gets it, looks at what lies where, builds
# host programs against it and runs them.
#
#   cmake -DMODE=install|deb -DBUILD_DIR=... -DSOURCE_DIR=... -DWORK_DIR=...
#         -DLIBDIR=... -DMAJOR=... [-DVERSION=...] [-DSANITIZE=...]
#         [-DFIND_PACKAGE=ON] [-DPKG_CONFIG=pkg-config -DCC=... -DCXX=...]
#         [-DPYTHON=python3] -P consumer_test.cmake
#
# MODE install: `cmake --install` into a fresh prefix. MODE deb: cpack makes
# the .deb of the build, and `dpkg -x` unpacks it into a fresh root, whose
# /usr is then the prefix. FIND_PACKAGE builds the consumer project with
# find_package; PKG_CONFIG compiles consumer.c and consumer.cpp with the flags
# of `pkg-config --cflags --libs itunitechnik`; PYTHON writes a document
# through the installed Python package. Each program writes a document, which
# must begin with "HEADER__" and CR LF; they make the same calls, so all their
# documents must be the same.
cmake_minimum_required(VERSION 3.25)
foreach(var MODE BUILD_DIR SOURCE_DIR WORK_DIR LIBDIR MAJOR)
    if(NOT DEFINED ${var} OR "${${var}}" STREQUAL "")
        message(FATAL_ERROR "consumer_test: ${var} is not given")
    endif()
endforeach()

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT status EQUAL 0)
        string(REPLACE ";" " " command "${ARGN}")
        message(FATAL_ERROR "failed (${status}): ${command}\n${out}${err}")
    endif()
    set(output "${out}" PARENT_SCOPE)
endfunction()

# The program ran, wrote its document, and the document starts as one does.
function(expect_document what file)
    if(NOT EXISTS ${file})
        message(FATAL_ERROR "${what} did not write ${file}")
    endif()
    file(READ ${file} content LIMIT 10 HEX)
    if(NOT content STREQUAL "4845414445525f5f0d0a")
        message(FATAL_ERROR "${what}: unexpected document start: ${content}")
    endif()
    message(STATUS "${what} wrote its document")
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

if(MODE STREQUAL "install")
    set(prefix ${WORK_DIR}/prefix)
    run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
elseif(MODE STREQUAL "deb")
    run(${CMAKE_COMMAND} -E chdir ${BUILD_DIR}
        cpack -G DEB --config ${BUILD_DIR}/CPackConfig.cmake -B ${WORK_DIR}/cpack)
    file(GLOB debs ${WORK_DIR}/cpack/*.deb)
    list(LENGTH debs count)
    if(NOT count EQUAL 1)
        message(FATAL_ERROR "expected one .deb, found: ${debs}")
    endif()
    run(dpkg-deb --field ${debs} Package Version Architecture)
    string(STRIP "${output}" fields)
    set(expected_fields "Package: itunitechnik\nVersion: ${VERSION}\nArchitecture: amd64")
    if(NOT fields STREQUAL expected_fields)
        message(FATAL_ERROR "the .deb's control fields:\n${fields}\nexpected:\n${expected_fields}")
    endif()
    run(dpkg -x ${debs} ${WORK_DIR}/root)
    set(prefix ${WORK_DIR}/root/usr)
else()
    message(FATAL_ERROR "consumer_test: unknown MODE ${MODE}")
endif()

# Everything where a Debian user looks for it.
set(libdir ${prefix}/${LIBDIR})
foreach(path
        include/itunitechnik.h
        include/itunitechnik_types.h
        include/itunitechnik_version.h
        ${LIBDIR}/libitunitechnik.so
        ${LIBDIR}/libitunitechnik.so.${MAJOR}
        ${LIBDIR}/cmake/ItUnitechnik/ItUnitechnikConfig.cmake
        ${LIBDIR}/cmake/ItUnitechnik/ItUnitechnikConfigVersion.cmake
        ${LIBDIR}/pkgconfig/itunitechnik.pc
        lib/python3/dist-packages/unitechnik/__init__.py
        lib/python3/dist-packages/unitechnik/_writing.py
        lib/python3/dist-packages/unitechnik/_version.py
        share/itunitechnik/dotnet/NativeMethods.cs
        share/itunitechnik/dotnet/Document.cs
        share/itunitechnik/dotnet/DocumentValues.cs
        share/doc/itunitechnik/README.md
        share/doc/itunitechnik/docs/build.md
        ${LIBDIR}/libitunitechnik_reading.so.${MAJOR}
        include/itunitechnik_reading.h
        bin/unitechnik)
    if(NOT EXISTS ${prefix}/${path})
        message(FATAL_ERROR "not installed: ${path}")
    endif()
endforeach()
# The manual page and the completion are written by a program of the build,
# which the sanitizers' build leaves out.
if(NOT SANITIZE)
    foreach(path share/man/man1/unitechnik.1 share/bash-completion/completions/unitechnik)
        if(NOT EXISTS ${prefix}/${path})
            message(FATAL_ERROR "not installed: ${path}")
        endif()
    endforeach()
endif()
message(STATUS "every file where it belongs below ${prefix}")

# A sanitized library needs a sanitized host.
set(sanitize_flags "")
if(SANITIZE)
    set(sanitize_flags "-fsanitize=${SANITIZE}")
endif()
set(run_env ${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${libdir})

if(FIND_PACKAGE)
    run(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${WORK_DIR}/build
        -DCMAKE_PREFIX_PATH=${prefix} "-DCMAKE_C_FLAGS=${sanitize_flags}")
    run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
    run(${run_env} ${WORK_DIR}/build/consumer ${WORK_DIR}/find_package.txt)
    expect_document("the consumer built with find_package" ${WORK_DIR}/find_package.txt)
endif()

if(PKG_CONFIG)
    set(pkg_env ${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${libdir}/pkgconfig)
    run(${pkg_env} ${PKG_CONFIG} --modversion itunitechnik)
    string(STRIP "${output}" modversion)
    if(DEFINED VERSION AND NOT modversion STREQUAL VERSION)
        message(FATAL_ERROR "pkg-config names version ${modversion}, not ${VERSION}")
    endif()
    run(${pkg_env} ${PKG_CONFIG} --cflags --libs itunitechnik)
    separate_arguments(flags UNIX_COMMAND "${output}")
    foreach(host consumer.c consumer.cpp)
        if(host MATCHES "\\.c$")
            set(compiler ${CC})
        else()
            set(compiler ${CXX})
        endif()
        get_filename_component(name ${host} NAME)
        set(host_flags ${sanitize_flags})
        if(SANITIZE AND compiler MATCHES "clang")
            # clang links the C++ half of its UBSan runtime, which the checks
            # of function types and vptrs in the library call, only into C++
            # programs unless told to, and that half needs the C++ library.
            list(APPEND host_flags -fsanitize-link-c++-runtime -lstdc++)
        endif()
        run(${compiler} ${host_flags} -o ${WORK_DIR}/${name}.bin ${SOURCE_DIR}/${host} ${flags})
        run(${run_env} ${WORK_DIR}/${name}.bin ${WORK_DIR}/${name}.txt)
        expect_document("${host} built with pkg-config" ${WORK_DIR}/${name}.txt)
    endforeach()
endif()

if(PYTHON)
    # The installed package finds the library through the loader, by its SONAME.
    run(${CMAKE_COMMAND} -E env PYTHONPATH=${prefix}/lib/python3/dist-packages
        LD_LIBRARY_PATH=${libdir} PYTHONDONTWRITEBYTECODE=1
        ${PYTHON} ${SOURCE_DIR}/consumer.py ${WORK_DIR}/python.txt)
    expect_document("the installed Python package" ${WORK_DIR}/python.txt)
endif()

# Every host here makes the same calls: the same document.
file(GLOB documents ${WORK_DIR}/*.txt)
set(first "")
foreach(document IN LISTS documents)
    file(SHA256 ${document} hash)
    if(first STREQUAL "")
        set(first ${hash})
        set(first_name ${document})
    elseif(NOT hash STREQUAL first)
        message(FATAL_ERROR "${document} differs from ${first_name}: the hosts make the same calls")
    endif()
endforeach()
