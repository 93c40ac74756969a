# Helpers for the folders' lists.

# zorvic_glob(OUT FOLDER...): every C++ source below the folders. Globbed with CONFIGURE_DEPENDS, so that a new file is
# built without an edit of a list that several people would edit at once; the build re-checks the folders each time.
function(zorvic_glob out)
    set(patterns "")
    foreach(folder IN LISTS ARGN)
        list(APPEND patterns "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp")
    endforeach()
    file(GLOB_RECURSE files CONFIGURE_DEPENDS LIST_DIRECTORIES false ${patterns})
    set(${out} "${files}" PARENT_SCOPE)
endfunction()

# zorvic_vector_flags(FILE...): the suffix picks the instruction set; no other file gets any.
function(zorvic_vector_flags)
    if(MSVC)
        set(flags_avx2 /arch:AVX2)
        set(flags_avx512 /arch:AVX512)
    else()
        set(flags_mmx -mmmx)
        set(flags_sse -msse)
        set(flags_sse2 -msse2)
        set(flags_avx2 -mavx2)
        set(flags_avx512 -mavx512f -mavx512bw -mavx512vl -mavx512dq)
        if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
            # GCC 12 warns of its own header: of variables that it sets to themselves (GCC bug 105593), and without
            # optimisation of its macros' casts.
            list(APPEND flags_avx512 -Wno-uninitialized -Wno-maybe-uninitialized -Wno-sign-conversion)
        endif()
        set(flags_xsave -mxsave) # XGETBV, where it is known to exist
    endif()
    foreach(file IN LISTS ARGN)
        if(file MATCHES "_(mmx|sse|sse2|avx2|avx512|xsave)\\.cpp$")
            set_source_files_properties("${file}" PROPERTIES
                COMPILE_OPTIONS "${flags_${CMAKE_MATCH_1}}" SKIP_PRECOMPILE_HEADERS ON)
        endif()
    endforeach()
endfunction()

# zorvic_count_lines(TARGET): with ZORVIC_COVERAGE the target's code counts its lines, for gcov. Lines stay apart with -Og.
function(zorvic_count_lines target)
    if(ZORVIC_COVERAGE)
        target_compile_options(${target} PRIVATE --coverage -fprofile-update=atomic -Og)
        target_link_options(${target} PUBLIC --coverage)
    endif()
endfunction()

# zorvic_keep_debug_apart(TARGET): function names and line numbers of a DLL go into a file beside it that debuggers find.
# For the objects that are linked into a DLL it has them made.
function(zorvic_keep_debug_apart target)
    if(NOT MINGW)
        return()
    endif()
    target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-g1>)
    get_target_property(type ${target} TYPE)
    if(NOT type STREQUAL "SHARED_LIBRARY")
        return()
    endif()
    set(debug "$<TARGET_FILE_NAME:${target}>.debug")
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND "${CMAKE_OBJCOPY}" --only-keep-debug $<TARGET_FILE_NAME:${target}> ${debug}
        COMMAND "${CMAKE_OBJCOPY}" --strip-all --add-gnu-debuglink=${debug} $<TARGET_FILE_NAME:${target}>
        WORKING_DIRECTORY $<TARGET_FILE_DIR:${target}> VERBATIM)
    install(FILES $<TARGET_FILE:${target}>.debug DESTINATION bin COMPONENT debug)
endfunction()

# zorvic_msvc_import_library(TARGET DEF): NAME.lib beside NAME.dll's own import library, for hosts that MSVC links.
find_program(ZORVIC_LLVM_DLLTOOL NAMES llvm-dlltool llvm-dlltool-14)
function(zorvic_msvc_import_library target def)
    if(MSVC OR NOT ZORVIC_LLVM_DLLTOOL)
        return()
    endif()
    set(machine i386)
    if(ZORVIC_BITS EQUAL 64)
        set(machine i386:x86-64)
    endif()
    set(library "$<TARGET_LINKER_FILE_DIR:${target}>/$<TARGET_FILE_BASE_NAME:${target}>.lib")
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND "${ZORVIC_LLVM_DLLTOOL}" -m ${machine} -d "${def}" -D $<TARGET_FILE_NAME:${target}> -l "${library}"
        VERBATIM)
    install(FILES "${library}" DESTINATION lib)
endfunction()

# zorvic_own_runtime(TARGET): the DLL frees what the compiler's runtime keeps in it (src/platform/runtime/runtime.h).
function(zorvic_own_runtime target)
    set(folder "${PROJECT_SOURCE_DIR}/src/platform/runtime")
    if(MINGW AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_sources(${target} PRIVATE "${folder}/gnu.cpp")
    else()
        target_sources(${target} PRIVATE "${folder}/other.cpp")
    endif()
endfunction()

# zorvic_harden(TARGET): has a fault end the program instead of being used against it. Functions with arrays check the
# stack before they return; the pixel loops, which are another target, have none. MSVC does all this unasked.
function(zorvic_harden target)
    if(NOT MINGW)
        return()
    endif()
    # Code and data at another address each time, no code in data.
    target_link_options(${target} PRIVATE -Wl,--dynamicbase -Wl,--nxcompat)
    if(ZORVIC_BITS EQUAL 64)
        target_link_options(${target} PRIVATE -Wl,--high-entropy-va)
    else()
        # GCC's exceptions for 32 bits are none of Windows', so nothing here is an exception handler.
        target_link_options(${target} PRIVATE -Wl,--no-seh)
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-fstack-protector-strong>)
        target_sources(${target} PRIVATE "${PROJECT_SOURCE_DIR}/src/platform/runtime/stack_guard_gnu.cpp")
        # It makes the guard with which the others return.
        set_source_files_properties("${PROJECT_SOURCE_DIR}/src/platform/runtime/stack_guard_gnu.cpp"
            TARGET_DIRECTORY ${target} PROPERTIES
            COMPILE_OPTIONS -fno-stack-protector SKIP_PRECOMPILE_HEADERS ON)
    endif()
endfunction()
