#pragma once

/// Enters the commands that move the stages of the intros: each runs in every step, as a script of
/// one word that ends by itself, or as the head of its intro's script.
void registerIntroMovers();
