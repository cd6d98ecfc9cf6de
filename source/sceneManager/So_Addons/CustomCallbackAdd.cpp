#include "CustomCallbackAdd.h"

#include "TextStream.h"

static const ScriptCallback* findCallback(const std::string& name) {
    const auto entry = callbackTable().find(name);
    return entry == callbackTable().end() || !entry->second ? nullptr : &entry->second;
}

CustomCallbackAdd::CustomCallbackAdd(ScriptWords& words) : CustomCallbackAdd(takeWord(words)) {}

CustomCallbackAdd::CustomCallbackAdd(TextReader& stream)
    : CustomCallbackAdd(readCountedString(stream)) {}

CustomCallbackAdd::CustomCallbackAdd(std::string word)
    : CallbackAdd(AdditionType::customCallback),
      name(std::move(word)),
      callback(findCallback(name)) {}

bool CustomCallbackAdd::fire(SceneObject* owner) {
    const bool hasNext = getNext() != nullptr; // the command may delete this link if not
    if (callback != nullptr) {
        (*callback)(owner, this);
    }
    return hasNext;
}

void CustomCallbackAdd::saveFields(TextWriter& stream) const {
    stream.writeCounted(name);
}
