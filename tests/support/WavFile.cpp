#include "WavFile.h"

namespace {

std::string bytes(unsigned value, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += static_cast<char>(value >> (8 * i) & 0xFFU);
    }
    return text;
}

} // namespace

std::string makeWav(unsigned rate, unsigned channels, unsigned bits, const std::string& data) {
    const unsigned frame = channels * bits / 8;
    const auto size = static_cast<unsigned>(data.size());
    return "RIFF" + bytes(36 + size, 4) + "WAVEfmt " + bytes(16, 4) + bytes(1, 2) +
           bytes(channels, 2) + bytes(rate, 4) + bytes(rate * frame, 4) + bytes(frame, 2) +
           bytes(bits, 2) + "data" + bytes(size, 4) + data;
}
