#include "Listener.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>

namespace {

constexpr int patience = 30; // seconds; the end of a hang, never of a slow machine
constexpr std::size_t bufferBytes = Recording::bufferFrames * 2 * sizeof(std::int16_t);
constexpr unsigned char firstMark = 0x5A; // fills the first buffer, to tell it in the pipe

[[noreturn]] void fail(const std::string& what) {
    throw std::runtime_error("listening: " + what);
}

/// Buffers that are mixed when the audio thread stands, with so many read. The pipe holds one, and
/// the C library's file, of the same size, writes every second one only together with the next.
constexpr std::size_t mixedWhenRead(std::size_t read) {
    return read / 2 * 2 + 3;
}

} // namespace

Listener::Listener() {
    const std::string path = directory.file("device");
    if (mkfifo(path.c_str(), 0600) != 0) {
        fail("no pipe: " + std::string(std::strerror(errno)));
    }
    pipe = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    const int size = fcntl(pipe, F_SETPIPE_SZ, static_cast<int>(bufferBytes));
    if (size != static_cast<int>(bufferBytes)) {
        fail("no pipe of " + std::to_string(bufferBytes) + " bytes");
    }

    std::signal(SIGPIPE, SIG_IGN); // an unplugged device is an error of writing
    SDL_Quit();                    // the next start chooses the driver anew
    setVariable("SDL_AUDIODRIVER", "disk");
    setVariable("SDL_DISKAUDIOFILE", path);
    setVariable("SDL_DISKAUDIODELAY", "0");
    SDL_LogSetPriority(SDL_LOG_CATEGORY_AUDIO, SDL_NUM_LOG_PRIORITIES); // it warns of this driver
    Mix_SetPostMix(takeBuffer, this);
}

Listener::~Listener() {
    unplug();
    SDL_Quit();
    for (const Variable& variable : environment) {
        variable.value ? setenv(variable.name, variable.value->c_str(), 1)
                       : unsetenv(variable.name);
    }
    std::signal(SIGPIPE, SIG_DFL);
}

void Listener::setVariable(const char* name, const std::string& value) {
    const char* old = std::getenv(name);
    environment.push_back({name, old != nullptr ? std::optional<std::string>(old) : std::nullopt});
    setenv(name, value.c_str(), 1);
}

// Until the mixer tells it to play, the device is given silence that was not mixed, for as long as
// chance will have it. Beginning with a pair of buffers makes all recordings alike.
void Listener::begin() {
    while (!readBuffer()) {
        ++unmixed;
    }
    if (read % 2 != 0) {
        readBuffer();
    }
    awaitMixing();
    start = read;
    recording = {};
}

void Listener::hearStep() {
    if (pipe == -1) {
        return;
    }
    recording.beginStep();
    const std::size_t frames = static_cast<std::size_t>(recording.steps()) * Recording::stepFrames;
    while (read < start + frames / Recording::bufferFrames) {
        readBuffer();
    }
    awaitMixing();
}

void Listener::unplug() {
    Mix_SetPostMix(nullptr, nullptr);
    if (pipe != -1) {
        close(pipe);
        pipe = -1;
    }
}

/// On the audio thread.
void Listener::takeBuffer(void* listener, unsigned char* stream, int bytes) {
    Listener& self = *static_cast<Listener*>(listener);
    const std::lock_guard lock(self.mutex);
    const auto count = static_cast<std::size_t>(bytes);
    self.recording.add({reinterpret_cast<const std::int16_t*>(stream), count / 2});
    if (self.mixed == 0) {
        std::memset(stream, firstMark, count);
    }
    ++self.mixed;
    self.mixing.notify_one();
}

/// Whether the buffer was the first mixed one.
bool Listener::readBuffer() {
    std::array<unsigned char, bufferBytes> buffer{};
    for (std::size_t have = 0; have < buffer.size();) {
        pollfd wait{pipe, POLLIN, 0};
        if (poll(&wait, 1, patience * 1000) == 0) {
            fail("the device is given nothing");
        }
        const ssize_t got = ::read(pipe, &buffer[have], buffer.size() - have);
        if (got == 0) {
            fail("the device is closed");
        }
        have += static_cast<std::size_t>(std::max<ssize_t>(got, 0));
    }
    ++read;
    return std::all_of(buffer.begin(), buffer.end(),
                       [](unsigned char byte) { return byte == firstMark; });
}

/// Returns when the audio thread stands.
void Listener::awaitMixing() {
    const std::size_t wanted = mixedWhenRead(read) - unmixed;
    std::unique_lock lock(mutex);
    if (!mixing.wait_for(lock, std::chrono::seconds(patience), [&] { return mixed >= wanted; })) {
        fail("of " + std::to_string(wanted) + " buffers " + std::to_string(mixed) + " were mixed");
    }
    if (mixed > wanted) {
        fail("the audio thread does not wait for its device");
    }
}
