#pragma once

#include <functional>
#include <string>

// Each chapter hides one secret. What was found stays found, in all games.

/// Rings, keeps the secret of the chapter for good and tells the user with the number of those
/// found, and the store too, but for the last. `beforeTelling` runs when the secret is kept.
void findSecret(int chapter, const std::function<void()>& beforeTelling = {});

/// Rings, and shows the words until something else takes them away.
void ringAndShow(const std::string& words);

/// Reports an achievement to the store at once. A store that is absent or fails is a line on
/// standard output.
void setAchievement(const char* name);
