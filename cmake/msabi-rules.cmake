# Link, archive and resource rules of the Microsoft-ABI build: lld-link and the llvm tools, called directly.
set(varnoke_link "\"${VARNOKE_LLD}\" /nologo /MACHINE:X64 /NODEFAULTLIB /OPT:REF /OPT:NOICF /Brepro")
set(varnoke_libs "/LIBPATH:\"${VARNOKE_SYSLIB}\" libucrt.a libkernel32.a")

set(CMAKE_CXX_CREATE_SHARED_LIBRARY
    "${varnoke_link} /DLL /SUBSYSTEM:WINDOWS,6.1 /ENTRY:_DllMainCRTStartup <LINK_FLAGS> /OUT:<TARGET> /IMPLIB:<TARGET_IMPLIB> <OBJECTS> <LINK_LIBRARIES> ${varnoke_libs}")
set(CMAKE_CXX_CREATE_SHARED_MODULE ${CMAKE_CXX_CREATE_SHARED_LIBRARY})
set(CMAKE_CXX_LINK_EXECUTABLE
    "${varnoke_link} /SUBSYSTEM:CONSOLE,6.1 /ENTRY:wmainCRTStartup <LINK_FLAGS> /OUT:<TARGET> <OBJECTS> <LINK_LIBRARIES> ${varnoke_libs}")
set(CMAKE_CXX_CREATE_STATIC_LIBRARY "\"${VARNOKE_LLVM_LIB}\" /nologo /OUT:<TARGET> <OBJECTS>")
# Without the dashes a path whose first folder begins with an option's letter is taken for that option.
set(CMAKE_RC_COMPILE_OBJECT
    "<CMAKE_RC_COMPILER> /C 65001 /I \"${VARNOKE_SYSINCLUDE}\" <DEFINES> <INCLUDES> /FO <OBJECT> -- <SOURCE>")

set(CMAKE_CXX_OUTPUT_EXTENSION .obj)
set(CMAKE_RC_OUTPUT_EXTENSION .res)
set(CMAKE_STATIC_LIBRARY_PREFIX "")
set(CMAKE_STATIC_LIBRARY_SUFFIX .lib)
set(CMAKE_SHARED_LIBRARY_PREFIX "")
set(CMAKE_IMPORT_LIBRARY_PREFIX "")
set(CMAKE_IMPORT_LIBRARY_SUFFIX .lib)
# System import libraries keep their mingw-w64 names: ole32 is libole32.a.
set(CMAKE_LINK_LIBRARY_FLAG lib)
set(CMAKE_LINK_LIBRARY_SUFFIX .a)
set(CMAKE_LINK_DEF_FILE_FLAG /DEF:)
set(CMAKE_CXX_STANDARD_LIBRARIES_INIT "")
# The link rules above name the subsystem.
set(CMAKE_CREATE_CONSOLE_EXE "")
