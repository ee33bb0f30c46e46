# What every target of this project is compiled with: the include roots, and warnings that end the build.
function(vtui_target target)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/lib>
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/platform>)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow -Werror)
endfunction()
