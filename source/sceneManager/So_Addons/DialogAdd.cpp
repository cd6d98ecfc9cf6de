#include "DialogAdd.h"

#include "Contacts.h"
#include "Language.h"
#include "ScriptWords.h"
#include "TextStream.h"
#include "sceneManager/Player.h"

#include <memory>

namespace {

constexpr const char* referenceMark = "qq";
constexpr std::size_t markLength = 2;

/// The line that an entry stands for. Behind the mark only the number in front counts; no number
/// is line -1, a blank.
std::string resolve(const std::string& entry) {
    if (entry.size() <= markLength || !entry.starts_with(referenceMark)) {
        return entry;
    }
    return text(numberIn(std::string_view(entry).substr(markLength), -1));
}

/// The protagonist, if it touches the owner. Null also while it speaks, if that is to be waited
/// for.
Player* findListener(const SceneObject* owner, bool waitsForSilence) {
    for (const btPersistentManifold* manifold : manifoldsOf(owner)) {
        const Contact contact = contactOf(owner, *manifold);
        if (contact.other == nullptr || contact.other->type != sceneObjectType::testPlayer) {
            continue;
        }
        Player* player = contact.other->asPlayer();
        if (player == nullptr || (waitsForSilence && player->isSpeaking())) {
            return nullptr;
        }
        if (contact.comesWithin(0.0F)) {
            return player;
        }
    }
    return nullptr;
}

} // namespace

So_Addition* DialogAdd::read(TextReader& stream) {
    std::unique_ptr<DialogAdd> dialog(new DialogAdd);
    const std::size_t count = stream.readCount();
    stream >> dialog->once >> dialog->locked;
    dialog->entries.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        std::string line = readCountedString(stream);
        dialog->entries.push_back({std::move(line), stream.read<int>()});
    }
    return count == 0 ? nullptr : dialog.release();
}

void DialogAdd::save(TextWriter& stream) const {
    So_Addition::save(stream);
    stream << entries.size() << once << locked;
    for (const Entry& entry : entries) {
        stream.writeCounted(entry.text);
        stream << entry.time;
    }
}

void DialogAdd::update(SceneObject* owner) {
    Player* player = locked ? nullptr : findListener(owner, !once);
    if (player == nullptr) {
        return;
    }
    for (const Entry& entry : entries) {
        player->say(resolve(entry.text), entry.time);
    }
    locked = once;
}
