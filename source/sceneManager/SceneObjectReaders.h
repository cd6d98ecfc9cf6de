#pragma once

#include "SceneObject.h"

/// Reads what a class stores behind the common record and builds the object. The parts stay the
/// caller's if it fails.
using SceneObjectReader = SceneObject* (*)(TextReader& stream, const SceneParts& parts);

/// The reader for a class code; null for a code that no class has.
SceneObjectReader sceneObjectReader(int type);
