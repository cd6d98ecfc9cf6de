#include "Mutator.h"

#include <iterator>

namespace {

/// Values that have broken readers before: limits, signs, halves of numbers, words.
constexpr const char* words[] = {"0",
                                 "-1",
                                 "1",
                                 "2",
                                 "3",
                                 "31",
                                 "4294967295",
                                 "4294967296",
                                 "1e38",
                                 "2147483647",
                                 "-2147483648",
                                 "-inf",
                                 "nan",
                                 "1e-9",
                                 "3.5",
                                 "word",
                                 "+7",
                                 "0x10",
                                 "",
                                 "-0",
                                 "32",
                                 "17",
                                 "99999999999999999999",
                                 "8",
                                 "1000000",
                                 "LOCK",
                                 "-V",
                                 "-P",
                                 "NAME",
                                 "DELAY"};

} // namespace

std::size_t Mutator::below(std::size_t limit) {
    return limit == 0 ? 0 : std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
}

std::string Mutator::mutate(std::string text) {
    const std::size_t injuries = 1 + below(3);
    for (std::size_t i = 0; i < injuries; ++i) {
        injure(text);
    }
    return text;
}

void Mutator::injure(std::string& text) {
    const std::size_t at = below(text.size());
    const std::size_t length = below(1 + below(20));
    switch (below(8)) {
    case 0:
        text.resize(at);
        break;
    case 1:
        text.erase(at, length);
        break;
    case 2:
        text.insert(at, text.substr(below(text.size()), length));
        break;
    case 3:
        if (!text.empty()) {
            text[at] = static_cast<char>(below(256));
        }
        break;
    default:
        replaceWord(text);
        break;
    }
}

void Mutator::replaceWord(std::string& text) {
    std::size_t begin = text.rfind(' ', below(text.size()));
    begin = begin == std::string::npos ? 0 : begin + 1;
    std::size_t end = text.find(' ', begin);
    end = end == std::string::npos ? text.size() : end;
    text.replace(begin, end - begin, words[below(std::size(words))]);
}
