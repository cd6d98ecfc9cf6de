#pragma once

class MultiGraphics;

/// A track over the rectangle and, as the second part, a handle 5 units wide and as high as `top`.
MultiGraphics* makeSliderGraphics(float left, float bottom, float right, float top);
