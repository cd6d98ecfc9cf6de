# Levels: content/maps/*.tmj become maps/*.vkl. mapc reads the sizes and the names of the textures, so
# they come first; those that only an override brings are among them.
set(map_textures ${content_textures})
foreach(file IN LISTS content_overrides)
    if(file MATCHES "^data/")
        list(APPEND map_textures ${content_game}/${file})
    endif()
endforeach()
list(REMOVE_DUPLICATES map_textures)

file(GLOB content_maps CONFIGURE_DEPENDS ${content_source}/maps/*.tmj)
foreach(source IN LISTS content_maps)
    cmake_path(GET source STEM name)
    add_content(maps/${name}.vkl
        COMMAND mapc compile ${source} ${content_game}/maps/${name}.vkl --data ${content_game}/data
        DEPENDS mapc ${source} ${map_textures})
endforeach()
