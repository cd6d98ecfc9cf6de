#pragma once

#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>
#include <type_traits>
#include <utility>

/// Reads the blank-separated text of maps and saves. Byte for byte what a standard stream in the C
/// locale accepts of finite numbers, on std::from_chars, and with a check of every value: the first
/// that does not convert raises "file corrupted: RECORD at byte OFFSET" as a std::string.
class TextReader {
public:
    /// The text is borrowed and must outlive the reader.
    explicit TextReader(std::string_view content)
        : begin(content.data()),
          end(begin + content.size()),
          cursor(begin) {}

    TextReader& operator>>(int& value) { return readNumber(value); }
    /// A leading minus wraps, as a stream has it.
    TextReader& operator>>(unsigned& value) { return readNumber(value); }
    TextReader& operator>>(std::int64_t& value) { return readNumber(value); }
    /// Infinity and not-a-number are refused.
    TextReader& operator>>(float& value) { return readNumber(value); }
    TextReader& operator>>(bool& value); ///< "0" or "1".
    TextReader& operator>>(std::string& word);

    /// One value of the type, for use in expressions.
    template <class T>
    T read() {
        T value{};
        *this >> value;
        return value;
    }

    /// A number of things to follow, each of at least two bytes of text: a count that the rest of
    /// the text cannot hold is refused before anybody allocates for it.
    std::size_t readCount();

    /// Names what is being read, for messages. The text must be a literal.
    void setRecord(const char* name) { record = name; }

    /// Raises "file corrupted" for the present record and place.
    [[noreturn]] void fail() const;

    /// Takes one character and drops it, whatever it is.
    void skipCharacter();
    /// The next `size` characters as they are.
    std::string_view take(std::size_t size);

    std::size_t offset() const { return static_cast<std::size_t>(cursor - begin); }
    void rewind() { cursor = begin; }

private:
    static bool isBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

    void skipBlanks() {
        while (cursor != end && isBlank(*cursor)) {
            ++cursor;
        }
    }

    bool endsToken(const char* place) const { return place == end || isBlank(*place); }
    std::size_t remaining() const { return static_cast<std::size_t>(end - cursor); }

    template <class T>
    TextReader& readNumber(T& value);
    // Numbers that std::from_chars sees otherwise than a stream does.
    template <class T>
    void readOddInteger(T& value);
    void readOddNumber(int& value);
    void readOddNumber(unsigned& value);
    void readOddNumber(std::int64_t& value);
    void readOddNumber(float& value);

    const char* begin;
    const char* end;
    const char* cursor; // at the start of a value while it is read: the place that `fail` tells
    const char* record = "text";
};

/// The way of nearly all that a map holds; short, so that it can go into the loops of its callers.
template <class T>
inline TextReader& TextReader::readNumber(T& value) {
    const char* const stop = end;
    const char* start = cursor;
    while (start != stop && isBlank(*start)) {
        ++start;
    }
    // Corners of textures, white, full alpha: much of what a scene holds is a single digit.
    if (stop - start > 1 && *start >= '0' && *start <= '9' && isBlank(start[1])) {
        cursor = start + 1;
        value = static_cast<T>(*start - '0');
        return *this;
    }
    T result;
    const auto [behind, error] = std::from_chars(start, stop, result);
    bool sound = error == std::errc() && (behind == stop || isBlank(*behind));
    if constexpr (std::is_floating_point_v<T>) {
        sound = sound && std::isfinite(result);
    }
    if (sound) [[likely]] {
        cursor = behind;
        value = result;
    } else {
        cursor = start;
        readOddNumber(value);
    }
    return *this;
}

/// Length, one separating character, then that many characters.
std::string readCountedString(TextReader& reader);

/// Prints values, each with one blank behind it, as a standard stream in the C locale would.
class TextWriter {
public:
    TextWriter& operator<<(int value);
    TextWriter& operator<<(unsigned value);
    TextWriter& operator<<(std::size_t value);
    TextWriter& operator<<(std::int64_t value);
    TextWriter& operator<<(float value); ///< Six significant digits, as "%g".
    TextWriter& operator<<(bool value);
    TextWriter& operator<<(std::string_view word);
    TextWriter& operator<<(const char* word) { return *this << std::string_view(word); }

    /// Length, blank, characters, blank.
    void writeCounted(std::string_view value);

    const std::string& text() const { return buffer; }
    std::string takeText() { return std::move(buffer); }

private:
    template <class T>
    TextWriter& printNumber(T value);

    std::string buffer;
};
