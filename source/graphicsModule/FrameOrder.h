#pragma once

#include <vector>

class GraphicsObject;

/// Sorts stably by z, then by texture handle, so that objects that lie at one depth share binds and
/// never swap between frames.
void sortForDrawing(std::vector<GraphicsObject*>& objects);
