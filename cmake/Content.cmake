# What the game reads, built from content/ into its run directory. A file in content/overrides/
# (data, sound, music, maps) takes the place of the built one of the same name.
set(content_source ${CMAKE_SOURCE_DIR}/content)
set(content_game ${CMAKE_BINARY_DIR}/game)
file(MAKE_DIRECTORY ${content_game}/data ${content_game}/sound ${content_game}/music
    ${content_game}/maps ${content_game}/save)
add_custom_target(content ALL)

file(GLOB content_overrides CONFIGURE_DEPENDS RELATIVE ${content_source}/overrides
    ${content_source}/overrides/data/* ${content_source}/overrides/sound/*
    ${content_source}/overrides/music/* ${content_source}/overrides/maps/*)

# The tools for pictures and sounds are the same in every build. One that is made beside another
# copies what that has made, which is built before it.
set(TOLMERE_ASSETS_FROM "" CACHE PATH "Run directory that pictures, sounds and music are copied from")
if(TOLMERE_ASSETS_FROM AND NOT IS_DIRECTORY ${TOLMERE_ASSETS_FROM})
    message(FATAL_ERROR "There are no assets in ${TOLMERE_ASSETS_FROM}: build what they come from first.")
endif()

# add_content(FILE COMMAND... DEPENDS...): the rule for one file of the run directory, named as
# there ("data/stone.tga"). With an override of that name the file is copied instead.
function(add_content file)
    set(built ${content_game}/${file})
    set(ready "")
    if(file IN_LIST content_overrides)
        set(ready ${content_source}/overrides/${file})
    elseif(TOLMERE_ASSETS_FROM AND file MATCHES "^(data|sound|music)/")
        set(ready ${TOLMERE_ASSETS_FROM}/${file})
    endif()
    if(ready)
        add_custom_command(OUTPUT ${built} DEPENDS ${ready}
            COMMAND ${CMAKE_COMMAND} -E copy ${ready} ${built} VERBATIM)
    else()
        cmake_parse_arguments(PARSE_ARGV 1 rule "" "" "COMMAND;DEPENDS")
        add_custom_command(OUTPUT ${built} DEPENDS ${rule_DEPENDS}
            COMMAND ${rule_COMMAND} COMMENT "Making ${file}" VERBATIM)
    endif()
    set_property(GLOBAL APPEND PROPERTY content_files ${built})
    set_property(GLOBAL APPEND PROPERTY content_names ${file})
endfunction()

# Pictures: one rule a row of the manifest, and the font.
set(manifest ${content_source}/textures.txt)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${manifest})
file(STRINGS ${manifest} rows REGEX "^[^#]")
foreach(row IN LISTS rows)
    string(REGEX MATCH "^[^ ]+" picture "${row}")
    add_content(data/${picture}
        COMMAND texture_builder ${manifest} ${content_game}/data ${picture}
        DEPENDS texture_builder ${manifest})
endforeach()

find_file(TOLMERE_FONT DejaVuSansMono.ttf
    PATHS /usr/share/fonts/truetype/dejavu /usr/share/fonts/TTF /usr/share/fonts/dejavu REQUIRED)
add_content(data/text2.tga
    COMMAND font_builder ${TOLMERE_FONT} ${content_game}/data/text2.tga
    DEPENDS font_builder ${TOLMERE_FONT})

# Sounds and music: one rule a row of their manifest.
set(manifest ${content_source}/sounds.txt)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${manifest})
file(STRINGS ${manifest} rows REGEX "^[^#]")
foreach(row IN LISTS rows)
    string(REGEX MATCH "^[^ ]+" sound "${row}")
    set(folder sound)
    if(sound MATCHES "[.]ogg$")
        set(folder music)
    endif()
    add_content(${folder}/${sound}
        COMMAND sound_builder ${manifest} ${content_game}/${folder} ${sound}
        DEPENDS sound_builder ${manifest})
endforeach()

# Texts.
foreach(language lang_eng lang_pol)
    set(texts ${content_source}/languages/${language}.txt)
    add_content(${language}.txt
        COMMAND language_builder ${texts} ${content_game}/${language}.txt
        DEPENDS language_builder ${texts})
endforeach()

include(ContentMaps OPTIONAL)

# Overrides of names that no rule makes are files of their own.
get_property(made GLOBAL PROPERTY content_names)
foreach(file IN LISTS content_overrides)
    if(NOT file IN_LIST made)
        add_content(${file})
    endif()
endforeach()

# The player's settings: this rule hangs on nothing, so it only runs when the file is missing.
add_custom_command(OUTPUT ${content_game}/config.txt
    COMMAND ${CMAKE_COMMAND} -D FROM=${content_source}/config.txt -D TO=${content_game}/config.txt
        -P ${CMAKE_SOURCE_DIR}/cmake/ShipSettings.cmake
    COMMENT "Making config.txt" VERBATIM)

get_property(content_files GLOBAL PROPERTY content_files)
add_custom_target(content_assets DEPENDS ${content_files} ${content_game}/config.txt)
add_dependencies(content content_assets)
