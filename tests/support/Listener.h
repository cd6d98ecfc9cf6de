#pragma once

#include "Recording.h"
#include "TempDirectory.h"

#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

/// A pair of ears for SDL's mixer. SDL's disk driver writes into a pipe that holds one buffer, so
/// that the audio thread stands until the test has heard the time of a step: game and sound run in
/// lockstep, as fast as they can, and a run gives the same recording each time. One at a time.
/// While it is plugged in, whatever flushes all files of the process would wait for ever: the end
/// of the process by `exit`, and the test library's capture of standard error, for which there is
/// `CapturedErrors`.
class Listener {
public:
    /// Makes the pipe SDL's audio device. Before the mixer opens.
    Listener();
    /// After the mixer has closed; the next one finds the device that it would have found before.
    ~Listener();
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    /// Once the mixer is open, before anything sounds.
    void begin();
    /// Hears what sounds in the time of one step. Nothing once unplugged.
    /// @throws std::runtime_error if no sound comes, silence included, for a long time
    void hearStep();
    /// Takes the device away: the mixer's next buffer cannot be written. Must come before the mixer
    /// closes, which would wait for a listener else.
    void unplug();

    const Recording& heard() const { return recording; }

private:
    static void takeBuffer(void* listener, unsigned char* stream, int bytes);
    bool readBuffer();
    void awaitMixing();
    void setVariable(const char* name, const std::string& value);

    struct Variable {
        const char* name;
        std::optional<std::string> value;
    };

    TempDirectory directory;
    std::vector<Variable> environment; // as it was before
    int pipe = -1;                     // the reading end
    std::size_t read = 0;              // buffers
    std::size_t start = 0;             // buffers that were read before the recording began
    std::size_t unmixed = 0;           // buffers that came before the first mixed one

    std::mutex mutex; // of all below, while the audio thread may run
    std::condition_variable mixing;
    std::size_t mixed = 0; // buffers
    Recording recording;
};
