# Levels: content/maps/*.tmj become maps/*.vkl. mapc reads the sizes of the textures and the names of
# textures, sounds and music, so they come first; those that only an override brings are among them.
get_property(map_assets GLOBAL PROPERTY content_files)
list(FILTER map_assets INCLUDE REGEX "/(data|sound|music)/[^/]+$")
foreach(file IN LISTS content_overrides)
    if(file MATCHES "^(data|sound|music)/")
        list(APPEND map_assets ${content_game}/${file})
    endif()
endforeach()
list(REMOVE_DUPLICATES map_assets)

file(GLOB content_maps CONFIGURE_DEPENDS ${content_source}/maps/*.tmj)
foreach(source IN LISTS content_maps)
    cmake_path(GET source STEM name)
    add_content(maps/${name}.vkl
        COMMAND mapc compile ${source} ${content_game}/maps/${name}.vkl --data ${content_game}/data
            --sound ${content_game}/sound --music ${content_game}/music
        DEPENDS mapc ${source} ${map_assets})
endforeach()
