#pragma once

#include "InputObject.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/Text.h"

#include <sstream>
#include <string>

/// Shows a number, and shows it anew when it has changed. Bound to the brightness unless told
/// otherwise.
template <class T>
class Display : public InputObject {
public:
    /// `source` must outlive the display.
    explicit Display(float size, T* source = &brightness)
        : InputObject(new Text(format(*source), 0.0F, 0.0F, size, 1.0F, 1.0F, 1.0F)),
          value(source),
          shown(*source) {}

    void tick() override {
        if (*value == shown) {
            return;
        }
        std::string digits = format(*value);
        digits.resize(maxChars);
        static_cast<Text*>(graphics)->setText(digits);
        shown = *value;
    }

private:
    static constexpr std::size_t maxChars = 4; // cut there, or filled up with empty cells

    static std::string format(T number) {
        std::ostringstream stream;
        stream << number;
        return stream.str();
    }

    T* value; // not owned
    T shown;
};
