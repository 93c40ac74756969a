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
            # GCC 12 warns of its own header (GCC bug 105593).
            list(APPEND flags_avx512 -Wno-uninitialized -Wno-maybe-uninitialized)
        endif()
        set(flags_xsave -mxsave) # XGETBV, where it is known to exist
    endif()
    foreach(file IN LISTS ARGN)
        if(file MATCHES "_(mmx|sse|sse2|avx2|avx512|xsave)\\.cpp$")
            set_source_files_properties("${file}" PROPERTIES COMPILE_OPTIONS "${flags_${CMAKE_MATCH_1}}")
        endif()
    endforeach()
endfunction()
