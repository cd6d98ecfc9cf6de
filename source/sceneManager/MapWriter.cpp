#include "MapFile.h"

#include "Files.h"
#include "JointRecord.h"
#include "StoredObjects.h"
#include "TextStream.h"
#include "graphicsModule/GraphicsModule.h"
#include "physicsModule/PhysicsModule.h"
#include "soundModule/SoundManager.h"

#include <algorithm>

namespace {

void writeJoints(TextWriter& stream, const StoredObjects& objects) {
    const std::vector<btTypedConstraint*>& joints = physicsModule().getJoints();
    stream << static_cast<std::size_t>(
        std::count_if(joints.begin(), joints.end(), [&objects](const btTypedConstraint* joint) {
            return objects.holds(*joint);
        }));
    for (btTypedConstraint* joint : joints) {
        if (objects.holds(*joint)) {
            writeJoint(stream, *joint, objects);
        }
    }
}

void writeEnvironment(TextWriter& stream) {
    for (const float channel : graphicsModule().ambientTarget) {
        stream << channel;
    }
    stream.writeCounted(soundManager().currentMusic);
}

} // namespace

std::string packScene() {
    TextWriter stream;
    writeScene(stream);
    std::string packed;
    compress(stream.text().data(), stream.text().size(), packed);
    return packed;
}

void writeScene(TextWriter& stream) {
    const StoredObjects objects(sceneManager().objects);
    stream << objects.getObjects().size();
    for (const SceneObject* object : objects.getObjects()) {
        object->save(stream);
    }
    writeJoints(stream, objects);
    writeEnvironment(stream);
}
