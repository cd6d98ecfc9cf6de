#pragma once

#include "Level.h"
#include "TextStream.h"
#include "TextureSizes.h"

namespace mapc {

// The records that a scene object and a joint consist of, each in the layout of the engine's
// reader.

void writeGraphics(TextWriter& stream, const LevelObject& object, TextureSizes& textures);
/// The object must have a body.
void writeBody(TextWriter& stream, const LevelObject& object);
void writeJoint(TextWriter& stream, const Joint& joint);

} // namespace mapc
