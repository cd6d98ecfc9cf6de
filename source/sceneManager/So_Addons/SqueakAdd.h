#pragma once

#include "CallbackAdd.h"

/// A pair of sounds, one for each direction of movement. Whatever word stands behind the first file
/// is the second; alone, the first serves for both.
class TwoSoundAdd : public CallbackAdd {
protected:
    TwoSoundAdd(AdditionType code, const char* word, ScriptWords& words);
    TwoSoundAdd(AdditionType code, TextReader& stream);

    void saveFields(TextWriter& stream) const override;
    void play(const SceneObject& owner, bool useFirst, float volume) const;

private:
    std::string first;
    std::string second;
};

/// "SQUEAK" first [second]: a door that sounds once each time it swings through the middle of its
/// range, first to the right, second to the left. The object's first joint must have six degrees of
/// freedom.
class SqueakAdd : public TwoSoundAdd {
public:
    static constexpr const char* keyword = "SQUEAK";
    explicit SqueakAdd(ScriptWords& words);
    explicit SqueakAdd(TextReader& stream);

protected:
    bool fire(SceneObject* owner) override;

private:
    void passMiddle(const SceneObject& owner) const;

    bool armed = true; ///< The door has been outside the middle since it last sounded.
};

/// "CREAK" first [second]: creaks in the first file while the object goes down, else in the second.
class CreakAdd : public TwoSoundAdd {
public:
    static constexpr const char* keyword = "CREAK";
    explicit CreakAdd(ScriptWords& words);
    explicit CreakAdd(TextReader& stream);

protected:
    bool fire(SceneObject* owner) override;
};
