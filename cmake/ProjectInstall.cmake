# Install rules and the CMake package through which another host builds against the libraries:
# after `cmake --install`, find_package(ProjectExplorer) gives the imported targets
# ProjectExplorer::Common, ProjectExplorer::HostInterfaces, ProjectExplorer::AecApp and
# ProjectExplorer::ProjectExplorerLib, whose headers keep the include paths the project itself uses
# ("Common/UUID.h", "aec/Project.h", "ProjectExplorerLib/ProjectExplorerExports.h").

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(PROJECT_PACKAGE_NAME ProjectExplorer)
set(PROJECT_PACKAGE_EXPORT ${PROJECT_PACKAGE_NAME}Targets)
set(PROJECT_PACKAGE_CONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/${PROJECT_PACKAGE_NAME})

# project_install_library(TARGET HEADER_DIR dir [HEADERS file ...])
#
# Installs the target into the package and its headers under include/<last folder of HEADER_DIR>:
# the listed HEADERS of HEADER_DIR, or every header there when none are listed.
function(project_install_library target)
    cmake_parse_arguments(ARG "" "HEADER_DIR" "HEADERS" ${ARGN})
    if(NOT ARG_HEADER_DIR)
        message(FATAL_ERROR "project_install_library(${target}): HEADER_DIR is required")
    endif()

    if(ARG_HEADERS)
        list(TRANSFORM ARG_HEADERS PREPEND ${ARG_HEADER_DIR}/ OUTPUT_VARIABLE headers)
    else()
        file(GLOB headers CONFIGURE_DEPENDS ${ARG_HEADER_DIR}/*.h)
    endif()
    cmake_path(GET ARG_HEADER_DIR FILENAME include_folder)
    install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${include_folder})

    # The headers are C++20 whatever the consuming project's own default is.
    target_compile_features(${target} INTERFACE cxx_std_20)
    get_target_property(kind ${target} TYPE)
    if(NOT kind STREQUAL "INTERFACE_LIBRARY")
        # The installed libraries find each other beside themselves, wherever the prefix is moved.
        set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
    endif()

    install(TARGETS ${target} EXPORT ${PROJECT_PACKAGE_EXPORT}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endfunction()

# project_install_package(): the exported targets, the package config and its version file.
# Called once, after every installed library has been made.
function(project_install_package)
    install(EXPORT ${PROJECT_PACKAGE_EXPORT}
        NAMESPACE ${PROJECT_PACKAGE_NAME}::
        DESTINATION ${PROJECT_PACKAGE_CONFIG_DIR})

    # The interface headers use Boost and fmt types, so a consumer needs the versions they were
    # built with: the same Boost release or newer, the same fmt major version (its ABI).
    set(PACKAGE_BOOST_VERSION ${Boost_VERSION_MAJOR}.${Boost_VERSION_MINOR})
    math(EXPR next_fmt_major "${fmt_VERSION_MAJOR} + 1")
    set(PACKAGE_FMT_VERSION_RANGE ${fmt_VERSION_MAJOR}...<${next_fmt_major})
    set(config_dir ${CMAKE_CURRENT_BINARY_DIR}/${PROJECT_PACKAGE_NAME})
    configure_package_config_file(
        ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/${PROJECT_PACKAGE_NAME}Config.cmake.in
        ${config_dir}/${PROJECT_PACKAGE_NAME}Config.cmake
        INSTALL_DESTINATION ${PROJECT_PACKAGE_CONFIG_DIR}
        NO_SET_AND_CHECK_MACRO)
    # Before 1.0 a minor release may change the interfaces.
    write_basic_package_version_file(${config_dir}/${PROJECT_PACKAGE_NAME}ConfigVersion.cmake
        VERSION ${PROJECT_VERSION}
        COMPATIBILITY SameMinorVersion)
    install(FILES
        ${config_dir}/${PROJECT_PACKAGE_NAME}Config.cmake
        ${config_dir}/${PROJECT_PACKAGE_NAME}ConfigVersion.cmake
        DESTINATION ${PROJECT_PACKAGE_CONFIG_DIR})
endfunction()
