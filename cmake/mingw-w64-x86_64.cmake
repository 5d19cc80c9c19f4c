# Cross build for 64-bit Windows with the MinGW-w64 compilers of the posix
# thread model (Debian: g++-mingw-w64-x86-64-posix). The test programs run
# through Wine when it is there.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(ITUNITECHNIK_MINGW_TRIPLE x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${ITUNITECHNIK_MINGW_TRIPLE}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ITUNITECHNIK_MINGW_TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER ${ITUNITECHNIK_MINGW_TRIPLE}-windres)
set(CMAKE_AR ${ITUNITECHNIK_MINGW_TRIPLE}-ar CACHE FILEPATH "")
set(CMAKE_RANLIB ${ITUNITECHNIK_MINGW_TRIPLE}-ranlib CACHE FILEPATH "")
set(CMAKE_OBJDUMP ${ITUNITECHNIK_MINGW_TRIPLE}-objdump CACHE FILEPATH "")

set(CMAKE_FIND_ROOT_PATH /usr/${ITUNITECHNIK_MINGW_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Debian's wine64 package puts the 64-bit loader here; an explicit setting wins.
if(NOT CMAKE_CROSSCOMPILING_EMULATOR)
    find_program(ITUNITECHNIK_WINE64 NAMES wine64 PATHS /usr/lib/wine NO_DEFAULT_PATH)
    if(NOT ITUNITECHNIK_WINE64)
        find_program(ITUNITECHNIK_WINE64 NAMES wine64 wine)
    endif()
    if(ITUNITECHNIK_WINE64)
        set(CMAKE_CROSSCOMPILING_EMULATOR ${ITUNITECHNIK_WINE64})
    endif()
endif()

# Programs of this build (the tests, the host) carry their runtime with them,
# so that they run on a bare Windows or Wine with nothing beside them.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
