#pragma once

#include "SceneManager.h"

#include <string>

class TextReader;
class TextWriter;

// The map format: a scene printed as text in one raw snappy block. Levels and saved games share it.
// Readers raise "file corrupted: WHAT at byte OFFSET" as a std::string for anything that does not
// fit, and leave nothing behind; scene, ambient light and music stay as they were until the whole
// text has been read.

/// The unpacked text of a file.
/// @throws std::string if the file cannot be opened or holds no packed text
std::string readMapText(const std::string& path);

/// Reads a file. With the environment, the ambient colour and the music of the file take effect.
/// @throws std::string if the file cannot be opened or is damaged
SceneBundle loadMapFile(const std::string& path, bool withEnvironment);

/// Reads the text of a map.
SceneBundle parseScene(TextReader& stream, bool withEnvironment);

/// Reads one object with its additions. The object and its parts belong to the caller.
SceneObject* readSceneObject(TextReader& stream);

/// Prints the present scene.
void writeScene(TextWriter& stream);

/// The content of a file that holds the present scene.
std::string packScene();
