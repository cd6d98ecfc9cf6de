#pragma once

#include "CallbackAdd.h"

/// "TRIGGER" ["-P"]: fires once per touch by something that can move; with -P only by the
/// protagonist. A step without a touch arms it again. Must be the head of a chain on an object.
class TriggerAdd : public CallbackAdd {
public:
    static constexpr const char* keyword = "TRIGGER";

    explicit TriggerAdd(ScriptWords& words);
    explicit TriggerAdd(TextReader& stream);

protected:
    bool fire(SceneObject* owner) override;
    void finish(SceneObject* owner) override;
    void saveFields(TextWriter& stream) const override;

private:
    bool isTouched(const SceneObject* owner) const;

    bool fired = false;
    bool playerOnly = false;
};

/// "STRIGGER": a pressure plate, which fires when something comes to lie on it and again when it is
/// free, each time with a click.
class StickyTriggerAdd : public CallbackAdd {
public:
    static constexpr const char* keyword = "STRIGGER";

    explicit StickyTriggerAdd(ScriptWords& words);
    explicit StickyTriggerAdd(TextReader& stream);

protected:
    bool fire(SceneObject* owner) override;
    void finish(SceneObject* owner) override;
    void saveFields(TextWriter& stream) const override;

private:
    bool pressed = false;
    bool touched = false; ///< Something lies on it in this step.
};
