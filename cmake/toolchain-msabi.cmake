# clang and lld for the Microsoft C++ binary interface, with mingw-w64's and libstdc++'s headers
# and the runtime in abi/.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(VARNOKE_MSABI ON)

find_program(VARNOKE_CLANG clang++)
find_program(VARNOKE_LLD lld-link)
find_program(VARNOKE_LLVM_LIB NAMES llvm-lib llvm-lib-14)
find_program(VARNOKE_LLVM_RC NAMES llvm-rc llvm-rc-14)
find_program(VARNOKE_DLLTOOL NAMES llvm-dlltool llvm-dlltool-14)
find_program(VARNOKE_GXX x86_64-w64-mingw32-g++-posix)
find_program(VARNOKE_WINE wine64 PATHS /usr/lib/wine)
foreach(tool VARNOKE_CLANG VARNOKE_LLD VARNOKE_LLVM_LIB VARNOKE_LLVM_RC VARNOKE_DLLTOOL VARNOKE_GXX VARNOKE_WINE)
    if(NOT ${tool})
        message(FATAL_ERROR "${tool} was not found: run scripts/install-deps.sh")
    endif()
endforeach()

# The headers and import libraries come with the mingw-w64 compiler; ask it where they are.
execute_process(COMMAND ${VARNOKE_GXX} -print-file-name=include/c++
                OUTPUT_VARIABLE VARNOKE_STDCXX OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND ${VARNOKE_GXX} -print-file-name=libkernel32.a
                OUTPUT_VARIABLE kernel32 OUTPUT_STRIP_TRAILING_WHITESPACE)
get_filename_component(VARNOKE_SYSLIB ${kernel32} DIRECTORY)
get_filename_component(VARNOKE_SYSLIB ${VARNOKE_SYSLIB} REALPATH)
get_filename_component(VARNOKE_SYSINCLUDE ${VARNOKE_SYSLIB}/../include REALPATH)
get_filename_component(VARNOKE_ABI_DIR ${CMAKE_CURRENT_LIST_DIR}/../abi REALPATH)

set(CMAKE_CXX_COMPILER ${VARNOKE_CLANG})
set(CMAKE_CXX_COMPILER_TARGET x86_64-pc-windows-msvc)
set(CMAKE_RC_COMPILER ${VARNOKE_LLVM_RC})
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_CXX_COMPILER_WORKS TRUE)
set(CMAKE_USER_MAKE_RULES_OVERRIDE ${CMAKE_CURRENT_LIST_DIR}/msabi-rules.cmake)

# libstdc++'s headers take clang for g++ 12 on mingw-w64 ("_MSC_VER" would send them elsewhere);
# types, vtables and exceptions are Microsoft's all the same.
string(JOIN " " CMAKE_CXX_FLAGS_INIT
    -fms-compatibility-version=19.29 -U_MSC_VER -U_MSC_FULL_VER -U_MSC_BUILD
    -fno-ms-compatibility -fms-extensions -fgnuc-version=12.2.0
    -D__MINGW32__ -D__MINGW64__ "'-D__declspec(x)=__declspec(x)'"
    -nostdinc++ -nostdlibinc
    -isystem ${VARNOKE_ABI_DIR}/include -isystem ${VARNOKE_STDCXX}
    -isystem ${VARNOKE_STDCXX}/x86_64-w64-mingw32 -isystem ${VARNOKE_SYSINCLUDE}
    -fexceptions -fcxx-exceptions -fthreadsafe-statics
    -fno-delete-null-pointer-checks -fno-strict-aliasing
    -D_UCRT -DVARNOKE_MSABI)
# abi/ names the runtime's libraries; no default ones.
set(CMAKE_MSVC_RUNTIME_LIBRARY "")
set(CMAKE_CROSSCOMPILING_EMULATOR
    ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine-run.sh;${CMAKE_BINARY_DIR})
