#include "TextStream.h"

#include <cmath>
#include <cstdlib>

namespace {

constexpr std::size_t numberLength = 24; // the longest int64 or six-digit float

/// A stream takes a plus sign and std::from_chars does not. Two signs are no number.
const char* skipPlus(const char* start, const char* end) {
    const bool plus = start != end && *start == '+';
    const bool twoSigns = plus && start + 1 != end && start[1] == '-';
    return plus && !twoSigns ? start + 1 : start;
}

} // namespace

template <class T>
void TextReader::readOddInteger(T& value) {
    const auto result = std::from_chars(skipPlus(cursor, end), end, value);
    if (result.ec != std::errc() || !endsToken(result.ptr)) {
        fail();
    }
    cursor = result.ptr;
}

void TextReader::readOddNumber(int& value) {
    readOddInteger(value);
}

void TextReader::readOddNumber(std::int64_t& value) {
    readOddInteger(value);
}

void TextReader::readOddNumber(unsigned& value) {
    const bool minus = cursor != end && *cursor == '-';
    const auto result = std::from_chars(minus ? cursor + 1 : skipPlus(cursor, end), end, value);
    if (result.ec != std::errc() || !endsToken(result.ptr)) {
        fail();
    }
    cursor = result.ptr;
    value = minus ? 0U - value : value;
}

/// A stream rounds what is too small and refuses what is too large; std::from_chars calls both out
/// of range.
void TextReader::readOddNumber(float& value) {
    const char* start = skipPlus(cursor, end);
    const auto result = std::from_chars(start, end, value);
    if (result.ec == std::errc::result_out_of_range) {
        value = std::strtof(std::string(start, result.ptr).c_str(), nullptr);
    } else if (result.ec != std::errc()) {
        fail();
    }
    if (!std::isfinite(value) || !endsToken(result.ptr)) {
        fail();
    }
    cursor = result.ptr;
}

TextReader& TextReader::operator>>(bool& value) {
    skipBlanks();
    if (cursor == end || (*cursor != '0' && *cursor != '1') || !endsToken(cursor + 1)) {
        fail();
    }
    value = *cursor == '1';
    ++cursor;
    return *this;
}

TextReader& TextReader::operator>>(std::string& word) {
    skipBlanks();
    const char* behind = cursor;
    while (!endsToken(behind)) {
        ++behind;
    }
    if (behind == cursor) {
        fail();
    }
    word.assign(cursor, behind);
    cursor = behind;
    return *this;
}

std::size_t TextReader::readCount() {
    const auto count = static_cast<std::size_t>(read<unsigned>());
    if (count > remaining() / 2) {
        fail();
    }
    return count;
}

void TextReader::fail() const {
    throw "file corrupted: " + std::string(record) + " at byte " + std::to_string(offset());
}

void TextReader::skipCharacter() {
    if (cursor == end) {
        fail();
    }
    ++cursor;
}

std::string_view TextReader::take(std::size_t size) {
    if (size > remaining()) {
        fail();
    }
    const std::string_view taken(cursor, size);
    cursor += size;
    return taken;
}

std::string readCountedString(TextReader& reader) {
    const auto size = reader.read<unsigned>();
    reader.skipCharacter();
    return std::string(reader.take(size));
}

template <class T>
TextWriter& TextWriter::printNumber(T value) {
    char digits[numberLength];
    const auto result = std::to_chars(digits, digits + numberLength - 1, value);
    *result.ptr = ' ';
    buffer.append(digits, result.ptr + 1);
    return *this;
}

TextWriter& TextWriter::operator<<(int value) {
    return printNumber(value);
}

TextWriter& TextWriter::operator<<(unsigned value) {
    return printNumber(value);
}

TextWriter& TextWriter::operator<<(std::size_t value) {
    return printNumber(value);
}

TextWriter& TextWriter::operator<<(std::int64_t value) {
    return printNumber(value);
}

TextWriter& TextWriter::operator<<(float value) {
    // Corners of textures, white, full alpha: much of what a scene holds is a single digit.
    if (value >= 0.0F && value < 10.0F && !std::signbit(value)) {
        const int digit = static_cast<int>(value);
        if (static_cast<float>(digit) == value) {
            const char printed[] = {static_cast<char>('0' + digit), ' '};
            buffer.append(printed, sizeof printed);
            return *this;
        }
    }
    char digits[numberLength];
    const auto result =
        std::to_chars(digits, digits + numberLength - 1, value, std::chars_format::general, 6);
    *result.ptr = ' ';
    buffer.append(digits, result.ptr + 1);
    return *this;
}

TextWriter& TextWriter::operator<<(bool value) {
    buffer += value ? "1 " : "0 ";
    return *this;
}

TextWriter& TextWriter::operator<<(std::string_view word) {
    buffer += word;
    buffer += ' ';
    return *this;
}

void TextWriter::writeCounted(std::string_view value) {
    *this << value.size() << value;
}
