#pragma once

#include "CallbackAdd.h"

/// "LOCK": a gate that lets the chain through once, until it is unlocked.
class LockAdd : public CallbackAdd {
public:
    static constexpr const char* keyword = "LOCK";

    explicit LockAdd(ScriptWords& words);
    explicit LockAdd(TextReader& stream);

    bool locked = false;

protected:
    bool fire(SceneObject* owner) override;
    void lockLink() override { locked = true; }
    void unlockLink() override { locked = false; }
    void saveFields(TextWriter& stream) const override;
};

/// "UNLOCK": opens the nearest closed lock before it.
class UnLockAdd : public CallbackAdd {
public:
    static constexpr const char* keyword = "UNLOCK";

    explicit UnLockAdd(ScriptWords& words);
    explicit UnLockAdd(TextReader& stream);

protected:
    bool fire(SceneObject* owner) override;
};
