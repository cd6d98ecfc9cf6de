#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

/// Damages texts: the kinds of harm that a disk, an editor or a curious user does to a file.
class Mutator {
public:
    explicit Mutator(std::uint32_t seed) : random(seed) {}

    /// One to a few injuries to the text.
    std::string mutate(std::string text);

    std::size_t below(std::size_t limit); ///< 0 to limit - 1; 0 for 0.

private:
    void injure(std::string& text);
    void replaceWord(std::string& text);

    std::mt19937 random;
};
