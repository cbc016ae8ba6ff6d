# mingw-w64 g++ with posix threads; everything of the compiler is linked statically.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(triple x86_64-w64-mingw32)

find_program(VARNOKE_GXX ${triple}-g++-posix)
find_program(VARNOKE_WINE wine64 PATHS /usr/lib/wine)
foreach(tool VARNOKE_GXX VARNOKE_WINE)
    if(NOT ${tool})
        message(FATAL_ERROR "${tool} was not found: run scripts/install-deps.sh")
    endif()
endforeach()

set(CMAKE_CXX_COMPILER ${VARNOKE_GXX})
set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_RC_COMPILER ${triple}-windres)
set(CMAKE_RC_FLAGS_INIT "-c 65001")
set(CMAKE_FIND_ROOT_PATH /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)

# GetSafeHwnd() on a null CWnd* is part of the framework's contract.
set(CMAKE_CXX_FLAGS_INIT "-fno-delete-null-pointer-checks -fno-strict-aliasing")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
set(CMAKE_CROSSCOMPILING_EMULATOR
    ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine-run.sh;${CMAKE_BINARY_DIR})
