# What the packages hold beside the targets' own files, and how cpack makes them: one archive that hosts unpack anywhere,
# and one with debug information that is unpacked over it.
include(CMakePackageConfigHelpers)

set(config_folder lib/cmake/zorvic)
configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/zorvicConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/zorvicConfig.cmake" INSTALL_DESTINATION ${config_folder}
    NO_CHECK_REQUIRED_COMPONENTS_MACRO)
# Refuses hosts of the other width, too.
write_basic_package_version_file("${PROJECT_BINARY_DIR}/zorvicConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/zorvicConfig.cmake" "${PROJECT_BINARY_DIR}/zorvicConfigVersion.cmake"
    DESTINATION ${config_folder})

file(READ "${PROJECT_SOURCE_DIR}/packaging/vcpkg/zorvic/vcpkg.json" port)
string(JSON port_version GET "${port}" version)
if(NOT port_version VERSION_EQUAL PROJECT_VERSION)
    message(FATAL_ERROR "packaging/vcpkg/zorvic/vcpkg.json says version ${port_version}, not ${PROJECT_VERSION}.")
endif()

set(doc share/doc/zorvic)
install(FILES "${PROJECT_SOURCE_DIR}/README.md" "${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${PROJECT_SOURCE_DIR}/LICENSE"
              "${PROJECT_SOURCE_DIR}/THIRD-PARTY.md"
    DESTINATION ${doc})
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs" DESTINATION ${doc} PATTERN doxygen EXCLUDE)
# The HTML pages, where scripts/docs has made them.
install(DIRECTORY "${PROJECT_SOURCE_DIR}/build/docs/html" DESTINATION ${doc} OPTIONAL)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/bindings/python/" DESTINATION share/zorvic/python FILES_MATCHING PATTERN "*.py")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/examples/" DESTINATION share/zorvic/examples)

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_NAME zorvic)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_SYSTEM_NAME windows-x86)
if(ZORVIC_BITS EQUAL 64)
    set(CPACK_SYSTEM_NAME windows-x64)
endif()
set(CPACK_PACKAGE_FILE_NAME "zorvic-${PROJECT_VERSION}-${CPACK_SYSTEM_NAME}")
set(CPACK_OUTPUT_FILE_PREFIX "${PROJECT_SOURCE_DIR}/dist")
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_COMPONENTS_ALL library debug)
set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_ARCHIVE_LIBRARY_FILE_NAME "${CPACK_PACKAGE_FILE_NAME}")
set(CPACK_ARCHIVE_DEBUG_FILE_NAME "${CPACK_PACKAGE_FILE_NAME}-debug")
include(CPack)
