#pragma once

#include "CallbackAdd.h"

/// "SOUND" file ["-V" n] ["-P"]: a one-shot of that volume, 0 to 128, equally loud everywhere; with
/// -P by the distance of the object instead. Two firings overlap.
class SoundAdd : public CallbackAdd {
public:
    static constexpr const char* keyword = "SOUND";

    explicit SoundAdd(ScriptWords& words);
    explicit SoundAdd(TextReader& stream);

protected:
    bool fire(SceneObject* owner) override;
    void saveFields(TextWriter& stream) const override;

private:
    std::string file;
    int volume = 128; ///< -1 for a positional sound.
};
