# Installs two packages: vtui-platform, what the components stand on, and vtui-comp, the components and the pool
# builder. Whoever brings a platform of their own gets the second one only. An installed file finds the others from
# where it lies itself, so the tree may be moved.
include(CMakePackageConfigHelpers)

cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
    BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig OUTPUT_VARIABLE prefix_from_pc)

# vtui_install_library(package target MODULE name DESCRIPTION text [REQUIRES modules...] [CFLAGS flags...]
#                      HEADERS folders...)
# One library of a package, the headers of those folders, and a pkg-config module of the library's own.
function(vtui_install_library package target)
    cmake_parse_arguments(arg "" "MODULE;DESCRIPTION" "REQUIRES;CFLAGS;HEADERS" ${ARGN})
    set(includes ${CMAKE_INSTALL_INCLUDEDIR}/${package})
    install(TARGETS ${target} EXPORT ${package}-targets INCLUDES DESTINATION ${includes})
    # These two serve a few of the sources only.
    install(DIRECTORY ${arg_HEADERS} DESTINATION ${includes} FILES_MATCHING PATTERN "*.h"
        PATTERN "widgets/Caption.h" EXCLUDE PATTERN "widgets/Scroll_parts.h" EXCLUDE)
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")

    list(JOIN arg_REQUIRES ", " arg_REQUIRES)
    list(JOIN arg_CFLAGS " " arg_CFLAGS)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/module.pc.in ${PROJECT_BINARY_DIR}/${arg_MODULE}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${arg_MODULE}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

# vtui_install_package(package [dependency]): what find_package(package) reads. It looks for the dependency beside
# itself first.
function(vtui_install_package package)
    set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/${package})
    set(config "include(\${CMAKE_CURRENT_LIST_DIR}/${package}-targets.cmake)\n")
    if(ARGN)
        string(PREPEND config "include(CMakeFindDependencyMacro)\n"
            "find_dependency(${ARGN} CONFIG HINTS \${CMAKE_CURRENT_LIST_DIR}/../${ARGN})\n")
    endif()
    set(written ${PROJECT_BINARY_DIR}/${package}-config)
    file(CONFIGURE OUTPUT ${written}.cmake CONTENT "${config}" @ONLY)
    write_basic_package_version_file(${written}-version.cmake COMPATIBILITY SameMajorVersion)
    install(FILES ${written}.cmake ${written}-version.cmake DESTINATION ${folder})
    install(EXPORT ${package}-targets NAMESPACE vtui:: DESTINATION ${folder})
endfunction()

set(platform_module)
if(NOT VTUI_PLATFORM_PACKAGE)
    set(platform_module vtui-platform)
    vtui_install_library(vtui-platform vtui_platform MODULE vtui-platform
        DESCRIPTION "Object library and data stores under the screen components"
        REQUIRES Qt5Core CFLAGS -fPIC HEADERS platform/) # as Qt wants whoever includes it to be compiled
    vtui_install_package(vtui-platform Qt5Core)
endif()
vtui_install_library(vtui-comp lumqtvtui_comp MODULE vtui-comp
    DESCRIPTION "${PROJECT_DESCRIPTION}" REQUIRES ${platform_module} HEADERS lib/vtui util)
vtui_install_library(vtui-comp vtui_pool MODULE vtui-pool
    DESCRIPTION "Builds ISO 11783-6 object pools of screen components" REQUIRES vtui-comp HEADERS pool)
vtui_install_package(vtui-comp ${VTUI_PLATFORM_PACKAGE} ${platform_module})
