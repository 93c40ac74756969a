# What the library's own build gives the examples, for a build of the examples alone.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
if(MINGW)
    add_link_options(-static) # the compiler's runtime goes into each program
endif()

add_library(zorvic_warnings INTERFACE)

# zorvic_glob(OUT FOLDER): every C++ source below the folder.
function(zorvic_glob out folder)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp")
    set(${out} "${files}" PARENT_SCOPE)
endfunction()

# The DLLs go beside the programs.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/bin")
foreach(dll zorvic vekgraphic)
    get_target_property(file zorvic::${dll} IMPORTED_LOCATION)
    file(COPY "${file}" DESTINATION "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
endforeach()
