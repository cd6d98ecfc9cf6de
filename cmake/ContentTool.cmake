# A program that makes assets. It runs in every build, so it is optimised in all of them and not
# watched by the sanitizers. Built where a rule needs it.
get_target_property(tool_options tolmere_options INTERFACE_COMPILE_OPTIONS)
list(FILTER tool_options EXCLUDE REGEX "^-f(no-)?sanitize|^-fno-omit-frame-pointer")

function(add_content_tool name)
    add_executable(${name} EXCLUDE_FROM_ALL ${ARGN})
    target_compile_options(${name} PRIVATE ${tool_options} -O2 -ffp-contract=off)
endfunction()
