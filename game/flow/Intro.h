#pragma once

#include <string>

/// The script that tells the intro of a chapter and then enters its level.
std::string introScript(int chapter);

/// Enters the commands that begin the intros, "CH1REF" and from chapter 2 on "CHAPTER2INTRO", and
/// those of their lines and movers.
void registerIntros();
