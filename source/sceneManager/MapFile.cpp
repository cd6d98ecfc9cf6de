#include "MapFile.h"

#include "Files.h"
#include "JointRecord.h"
#include "SceneObjectReaders.h"
#include "TextStream.h"
#include "graphicsModule/GraphicsModule.h"
#include "physicsModule/PhysicsObject.h"
#include "soundModule/SoundManager.h"

#include <BulletDynamics/ConstraintSolver/btTypedConstraint.h>

#include <memory>

namespace {

using Additions = std::vector<std::unique_ptr<So_Addition>>;

/// Gives the numbers back that the objects of a failed reading took.
class NumberingGuard {
public:
    NumberingGuard() = default;
    ~NumberingGuard() {
        if (!kept) {
            sceneManager().objectCounter = before;
        }
    }
    NumberingGuard(const NumberingGuard&) = delete;
    NumberingGuard& operator=(const NumberingGuard&) = delete;

    void keep() { kept = true; }

private:
    int before = sceneManager().objectCounter;
    bool kept = false;
};

std::unique_ptr<PhysicsObject> readBody(TextReader& stream, GraphicsObject& graphics) {
    std::unique_ptr<PhysicsObject> physics(readPhysicsObject(stream));
    if (physics != nullptr) {
        graphics.setPhysicsObject(physics.get());
    }
    return physics;
}

Additions readAdditions(TextReader& stream, bool hasBody) {
    const std::size_t count = stream.readCount();
    Additions additions;
    additions.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        stream.setRecord("addition");
        std::unique_ptr<So_Addition> addition(readAddition(stream));
        if (addition == nullptr) {
            continue; // a dialogue without lines
        }
        if (!hasBody && addition->type != AdditionType::health) {
            stream.fail(); // it would look for contacts that the object cannot have
        }
        additions.push_back(std::move(addition));
    }
    return additions;
}

void readObjects(TextReader& stream, SceneBundle& bundle) {
    stream.setRecord("object count");
    const std::size_t count = stream.readCount();
    bundle.objects.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        bundle.objects.push_back(readSceneObject(stream));
    }
}

void readJoints(TextReader& stream, SceneBundle& bundle) {
    stream.setRecord("joint count");
    const std::size_t count = stream.readCount();
    bundle.joints.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        if (btTypedConstraint* joint = readJoint(stream, bundle.objects)) {
            bundle.joints.push_back(joint);
        }
    }
}

void readEnvironment(TextReader& stream) {
    stream.setRecord("ambient light");
    Colour3 ambient{};
    stream >> ambient[0] >> ambient[1] >> ambient[2];
    stream.setRecord("music");
    const std::string music = readCountedString(stream);
    // Nothing is left that could fail: only now may what the user sees and hears change.
    graphicsModule().ambient = ambient;
    graphicsModule().ambientTarget = ambient;
    soundManager().playMusic(music);
}

} // namespace

std::string readMapText(const std::string& path) {
    const std::string packed = readFile(path);
    std::string text;
    if (!uncompress(packed.data(), packed.size(), text)) {
        throw "file corrupted: " + path + " is no packed text";
    }
    return text;
}

SceneBundle loadMapFile(const std::string& path, bool withEnvironment) {
    const std::string text = readMapText(path);
    TextReader stream(text);
    return parseScene(stream, withEnvironment);
}

SceneBundle parseScene(TextReader& stream, bool withEnvironment) {
    NumberingGuard numbering;
    SceneBundle bundle;
    readObjects(stream, bundle);
    readJoints(stream, bundle);
    if (withEnvironment) {
        readEnvironment(stream);
    }
    numbering.keep();
    return bundle;
}

SceneObject* readSceneObject(TextReader& stream) {
    stream.setRecord("scene object");
    const int type = stream.read<int>();
    const SceneObjectReader readRest = sceneObjectReader(type);
    if (readRest == nullptr) {
        stream.fail();
    }
    std::unique_ptr<GraphicsObject> graphics(readGraphicsObject(stream));
    std::unique_ptr<PhysicsObject> physics = readBody(stream, *graphics);
    Additions additions = readAdditions(stream, physics != nullptr);
    stream.setRecord("scene object");
    SceneObject* object = readRest(stream, {physics.get(), graphics.get(), type});
    object->additions.reserve(additions.size());
    for (std::unique_ptr<So_Addition>& addition : additions) {
        object->addAddition(addition.release());
    }
    static_cast<void>(graphics.release());
    static_cast<void>(physics.release());
    return object;
}
