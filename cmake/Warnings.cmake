# The flags that all of our own code is built with.
add_library(tolmere_options INTERFACE)
target_compile_options(tolmere_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
    -Wunused -Wnull-dereference -Werror)
if(CMAKE_BUILD_TYPE STREQUAL "Release")
    # The optimiser's flow analysis finds null dereferences inside the libraries' own templates.
    target_compile_options(tolmere_options INTERFACE -Wno-null-dereference)
endif()
