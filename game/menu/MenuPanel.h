#pragma once

#include "inputModule/InputFrame.h"

#include <functional>
#include <memory>
#include <string>

class Text;

// What the panels of the menu are made of: rows of labels and buttons at places of their own.

namespace menuSize { // of texts, beyond the 16 units of the smallest letters
constexpr float title = 30.0F;
constexpr float entry = 20.0F;
constexpr float row = 10.0F;
constexpr float note = 5.0F;
} // namespace menuSize

/// Height of a line of text, logical units.
constexpr float lineHeight(float size) {
    return 16.0F + size;
}

enum class MenuColour { white, grey, blue };

/// An invisible frame of the menu. `InputModule` owns it as soon as it is open. Whoever closes it,
/// also by closing all frames at once, the record that names it becomes null.
class MenuPanel : public InputFrame {
public:
    MenuPanel(float width, float height);
    ~MenuPanel() override;

    /// Places are those of the lower left corner, from the lower left corner of the panel.
    Text& addLabel(const std::string& shown, float size, float x, float y,
                   MenuColour colour = MenuColour::white);
    /// A white button lights up under the mouse, a blue one stays as it is. The action may close
    /// the panel.
    Text& addButton(const std::string& shown, float size, float x, float y,
                    std::function<void()> action, MenuColour colour = MenuColour::white);
    /// A long text that wraps, with its top at `top`. Returns the height that it takes.
    float addParagraph(const std::string& shown, float size, float maxWidth, float top);
};

inline MenuPanel* mainPanel = nullptr; ///< The panel at the right edge, or null; not owned.
inline MenuPanel* sidePanel = nullptr; ///< The panel at the left, or the pause menu, or null; not
                                       ///< owned. There is never more than one.

/// Closes what the record names, if anything.
void closePanel(MenuPanel*& record);
/// Opens the panel with its corner at x, y of the logical screen, in the place of the former one.
void openPanel(MenuPanel*& record, std::unique_ptr<MenuPanel> panel, float x, float y);
