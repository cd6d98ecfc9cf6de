#pragma once

#include "TextStream.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/So_Addons/AdditionRecords.h"
#include "sceneManager/So_Addons/So_Addition.h"

#include <memory>
#include <string>

// What is stored of a thing, and things as they are read.

/// Of an addition or an object of the scene.
template <class T>
std::string recordOf(const T& thing) {
    TextWriter writer;
    thing.save(writer);
    return writer.takeText();
}

inline std::unique_ptr<So_Addition> additionOf(const std::string& record) {
    TextReader reader(record);
    return std::unique_ptr<So_Addition>(readAddition(reader));
}

inline std::string storedScene() {
    TextWriter writer;
    writeScene(writer);
    return writer.takeText();
}
