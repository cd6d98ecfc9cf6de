# Writes the settings that a new player starts with, with the CR LF ends that the game's settings
# writer looks for. The player's own file is never touched.
#   cmake -D FROM=... -D TO=... -P ShipSettings.cmake
if(EXISTS "${TO}")
    return()
endif()
file(READ "${FROM}" settings)
string(REGEX REPLACE "\r?\n" "\r\n" settings "${settings}")
file(WRITE "${TO}" "${settings}")
