# What `cmake --install` puts where, and the packages cpack makes of it.
#
# On Linux the tree is laid out as a Debian user looks for it: the header in
# include/, the library, the CMake package and the pkg-config file in the
# library folder, the tool in bin/, the Python package where Debian's python3
# finds packages (with the prefix /usr), the C# sources of the .NET binding in
# share/itunitechnik/dotnet, the README and the docs/ folder in
# share/doc/itunitechnik, the tool's manual page in share/man/man1 and its
# bash completion in share/bash-completion/completions. On
# Windows the zip holds the DLL in bin/, the import library and the module
# definition file in lib/, the header, the README with docs/, and the bindings
# in bindings/, with a copy of the DLL (and of the reading library's DLL)
# inside the Python package so that it finds it beside itself.
include(CMakePackageConfigHelpers)

if(WIN32)
    set(python_default bindings/python)
    set(dotnet_default bindings/dotnet)
    set(doc_default .)
else()
    set(python_default lib/python3/dist-packages)
    set(dotnet_default ${CMAKE_INSTALL_DATADIR}/itunitechnik/dotnet)
    set(doc_default ${CMAKE_INSTALL_DATAROOTDIR}/doc/itunitechnik)
endif()
set(ITUNITECHNIK_INSTALL_PYTHONDIR ${python_default} CACHE STRING
    "Where the Python package unitechnik is installed, below the prefix")
set(ITUNITECHNIK_INSTALL_DOTNETDIR ${dotnet_default} CACHE STRING
    "Where the C# sources of the .NET binding are installed, below the prefix")
set(ITUNITECHNIK_INSTALL_DOCDIR ${doc_default} CACHE STRING
    "Where the README and the docs/ folder are installed, below the prefix")
set(cmake_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ItUnitechnik)

# The library and its header.
install(TARGETS itunitechnik EXPORT ItUnitechnikTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES include/itunitechnik.h include/itunitechnik_types.h ${PROJECT_BINARY_DIR}/include/itunitechnik_version.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
if(MINGW)
    # For hosts whose linker makes its own import library from it.
    install(FILES ${PROJECT_BINARY_DIR}/bin/itunitechnik.def DESTINATION ${CMAKE_INSTALL_LIBDIR})
endif()

# The reading library for hosts and its header, where this tree has it (it is
# built with the tool); the Python package finds it as it finds the library.
if(TARGET itunitechnik_reading)
    install(TARGETS itunitechnik_reading
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
    install(FILES include/itunitechnik_reading.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
endif()

# The command-line tool, where this tree has it, with its manual page and its
# bash completion where the build writes them (not for Windows).
if(TARGET unitechnik)
    install(TARGETS unitechnik RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
if(TARGET unitechnik_reference_files)
    install(FILES ${UNITECHNIK_MANUAL_PAGE} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    install(FILES ${UNITECHNIK_BASH_COMPLETION} DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
endif()

# The CMake package for find_package.
install(EXPORT ItUnitechnikTargets
    NAMESPACE ItUnitechnik::
    DESTINATION ${cmake_package_dir})
configure_package_config_file(cmake/ItUnitechnikConfig.cmake.in
    ${PROJECT_BINARY_DIR}/ItUnitechnikConfig.cmake
    INSTALL_DESTINATION ${cmake_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/ItUnitechnikConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/ItUnitechnikConfig.cmake
    ${PROJECT_BINARY_DIR}/ItUnitechnikConfigVersion.cmake
    DESTINATION ${cmake_package_dir})

# The pkg-config file, beside the CMake package. Its prefix is found from
# where the file lies, so that the tree works wherever it is installed or
# unpacked; absolute folders given at configure time stay as they are.
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
    set(ITUNITECHNIK_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
else()
    file(RELATIVE_PATH prefix_from_pc_dir /root/${pkgconfig_dir} /root)
    string(REGEX REPLACE "/$" "" prefix_from_pc_dir "${prefix_from_pc_dir}")
    set(ITUNITECHNIK_PC_PREFIX "\${pcfiledir}/${prefix_from_pc_dir}")
endif()
foreach(kind LIBDIR INCLUDEDIR)
    if(IS_ABSOLUTE "${CMAKE_INSTALL_${kind}}")
        set(ITUNITECHNIK_PC_${kind} "${CMAKE_INSTALL_${kind}}")
    else()
        set(ITUNITECHNIK_PC_${kind} "\${prefix}/${CMAKE_INSTALL_${kind}}")
    endif()
endforeach()
configure_file(cmake/itunitechnik.pc.in ${PROJECT_BINARY_DIR}/itunitechnik.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/itunitechnik.pc DESTINATION ${pkgconfig_dir})

# The bindings, the README and the pages it links to.
install(DIRECTORY ${ITUNITECHNIK_PYTHON_DIR}/unitechnik DESTINATION ${ITUNITECHNIK_INSTALL_PYTHONDIR}
    FILES_MATCHING PATTERN "*.py")
if(WIN32)
    install(FILES ${ITUNITECHNIK_PYTHON_DIR}/pyproject.toml DESTINATION ${ITUNITECHNIK_INSTALL_PYTHONDIR})
    install(FILES $<TARGET_FILE:itunitechnik> DESTINATION ${ITUNITECHNIK_INSTALL_PYTHONDIR}/unitechnik)
    if(TARGET itunitechnik_reading)
        install(FILES $<TARGET_FILE:itunitechnik_reading> DESTINATION ${ITUNITECHNIK_INSTALL_PYTHONDIR}/unitechnik)
    endif()
endif()
install(DIRECTORY bindings/dotnet/ DESTINATION ${ITUNITECHNIK_INSTALL_DOTNETDIR}
    FILES_MATCHING PATTERN "*.cs")
install(FILES README.md DESTINATION ${ITUNITECHNIK_INSTALL_DOCDIR})
install(DIRECTORY docs/ DESTINATION ${ITUNITECHNIK_INSTALL_DOCDIR}/docs)

# cpack: a .tar.gz and a .deb on Linux, a .zip on Windows (the presets
# `package` and `windows-package`).
set(CPACK_PACKAGE_NAME ${PROJECT_NAME})
set(CPACK_PACKAGE_VENDOR "ItUnitechnik")
set(CPACK_PACKAGE_CONTACT "ItUnitechnik developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_RESOURCE_FILE_README ${PROJECT_SOURCE_DIR}/README.md)
set(CPACK_STRIP_FILES OFF)
if(WIN32)
    set(CPACK_GENERATOR ZIP)
else()
    set(CPACK_GENERATOR TGZ DEB)
endif()
set(CPACK_DEBIAN_PACKAGE_NAME itunitechnik)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "python3, mono-runtime")
include(CPack)
