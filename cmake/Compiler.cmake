# Warnings and sanitizers, for all components and programs alike.
add_library(compiler INTERFACE)

if(MSVC)
    target_compile_options(compiler INTERFACE /W4 /WX /utf-8 /permissive- /EHsc)
else()
    target_compile_options(compiler INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
    if(MINGW) # the same source makes the same file, at any time
        target_link_options(compiler INTERFACE -Wl,--no-insert-timestamp)
    endif()
    if(NOT WIN32) # the interfaces of COM have no virtual destructors
        target_compile_options(compiler INTERFACE -Wnon-virtual-dtor)
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # gcc 12 sees overlaps and overruns in its own std::string once assignments are inlined.
        target_compile_options(compiler INTERFACE -Wno-array-bounds -Wno-restrict -Wno-stringop-overflow
                                -Wno-stringop-overread)
    endif()
    if(K73053_SANITIZE)
        set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_compile_options(compiler INTERFACE ${sanitizers})
        target_link_options(compiler INTERFACE ${sanitizers})
    endif()
endif()

if(WIN32)
    target_compile_definitions(compiler INTERFACE UNICODE NOMINMAX WIN32_LEAN_AND_MEAN WINVER=0x0601 _WIN32_WINNT=0x0601)
endif()

# What the runtime libraries of mingw-w64 do not mind where they are linked statically: the process that a library is a guest of,
# and, for 32 bits, Windows XP.
if(MINGW)
    set(mingw ${CMAKE_CURRENT_LIST_DIR}/mingw)
    add_library(guest_runtime OBJECT ${mingw}/ErrorReserve.cpp ${mingw}/ThreadLibrary.cpp)
    if(CMAKE_SIZEOF_VOID_P EQUAL 4)
        target_sources(guest_runtime PRIVATE ${mingw}/OwnFrames.cpp ${mingw}/TickCount.cpp)
    endif()
    set_target_properties(guest_runtime PROPERTIES UNITY_BUILD OFF)
    target_link_libraries(guest_runtime PRIVATE compiler)
endif()
