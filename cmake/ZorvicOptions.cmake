# What holds for every target: language, arithmetic, warnings, sanitizers and where the products go.
option(ZORVIC_WERROR "Treat warnings as errors" OFF)
option(ZORVIC_BUILD_TESTS "Build the tests" ON)
option(ZORVIC_BUILD_SHOWCASE "Build the gallery and the workbench" ON)
option(ZORVIC_BUILD_BENCH "Build zvbench, which measures the library" ON)
option(ZORVIC_BUILD_FUZZ "Build the fuzz targets (clang only)" OFF)
set(ZORVIC_SANITIZE "" CACHE STRING "Sanitizers for every target, as in -fsanitize=")
option(ZORVIC_COVERAGE "Have the libraries count which of their lines run" OFF)
set(ZORVIC_GOOGLETEST_DIR "/usr/src/googletest" CACHE PATH "GoogleTest's sources, built together with the tests")

math(EXPR ZORVIC_BITS "8 * ${CMAKE_SIZEOF_VOID_P}") # in the name of the DLL

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")

if(NOT MSVC)
    # -O2 rather than CMake's -O3: the figures in docs/ are taken with what is shipped.
    set(CMAKE_C_FLAGS_RELEASE "-O2 -DNDEBUG")
    set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
endif()

# For our own code and for GoogleTest alike: these change the ABI or the arithmetic.
if(NOT MSVC)
    # SSE arithmetic without contraction gives the same bits in debug, release and native builds.
    add_compile_options(-msse2 -mfpmath=sse -ffp-contract=off)
    if(CMAKE_SIZEOF_VOID_P EQUAL 4)
        # 32-bit Windows promises a 4-byte aligned stack only, at exports as well as at callbacks.
        add_compile_options(-mincoming-stack-boundary=2)
    endif()
endif()
if(ZORVIC_SANITIZE)
    # -O1 keeps the sanitized tests quick; their reports still name the line.
    add_compile_options(-fsanitize=${ZORVIC_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer -O1)
    add_link_options(-fsanitize=${ZORVIC_SANITIZE})
endif()
if(NOT MSVC)
    add_compile_options($<$<AND:$<CONFIG:Debug>,$<COMPILE_LANGUAGE:CXX>>:-D_GLIBCXX_ASSERTIONS>)
endif()
if(WIN32 AND NOT MSVC)
    # The C++ runtime goes into each program and DLL; hosts ship nothing beside them.
    add_link_options(-static)
endif()

# Warnings, for our own targets only.
add_library(zorvic_warnings INTERFACE)
if(MSVC)
    target_compile_options(zorvic_warnings INTERFACE /W4 /wd4068 /wd5030 $<$<BOOL:${ZORVIC_WERROR}>:/WX>)
else()
    # Where files are compiled together, one file's names may be those of locals in the next.
    set(together "$<AND:$<CXX_COMPILER_ID:GNU>,$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>>")
    target_compile_options(zorvic_warnings INTERFACE
        -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow$<${together}:=local> -Wundef -Wvla -Wimplicit-fallthrough
        $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual -Wextra-semi>
        $<$<BOOL:${ZORVIC_WERROR}>:-Werror>)
endif()
