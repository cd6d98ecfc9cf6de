#include "LevelWriter.h"

#include "EmitterRecord.h"
#include "LightRecord.h"
#include "MonsterRecord.h"
#include "RecordWriters.h"

#include "sceneManager/SceneObject.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <algorithm>
#include <memory>

namespace mapc {

namespace {

constexpr const char* noBody = "00000000";

int typeCode(const LevelObject& object) {
    if (object.force.has_value()) {
        return sceneObjectType::forcefield;
    }
    if (object.monster.has_value()) {
        return sceneObjectType::evilPlayer;
    }
    return object.body.has_value() ? sceneObjectType::plain : sceneObjectType::withoutPhysics;
}

void writeDialog(TextWriter& stream, const Dialog& dialog) {
    stream << dialog.lines.size() << dialog.once << dialog.locked;
    for (const DialogLine& line : dialog.lines) {
        stream.writeCounted(line.text);
        stream << line.steps;
    }
}

std::string lightRecord(const Light& light) {
    TextWriter stream;
    stream << static_cast<int>(AdditionType::light);
    writeLight(stream, light);
    return stream.takeText();
}

/// Each as the text of its record.
std::vector<std::string> ownAdditionsOf(const LevelObject& object) {
    std::vector<std::string> records;
    const auto record = [&records](AdditionType type, auto writeFields) {
        TextWriter stream;
        stream << static_cast<int>(type);
        writeFields(stream);
        records.push_back(stream.takeText());
    };
    if (!object.name.empty()) {
        record(AdditionType::objectName,
               [&](TextWriter& stream) { stream.writeCounted(object.name); });
    }
    std::ranges::transform(object.scripts, std::back_inserter(records), storeScript);
    if (object.health.has_value()) {
        record(AdditionType::health, [&](TextWriter& stream) { stream << *object.health; });
    }
    if (object.damage.has_value()) {
        record(AdditionType::damage, [&](TextWriter& stream) {
            stream << object.damage->amount << object.damage->threshold;
        });
    }
    if (object.forcePower.has_value()) {
        record(AdditionType::forcefield, [&](TextWriter& stream) { stream << *object.forcePower; });
    }
    std::ranges::transform(object.lights, std::back_inserter(records), lightRecord);
    for (const Emitter& emitter : object.emitters) {
        record(AdditionType::particleEmiter,
               [&](TextWriter& stream) { writeEmitter(stream, emitter); });
    }
    if (object.water.has_value()) {
        record(AdditionType::water, [](TextWriter& stream) { stream << 0.0F; });
    }
    if (object.dialog.has_value()) {
        record(AdditionType::dialog,
               [&](TextWriter& stream) { writeDialog(stream, *object.dialog); });
    }
    return records;
}

/// With those that the kind of object brings.
std::vector<std::string> additionsOf(const LevelObject& object) {
    std::vector<std::string> records = ownAdditionsOf(object);
    if (object.monster.has_value()) {
        const std::vector<Light> eyes = eyeLights(*object.monster);
        std::ranges::transform(eyes, std::inserter(records, records.begin()), lightRecord);
        std::ranges::copy(monsterAdditions(), std::back_inserter(records));
    }
    return records;
}

void writeObject(std::string& text, const LevelObject& object, TextureSizes& textures) {
    TextWriter head;
    head << typeCode(object);
    writeGraphics(head, object.monster.has_value() ? drawnMonster(object) : object, textures);
    if (object.body.has_value()) {
        writeBody(head, object);
    } else {
        head << noBody;
    }
    const std::vector<std::string> additions = additionsOf(object);
    head << additions.size();
    text += head.text();
    for (const std::string& addition : additions) {
        text += addition;
    }
    TextWriter tail;
    if (object.force.has_value()) {
        tail << object.force->x << object.force->y;
    }
    if (object.monster.has_value()) {
        writeMonster(tail, *object.monster);
    }
    text += tail.text();
}

} // namespace

std::string storeScript(const std::string& script) {
    const std::unique_ptr<CallbackAdd> chain(parseScript(script));
    TextWriter stream;
    chain->save(stream);
    return stream.takeText();
}

std::string writeLevel(const Level& level, TextureSizes& textures) {
    TextWriter head;
    head << level.objects.size();
    std::string text = head.takeText();
    for (const LevelObject& object : level.objects) {
        writeObject(text, object, textures);
    }
    TextWriter end;
    end << level.joints.size();
    for (const Joint& joint : level.joints) {
        writeJoint(end, joint);
    }
    end << level.ambient.r << level.ambient.g << level.ambient.b;
    end.writeCounted(level.music);
    return text + end.text();
}

} // namespace mapc
