#pragma once

#include "CallbackAdd.h"

#include <LinearMath/btVector3.h>

#include <cstdint>
#include <string>

/// A looping sound of the object, whose loudness is decided anew every step. Meant as head of a
/// chain on an object. The loop ends with the link.
class LoopSoundAdd : public CallbackAdd {
public:
    ~LoopSoundAdd() override;

protected:
    LoopSoundAdd(AdditionType code, const char* word, ScriptWords& words);
    LoopSoundAdd(AdditionType code, TextReader& stream);

    bool fire(SceneObject* owner) override;
    void saveFields(TextWriter& stream) const override;
    /// How loud the object's own state makes it, before distance; 0 ends the loop.
    virtual std::uint8_t loudness(const SceneObject& source) = 0;
    std::uint8_t fullVolume() const { return static_cast<std::uint8_t>(volume); }

private:
    std::string file;
    int volume = 128;
    const SceneObject* lastOwner = nullptr; ///< Who the loop belongs to; compared, never followed.
};

/// "SOUNDSOURCE" file ["-V" n]: always on.
class SoundSourceAdd : public LoopSoundAdd {
public:
    static constexpr const char* keyword = "SOUNDSOURCE";
    explicit SoundSourceAdd(ScriptWords& words);
    explicit SoundSourceAdd(TextReader& stream);

protected:
    std::uint8_t loudness(const SceneObject& source) override;
};

/// "MOVSOUND" file ["-V" n]: on while the object moves.
class MovSoundAdd : public LoopSoundAdd {
public:
    static constexpr const char* keyword = "MOVSOUND";
    explicit MovSoundAdd(ScriptWords& words);
    explicit MovSoundAdd(TextReader& stream);

protected:
    std::uint8_t loudness(const SceneObject& source) override;

private:
    bool hasBeenMoved(const btVector3& position);

    btVector3 lastPosition{0.0F, 0.0F, 0.0F}; ///< Of a static body; zero means unknown.
};

/// "VSOUND" file ["-V" n]: as loud as the object is fast. The volume is kept and not used.
class VSoundAdd : public LoopSoundAdd {
public:
    static constexpr const char* keyword = "VSOUND";
    explicit VSoundAdd(ScriptWords& words);
    explicit VSoundAdd(TextReader& stream);

protected:
    std::uint8_t loudness(const SceneObject& source) override;
};
