# Everything that comes from outside, as one interface target of system headers.
find_package(PkgConfig REQUIRED)
pkg_check_modules(BULLET REQUIRED IMPORTED_TARGET bullet)
pkg_check_modules(GLFW REQUIRED IMPORTED_TARGET glfw3)
pkg_check_modules(SDL REQUIRED IMPORTED_TARGET sdl2)
pkg_check_modules(MIXER REQUIRED IMPORTED_TARGET SDL2_mixer)
find_package(OpenGL REQUIRED COMPONENTS OpenGL)
find_library(SNAPPY_LIBRARY snappy REQUIRED)

add_library(tolmere_dependencies INTERFACE)
target_link_libraries(tolmere_dependencies INTERFACE
    PkgConfig::BULLET PkgConfig::GLFW PkgConfig::SDL PkgConfig::MIXER OpenGL::OpenGL
    ${SNAPPY_LIBRARY})
target_include_directories(tolmere_dependencies SYSTEM INTERFACE
    ${BULLET_INCLUDE_DIRS} ${SDL_INCLUDE_DIRS} ${MIXER_INCLUDE_DIRS})
