#include "FrameOrder.h"

#include "GraphicsObject.h"

#include <algorithm>

namespace {

/// More than this many moves an object, and the list is no longer one that the last frame sorted.
constexpr std::size_t movesPerObject = 16;

struct DrawKey {
    explicit DrawKey(const GraphicsObject& object)
        : z(object.getZ()),
          texture(object.getTexture()) {}

    bool operator<(const DrawKey& other) const {
        return z < other.z || (z == other.z && texture < other.texture);
    }

    float z;
    int texture;
};

/// False if it gave up half way, with every object still in the list.
bool insertionSort(std::vector<GraphicsObject*>& objects) {
    std::size_t movesLeft = movesPerObject * objects.size();
    for (std::size_t i = 1; i < objects.size(); ++i) {
        GraphicsObject* object = objects[i];
        const DrawKey key(*object);
        std::size_t hole = i;
        while (hole > 0 && movesLeft > 0 && key < DrawKey(*objects[hole - 1])) {
            objects[hole] = objects[hole - 1];
            --hole;
            --movesLeft;
        }
        objects[hole] = object;
        if (movesLeft == 0) {
            return false;
        }
    }
    return true;
}

} // namespace

void sortForDrawing(std::vector<GraphicsObject*>& objects) {
    // Between two frames hardly anything changes its depth. An insertion sort walks such a list
    // once and needs no memory, where a merge sort allocates a buffer in every frame. Only a list
    // in disorder, after a map was loaded, is worth the merge sort.
    if (!insertionSort(objects)) {
        std::stable_sort(objects.begin(), objects.end(),
                         [](const GraphicsObject* a, const GraphicsObject* b) {
                             return DrawKey(*a) < DrawKey(*b);
                         });
    }
}
