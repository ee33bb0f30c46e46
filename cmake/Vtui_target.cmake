# Where the platform's headers are, for targets that include some of them without linking the platform.
if(VTUI_PLATFORM_PACKAGE)
    set(VTUI_PLATFORM_INCLUDES $<TARGET_PROPERTY:vtui::platform,INTERFACE_INCLUDE_DIRECTORIES>)
else()
    set(VTUI_PLATFORM_INCLUDES ${PROJECT_SOURCE_DIR}/platform)
endif()

# What every target of this project is compiled with: the include roots, and warnings that end the build as long as it
# is this project's own and not part of somebody else's.
function(vtui_target target)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/lib>
        $<BUILD_INTERFACE:${VTUI_PLATFORM_INCLUDES}>)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL SHARED_LIBRARY)
        target_link_options(${target} PRIVATE LINKER:--version-script=${PROJECT_SOURCE_DIR}/cmake/private_std.map)
        set_target_properties(${target} PROPERTIES LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/private_std.map)
    endif()
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow)
    # A fused multiply-add rounds once instead of twice: numbers must not depend on the processor.
    target_compile_options(${target} PRIVATE -ffp-contract=off)
    set_target_properties(${target} PROPERTIES COMPILE_WARNING_AS_ERROR ${PROJECT_IS_TOP_LEVEL})
endfunction()
