option(TOLMERE_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
if(TOLMERE_SANITIZE)
    target_compile_options(tolmere_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer
        -Wno-null-dereference -Wno-maybe-uninitialized)
    target_link_options(tolmere_options INTERFACE -fsanitize=address,undefined)
endif()

# Makes a program ready for leak checking.
function(prepare_for_leak_checks program)
    if(TOLMERE_SANITIZE)
        target_sources(${program} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/keepLibraries.cpp)
        set_target_properties(${program} PROPERTIES ENABLE_EXPORTS ON)
    endif()
endfunction()
