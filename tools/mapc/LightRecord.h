#pragma once

#include "Level.h"

class TextWriter;

namespace mapc {

struct ObjectClass;

/// Reads the properties of a light. Its place is left to the caller.
/// @throws std::string for a value that does not fit
Light readLight(const TiledObject& source, const ObjectClass& objectClass);

/// The fields of the engine's light addition.
void writeLight(TextWriter& stream, const Light& light);

} // namespace mapc
