#pragma once

#include <string>

/// The message that the action raises; empty if it raises none.
template <class Action>
std::string failureOf(Action action) {
    try {
        action();
    } catch (const std::string& message) {
        return message;
    }
    return "";
}

inline bool isCorruption(const std::string& message) {
    return message.starts_with("file corrupted");
}
