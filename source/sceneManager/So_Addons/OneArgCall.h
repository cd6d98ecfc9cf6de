#pragma once

#include "CallbackAdd.h"
#include "TextStream.h"

#include <type_traits>

/// A keyword with a single argument. T is int, unsigned, float or std::string. A word that does not
/// convert, or is missing, leaves the argument zero or empty.
template <class T>
class OneArgCall : public CallbackAdd {
protected:
    OneArgCall(AdditionType code, const char* word, ScriptWords& words) : CallbackAdd(code) {
        takeKeyword(words, word);
        if constexpr (std::is_same_v<T, std::string>) {
            arg = takeWord(words);
        } else {
            arg = takeNumber<T>(words, T{});
        }
    }

    OneArgCall(AdditionType code, TextReader& stream) : CallbackAdd(code) {
        if constexpr (std::is_same_v<T, std::string>) {
            arg = readCountedString(stream);
        } else {
            stream >> arg;
        }
    }

    void saveFields(TextWriter& stream) const override {
        if constexpr (std::is_same_v<T, std::string>) {
            stream.writeCounted(arg);
        } else {
            stream << arg;
        }
    }

    T arg{};
};
