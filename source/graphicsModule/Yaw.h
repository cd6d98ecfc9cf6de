#pragma once

#include <LinearMath/btTransform.h>

#include <cmath>

/// Cosine and sine of a transform's turn about z.
struct Yaw {
    float cosine, sine;
};

/// The turn as `getEulerYPR` sees it, taken from the basis without going through the angle. A basis
/// squeezed to nothing counts as not turned.
inline Yaw yawOf(const btTransform& transform) {
    const double x = transform.getBasis()[0].x();
    const double y = transform.getBasis()[1].x();
    const double length = std::sqrt(x * x + y * y);
    if (length == 0.0) {
        return {1.0F, 0.0F};
    }
    return {static_cast<float>(x / length), static_cast<float>(y / length)};
}
