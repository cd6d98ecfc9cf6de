#include "LockAdd.h"

#include "TextStream.h"

LockAdd::LockAdd(ScriptWords& words) : CallbackAdd(AdditionType::lock) {
    takeKeyword(words, keyword);
}

LockAdd::LockAdd(TextReader& stream) : CallbackAdd(AdditionType::lock) {
    stream >> locked;
}

bool LockAdd::fire(SceneObject*) {
    if (locked) {
        return false;
    }
    locked = true;
    return true;
}

void LockAdd::saveFields(TextWriter& stream) const {
    stream << locked;
}

UnLockAdd::UnLockAdd(ScriptWords& words) : CallbackAdd(AdditionType::unlock) {
    takeKeyword(words, keyword);
}

UnLockAdd::UnLockAdd(TextReader&) : CallbackAdd(AdditionType::unlock) {}

bool UnLockAdd::fire(SceneObject*) {
    for (CallbackAdd* link = getPrev(); link != nullptr; link = link->getPrev()) {
        if (link->type == AdditionType::lock && static_cast<LockAdd*>(link)->locked) {
            static_cast<LockAdd*>(link)->locked = false;
            break;
        }
    }
    return true;
}
