#include "Settings.h"

#include "TextStream.h"

#include <string_view>

namespace {

[[noreturn]] void throwBadValue(const std::string& key) {
    throw "bad value in modifier " + key;
}

/// From one character behind the key, whatever that is, to the next white space.
std::string_view findValue(const std::string& key, const std::string& text) {
    const std::size_t found = text.find(key);
    if (found == std::string::npos || found + key.size() >= text.size()) {
        throwBadValue(key);
    }
    const std::string_view rest = std::string_view(text).substr(found + key.size() + 1);
    const std::string_view value = rest.substr(0, rest.find_first_of(" \t\n\v\f\r"));
    if (value.empty()) {
        throwBadValue(key);
    }
    return value;
}

template <class T>
std::string print(const T& value) {
    TextWriter writer;
    writer << value;
    std::string printed = writer.takeText();
    printed.pop_back(); // the writer's blank
    return printed;
}

std::string print(char value) {
    return std::string(1, value);
}

std::string print(const std::string& value) {
    return value;
}

} // namespace

template <class T>
T getModifier(const std::string& key, const std::string& text) {
    const std::string_view value = findValue(key, text);
    try {
        return TextReader(value).read<T>();
    } catch (const std::string&) {
        throwBadValue(key);
    }
}

template <>
char getModifier<char>(const std::string& key, const std::string& text) {
    return findValue(key, text).front();
}

template <class T>
void setModifier(const std::string& key, const T& value, std::string& text) {
    const std::string line = key + " " + print(value);
    const std::size_t start = text.find(key);
    if (start == std::string::npos) {
        text += "\r\n" + line;
        return;
    }
    const std::size_t end = text.find("\r\n", start);
    text.replace(start, end == std::string::npos ? end : end - start, line);
}

template int getModifier<int>(const std::string&, const std::string&);
template bool getModifier<bool>(const std::string&, const std::string&);
template float getModifier<float>(const std::string&, const std::string&);
template std::string getModifier<std::string>(const std::string&, const std::string&);

template void setModifier<int>(const std::string&, const int&, std::string&);
template void setModifier<float>(const std::string&, const float&, std::string&);
template void setModifier<char>(const std::string&, const char&, std::string&);
template void setModifier<std::string>(const std::string&, const std::string&, std::string&);
