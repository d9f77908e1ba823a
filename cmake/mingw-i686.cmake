set(CMAKE_SYSTEM_PROCESSOR i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)

# Single precision must round as it does on 64 bits, and callers align the stack to 4 bytes only.
set(CMAKE_C_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
# Exports keep the names of their .def file, without the decoration of the calling convention.
string(APPEND linking " -Wl,--enable-stdcall-fixup")
set(CMAKE_EXE_LINKER_FLAGS_INIT ${linking})
set(CMAKE_SHARED_LINKER_FLAGS_INIT ${linking})
