#pragma once

#include "CallbackAdd.h"

/// "OBSCURED" ["-O"]: fades the object's graphics away while the protagonist touches it, and back
/// when he leaves; a wall in front of a hidden room. With -O only an overlap counts, and the object
/// stays away until it is unlocked. Fires when the protagonist comes.
class ObscuredAdd : public CallbackAdd {
public:
    static constexpr const char* keyword = "OBSCURED";

    explicit ObscuredAdd(ScriptWords& words);
    explicit ObscuredAdd(TextReader& stream);

    bool done = false;   ///< The fade has reached its end.
    bool active = false; ///< Fading away or gone.

protected:
    bool fire(SceneObject* owner) override;
    void finish(SceneObject* owner) override;
    void unlockLink() override;
    void saveFields(TextWriter& stream) const override;

private:
    void fade(const SceneObject& owner);
    bool isEntered(const SceneObject& owner) const;

    bool once = false;
};
