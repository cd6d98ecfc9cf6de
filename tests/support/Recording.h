#pragma once

#include "tools/sound/Signal.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

/// A sound that was recognised in a recording.
struct Heard {
    int step =
        0; ///< In which it was asked for, or up to two earlier: sounds begin in pairs of buffers.
    float volume = 0.0F;   ///< 0 to 128, as the mixer was told.
    float likeness = 0.0F; ///< 1 if nothing else sounded.
};

/// A sound file of the built game, "sound/click.wav" say, as one channel.
/// @throws std::string if it cannot be read
Signal builtSound(const std::string& file);

/// What the mixer gave, as one channel with full scale 1, and which steps of the game it belongs
/// to. Steps count from 0; what is asked for in a step is heard from its place in the recording on.
/// Ranges take in `from` and end before `to`; of a few steps they may be empty, and silent.
class Recording {
public:
    static constexpr std::size_t stepFrames = 735;    ///< A 60th of a second.
    static constexpr std::size_t bufferFrames = 1024; ///< What is mixed at once.

    /// Appends a buffer of the mixer: left and right sample in turn.
    void add(std::span<const std::int16_t> samples);
    /// The next step begins with what is added from now on.
    void beginStep() { begins.push_back(frames.size()); }

    int steps() const { return static_cast<int>(begins.size()); }

    /// Loudness: the root of the mean square.
    float level(int from, int to) const;
    /// The loudest sample.
    float peak(int from, int to) const;
    /// Amplitude of the part that is a pure tone.
    float tone(float hz, int from, int to) const;
    /// Every place where the sound begins, in order. Others may sound with it: it is found down to
    /// a tenth of the energy, above the low tones. One whose volume changes meanwhile is found as
    /// long as most of it stays alike, and a loop by its first beginning.
    std::vector<Heard> find(const Signal& sound) const;
    /// The same by the low tones, for a sound that has no others, such as a heart.
    std::vector<Heard> findLow(const Signal& sound) const;

private:
    std::span<const float> part(int from, int to) const;
    std::size_t beginOf(int step) const;
    std::vector<Heard> findIn(Signal all, Signal wanted) const;

    std::vector<float> frames;
    std::vector<std::size_t> begins; // of steps, in frames
};
