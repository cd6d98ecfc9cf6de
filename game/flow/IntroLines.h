#pragma once

/// Enters the commands of the lines of all intros: "CH2T1" is the first of chapter 2. A line shows
/// its text, and may change what is on the stage.
void registerIntroLines();
