#include "CallbackAdd.h"

#include "TextStream.h"

#include <cassert>
#include <utility>

CallbackAdd::~CallbackAdd() {
    CallbackAdd* link = std::exchange(next, nullptr);
    while (link != nullptr) {
        CallbackAdd* following = std::exchange(link->next, nullptr);
        delete link;
        link = following;
    }
}

void CallbackAdd::save(TextWriter& stream) const {
    for (const CallbackAdd* link = this; link != nullptr; link = link->next) {
        link->So_Addition::save(stream);
        link->saveFields(stream);
        if (link->type != AdditionType::objectName) { // a name is always the last link
            stream << (link->next != nullptr);
        }
    }
}

void CallbackAdd::unlock() {
    for (CallbackAdd* link = this; link != nullptr; link = link->next) {
        link->unlockLink();
    }
}

bool CallbackAdd::contains(const So_Addition* addition) const {
    for (const CallbackAdd* link = this; link != nullptr; link = link->next) {
        if (link == addition) {
            return true;
        }
    }
    return false;
}

void CallbackAdd::lock() {
    for (CallbackAdd* link = this; link != nullptr; link = link->next) {
        link->lockLink();
    }
}

void CallbackAdd::update(SceneObject* owner) {
    if (prev == nullptr && next != nullptr) {
        tick(owner);
    }
    CallbackAdd* passed = nullptr;
    for (CallbackAdd* link = this; link != nullptr && link->fire(owner); link = link->next) {
        passed = link;
    }
    while (passed != nullptr) {
        CallbackAdd* before = passed == this ? nullptr : passed->prev;
        passed->finish(owner);
        passed = before;
    }
}

/// Advances the clocks, the ones nearest the end first, so that a clock that fires cannot be
/// advanced in the same step by one before it. Of a long chain, mostly one clock runs.
void CallbackAdd::tick(SceneObject* owner) {
    for (CallbackAdd* clock = lastRunning; clock != nullptr; clock = clock->clockBefore) {
        clock->advance(owner);
    }
    while (lastRunning != nullptr && !lastRunning->isRunning()) {
        lastRunning = lastRunning->clockBefore;
    }
}

/// To be called on the head when the chain is complete.
void CallbackAdd::wireClocks() {
    CallbackAdd* before = nullptr;
    for (CallbackAdd* link = this; link != nullptr; link = link->next) {
        link->clockBefore = before;
        if (link->isClock()) {
            before = link;
        }
        if (link->isRunning()) {
            lastRunning = link;
        }
    }
}

void CallbackAdd::noteStart() {
    CallbackAdd* head = this;
    while (head->prev != nullptr) {
        head = head->prev;
    }
    if (head->lastRunning == nullptr || head->lastRunning->contains(this)) {
        head->lastRunning = this;
    }
}

void CallbackAdd::fireNext(SceneObject* owner) {
    if (next != nullptr) {
        next->update(owner);
    }
}

CallbackAdd* CallbackAdd::append(CallbackAdd* link) {
    next = link;
    link->prev = this;
    return link;
}

std::map<std::string, ScriptCallback>& callbackTable() {
    static std::map<std::string, ScriptCallback> table;
    return table;
}

void addCallback(const std::string& name, ScriptCallback callback) {
    [[maybe_unused]] const bool isNew = callbackTable().emplace(name, std::move(callback)).second;
    assert(isNew);
}
