#pragma once

#include "OneArgCall.h"

/// "DELAY" n: fires its successor n - 1 steps after it was fired itself, so that it and the steps
/// that a head counts from 1 agree. A running clock is not restarted. Lengths below 2 are taken as
/// 2, which is the next tick: a clock fires from ticks only.
class DelayAdd : public OneArgCall<unsigned> {
public:
    static constexpr const char* keyword = "DELAY";

    explicit DelayAdd(ScriptWords& words);
    explicit DelayAdd(TextReader& stream);

protected:
    DelayAdd(AdditionType code, const char* word, ScriptWords& words);
    DelayAdd(AdditionType code, TextReader& stream);

    bool fire(SceneObject* owner) override;
    bool isClock() const override { return true; }
    bool isRunning() const override { return counter != arg; }
    void advance(SceneObject* owner) override;
    void saveFields(TextWriter& stream) const override;
    /// True if the clock has run out, and with it the link has fired.
    bool countDown(SceneObject* owner);

    unsigned counter = 0; ///< Steps left; equal to `arg` while idle.
};

/// "DELAYORKEY" n: a delay that the release of the left mouse button, the space key or any joystick
/// button cuts short. Serves texts that the player can click away. After a cut it cannot be started
/// again.
class DelayOrKeyAdd : public DelayAdd {
public:
    static constexpr const char* keyword = "DELAYORKEY";

    explicit DelayOrKeyAdd(ScriptWords& words);
    explicit DelayOrKeyAdd(TextReader& stream);

protected:
    /// Idle before, or after having run out, wrapped or been cut.
    bool isRunning() const override { return counter < arg; }
    void advance(SceneObject* owner) override;

private:
    bool waitRelease = false; ///< A key went down while the clock ran.
};
