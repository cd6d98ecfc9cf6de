#pragma once

#include "Level.h"

class TextWriter;

namespace mapc {

struct ObjectClass;

/// Reads the properties of a source of particles.
/// @throws std::string for a value that does not fit
Emitter readEmitter(const TiledObject& source, const ObjectClass& objectClass);

/// The fields of the engine's emitter.
void writeEmitter(TextWriter& stream, const Emitter& emitter);

} // namespace mapc
